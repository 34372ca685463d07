#include "StyleOptions.h"

#include "SampleWidgets.h"

#include <algorithm>
#include <vector>

namespace StyleOptions {

namespace {

using Maker = Sample (*)();

/// The elements that a kind of widget paints with and is measured by.
struct Row
{
    Maker make;
    std::vector<QStyle::PrimitiveElement> primitives = {};
    std::vector<QStyle::ControlElement> controls = {};
    std::vector<QStyle::ComplexControl> complexControls = {};
    std::vector<QStyle::SubElement> subElements = {};
    std::vector<QStyle::ContentsType> contents = {};
};

// clang-format off

const std::vector<Row>& rows()
{
    using S = QStyle;
    static const std::vector<Row> sRows = {
        {frame, {S::PE_Frame}, {S::CE_ShapedFrame}, {}, {S::SE_FrameContents,
         S::SE_ShapedFrameContents, S::SE_FrameLayoutItem}},
        {button<QPushButton>, {S::PE_FrameDefaultButton, S::PE_FrameButtonBevel,
         S::PE_PanelButtonCommand, S::PE_PanelButtonBevel}, {S::CE_PushButton,
         S::CE_PushButtonBevel, S::CE_PushButtonLabel}, {}, {S::SE_PushButtonContents,
         S::SE_PushButtonFocusRect, S::SE_PushButtonBevel, S::SE_PushButtonLayoutItem},
         {S::CT_PushButton}},
        {plain<QDockWidget, QStyleOptionFrame>, {S::PE_FrameDockWidget}},
        {plain<QLineEdit, QStyleOptionFocusRect>, {S::PE_FrameFocusRect}},
        {plain<QGroupBox, QStyleOptionFrame>, {S::PE_FrameGroupBox}},
        {filled<QLineEdit, QStyleOptionFrame>, {S::PE_FrameLineEdit, S::PE_PanelLineEdit}, {}, {}, {S::SE_LineEditContents},
         {S::CT_LineEdit}},
        {plain<QMenu, QStyleOptionFrame>, {S::PE_FrameMenu}},
        {widgetAlone<QStatusBar>, {S::PE_FrameStatusBarItem, S::PE_PanelStatusBar}},
        {tabWidget, {S::PE_FrameTabWidget}, {}, {}, {S::SE_TabWidgetTabBar, S::SE_TabWidgetTabPane,
         S::SE_TabWidgetTabContents, S::SE_TabWidgetLeftCorner, S::SE_TabWidgetRightCorner,
         S::SE_TabWidgetLayoutItem}, {S::CT_TabWidget}},
        {plain<QMdiSubWindow, QStyleOptionFrame>, {S::PE_FrameWindow}},
        {toolButton, {S::PE_FrameButtonTool, S::PE_PanelButtonTool, S::PE_IndicatorArrowDown,
         S::PE_IndicatorArrowLeft, S::PE_IndicatorArrowRight, S::PE_IndicatorArrowUp,
         S::PE_IndicatorButtonDropDown}, {S::CE_ToolButtonLabel}, {S::CC_ToolButton},
         {S::SE_ToolButtonLayoutItem}, {S::CT_ToolButton}},
        {tabBarBase, {S::PE_FrameTabBarBase}},
        {plain<QMenuBar, QStyleOptionFrame>, {S::PE_PanelMenuBar}},
        {filled<QToolBar, QStyleOptionToolBar>, {S::PE_PanelToolBar}, {S::CE_ToolBar}, {}, {S::SE_ToolBarHandle}},
        {widgetAlone<QTreeView>, {S::PE_IndicatorBranch, S::PE_IndicatorItemViewItemDrop}},
        {viewItem, {S::PE_IndicatorItemViewItemCheck, S::PE_IndicatorColumnViewArrow,
         S::PE_PanelItemViewItem, S::PE_PanelItemViewRow}, {S::CE_ItemViewItem}, {},
         {S::SE_ItemViewItemCheckIndicator, S::SE_ItemViewItemDecoration, S::SE_ItemViewItemText,
         S::SE_ItemViewItemFocusRect, S::SE_TreeViewDisclosureItem}, {S::CT_ItemViewItem}},
        {button<QCheckBox>, {S::PE_IndicatorCheckBox}, {S::CE_CheckBox, S::CE_CheckBoxLabel}, {},
         {S::SE_CheckBoxIndicator, S::SE_CheckBoxContents, S::SE_CheckBoxFocusRect,
         S::SE_CheckBoxClickRect, S::SE_CheckBoxLayoutItem}, {S::CT_CheckBox}},
        {widgetAlone<QMainWindow>, {S::PE_IndicatorDockWidgetResizeHandle}},
        {header, {S::PE_IndicatorHeaderArrow}, {S::CE_Header, S::CE_HeaderSection,
         S::CE_HeaderLabel}, {}, {S::SE_HeaderLabel, S::SE_HeaderArrow}, {S::CT_HeaderSection}},
        {menuItem<QMenu>, {S::PE_IndicatorMenuCheckMark, S::PE_PanelMenu}, {S::CE_MenuItem,
         S::CE_MenuScroller, S::CE_MenuVMargin, S::CE_MenuHMargin, S::CE_MenuTearoff,
         S::CE_MenuEmptyArea}, {}, {}, {S::CT_MenuItem, S::CT_Menu}},
        {progressBar, {S::PE_IndicatorProgressChunk}, {S::CE_ProgressBar, S::CE_ProgressBarGroove,
         S::CE_ProgressBarContents, S::CE_ProgressBarLabel}, {}, {S::SE_ProgressBarGroove,
         S::SE_ProgressBarContents, S::SE_ProgressBarLabel, S::SE_ProgressBarLayoutItem},
         {S::CT_ProgressBar}},
        {button<QRadioButton>, {S::PE_IndicatorRadioButton}, {S::CE_RadioButton,
         S::CE_RadioButtonLabel}, {}, {S::SE_RadioButtonIndicator, S::SE_RadioButtonContents,
         S::SE_RadioButtonFocusRect, S::SE_RadioButtonClickRect, S::SE_RadioButtonLayoutItem},
         {S::CT_RadioButton}},
        {filled<QSpinBox, QStyleOptionSpinBox>, {S::PE_IndicatorSpinDown, S::PE_IndicatorSpinMinus, S::PE_IndicatorSpinPlus,
         S::PE_IndicatorSpinUp}, {}, {S::CC_SpinBox}, {S::SE_DateTimeEditLayoutItem,
         S::SE_SpinBoxLayoutItem}, {S::CT_SpinBox}},
        {widgetAlone<QToolBar>, {S::PE_IndicatorToolBarHandle, S::PE_IndicatorToolBarSeparator}},
        {plain<QLabel, QStyleOptionFrame>, {S::PE_PanelTipLabel}, {}, {}, {S::SE_LabelLayoutItem}},
        {tab, {S::PE_IndicatorTabTear, S::PE_IndicatorTabTearRight}, {S::CE_TabBarTab,
         S::CE_TabBarTabShape, S::CE_TabBarTabLabel}, {}, {S::SE_TabBarTearIndicator,
         S::SE_TabBarTearIndicatorRight, S::SE_TabBarScrollLeftButton,
         S::SE_TabBarScrollRightButton, S::SE_TabBarTabLeftButton, S::SE_TabBarTabRightButton,
         S::SE_TabBarTabText}, {S::CT_TabBarTab}},
        {widgetAlone<QScrollArea>, {S::PE_PanelScrollAreaCorner}},
        {widgetAlone<QWidget>, {S::PE_Widget}, {S::CE_HeaderEmptyArea, S::CE_ColumnViewGrip}},
        {widgetAlone<QTabBar>, {S::PE_IndicatorTabClose}},
        {menuItem<QMenuBar>, {}, {S::CE_MenuBarItem, S::CE_MenuBarEmptyArea}, {}, {},
         {S::CT_MenuBarItem, S::CT_MenuBar}},
        {toolBox, {}, {S::CE_ToolBoxTab, S::CE_ToolBoxTabShape, S::CE_ToolBoxTabLabel}, {},
         {S::SE_ToolBoxTabContents}},
        {sizeGrip, {}, {S::CE_SizeGrip}, {}, {}, {S::CT_SizeGrip}},
        {splitterHandle, {}, {S::CE_Splitter}},
        {rubberBand, {}, {S::CE_RubberBand}},
        {dockWidget, {}, {S::CE_DockWidgetTitle}, {}, {S::SE_DockWidgetCloseButton,
         S::SE_DockWidgetFloatButton, S::SE_DockWidgetTitleBarText, S::SE_DockWidgetIcon}},
        {slider<QScrollBar>, {}, {S::CE_ScrollBarAddLine, S::CE_ScrollBarSubLine,
         S::CE_ScrollBarAddPage, S::CE_ScrollBarSubPage, S::CE_ScrollBarSlider,
         S::CE_ScrollBarFirst, S::CE_ScrollBarLast}, {S::CC_ScrollBar}, {}, {S::CT_ScrollBar}},
        {widgetAlone<QFocusFrame>, {}, {S::CE_FocusFrame}},
        {comboBox, {}, {S::CE_ComboBoxLabel}, {S::CC_ComboBox}, {S::SE_ComboBoxFocusRect,
         S::SE_ComboBoxLayoutItem}, {S::CT_ComboBox}},
        {ticks, {}, {}, {S::CC_Slider}, {S::SE_SliderFocusRect, S::SE_SliderLayoutItem},
         {S::CT_Slider}},
        {titleBar, {}, {}, {S::CC_TitleBar}},
        {slider<QDial>, {}, {}, {S::CC_Dial}},
        {groupBox, {}, {}, {S::CC_GroupBox}, {S::SE_GroupBoxLayoutItem}, {S::CT_GroupBox}},
        {mdiControls, {}, {}, {S::CC_MdiControls}, {}, {S::CT_MdiControls}},
    };
    return sRows;
}

// clang-format on

template <class Enum>
Sample sampleIn(std::vector<Enum> Row::*column, Enum element)
{
    for (const Row& row : rows())
        if (const auto& elements = row.*column;
            std::find(elements.begin(), elements.end(), element) != elements.end())
            return row.make();
    return widgetAlone<QWidget>();
}

} // namespace

Sample sampleFor(QStyle::PrimitiveElement element)
{
    return sampleIn(&Row::primitives, element);
}

Sample sampleFor(QStyle::ControlElement element)
{
    return sampleIn(&Row::controls, element);
}

Sample sampleFor(QStyle::ComplexControl control)
{
    return sampleIn(&Row::complexControls, control);
}

Sample sampleFor(QStyle::SubElement element)
{
    return sampleIn(&Row::subElements, element);
}

Sample sampleFor(QStyle::ContentsType type)
{
    return sampleIn(&Row::contents, type);
}

QByteArray nameOf(QStyle::ComplexControl control, QStyle::SubControl part)
{
    return QByteArray(nameOf(control)) + ' ' + QByteArray::number(unsigned(part), 16);
}

QVector<QStyle::SubControl> subControlsOf(QStyle::ComplexControl control)
{
    const auto upTo = [](QStyle::SubControl last) {
        QVector<QStyle::SubControl> parts;
        for (unsigned part = 1; part <= unsigned(last); part <<= 1)
            parts.append(QStyle::SubControl(part));
        return parts;
    };
    switch (control) {
    case QStyle::CC_SpinBox: return upTo(QStyle::SC_SpinBoxEditField);
    case QStyle::CC_ComboBox: return upTo(QStyle::SC_ComboBoxListBoxPopup);
    case QStyle::CC_ScrollBar: return upTo(QStyle::SC_ScrollBarGroove);
    case QStyle::CC_Slider: return upTo(QStyle::SC_SliderTickmarks);
    case QStyle::CC_ToolButton: return upTo(QStyle::SC_ToolButtonMenu);
    case QStyle::CC_TitleBar: return upTo(QStyle::SC_TitleBarLabel);
    case QStyle::CC_GroupBox: return upTo(QStyle::SC_GroupBoxFrame);
    case QStyle::CC_MdiControls: return upTo(QStyle::SC_MdiCloseButton);
    default: return {};
    }
}

namespace {

template <class Enum, class Use>
void appendAll(QVector<Element>& elements, Use use)
{
    for (const Enum element : all<Enum>())
        elements.append({nameOf(element), [element] { return sampleFor(element); },
                         [element, use](const QStyle& style, const Sample& sample, QPainter* to) {
                             use(style, element, sample.option.get(), to, sample.widget.get());
                         }});
}

void useComplex(const QStyle& style, QStyle::ComplexControl control, const QStyleOption* option,
                QPainter* painter, const QWidget* widget)
{
    const auto* complex = static_cast<const QStyleOptionComplex*>(option);
    for (const QStyle::SubControl part : subControlsOf(control))
        style.subControlRect(control, complex, part, widget);
    style.hitTestComplexControl(control, complex, QPoint(5, 5), widget);
    style.drawComplexControl(control, complex, painter, widget);
}

} // namespace

const QVector<Element>& elements()
{
    static const QVector<Element> sElements = [] {
        QVector<Element> all;
        appendAll<QStyle::PrimitiveElement>(all, std::mem_fn(&QStyle::drawPrimitive));
        appendAll<QStyle::ControlElement>(all, std::mem_fn(&QStyle::drawControl));
        appendAll<QStyle::ComplexControl>(all, useComplex);
        appendAll<QStyle::SubElement>(
            all, [](const QStyle& style, auto element, auto* option, QPainter*, auto* widget) {
                style.subElementRect(element, option, widget);
            });
        appendAll<QStyle::ContentsType>(
            all, [](const QStyle& style, auto type, auto* option, QPainter*, auto* widget) {
                for (const QSize contents : {QSize(40, 16), QSize(), QSize(20000, 20000)}) {
                    style.sizeFromContents(type, option, contents, widget);
                    style.sizeFromContents(type, nullptr, contents, nullptr);
                }
            });
        return all;
    }();
    return sElements;
}

} // namespace StyleOptions
