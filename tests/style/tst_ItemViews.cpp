#include "States.h"

#include <QApplication>
#include <QListView>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeView>
#include <QtTest>

namespace {

constexpr QRect RowRect(0, 0, 200, 28);

/// A row of a view as the view's delegate would pass it.
QStyleOptionViewItem rowOf(const QAbstractItemView& view, QStyle::State state = {})
{
    QStyleOptionViewItem row;
    row.initFrom(&view);
    row.rect = RowRect;
    row.state = QStyle::State_Enabled | QStyle::State_Active | state;
    row.widget = &view;
    row.text = QStringLiteral("Row");
    row.features = QStyleOptionViewItem::HasDisplay;
    row.showDecorationSelected = true;
    return row;
}

QByteArray brushesOf(const QVector<Shape>& shapes)
{
    QByteArrayList brushes;
    for (const Shape& shape : shapes)
        brushes += shape.brush;
    return brushes.join(' ');
}

QByteArray panelOf(const QAbstractItemView& view, QStyle::State state)
{
    return brushesOf(drawn(QStyle::PE_PanelItemViewItem, rowOf(view, state), &view));
}

} // namespace

class tst_ItemViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { applyProbeStyle(); }

    void states()
    {
        const QVector<PaintedState> states = {
            {"normal"},
            {"hovered", QStyle::State_MouseOver},
            {"selected", QStyle::State_Selected},
            {"selected, inactive", QStyle::State_Selected, QStyle::State_Active},
            {"disabled", {}, QStyle::State_Enabled},
        };
        COMPARE_TRANSCRIPT(
            "ItemViews.states",
            transcriptOfStates(QStyle::CE_ItemViewItem, states)
                + transcriptOfStates(QStyle::PE_PanelItemViewRow, states)
                + transcriptOfStates(QStyle::PE_IndicatorBranch,
                                     {{"closed", QStyle::State_Children},
                                      {"open", QStyle::State_Children | QStyle::State_Open},
                                      {"selected", QStyle::State_Children | QStyle::State_Selected},
                                      {"without children"}}));
    }

    void panelsTellHoverAndFocus()
    {
        QListView list;
        list.ensurePolished();
        QCOMPARE(panelOf(list, QStyle::State_None), "BackgroundColor"); // the separator
        QCOMPARE(panelOf(list, QStyle::State_Selected), "MainSubLevel1Brush BackgroundColor");
        QCOMPARE(panelOf(list, QStyle::State_MouseOver), "MainBrush BackgroundColor");
        list.setViewMode(QListView::IconMode);
        QCOMPARE(panelOf(list, QStyle::State_None), "");
        list.setViewMode(QListView::ListMode);
        list.setProperty("flatView", true);
        QCOMPARE(panelOf(list, QStyle::State_None), "");
        list.setProperty("highlightItemsOnMouseHover", false);
        QCOMPARE(panelOf(list, QStyle::State_MouseOver), "");

        list.show();
        list.activateWindow();
        list.setFocus();
        QTRY_VERIFY(list.hasFocus());
        QCOMPARE(panelOf(list, QStyle::State_Selected), "MainBrush");
    }

    void applicationsBrushesWin()
    {
        QListView list;
        list.setProperty("flatView", true);
        list.ensurePolished();
        QStyleOptionViewItem row = rowOf(list);
        row.backgroundBrush = Qt::red;
        row.palette.setBrush(QPalette::Text, Qt::blue); // what a delegate makes of ForegroundRole
        const QVector<Shape> shapes = drawn(QStyle::CE_ItemViewItem, row, &list);
        QCOMPARE(shapes.first().brush, "#ff0000");
        QCOMPARE(shapes.last().pen, "#0000ff");

        QPalette palette = list.palette();
        palette.setColor(QPalette::Highlight, Qt::green);
        list.setPalette(palette);
        QCOMPARE(panelOf(list, QStyle::State_Selected), "#00ff00");
    }

    void separatorsOfTreesBeginWithTheBranches()
    {
        QTreeView tree;
        tree.ensurePolished();
        QCOMPARE(brushesOf(drawn(QStyle::PE_PanelItemViewRow, rowOf(tree), &tree)),
                 "BackgroundColor");
        QTableView table;
        table.ensurePolished();
        QCOMPARE(brushesOf(drawn(QStyle::PE_PanelItemViewRow, rowOf(table), &table)), "");
    }

    void rowBackgrounds()
    {
        QTableView table;
        table.ensurePolished();
        QStyleOptionViewItem row = rowOf(table);
        const auto brushes = [&] {
            return brushesOf(drawn(QStyle::PE_PanelItemViewRow, row, &table));
        };
        row.features |= QStyleOptionViewItem::Alternate;
        QCOMPARE(brushes(), "ItemViewAlternateBackgroundBrush");
        row.features &= ~QStyleOptionViewItem::Alternate;
        row.state &= ~QStyle::State_Enabled;
        QCOMPARE(brushes(), "ItemViewBackgroundBrushDisabled");
        table.setProperty("customItemViewPalette", true);
        QCOMPARE(brushes(), "");
    }

    void listsTellOfChildren()
    {
        QStandardItemModel model;
        auto* parent = new QStandardItem(QStringLiteral("Parent"));
        parent->appendRow(new QStandardItem(QStringLiteral("Child")));
        model.appendRow(parent);
        model.appendRow(new QStandardItem(QStringLiteral("Parent")));
        QListView list;
        list.setModel(&model);
        list.ensurePolished();
        const auto icons = [&](int index) {
            QStyleOptionViewItem row = rowOf(list);
            row.index = model.index(index, 0);
            int count = 0;
            for (const Shape& shape : drawn(QStyle::CE_ItemViewItem, row, &list))
                count += shape.kind == Shape::Pixmap;
            return count;
        };
        QCOMPARE(icons(0), 1);
        QCOMPARE(icons(1), 0);
        QVERIFY(list.sizeHintForIndex(model.index(0, 0)).width()
                > list.sizeHintForIndex(model.index(1, 0)).width());
    }

    void aMoveOfTheMouseRepaintsRowsOnly()
    {
        QStandardItemModel model(200, 3);
        QTableView table;
        table.setModel(&model);
        table.setSelectionBehavior(QAbstractItemView::SelectRows);
        table.resize(400, 300);
        table.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table));

        struct Painted : QObject
        {
            QRegion region;

            bool eventFilter(QObject*, QEvent* event) override
            {
                if (event->type() == QEvent::Paint)
                    region += static_cast<QPaintEvent*>(event)->region();
                return false;
            }
        } painted;

        QTest::mouseMove(table.viewport(), table.visualRect(model.index(1, 0)).center());
        QTest::qWait(50);
        table.viewport()->installEventFilter(&painted);
        QTest::mouseMove(table.viewport(), table.visualRect(model.index(3, 0)).center());
        QTest::qWait(50);
        QVERIFY(!painted.region.isEmpty());
        for (const int untouched : {0, 2, 5})
            QVERIFY(!painted.region.contains(table.visualRect(model.index(untouched, 1)).center()));
    }
};

QTEST_MAIN(tst_ItemViews)
#include "tst_ItemViews.moc"
