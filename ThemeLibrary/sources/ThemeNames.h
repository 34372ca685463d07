#pragma once

#include <QString>

/// Every theme variable that the style and its style sheets ask for, and every word that a name is
/// composed of, each written once. docs/theme-names.md says where each is used; a test holds the
/// shipped themes to these lists.

#define VARN_THEME_COLORS(X)                                                                       \
    X(BackgroundColor)                                                                             \
    X(BackgroundSubLevel1Color)                                                                    \
    X(BackgroundSubLevel2Color)                                                                    \
    X(BackgroundUpLevel1Color)                                                                     \
    X(BackgroundUpLevel2Color)                                                                     \
    X(ForegroundColor)                                                                             \
    X(ForegroundSubLevel1Color)                                                                    \
    X(ForegroundUpLevel1Color)                                                                     \
    X(MainColor)                                                                                   \
    X(MainUpLevel1Color)                                                                           \
    X(Series01Color)                                                                               \
    X(Series02Color)                                                                               \
    X(Series03Color)                                                                               \
    X(Series04Color)                                                                               \
    X(Series05Color)                                                                               \
    X(Series06Color)                                                                               \
    X(Series07Color)                                                                               \
    X(Series08Color)                                                                               \
    X(Series09Color)                                                                               \
    X(Series10Color)                                                                               \
    X(Series11Color)                                                                               \
    X(StatusConfigColor)                                                                           \
    X(StatusDangerColor)

#define VARN_THEME_BRUSHES(X)                                                                      \
    X(BackgroundBrush)                                                                             \
    X(BackgroundSubLevel1Brush)                                                                    \
    X(BackgroundSubLevel2Brush)                                                                    \
    X(BackgroundUpLevel1Brush)                                                                     \
    X(CardBorderBrush)                                                                             \
    X(ControlBackgroundBrush)                                                                      \
    X(ControlBorderBrush)                                                                          \
    X(ExpanderHeaderBrush)                                                                         \
    X(ForegroundBrush)                                                                             \
    X(ForegroundDisabledBrush)                                                                     \
    X(ForegroundMouseOverBrush)                                                                    \
    X(GrooveBackgroundBrush)                                                                       \
    X(HighContrastBackgroundBrush)                                                                 \
    X(HighContrastBorderBrush)                                                                     \
    X(InputBackgroundActiveBrush)                                                                  \
    X(InputBackgroundBrush)                                                                        \
    X(InputBorderActiveBrush)                                                                      \
    X(InputBorderBrush)                                                                            \
    X(InputForegroundBrush)                                                                        \
    X(ItemViewAlternateBackgroundBrush)                                                            \
    X(ItemViewBackgroundBrush)                                                                     \
    X(ListBackgroundBrush)                                                                         \
    X(ListBorderBrush)                                                                             \
    X(MainBrush)                                                                                   \
    X(MainSubLevel1Brush)                                                                          \
    X(PrioritySecondarySubLevel1Brush)                                                             \
    X(PrioritySecondaryUpLevel1Brush)                                                              \
    X(SliderThumbNailHoverBrush)                                                                   \
    X(SliderThumbNailPressedBrush)                                                                 \
    X(SwitchEllipseBrush)                                                                          \
    X(SwitchForegroundCheckedEllipseBrush)                                                         \
    X(TabBackgroundActiveBrush)                                                                    \
    X(TabBackgroundBrush)                                                                          \
    X(TabBorderMouseOverBrush)                                                                     \
    X(TabForegroundMouseOverBrush)                                                                 \
    X(ButtonHighlightedUncheckedHoverForegroundBrush)                                              \
    X(ButtonUncheckedForegroundBrush)                                                              \
    X(ButtonUncheckedHoverForegroundBrush)                                                         \
    X(InputUncheckedBackgroundBrush)

