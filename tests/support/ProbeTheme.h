#pragma once

#include <QtWidgets>

class QFont;
class QImage;

/// A theme in which every brush and every color has a color of its own, so that a painted color is
/// a name.
///
/// It is published without files. Lookups freeze the first theme they see, so publish one at the
/// start of `initTestCase`, and once per process. The names are those that the style asks for, each
/// with its "Disabled" twin.
namespace ProbeTheme {

/// Corner radii and font pixel sizes, all different, by size.
constexpr int SmallRadius = 2;
constexpr int BaseRadius = 4;
constexpr int MediumRadius = 6;
constexpr int LargeRadius = 8;
constexpr int SmallFont = 8;
constexpr int BaseFont = 12;
constexpr int MediumFont = 20;
constexpr int LargeFont = 24;

/// Gives the application a font of 16 pixels in which all characters are boxes half as wide as they
/// are high, on every machine: three quarters of the height stand above the base line. To be called
/// before the theme is published.
void useFont();

/// Publishes the theme, and finds the library's icons in place of an icon theme.
void publish();

/// Publishes a theme that has no names at all.
void publishEmpty();

/// A palette in which every role of every group has a color of its own: "palette.Text",
/// "palette.Disabled.Text", "palette.Inactive.Text".
QPalette palette();

/// A picture for icons of 16 pixels also on fine screens, in the color that icons are recolored
/// from, or in another one.
QPixmap pixmap(const QColor& color = QColor(0xE5, 0xEE, 0xF4));

/// The upper half of it, for what is checked.
QPixmap pixmapOn();

/// The name of the theme brush, theme color or palette role that has this color. A translucent one
/// is followed by its alpha ("MainColor@153"), an unknown one is "#rrggbb", a brush without color
/// "none".
QByteArray nameOf(const QColor& color);
QByteArray nameOf(const QBrush& brush);

/// The name of the color that most opaque pixels of `picture` have: what an icon was recolored
/// with.
QByteArray nameOf(const QImage& picture);

/// The name of the library's icon that has this shape in whatever colors; "own" of what `pixmap()`
/// gives, "own-on" of what `pixmapOn()` does, "unknown" of other pictures.
QByteArray iconOf(const QImage& picture);

/// "small", "base", "medium" or "large" with "bold" or "italic" after it, or the pixel size if no
/// theme font has it.
QByteArray nameOf(const QFont& font);

} // namespace ProbeTheme
