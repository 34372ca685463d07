#include "StyleOptions.h"

#include "Transcript.h"

#include <QStandardItemModel>
#include <QtWidgets>

namespace StyleOptions {

namespace {

constexpr QSize WidgetSize(120, 28);

QIcon icon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::darkCyan);
    return pixmap;
}

/// Gives a widget what it can show: those of these properties that it has.
void fill(QWidget& widget)
{
    const std::pair<const char*, QVariant> properties[] = {
        {"frameShape", QFrame::StyledPanel},
        {"frameShadow", QFrame::Sunken},
        {"icon", icon()},
        {"orientation", Qt::Horizontal},
        {"popupMode", QToolButton::MenuButtonPopup},
        {"tabsClosable", true},
        {"text", QStringLiteral("&Text")},
        {"tickPosition", QSlider::TicksBothSides},
        {"title", QStringLiteral("Title")},
        {"toolButtonStyle", Qt::ToolButtonTextBesideIcon},
        {"value", 30},
        {"windowTitle", QStringLiteral("Window")}};
    for (const auto& [name, value] : properties)
        if (widget.metaObject()->indexOfProperty(name) >= 0)
            widget.setProperty(name, value);
    widget.resize(WidgetSize);
    if (auto* comboBox = qobject_cast<QComboBox*>(&widget))
        comboBox->addItem(icon(), QStringLiteral("Text"));
    if (auto* groupBox = qobject_cast<QGroupBox*>(&widget))
        groupBox->setCheckable(true);
    if (auto* tabBar = qobject_cast<QTabBar*>(&widget))
        for (const char* tab : {"First", "Second"})
            tabBar->addTab(icon(), QLatin1String(tab));
    if (auto* tabWidget = qobject_cast<QTabWidget*>(&widget))
        tabWidget->addTab(new QWidget, QStringLiteral("Page"));
    if (auto* view = qobject_cast<QAbstractItemView*>(&widget)) {
        auto* model = new QStandardItemModel(3, 2, view);
        model->setData(model->index(0, 0), QStringLiteral("Text"));
        view->setModel(model);
    }
}

template <class Option, class Widget>
Sample sampleOf(const std::shared_ptr<Widget>& widget, const std::shared_ptr<Option>& option)
{
    option->state |= QStyle::State_Enabled | QStyle::State_Active;
    return {widget, option};
}

/// A widget that fills its own option, for the `details` of it that the option is about.
template <class Widget, class Option, class... Details>
Sample filled(const std::shared_ptr<Open<Widget>>& widget, Details... details)
{
    fill(*widget);
    auto option = std::make_shared<Option>();
    widget->initStyleOption(option.get(), details...);
    option->rect = QRect(QPoint(), WidgetSize);
    return sampleOf(widget, option);
}

template <class Widget, class Option>
Sample filled()
{
    return filled<Widget, Option>(std::make_shared<Open<Widget>>());
}

/// A widget whose option is filled from outside.
template <class Widget, class Option = QStyleOption>
Sample plain()
{
    auto widget = std::make_shared<Widget>();
    fill(*widget);
    auto option = std::make_shared<Option>();
    option->initFrom(widget.get());
    return sampleOf(widget, option);
}

/// One that is filled further by `complete`.
template <class Widget, class Option, void (*complete)(const Widget&, Option&)>
Sample completed()
{
    const Sample sample = plain<Widget, Option>();
    complete(static_cast<const Widget&>(*sample.widget), static_cast<Option&>(*sample.option));
    return sample;
}

/// A part that lives as long as the `whole`.
template <class Option>
Sample partOf(const std::shared_ptr<QWidget>& whole, QWidget* part, const QRect& rect)
{
    auto option = std::make_shared<Option>();
    option->initFrom(part);
    option->rect = rect;
    option->state |= QStyle::State_Horizontal;
    return sampleOf(std::shared_ptr<QWidget>(whole, part), option);
}

Sample tab()
{
    return filled<QTabBar, QStyleOptionTab>(std::make_shared<Open<QTabBar>>(), 0);
}

Sample rubberBand()
{
    return filled<QRubberBand, QStyleOptionRubberBand>(
        std::make_shared<Open<QRubberBand>>(QRubberBand::Rectangle));
}

template <class Menu>
Sample menuItem()
{
    auto widget = std::make_shared<Open<Menu>>();
    QAction* action = widget->addAction(QStringLiteral("&Open\tCtrl+O"));
    action->setIcon(icon());
    return filled<Menu, QStyleOptionMenuItem>(widget, action);
}

void completeBarBase(const QTabBar&, QStyleOptionTabBarBase& option)
{
    option.tabBarRect = option.rect;
    option.selectedTabRect = QRect(0, 0, 40, 28);
}

void completeViewItem(const QTreeView& view, QStyleOptionViewItem& option)
{
    option.widget = &view;
    option.index = view.model()->index(0, 0);
    option.features = QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasDecoration
                      | QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::Alternate;
    option.text = QStringLiteral("Text");
    option.icon = icon();
    option.decorationSize = QSize(16, 16);
    option.showDecorationSelected = true;
}

