#pragma once

#include "StyleContext.h"

/// Colors that are the application's and not the theme's: it gave them to a control, by its palette
/// or a style sheet, to a window or to all. They win over the theme's, and words are read on the
/// ground that they stand on.
namespace BRELK::OwnColors {

/// Whether `role` of the option's palette is the application's.
bool has(const StyleContext& context, QPalette::ColorRole role);

/// Whether the application gave `role` a brush of its own for all of its windows.
bool isForAll(const BaseStyle& style, QPalette::ColorRole role);

/// Whether the application gave `role` to just this control, or to this one item of it: it means
/// what it says.
bool isForThis(const StyleContext& context, QPalette::ColorRole role);

/// Whether a rule of a style sheet for the control's state gave it the brush.
bool isOfState(const StyleContext& context, QPalette::ColorRole role);

/// What a surface is filled with: the application's brush for `role`, else `themed`.
QBrush ground(const StyleContext& context, QPalette::ColorRole role, const QBrush& themed);

/// The application's ground for a button or an input, deeper under the mouse and when pressed.
/// `Qt::NoBrush` if it gave none.
QBrush controlGround(const StyleContext& context);

/// The words of `role` on a surface that is filled with `ground(context, groundRole, themed)`.
QBrush words(const StyleContext& context, QPalette::ColorRole role, QPalette::ColorRole groundRole,
             const QBrush& themed);

/// What is drawn on the window in `themed`. Deliberate: where that is not seen on the application's
/// own color, it takes that of the words there.
QBrush onWindow(const StyleContext& context, const QBrush& themed);

/// The contrast to its ground that is left to an application which chose a color for words.
constexpr double Readable = 2;

/// The first of these brushes that has the contrast `least` to `ground`, else black or white.
QBrush readable(const QBrush& ground, std::initializer_list<QBrush> brushes,
                double least = Readable);

/// `ground` deeper by `percent` of its lightness: lighter if it is dark, darker if it is light.
QBrush deeper(const QBrush& ground, int percent);

} // namespace BRELK::OwnColors
