#include "StateSheet.h"

// Item views, menus and tabs.

using namespace StateSheet;

namespace {

constexpr State Normal{"normal"};
constexpr State Selected{"selected", QStyle::State_Selected};
constexpr State Open{"open", QStyle::State_Selected | QStyle::State_Sunken};
constexpr State Inactive{"selected, inactive", QStyle::State_Selected, QStyle::State_Active};

QStyleOptionTab tabOption(QTabBar::Shape shape, QStyle::State state)
{
    QStyleOptionTab tab;
    tab.rect = QRect(40, 0, 80, 28);
    tab.shape = shape;
    tab.state = QStyle::State_Enabled | state;
    tab.position = QStyleOptionTab::Middle;
    tab.text = QStringLiteral("Tab");
    tab.rightButtonSize = QSize(16, 16);
    return tab;
}

/// Tabs of every shape: in their states, or where their text and their close button stand.
QByteArray tabShapes(bool places)
{
    const QTabBar bar;
    QByteArray text;
    for (int shape = QTabBar::RoundedNorth; shape <= QTabBar::TriangularEast; ++shape)
        for (const QStyle::State state :
             {QStyle::State_None, QStyle::State_MouseOver, QStyle::State_Selected}) {
            QStyleOptionTab tab = tabOption(QTabBar::Shape(shape), state);
            text += "# shape " + QByteArray::number(shape) + ", state "
                    + QByteArray::number(int(state), 16) + '\n';
            if (!places)
                text += drawn(QStyle::CE_TabBarTabShape, tab, &bar);
            for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                tab.direction = direction;
                for (const auto part : {QStyle::SE_TabBarTabText, QStyle::SE_TabBarTabRightButton})
                    if (places)
                        text += toText(bar.style()->subElementRect(part, &tab, &bar)) + '\n';
            }
        }
    return text;
}

/// How the neighbours of a tab, its direction and the properties of its bar change it.
QByteArray tabVariants()
{
    QTabBar bar;
    QStyleOptionTab tab = tabOption(QTabBar::RoundedNorth, QStyle::State_Selected);
    QByteArray text;
    const auto add = [&](const char* what) {
        text += QByteArray("# ") + what + '\n' + drawn(QStyle::CE_TabBarTabShape, tab, &bar)
                + drawn(QStyle::CE_TabBarTabLabel, tab, &bar);
    };
    tab.direction = Qt::RightToLeft;
    add("right to left");
    tab.position = QStyleOptionTab::Beginning;
    add("first");
    qApp->setProperty("appLargeTabSize", true);
    add("large, says the application");
    qApp->setProperty("appLargeTabSize", QVariant());
    for (const char* property : {"largeTabSize", "smallTabSize", "currentTabHighlighted"}) {
        bar.setProperty(property, true);
        add(property);
    }
    tab.state = QStyle::State_Enabled | QStyle::State_MouseOver;
    add("hovered");
    tab.palette.setColor(QPalette::WindowText, Qt::red);
    add("colored by the application");
    tab.palette = bar.palette();
    tab.state = QStyle::State_None;
    add("disabled");
    return text;
}

QStyleOptionMenuItem menuRow(const char* text)
{
    QStyleOptionMenuItem item;
    item.rect = QRect(0, 0, 200, 28);
    item.text = QLatin1String(text);
    item.tabWidth = 60;
    item.maxIconWidth = 16;
    item.state = QStyle::State_Enabled;
    item.palette = QApplication::palette();
    item.checkType = QStyleOptionMenuItem::NotCheckable;
    item.menuItemType = QStyleOptionMenuItem::Normal;
    return item;
}

QByteArray menuStates()
{
    const QVector<State> states{Normal, Selected, Disabled, Open};
    QByteArray text;
    for (const State& state : states) {
        QStyleOptionMenuItem item = menuRow("Open");
        setState(item, state);
        text += QByteArray("# item, ") + state.name + '\n' + drawn(QStyle::CE_MenuItem, item);
    }
    return text + sampleSheet(QStyle::CE_MenuBarItem, states)
           + sampleSheet(QStyle::PE_PanelMenu, {Normal});
}

QByteArray menuMarks()
{
    QByteArray text;
    for (const bool checked : {false, true})
        for (const auto type :
             {QStyleOptionMenuItem::Exclusive, QStyleOptionMenuItem::NonExclusive}) {
            QStyleOptionMenuItem item = menuRow("Grid");
            item.checkType = type;
            item.checked = checked;
            text += "# type " + QByteArray::number(type)
                    + (checked ? ", checked\n" : ", unchecked\n")
                    + drawn(QStyle::CE_MenuItem, item);
        }
    return text;
}

