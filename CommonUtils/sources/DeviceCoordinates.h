#pragma once

#include <QPainter>
#include <QPen>
#include <QRectF>
#include <QTransform>

namespace BRELK {

/// Positions on a device are told apart as finely as Qt's rasterizer does.
constexpr int Subpixels = 64;

/// How the coordinates of a painter lie on the pixels of its device.
class DeviceCoordinates
{
public:
    explicit DeviceCoordinates(const QPainter& painter);

    /// Whether the toolkit itself computes the pixels.
    bool isRaster() const { return m_isRaster; }

    /// Whether painting is nothing but setting pixels, so that they may be copied from a picture:
    /// on a raster device, upright and not composed.
    bool canCopy() const { return m_canCopy; }

    qreal horizontalScale() const { return m_transform.m11(); }

    qreal verticalScale() const { return m_transform.m22(); }

    const QTransform& transform() const { return m_transform; }

    /// `rect` in device pixels.
    QRectF map(const QRectF& rect) const { return m_transform.mapRect(rect); }

    /// How far `pen` reaches to each side of a line, in device pixels.
    QSizeF reach(const QPen& pen) const;

    /// Whether the pixels of `deviceRect` can be counted: neither the toolkit's rasterizer nor an
    /// `int` gets much farther.
    static bool isNear(const QRectF& deviceRect);

private:
    QTransform m_transform;
    bool m_isRaster;
    bool m_canCopy;
};

/// How far `pen` reaches to each side of a line, in logical pixels.
QSizeF penReach(const QPen& pen, qreal horizontalScale, qreal verticalScale);

/// Lets a painter draw in device pixels.
class DevicePixels
{
public:
    DevicePixels(QPainter& painter, const DeviceCoordinates& coordinates);
    ~DevicePixels();

    Q_DISABLE_COPY_MOVE(DevicePixels)

    /// What the painter calls the first pixel of the device.
    const QPoint& origin() const { return m_origin; }

private:
    QPainter& m_painter;
    QTransform m_world;
    QPoint m_origin;
    bool m_enabled;
    bool m_changed;
};

} // namespace BRELK
