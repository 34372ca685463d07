#include "StateSheet.h"

// Item views and tabs: what their looks do not tell.

using namespace StateSheet;

namespace {

/// A row of a view as the view's delegate would pass it.
QStyleOptionViewItem rowOf(const QAbstractItemView& view, QStyle::State state = {})
{
    QStyleOptionViewItem row;
    row.initFrom(&view);
    row.rect = QRect(0, 0, 200, 28);
    row.state = QStyle::State_Enabled | QStyle::State_Active | state;
    row.widget = &view;
    row.text = QStringLiteral("Row");
    row.features = QStyleOptionViewItem::HasDisplay;
    row.showDecorationSelected = true;
    return row;
}

} // namespace

class tst_Views : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { applyProbeTheme(); }

    void stretchedTabBarsFillTheirSide()
    {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QTabWidget widget;
            widget.setLayoutDirection(direction);
            widget.setProperty("stretched", true);
            widget.addTab(new QWidget, QStringLiteral("Page"));
            widget.resize(300, 200);
            widget.show();
            QCOMPARE(widget.tabBar()->x(), 0);
            QCOMPARE(widget.tabBar()->width(), 300);
        }
    }

    void applicationsColorsOfItemsWin()
    {
        QListView list;
        list.ensurePolished();
        QStyleOptionViewItem row = rowOf(list);
        row.backgroundBrush = Qt::red;
        QVERIFY(drawn(QStyle::CE_ItemViewItem, row, &list).contains("brush #ff0000"));
    }

    void partsDoNotDependOnTheText()
    {
        QListView list;
        list.ensurePolished();
        QStyleOptionViewItem row = rowOf(list);
        row.features |=
            QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::HasCheckIndicator;
        row.decorationSize = {16, 16};
        QStyleOptionViewItem longer = row;
        longer.text = QStringLiteral("A text that is wider than the row, and on\ntwo lines");
        for (const auto part : {QStyle::SE_ItemViewItemCheckIndicator,
                                QStyle::SE_ItemViewItemDecoration, QStyle::SE_ItemViewItemText})
            QCOMPARE(list.style()->subElementRect(part, &longer, &list),
                     list.style()->subElementRect(part, &row, &list));
    }

    void textsEndWhereTheirRoomDoes()
    {
        QListView list;
        list.ensurePolished();
        QStyleOptionViewItem row = rowOf(list);
        row.textElideMode = Qt::ElideRight;
        row.text = QStringLiteral("One text of many words that does not fit into its row");
        const auto isElided = [&] {
            return drawn(QStyle::CE_ItemViewItem, row, &list).contains("\u2026\"");
        };
        row.rect.setWidth(200);
        QVERIFY(isElided());
        row.features |= QStyleOptionViewItem::WrapText;
        row.rect.setHeight(5 * row.fontMetrics.height());
        QVERIFY(!isElided());
        row.rect.setSize({80, 5 * row.fontMetrics.height() / 2});
        QVERIFY(isElided());
    }

    void selectionTellsFocus()
    {
        QListView list;
        list.show();
        list.activateWindow();
        list.setFocus();
        QTRY_VERIFY(list.hasFocus());
        QVERIFY(drawn(QStyle::PE_PanelItemViewItem, rowOf(list, QStyle::State_Selected), &list)
                    .contains("brush MainBrush"));
    }

    void listsTellOfChildren()
    {
        QStandardItemModel model(2, 1);
        model.setItem(0, new QStandardItem(QStringLiteral("Parent")));
        model.setItem(1, new QStandardItem(QStringLiteral("Parent")));
        model.item(0)->appendRow(new QStandardItem(QStringLiteral("Child")));
        QListView list;
        list.setModel(&model);
        list.ensurePolished();
        for (const int index : {0, 1}) {
            QStyleOptionViewItem row = rowOf(list);
            row.index = model.index(index, 0);
            QCOMPARE(drawn(QStyle::CE_ItemViewItem, row, &list).count("pixmap chevron.right"),
                     1 - index);
        }
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

        const auto centre = [&](int row, int column) {
            return table.visualRect(model.index(row, column)).center();
        };
        QTest::mouseMove(table.viewport(), centre(1, 0));
        QTest::qWait(50);
        table.viewport()->installEventFilter(&painted);
        QTest::mouseMove(table.viewport(), centre(3, 0));
        QTest::qWait(50);
        QVERIFY(painted.region.contains(centre(3, 0)));
        for (const int untouched : {0, 2, 5})
            QVERIFY(!painted.region.contains(centre(untouched, 1)));
    }
};

QTEST_MAIN(tst_Views)
#include "tst_Views.moc"
