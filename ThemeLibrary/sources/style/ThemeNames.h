#pragma once

#include <QString>

class QBrush;
class QColor;

/// Every theme variable that the style asks for, each written once. docs/theme-names.md says where
/// each is used; a test holds the shipped themes to these lists.
///
/// X takes the name of the function that gives the variable's name, and the name itself. A name's
/// ending tells whether it is a color or a brush.

#define VARN_THEME_COLORS(X)                                                                       \
    X(backgroundColor, "BackgroundColor")                                                          \
    X(backgroundSubLevel1Color, "BackgroundSubLevel1Color")                                        \
    X(backgroundSubLevel2Color, "BackgroundSubLevel2Color")                                        \
    X(backgroundUpLevel1Color, "BackgroundUpLevel1Color")                                          \
    X(backgroundUpLevel2Color, "BackgroundUpLevel2Color")                                          \
    X(foregroundColor, "ForegroundColor")                                                          \
    X(foregroundSubLevel1Color, "ForegroundSubLevel1Color")                                        \
    X(foregroundUpLevel1Color, "ForegroundUpLevel1Color")                                          \
    X(mainColor, "MainColor")                                                                      \
    X(mainUpLevel1Color, "MainUpLevel1Color")                                                      \
    X(series01Color, "Series01Color")                                                              \
    X(series02Color, "Series02Color")                                                              \
    X(series03Color, "Series03Color")                                                              \
    X(series04Color, "Series04Color")                                                              \
    X(series05Color, "Series05Color")                                                              \
    X(series06Color, "Series06Color")                                                              \
    X(series07Color, "Series07Color")                                                              \
    X(series08Color, "Series08Color")                                                              \
    X(series09Color, "Series09Color")                                                              \
    X(series10Color, "Series10Color")                                                              \
    X(series11Color, "Series11Color")                                                              \
    X(statusConfigColor, "StatusConfigColor")                                                      \
    X(statusDangerColor, "StatusDangerColor")

/// The brushes whose names are not composed.
#define VARN_THEME_BRUSHES(X)                                                                      \
    X(backgroundBrush, "BackgroundBrush")                                                          \
    X(backgroundSubLevel1Brush, "BackgroundSubLevel1Brush")                                        \
    X(backgroundSubLevel2Brush, "BackgroundSubLevel2Brush")                                        \
    X(backgroundUpLevel1Brush, "BackgroundUpLevel1Brush")                                          \
    X(cardBorderBrush, "CardBorderBrush")                                                          \
    X(controlBackgroundBrush, "ControlBackgroundBrush")                                            \
    X(controlBorderBrush, "ControlBorderBrush")                                                    \
    X(expanderHeaderBrush, "ExpanderHeaderBrush")                                                  \
    X(foregroundBrush, "ForegroundBrush")                                                          \
    X(foregroundDisabledBrush, "ForegroundDisabledBrush")                                          \
    X(foregroundMouseOverBrush, "ForegroundMouseOverBrush")                                        \
    X(grooveBackgroundBrush, "GrooveBackgroundBrush")                                              \
    X(highContrastBackgroundBrush, "HighContrastBackgroundBrush")                                  \
    X(highContrastBorderBrush, "HighContrastBorderBrush")                                          \
    X(inputBackgroundActiveBrush, "InputBackgroundActiveBrush")                                    \
    X(inputBackgroundBrush, "InputBackgroundBrush")                                                \
    X(inputBorderActiveBrush, "InputBorderActiveBrush")                                            \
    X(inputBorderBrush, "InputBorderBrush")                                                        \
    X(inputForegroundBrush, "InputForegroundBrush")                                                \
    X(itemViewAlternateBackgroundBrush, "ItemViewAlternateBackgroundBrush")                        \
    X(itemViewBackgroundBrush, "ItemViewBackgroundBrush")                                          \
    X(listBackgroundBrush, "ListBackgroundBrush")                                                  \
    X(listBorderBrush, "ListBorderBrush")                                                          \
    X(mainBrush, "MainBrush")                                                                      \
    X(mainSubLevel1Brush, "MainSubLevel1Brush")                                                    \
    X(prioritySecondarySubLevel1Brush, "PrioritySecondarySubLevel1Brush")                          \
    X(prioritySecondaryUpLevel1Brush, "PrioritySecondaryUpLevel1Brush")                            \
    X(sliderThumbNailHoverBrush, "SliderThumbNailHoverBrush")                                      \
    X(sliderThumbNailPressedBrush, "SliderThumbNailPressedBrush")                                  \
    X(switchEllipseBrush, "SwitchEllipseBrush")                                                    \
    X(switchForegroundCheckedEllipseBrush, "SwitchForegroundCheckedEllipseBrush")                  \
    X(tabBackgroundActiveBrush, "TabBackgroundActiveBrush")                                        \
    X(tabBackgroundBrush, "TabBackgroundBrush")                                                    \
    X(tabBorderMouseOverBrush, "TabBorderMouseOverBrush")                                          \
    X(tabForegroundMouseOverBrush, "TabForegroundMouseOverBrush")