void completeToolBox(const QToolBox&, QStyleOptionToolBox& option)
{
    option.text = QStringLiteral("Page");
}

void completeTitleBar(const QMdiSubWindow&, QStyleOptionTitleBar& option)
{
    option.text = QStringLiteral("Window");
    option.icon = icon();
    option.titleBarFlags = Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                           | Qt::WindowMinMaxButtonsHint | Qt::WindowContextHelpButtonHint
                           | Qt::WindowShadeButtonHint;
}

Sample header()
{
    auto view = std::make_shared<QTreeView>();
    fill(*view);
    Sample sample = partOf<QStyleOptionHeader>(view, view->header(), QRect(QPoint(), WidgetSize));
    auto& option = static_cast<QStyleOptionHeader&>(*sample.option);
    option.text = QStringLiteral("Name");
    option.icon = icon();
    option.sortIndicator = QStyleOptionHeader::SortDown;
    return sample;
}

Sample splitterHandle()
{
    auto splitter = std::make_shared<QSplitter>();
    splitter->addWidget(new QWidget);
    splitter->addWidget(new QWidget);
    return partOf<QStyleOption>(splitter, splitter->handle(1), QRect(0, 0, 6, 100));
}

Sample sizeGrip()
{
    auto window = std::make_shared<QWidget>();
    return partOf<QStyleOptionSizeGrip>(window, new QSizeGrip(window.get()), QRect(0, 0, 13, 13));
}

/// The elements that a kind of widget paints with and is measured by: their names without the
/// prefix, in which "*" stands for any ending.
struct Row
{
    Sample (*make)();
    QByteArray elements;
};

const Row Rows[] = {
    {filled<QFrame, QStyleOptionFrame>,
     "Frame ShapedFrame FrameContents ShapedFrameContents FrameLayoutItem"},
    {filled<QPushButton, QStyleOptionButton>,
     "FrameDefaultButton FrameButtonBevel PanelButtonCommand PanelButtonBevel PushButton*"},
    {filled<QCheckBox, QStyleOptionButton>, "IndicatorCheckBox CheckBox*"},
    {filled<QRadioButton, QStyleOptionButton>, "IndicatorRadioButton RadioButton*"},
    {filled<QToolButton, QStyleOptionToolButton>,
     "FrameButtonTool PanelButtonTool IndicatorArrow* IndicatorButtonDropDown ToolButton*"},
    {filled<QComboBox, QStyleOptionComboBox>, "ComboBox*"},
    {filled<QLineEdit, QStyleOptionFrame>, "FrameLineEdit PanelLineEdit LineEdit*"},
    {filled<QSpinBox, QStyleOptionSpinBox>, "IndicatorSpin* SpinBox* DateTimeEditLayoutItem"},
    {filled<QScrollBar, QStyleOptionSlider>, "ScrollBar*"},
    {filled<QDial, QStyleOptionSlider>, "Dial"},
    {filled<QSlider, QStyleOptionSlider>, "Slider*"},
    {filled<QProgressBar, QStyleOptionProgressBar>, "IndicatorProgressChunk ProgressBar*"},
    {filled<QGroupBox, QStyleOptionGroupBox>, "GroupBox*"},
    {plain<QGroupBox, QStyleOptionFrame>, "FrameGroupBox"},
    {plain<QLabel, QStyleOptionFrame>, "PanelTipLabel LabelLayoutItem"},
    {plain<QLineEdit, QStyleOptionFocusRect>, "FrameFocusRect"},
    {plain<QFocusFrame>, "FocusFrame"},
    {rubberBand, "RubberBand"},
    {sizeGrip, "SizeGrip"},
    {splitterHandle, "Splitter"},

    {tab, "IndicatorTabTear* TabBarTab* TabBarTear* TabBarScroll*"},
    {completed<QTabBar, QStyleOptionTabBarBase, completeBarBase>, "FrameTabBarBase"},
    {filled<QTabWidget, QStyleOptionTabWidgetFrame>, "FrameTabWidget TabWidget*"},
    {plain<QTabBar>, "IndicatorTabClose"},
    {completed<QToolBox, QStyleOptionToolBox, completeToolBox>, "ToolBoxTab*"},
    {filled<QToolBar, QStyleOptionToolBar>, "PanelToolBar ToolBar ToolBarHandle"},
    {plain<QToolBar>, "IndicatorToolBar*"},
    {menuItem<QMenuBar>, "MenuBar*"},
    {menuItem<QMenu>, "IndicatorMenuCheckMark PanelMenu Menu*"},
    {plain<QMenuBar, QStyleOptionFrame>, "PanelMenuBar"},
    {plain<QMenu, QStyleOptionFrame>, "FrameMenu"},
    {plain<QStatusBar>, "FrameStatusBar* PanelStatusBar"},

    {completed<QTreeView, QStyleOptionViewItem, completeViewItem>,
     "IndicatorViewItemCheck IndicatorItemViewItemCheck IndicatorColumnViewArrow PanelItemView* "
     "ViewItem* ItemViewItem* TreeViewDisclosureItem"},
    {plain<QTreeView>, "IndicatorBranch IndicatorItemViewItemDrop"},
    {header, "IndicatorHeaderArrow Header HeaderSection HeaderLabel HeaderArrow"},
    {plain<QScrollArea>, "PanelScrollAreaCorner"},

    {plain<QMainWindow>, "IndicatorDockWidgetResizeHandle"},
    {filled<QDockWidget, QStyleOptionDockWidget>, "DockWidget*"},
    {plain<QDockWidget, QStyleOptionFrame>, "FrameDockWidget"},
    {plain<QMdiSubWindow, QStyleOptionFrame>, "FrameWindow"},
    {completed<QMdiSubWindow, QStyleOptionTitleBar, completeTitleBar>, "TitleBar"},
    {plain<QWidget, QStyleOptionComplex>, "MdiControls"},
};

