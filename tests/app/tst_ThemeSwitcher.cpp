#include "BaseStyle.h"
#include "BaseTheme.h"
#include "MessageRecorder.h"
#include "PaintCounter.h"
#include "PictureDifference.h"
#include "TemporaryRepository.h"
#include "ThemeFactory.h"
#include "ThemeQApplication.h"
#include "ThemeResources.h"
#include "ThemeSwitcher.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>
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

void addBars(QMainWindow& window)
{
    QMenu* menu = window.menuBar()->addMenu(text("Menu"));
    QToolBar* bar = window.addToolBar(text("Bar"));
    for (const QString& name : {text("action.close"), text("action.delete"), text("edit-copy")}) {
        QAction* action = menu->addAction(QIcon::fromTheme(name), name);
        action->setEnabled(name != text("action.delete"));
        action->setChecked(name == text("action.close"));
        bar->addAction(action);
    }
    auto* dock = new QDockWidget(text("Dock"));
    dock->setWidget(new QPlainTextEdit(text("Words")));
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    window.statusBar()->showMessage(text("Status"));
}

template <class View>
View* filled(View* view)
{
    auto* model = new QStandardItemModel(3, 2, view);
    for (int row = 0; row < model->rowCount(); ++row)
        for (int column = 0; column < model->columnCount(); ++column)
            model->setItem(row, column, new QStandardItem(text("Item")));
    view->setModel(model);
    view->setCurrentIndex(model->index(1, 0));
    return view;
}

QLayout* inputs()
{
    auto* layout = new QVBoxLayout;
    auto* edit = new QLineEdit(text("Words"));
    edit->setClearButtonEnabled(true);
    auto* combo = new QComboBox;
    combo->addItems({text("One"), text("Two")});
    auto* disabled = new QLabel(text("Disabled"));
    disabled->setEnabled(false);
    auto* check = new QCheckBox(text("Check"));
    check->setChecked(true);
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setValue(40);
    auto* progress = new QProgressBar;
    progress->setValue(60);
    for (QWidget* widget : std::initializer_list<QWidget*>{
             new QPushButton(text("Button")), edit, combo, disabled, check, slider, progress,
             new QSpinBox, new QCommandLinkButton(text("Link")), new QDateEdit,
             new QLabel(text("Label")), new QRadioButton(text("Radio"))})
        layout->addWidget(widget);
    return layout;
}

QLayout* containers()
{
    auto* layout = new QVBoxLayout;
    auto* tabs = new QTabWidget;
    tabs->addTab(new QTextEdit(text("Page")), text("First"));
    tabs->addTab(filled(new QTableView), text("Second"));
    tabs->setCurrentIndex(1);
    auto* group = new QGroupBox(text("Group"));
    (new QVBoxLayout(group))->addWidget(filled(new QTreeView));
    auto* area = new QMdiArea;
    area->addSubWindow(new QCalendarWidget)->setWindowTitle(text("Sub"));
    auto* wizard = new QWizard;
    wizard->setWindowFlags(Qt::Widget);
    auto* page = new QWizardPage;
    page->setTitle(text("Title"));
    wizard->addPage(page);
    auto* box = new QMessageBox(QMessageBox::Warning, text("Box"), text("Message"),
                                QMessageBox::Ok | QMessageBox::Cancel);
    box->setWindowFlags(Qt::Widget);
    for (QWidget* widget : std::initializer_list<QWidget*>{tabs, group, area, wizard, box})
        layout->addWidget(widget);
    return layout;
}

/// A window with something of everything.
std::unique_ptr<QMainWindow> everything()
{
    auto window = std::make_unique<QMainWindow>();
    addBars(*window);
    auto* layout = new QHBoxLayout;
    layout->addLayout(inputs());
    layout->addLayout(containers());
    layout->addWidget(filled(new QListView));
    window->setCentralWidget(new QWidget);
    window->centralWidget()->setLayout(layout);
    window->resize(1000, 1100);
    window->show();
    QMenuBar* bar = window->menuBar();
    const QPoint first = bar->actionGeometry(bar->actions().first()).center();
    QMouseEvent move(QEvent::MouseMove, first, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(bar, &move);
    return window;
}

QImage picture(QWidget& window)
{
    QApplication::setActiveWindow(&window);
    window.setFocus();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    return window.grab().toImage();
}

/// Counts the events of one type that widgets get.
class EventCounter : public QObject
{
public:
    explicit EventCounter(QEvent::Type type) : m_type(type) { qApp->installEventFilter(this); }

    int of(const QObject* widget) const { return m_counts.value(widget); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == m_type)
            ++m_counts[watched];
        return false;
    }

private:
    QEvent::Type m_type;
    QHash<const QObject*, int> m_counts;
};

