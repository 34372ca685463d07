#pragma once

#include "StyleOptions.h"

#include <QAction>
#include <QCheckBox>
#include <QColumnView>
#include <QComboBox>
#include <QDial>
#include <QDockWidget>
#include <QFocusFrame>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRubberBand>
#include <QScrollArea>
#include <QScrollBar>
#include <QSizeGrip>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QStyleOption>
#include <QTabWidget>
#include <QToolBar>
#include <QToolBox>
#include <QToolButton>
#include <QTreeView>

/// One function per kind of widget, that gives one with its option. For `StyleOptions.cpp` alone.
namespace StyleOptions {

constexpr QSize WidgetSize(120, 28);

/// Lets the table read a widget's protected way to fill its option.
template <class Widget>
struct Open : Widget
{
    using Widget::initStyleOption;
    using Widget::Widget;
};

template <class Option>
Sample sampleOf(std::shared_ptr<QWidget> widget, std::shared_ptr<Option> option)
{
    option->state |= QStyle::State_Enabled | QStyle::State_Active;
    return {widget, option};
}

template <class Widget>
std::shared_ptr<Widget> make()
{
    auto widget = std::make_shared<Widget>();
    widget->resize(WidgetSize);
    return widget;
}

/// A widget that fills its own option.
template <class Widget, class Option>
Sample filled(std::shared_ptr<Open<Widget>> widget)
{
    auto option = std::make_shared<Option>();
    widget->initStyleOption(option.get());
    return sampleOf(widget, option);
}

template <class Widget, class Option>
Sample filled()
{
    return filled<Widget, Option>(make<Open<Widget>>());
}

/// A widget whose option is filled from outside.
template <class Widget, class Option>
Sample plain()
{
    auto widget = make<Widget>();
    auto option = std::make_shared<Option>();
    option->initFrom(widget.get());
    return sampleOf(widget, option);
}

inline QIcon icon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::darkCyan);
    return pixmap;
}

template <class Button>
Sample button()
{
    auto widget = make<Open<Button>>();
    widget->setText(QStringLiteral("&Text"));
    widget->setIcon(icon());
    return filled<Button, QStyleOptionButton>(widget);
}

inline Sample toolButton()
{
    auto widget = make<Open<QToolButton>>();
    widget->setText(QStringLiteral("Text"));
    widget->setIcon(icon());
    widget->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    widget->setPopupMode(QToolButton::MenuButtonPopup);
    return filled<QToolButton, QStyleOptionToolButton>(widget);
}

inline Sample comboBox()
{
    auto widget = make<Open<QComboBox>>();
    widget->addItem(icon(), QStringLiteral("Text"));
    return filled<QComboBox, QStyleOptionComboBox>(widget);
}

inline Sample frame()
{
    auto widget = make<Open<QFrame>>();
    widget->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    return filled<QFrame, QStyleOptionFrame>(widget);
}

template <class Slider>
Sample slider()
{
    auto widget = make<Open<Slider>>();
    widget->setValue(30);
    return filled<Slider, QStyleOptionSlider>(widget);
}

inline Sample ticks()
{
    auto widget = make<Open<QSlider>>();
    widget->setOrientation(Qt::Horizontal);
    widget->setTickPosition(QSlider::TicksBothSides);
    widget->setValue(30);
    return filled<QSlider, QStyleOptionSlider>(widget);
}

inline Sample progressBar()
{
    auto widget = make<Open<QProgressBar>>();
    widget->setValue(30);
    return filled<QProgressBar, QStyleOptionProgressBar>(widget);
}

inline Sample tab()
{
    auto widget = make<Open<QTabBar>>();
    widget->setTabsClosable(true);
    widget->addTab(icon(), QStringLiteral("First"));
    widget->addTab(QStringLiteral("Second"));
    auto option = std::make_shared<QStyleOptionTab>();
    widget->initStyleOption(option.get(), 0);
    return sampleOf(widget, option);
}

inline Sample tabBarBase()
{
    Sample sample = plain<QTabBar, QStyleOptionTabBarBase>();
    auto* option = static_cast<QStyleOptionTabBarBase*>(sample.option.get());
    option->tabBarRect = option->rect;
    option->selectedTabRect = QRect(0, 0, 40, 28);
    return sample;
}

inline Sample tabWidget()
{
    auto widget = make<Open<QTabWidget>>();
    widget->resize(200, 120);
    widget->addTab(new QWidget, QStringLiteral("Page"));
    return filled<QTabWidget, QStyleOptionTabWidgetFrame>(widget);
}

