#include "EventCounter.h"
#include "SampleWidgets.h"
#include "SampleWindow.h"
#include "Tasks.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>
#include <QWindow>

namespace Peers {

namespace {

using StyleBenchmark::createWindow;

std::unique_ptr<QMainWindow> exposedWindow()
{
    auto window = createWindow();
    window->show();
    settle();
    return window;
}

/// All of it is in the figures of the process.
Figures start(const Order& order)
{
    const auto application = createApplication(order.look, Dress::Plain, order.sheet);
    exposedWindow();
    return {};
}

Figures widgets(const Order& order)
{
    constexpr int Count = 2000;
    const auto application = createApplication(order.look, Dress::Plain, order.sheet);
    exposedWindow(); // what is made once is made
    const double time = timeOf([] {
        auto parent = std::make_unique<QWidget>();
        addSampleWidgets(*parent, Count);
        parent->show();
        settle();
    });
    return {{QStringLiteral("each"), time / Count}};
}

/// What a window full of widgets takes that all have the same parent.
Figures crowd(const Order& order, int count)
{
    const auto application = createApplication(order.look, Dress::Plain, order.sheet);
    exposedWindow(); // what is made once is made
    auto window = std::make_unique<QWidget>();
    Figures figures;
    figures[QStringLiteral("made")] = timeOf([&] {
        addSampleWidgets(*window, count);
        window->show();
        settle();
    });
    figures[QStringLiteral("painted")] = timeOf([&] { window->repaint(); });
    if (isDressed(count))
        figures[QStringLiteral("worn")] = timeOf([&] {
            wear(*application, order.look, true, order.sheet);
            settle();
        });
    figures[QStringLiteral("destroyed")] = timeOf([&] {
        window.reset();
        settle();
    });
    return figures;
}

/// Moves along a diagonal of the window, there and back.
QPoint placeOf(int step, int steps, const QSize& size)
{
    const int half = steps / 2;
    const int along = step < half ? step : steps - step;
    return {size.width() * along / half * 9 / 10 + 5,
            size.height() * (step * 7 % half) / half * 9 / 10 + 5};
}

Figures mouse(const Order& order)
{
    constexpr int Moves = 200;
    const auto application = createApplication(order.look, Dress::Plain, order.sheet);
    const auto window = exposedWindow();

    struct Repaints : QObject
    {
        bool eventFilter(QObject* /*watched*/, QEvent* event) override
        {
            count += event->type() == QEvent::UpdateRequest ? 1 : 0;
            return false;
        }

        int count = 0;
    } repaints;

    window->installEventFilter(&repaints);
    const double time = timeOf([&] {
        for (int i = 0; i < Moves; ++i) {
            QTest::mouseMove(window->windowHandle(), placeOf(i, Moves, window->size()));
            settle();
        }
    });
    return {{QStringLiteral("move"), time / Moves},
            {QStringLiteral("repaints"), double(repaints.count)}};
}

Figures typing(const Order& order)
{
    constexpr int Characters = 200;
    const auto application = createApplication(order.look, Dress::Plain, order.sheet);
    QWidget window;
    QLineEdit line(&window);
    QPlainTextEdit text(&window);
    line.setGeometry(10, 10, 400, line.sizeHint().height());
    text.setGeometry(10, 100, 400, 200);
    window.resize(420, 310);
    window.show();
    window.activateWindow();
    settle();
    const double time = timeOf([&] {
        for (QWidget* editor : {static_cast<QWidget*>(&line), static_cast<QWidget*>(&text)}) {
            editor->setFocus();
            for (int i = 0; i < Characters / 2; ++i) {
                QTest::keyClick(editor, char('a' + i % 26));
                settle();
            }
        }
    });
    return {{QStringLiteral("character"), time / Characters}};
}

Figures resizing(const Order& order)
{
    constexpr int Steps = 100;
    constexpr int Pixels = 3;
    const auto application = createApplication(order.look, Dress::Plain, order.sheet);
    const auto window = exposedWindow();
    const QSize size = window->size();
    const double time = timeOf([&] {
        for (int i = 0; i < Steps; ++i) {
            window->resize(size + Pixels * QSize(i, i % 10));
            settle();
        }
    });
    return {{QStringLiteral("step"), time / Steps}};
}

Figures popups(const Order& order)
{
    constexpr int Times = 25;
    const auto application = createApplication(order.look, Dress::Plain, order.sheet);
    const auto window = exposedWindow();
    const double time = timeOf([&] {
        for (int i = 0; i < Times; ++i) {
            QMenu menu;
            StyleBenchmark::fillMenu(menu);
            menu.popup(window->mapToGlobal(QPoint(i, i)));
            settle();
            menu.hide();
            QComboBox box(window.get());
            box.addItems({QStringLiteral("Steel"), QStringLiteral("Copper")});
            box.show();
            box.showPopup();
            settle();
            box.hidePopup();
            settle();
        }
    });
    return {{QStringLiteral("each"), time / (2 * Times)}};
}

Figures idle(const Order& order)
{
    constexpr int Milliseconds = 2000;
    const auto application = createApplication(order.look, Dress::Plain, order.sheet);
    QApplication::setCursorFlashTime(0);
    const auto window = exposedWindow();
    EventCounter counter;
    counter.settle();
    QTest::qWait(Milliseconds);
    return {{QStringLiteral("paints"), double(counter.all())}};
}

} // namespace

void addWindowTasks(QVector<Task>& tasks)
{
    tasks += {{QStringLiteral("start"), start},       {QStringLiteral("widgets"), widgets},
              {QStringLiteral("mouse"), mouse},       {QStringLiteral("typing"), typing},
              {QStringLiteral("resizing"), resizing}, {QStringLiteral("popups"), popups},
              {QStringLiteral("idle"), idle}};
    for (const int count : crowds())
        tasks += {QStringLiteral("crowd ") + QString::number(count),
                  [count](const Order& order) { return crowd(order, count); }};
}

} // namespace Peers
