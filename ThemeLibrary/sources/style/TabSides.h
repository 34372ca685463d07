#pragma once

#include "Helpers.h"

#include <QRectF>
#include <QTabBar>

namespace BRELK::TabSides {

/// Where the tabs stand beside their page.
enum class Side { North, South, West, East };

Side of(QTabBar::Shape shape);
Side opposite(Side side);

/// Whether the tabs of this side stand one above the other.
bool isUpright(Side side);

/// The corners of a tab that face its page.
Helpers::StraightCornerFlags pageCorners(Side side);

/// What lies along an edge of `rect`, clear of its ends by `inset`.
QRectF along(Side edge, const QRectF& rect, qreal inset, qreal thickness);

} // namespace BRELK::TabSides
