#include "DeviceCoordinates.h"
#include "Helpers.h"
#include "Kept.h"
#include "ShapeTile.h"

#include <QPainter>

#include <cmath>

namespace BRELK {

namespace {

/// Larger tiles, in pixels, and those of wider pens are cheaper drawn than kept.
constexpr int LargestTile = 1 << 16;
constexpr qreal WidestPen = 16;

/// Up to this many pixels copying the whole shape is quicker than stretching a smaller tile.
constexpr qreal LargestWholeShape = 1 << 12;

bool isVisible(const QPen& pen)
{
    return pen.style() != Qt::NoPen && pen.brush().style() != Qt::NoBrush;
}

bool isGradientOfShape(const QBrush& brush)
{
    return brush.gradient()
           && (brush.gradient()->coordinateMode() == QGradient::ObjectBoundingMode
               || brush.gradient()->coordinateMode() == QGradient::ObjectMode);
}

/// Whether the shape's picture depends on nothing but what a tile's key holds.
bool isTileable(const QPainter& painter, const QPen& pen, const QBrush& brush)
{
    if (isVisible(pen) && (pen.brush().style() != Qt::SolidPattern || pen.widthF() > WidestPen))
        return false;
    return brush.style() <= Qt::SolidPattern
           || (isGradientOfShape(brush) && painter.brushOrigin().isNull());
}

const ShapeTile& tileFor(const TileKey& key, const TileAxis& horizontal, const TileAxis& vertical)
{
    static Kept::Store<TileKey, ShapeTile> sTiles;
    if (const ShapeTile* known = sTiles.find(key))
        return *known;
    auto tile = std::make_unique<ShapeTile>(key, horizontal, vertical);
    const int bytes = tile->byteCount();
    return *sTiles.keep(key, std::move(tile), bytes);
}

/// Draws the shape from a tile; false if it has to be drawn as a path.
bool drawFromTile(const RoundedShape& shape, const QPen& shapePen, const QBrush& brush,
                  const DeviceCoordinates& device, QPainter* painter)
{
    // Of a translucent shape the ground is seen through its border.
    const bool isLayered = isVisible(shapePen) && brush.style() != Qt::NoBrush;
    if (!device.canCopy() || !isTileable(*painter, shapePen, brush)
        || (isLayered && painter->opacity() < 1))
        return false;
    static const QPen sNoPen(Qt::NoPen);
    const QPen& pen = isVisible(shapePen) ? shapePen : sNoPen;
    const QRectF rect = device.map(shape.rect);
    const QSizeF reach = device.reach(pen);
    const bool stretchable = brush.style() <= Qt::SolidPattern && pen.style() <= Qt::SolidLine
                             && rect.width() * rect.height() > LargestWholeShape;
    if (!DeviceCoordinates::isNear(
            rect.adjusted(-reach.width(), -reach.height(), reach.width(), reach.height())))
        return false;

    TileAxis horizontal(rect.left(), rect.right(), reach.width(),
                        shape.radius * device.horizontalScale(), stretchable);
    TileAxis vertical(rect.top(), rect.bottom(), reach.height(),
                      shape.radius * device.verticalScale(), stretchable);
    const qint64 pixelCount = qint64(horizontal.size) * vertical.size;
    if (pixelCount == 0) // smaller than can be told from nothing
        return true;
    if (pixelCount > LargestTile)
        return false;
    const ShapeTile& tile = tileFor({pen, brush, shape.radius, device.horizontalScale(),
                                     device.verticalScale(), horizontal.edge, vertical.edge,
                                     horizontal.length, vertical.length, shape.straightCorners},
                                    horizontal, vertical);
    const DevicePixels pixels(*painter, device);
    horizontal.first += pixels.origin().x();
    vertical.first += pixels.origin().y();
    tile.draw(painter, horizontal, vertical);
    return true;
}

} // namespace

void Helpers::drawRoundedRectShape(const QRectF& rect, int radius,
                                   StraightCornerFlags straightCorners, QPainter* painter)
{
    if (painter && painter->isActive())
        drawRoundedBox(rect, radius, straightCorners, painter->pen(), painter->brush(), painter);
}

void Helpers::drawRoundedBox(const QRectF& rect, int radius, StraightCornerFlags straightCorners,
                             const QPen& pen, const QBrush& brush, QPainter* painter)
{
    const bool drawable = rect.width() > 0 && rect.height() > 0 && std::isfinite(rect.x())
                          && std::isfinite(rect.y()) && std::isfinite(rect.right())
                          && std::isfinite(rect.bottom());
    if (!drawable || !painter || !painter->isActive())
        return;
    const qreal largestRadius = std::min(rect.width(), rect.height()) / 2;
    RoundedShape shape{rect, qBound(0.0, qreal(radius), largestRadius),
                       straightCorners & AllCorners};
    if (radius <= 0)
        shape.straightCorners = AllCorners;
    const DeviceCoordinates device(*painter);
    if (drawFromTile(shape, pen, brush, device, painter))
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(device.isRaster() ? withFullCurves(pen, device.transform()) : pen);
    painter->setBrush(brush);
    painter->drawPath(shape.path());
    painter->restore();
}

} // namespace BRELK
