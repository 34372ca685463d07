#pragma once

#include "CommonUtilsGlobal.h"

#include <QBrush>
#include <QColor>
#include <QFlags>
#include <QIcon>
#include <QRectF>

class QPainter;

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

    /// Fills and strokes `rect` with the brush and pen of `painter`, rounding with `radius`
    /// (logical pixels) every corner that `straightCorners` does not name.
    ///
    /// A radius larger than half the shorter side is reduced to it; 0 or less draws a crisp
    /// rectangle. An empty or negative rectangle, or a null painter, draws nothing. The painter is
    /// left as it was found.
    static void drawRoundedRectShape(const QRectF& rect, int radius,
                                     StraightCornerFlags straightCorners, QPainter* painter);

    /// Draws the marker of an input that holds an error: a small triangle of `color` in the top
    /// right corner of `rect`, inside the curve of a corner of `radius`. In a right-to-left painter
    /// it sits in the top left corner.
    static void drawInputStatusIndicator(const QRectF& rect, int radius, const QColor& color,
                                         QPainter* painter);

    /// The brightness of `color` as the eye weighs its channels, from 0 (black) to 255 (white),
    /// regardless of alpha. An invalid color counts as black.
    static int getPerceivedBrightness(const QColor& color);

    /// `icon` with its `reference` color replaced by `replacement`, drawn on demand at whatever
    /// size and device pixel ratio is asked for. Other colors in the icon keep theirs, antialiased
    /// edges blend as before, and a gradient runs across the whole icon. With `disabled` the result
    /// is faded as well.
    ///
    /// The result keeps `icon.name()`; equal arguments give icons with the same `cacheKey()`. A
    /// null icon stays null.
    static QIcon getModifiedIconWithForegroundBrush(QIcon icon, QBrush reference,
                                                    QBrush replacement, bool disabled);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Helpers::StraightCornerFlags)

} // namespace BRELK
