#pragma once

#include "StyleContext.h"

#include <QIcon>

/// How the icons of arrows are drawn.
namespace BRELK::ArrowIcons {

/// `icon` in `brush` in the middle of `rect`, as large as arrows are.
void draw(const PaintContext& context, const QIcon& icon, const QRect& rect, const QBrush& brush);

/// The arrow of a control, which is `element` of `arrow`, in the text color of its buttons. It is
/// asked of the proxy, which draws none without a widget: there it is drawn right away.
void drawOf(const PaintContext& context, QStyle::PrimitiveElement element,
            const QStyleOption& arrow);

} // namespace BRELK::ArrowIcons
