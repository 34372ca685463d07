#include "Helpers.h"

#include <QPainter>
#include <QPainterPath>

namespace BRELK {

void Helpers::drawRoundedRectShape(const QRectF& rect, int radius,
                                   StraightCornerFlags straightCorners, QPainter* painter)
{
    if (!painter || rect.width() <= 0 || rect.height() <= 0)
        return;
    const qreal diameter = 2 * qBound(0.0, qreal(radius), qMin(rect.width(), rect.height()) / 2);
    const auto diameterAt = [&](StraightCornerFlag corner) {
        return straightCorners & corner ? 0.0 : diameter;
    };
    const qreal topLeft = diameterAt(TopLeftCorner);
    const qreal topRight = diameterAt(TopRightCorner);
    const qreal bottomRight = diameterAt(BottomRightCorner);
    const qreal bottomLeft = diameterAt(BottomLeftCorner);

    QPainterPath path;
    path.arcMoveTo(rect.left(), rect.top(), topLeft, topLeft, 180);
    path.arcTo(rect.left(), rect.top(), topLeft, topLeft, 180, -90);
    path.arcTo(rect.right() - topRight, rect.top(), topRight, topRight, 90, -90);
    path.arcTo(rect.right() - bottomRight, rect.bottom() - bottomRight, bottomRight, bottomRight, 0,
               -90);
    path.arcTo(rect.left(), rect.bottom() - bottomLeft, bottomLeft, bottomLeft, 270, -90);
    path.closeSubpath();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->drawPath(path);
    painter->restore();
}

} // namespace BRELK
