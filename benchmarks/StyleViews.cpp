#include "SampleViews.h"
#include "StyleCases.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCursor>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTreeView>

// Views are shown, scrolled and pointed at for real; what is painted goes to the window's backing
// store.

namespace StyleBenchmark {

namespace {

constexpr int PagesAtOnce = 10;

double visibleRows(const QAbstractItemView& view)
{
    const int rowHeight = view.visualRect(view.model()->index(0, 0)).height();
    return double(view.viewport()->height()) / std::max(rowHeight, 1);
}

template <class View>
Work scroll(const Shown<View>& shown)
{
    const double rows = visibleRows(*shown.view);
    return {[=] {
                QScrollBar* bar = shown.view->verticalScrollBar();
                for (int i = 0; i < PagesAtOnce; ++i) {
                    const int next = bar->value() + bar->pageStep();
                    bar->setValue(next < bar->maximum() ? next : 0);
                    shown.view->viewport()->repaint();
                }
            },
            rows * PagesAtOnce};
}

/// Moves the mouse between two points of a window that lives as long as `owner`.
Work pointBetween(const std::shared_ptr<const void>& owner, QPoint first, QPoint second)
{
    return {[=, there = std::make_shared<bool>(false)] {
        Q_UNUSED(owner)
        *there = !*there;
        QCursor::setPos(*there ? first : second);
        QCoreApplication::processEvents();
    }};
}

template <class View>
Work pointAtRows(const Shown<View>& view)
{
    const auto shown = std::make_shared<Shown<View>>(view);
    const QWidget& viewport = *shown->view->viewport();
    const int rowHeight = int(viewport.height() / visibleRows(*shown->view));
    const auto at = [&](int row) {
        return viewport.mapToGlobal(QPoint(60, row * rowHeight + rowHeight / 2));
    };
    return pointBetween(shown, at(2), at(3));
}

Work pointAtButtons()
{
    const auto window = std::make_shared<QWidget>();
    auto* layout = new QVBoxLayout(window.get());
    for (int i = 0; i < 10; ++i)
        layout->addWidget(new QPushButton(QStringLiteral("Button")));
    window->resize(400, 500);
    expose(*window);
    const auto at = [&](int row) {
        const QWidget& button = *layout->itemAt(row)->widget();
        return button.mapToGlobal(button.rect().center());
    };
    return pointBetween(window, at(2), at(3));
}

} // namespace

void addViews(std::vector<Case>& cases)
{
    constexpr int Rows = 100000;
    cases.push_back({"views/Table/scrolled", [] { return scroll(table(Rows)); }});
    cases.push_back({"views/Tree/scrolled", [] { return scroll(tree()); }});
    cases.push_back({"views/IconList/scrolled", [] { return scroll(iconList()); }});
    cases.push_back({"mouse/Table/moved", [] { return pointAtRows(table(Rows)); }});
    cases.push_back({"mouse/Tree/moved", [] { return pointAtRows(tree()); }});
    cases.push_back({"mouse/IconList/moved", [] { return pointAtRows(iconList()); }});
    cases.push_back({"mouse/Buttons/moved", pointAtButtons});
}

} // namespace StyleBenchmark
