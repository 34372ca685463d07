#include "BaseStyle.h"
#include "BaseTheme.h"
#include "EventCounter.h"
#include "MessageRecorder.h"
#include "Pages.h"
#include "TemporaryRepository.h"
#include "ThemeFactory.h"
#include "ThemeQApplication.h"
#include "ThemeResources.h"
#include "ThemeSwitcher.h"
#include "kit/Page.h"

#include <QtTest>
#include <QtWidgets>

#include <malloc.h>
#include <memory>

using namespace BRELK;

namespace {

bool switchTo(const char* theme)
{
    return ThemeSwitcher::getInstance().switchTo(QString::fromLatin1(theme));
}

QString text(const char* text)
{
    return QString::fromLatin1(text);
}

/// Some pages of the gallery in a window.
std::unique_ptr<QWidget> shownPages()
{
    auto window = std::make_unique<QWidget>();
    auto* layout = new QHBoxLayout(window.get());
    for (const Gallery::PageEntry& entry : Gallery::allPages())
        if (entry.name == text("overview") || entry.name == text("containers"))
            layout->addWidget(Gallery::buildPage(entry));
    window->show();
    QApplication::setActiveWindow(window.get());
    window->setFocus();
    EventCounter::wait();
    return window;
}

/// The color that an icon has in all its forms; none if they differ.
QColor colorOf(const QIcon& icon)
{
    QSet<QRgb> colors;
    for (const auto mode : {QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected})
        for (const auto state : {QIcon::Off, QIcon::On})
            colors.insert(icon.pixmap(16, mode, state).toImage().pixel(8, 8));
    return colors.size() == 1 ? QColor::fromRgba(*colors.cbegin()) : QColor();
}

} // namespace

