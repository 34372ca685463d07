#pragma once

#include "CommonUtilsGlobal.h"

#include <QBrush>
#include <QRect>

class QPainter;

/// Small drawings whose curves and slants cost far more to paint than to copy. What was painted
/// once is kept, and copied for as long as everything it depends on is the same.
namespace BRELK::Pictures {

/// Each drawing that is kept. What it looks like may depend on its kind, its brush, the size and
/// place of its rectangle, and on nothing else; it stays inside that rectangle, or close by.
enum class Kind { CheckMark, RadioMark, SpinUp, SpinDown, SpinUpPressed, SpinDownPressed };

/// Calls `paint(painter)`, if the drawing has to be painted, with a painter whose coordinates are
/// those of `painter`; else copies it.
template <class Paint>
void draw(QPainter& painter, Kind kind, const QRect& rect, const QBrush& brush, const Paint& paint);

using Call = void (*)(const void* paint, QPainter& painter);

/// What `draw` does, for a function whose type is known to `call` alone.
VARN_COMMON_UTILS_EXPORT void drawKept(QPainter& painter, Kind kind, const QRect& rect,
                                       const QBrush& brush, Call call, const void* paint);

template <class Paint>
void draw(QPainter& painter, Kind kind, const QRect& rect, const QBrush& brush, const Paint& paint)
{
    const Call call = [](const void* function, QPainter& onto) {
        (*static_cast<const Paint*>(function))(onto);
    };
    drawKept(painter, kind, rect, brush, call, &paint);
}

} // namespace BRELK::Pictures
