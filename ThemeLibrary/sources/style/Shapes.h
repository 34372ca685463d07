#pragma once

#include "Helpers.h"
#include "StyleContext.h"

#include <QPainter>
#include <QPen>

/// How borders, boxes, lines, icons and texts are drawn: on whole pixels, and the same way by every
/// family. At a scale between whole ones boxes and lines move to the nearest pixels of the device,
/// and all borders and lines are equally thick.
namespace BRELK::Shapes {

/// `rect` shrunk by half a pixel, so that a border of one pixel fills whole pixels inside `rect`.
QRectF onPixels(const QRect& rect);

/// Where a border of one pixel runs inside `rect`; `pen` becomes as wide as that is on the device
/// of `painter`.
QRectF middleOfBorder(const QPainter& painter, const QRectF& rect, QPen& pen);

/// A pen of one pixel with square corners; none for a brush that paints nothing.
QPen borderPen(const QBrush& border);

/// The theme's radius of the size `name` in whole pixels.
int cornerRadius(ThemeNames::RadiusName name);

/// A box filled with `fill` inside a border of one pixel; either may be `Qt::NoBrush`.
void drawBox(const PaintContext& context, const QRectF& rect, int radius, const QBrush& fill,
             const QBrush& border, Helpers::StraightCornerFlags straightCorners = Helpers::None);

/// The ground inside the border of such a box.
void drawGround(const PaintContext& context, const QRect& rect, int radius, const QBrush& fill);

/// What of `rect` the device of `painter` can show: all of it on a device without bounds. For those
/// who draw many things one after another.
QRect visiblePart(const QPainter& painter, const QRect& rect);

/// A horizontal or vertical line of one pixel, both ends included.
void drawLine(const PaintContext& context, const QPoint& from, const QPoint& to,
              const QBrush& brush);

/// What `icon` shows in `brush`, or in its own colors for a brush that paints nothing, at `size`
/// logical pixels, as sharp as the painter's device can show it. The pictures that an application
/// gave its icon for the mode of the control are shown as they are.
QPixmap iconPixmap(const PaintContext& context, const QIcon& icon, const QBrush& brush,
                   const QSize& size, QIcon::State state = QIcon::Off);

/// That picture, drawn by the proxy in the middle of `rect`.
void drawIcon(const PaintContext& context, const QIcon& icon, const QBrush& brush,
              const QRect& rect, const QSize& size, QIcon::State state = QIcon::Off);

inline void drawIcon(const PaintContext& context, const QIcon& icon, const QBrush& brush,
                     const QRect& rect, int side)
{
    drawIcon(context, icon, brush, rect, QSize(side, side));
}

/// `text` in `brush`, drawn by the proxy; what does not fit is elided. Mnemonics are underlined as
/// the style hint for it says.
void drawText(const PaintContext& context, const QRect& rect, int flags, const QString& text,
              const QBrush& brush, Qt::TextElideMode elide = Qt::ElideRight);

/// Whether dark is read on `color` rather than white.
bool isLight(const QColor& color);

/// The side of a grip dot.
constexpr int GripSize = 2;

/// A row of grip dots that is seen on light and dark grounds: on that of the window if no `ground`
/// is given.
void drawGrips(const PaintContext& context, Qt::Orientation orientation, int from, int to,
               int across, const QColor& ground = {});

} // namespace BRELK::Shapes
