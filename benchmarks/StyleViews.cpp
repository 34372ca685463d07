#include "StyleCases.h"
#include "StyleSubjects.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QBoxLayout>
#include <QCursor>
#include <QHeaderView>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeView>

// Views are shown, scrolled and pointed at for real; what is painted goes to the window's backing
// store.

namespace StyleBenchmark {

namespace {

constexpr QSize ViewSize(700, 500);
constexpr int PagesAtOnce = 10;
constexpr int TableRows = 100'000;
constexpr int TableColumns = 10;
constexpr int TreeBranches = 500;
constexpr int TreeLeaves = 99;

class LargeModel : public QAbstractTableModel
{
public:
    explicit LargeModel(int columns) : m_columns(columns) { }

    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : TableRows;
    }

    int columnCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : m_columns;
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::DisplayRole) // different everywhere, as what is scrolled past is
            return QString(QStringLiteral("Item ")
                           + QString::number(index.row() * m_columns + index.column()));
        return role == Qt::DecorationRole && m_columns == 1 ? m_icon : QVariant();
    }

private:
    int m_columns;
    QVariant m_icon = ProbeTheme::pixmap();
};

/// A view with the model that it shows.
template <class View>
struct Shown
{
    std::shared_ptr<QAbstractItemModel> model;
    std::shared_ptr<View> view;
};

template <class View>
Shown<View> show(std::shared_ptr<QAbstractItemModel> model)
{
    auto view = std::make_shared<View>();
    view->viewport()->setAttribute(Qt::WA_Hover); // so that rows answer the mouse in every style
    view->setModel(model.get());
    view->resize(ViewSize);
    return {std::move(model), view};
}

void expose(QWidget& window)
{
    window.show();
    window.activateWindow();
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

Shown<QTableView> table()
{
    auto shown = show<QTableView>(std::make_shared<LargeModel>(TableColumns));
    expose(*shown.view);
    return shown;
}

Shown<QTreeView> tree()
{
    auto model = std::make_shared<QStandardItemModel>();
    for (int i = 0; i < TreeBranches; ++i) {
        auto* branch = new QStandardItem(QStringLiteral("Branch"));
        for (int j = 0; j < TreeLeaves; ++j)
            branch->appendRow(new QStandardItem(
                QString(QStringLiteral("Leaf ") + QString::number(i * TreeLeaves + j))));
        model->appendRow(branch);
    }
    auto shown = show<QTreeView>(model);
    shown.view->setUniformRowHeights(true);
    shown.view->expandAll();
    expose(*shown.view);
    return shown;
}

Shown<QListView> iconList()
{
    auto shown = show<QListView>(std::make_shared<LargeModel>(1));
    shown.view->setUniformItemSizes(true);
    expose(*shown.view);
    return shown;
}

double visibleRows(const QAbstractItemView& view)
{
    const int rowHeight = view.visualRect(view.model()->index(0, 0)).height();
    return double(view.viewport()->height()) / std::max(rowHeight, 1);
}

template <class View>
Work scroll(Shown<View> (*make)())
{
    const Shown<View> shown = make();
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
Work pointAtRows(Shown<View> (*make)())
{
    const auto shown = std::make_shared<Shown<View>>(make());
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
    cases.push_back({"views/Table/scrolled", [] { return scroll(table); }});
    cases.push_back({"views/Tree/scrolled", [] { return scroll(tree); }});
    cases.push_back({"views/IconList/scrolled", [] { return scroll(iconList); }});
    cases.push_back({"mouse/Table/moved", [] { return pointAtRows(table); }});
    cases.push_back({"mouse/Tree/moved", [] { return pointAtRows(tree); }});
    cases.push_back({"mouse/IconList/moved", [] { return pointAtRows(iconList); }});
    cases.push_back({"mouse/Buttons/moved", pointAtButtons});
}

} // namespace StyleBenchmark
