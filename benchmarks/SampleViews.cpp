#include "SampleViews.h"

#include "SampleWindow.h"

#include <QAbstractTableModel>
#include <QCoreApplication>
#include <QListView>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeView>

namespace StyleBenchmark {

namespace {

constexpr QSize ViewSize(700, 500);
constexpr int ListRows = 100'000;
constexpr int TableColumns = 10;
constexpr int TreeBranches = 500;
constexpr int TreeLeaves = 99;

class LargeModel : public QAbstractTableModel
{
public:
    LargeModel(int rows, int columns) : m_rows(rows), m_columns(columns) { }

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : m_rows; }

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
    int m_rows;
    int m_columns;
    QVariant m_icon = picture();
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

} // namespace

void expose(QWidget& window)
{
    window.show();
    window.activateWindow();
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

Shown<QTableView> table(int rows)
{
    auto shown = show<QTableView>(std::make_shared<LargeModel>(rows, TableColumns));
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
    auto shown = show<QListView>(std::make_shared<LargeModel>(ListRows, 1));
    shown.view->setUniformItemSizes(true);
    expose(*shown.view);
    return shown;
}

} // namespace StyleBenchmark
