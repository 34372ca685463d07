#include "StyleControls.h"

#include <QAction>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSplitter>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolBox>
#include <QToolButton>
#include <QTreeView>

namespace StyleBenchmark {

namespace {

/// Fusion paints nothing for tool bars that stand elsewhere.
void addToWindow(Exposed<QToolBar>& bar)
{
    static auto* sWindow = new QMainWindow; // outlives its bars
    sWindow->addToolBar(&bar);
}

void addTabs(std::vector<Case>& cases)
{
    using Bar = Control<QTabBar, QStyleOptionTab>;
    const auto fill = [](const Exposed<QTabBar>& bar, QStyleOptionTab& option) {
        bar.initStyleOption(&option, 1);
    };
    add(cases, {Normal, Hovered, Selected, Disabled},
        Bar{"Tab",
            {100, 32},
            [](Exposed<QTabBar>& bar) {
                for (const char* text : {"First", "Second", "Third"})
                    bar.addTab(QLatin1String(text));
            },
            fill,
            draw<QStyle::CE_TabBarTab, QStyleOptionTab>});
    add(cases, {Normal, Selected},
        Bar{"TabIcon",
            {120, 32},
            [](Exposed<QTabBar>& bar) {
                for (const char* text : {"First", "Second", "Third"})
                    bar.addTab(sampleIcon(), QLatin1String(text));
                bar.setTabsClosable(true);
            },
            fill,
            draw<QStyle::CE_TabBarTab, QStyleOptionTab>});
    add(cases, PlainStates,
        Control<QTabWidget, QStyleOptionTabWidgetFrame>{
            "TabWidgetFrame",
            {300, 200},
            [](Exposed<QTabWidget>& tabs) { tabs.addTab(new QWidget, QStringLiteral("Page")); },
            fillByWidget<QTabWidget, QStyleOptionTabWidgetFrame>,
            draw<QStyle::PE_FrameTabWidget, QStyleOptionTabWidgetFrame>});
}

void addMenus(std::vector<Case>& cases)
{
    using Item = Control<QMenu, QStyleOptionMenuItem>;
    const auto fill = [](const Exposed<QMenu>& menu, QStyleOptionMenuItem& option) {
        menu.initStyleOption(&option, menu.actions().first());
        option.maxIconWidth = 24;
        option.tabWidth = 50;
    };
    const auto item = [&](const char* name, void (*setUp)(Exposed<QMenu>&)) {
        return Item{name, {220, 24}, setUp, fill, draw<QStyle::CE_MenuItem, QStyleOptionMenuItem>};
    };
    add(cases, ItemStates, item("MenuItem", [](Exposed<QMenu>& menu) {
            menu.addAction(QStringLiteral("&Open\tCtrl+O"));
        }));
    add(cases, ItemStates, item("MenuItemIcon", [](Exposed<QMenu>& menu) {
            menu.addAction(sampleIcon(), QStringLiteral("&Open\tCtrl+O"));
        }));
    add(cases, ItemStates, item("MenuItemChecked", [](Exposed<QMenu>& menu) {
            QAction* action = menu.addAction(QStringLiteral("&Option"));
            action->setCheckable(true);
            action->setChecked(true);
        }));
    add(cases, ItemStates, item("MenuItemSubmenu", [](Exposed<QMenu>& menu) {
            menu.addMenu(QStringLiteral("&More"))->addAction(QStringLiteral("Item"));
        }));
    add(cases, {Normal}, item("MenuSeparator", [](Exposed<QMenu>& menu) { menu.addSeparator(); }));
    add(cases, {Normal, Selected, Pressed, Disabled},
        Control<QMenuBar, QStyleOptionMenuItem>{
            "MenuBarItem",
            {60, 28},
            [](Exposed<QMenuBar>& bar) { bar.addAction(QStringLiteral("&File")); },
            [](const Exposed<QMenuBar>& bar, QStyleOptionMenuItem& option) {
                bar.initStyleOption(&option, bar.actions().first());
            },
            draw<QStyle::CE_MenuBarItem, QStyleOptionMenuItem>});
}

using ItemView = Plain<QTreeView>;

void addRows(QTreeView& view)
{
    auto* model = new QStandardItemModel(3, 2, &view);
    model->setHorizontalHeaderLabels({QStringLiteral("Name"), QStringLiteral("Size")});
    model->setData(model->index(0, 0), QStringLiteral("Item"));
    view.setModel(model);
}

void fillItem(const Exposed<ItemView>& view, QStyleOptionViewItem& option)
{
    option.initFrom(&view);
    option.widget = &view;
    option.index = view.model()->index(0, 0);
    option.features = QStyleOptionViewItem::HasDisplay;
    option.text = QStringLiteral("Item");
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.showDecorationSelected = true;
    option.viewItemPosition = QStyleOptionViewItem::Middle;
}

void addItems(std::vector<Case>& cases)
{
    const States states{Normal, Hovered, Selected, Disabled};
    using Item = Control<ItemView, QStyleOptionViewItem>;
    const auto setUp = [](Exposed<ItemView>& view) { addRows(view); };
    add(cases, states,
        Item{"ViewItem",
             {160, 22},
             setUp,
             fillItem,
             draw<QStyle::CE_ItemViewItem, QStyleOptionViewItem>});
    add(cases, states,
        Item{"ViewItemFull",
             {160, 22},
             setUp,
             [](const Exposed<ItemView>& view, QStyleOptionViewItem& option) {
                 fillItem(view, option);
                 option.features |= QStyleOptionViewItem::HasDecoration
                                    | QStyleOptionViewItem::HasCheckIndicator
                                    | QStyleOptionViewItem::Alternate;
                 option.icon = sampleIcon();
                 option.decorationSize = {16, 16};
                 option.checkState = Qt::Checked;
             },
             draw<QStyle::CE_ItemViewItem, QStyleOptionViewItem>});
    using Branch = Control<ItemView, QStyleOptionViewItem>;
    add(cases, {Normal, Selected},
        Branch{"ItemBranch",
               {20, 22},
               setUp,
               [](const Exposed<ItemView>& view, QStyleOptionViewItem& option) {
                   option.initFrom(&view);
                   option.state |= QStyle::State_Children | QStyle::State_Item;
               },
               draw<QStyle::PE_IndicatorBranch, QStyleOptionViewItem>});
    add(cases, {Normal, Hovered, Pressed, Disabled},
        Control<ItemView, QStyleOptionHeader>{
            "HeaderSection",
            {120, 24},
            setUp,
            [](const Exposed<ItemView>& view, QStyleOptionHeader& option) {
                option.initFrom(view.header());
                option.text = QStringLiteral("Name");
                option.sortIndicator = QStyleOptionHeader::SortDown;
                option.state |= QStyle::State_Horizontal | QStyle::State_Raised;
            },
            [](const QStyle& style, const QStyleOptionHeader& option, QPainter& painter,
               const QWidget* widget) {
                const auto* view = static_cast<const QTreeView*>(widget);
                style.drawControl(QStyle::CE_Header, &option, &painter, view->header());
            }});
}

template <class Widget, class Option, auto Element>
Control<Plain<Widget>, Option> plain(const char* name, QSize size,
                                     void (*adjust)(const Exposed<Plain<Widget>>&, Option&))
{
    return {name, size, [](Exposed<Plain<Widget>>&) {}, adjust, draw<Element, Option>};
}

void addFrames(std::vector<Case>& cases)
{
    using Group = Control<QGroupBox, QStyleOptionGroupBox>;
    const auto group = [](const char* name, void (*setUp)(Exposed<QGroupBox>&)) {
        return Group{name,
                     {200, 120},
                     setUp,
                     fillByWidget<QGroupBox, QStyleOptionGroupBox>,
                     draw<QStyle::CC_GroupBox, QStyleOptionGroupBox>,
                     QStyle::SC_GroupBoxCheckBox};
    };
    add(cases, PlainStates,
        group("GroupBox", [](Exposed<QGroupBox>& box) { box.setTitle(QStringLiteral("Title")); }));
    add(cases, InputStates, group("GroupBoxCheckable", [](Exposed<QGroupBox>& box) {
            box.setTitle(QStringLiteral("Title"));
            box.setCheckable(true);
        }));
    add(cases, {Normal}, group("GroupBoxFlat", [](Exposed<QGroupBox>& box) {
            box.setTitle(QStringLiteral("Title"));
            box.setFlat(true);
        }));
    add(cases, PlainStates,
        Control<QFrame, QStyleOptionFrame>{"Frame",
                                           {200, 120},
                                           [](Exposed<QFrame>& frame) {
                                               frame.setFrameStyle(QFrame::StyledPanel
                                                                   | QFrame::Sunken);
                                           },
                                           fillByWidget<QFrame, QStyleOptionFrame>,
                                           draw<QStyle::CE_ShapedFrame, QStyleOptionFrame>});
    add(cases, {Normal},
        Control<QToolBar, QStyleOptionToolBar>{"ToolBar",
                                               {300, 34},
                                               addToWindow,
                                               fillByWidget<QToolBar, QStyleOptionToolBar>,
                                               draw<QStyle::CE_ToolBar, QStyleOptionToolBar>});
    add(cases, {Normal},
        plain<QToolBar, QStyleOption, QStyle::PE_IndicatorToolBarHandle>(
            "ToolBarHandle", {10, 34},
            [](const Exposed<Plain<QToolBar>>& bar, QStyleOption& option) {
                option.initFrom(&bar);
                option.state |= QStyle::State_Horizontal;
            }));
    add(cases, {Normal},
        plain<QStatusBar, QStyleOption, QStyle::PE_PanelStatusBar>(
            "StatusBar", {400, 34},
            [](const Exposed<Plain<QStatusBar>>& bar, QStyleOption& option) {
                option.initFrom(&bar);
            }));
    add(cases, {Normal, Hovered},
        plain<QSplitter, QStyleOption, QStyle::CE_Splitter>(
            "Splitter", {6, 200},
            [](const Exposed<Plain<QSplitter>>& splitter, QStyleOption& option) {
                option.initFrom(&splitter);
                option.state |= QStyle::State_Horizontal;
            }));
    add(cases, {Normal, Hovered, Selected},
        plain<QToolBox, QStyleOptionToolBox, QStyle::CE_ToolBoxTab>(
            "ToolBoxTab", {200, 42},
            [](const Exposed<Plain<QToolBox>>& box, QStyleOptionToolBox& option) {
                option.initFrom(&box);
                option.text = QStringLiteral("Page");
            }));
}

void addWindowParts(std::vector<Case>& cases)
{
    add(cases, PlainStates,
        Control<QDockWidget, QStyleOptionDockWidget>{
            "DockTitle",
            {200, 26},
            [](Exposed<QDockWidget>& dock) { dock.setWindowTitle(QStringLiteral("Dock")); },
            fillByWidget<QDockWidget, QStyleOptionDockWidget>,
            draw<QStyle::CE_DockWidgetTitle, QStyleOptionDockWidget>});
    add(cases, {Normal},
        plain<QMdiSubWindow, QStyleOptionTitleBar, QStyle::CC_TitleBar>(
            "TitleBar", {300, 28},
            [](const Exposed<Plain<QMdiSubWindow>>& window, QStyleOptionTitleBar& option) {
                option.initFrom(&window);
                option.text = QStringLiteral("Window");
                option.titleBarFlags = Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                                       | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;
                option.titleBarState = Qt::WindowActive;
                option.subControls = QStyle::SC_All;
            }));
    add(cases, {Normal},
        plain<QWidget, QStyleOptionFrame, QStyle::PE_PanelTipLabel>(
            "ToolTip", {160, 26},
            [](const Exposed<Plain<QWidget>>& tip, QStyleOptionFrame& option) {
                option.initFrom(&tip);
                option.lineWidth = 1;
            }));
    add(cases, {Normal},
        plain<QWidget, QStyleOptionFocusRect, QStyle::PE_FrameFocusRect>(
            "FocusRect", ButtonSize,
            [](const Exposed<Plain<QWidget>>& widget, QStyleOptionFocusRect& option) {
                option.initFrom(&widget);
                option.state |= ShownFocus;
            }));
    add(cases, PlainStates,
        plain<QToolButton, QStyleOption, QStyle::PE_IndicatorArrowDown>(
            "Arrow", {16, 16}, [](const Exposed<Plain<QToolButton>>& button, QStyleOption& option) {
                option.initFrom(&button);
            }));
}

} // namespace

void addContainers(std::vector<Case>& cases)
{
    addTabs(cases);
    addMenus(cases);
    addItems(cases);
    addFrames(cases);
    addWindowParts(cases);
}

} // namespace StyleBenchmark
