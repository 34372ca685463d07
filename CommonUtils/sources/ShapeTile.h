#pragma once

#include "Helpers.h"

#include <QBrush>
#include <QImage>
#include <QPainterPath>
#include <QPen>
#include <QRectF>
#include <QVector>

class QPainter;

namespace BRELK {

/// A rectangle with round and square corners, in logical pixels.
struct RoundedShape
{
    QRectF rect;
    qreal radius = 0; ///< at most half the shorter side
    Helpers::StraightCornerFlags straightCorners;

    QPainterPath path() const;
};

/// `pen`, a hair wider if it is one pixel of the device wide: the toolkit's rasterizer draws such
/// lines in a quicker way that leaves curves pale.
QPen withFullCurves(const QPen& pen, const QTransform& toDevice);

/// Where a shape lies on one axis of the device.
struct TileAxis
{
    /// For edges at `low` and `high` (device pixels), a pen reaching `penReach` to both sides of
    /// them, and corners of `radius`. A `stretchable` tile is as short as the corners allow.
    TileAxis(qreal low, qreal high, qreal penReach, qreal radius, bool stretchable);

    int first = 0; ///< first pixel that the shape touches
    int size = 0; ///< pixels of the tile
    int nearCorner = 0; ///< pixels before the stretched one; all if there is none
    int stretch = 0; ///< pixels by which the shape is longer than the tile
    int edge = 0; ///< distance of the low edge from the start of the tile, in subpixels
    int length = 0; ///< distance of the edges in the tile, in subpixels

    /// Pixels of the shape between its corners.
    int between() const { return stretch > 0 ? stretch + 1 : 0; }

    int farCorner() const { return size - nearCorner - (stretch > 0 ? 1 : 0); }

    /// The place in the shape of pixel `at` of the tile.
    int placed(int at) const { return first + at + (at > nearCorner ? stretch : 0); }
};

/// What makes two tiles the same.
struct TileKey
{
    QPen pen;
    QBrush brush;
    qreal radius = 0;
    qreal horizontalScale = 1;
    qreal verticalScale = 1;
    int left = 0; ///< `TileAxis::edge` and `length`
    int top = 0;
    int width = 0;
    int height = 0;
    Helpers::StraightCornerFlags straightCorners;

    friend bool operator==(const TileKey& one, const TileKey& other);
};

uint qHash(const TileKey& key, uint seed = 0);

/// A picture of a rounded shape, as the painter draws it with antialiasing, that is drawn at any
/// size by copying its corners and filling the straight parts between them.
class ShapeTile
{
public:
    ShapeTile(const TileKey& key, const TileAxis& horizontal, const TileAxis& vertical);

    /// Draws the shape; the painter's coordinates are those of the device.
    void draw(QPainter* painter, const TileAxis& horizontal, const TileAxis& vertical) const;

    int byteCount() const;

private:
    struct Stripe
    {
        int start;
        int size;
        QColor color;
    };

    template <class PixelAt>
    static QVector<Stripe> stripes(int start, int end, PixelAt pixelAt);

    QImage m_image;
    QVector<Stripe> m_columns; ///< between the upper and the lower corners
    QVector<Stripe> m_rows; ///< between the left and the right corners, but not between all four
};

} // namespace BRELK