/// Rows of each type, in both directions.
QByteArray menuTypes()
{
    const QMenu menu;
    QByteArray text;
    for (const auto type : {QStyleOptionMenuItem::DefaultItem, QStyleOptionMenuItem::Separator,
                            QStyleOptionMenuItem::SubMenu})
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            const bool isLine = type == QStyleOptionMenuItem::Separator;
            QStyleOptionMenuItem item = menuRow(isLine ? "" : "Open\tCtrl+O");
            item.menuItemType = type;
            item.direction = direction;
            text += "# type " + QByteArray::number(type) + '\n'
                    + drawn(QStyle::CE_MenuItem, item, &menu);
        }
    return text;
}

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

QByteArray itemStates()
{
    const QVector<State> states{Normal, Hovered, Selected, Inactive, Disabled};
    return sampleSheet(QStyle::CE_ItemViewItem, states)
           + sampleSheet(QStyle::PE_PanelItemViewRow, states)
           + sampleSheet(QStyle::PE_IndicatorBranch,
                         {{"closed", QStyle::State_Children},
                          {"open", QStyle::State_Children | QStyle::State_Open},
                          {"selected", QStyle::State_Children | QStyle::State_Selected},
                          {"without children"}});
}

/// Row and panel of an item in views of each kind, as these are set to show them.
QByteArray itemPanels()
{
    QByteArray text;
    const auto add = [&](QAbstractItemView&& view, const char* name, const char* property = "",
                         const QVariant& value = true) {
        view.ensurePolished();
        view.setProperty(property, value);
        for (const State& state : {Normal, Hovered, Selected, Disabled}) {
            QStyleOptionViewItem row = rowOf(view);
            setState(row, state);
            text += QByteArray("# ") + name + ' ' + property + ", " + state.name + '\n'
                    + drawn(QStyle::PE_PanelItemViewRow, row, &view)
                    + drawn(QStyle::PE_PanelItemViewItem, row, &view);
        }
    };
    add(QListView(), "list");
    add(QListView(), "list", "flatView");
    add(QListView(), "list", "highlightItemsOnMouseHover", false);
    add(QListView(), "list", "viewMode", QListView::IconMode);
    add(QTreeView(), "tree");
    add(QTableView(), "table");
    add(QTableView(), "table", "customItemViewPalette");
    return text;
}

} // namespace

class tst_Views : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase()
    {
        applyProbeTheme();
        QFont font = QApplication::font();
        font.setPixelSize(ProbeTheme::BaseFont);
        QApplication::setFont(font);
    }

    void states_data()
    {
        QTest::addColumn<QByteArray>("sheet");
        QTest::newRow("Tabs.shapes") << tabShapes(false);
        QTest::newRow("Tabs.places") << tabShapes(true);
        QTest::newRow("Tabs.variants") << tabVariants();
        QTest::newRow("Menus.states") << menuStates();
        QTest::newRow("Menus.marks") << menuMarks();
        QTest::newRow("Menus.types") << menuTypes();
        QTest::newRow("ItemViews.states") << itemStates();
        QTest::newRow("ItemViews.panels") << itemPanels();
    }

    void states()
    {
        QFETCH(QByteArray, sheet);
        COMPARE_TRANSCRIPT(QTest::currentDataTag(), sheet);
    }

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

    void selectedTextIsWidenedUnlessItIsHighlighted()
    {
        QTabBar bar;
        const auto tab = tabOption(QTabBar::RoundedNorth, QStyle::State_Selected);
        const auto width = [&] {
            return bar.style()->subElementRect(QStyle::SE_TabBarTabText, &tab, &bar).width();
        };
        const int widened = width();
        bar.setProperty("currentTabHighlighted", true);
        QCOMPARE(widened - width(), 2);
    }

    void menusAreOneSurface()
    {
        QMenuBar bar;
        QStyleOptionMenuItem item = menuRow("Edit");
        item.state = QStyle::State_None;
        QVERIFY(drawn(QStyle::CE_MenuBarItem, item, &bar).contains("BackgroundSubLevel2Brush\n"));
        bar.setEnabled(false);
        QVERIFY(drawn(QStyle::CE_MenuBarEmptyArea, item, &bar)
                    .contains("BackgroundSubLevel2BrushDisabled\n"));
        QVERIFY(drawn(QStyle::CE_MenuTearoff, item, &bar).contains("BackgroundSubLevel1Brush\n"));
    }

    void applicationsColorsOfItemsWin()
    {
        QListView list;
        list.ensurePolished();
        QStyleOptionViewItem row = rowOf(list);
        row.backgroundBrush = Qt::red;
        row.palette.setBrush(QPalette::Text, Qt::blue); // what a delegate makes of ForegroundRole
        const QByteArray item = drawn(QStyle::CE_ItemViewItem, row, &list);
        QVERIFY(item.contains("brush #ff0000") && item.contains("pen #0000ff"));

        QPalette palette = list.palette();
        palette.setColor(QPalette::Highlight, Qt::green);
        list.setPalette(palette);
        QVERIFY(drawn(QStyle::PE_PanelItemViewItem, rowOf(list, QStyle::State_Selected), &list)
                    .contains("brush #00ff00"));
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
            QCOMPARE(drawn(QStyle::CE_ItemViewItem, row, &list).count("pixmap"), 1 - index);
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
