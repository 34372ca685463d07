#pragma once

#include <QVariant>
#include <QWidget>

/// The properties through which widgets and the style talk to each other. docs/properties.md tells
/// what each one does.
namespace BRELK::WidgetProperties {

// Buttons and inputs
inline constexpr char BlinkChecked[] = "blink_checked";
inline constexpr char Blinking[] = "blinking";
inline constexpr char ButtonType[] = "ButtonType";
inline constexpr char Checkable[] = "checkable";
inline constexpr char Checked[] = "checked";
inline constexpr char Circular[] = "circular";
inline constexpr char CustomActionIcons[] = "customActionIcons";
inline constexpr char DrawErrorIndicator[] = "drawErrorIndicator";
inline constexpr char Frameless[] = "frameless";
inline constexpr char Highlighted[] = "highlighted";
inline constexpr char HighlightedIcon[] = "highlightedIcon";
inline constexpr char NoMenuArrow[] = "no menu arrow";
inline constexpr char Order[] = "Order";
inline constexpr char OriginalIcon[] = "originalIcon";
inline constexpr char Outline[] = "outline";
inline constexpr char Status[] = "Status";
inline constexpr char Switch[] = "switch";
inline constexpr char TextAlignment[] = "textAlignment";

// Button groups
inline constexpr char ButtonGroupContainer[] = "ButtonGroupWidget_Container";
inline constexpr char ButtonGroupExclusive[] = "ButtonGroupWidget_Exclusive";
inline constexpr char ButtonGroupVisibleCount[] = "ButtonGroupWidget_VisibleCount";
inline constexpr char ButtonGroupWorkflow[] = "ButtonGroupWidget_Workflow";
inline constexpr char ButtonVisibleIndex[] = "Button_VisibleIndex";
inline constexpr char ColorButtonContainer[] = "ColorButtonWidget_Container";
inline constexpr char Orientation[] = "orientation";

// Sliders and scroll bars
inline constexpr char Minimized[] = "minimized";
inline constexpr char RangeSlider[] = "rangeSlider";
inline constexpr char SliderHighContrast[] = "slider_high_contrast";
inline constexpr char SliderHighlighted[] = "slider_highlighted";

// Tabs
inline constexpr char AppBaseTabSize[] = "appBaseTabSize";
inline constexpr char AppCurrentTabHighlighted[] = "appCurrentTabHighlighted";
inline constexpr char AppLargeTabSize[] = "appLargeTabSize";
inline constexpr char AppSmallTabSize[] = "appSmallTabSize";
inline constexpr char BaseTabSize[] = "baseTabSize";
inline constexpr char CurrentTabHighlighted[] = "currentTabHighlighted";
inline constexpr char LargeTabSize[] = "largeTabSize";
inline constexpr char MediumTabSize[] = "mediumTabSize";
inline constexpr char SmallTabSize[] = "smallTabSize";
inline constexpr char Stretched[] = "stretched";

// Menus and item views
inline constexpr char CustomItemDelegate[] = "customItemDelegate";
inline constexpr char CustomItemViewPalette[] = "customItemViewPalette";
inline constexpr char DrawChildIndicatorInListView[] = "drawChildIndicatorInListView";
inline constexpr char DrawItemsSeparators[] = "drawItemsSeparators";
inline constexpr char FlatView[] = "flatView";
inline constexpr char HideFocusRect[] = "hideFocusRect";
inline constexpr char HighlightItemsOnMouseHover[] = "highlightItemsOnMouseHover";
inline constexpr char IsComboBoxPopupItem[] = "_q_isComboBoxPopupItem";

// Cards, frames and the rest
inline constexpr char CardContents[] = "CardWidgetBase_Contents";
inline constexpr char CardFooter[] = "CardWidgetBase_Footer";
inline constexpr char CardHeader[] = "CardWidgetBase_Header";
inline constexpr char CardNoCornerRadius[] = "CardWidget_NoCornerRadius";
inline constexpr char CardSubtitle[] = "CardWidgetBase_Subtitle";
inline constexpr char CardTitle[] = "CardWidgetBase_Title";
inline constexpr char Expandable[] = "expandable";
inline constexpr char Filled[] = "filled";
inline constexpr char FooterVisible[] = "footerVisible";
inline constexpr char HeaderVisible[] = "headerVisible";
inline constexpr char InvertedAppearance[] = "invertedAppearance";
inline constexpr char PillFont[] = "Pill_Font";
inline constexpr char RoundedPixmap[] = "roundedPixmap";
inline constexpr char Shape[] = "shape";
inline constexpr char Small[] = "small";

/// Written by `polish`, for the widget libraries that draw with the style's values.
inline constexpr char BackgroundBrush[] = "BackgroundBrush";
inline constexpr char BorderBrush[] = "BorderBrush";
inline constexpr char CardTitleDefaultFont[] = "CardWidgetBase_Title_DefaultFont";
inline constexpr char CardTitleMinimizedFont[] = "CardWidgetBase_Title_MinimizedFont";
inline constexpr char CornerRadius[] = "CornerRadius";
inline constexpr char DefaultBrush[] = "DefaultBrush";
inline constexpr char HoverBrush[] = "HoverBrush";
inline constexpr char InvertedControls[] = "invertedControls";
inline constexpr char PeriodicTableBackgroundColor[] = "PeriodicTableDelegate_BackgroundColor";
inline constexpr char PeriodicTableBorderColor[] = "PeriodicTableDelegate_BorderColor";
inline constexpr char PeriodicTableColorList[] = "PeriodicTableDelegate_ColorList";
inline constexpr char PeriodicTableForegroundColor[] = "PeriodicTableDelegate_ForegroundColor";
inline constexpr char PeriodicTableForegroundSubLevelColor[] =
    "PeriodicTableDelegate_ForegroundSubLevelColor";
inline constexpr char PeriodicTableForegroundUpLevelColor[] =
    "PeriodicTableDelegate_ForegroundUpLevelColor";
inline constexpr char RangeBrush[] = "RangeBrush";
inline constexpr char StyleSheetWidgetFont[] =
    "_q_styleSheetWidgetFont"; ///< Qt's own: the font it restores under a sheet
inline constexpr char SunkenBrush[] = "SunkenBrush";
inline constexpr char TickPosition[] = "tickPosition";
inline constexpr char Tracking[] = "tracking";
inline constexpr char WorkflowLinkBrush[] = "WorkflowLinkBrush";

/// Asks one object, which may be null, for properties of the list above.
///
/// Much quicker than QObject::property(), which compares the name with dozens of declared ones to
/// find nothing most of the time: a class is asked once per name, and the object for the names of
/// its own when the reader is made. Not to be kept.
class Reader
{
public:
    explicit Reader(const QObject* object);

    /// Invalid when absent.
    QVariant value(const char* property) const;

    /// False when absent.
    bool flag(const char* property) const
    {
        const QVariant found = value(property);
        return found.isValid() && found.toBool();
    }

    /// Empty when absent.
    QString text(const char* property) const
    {
        const QVariant found = value(property);
        return found.isValid() ? found.toString() : QString();
    }

    /// The word by which the theme knows buttons and inputs like this one: that for "highlighted"
    /// if it is, else the text of "Status", "Order" or "ButtonType". Empty for most.
    QString kind() const;

private:
    const QObject* m_object;
    const QMetaObject* m_class = nullptr;
    QList<QByteArray> m_ownNames;
};

inline QVariant value(const QObject* object, const char* property)
{
    return Reader(object).value(property);
}

inline bool flag(const QObject* object, const char* property)
{
    return Reader(object).flag(property);
}

/// Of a tab bar or, where it has none, of the tab widget that owns it.
bool tabFlag(const QWidget* tabs, const char* property);

inline QString text(const QObject* object, const char* property)
{
    return Reader(object).text(property);
}

} // namespace BRELK::WidgetProperties
