#pragma once

#include <QPalette>

/// Judges palettes that a program, or the desktop for it, sets while it wears a theme: they are
/// taken as a whole or not at all.
namespace BRELK::ProgramPalette {

/// The palette of a theme for programs that take all colors from it. What is derived by factors
/// that suit words on the theme's grounds may be lost on others: disabled words that are selected,
/// links.
QPalette withReadableGroups(QPalette palette);

/// Whether `palette` can stand in for `themed`: it keeps the grounds and words of the theme or
/// brings all of its own, and its words stand out from its grounds.
bool isWhole(const QPalette& palette, const QPalette& themed);

/// Widgets that were given colors of the palette `before` get those of `after`.
void handOn(const QPalette& before, const QPalette& after);

} // namespace BRELK::ProgramPalette
