#include "ShapeTile.h"

#include "DeviceCoordinates.h"

#include <QPainter>

#include <cmath>

namespace BRELK {

namespace {

/// Draws `rect` with sharp corners, whatever joins the pen makes.
void drawSquare(QPainter* painter, const QRectF& rect, const QSizeF& reach)
{
    QPainterPath inside;
    inside.addRect(rect);
    painter->fillPath(inside, painter->brush());

    const qreal x = reach.width();
    const qreal y = reach.height();
    QPainterPath border;
    border.addRect(rect.adjusted(-x, -y, x, y));
    const QRectF hole = rect.adjusted(x, y, -x, -y);
    if (hole.isValid())
        border.addRect(hole);
    painter->fillPath(border, painter->pen().brush());
}

/// The pixels in which the borders of `rect`, each reaching `reach` to both sides, meet in the
/// corners named by `corners`; none without borders. All in device pixels.
QRegion cornerPixels(const QRectF& rect, const QSizeF& reach, Helpers::StraightCornerFlags corners)
{
    if (reach.isEmpty())
        return {};
    const std::pair<Helpers::StraightCornerFlag, QPointF> places[] = {
        {Helpers::TopLeftCorner, rect.topLeft()},
        {Helpers::TopRightCorner, rect.topRight()},
        {Helpers::BottomRightCorner, rect.bottomRight()},
        {Helpers::BottomLeftCorner, rect.bottomLeft()}};
    const QPointF radius(reach.width(), reach.height());
    QRegion region;
    for (const auto& [corner, place] : places)
        if (corners & corner)
            region += QRectF(place - radius, place + radius).toAlignedRect();
    return region;
}

QImage rendered(const TileKey& key, const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const QTransform scale = QTransform::fromScale(key.horizontalScale, key.verticalScale);
    const QSizeF reach = penReach(key.pen, key.horizontalScale, key.verticalScale);
    const QRectF pixels(qreal(key.left) / Subpixels, qreal(key.top) / Subpixels,
                        qreal(key.width) / Subpixels, qreal(key.height) / Subpixels);
    const QRegion square =
        cornerPixels(pixels, scale.mapRect(QRectF(QPointF(), reach)).size(), key.straightCorners);
    const QRectF rect(pixels.x() / key.horizontalScale, pixels.y() / key.verticalScale,
                      pixels.width() / key.horizontalScale, pixels.height() / key.verticalScale);
    const qreal radius = std::min({key.radius, rect.width() / 2, rect.height() / 2});

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(withFullCurves(key.pen, scale));
    painter.setBrush(key.brush);
    painter.setClipRegion(QRegion(image.rect()) - square);
    painter.setTransform(scale);
    painter.drawPath(RoundedShape{rect, radius, key.straightCorners}.path());
    if (square.isEmpty())
        return image;
    painter.resetTransform();
    painter.setClipRegion(square);
    painter.setTransform(scale);
    drawSquare(&painter, rect, reach);
    return image;
}

} // namespace

QPen withFullCurves(const QPen& pen, const QTransform& toDevice)
{
    constexpr qreal Hair = 0.001;
    const qreal scale = pen.isCosmetic() ? 1 : std::sqrt(std::abs(toDevice.determinant()));
    if (pen.style() == Qt::NoPen || std::abs(pen.widthF() * scale - 1) >= Hair)
        return pen;
    QPen result = pen;
    result.setWidthF((1 + Hair) / scale);
    return result;
}

QPainterPath RoundedShape::path() const
{
    // How far along the tangents the control points of a quarter of a circle lie.
    constexpr qreal Kappa = 0.5522847498;
    constexpr qreal Nothing = 1e-6;

    const struct
    {
        Helpers::StraightCornerFlag flag;
        QPointF place;
        QPointF toStart;
        QPointF toEnd;
    } corners[] = {{Helpers::TopLeftCorner, rect.topLeft(), {0, 1}, {1, 0}},
                   {Helpers::TopRightCorner, rect.topRight(), {-1, 0}, {0, 1}},
                   {Helpers::BottomRightCorner, rect.bottomRight(), {0, -1}, {-1, 0}},
                   {Helpers::BottomLeftCorner, rect.bottomLeft(), {1, 0}, {0, -1}}};

    QPainterPath path;
    for (const auto& corner : corners) {
        const qreal distance = straightCorners & corner.flag ? 0 : radius;
        const QPointF start = corner.place + distance * corner.toStart;
        const QPointF end = corner.place + distance * corner.toEnd;
        if (path.elementCount() == 0)
            path.moveTo(start);
        else if ((start - path.currentPosition()).manhattanLength() > Nothing)
            path.lineTo(start);
        if (distance > 0)
            path.cubicTo(start + Kappa * (corner.place - start), end + Kappa * (corner.place - end),
                         end);
    }
    path.closeSubpath();
    return path;
}

TileAxis::TileAxis(qreal low, qreal high, qreal reach, qreal radius, bool stretchable)
{
    const int lowEdge = qRound(low * Subpixels);
    first = int(std::floor(qreal(lowEdge) / Subpixels - reach));
    edge = lowEdge - first * Subpixels;
    length = qRound(high * Subpixels) - lowEdge;
    const qreal highEdge = qreal(edge + length) / Subpixels;
    size = int(std::ceil(highEdge + reach));
    const qreal corner = std::max(radius, reach);
    nearCorner = int(std::ceil(qreal(edge) / Subpixels + corner));
    const int far = size - int(std::floor(highEdge - corner));
    stretch = stretchable ? std::max(0, size - nearCorner - far - 1) : 0;
    size -= stretch;
    length -= stretch * Subpixels;
    if (stretch == 0)
        nearCorner = size;
}

bool operator==(const TileKey& one, const TileKey& other)
{
    return one.left == other.left && one.top == other.top && one.width == other.width
           && one.height == other.height && one.straightCorners == other.straightCorners
           && one.radius == other.radius && one.horizontalScale == other.horizontalScale
           && one.verticalScale == other.verticalScale && one.pen == other.pen
           && one.brush == other.brush;
}

uint qHash(const TileKey& key, uint seed)
{
    uint hash = seed;
    const auto add = [&hash](uint value) { hash = (hash ^ value) * 0x9E3779B1U; };
    add(key.pen.color().rgba());
    add(key.brush.color().rgba());
    add(uint(key.width) << 16 ^ uint(key.height));
    add(uint(key.left) << 16 ^ uint(key.top));
    add(uint(key.radius * Subpixels) << 8 ^ uint(key.straightCorners));
    return hash ^ hash >> 15;
}

ShapeTile::ShapeTile(const TileKey& key, const TileAxis& horizontal, const TileAxis& vertical)
    // A copy, as an image keeps the engine that painted on it, which takes more room than the
    // pixels.
    : m_image(rendered(key, {horizontal.size, vertical.size}).copy())
{
    if (vertical.stretch > 0)
        m_columns = stripes(0, horizontal.size,
                            [&](int x) { return m_image.pixelColor(x, vertical.nearCorner); });
    if (horizontal.stretch > 0) {
        const auto pixelAt = [&](int y) { return m_image.pixelColor(horizontal.nearCorner, y); };
        m_rows = stripes(0, vertical.nearCorner, pixelAt)
                 + stripes(vertical.size - vertical.farCorner(), vertical.size, pixelAt);
    }
}

/// The visible runs of equal pixels.
template <class PixelAt>
QVector<ShapeTile::Stripe> ShapeTile::stripes(int start, int end, PixelAt pixelAt)
{
    QVector<Stripe> result;
    for (int at = start; at < end; ++at) {
        const QColor color = pixelAt(at);
        if (!result.isEmpty() && result.last().color == color
            && result.last().start + result.last().size == at)
            ++result.last().size;
        else if (color.alpha() > 0)
            result.append({at, 1, color});
    }
    return result;
}

void ShapeTile::draw(QPainter* painter, const TileAxis& horizontal, const TileAxis& vertical) const
{
    if (horizontal.stretch == 0 && vertical.stretch == 0) {
        painter->drawImage(QPoint(horizontal.first, vertical.first), m_image);
        return;
    }
    for (const Stripe& column : m_columns) {
        const int left = horizontal.placed(column.start);
        const int right = horizontal.placed(column.start + column.size);
        painter->fillRect(
            QRect(left, vertical.placed(vertical.nearCorner), right - left, vertical.between()),
            column.color);
    }
    for (const Stripe& row : m_rows)
        painter->fillRect(QRect(horizontal.placed(horizontal.nearCorner),
                                vertical.placed(row.start), horizontal.between(), row.size),
                          row.color);

    const auto copy = [&](const QRect& corner) {
        painter->drawImage(QPoint(horizontal.placed(corner.left()), vertical.placed(corner.top())),
                           m_image, corner);
    };
    const QSize nearCorner(horizontal.nearCorner, vertical.nearCorner);
    const QSize farCorner(horizontal.farCorner(), vertical.farCorner());
    const QPoint far(horizontal.size - farCorner.width(), vertical.size - farCorner.height());
    copy(QRect(QPoint(0, 0), nearCorner));
    if (horizontal.stretch > 0)
        copy(QRect(QPoint(far.x(), 0), QSize(farCorner.width(), nearCorner.height())));
    if (vertical.stretch > 0)
        copy(QRect(QPoint(0, far.y()), QSize(nearCorner.width(), farCorner.height())));
    if (horizontal.stretch > 0 && vertical.stretch > 0)
        copy(QRect(far, farCorner));
}

int ShapeTile::byteCount() const
{
    constexpr int SizeOfStripes = 512;
    return int(m_image.sizeInBytes()) + SizeOfStripes;
}

} // namespace BRELK
