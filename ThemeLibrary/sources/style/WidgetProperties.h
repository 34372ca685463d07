#pragma once

#include <QVariant>
#include <QWidget>

/// The properties through which widgets and the style talk to each other. docs/properties.md tells
/// what each one does.
namespace BRELK::WidgetProperties {

// Buttons and inputs
constexpr char BlinkChecked[] = "blink_checked";
constexpr char Blinking[] = "blinking";
constexpr char ButtonType[] = "ButtonType";
constexpr char Checkable[] = "checkable";
constexpr char Checked[] = "checked";
constexpr char Circular[] = "circular";
constexpr char CustomActionIcons[] = "customActionIcons";
constexpr char DrawErrorIndicator[] = "drawErrorIndicator";
constexpr char Frameless[] = "frameless";
constexpr char Highlighted[] = "highlighted";
constexpr char HighlightedIcon[] = "highlightedIcon";
constexpr char NoMenuArrow[] = "no menu arrow";
constexpr char Order[] = "Order";
constexpr char OriginalIcon[] = "originalIcon";
constexpr char Outline[] = "outline";
constexpr char Status[] = "Status";
constexpr char Switch[] = "switch";
constexpr char TextAlignment[] = "textAlignment";

// Button groups
constexpr char ButtonGroupContainer[] = "ButtonGroupWidget_Container";
constexpr char ButtonGroupExclusive[] = "ButtonGroupWidget_Exclusive";
constexpr char ButtonGroupVisibleCount[] = "ButtonGroupWidget_VisibleCount";
constexpr char ButtonGroupWorkflow[] = "ButtonGroupWidget_Workflow";
constexpr char ButtonVisibleIndex[] = "Button_VisibleIndex";
constexpr char ColorButtonContainer[] = "ColorButtonWidget_Container";
constexpr char Orientation[] = "orientation";

// Sliders and scroll bars
constexpr char Minimized[] = "minimized";
constexpr char RangeSlider[] = "rangeSlider";
constexpr char SliderHighContrast[] = "slider_high_contrast";
constexpr char SliderHighlighted[] = "slider_highlighted";

// Tabs
constexpr char AppBaseTabSize[] = "appBaseTabSize";
constexpr char AppCurrentTabHighlighted[] = "appCurrentTabHighlighted";
constexpr char AppLargeTabSize[] = "appLargeTabSize";
constexpr char AppMediumTabSize[] = "appMediumTabSize";
constexpr char AppSmallTabSize[] = "appSmallTabSize";
constexpr char BaseTabSize[] = "baseTabSize";
constexpr char CurrentTabHighlighted[] = "currentTabHighlighted";
constexpr char LargeTabSize[] = "largeTabSize";
constexpr char MediumTabSize[] = "mediumTabSize";
constexpr char SmallTabSize[] = "smallTabSize";
constexpr char Stretched[] = "stretched";

// Menus and item views
constexpr char CustomItemDelegate[] = "customItemDelegate";
constexpr char CustomItemViewPalette[] = "customItemViewPalette";
constexpr char DrawChildIndicatorInListView[] = "drawChildIndicatorInListView";
constexpr char DrawItemsSeparators[] = "drawItemsSeparators";
constexpr char FlatView[] = "flatView";
constexpr char HideFocusRect[] = "hideFocusRect";
constexpr char HighlightItemsOnMouseHover[] = "highlightItemsOnMouseHover";
constexpr char IsComboBoxPopupItem[] = "_q_isComboBoxPopupItem";

// Cards, frames and the rest
constexpr char CardContents[] = "CardWidgetBase_Contents";
constexpr char CardFooter[] = "CardWidgetBase_Footer";
constexpr char CardHeader[] = "CardWidgetBase_Header";
constexpr char CardNoCornerRadius[] = "CardWidget_NoCornerRadius";
constexpr char CardSubtitle[] = "CardWidgetBase_Subtitle";
constexpr char CardTitle[] = "CardWidgetBase_Title";
constexpr char Expandable[] = "expandable";
constexpr char Filled[] = "filled";
constexpr char FooterVisible[] = "footerVisible";
constexpr char HeaderVisible[] = "headerVisible";
constexpr char InvertedAppearance[] = "invertedAppearance";
constexpr char PillFont[] = "Pill_Font";
constexpr char RoundedPixmap[] = "roundedPixmap";
constexpr char Shape[] = "shape";
constexpr char Small[] = "small";

/// Written by `polish`, for the widget libraries that draw with the style's values.
constexpr char BackgroundBrush[] = "BackgroundBrush";
constexpr char BackgroundBrushDisabled[] = "BackgroundBrushDisabled";
constexpr char BorderBrush[] = "BorderBrush";
constexpr char BorderBrushDisabled[] = "BorderBrushDisabled";
constexpr char CardTitleDefaultFont[] = "CardWidgetBase_Title_DefaultFont";
constexpr char CardTitleMinimizedFont[] = "CardWidgetBase_Title_MinimizedFont";
constexpr char CornerRadius[] = "CornerRadius";
constexpr char DefaultBrush[] = "DefaultBrush";
constexpr char DefaultBrushDisabled[] = "DefaultBrushDisabled";
constexpr char HoverBrush[] = "HoverBrush";
constexpr char InvertedControls[] = "invertedControls";
constexpr char PeriodicTableBackgroundColor[] = "PeriodicTableDelegate_BackgroundColor";
constexpr char PeriodicTableBorderColor[] = "PeriodicTableDelegate_BorderColor";
constexpr char PeriodicTableColorList[] = "PeriodicTableDelegate_ColorList";
constexpr char PeriodicTableForegroundColor[] = "PeriodicTableDelegate_ForegroundColor";
constexpr char PeriodicTableForegroundSubLevelColor[] =
    "PeriodicTableDelegate_ForegroundSubLevelColor";
constexpr char PeriodicTableForegroundUpLevelColor[] =
    "PeriodicTableDelegate_ForegroundUpLevelColor";
constexpr char RangeBrush[] = "RangeBrush";
constexpr char RangeBrushDisabled[] = "RangeBrushDisabled";
constexpr char StyleSheetWidgetFont[] =
    "_q_styleSheetWidgetFont"; ///< Qt's own: the font it restores under a sheet
constexpr char SunkenBrush[] = "SunkenBrush";
constexpr char TickPosition[] = "tickPosition";
constexpr char Tracking[] = "tracking";
constexpr char WorkflowLinkBrush[] = "WorkflowLinkBrush";
constexpr char WorkflowLinkBrushDisabled[] = "WorkflowLinkBrushDisabled";

/// The value of one of the properties above: invalid when `object` is null or lacks it.
///
/// Much quicker than QObject::property(), which compares the name with dozens of declared ones to
/// find nothing most of the time: a class is asked once per name.
QVariant value(const QObject* object, const char* property);

/// False when absent.
inline bool flag(const QObject* object, const char* property)
{
    return value(object, property).toBool();
}

} // namespace BRELK::WidgetProperties