class tst_ThemeSwitcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void init() { switchTo("Dark"); }

    void whatIsTheApplicationsOwnStays()
    {
        const QString own = text("QFrame#own { color: #123456; }");
        qApp->setStyleSheet(qApp->styleSheet() + own);
        QDir::addSearchPath(text("cursors"), text("own"));
        QLabel label(text("Words"));
        QPalette palette;
        palette.setColor(QPalette::WindowText, Qt::red);
        label.setPalette(palette);
        label.ensurePolished();
        QPushButton button;
        button.setIcon(QIcon(text("own.png")));
        const qint64 icon = button.icon().cacheKey();
        QComboBox combo;
        auto* delegate = new QStyledItemDelegate(&combo);
        combo.setItemDelegate(delegate);
        const QStringList cursors = QDir::searchPaths(text("cursors"));
        const QString sheet = qApp->styleSheet();

        QVERIFY(switchTo("Light"));
        QVERIFY(qApp->styleSheet().endsWith(own));
        QVERIFY(qApp->styleSheet() != sheet);
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::red));
        QCOMPARE(button.icon().cacheKey(), icon);
        QCOMPARE(combo.itemDelegate(), delegate);
        QCOMPARE(label.palette().color(QPalette::Window),
                 QApplication::palette().color(QPalette::Window));
        QCOMPARE(QDir::searchPaths(text("cursors")).first(), text("own"));
        QVERIFY(QDir::searchPaths(text("cursors")).filter(text("Dark")).isEmpty());

        QVERIFY(switchTo("Dark"));
        QCOMPARE(qApp->styleSheet(), sheet);
        QCOMPARE(QDir::searchPaths(text("cursors")).size(), cursors.size());
        QCOMPARE(QIcon::themeSearchPaths().filter(text("/Images/")).size(), 1);
    }

    void nobodyKeepsTheStyleThatGoes()
    {
        QWidget window;
        QWidget around(&window);
        QWidget inside(&around);
        inside.setStyle(around.style());
        window.setStyleSheet(text("QFoo {}")); // which gives it one of a style sheet around that
        switchTo("Light");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        inside.grab();
    }

    void aBoxMayOpenItsListMeanwhile()
    {
        QComboBox combo;
        combo.addItems({text("one"), text("two")});
        connect(combo.view()->selectionModel(), &QItemSelectionModel::currentChanged,
                [] { switchTo("Light"); });
        combo.show();
        combo.showPopup();
        QVERIFY(combo.view()->isVisible());
    }

    void onlySwitchesLetGo()
    {
        const QString main = text("MainColor");
        const QBrush& border = BaseStyle::getBorderBrush(true);
        const QBrush darkBorder = border;
        const QColor dark = ThemeResources::getColor(main);
        std::unique_ptr<Theme> light(ThemeFactory::getInstance().getTheme(text("Light")));
        light->customize(qApp);
        QCOMPARE(ThemeResources::getColor(main), dark);
        QCOMPARE(border, darkBorder);

        QSignalSpy switched(&ThemeSwitcher::getInstance(), &ThemeSwitcher::switched);
        QVERIFY(ThemeSwitcher::getInstance().switchTo(*light));
        QCOMPARE(switched.size(), 1);
        QCOMPARE(static_cast<ThemeQApplication*>(qApp)->getCurrentTheme(), light.get());
        QVERIFY(ThemeResources::getColor(main) != dark);
        QVERIFY(border != darkBorder);
        switchTo("Dark");
    }

    void badThemesChangeNothing()
    {
        const QVariant variables = qApp->property("theme_var");
        const TemporaryRepository repository;
        BaseTheme none(repository.path(text("none")));
        MessageRecorder messages;
        QVERIFY(!ThemeSwitcher::getInstance().switchTo(none));
        QVERIFY(!switchTo("No such theme"));
        QCOMPARE(messages.take().size(), 2);
        QCOMPARE(qApp->property("theme_var"), variables);
        QVERIFY(!QDir::searchPaths(text("icons")).filter(text("Dark")).isEmpty());
    }

    void eachWidgetChangesAndPaintsOnce()
    {
        const auto window = shownPages();
        EventCounter paints;
        paints.settle();
        EventCounter changes(QEvent::StyleChange);
        QVERIFY(switchTo("Light"));
        QCOMPARE(paints.all(), 0);
        EventCounter::wait();
        QCOMPARE(paints.of(window.get()), 1);
        for (const QWidget* widget : window->findChildren<QWidget*>()) {
            // Boxes of buttons and wizards dress theirs once more.
            if (!widget->testAttribute(Qt::WA_SetStyle) && !widget->inherits("QWizardPage"))
                QCOMPARE(changes.of(widget), 1);
            QVERIFY2(paints.of(widget) <= 1, widget->metaObject()->className());
        }
    }

    void iconsOfThemesFollow()
    {
        const QString name = text("action.close");
        const TemporaryRepository repository;
        const auto theme = [&](const char* title, const char* color) {
            repository.write(text("%1/Images/%1/scalable/%2.svg").arg(text(title), name),
                             svgSquare(color));
            return std::make_unique<BaseTheme>(repository.addTheme(text(title), title));
        };
        const auto red = theme("Red", "#ff0000");
        const auto blue = theme("Blue", "#0000ff");
        QVERIFY(ThemeSwitcher::getInstance().switchTo(*red));
        const QIcon icon = ThemeResources::getIcon(name);
        QIcon own = icon;
        QPixmap green(16, 16);
        green.fill(Qt::green);
        own.addPixmap(green);
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << icon;
        const QIcon named = QIcon::fromTheme(name);
        for (const QIcon& follower : {icon, named})
            QCOMPARE(colorOf(follower), QColor(Qt::red));
        theme("Red", "#00ffff"); // and apply it again
        QVERIFY(ThemeSwitcher::getInstance().switchTo(*red));
        QCOMPARE(colorOf(icon), QColor(Qt::cyan));

        QVERIFY(ThemeSwitcher::getInstance().switchTo(*blue));
        for (const QIcon& follower : {icon, named})
            QCOMPARE(colorOf(follower), QColor(Qt::blue));
        QIcon read;
        QDataStream in(bytes);
        in >> read;
        QVERIFY(colorOf(read) == QColor(Qt::red) || colorOf(read) == QColor(Qt::cyan));
        QVERIFY(colorOf(own) != QColor(Qt::blue));
        QVERIFY(QDir(repository.path()).removeRecursively());
        QVERIFY(ThemeSwitcher::getInstance().switchTo(*red));
        switchTo("Dark");
        QVERIFY(colorOf(icon) != QColor(Qt::blue) && !icon.isNull());
    }

    void whatIsMissingIsToldOnce()
    {
        MessageRecorder messages;
        const auto ask = [&messages] {
            for (int time = 0; time < 2; ++time) {
                ThemeResources::getColor(text("NoColor"));
                ThemeResources::getBrush(text("NoBrush"));
                ThemeResources::getIcon(text("no.icon"));
                ThemeResources::getPixmap(text("no.pixmap"), {});
                QPushButton button;
                button.setProperty("ButtonType", text("Odd"));
                button.grab();
            }
            return messages.take().join(QLatin1Char('\n'));
        };
        QCOMPARE(ask(), QString());
        QLoggingCategory::setFilterRules(text("varn.theme.debug=true"));
        switchTo("Light");
        const QString told = ask();
        QLoggingCategory::setFilterRules({});
        for (const char* name : {"NoColor", "NoBrush", "no.icon", "no.pixmap", "Odd"})
            QVERIFY2(told.contains(text(name)), qPrintable(told));
        QCOMPARE(told.count(text("no NoColor")), 1);
        QCOMPARE(told.count(text("no no.icon")), 1);
    }

    void memoryStaysLevel()
    {
        // The toolkit lets go of the names in its cache of pixmaps by a timer of half a minute.
        constexpr size_t Tolerance = 1 << 20;
        const auto window = shownPages();
        const auto level = [](int switches) {
            for (int i = 0; i < switches; ++i) {
                switchTo(i % 2 ? "Dark" : "Light");
                QTest::qWait(1);
            }
            return mallinfo2().uordblks;
        };
        const size_t first = level(10);
        const int more = qMax(50, qEnvironmentVariableIntValue("VARN_SWITCHES"));
        const size_t last = level(more);
        qInfo() << "bytes after 10 switches:" << first << "and after" << more << "more:" << last;
        QVERIFY(last < first + Tolerance);
    }
};

int main(int argc, char** argv)
{
    ThemeQApplication application(argc, argv, QStringLiteral("Dark"),
                                  QStringLiteral(VARN_THEME_REPOSITORY));
    tst_ThemeSwitcher test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ThemeSwitcher.moc"