template <class Menu>
Sample menuItem()
{
    auto widget = make<Open<Menu>>();
    QAction* action = widget->addAction(QStringLiteral("&Open\tCtrl+O"));
    action->setIcon(icon());
    action->setCheckable(true);
    auto option = std::make_shared<QStyleOptionMenuItem>();
    widget->initStyleOption(option.get(), action);
    option->rect = QRect(QPoint(), WidgetSize);
    return sampleOf(widget, option);
}

inline Sample groupBox()
{
    auto widget = make<Open<QGroupBox>>();
    widget->setTitle(QStringLiteral("Title"));
    widget->setCheckable(true);
    widget->resize(160, 100);
    return filled<QGroupBox, QStyleOptionGroupBox>(widget);
}

/// A view on some rows that lives as long as the widget.
template <class View>
std::shared_ptr<View> viewOnRows()
{
    auto view = make<View>();
    auto* model = new QStandardItemModel(3, 2, view.get());
    model->setHorizontalHeaderLabels({QStringLiteral("Name"), QStringLiteral("Size")});
    model->setData(model->index(0, 0), QStringLiteral("Text"));
    view->setModel(model);
    view->resize(200, 120);
    return view;
}

inline Sample viewItem()
{
    auto view = viewOnRows<QTreeView>();
    auto option = std::make_shared<QStyleOptionViewItem>();
    option->initFrom(view.get());
    option->widget = view.get();
    option->index = view->model()->index(0, 0);
    option->rect = QRect(QPoint(), WidgetSize);
    option->features = QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasDecoration
                       | QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::Alternate;
    option->text = QStringLiteral("Text");
    option->icon = icon();
    option->decorationSize = QSize(16, 16);
    option->showDecorationSelected = true;
    return sampleOf(view, option);
}

inline Sample header()
{
    auto view = viewOnRows<QTreeView>();
    auto option = std::make_shared<QStyleOptionHeader>();
    option->initFrom(view->header());
    option->rect = QRect(QPoint(), WidgetSize);
    option->text = QStringLiteral("Name");
    option->icon = icon();
    option->sortIndicator = QStyleOptionHeader::SortDown;
    option->state |= QStyle::State_Enabled | QStyle::State_Active | QStyle::State_Horizontal;
    return {std::shared_ptr<QWidget>(view, view->header()), option};
}

inline Sample dockWidget()
{
    auto widget = make<Open<QDockWidget>>();
    widget->setWindowTitle(QStringLiteral("Dock"));
    return filled<QDockWidget, QStyleOptionDockWidget>(widget);
}

inline Sample toolBox()
{
    Sample sample = plain<QToolBox, QStyleOptionToolBox>();
    static_cast<QStyleOptionToolBox*>(sample.option.get())->text = QStringLiteral("Page");
    return sample;
}

inline Sample titleBar()
{
    Sample sample = plain<QMdiSubWindow, QStyleOptionTitleBar>();
    auto* option = static_cast<QStyleOptionTitleBar*>(sample.option.get());
    option->text = QStringLiteral("Window");
    option->icon = icon();
    option->titleBarFlags = Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                            | Qt::WindowMinMaxButtonsHint | Qt::WindowContextHelpButtonHint
                            | Qt::WindowShadeButtonHint;
    option->subControls = QStyle::SC_All;
    return sample;
}

inline Sample rubberBand()
{
    auto widget = std::make_shared<Open<QRubberBand>>(QRubberBand::Rectangle);
    widget->resize(WidgetSize);
    return filled<QRubberBand, QStyleOptionRubberBand>(widget);
}

inline Sample mdiControls()
{
    Sample sample = plain<QWidget, QStyleOptionComplex>();
    static_cast<QStyleOptionComplex*>(sample.option.get())->subControls = QStyle::SC_All;
    return sample;
}

template <class Widget>
Sample widgetAlone()
{
    return plain<Widget, QStyleOption>();
}

inline Sample splitterHandle()
{
    auto splitter = std::make_shared<QSplitter>();
    splitter->addWidget(new QWidget);
    splitter->addWidget(new QWidget);
    auto option = std::make_shared<QStyleOption>();
    option->initFrom(splitter->handle(1));
    option->rect = QRect(0, 0, 6, 100);
    option->state |= QStyle::State_Horizontal;
    return sampleOf(std::shared_ptr<QWidget>(splitter, splitter->handle(1)), option);
}

inline Sample sizeGrip()
{
    auto widget = std::make_shared<QSizeGrip>(nullptr);
    auto option = std::make_shared<QStyleOptionSizeGrip>();
    option->initFrom(widget.get());
    option->corner = Qt::BottomRightCorner;
    option->rect = QRect(0, 0, 13, 13);
    return sampleOf(widget, option);
}

} // namespace StyleOptions