/// Does something at each key.
class Trigger : public QObject
{
public:
    explicit Trigger(std::function<void()> action) : m_action(std::move(action)) { }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress)
            m_action();
        return false;
    }

private:
    std::function<void()> m_action;
};

} // namespace

class tst_ThemeSwitcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void init() { switchTo("Dark"); }

    void widgetsLookAsIfBuiltInTheirTheme()
    {
        QApplication::setCursorFlashTime(0);
        const auto window = everything();
        const QImage dark = picture(*window);
        for (const char* name : {"Light", "HighContrast", "Dark"}) {
            QVERIFY(switchTo(name));
            const QImage shown = picture(*window);
            const auto fresh = everything();
            const QImage expected = picture(*fresh);
            QCOMPARE(largestDifference(shown, expected), 0);
        }
        QCOMPARE(largestDifference(picture(*window), dark), 0);
    }

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
        const QStringList cursors = QDir::searchPaths(text("cursors"));
        const QString sheet = qApp->styleSheet();

        QVERIFY(switchTo("Light"));
        QVERIFY(qApp->styleSheet().endsWith(own));
        QVERIFY(qApp->styleSheet() != sheet);
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::red));
        QCOMPARE(label.palette().color(QPalette::Window),
                 QApplication::palette().color(QPalette::Window));
        QCOMPARE(QDir::searchPaths(text("cursors")).first(), text("own"));
        QVERIFY(QDir::searchPaths(text("cursors")).filter(text("Dark")).isEmpty());

        QVERIFY(switchTo("Dark"));
        QCOMPARE(qApp->styleSheet(), sheet);
        QCOMPARE(QDir::searchPaths(text("cursors")).size(), cursors.size());
        QCOMPARE(QIcon::themeSearchPaths().filter(text("/Images/")).size(), 1);
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
        const auto window = everything();
        picture(*window);
        PaintCounter paints;
        paints.settle();
        EventCounter changes(QEvent::StyleChange);
        QVERIFY(switchTo("Light"));
        QCOMPARE(paints.all(), 0);
        PaintCounter::wait();
        QCOMPARE(paints.paintsOf(window.get()), 1);
        for (const QWidget* widget : window->findChildren<QWidget*>()) {
            // Boxes of buttons and wizards dress theirs once more.
            if (!widget->testAttribute(Qt::WA_SetStyle) && !widget->inherits("QWizardPage"))
                QCOMPARE(changes.of(widget), 1);
            QVERIFY2(paints.paintsOf(widget) <= 1, widget->metaObject()->className());
        }
    }

    void atAnyMoment()
    {
        constexpr int Rounds = 10;
        const char* const themes[] = {"Dark", "Light", "HighContrast"};
        QRandomGenerator random(7);
        const auto switchSomewhere = [&] { switchTo(themes[random.bounded(3)]); };
        Trigger trigger(switchSomewhere);
        for (int round = 0; round < Rounds; ++round) {
            const auto window = everything();
            auto* busy = new QProgressBar(window.get());
            busy->setRange(0, 0);
            busy->show();
            auto* combo = window->findChild<QComboBox*>();
            auto* button = window->findChild<QPushButton*>();
            QMenu menu;
            menu.addAction(QIcon::fromTheme(text("action.close")), text("Close"));
            QDialog dialog(window.get());
            // A slot, an event filter, open popups, a modal dialog, and a dying window.
            connect(button, &QPushButton::clicked, this, switchSomewhere);
            window->findChild<QLineEdit*>()->installEventFilter(&trigger);
            menu.popup({10, 10});
            combo->showPopup();
            button->click();
            QTimer::singleShot(0, &dialog, [&] {
                switchSomewhere();
                dialog.accept();
            });
            dialog.exec();
            QTest::mouseClick(window->findChild<QCheckBox*>(), Qt::LeftButton);
            QTest::keyClick(window->findChild<QLineEdit*>(), Qt::Key_A);
            QCoreApplication::processEvents();
            if (round % 2 == 0)
                connect(busy, &QObject::destroyed, this, switchSomewhere);
        }
        QVERIFY(switchTo("Dark"));
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
