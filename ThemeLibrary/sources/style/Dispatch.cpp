#include "Adapters.h"
#include "Families.h"

// Who paints and measures what: each element stands here once. What is not here is the base
// style's.

namespace BRELK {

namespace {

// clang-format off

Painter painterOf(QStyle::PrimitiveElement element)
{
    switch (element) {
    case QStyle::PE_Frame:                     return by<LineEdits::paintFrame>;
    case QStyle::PE_FrameDefaultButton:        return by<Buttons::paintDefaultFrame>;
    case QStyle::PE_FrameFocusRect:            return by<Frames::paintFocusRect>;
    case QStyle::PE_FrameGroupBox:             return by<GroupBoxes::paintFrame>;
    case QStyle::PE_FrameLineEdit:             return by<LineEdits::paintFrame>;
    case QStyle::PE_FrameTabBarBase:           return by<Tabs::paintBarBase>;
    case QStyle::PE_FrameTabWidget:            return by<Tabs::paintFrame>;
    case QStyle::PE_FrameWindow:               return by<TitleBars::paintWindowFrame>;
    case QStyle::PE_IndicatorArrowDown:        return by<Arrows::paintDown>;
    case QStyle::PE_IndicatorArrowLeft:        return by<Arrows::paintLeft>;
    case QStyle::PE_IndicatorArrowRight:       return by<Arrows::paintRight>;
    case QStyle::PE_IndicatorArrowUp:          return by<Arrows::paintUp>;
    case QStyle::PE_IndicatorBranch:           return by<ItemViews::paintBranch>;
    case QStyle::PE_IndicatorCheckBox:         return by<CheckBoxes::paintIndicator>;
    case QStyle::PE_IndicatorColumnViewArrow:  return by<ItemViews::paintColumnViewArrow>;
    case QStyle::PE_IndicatorRadioButton:      return by<CheckBoxes::paintRadioIndicator>;
    case QStyle::PE_IndicatorSpinDown:         return by<SpinBoxes::paintDown>;
    case QStyle::PE_IndicatorSpinMinus:        return by<SpinBoxes::paintMinus>;
    case QStyle::PE_IndicatorSpinPlus:         return by<SpinBoxes::paintPlus>;
    case QStyle::PE_IndicatorSpinUp:           return by<SpinBoxes::paintUp>;
    case QStyle::PE_IndicatorTabClose:         return by<Tabs::paintCloseButton>;
    case QStyle::PE_IndicatorToolBarHandle:    return by<ToolBars::paintHandle>;
    case QStyle::PE_IndicatorToolBarSeparator: return by<ToolBars::paintSeparator>;
    case QStyle::PE_PanelButtonBevel:          return by<Buttons::paintPanel>;
    case QStyle::PE_PanelButtonCommand:        return by<Buttons::paintPanel>;
    case QStyle::PE_PanelItemViewItem:         return by<ItemViews::paintPanel>;
    case QStyle::PE_PanelItemViewRow:          return by<ItemViews::paintRow>;
    case QStyle::PE_PanelLineEdit:             return by<LineEdits::paintPanel>;
    case QStyle::PE_PanelMenu:                 return by<Menus::paintPanel>;
    case QStyle::PE_PanelScrollAreaCorner:     return by<ScrollBars::paintCorner>;
    case QStyle::PE_PanelStatusBar:            return by<WindowParts::paintStatusBar>;
    case QStyle::PE_PanelTipLabel:             return by<Frames::paintToolTip>;
    case QStyle::PE_Widget:                    return by<Cards::paintWidget>;
    default:                                   return nullptr;
    }
}

Painter painterOf(QStyle::ControlElement element)
{
    switch (element) {
    case QStyle::CE_CheckBox:            return by<CheckBoxes::paintCheckBox>;
    case QStyle::CE_CheckBoxLabel:       return by<CheckBoxes::paintLabel>;
    case QStyle::CE_ColumnViewGrip:      return by<ItemViews::paintColumnViewGrip>;
    case QStyle::CE_ComboBoxLabel:       return by<ComboBoxes::paintLabel>;
    case QStyle::CE_DockWidgetTitle:     return by<TitleBars::paintDockTitle>;
    case QStyle::CE_Header:              return by<Headers::paintHeader>;
    case QStyle::CE_HeaderEmptyArea:     return by<Headers::paintEmptyArea>;
    case QStyle::CE_HeaderLabel:         return by<Headers::paintLabel>;
    case QStyle::CE_HeaderSection:       return by<Headers::paintSection>;
    case QStyle::CE_ItemViewItem:        return by<ItemViews::paintItem>;
    case QStyle::CE_MenuBarEmptyArea:    return by<Menus::paintBarEmptyArea>;
    case QStyle::CE_MenuBarItem:         return by<Menus::paintBarItem>;
    case QStyle::CE_MenuItem:            return by<Menus::paintItem>;
    case QStyle::CE_MenuTearoff:         return by<Menus::paintTearoff>;
    case QStyle::CE_ProgressBarContents: return by<ProgressBars::paintContents>;
    case QStyle::CE_ProgressBarGroove:   return by<ProgressBars::paintGroove>;
    case QStyle::CE_ProgressBarLabel:    return by<ProgressBars::paintLabel>;
    case QStyle::CE_PushButton:          return by<Buttons::paintButton>;
    case QStyle::CE_PushButtonBevel:     return by<Buttons::paintBevel>;
    case QStyle::CE_PushButtonLabel:     return by<Buttons::paintLabel>;
    case QStyle::CE_RadioButtonLabel:    return by<CheckBoxes::paintLabel>;
    case QStyle::CE_RubberBand:          return by<WindowParts::paintRubberBand>;
    case QStyle::CE_ScrollBarAddLine:    return by<ScrollBars::paintAddLine>;
    case QStyle::CE_ScrollBarSlider:     return by<ScrollBars::paintSlider>;
    case QStyle::CE_ScrollBarSubLine:    return by<ScrollBars::paintSubLine>;
    case QStyle::CE_ShapedFrame:         return by<Frames::paintShapedFrame>;
    case QStyle::CE_Splitter:            return by<WindowParts::paintSplitter>;
    case QStyle::CE_TabBarTabLabel:      return by<Tabs::paintLabel>;
    case QStyle::CE_TabBarTabShape:      return by<Tabs::paintShape>;
    case QStyle::CE_ToolBar:             return by<ToolBars::paintToolBar>;
    case QStyle::CE_ToolBoxTabLabel:     return by<ToolBoxes::paintTabLabel>;
    case QStyle::CE_ToolBoxTabShape:     return by<ToolBoxes::paintTabShape>;
    case QStyle::CE_ToolButtonLabel:     return by<ToolButtons::paintLabel>;
    default:                             return nullptr;
    }
}

Painter painterOf(QStyle::ComplexControl control)
{
    switch (control) {
    case QStyle::CC_ComboBox:    return by<ComboBoxes::paintComboBox>;
    case QStyle::CC_Dial:        return by<Sliders::paintDial>;
    case QStyle::CC_GroupBox:    return by<GroupBoxes::paintGroupBox>;
    case QStyle::CC_MdiControls: return by<TitleBars::paintMdiControls>;
    case QStyle::CC_ScrollBar:   return by<ScrollBars::paintScrollBar>;
    case QStyle::CC_Slider:      return by<Sliders::paintSlider>;
    case QStyle::CC_SpinBox:     return by<SpinBoxes::paintSpinBox>;
    case QStyle::CC_TitleBar:    return by<TitleBars::paintTitleBar>;
    case QStyle::CC_ToolButton:  return by<ToolButtons::paintToolButton>;
    default:                     return nullptr;
    }
}

RectRule ruleOf(QStyle::SubElement element)
{
    switch (element) {
    case QStyle::SE_CheckBoxContents:           return by<CheckBoxes::contentsRect>;
    case QStyle::SE_CheckBoxIndicator:          return by<CheckBoxes::indicatorRect>;
    case QStyle::SE_HeaderArrow:                return by<Headers::markRect>;
    case QStyle::SE_HeaderLabel:                return by<Headers::labelRect>;
    case QStyle::SE_ItemViewItemCheckIndicator: return by<ItemViews::markRect>;
    case QStyle::SE_ItemViewItemDecoration:     return by<ItemViews::markRect>;
    case QStyle::SE_ItemViewItemText:           return by<ItemViews::textRect>;
    case QStyle::SE_LineEditContents:           return by<LineEdits::contentsRect>;
    case QStyle::SE_ShapedFrameContents:        return by<Frames::contentsRect>;
    case QStyle::SE_TabBarTabRightButton:       return by<Tabs::rightButtonRect>;
    case QStyle::SE_TabBarTabText:              return by<Tabs::textRect>;
    case QStyle::SE_TabWidgetTabBar:            return by<Tabs::barRect>;
    default:                                    return nullptr;
    }
}

PartRule ruleOf(QStyle::ComplexControl control)
{
    switch (control) {
    case QStyle::CC_ComboBox:    return by<ComboBoxes::partRect>;
    case QStyle::CC_GroupBox:    return by<GroupBoxes::partRect>;
    case QStyle::CC_MdiControls: return by<TitleBars::controlRect>;
    case QStyle::CC_ScrollBar:   return by<ScrollBars::partRect>;
    case QStyle::CC_Slider:      return by<Sliders::partRect>;
    case QStyle::CC_SpinBox:     return by<SpinBoxes::partRect>;
    default:                     return nullptr;
    }
}

SizeRule ruleOf(QStyle::ContentsType type)
{
    switch (type) {
    case QStyle::CT_CheckBox:     return by<CheckBoxes::checkBoxSize>;
    case QStyle::CT_ComboBox:     return by<ComboBoxes::comboBoxSize>;
    case QStyle::CT_HeaderSection: return by<Headers::sectionSize>;
    case QStyle::CT_ItemViewItem: return by<ItemViews::itemSize>;
    case QStyle::CT_LineEdit:     return by<LineEdits::lineEditSize>;
    case QStyle::CT_MenuBarItem:  return by<Menus::barItemSize>;
    case QStyle::CT_MenuItem:     return by<Menus::itemSize>;
    case QStyle::CT_ProgressBar:  return by<ProgressBars::progressBarSize>;
    case QStyle::CT_PushButton:   return by<Buttons::buttonSize>;
    case QStyle::CT_RadioButton:  return by<CheckBoxes::radioButtonSize>;
    case QStyle::CT_Slider:       return by<Sliders::sliderSize>;
    case QStyle::CT_SpinBox:      return by<SpinBoxes::spinBoxSize>;
    case QStyle::CT_ToolButton:   return by<ToolButtons::toolButtonSize>;
    default:                      return nullptr;
    }
}

// clang-format on

} // namespace

void BaseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const
{
    if (!option || !painter || !isCountable(option->rect))
        return;
    if (const Painter paint = painterOf(element))
        paint({{*this, *option, widget}, *painter});
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void BaseStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    if (!option || !painter || !isCountable(option->rect))
        return;
    if (const Painter paint = painterOf(element))
        paint({{*this, *option, widget}, *painter});
    else
        QProxyStyle::drawControl(element, option, painter, widget);
}

void BaseStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const
{
    if (!option || !painter || !isCountable(option->rect))
        return;
    if (const Painter paint = painterOf(control))
        paint({{*this, *option, widget}, *painter});
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect BaseStyle::subElementRect(SubElement element, const QStyleOption* option,
                                const QWidget* widget) const
{
    // Qt asks the tab bar that it takes for granted.
    if (!widget && (element == SE_TabBarScrollLeftButton || element == SE_TabBarScrollRightButton))
        return {};
    if (option && !isCountable(option->rect))
        return {};
    const RectRule rule = option ? ruleOf(element) : nullptr;
    const std::optional<QRect> rect = rule ? rule({*this, *option, widget}, element) : std::nullopt;
    return rect ? *rect : QProxyStyle::subElementRect(element, option, widget);
}

QRect BaseStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                SubControl part, const QWidget* widget) const
{
    if (option && !isCountable(option->rect))
        return {};
    const PartRule rule = option ? ruleOf(control) : nullptr;
    const std::optional<QRect> rect = rule ? rule({*this, *option, widget}, part) : std::nullopt;
    return rect ? *rect : QProxyStyle::subControlRect(control, option, part, widget);
}

QSize BaseStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& given,
                                  const QWidget* widget) const
{
    constexpr QSize Largest(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const QSize contents = given.boundedTo(Largest).expandedTo(QSize());
    const SizeRule rule = option ? ruleOf(type) : nullptr;
    const std::optional<QSize> size = rule ? rule({*this, option, widget}, contents) : std::nullopt;
    return size ? *size : QProxyStyle::sizeFromContents(type, option, contents, widget);
}

} // namespace BRELK