/// Brushes of the composed families that are also asked for by their whole names.
#define VARN_THEME_COMPOSED_BRUSHES(X)                                                             \
    X(buttonHighlightedUncheckedHoverForegroundBrush,                                              \
      "ButtonHighlightedUncheckedHoverForegroundBrush")                                            \
    X(buttonUncheckedForegroundBrush, "ButtonUncheckedForegroundBrush")                            \
    X(buttonUncheckedHoverForegroundBrush, "ButtonUncheckedHoverForegroundBrush")                  \
    X(inputUncheckedBackgroundBrush, "InputUncheckedBackgroundBrush")

#define VARN_THEME_OPACITIES(X) X(rubberBandOpacity, "RubberBandOpacity")

#define VARN_THEME_RADII(X)                                                                        \
    X(smallSize, "SmallSize")                                                                      \
    X(baseSize, "BaseSize")                                                                        \
    X(mediumSize, "MediumSize")                                                                    \
    X(largeSize, "LargeSize")

#define VARN_THEME_FONTS(X)                                                                        \
    X(smallFont, "small")                                                                          \
    X(baseFont, "base")                                                                            \
    X(mediumFont, "medium")                                                                        \
    X(largeFont, "large")

/// The words of composed names: [toggle] "Button" [kind] check state [pointer state] part, and
/// "Input" [kind] check state [pointer state] part; words in brackets may be absent.
#define VARN_THEME_FAMILIES(X)                                                                     \
    X(button, "Button")                                                                            \
    X(input, "Input")

#define VARN_THEME_TOGGLES(X) X(toggle, "Toggle")

/// "Highlighted", then the values of "Status", "Order" and "ButtonType" that every theme defines.
#define VARN_THEME_KINDS(X)                                                                        \
    X(highlighted, "Highlighted")                                                                  \
    X(success, "Success")                                                                          \
    X(warning, "Warning")                                                                          \
    X(danger, "Danger")                                                                            \
    X(info, "Info")                                                                                \
    X(primary, "Primary")                                                                          \
    X(secondary, "Secondary")                                                                      \
    X(tarrin, "Tarrin")                                                                            \
    X(userConnector, "UserConnector")

#define VARN_THEME_CHECK_STATES(X)                                                                 \
    X(byDefault, "Default")                                                                        \
    X(checked, "Checked")                                                                          \
    X(unchecked, "Unchecked")

#define VARN_THEME_POINTER_STATES(X)                                                               \
    X(pressed, "Pressed")                                                                          \
    X(hover, "Hover")

#define VARN_THEME_PARTS(X)                                                                        \
    X(backgroundPart, "BackgroundBrush")                                                           \
    X(borderPart, "BorderBrush")                                                                   \
    X(foregroundPart, "ForegroundBrush")

/// What a name ends with that a disabled widget asks for.
#define VARN_THEME_TWINS(X) X(disabledTwin, "Disabled")

/// The names as functions, so that a misspelt one does not compile. Each returns static data:
/// naming a variable allocates nothing.
namespace BRELK::ThemeNames {

/// The name of a variable that holds a `Value`, with its place among all of them: `FrozenTheme`
/// finds the value by that sooner than by the name.
template <class Value>
struct Name
{
    int place;
    QString (*text)();

    operator QString() const { return text(); }
};

#define VARN_THEME_PLACE(function, text) function,

enum class ColorPlace { VARN_THEME_COLORS(VARN_THEME_PLACE) Count };
enum class BrushPlace {
    VARN_THEME_BRUSHES(VARN_THEME_PLACE) VARN_THEME_COMPOSED_BRUSHES(VARN_THEME_PLACE) Count
};

#undef VARN_THEME_PLACE

#define VARN_THEME_VALUE(function, text, Value, Place)                                             \
    inline Name<Value> function()                                                                  \
    {                                                                                              \
        return {int(Place::function), [] { return QString(QStringLiteral(text)); }};               \
    }
#define VARN_THEME_COLOR(function, text) VARN_THEME_VALUE(function, text, QColor, ColorPlace)
#define VARN_THEME_BRUSH(function, text) VARN_THEME_VALUE(function, text, QBrush, BrushPlace)

VARN_THEME_COLORS(VARN_THEME_COLOR)
VARN_THEME_BRUSHES(VARN_THEME_BRUSH)
VARN_THEME_COMPOSED_BRUSHES(VARN_THEME_BRUSH)

#undef VARN_THEME_BRUSH
#undef VARN_THEME_COLOR
#undef VARN_THEME_VALUE

#define VARN_THEME_NAME(function, text)                                                            \
    inline QString function()                                                                      \
    {                                                                                              \
        return QStringLiteral(text);                                                               \
    }

VARN_THEME_OPACITIES(VARN_THEME_NAME)
VARN_THEME_RADII(VARN_THEME_NAME)
VARN_THEME_FONTS(VARN_THEME_NAME)
VARN_THEME_FAMILIES(VARN_THEME_NAME)
VARN_THEME_TOGGLES(VARN_THEME_NAME)
VARN_THEME_KINDS(VARN_THEME_NAME)
VARN_THEME_CHECK_STATES(VARN_THEME_NAME)
VARN_THEME_POINTER_STATES(VARN_THEME_NAME)
VARN_THEME_PARTS(VARN_THEME_NAME)
VARN_THEME_TWINS(VARN_THEME_NAME)

#undef VARN_THEME_NAME

} // namespace BRELK::ThemeNames
