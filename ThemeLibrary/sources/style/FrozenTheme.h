#pragma once

#include "ThemeNames.h"

#include <QBrush>
#include <QColor>

/// What BaseStyle::getBrush() and getColor() answer to the names that painting asks for over and
/// over, each looked up once: the theme is frozen at its first use.
namespace BRELK::FrozenTheme {

const QBrush& brush(ThemeNames::BrushName name, bool enabled);
const QColor& color(ThemeNames::ColorName name, bool enabled);

} // namespace BRELK::FrozenTheme
