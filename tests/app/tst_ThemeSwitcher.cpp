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

QColor colorOf(const QIcon& icon)
{
    return icon.pixmap(16).toImage().pixelColor(8, 8);
}

/// Does something at each event of a type, which it is told at its installation.
class Trigger : public QObject
{
public:
    Trigger(QObject* watched, QEvent::Type type, std::function<void()> action)
        : QObject(watched), m_type(type), m_action(std::move(action))
    {
        watched->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        const auto action = m_action; // which may delete this
        if (event->type() == m_type)
            action();
        return false;
    }

private:
    QEvent::Type m_type;
    std::function<void()> m_action;
};

using Action = std::function<void()>;

/// What may be going on in a window when `change` is called.
QVector<Action> moments(QMainWindow& window, const Action& change)
{
    const auto child = [&window](auto* type) {
        return window.findChild<std::remove_pointer_t<decltype(type)>*>();
    };
    const auto after = [change](const Action& action) {
        return [change, action] {
            action();
            change();
        };
    };
    auto* combo = child(static_cast<QComboBox*>(nullptr));
    auto* edit = child(static_cast<QLineEdit*>(nullptr));
    auto* slider = child(static_cast<QSlider*>(nullptr));
    auto* list = child(static_cast<QListView*>(nullptr));
    auto* table = child(static_cast<QTableView*>(nullptr));
    QMenu* menu = window.menuBar()->actions().first()->menu();
    QPushButton* button = new QPushButton(&window);
    QObject::connect(button, &QPushButton::clicked, button, change);
    new Trigger(edit, QEvent::KeyPress, change);
    const auto nested = [change, &window](const Action& run) {
        return [change, &window, run] {
            QTimer::singleShot(0, &window, change);
            run();
        };
    };
    return {
        change,
        [button] { button->click(); },
        [edit] { QTest::keyClick(edit, Qt::Key_A); },
        after([menu] {
            menu->popup({10, 10});
        }),
        after([combo] { combo->showPopup(); }),
        after([combo] { combo->hidePopup(); }),
        after([slider] {
            QTest::mousePress(slider, Qt::LeftButton, {}, {5, 5});
        }),
        after([slider] {
            QTest::mouseMove(slider, {9, 9});
        }),
        after([list] { list->edit(list->model()->index(0, 0)); }),
        after([table] { table->scrollToBottom(); }),
        after([table] { table->verticalScrollBar()->triggerAction(QScrollBar::SliderToMinimum); }),
        after([edit] {
            QToolTip::showText({5, 5}, text("Tip"), edit);
        }),
        after([] { QTest::qWait(5); }),
        after([&window] { (new QLabel(text("New"), &window))->show(); }),
        nested([&window] {
            QDialog dialog(&window);
            QTimer::singleShot(5, &dialog, &QDialog::accept);
            dialog.exec();
        }),
        nested([&window] {
            auto* drag = new QDrag(&window);
            drag->setMimeData(new QMimeData);
            QTimer::singleShot(5, drag, &QDrag::cancel);
            drag->exec();
        }),
        // Within a switch: another one, and widgets that go.
        after([&window, change] { new Trigger(window.statusBar(), QEvent::StyleChange, change); }),
        after([&window] {
            auto* doomed = new QGroupBox(&window);
            new QCheckBox(doomed);
            new Trigger(doomed, QEvent::StyleChange,
                        [doomed] { delete doomed->findChild<QCheckBox*>(); });
        }),
        after([&window] {
            auto* doomed = new QLabel(&window);
            new Trigger(window.centralWidget(), QEvent::StyleChange,
                        [guard = QPointer<QLabel>(doomed)] { delete guard; });
        }),
    };
}

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
        QCOMPARE(colorOf(icon), QColor(Qt::red));

        QVERIFY(ThemeSwitcher::getInstance().switchTo(*blue));
        QCOMPARE(colorOf(icon), QColor(Qt::blue));
        QIcon read;
        QDataStream in(bytes);
        in >> read;
        QCOMPARE(colorOf(read), QColor(Qt::red));
        QVERIFY(colorOf(own) != QColor(Qt::blue));
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
        const auto window = everything();
        const auto level = [](int switches) {
            for (int i = 0; i < switches; ++i) {
                switchTo(i % 2 ? "Dark" : "Light");
                QTest::qWait(1);
            }
            return mallinfo2().uordblks;
        };
        const size_t first = level(10);
        const size_t last = level(50);
        qInfo() << "bytes after 10 and 60 switches:" << first << last;
        QVERIFY(last < first + Tolerance);
    }

    void atAnyMoment()
    {
        constexpr int Few = 60;
        const int most = qMax(Few, qEnvironmentVariableIntValue("VARN_SWITCHES"));
        const char* const themes[] = {"Dark", "Light", "HighContrast"};
        QRandomGenerator random(7);
        int switches = 0;
        const auto change = [&] { switches += switchTo(themes[random.bounded(3)]); };
        while (switches < most) {
            const auto window = everything();
            auto* busy = new QProgressBar(window.get());
            busy->setRange(0, 0);
            busy->show();
            const QVector<Action> all = moments(*window, change);
            for (int count = random.bounded(20); count >= 0; --count) {
                all.at(random.bounded(all.size()))();
                if (random.bounded(2) == 0)
                    QCoreApplication::processEvents();
            }
            if (random.bounded(2) == 0)
                connect(busy, &QObject::destroyed, this, change);
        }
        qInfo() << switches << "switches";
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
