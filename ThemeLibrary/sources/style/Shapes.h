#pragma once

#include "Helpers.h"
#include "StyleContext.h"

#include <QPainter>
#include <QPen>

/// How borders, boxes, lines, icons and texts are drawn: on whole pixels, and the same way by every
/// family. At a scale between whole ones boxes and lines move to the nearest pixels of the device,
/// and all borders and lines are equally thick.
namespace BRELK::Shapes {

/// A border of one pixel: the line through its middle, and the pen that draws it.
struct Border
{
    QRectF line;
    QPen pen;
};

/// The border inside `rect` on the device of `painter`. A brush that paints nothing has no pen, and
/// the line runs along the edges of `rect`. All boxes are told by their outer edges.
Border borderInside(const QPainter& painter, const QRectF& rect, const QBrush& brush);

/// The theme's radius of the size `name` in whole pixels.
int cornerRadius(ThemeNames::RadiusName name);

/// A box filled with `fill` inside a border of one pixel; either may be `Qt::NoBrush`.
void drawBox(const PaintContext& context, const QRectF& rect, int radius, const QBrush& fill,
             const QBrush& border, Helpers::StraightCornerFlags straightCorners = Helpers::None);

/// A second border inside that of such a box: who has the focus is seen without colors too.
void drawInnerBorder(const PaintContext& context, const QRect& rect, int radius,
                     const QBrush& border,
                     Helpers::StraightCornerFlags straightCorners = Helpers::None);

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
