#include "BaseStyle.h"
#include "BaseTheme.h"
#include "LookSheet.h"
#include "MessageRecorder.h"
#include "TemporaryRepository.h"
#include "ThemeFactory.h"
#include "ThemeResources.h"
#include "Transcript.h"

#include <QtTest>
#include <QtWidgets>

using namespace BRELK;

namespace {

QVariant mainColor()
{
    return ThemeResources::getThemeVar(QStringLiteral("colors/MainColor"), {});
}

/// The installed style; below a style sheet it belongs to the style of that.
BaseStyle* installedStyle()
{
    auto* own = qobject_cast<BaseStyle*>(QApplication::style());
    return own ? own : QApplication::style()->findChild<BaseStyle*>();
}

/// Notes what a widget can see of the theme when its style changes.
class Witness : public QWidget
{
public:
    QVariant seenColor;
    QString seenIcons;

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::StyleChange && !seenColor.isValid()) {
            seenColor = mainColor();
            seenIcons = QIcon::themeName();
        }
    }
};

QByteArray toText(const QPalette& palette)
{
    QByteArray text;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        for (const auto role : {QPalette::Window, QPalette::WindowText})
            text += ' ' + palette.color(group, role).name().toLatin1();
    return text;
}

QByteArray toText(const QStringList& paths)
{
    return ' ' + paths.join(QLatin1Char(' ')).toLatin1();
}

/// All that applying a theme changes.
QByteArray state()
{
    QByteArray text;
    const QVariantMap groups = qApp->property("theme_var").toMap();
    for (auto group = groups.cbegin(); group != groups.cend(); ++group)
        text += group.key().toLatin1() + ": "
                + QStringList(group->toMap().keys()).join(QLatin1Char(' ')).toLatin1() + '\n';
    text += "main color " + mainColor().value<QColor>().name().toLatin1() + '\n';
    if (installedStyle())
        text += "style " + QApplication::style()->objectName().toLatin1() + ", palette"
                + toText(QApplication::palette()) + ", tool tips" + toText(QToolTip::palette())
                + '\n';
    for (const char* part : {"#203040", "@"})
        if (qApp->styleSheet().contains(QLatin1String(part)))
            text += QByteArray("style sheet with ") + part + '\n';
    if (qFuzzyCompare(QApplication::font().pointSizeF(), 13))
        text += "font\n";
    text += "icon theme " + QIcon::themeName().toLatin1() + " from"
            + toText(QIcon::themeSearchPaths()) + " or" + toText(QIcon::fallbackSearchPaths())
            + '\n';
    for (const char* prefix : {"icons", "cursors", "resources"})
        text +=
            QByteArray(prefix) + " from" + toText(QDir::searchPaths(QLatin1String(prefix))) + '\n';
    return text;
}

} // namespace

class tst_BaseTheme : public QObject
{
    Q_OBJECT

private:
    /// What applying a theme reports and changes, and what applying another one after it does.
    QByteArray applied(const QStringList& themes = {QStringLiteral("a")})
    {
        QByteArray text;
        bool isAsTold = false;
        for (const QString& theme : themes) {
            BaseTheme taken(m_files.path(theme));
            const QPalette told = taken.getPalette(QGuiApplication::palette());
            MessageRecorder messages;
            taken.customize(qApp);
            QStringList reports = messages.take();
            reports.sort();
            for (const QString& report : qAsConst(reports))
                text += report.toUtf8() + '\n';
            if (!taken.getError().isEmpty())
                text += "told: " + taken.getError().toUtf8() + '\n';
            isAsTold = toText(told) == toText(QApplication::palette());
        }
        text += state() + (isAsTold ? "palette as told\n" : "");
        text.replace(m_files.path().toUtf8(), "REPOSITORY");
        reset();
        return text;
    }

    /// Search paths and settings of one case are not to be seen by the next.
    static void reset()
    {
        for (const char* prefix : {"icons", "cursors", "resources"})
            QDir::setSearchPaths(QLatin1String(prefix), {});
        // Without any path of its own Qt falls back to the system's.
        QIcon::setThemeSearchPaths({QStringLiteral(":/none")});
        QIcon::setFallbackSearchPaths({});
        QIcon::setThemeName(QStringLiteral("before"));
        QApplication::setStyle(QStringLiteral("windows"));
        QApplication::setPalette({});
        QApplication::setFont(QFont(QStringLiteral("Sans"), 11));
        qApp->setStyleSheet({});
        qApp->setProperty("theme_var", {});
    }

    const TemporaryRepository m_files;

private Q_SLOTS:

    void init()
    {
        reset();
        m_files.addTheme(QStringLiteral("a"), "A");
        m_files.addTheme(QStringLiteral("b"), "B", "#0000ff");
    }

