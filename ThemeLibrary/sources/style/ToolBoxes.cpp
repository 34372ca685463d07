#include "Families.h"
#include "Shapes.h"
#include "ThemeNames.h"

// The tabs of tool boxes.

namespace BRELK::ToolBoxes {

void paintTabShape(const PaintContext& context, const QStyleOptionToolBox& tab)
{
    const QRect& rect = tab.rect;
    const bool raised = BaseStyle::isHovered(&tab) || BaseStyle::isPressed(tab);
    const QBrush fill = raised ? QBrush(context.color(ThemeNames::backgroundUpLevel2Color()))
                               : context.brush(ThemeNames::backgroundUpLevel1Brush());
    context.painter.fillRect(rect, fill);
    Shapes::drawLine(context, rect.bottomLeft(), rect.bottomRight(), context.borderBrush());
}

} // namespace BRELK::ToolBoxes
