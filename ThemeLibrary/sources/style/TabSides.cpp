#include "TabSides.h"

namespace BRELK::TabSides {

Side of(QTabBar::Shape shape)
{
    switch (shape) {
    case QTabBar::RoundedSouth:
    case QTabBar::TriangularSouth: return Side::South;
    case QTabBar::RoundedWest:
    case QTabBar::TriangularWest: return Side::West;
    case QTabBar::RoundedEast:
    case QTabBar::TriangularEast: return Side::East;
    default: return Side::North;
    }
}

Side opposite(Side side)
{
    switch (side) {
    case Side::North: return Side::South;
    case Side::South: return Side::North;
    case Side::West: return Side::East;
    default: return Side::West;
    }
}

bool isUpright(Side side)
{
    return side == Side::West || side == Side::East;
}

Helpers::StraightCornerFlags pageCorners(Side side)
{
    switch (side) {
    case Side::South: return Helpers::TopCorners;
    case Side::West: return Helpers::RightCorners;
    case Side::East: return Helpers::LeftCorners;
    default: return Helpers::BottomCorners;
    }
}

QRectF along(Side edge, const QRectF& rect, qreal inset, qreal thickness)
{
    const QRectF inner =
        isUpright(edge) ? rect.adjusted(0, inset, 0, -inset) : rect.adjusted(inset, 0, -inset, 0);
    switch (edge) {
    case Side::North: return {inner.topLeft(), QSizeF(inner.width(), thickness)};
    case Side::South: return {inner.left(), inner.bottom() - thickness, inner.width(), thickness};
    case Side::West: return {inner.topLeft(), QSizeF(thickness, inner.height())};
    default: return {inner.right() - thickness, inner.top(), thickness, inner.height()};
    }
}

} // namespace BRELK::TabSides
