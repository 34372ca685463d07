#include "Pictures.h"

#include "DeviceCoordinates.h"
#include "Kept.h"

#include <QImage>
#include <QPainter>

#include <cmath>

namespace BRELK::Pictures {

namespace {

constexpr int LargestArea = 1 << 14; ///< device pixels

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

} // namespace

void drawKept(QPainter& painter, Kind kind, const QRect& rect, const QBrush& brush, Call call,
              const void* paint)
{
    static Kept::Store<Key, Picture> sPictures;

    const DeviceCoordinates device(painter);
    const QRectF pixels = device.map(rect);
    if (!rect.isValid() || !device.canCopy() || painter.opacity() < 1
        || brush.style() != Qt::SolidPattern || !DeviceCoordinates::isNear(pixels)
        || pixels.width() * pixels.height() > LargestArea) {
        call(paint, painter);
        return;
    }
    const QPoint first(int(std::floor(pixels.x())), int(std::floor(pixels.y())));
    const Key key{kind,
                  brush.color().rgba(),
                  rect.size(),
                  device.horizontalScale(),
                  device.verticalScale(),
                  ((pixels.topLeft() - first) * Subpixels).toPoint(),
                  painter.testRenderHint(QPainter::Antialiasing)};
    const Picture* picture = sPictures.find(key);
    if (!picture) {
        auto made = std::make_unique<Picture>(
            painted(pixels.toAlignedRect(), device.transform(), key.antialiased, call, paint));
        const qint64 bytes = made->image.sizeInBytes();
        picture = sPictures.keep(key, std::move(made), bytes);
    }
    if (picture->image.isNull())
        return;
    const DevicePixels inPixels(painter, device);
    painter.drawImage(first + picture->offset + inPixels.origin(), picture->image);
}

} // namespace BRELK::Pictures
