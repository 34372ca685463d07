#pragma once

#include <QStringList>

/// The theme variables that the style can ask for, listed without their "Disabled" twins.
namespace AllThemeNames {

QStringList colors();

/// All brushes, also the composed ones of buttons and inputs.
QStringList brushes();

/// The brushes whose names are not composed.
QStringList plainBrushes();

/// The words that the names of controls begin with: "Button", "ToggleButton" and "Input".
QStringList families();

/// Those that they end with: "BackgroundBrush", "BorderBrush" and "ForegroundBrush".
QStringList parts();

/// The names of opacities and of factors.
QStringList numbers();

/// The words that stand for a kind of button or input, beginning with the empty one.
QStringList kinds();

/// The nine state words, as "UncheckedHover".
QStringList states();

} // namespace AllThemeNames
