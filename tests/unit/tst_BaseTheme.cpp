#include "BaseStyle.h"
#include "BaseTheme.h"
#include "MessageRecorder.h"
#include "TemporaryRepository.h"
#include "ThemeResources.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QToolTip>
#include <QWidget>
#include <QtTest>

using namespace BRELK;

namespace {

QVariant variable(const char* path)
{
    return ThemeResources::getThemeVar(QString::fromLatin1(path), {});
}

/// The installed style; the application's own is the one of its style sheet, which owns it.
BaseStyle* installedStyle()
{
    return qApp->style()->findChild<BaseStyle*>();
}

/// Notes what a widget can see of the theme when its style changes.
class Witness : public QWidget
{
public:
    QVariant mainColor;
    QString iconTheme;

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::StyleChange && !mainColor.isValid()) {
            mainColor = variable("colors/MainColor");
            iconTheme = QIcon::themeName();
        }
    }
};

/// All that applying a theme changes.
struct Snapshot
{
    QVariant variables = qApp->property("theme_var");
    QStyle* style = qApp->style();
    QString sheet = qApp->styleSheet();
    QPalette palette = QApplication::palette();
    QPalette tips = QToolTip::palette();
    QString iconTheme = QIcon::themeName();
    QStringList iconPaths = QIcon::themeSearchPaths() + QIcon::fallbackSearchPaths();
    QStringList searchPaths = QDir::searchPaths(ThemeResources::iconsPrefix())
                              + QDir::searchPaths(ThemeResources::cursorsPrefix())
                              + QDir::searchPaths(ThemeResources::themeResourcesPrefix());
};

} // namespace

class tst_BaseTheme : public QObject
{
    Q_OBJECT

private:
    const TemporaryRepository m_repository;

private Q_SLOTS:

    /// Search paths and settings of one case are not to be seen by the next.
    void init()
    {
        for (const QString& prefix :
             {ThemeResources::iconsPrefix(), ThemeResources::cursorsPrefix(),
              ThemeResources::themeResourcesPrefix()})
            QDir::setSearchPaths(prefix, {});
        // Without any path of its own Qt falls back to the system's.
        QIcon::setThemeSearchPaths({QStringLiteral(":/none")});
        QIcon::setFallbackSearchPaths({});
        QIcon::setThemeName(QStringLiteral("before"));
        qApp->setStyleSheet({});
        qApp->setProperty("theme_var", {});
    }

    void publishesVariables()
    {
        BaseTheme(m_repository.addTheme(QStringLiteral("a"), "A")).customize(qApp);
        const QStringList groups = qApp->property("theme_var").toMap().keys();
        QCOMPARE(groups.join(QLatin1Char(' ')),
                 QStringLiteral("brushes colors cornerRadius fonts internalBrushes internalColors "
                                "opacities"));
        QVERIFY(!variable("colors/Secret").isValid());
        QCOMPARE(variable("internalColors/Secret").value<QColor>(), QColor(Qt::green));
        QCOMPARE(ThemeResources::getDisabledFactor(QStringLiteral("DarkBackgroundDisableFactor")),
                 200);
    }

    void installsStylePaletteSheetsAndFont()
    {
        BaseTheme(m_repository.addTheme(QStringLiteral("a"), "A")).customize(qApp);

        QVERIFY(installedStyle());
        const QPalette palette = QApplication::palette();
        QCOMPARE(palette, installedStyle()->getPalette());
        QCOMPARE(palette.color(QPalette::Inactive, QPalette::Window), QColor(0x102030));
        // A text is halved by its factor of 200, a dark background doubled by that of backgrounds.
        QCOMPARE(palette.color(QPalette::Disabled, QPalette::WindowText).lightness(), 127);
        QCOMPARE(palette.color(QPalette::Disabled, QPalette::Window),
                 QColor(0x102030).lighter(200));
        QVERIFY(qApp->styleSheet().contains(QLatin1String("#203040")));
        QVERIFY(!qApp->styleSheet().contains(QLatin1Char('@')));
        QCOMPARE(QApplication::font().pointSizeF(), 13.0);
    }

    void tipsAreTheThemesWhereTheApplicationHasColorsOfItsOwn()
    {
        QApplication::setPalette(QPalette(Qt::green));
        BaseTheme(m_repository.addTheme(QStringLiteral("a"), "A")).customize(qApp);
        QCOMPARE(QApplication::palette().color(QPalette::Window), QColor(Qt::green));
        QCOMPARE(QToolTip::palette().color(QPalette::Window), QColor(0x102030));
        QApplication::setPalette({});
        QCOMPARE(QApplication::palette().color(QPalette::Window), QColor(0x102030));
    }

    void registersPathsOfTheThemeBeforeTheLibrarys()
    {
        const QString path = m_repository.addTheme(QStringLiteral("dir"), "Title");
        BaseTheme(path).customize(qApp);
        BaseTheme(path).customize(qApp);

        const QString images = path + QLatin1String("/Images/");
        const auto twice = [](const QStringList& paths) { return paths + paths; };
        QCOMPARE(QIcon::themeName(), QStringLiteral("Title"));
        QCOMPARE(QIcon::themeSearchPaths().mid(1), twice({images}));
        QCOMPARE(QIcon::fallbackSearchPaths(), twice({QStringLiteral(":/icons")}));
        QCOMPARE(QDir::searchPaths(QStringLiteral("icons")),
                 twice({images + QLatin1String("Title/scalable"), QStringLiteral(":/Icons")}));
        QCOMPARE(QDir::searchPaths(QStringLiteral("cursors")),
                 twice({images + QLatin1String("Title/Cursors"), QStringLiteral(":/Cursors")}));
        QCOMPARE(QDir::searchPaths(QStringLiteral("resources")),
                 twice({images + QLatin1String("Title/theme_resources")}));
    }

