#include "Helpers.h"

#include <QPainter>

namespace BRELK {

int Helpers::getPerceivedBrightness(const QColor& color)
{
    // The weights of red, green and blue in luma (ITU-R BT.601), in thousandths.
    const QColor rgb = color.toRgb();
    return (299 * rgb.red() + 587 * rgb.green() + 114 * rgb.blue()) / 1000;
}

void Helpers::drawInputStatusIndicator(const QRectF& rect, int radius, const QColor& color,
                                       QPainter* painter)
{
    if (!painter || rect.isEmpty())
        return;
    constexpr qreal Side = 6;
    const QPointF corner = rect.topRight() + QPointF(-radius * 0.3, radius * 0.3);
    const QPointF triangle[] = {corner, corner - QPointF(Side, 0), corner + QPointF(0, Side)};
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawPolygon(triangle, 3);
    painter->restore();
}

} // namespace BRELK
