#include "Cells.h"
#include "Pages.h"
#include "companions/Companions.h"
#include "kit/Page.h"
#include "kit/Properties.h"
#include "kit/SampleData.h"
#include "kit/Specimen.h"

#include <QColumnView>
#include <QCursor>
#include <QHeaderView>
#include <QListView>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTreeView>

namespace Gallery {

namespace {

constexpr int ViewHeight = 24 * Unit;
constexpr int ThirdWidth = 40 * Unit;

template <class View>
View* fill(View* view, QStandardItemModel* model)
{
    view->setModel(model);
    view->setFixedHeight(ViewHeight);
    view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    return view;
}

QListView* makeList()
{
    auto* list = new QListView;
    fill(list, makeTableModel(list));
    list->setCurrentIndex(list->model()->index(1, 0));
    return list;
}

QListView* makeIconList()
{
    QListView* list = makeList();
    list->setViewMode(QListView::IconMode);
    list->setResizeMode(QListView::Adjust);
    list->setIconSize({4 * Unit, 4 * Unit});
    list->setGridSize({13 * Unit, 9 * Unit});
    return list;
}

QTableView* makeTable()
{
    auto* table = new QTableView;
    fill(table, makeTableModel(table));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->setSortingEnabled(true);
    table->sortByColumn(0, Qt::AscendingOrder);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->setCurrentIndex(table->model()->index(1, 0));
    return table;
}

QTableView* makeGridTable()
{
    auto* table = new QTableView;
    fill(table, makeTableModel(table));
    table->setCurrentIndex(table->model()->index(1, 1));
    return table;
}

QTreeView* makeTree()
{
    auto* tree = new QTreeView;
    fill(tree, makeTreeModel(tree));
    tree->expandToDepth(1);
    tree->setColumnWidth(0, 28 * Unit);
    tree->setCurrentIndex(tree->model()->index(0, 0));
    return tree;
}

QColumnView* makeColumns()
{
    auto* columns = new QColumnView;
    // The delegate that a column view comes with draws icons past the style.
    columns->setItemDelegate(new QStyledItemDelegate(columns));
    fill(columns, makeTreeModel(columns));
    const QModelIndex root = columns->model()->index(0, 0);
    columns->setCurrentIndex(columns->model()->index(0, 0, root));
    columns->setColumnWidths({20 * Unit, 20 * Unit, 20 * Unit});
    columns->setFixedHeight(ViewHeight);
    return columns;
}

/// `view` with its selection focused and the row below hovered.
template <class View>
View* focusedAndHovered(View* view)
{
    force(*view, State::Focused);
    forceAt(*view->viewport(), State::Hovered, [view] {
        const QRect current = view->visualRect(view->currentIndex());
        const QPoint place = current.center() + QPoint(0, current.height());
        // In a table of rows the style looks for the cursor itself: one that nobody sees is moved.
        if (std::is_same_v<View,
                           QTableView> && view->window()->testAttribute(Qt::WA_DontShowOnScreen))
            QCursor::setPos(view->viewport()->mapToGlobal(place));
        return place;
    });
    return view;
}

QTreeView* makeEditing()
{
    QTreeView* tree = makeTree();
    tree->edit(tree->model()->index(0, 0));
    return tree;
}

} // namespace

void fillViews(Page& page)
{
    const auto add = [&page](const QString& title, QWidget* enabled, QWidget* focused,
                             QWidget* disabled) {
        Section& section = page.addSection(title);
        section.add(captioned(QStringLiteral("Focused, the row below hovered"), focused), true);
        section.add(pair(enabled, disabled), true);
    };
    add(QStringLiteral("Lists"), makeList(), focusedAndHovered(makeList()), makeList());
    // Trees highlight the row under the mouse where the application asks for it.
    add(QStringLiteral("Trees"), makeTree(),
        focusedAndHovered(with(makeTree(), "highlightItemsOnMouseHover")), makeTree());
    add(QStringLiteral("Tables"), makeTable(), focusedAndHovered(makeTable()), makeTable());

    Section& more = page.addSection(QStringLiteral("More views"));
    more.add(captioned(QStringLiteral("Grid and row headers"), makeGridTable()), true);
    more.add(captioned(QStringLiteral("Icons"), makeIconList()), true);
    more.add(captioned(QStringLiteral("Columns"), makeColumns()), true);
    auto* cascade = new BRELK::Components::CascadingListViewPanel;
    fill(cascade, makeTableModel(cascade));
    QTreeView* editing = makeEditing();
    QListView* flat = with(makeList(), "flatView");
    for (QAbstractItemView* view :
         std::initializer_list<QAbstractItemView*>{flat, cascade, editing})
        view->setMinimumWidth(ThirdWidth);
    more.add(row({captioned(QStringLiteral("Flat, without separators"), flat),
                  captioned(QStringLiteral("Panel of a cascade"), cascade),
                  captioned(QStringLiteral("Editing in place"), editing)}),
             true);
    page.addSection(QStringLiteral("Cells"), QStringLiteral("Controls that a delegate paints."))
        .add(makeControlCells(), true);
}

} // namespace Gallery
