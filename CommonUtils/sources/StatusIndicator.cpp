#include "Helpers.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

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
    if (!painter || !painter->isActive() || rect.isEmpty() || !color.isValid())
        return;
    // Along the sides the fold is so long that as much of it is left by any rounding.
    constexpr qreal Length = 7;
    constexpr qreal LengthPerRadius = 0.586;
    constexpr qreal MostOfSide = 0.75;
    constexpr qreal HalfBorder = 0.5;
    const qreal shortSide = std::min(rect.width(), rect.height());
    const qreal curve = radius > 0 ? std::min(radius + HalfBorder, shortSide / 2) : 0;
    const qreal length =
        std::max(curve, std::min(Length + LengthPerRadius * curve, MostOfSide * shortSide));

    const bool mirrored = painter->layoutDirection() == Qt::RightToLeft;
    const QPointF corner = mirrored ? rect.topLeft() : rect.topRight();
    const QPointF along(mirrored ? 1 : -1, 0);
    const QPointF down(0, 1);
    const QPointF center = corner + curve * (along + down);
    const QRectF circle(center - QPointF(curve, curve), center + QPointF(curve, curve));
    QPainterPath fold(corner + length * along);
    if (curve > 0)
        fold.arcTo(circle, 90, mirrored ? 90 : -90);
    else
        fold.lineTo(corner);
    fold.lineTo(corner + length * down);
    fold.closeSubpath();

    const bool antialiased = painter->testRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillPath(fold, color);
    painter->setRenderHint(QPainter::Antialiasing, antialiased);
}

} // namespace BRELK
