#pragma once

#include "CommonUtilsGlobal.h"

#include <QString>

class QPainter;
class QRect;

/// Short texts that are drawn again and again. Turning characters into placed glyphs is most of
/// the cost of painting a button or a menu item, so lines that were laid out are kept.
namespace BRELK::Texts {

/// What QPainter::drawText() does with the same arguments, to the pixel.
VARN_COMMON_UTILS_EXPORT void draw(QPainter& painter, const QRect& rect, int flags,
                                   const QString& text);

/// The width of `text` in the font of `painter`, that of its longest line if it has several.
VARN_COMMON_UTILS_EXPORT int width(const QPainter& painter, int flags, const QString& text);

/// `text` as it fits into `width` in the font of `painter`: each of its lines elided.
VARN_COMMON_UTILS_EXPORT QString fitted(const QPainter& painter, const QString& text,
                                        Qt::TextElideMode mode, int width, int flags);

} // namespace BRELK::Texts
