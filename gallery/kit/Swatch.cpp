#include "kit/Swatch.h"

#include "Helpers.h"
#include "kit/Decoration.h"
#include "kit/Page.h"

#include <QPainter>

namespace Gallery {

namespace {

void paintSwatch(QPainter& painter, const QBrush& brush, const QRectF& rect, int radius)
{
    painter.setPen(Qt::NoPen);
    if (!brush.isOpaque()) {
        painter.setBrush(QBrush(Decoration::border(), Qt::Dense4Pattern));
        BRELK::Helpers::drawRoundedRectShape(rect, radius, BRELK::Helpers::None, &painter);
    }
    painter.setPen(Decoration::border());
    painter.setBrush(brush);
    BRELK::Helpers::drawRoundedRectShape(rect.adjusted(0.5, 0.5, -0.5, -0.5), radius,
                                         BRELK::Helpers::None, &painter);
}

} // namespace

Swatch::Swatch(const QBrush& brush, int radius, const QSize& size)
    : m_brush(brush), m_radius(radius), m_size(size)
{
    setFixedSize(size);
}

void Swatch::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    paintSwatch(painter, m_brush, rect(), m_radius);
}

QPixmap swatchPixmap(const QBrush& brush, const QSize& size, qreal devicePixelRatio)
{
    QPixmap pixmap(size * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paintSwatch(painter, brush, QRectF({0, 0}, size), 2);
    return pixmap;
}

} // namespace Gallery
