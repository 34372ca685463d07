#include "SampleViews.h"
#include "Tasks.h"

#include <QListView>
#include <QScrollBar>
#include <QTableView>
#include <QTreeView>

namespace Peers {

namespace {

double timeOfScrolling(QAbstractItemView& view, int steps, int step)
{
    QScrollBar& bar = *view.verticalScrollBar();
    bar.setValue(0);
    settle();
    const double time = timeOf([&] {
        for (int i = 0; i < steps; ++i) {
            bar.setValue(bar.value() + step);
            settle();
        }
    });
    return time / steps;
}

template <class Make>
Task task(const QString& name, Make make)
{
    return {name, [make](const Order& order) {
                constexpr int Lines = 200;
                constexpr int Pages = 50;
                const auto application = createApplication(order.look, Dress::Plain, order.sheet);
                const auto shown = make();
                auto& view = *shown.view;
                const QScrollBar& bar = *view.verticalScrollBar();
                return Figures{
                    {QStringLiteral("line"), timeOfScrolling(view, Lines, bar.singleStep())},
                    {QStringLiteral("page"), timeOfScrolling(view, Pages, bar.pageStep())}};
            }};
}

} // namespace

void addViewTasks(QVector<Task>& tasks)
{
    for (const int rows : {1'000, 100'000, 1'000'000})
        tasks += task(QStringLiteral("table ") + QString::number(rows),
                      [rows] { return StyleBenchmark::table(rows); });
    tasks += {task(QStringLiteral("tree"), StyleBenchmark::tree),
              task(QStringLiteral("icons"), StyleBenchmark::iconList)};
}

} // namespace Peers