    void variablesAreThereWhenWidgetsAreRestyled()
    {
        Witness widget;
        BaseTheme(m_repository.addTheme(QStringLiteral("a"), "A")).customize(qApp);
        QCOMPARE(widget.mainColor.value<QColor>(), QColor(Qt::red));
        QCOMPARE(widget.iconTheme, QStringLiteral("before"));
    }

    void secondThemeReplacesTheFirst()
    {
        BaseTheme(m_repository.addTheme(QStringLiteral("a"), "A")).customize(qApp);
        const QPointer<BaseStyle> first = installedStyle();
        BaseTheme(m_repository.addTheme(QStringLiteral("b"), "B", "#0000ff")).customize(qApp);
        QCOMPARE(variable("colors/MainColor").value<QColor>(), QColor(Qt::blue));
        QVERIFY(qApp->styleSheet().contains(QLatin1String("#0000ff")));
        QCOMPARE(QIcon::themeName(), QStringLiteral("B"));
        QVERIFY(!first && installedStyle());
    }

    void nativeStyleGetsVariablesFontAndPathsOnly()
    {
        QApplication::setStyle(QStringLiteral("windows"));
        const Snapshot before;
        qputenv("BRELK_USE_NATIVE_STYLE", "");
        BaseTheme(m_repository.addTheme(QStringLiteral("a"), "A")).customize(qApp);
        qunsetenv("BRELK_USE_NATIVE_STYLE");

        const Snapshot after;
        QCOMPARE(after.style, before.style);
        QCOMPARE(after.sheet, QString());
        QCOMPARE(after.palette, before.palette);
        QCOMPARE(after.tips, before.tips);
        QCOMPARE(variable("colors/MainColor").value<QColor>(), QColor(Qt::red));
        QCOMPARE(QApplication::font().pointSizeF(), 13.0);
        QCOMPARE(after.iconTheme, QStringLiteral("A"));
        QCOMPARE(after.searchPaths.size(), 5);
    }

    void badFiles_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QByteArray>("content");
        const std::pair<const char*, QByteArray> contents[] = {
            {"missing", ""}, {"a directory", "/"}, {"malformed", "<theme><name>A</nam"}};
        const std::pair<const char*, const char*> files[] = {
            {"theme.xml", "Error reading theme configuration file %1/theme.xml"},
            {"config.xml", "Error reading theme palette file: %1/palette.xml"},
            {"qpaletteMapping.xml",
             "Error reading theme QPalette mapping file: %1/qpaletteMapping.xml"}};
        for (const auto& [file, message] : files) {
            for (const auto& [kind, content] : contents)
                QTest::addRow("%s %s", file, kind)
                    << QString::fromLatin1(file) << QString::fromLatin1(message) << content;
        }
    }

    void badFiles()
    {
        QFETCH(QString, file);
        QFETCH(QString, message);
        QFETCH(QByteArray, content);
        const TemporaryRepository repository;
        const QString path = repository.addTheme(QStringLiteral("bad"), "A");
        QFile::remove(path + QLatin1Char('/') + file);
        if (content == "/")
            QDir(path).mkdir(file);
        else if (!content.isEmpty())
            repository.write(QLatin1String("bad/") + file, content);

        const Snapshot before;
        MessageRecorder messages;
        BaseTheme(path).customize(qApp);
        const Snapshot after;

        const QStringList all = messages.take();
        QCOMPARE(all.count(message.arg(path)), 1);
        if (file == QLatin1String("theme.xml")) {
            QCOMPARE(all.size(), 1);
            QCOMPARE(after.variables, before.variables);
            QCOMPARE(after.style, before.style);
            QCOMPARE(after.iconTheme, before.iconTheme);
            QCOMPARE(after.iconPaths + after.searchPaths, before.iconPaths + before.searchPaths);
            return;
        }
        QVERIFY(installedStyle());
        QCOMPARE(after.variables.toMap().size(), 7);
        QCOMPARE(after.searchPaths.size(), 5);
        const bool configured = file != QLatin1String("config.xml");
        QCOMPARE(variable("colors").toMap().isEmpty(), !configured);
        QVERIFY(!after.sheet.isEmpty());
    }

    void bundlesAndFonts()
    {
        const TemporaryRepository repository;
        const QString path = repository.addTheme(QStringLiteral("a"), "A");
        const QString scalable = QStringLiteral("a/Images/A/scalable/");
        QFile bundle(QStringLiteral(VARN_TEST_BUNDLE));
        QVERIFY(bundle.open(QIODevice::ReadOnly));
        repository.write(scalable + QLatin1String("good.rcc"), bundle.readAll());
        for (const char* name : {"broken.rcc", "ignored.RCC", "ignored.rcc.txt", "sub/ignored.rcc"})
            repository.write(scalable + QLatin1String(name), "no bundle");
        repository.write(QStringLiteral("a/Fonts/broken.ttf"), "no font");

        QVERIFY(!QFile::exists(QStringLiteral(":/from/a/bundle")));
        MessageRecorder messages;
        BaseTheme(path).customize(qApp);
        QVERIFY(QFile::exists(QStringLiteral(":/from/a/bundle")));
        QStringList all = messages.take();
        all.sort();
        QCOMPARE(all, QStringList({QLatin1String("Error reading font: ") + path
                                       + QLatin1String("/Fonts/broken.ttf"),
                                   QLatin1String("Error reading resource bundle: ")
                                       + repository.path(scalable + QLatin1String("broken.rcc"))}));
    }
};

QTEST_MAIN(tst_BaseTheme)
#include "tst_BaseTheme.moc"
