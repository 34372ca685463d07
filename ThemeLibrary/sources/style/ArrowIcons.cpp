#include "ArrowIcons.h"

#include "Shapes.h"
#include "ThemeValues.h"

namespace BRELK::ArrowIcons {

void draw(const PaintContext& context, const QIcon& icon, const QRect& rect, const QBrush& brush)
{
    const int size = qMin(context.measure().indicatorSize(), qMin(rect.width(), rect.height()));
    Shapes::drawIcon(context, icon, brush, rect, size);
}

void drawOf(const PaintContext& context, QStyle::PrimitiveElement element,
            const QStyleOption& arrow)
{
    if (context.widget) {
        context.draw(element, arrow);
        return;
    }
    ThemeValues& values = themeValues();
    auto& icon = element == QStyle::PE_IndicatorArrowLeft    ? values.leftArrow
                 : element == QStyle::PE_IndicatorArrowRight ? values.rightArrow
                 : element == QStyle::PE_IndicatorArrowUp    ? values.upArrow
                                                             : values.downArrow;
    draw(context, icon.icon(), arrow.rect, arrow.palette.brush(QPalette::ButtonText));
}

} // namespace BRELK::ArrowIcons