/// The names of other variables, then the words of composed names: [toggle] "Button" [kind] check
/// state [pointer state] part, and "Input" [kind] check state [pointer state] part, where words in
/// brackets may be absent. "Highlighted" and the values of "Status", "Order" and "ButtonType" that
/// every theme defines are kinds.
#define VARN_THEME_WORDS(X)                                                                        \
    X(Opacity, RubberBandOpacity, "RubberBandOpacity")                                             \
    X(Radius, SmallSize, "SmallSize")                                                              \
    X(Radius, BaseSize, "BaseSize")                                                                \
    X(Radius, MediumSize, "MediumSize")                                                            \
    X(Radius, LargeSize, "LargeSize")                                                              \
    X(Font, SmallFont, "small")                                                                    \
    X(Font, BaseFont, "base")                                                                      \
    X(Font, MediumFont, "medium")                                                                  \
    X(Font, LargeFont, "large")                                                                    \
    X(Factor, LightForegroundFactor, "LightForegroundDisableFactor")                               \
    X(Factor, LightBackgroundFactor, "LightBackgroundDisableFactor")                               \
    X(Factor, DarkForegroundFactor, "DarkForegroundDisableFactor")                                 \
    X(Factor, DarkBackgroundFactor, "DarkBackgroundDisableFactor")                                 \
    X(Family, Button, "Button")                                                                    \
    X(Family, Input, "Input")                                                                      \
    X(Toggle, Toggle, "Toggle")                                                                    \
    X(Kind, Highlighted, "Highlighted")                                                            \
    X(Kind, Success, "Success")                                                                    \
    X(Kind, Warning, "Warning")                                                                    \
    X(Kind, Danger, "Danger")                                                                      \
    X(Kind, Info, "Info")                                                                          \
    X(Kind, Primary, "Primary")                                                                    \
    X(Kind, Secondary, "Secondary")                                                                \
    X(Kind, Tarrin, "Tarrin")                                                                      \
    X(Kind, UserConnector, "UserConnector")                                                        \
    X(CheckState, Default, "Default")                                                              \
    X(CheckState, Checked, "Checked")                                                              \
    X(CheckState, Unchecked, "Unchecked")                                                          \
    X(PointerState, Pressed, "Pressed")                                                            \
    X(PointerState, Hover, "Hover")                                                                \
    X(Part, BackgroundPart, "BackgroundBrush")                                                     \
    X(Part, BorderPart, "BorderBrush")                                                             \
    X(Part, ForegroundPart, "ForegroundBrush")                                                     \
    X(Twin, Disabled, "Disabled")

namespace BRELK::ThemeNames {

/// What a name names.
enum class Group {
    Color,
    Brush,
    Opacity,
    Radius,
    Font,
    Factor, ///< of disabled colors
    Family,
    Toggle,
    Kind,
    CheckState,
    PointerState,
    Part,
    Twin ///< the ending of what a disabled widget asks for
};

/// A name, and its place in the list that it stands in: a value is found by that sooner than by
/// the text.
template <Group>
struct Name
{
    QLatin1String text;
    int place;

    operator QString() const { return text; }
};

using ColorName = Name<Group::Color>;
using BrushName = Name<Group::Brush>;
using RadiusName = Name<Group::Radius>;
using FontName = Name<Group::Font>;

/// A word, as one of a list of all.
struct Word
{
    Group group;
    QLatin1String text;
};

#define VARN_THEME_PLACE(name) name,
#define VARN_THEME_WORD_PLACE(group, name, text) name,
#define VARN_THEME_LITERAL(text) QLatin1String(text, int(sizeof(text)) - 1)
#define VARN_THEME_TEXT(name) VARN_THEME_LITERAL(#name),
#define VARN_THEME_WORD(group, name, text) Word{Group::group, VARN_THEME_LITERAL(text)},
#define VARN_THEME_COLOR_NAME(name)                                                                \
    inline constexpr ColorName name{Colors[int(ColorPlace::name)], int(ColorPlace::name)};
#define VARN_THEME_BRUSH_NAME(name)                                                                \
    inline constexpr BrushName name{Brushes[int(BrushPlace::name)], int(BrushPlace::name)};
#define VARN_THEME_WORD_NAME(group, name, text)                                                    \
    inline constexpr Name<Group::group> name{VARN_THEME_LITERAL(text), int(WordPlace::name)};

enum class ColorPlace { VARN_THEME_COLORS(VARN_THEME_PLACE) };
enum class BrushPlace { VARN_THEME_BRUSHES(VARN_THEME_PLACE) };
enum class WordPlace { VARN_THEME_WORDS(VARN_THEME_WORD_PLACE) };

inline constexpr QLatin1String Colors[] = {VARN_THEME_COLORS(VARN_THEME_TEXT)};
inline constexpr QLatin1String Brushes[] = {VARN_THEME_BRUSHES(VARN_THEME_TEXT)};
inline constexpr Word Words[] = {VARN_THEME_WORDS(VARN_THEME_WORD)};

VARN_THEME_COLORS(VARN_THEME_COLOR_NAME)
VARN_THEME_BRUSHES(VARN_THEME_BRUSH_NAME)
VARN_THEME_WORDS(VARN_THEME_WORD_NAME)

#undef VARN_THEME_PLACE
#undef VARN_THEME_WORD_PLACE
#undef VARN_THEME_LITERAL
#undef VARN_THEME_TEXT
#undef VARN_THEME_WORD
#undef VARN_THEME_COLOR_NAME
#undef VARN_THEME_BRUSH_NAME
#undef VARN_THEME_WORD_NAME
#undef VARN_THEME_COLORS
#undef VARN_THEME_BRUSHES
#undef VARN_THEME_WORDS

/// The name of the twin that a disabled widget asks for.
inline QString twin(const QString& name)
{
    return name + Disabled.text;
}

} // namespace BRELK::ThemeNames
