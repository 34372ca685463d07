#include "DeviceCoordinates.h"

#include <QPaintEngine>

#include <cmath>

namespace BRELK {

namespace {

bool hasRaster(const QPainter& painter)
{
    return painter.paintEngine() && painter.paintEngine()->type() == QPaintEngine::Raster;
}

bool isAlmostWhole(qreal number)
{
    constexpr qreal Tolerance = 1e-6;
    return std::abs(number - std::round(number)) < Tolerance;
}

} // namespace

DeviceCoordinates::DeviceCoordinates(const QPainter& painter)
    : m_transform(painter.deviceTransform())
    , m_isRaster(hasRaster(painter))
    , m_canCopy(m_isRaster && m_transform.type() <= QTransform::TxScale && m_transform.m11() > 0
                && m_transform.m22() > 0
                && painter.compositionMode() == QPainter::CompositionMode_SourceOver)
{ }

QSizeF DeviceCoordinates::reach(const QPen& pen) const
{
    const QSizeF logical = penReach(pen, horizontalScale(), verticalScale());
    return {logical.width() * horizontalScale(), logical.height() * verticalScale()};
}

bool DeviceCoordinates::isNear(const QRectF& deviceRect)
{
    constexpr qreal FarthestPixel = 1 << 15;
    return deviceRect.left() >= -FarthestPixel && deviceRect.top() >= -FarthestPixel
           && deviceRect.right() <= FarthestPixel && deviceRect.bottom() <= FarthestPixel;
}

QSizeF penReach(const QPen& pen, qreal horizontalScale, qreal verticalScale)
{
    if (pen.style() == Qt::NoPen)
        return {0, 0};
    const qreal half = (qFuzzyIsNull(pen.widthF()) ? 1 : pen.widthF()) / 2;
    return pen.isCosmetic() ? QSizeF(half / horizontalScale, half / verticalScale)
                            : QSizeF(half, half);
}

DevicePixels::DevicePixels(QPainter& painter, const DeviceCoordinates& coordinates)
    : m_painter(painter), m_enabled(painter.worldMatrixEnabled())
{
    const QTransform& transform = coordinates.transform();
    m_changed = transform.type() > QTransform::TxTranslate || !isAlmostWhole(transform.dx())
                || !isAlmostWhole(transform.dy());
    if (!m_changed) { // shifting is quicker
        m_origin = {-qRound(transform.dx()), -qRound(transform.dy())};
        return;
    }
    m_world = painter.worldTransform();
    const QTransform beneath = m_enabled ? m_world.inverted() * transform : transform;
    painter.setWorldTransform(beneath.inverted());
}

DevicePixels::~DevicePixels()
{
    if (!m_changed)
        return;
    m_painter.setWorldTransform(m_world);
    m_painter.setWorldMatrixEnabled(m_enabled);
}

} // namespace BRELK
