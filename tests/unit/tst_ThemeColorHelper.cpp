#include "TemporaryRepository.h"
#include "ThemeColorHelper.h"
#include "ThemeResources.h"

#include <QApplication>
#include <QIcon>
#include <QtTest>

using namespace BRELK;
using ThemeColorHelper::getModifiedIconWithForegroundBrush;

namespace {

void publish(const QVariantMap& brushes)
{
    qApp->setProperty("theme_var", QVariantMap{{QStringLiteral("brushes"), brushes}});
}

QColor colorOf(const QIcon& icon)
{
    return icon.pixmap(16).toImage().pixelColor(8, 8);
}

} // namespace

class tst_ThemeColorHelper : public QObject
{
    Q_OBJECT

private:
    const TemporaryRepository m_files;

    static QIcon themed(const char* name) { return QIcon::fromTheme(QString::fromLatin1(name)); }

private Q_SLOTS:

    void initTestCase()
    {
        const QVariantMap factors{{QStringLiteral("LightForegroundDisableFactor"), 200},
                                  {QStringLiteral("LightBackgroundDisableFactor"), 125},
                                  {QStringLiteral("DarkForegroundDisableFactor"), 150}};
        qApp->setProperty("theme_var_internal", QVariantMap{{QStringLiteral("factors"), factors}});

        for (const char* index : {"a/index.theme", "b/index.theme"})
            m_files.write(QLatin1String(index), "[Icon Theme]\nName=x\n[i]\nSize=16\n"
                                                "Type=Scalable\nMinSize=1\nMaxSize=512\n");
        m_files.write(QStringLiteral("b/i/plain.svg"), svgSquare("#123456"));
        const auto draw = [this](const char* name, const char* color) {
            m_files.write(QStringLiteral("a/i/%1.svg").arg(QLatin1String(name)), svgSquare(color));
        };
        draw("plain", "#E5EEF4");
        draw("made", "#E5EEF4");
        draw("made.MainBrush", "#010203");
        draw("made.InkDisabledBrush", "#040506");
        // Qt cuts names at hyphens, so a missing "cut-off.MainBrush" leads to "cut".
        draw("cut", "#E5EEF4");
        draw("cut-off", "#E5EEF4");
        QIcon::setThemeSearchPaths({m_files.path()});
        QIcon::setThemeName(QStringLiteral("a"));
    }

    void init()
    {
        publish({{QStringLiteral("MainBrush"), QBrush(Qt::red)},
                 {QStringLiteral("InkBrush"), QBrush(Qt::blue)},
                 {QStringLiteral("InkBrushDisabled"), QBrush(QColor(0x303030))}});
    }

    void disabledColors()
    {
        const auto disabled = ThemeColorHelper::disabled;
        const QColor bright(131, 131, 131), dark(130, 130, 130), veiled(255, 255, 255, 40);
        QCOMPARE(disabled(bright, true), bright.darker(200));
        QCOMPARE(disabled(bright, false), bright.darker(125));
        QCOMPARE(disabled(dark, true), dark.lighter(150));
        QCOMPARE(disabled(dark, false), dark); // for want of a factor
        QCOMPARE(disabled(veiled, true).alpha(), 40);
    }

    void handMadeIconsComeFirst()
    {
        QCOMPARE(getModifiedIconWithForegroundBrush(themed("made"), QBrush(Qt::red)).name(),
                 QStringLiteral("made.MainBrush"));
        // The name says "InkBrushDisabled", the file "InkDisabledBrush".
        QCOMPARE(getModifiedIconWithForegroundBrush(themed("made"), QColor(0x303030)).name(),
                 QStringLiteral("made.InkDisabledBrush"));
    }

    void otherIconsAreRecolored()
    {
        const auto recolored = [](const char* name, const QBrush& brush) {
            return colorOf(getModifiedIconWithForegroundBrush(themed(name), brush));
        };
        QCOMPARE(recolored("plain", QBrush(Qt::red)), QColor(Qt::red));
        QCOMPARE(recolored("made", QBrush(Qt::blue)), QColor(Qt::blue));
        QCOMPARE(recolored("cut-off", QBrush(Qt::red)), QColor(Qt::red));
        QCOMPARE(recolored("made", QBrush(QColor(0x123456))), QColor(0x123456));
        QVERIFY(getModifiedIconWithForegroundBrush({}, QBrush(Qt::red)).isNull());

        // The same color is faded when the theme calls it a disabled one.
        publish({{QStringLiteral("DullBrushDisabled"), QBrush(QColor(0x123456))}});
        QVERIFY(recolored("plain", QBrush(QColor(0x123456))) != QColor(0x123456));
    }

    void resultsFollowTheTheme()
    {
        const auto name = [] {
            return getModifiedIconWithForegroundBrush(themed("made"), QBrush(Qt::blue)).name();
        };
        QCOMPARE(name(), QStringLiteral("made"));
        // Blue becomes a name that the icon theme has a drawing for.
        publish({{QStringLiteral("MainBrush"), QBrush(Qt::blue)}});
        QCOMPARE(name(), QStringLiteral("made.MainBrush"));

        // An icon that was recolored before shows what the icon theme has now.
        const QIcon plain = getModifiedIconWithForegroundBrush(themed("plain"), QBrush(Qt::red));
        QCOMPARE(colorOf(plain), QColor(Qt::red));
        QIcon::setThemeName(QStringLiteral("b"));
        QCOMPARE(colorOf(plain), QColor(0x123456));
        QIcon::setThemeName(QStringLiteral("a"));
    }
};

QTEST_MAIN(tst_ThemeColorHelper)
#include "tst_ThemeColorHelper.moc"