/// The last of the parts that `control` has a rectangle for; a dial has none.
QStyle::SubControl lastPartOf(QStyle::ComplexControl control)
{
    switch (control) {
    case QStyle::CC_SpinBox: return QStyle::SC_SpinBoxEditField;
    case QStyle::CC_ComboBox: return QStyle::SC_ComboBoxListBoxPopup;
    case QStyle::CC_ScrollBar: return QStyle::SC_ScrollBarGroove;
    case QStyle::CC_Slider: return QStyle::SC_SliderTickmarks;
    case QStyle::CC_ToolButton: return QStyle::SC_ToolButtonMenu;
    case QStyle::CC_TitleBar: return QStyle::SC_TitleBarLabel;
    case QStyle::CC_GroupBox: return QStyle::SC_GroupBoxFrame;
    case QStyle::CC_MdiControls: return QStyle::SC_MdiCloseButton;
    default: return QStyle::SC_None;
    }
}

template <class Element>
QByteArray use(Element element, const QStyle& style, const Sample& sample, QPainter* painter)
{
    if constexpr (std::is_same_v<Element, QStyle::PrimitiveElement>)
        style.drawPrimitive(element, sample.option.get(), painter, sample.widget.get());
    else
        style.drawControl(element, sample.option.get(), painter, sample.widget.get());
    return {};
}

QByteArray use(QStyle::ComplexControl control, const QStyle& style, const Sample& sample,
               QPainter* painter)
{
    const auto* option = static_cast<const QStyleOptionComplex*>(sample.option.get());
    QByteArray text;
    for (unsigned part = 1; part <= lastPartOf(control); part <<= 1) {
        const QRect rect =
            style.subControlRect(control, option, QStyle::SubControl(part), sample.widget.get());
        text += nameOf(control, QStyle::SubControl(part)) + " " + toText(rect) + '\n';
    }
    style.hitTestComplexControl(control, option, QPoint(5, 5), sample.widget.get());
    style.drawComplexControl(control, option, painter, sample.widget.get());
    return text;
}

QByteArray use(QStyle::SubElement element, const QStyle& style, const Sample& sample, QPainter*)
{
    return toText(style.subElementRect(element, sample.option.get(), sample.widget.get())) + '\n';
}

QByteArray use(QStyle::ContentsType type, const QStyle& style, const Sample& sample, QPainter*)
{
    QByteArray text;
    for (const QSize contents : {QSize(40, 16), QSize(), QSize(20000, 20000)}) {
        style.sizeFromContents(type, nullptr, contents, nullptr);
        const QSize size =
            style.sizeFromContents(type, sample.option.get(), contents, sample.widget.get());
        text += toText(QRect(QPoint(), size)) + '\n';
    }
    return text;
}

template <class Enum>
void appendAll(QVector<Element>& elements)
{
    for (const Enum element : all<Enum>())
        elements.append({nameOf(element),
                         [element](const QStyle& style, const Sample& sample, QPainter* painter) {
                             return use(element, style, sample, painter);
                         }});
}

} // namespace

Sample sampleNamed(const QByteArray& element)
{
    const QByteArray name = element.mid(3);
    for (const Row& row : Rows)
        for (const QByteArray& pattern : row.elements.split(' '))
            if (name == pattern || (pattern.endsWith('*') && name.startsWith(pattern.chopped(1))))
                return row.make();
    return plain<QWidget>();
}

QByteArray nameOf(QStyle::ComplexControl control, QStyle::SubControl part)
{
    return QByteArray(nameOf(control)) + ' ' + QByteArray::number(unsigned(part), 16);
}

const QVector<Element>& elements()
{
    static const QVector<Element> sElements = [] {
        QVector<Element> elements;
        appendAll<QStyle::PrimitiveElement>(elements);
        appendAll<QStyle::ControlElement>(elements);
        appendAll<QStyle::ComplexControl>(elements);
        appendAll<QStyle::SubElement>(elements);
        appendAll<QStyle::ContentsType>(elements);
        return elements;
    }();
    return sElements;
}

} // namespace StyleOptions
