#include "EveryWidget.h"
#include "ThemeQApplication.h"
#include "ThemeSwitcher.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>

// Themes are switched while anything else goes on. VARN_SWITCHES says how often.

namespace {

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
            QToolTip::showText({5, 5}, QStringLiteral("Tip"), edit);
        }),
        after([] { QTest::qWait(5); }),
        after([&window] { (new QLabel(QStringLiteral("New"), &window))->show(); }),
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

class tst_Switching : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void atAnyMoment()
    {
        constexpr int Few = 60;
        const int most = qMax(Few, qEnvironmentVariableIntValue("VARN_SWITCHES"));
        const char* const themes[] = {"Dark", "Light", "HighContrast"};
        QRandomGenerator random(7);
        auto& switcher = BRELK::ThemeSwitcher::getInstance();
        int switches = 0;
        const auto change = [&] {
            switches += switcher.switchTo(QLatin1String(themes[random.bounded(3)]));
        };
        while (switches < most) {
            const auto window = EveryWidget::shown();
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
    }
};

int main(int argc, char** argv)
{
    BRELK::ThemeQApplication application(argc, argv, QStringLiteral("Dark"),
                                         QStringLiteral(VARN_THEME_REPOSITORY));
    tst_Switching test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Switching.moc"
