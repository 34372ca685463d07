#include "Helpers.h"
#include "ShapeTile.h"

#include <QCache>
#include <QPaintEngine>
#include <QPainter>

#include <cmath>

namespace BRELK {

namespace {

constexpr int TileCacheBytes = 4 << 20;

/// Larger tiles, in pixels, and those of wider pens are cheaper drawn than kept.
constexpr int LargestTile = 1 << 16;
constexpr qreal WidestPen = 16;

/// Up to this many pixels copying the whole shape is quicker than stretching a smaller tile.
constexpr qreal LargestWholeShape = 1 << 12;

/// Tiles place their pixels with whole numbers, as Qt's rasterizer does, which overflow not far
/// beyond.
constexpr qreal FarthestPixel = 1 << 15;

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
bool isTileable(const QPainter& painter, const QPen& pen, const QBrush& brush,
                const QTransform& transform)
{
    const QPaintEngine* engine = painter.paintEngine();
    if (engine->type() != QPaintEngine::Raster || transform.type() > QTransform::TxScale
        || transform.m11() <= 0 || transform.m22() <= 0 || painter.opacity() < 1
        || painter.compositionMode() != QPainter::CompositionMode_SourceOver)
        return false;
    if (isVisible(pen) && (pen.brush().style() != Qt::SolidPattern || pen.widthF() > WidestPen))
        return false;
    return brush.style() <= Qt::SolidPattern
           || (isGradientOfShape(brush) && painter.brushOrigin().isNull());
}

bool isAlmostWhole(qreal number)
{
    constexpr qreal Tolerance = 1e-6;
    return std::abs(number - std::round(number)) < Tolerance;
}

/// Makes the painter's coordinates device pixels.
class DeviceCoordinates
{
public:
    DeviceCoordinates(QPainter* painter, const QTransform& deviceTransform)
        : m_painter(painter)
        , m_world(painter->worldTransform())
        , m_enabled(painter->worldMatrixEnabled())
    {
        const QTransform beneath =
            m_enabled ? m_world.inverted() * deviceTransform : deviceTransform;
        m_painter->setWorldTransform(beneath.inverted());
    }

    ~DeviceCoordinates()
    {
        m_painter->setWorldTransform(m_world);
        m_painter->setWorldMatrixEnabled(m_enabled);
    }

    Q_DISABLE_COPY_MOVE(DeviceCoordinates)

private:
    QPainter* m_painter;
    QTransform m_world;
    bool m_enabled;
};

const ShapeTile& tileFor(const TileKey& key, const TileAxis& horizontal, const TileAxis& vertical)
{
    static QCache<TileKey, ShapeTile> sTiles(TileCacheBytes);
    if (const ShapeTile* known = sTiles.object(key))
        return *known;
    auto* tile = new ShapeTile(key, horizontal, vertical);
    sTiles.insert(key, tile, tile->byteCount());
    return *tile;
}

/// Draws the shape from a tile; false if it has to be drawn as a path.
bool drawFromTile(const RoundedShape& shape, const QPen& shapePen, const QBrush& brush,
                  QPainter* painter)
{
    const QTransform transform = painter->deviceTransform();
    if (!isTileable(*painter, shapePen, brush, transform))
        return false;
    static const QPen sNoPen(Qt::NoPen);
    const QPen& pen = isVisible(shapePen) ? shapePen : sNoPen;
    const QRectF rect = transform.mapRect(shape.rect);
    const bool stretchable = brush.style() <= Qt::SolidPattern && pen.style() <= Qt::SolidLine
                             && rect.width() * rect.height() > LargestWholeShape;
    if (rect.left() < -FarthestPixel || rect.top() < -FarthestPixel || rect.right() > FarthestPixel
        || rect.bottom() > FarthestPixel)
        return false;

    const QSizeF reach = penReach(pen, transform.m11(), transform.m22());
    TileAxis horizontal(rect.left(), rect.right(), reach.width() * transform.m11(),
                        shape.radius * transform.m11(), stretchable);
    TileAxis vertical(rect.top(), rect.bottom(), reach.height() * transform.m22(),
                      shape.radius * transform.m22(), stretchable);
    if (qint64(horizontal.size) * vertical.size > LargestTile)
        return false;
    const ShapeTile& tile =
        tileFor({pen, brush, shape.radius, transform.m11(), transform.m22(), horizontal.edge,
                 vertical.edge, horizontal.length, vertical.length, shape.straightCorners},
                horizontal, vertical);
    if (transform.type() <= QTransform::TxTranslate && isAlmostWhole(transform.dx())
        && isAlmostWhole(transform.dy())) {
        horizontal.first -= qRound(transform.dx());
        vertical.first -= qRound(transform.dy());
        tile.draw(painter, horizontal, vertical);
    } else {
        const DeviceCoordinates deviceCoordinates(painter, transform);
        tile.draw(painter, horizontal, vertical);
    }
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
    if (drawFromTile(shape, pen, brush, painter))
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(pen);
    painter->setBrush(brush);
    painter->drawPath(shape.path());
    painter->restore();
}

} // namespace BRELK
