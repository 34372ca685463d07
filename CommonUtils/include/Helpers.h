#pragma once

#include "CommonUtilsGlobal.h"

#include <QBrush>
#include <QColor>
#include <QFlags>
#include <QIcon>
#include <QRectF>

class QPainter;
class QPen;

namespace BRELK {

/// Drawing and color helpers shared by the widget style and by widget libraries that draw like it.
///
/// All functions are to be called on the GUI thread, keep nothing of their arguments alive but what
/// Qt's implicitly shared values share, and never throw.
class VARN_COMMON_UTILS_EXPORT Helpers
{
public:
    /// Names the corners of a rectangle that are drawn square. `None` rounds all four.
    enum StraightCornerFlag : unsigned {
        TopLeftCorner = 1,
        TopRightCorner = 2,
        BottomRightCorner = 4,
        BottomLeftCorner = 8,
        TopCorners = TopLeftCorner | TopRightCorner,
        BottomCorners = BottomRightCorner | BottomLeftCorner,
        LeftCorners = TopLeftCorner | BottomLeftCorner,
        RightCorners = TopRightCorner | BottomRightCorner,
        AllCorners = TopCorners | BottomCorners,
        None = 16
    };
    Q_DECLARE_FLAGS(StraightCornerFlags, StraightCornerFlag)

    Helpers() = delete;

    /// Fills and strokes `rect` with the brush and pen of `painter`, antialiased, rounding with
    /// `radius` (logical pixels) every corner that `straightCorners` does not name.
    ///
    /// A pen 1 wide and a rectangle whose edges lie on half pixels give borders of exactly one
    /// pixel, as strong in the curves as along the sides; square corners are sharp whatever joins
    /// the pen makes. A radius larger than half the shorter side is reduced to it; 0 or less makes
    /// all corners square. An empty, negative or infinite rectangle, or a null or inactive painter,
    /// draws nothing. The painter is left as it was found.
    ///
    /// On images, pixmaps and widgets this is several times as fast as `QPainter::drawRoundedRect`
    /// unless the painter is rotated, translucent (when there is both pen and brush) or composes
    /// otherwise than by default, the pen is wider than 16 or not of one color, or the brush is a
    /// texture, a pattern or a gradient in logical coordinates.
    static void drawRoundedRectShape(const QRectF& rect, int radius,
                                     StraightCornerFlags straightCorners, QPainter* painter);

    /// As above, with `pen` and `brush` in place of those of `painter`: quicker than setting them
    /// for one shape.
    static void drawRoundedBox(const QRectF& rect, int radius, StraightCornerFlags straightCorners,
                               const QPen& pen, const QBrush& brush, QPainter* painter);

    /// Marks an input that holds an error: fills the top right corner of `rect`, a shape with
    /// corners of `radius` (logical pixels), with `color`, like a fold. Any radius leaves about as
    /// much of it. With a painter whose layout direction is right-to-left it is the top left
    /// corner. An empty rectangle, an invalid color, or a null or inactive painter, draws nothing.
    static void drawInputStatusIndicator(const QRectF& rect, int radius, const QColor& color,
                                         QPainter* painter);

    /// The brightness of `color` as the eye weighs its channels, from 0 (black) to 255 (white),
    /// regardless of alpha. An invalid color counts as black.
    static int getPerceivedBrightness(const QColor& color);

    /// `icon` with the color of `reference`, a solid brush, replaced by `replacement`; drawn on
    /// demand at whatever size, state and device pixel ratio is asked for.
    ///
    /// Other colors in the icon keep theirs. Where the reference blends with transparency or with
    /// another color, as antialiased edges do, the replacement blends in the same shares. A
    /// gradient or texture runs across the whole icon. A reference that is not solid, or an empty
    /// replacement, leaves the colors alone. With `disabled`, as in the mode `QIcon::Disabled`, the
    /// icon is faded, and its other colors turn gray. Pixmaps that were added to the icon for a
    /// mode other than `QIcon::Normal` are shown in it as they are.
    ///
    /// The result keeps `icon.name()`, follows the icon theme if `icon` was found in it, and asks
    /// `icon` whenever it is drawn, so one that changes is seen changing.
    /// Equal arguments give icons with the same `cacheKey()` as long as a bounded cache holds them,
    /// so the function may be called whenever something is painted. A null icon stays null.
    static QIcon getModifiedIconWithForegroundBrush(QIcon icon, QBrush reference,
                                                    QBrush replacement, bool disabled);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Helpers::StraightCornerFlags)

} // namespace BRELK
