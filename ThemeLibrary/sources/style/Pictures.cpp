#include "Pictures.h"

#include <QCache>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>

#include <cmath>

namespace BRELK::Pictures {

namespace {

constexpr int KeptBytes = 1 << 20;
constexpr int LargestArea = 1 << 14; ///< device pixels
/// Places are told apart as finely as Qt's rasterizer does.
constexpr int Subpixels = 64;

struct Key
{
    Kind kind;
    QRgb color;
    QSize size;
    qreal horizontalScale;
    qreal verticalScale;
    QPoint phase; ///< where the rectangle begins in its first pixel, in subpixels
    bool antialiased;

    friend bool operator==(const Key& one, const Key& other)
    {
        return one.kind == other.kind && one.color == other.color && one.size == other.size
               && one.horizontalScale == other.horizontalScale
               && one.verticalScale == other.verticalScale && one.phase == other.phase
               && one.antialiased == other.antialiased;
    }

    friend uint qHash(const Key& key, uint seed)
    {
        const uint place = uint(key.phase.x()) << 8 ^ uint(key.phase.y()) << 16;
        const uint shape = uint(key.size.width()) << 4 ^ uint(key.size.height()) << 20;
        return ::qHash(key.color ^ uint(key.kind) << 24, seed) ^ place ^ shape;
    }
};

/// Whether what is painted depends on nothing but what a key holds.
bool canCopy(const QPainter& painter, const QTransform& transform, const QBrush& brush)
{
    return painter.paintEngine() && painter.paintEngine()->type() == QPaintEngine::Raster
           && transform.type() <= QTransform::TxScale && transform.m11() > 0 && transform.m22() > 0
           && painter.opacity() >= 1 && brush.style() == Qt::SolidPattern
           && (painter.worldMatrixEnabled() || painter.worldTransform().isIdentity())
           && painter.compositionMode() == QPainter::CompositionMode_SourceOver;
}

/// What was painted, without what is empty around it.
struct Picture
{
    QImage image;
    QPoint offset; ///< from the first pixel of the rectangle
};

QRect visibleRect(const QImage& image)
{
    QRect visible;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) > 0)
                visible |= QRect(x, y, 1, 1);
        }
    }
    return visible;
}

/// `transform` leads from the painter's coordinates to those of `rect`, in device pixels.
Picture painted(const QRect& rect, const QTransform& transform, bool antialiased, Call call,
                const void* paint)
{
    constexpr int Margin = 8; ///< for what reaches out of a small rectangle
    const QRect around = rect.adjusted(-Margin, -Margin, Margin, Margin);
    QImage image(around.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter onto(&image);
        onto.setRenderHint(QPainter::Antialiasing, antialiased);
        onto.setTransform(transform * QTransform::fromTranslate(-around.x(), -around.y()));
        call(paint, onto);
    }
    const QRect visible = visibleRect(image);
    return {image.copy(visible), visible.topLeft() + around.topLeft() - rect.topLeft()};
}

/// Copies `image` to `place`, in device pixels.
void copy(QPainter& painter, const QTransform& transform, const QPoint& place, const QImage& image)
{
    if (image.isNull())
        return;
    const QPoint origin = transform.map(QPointF()).toPoint();
    if (transform.type() <= QTransform::TxTranslate
        && QPointF(origin) == transform.map(QPointF())) {
        painter.drawImage(place - origin, image);
        return;
    }
    const QTransform world = painter.worldTransform();
    const bool enabled = painter.worldMatrixEnabled();
    painter.setWorldTransform(transform.inverted(), true);
    painter.drawImage(place, image);
    painter.setWorldTransform(world);
    painter.setWorldMatrixEnabled(enabled);
}

} // namespace

void drawKept(QPainter& painter, Kind kind, const QRect& rect, const QBrush& brush, Call call,
              const void* paint)
{
    static QCache<Key, Picture> sPictures(KeptBytes);

    const QTransform transform = painter.deviceTransform();
    const QRectF device = transform.mapRect(QRectF(rect));
    if (!rect.isValid() || !canCopy(painter, transform, brush)
        || device.width() * device.height() > LargestArea) {
        call(paint, painter);
        return;
    }
    const QPoint first(int(std::floor(device.x())), int(std::floor(device.y())));
    const Key key{kind,
                  brush.color().rgba(),
                  rect.size(),
                  transform.m11(),
                  transform.m22(),
                  ((device.topLeft() - first) * Subpixels).toPoint(),
                  painter.testRenderHint(QPainter::Antialiasing)};
    if (const Picture* known = sPictures.object(key)) {
        copy(painter, transform, first + known->offset, known->image);
        return;
    }
    const Picture added = painted(device.toAlignedRect(), transform, key.antialiased, call, paint);
    copy(painter, transform, first + added.offset, added.image);
    sPictures.insert(key, new Picture(added), int(added.image.sizeInBytes()) + int(sizeof(added)));
}

} // namespace BRELK::Pictures