    void applying()
    {
        QCOMPARE(ThemeResources::getOpacity(QStringLiteral("Early")), 0.0);
        ThemeResources::getColor(QStringLiteral("Later"));
        LookSheet::States cases;
        const auto apply = [&](const QByteArray& name,
                               const QStringList& themes = {QStringLiteral("a")}) {
            cases.append({name, applied(themes)});
        };
        const QByteArray afterLookups = applied();
        apply("applied");
        apply("twice", {QStringLiteral("a"), QStringLiteral("a")});
        apply("another", {QStringLiteral("a"), QStringLiteral("b")});
        qputenv("BRELK_USE_NATIVE_STYLE", "");
        apply("with the native style");
        qunsetenv("BRELK_USE_NATIVE_STYLE");
        qApp->setProperty("varnNoStyleSheet", true);
        apply("without the style sheet");
        qApp->setProperty("varnNoStyleSheet", {});
        QApplication::setPalette(QPalette(Qt::green));
        apply("over colors of the application's own");
        for (const char* file : {"theme.xml", "config.xml", "qpaletteMapping.xml"}) {
            const QString path = m_files.path(QLatin1String("a/") + QLatin1String(file));
            QFile::remove(path);
            apply(QByteArray("without ") + file);
            QDir().mkdir(path);
            apply(QByteArray("with a directory ") + file);
            QDir().rmdir(path);
            m_files.write(QLatin1String("a/") + QLatin1String(file), "<theme><name>A</nam");
            apply(QByteArray("with a broken ") + file);
            m_files.addTheme(QStringLiteral("a"), "A");
        }
        LookSheet sheet;
        cases.append({"applied after lookups", afterLookups});
        sheet.add("applied", cases.first().second, cases.mid(1), 0);
        COMPARE_TRANSCRIPT("BaseTheme.applying", sheet.text());
    }

    void bundlesAndFonts()
    {
        QFile bundle(QStringLiteral(VARN_TEST_BUNDLE));
        QVERIFY(bundle.open(QIODevice::ReadOnly));
        const QString scalable = QStringLiteral("a/Images/A/scalable/");
        m_files.write(scalable + QLatin1String("good.rcc"), bundle.readAll());
        for (const char* name : {"broken.rcc", "ignored.RCC", "ignored.rcc.txt", "sub/ignored.rcc"})
            m_files.write(scalable + QLatin1String(name), "no bundle");
        m_files.write(QStringLiteral("a/Fonts/broken.ttf"), "no font");
        QVERIFY(applied().startsWith("Error reading font: REPOSITORY/a/Fonts/broken.ttf\n"
                                     "Error reading resource bundle: "
                                     "REPOSITORY/a/Images/A/scalable/broken.rcc\n"
                                     "brushes"));
        QVERIFY(QFile::exists(QStringLiteral(":/from/a/bundle")));

        m_files.makePipe(QStringLiteral("b/Fonts/pipe"));
        QFile::link(m_files.path(QStringLiteral("b/Fonts/pipe")),
                    m_files.path(QStringLiteral("b/Fonts/pipe.ttf")));
        m_files.makePipe(QStringLiteral("b/Images/B/index.theme"));
        const QByteArray text = applied({QStringLiteral("b")});
        QVERIFY2(text.startsWith("REPOSITORY/b/Images/B/index.theme: it is no file; the images of "
                                 "the theme are not used\n"
                                 "Error reading font: REPOSITORY/b/Fonts/pipe.ttf\n"),
                 text);
    }

    /// Its images are then looked for by the name of its directory.
    void namesDoNotLeadOutOfTheTheme()
    {
        for (const char* name : {"../../b/Images/B", "..", "/etc", "a\\b"}) {
            m_files.addTheme(QStringLiteral("a"), name);
            const QByteArray text = applied();
            QVERIFY2(text.contains(" leads out of the theme;"), text);
            QVERIFY2(text.contains("REPOSITORY/a/Images/a/scalable "), text);
        }
    }

    void variablesAreThereWhenWidgetsAreRestyled()
    {
        const Witness widget;
        applied();
        QCOMPARE(widget.seenColor.value<QColor>(), QColor(Qt::red));
        QCOMPARE(widget.seenIcons, QStringLiteral("before"));
    }

    void factoryListsDirectoriesAndCreatesThemes()
    {
        const TemporaryRepository repository;
        repository.addTheme(QStringLiteral("night"), "Night shift");
        repository.write(QStringLiteral("README.txt"), "a file");
        repository.write(QStringLiteral(".hidden/theme.xml"), "<theme/>");
        QDir().mkdir(repository.path(QStringLiteral("Empty")));
        QFile::link(repository.path(), repository.path(QStringLiteral("Empty/circle")));

        ThemeFactory& factory = ThemeFactory::getInstance();
        factory.setThemesRepositoryPath(repository.path() + QLatin1String("/./"));
        QCOMPARE(factory.getAvailableThemes().join(QLatin1Char(' ')),
                 QStringLiteral("Empty night"));
        const QString name = QStringLiteral("night");
        const std::unique_ptr<Theme> first(factory.getTheme(name));
        const std::unique_ptr<Theme> second(factory.getTheme(name));
        QVERIFY(first && second && first != second);
        QCOMPARE(first->getName(), QStringLiteral("Night shift"));
        QCOMPARE(factory.getTheme(QString()), nullptr);

        factory.setThemesRepositoryPath(repository.path(QStringLiteral("none")));
        QCOMPARE(factory.getAvailableThemes(), QStringList());
        QCOMPARE(factory.getTheme(name), nullptr);
    }
};

QTEST_MAIN(tst_BaseTheme)
#include "tst_BaseTheme.moc"
