#pragma once

#include "StyleContext.h"

/// The colors of rows: what the theme, the model and the application have to say in them.
namespace BRELK::ItemColors {

/// Words on a selection are those that the palette has for the one that is painted.
QPalette::ColorGroup group(const StyleContext& context);
QBrush selection(const StyleContext& context);
/// Of words, marks and arrows of an item, as they are read on its ground.
QBrush words(const StyleContext& context);

} // namespace BRELK::ItemColors
