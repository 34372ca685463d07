#include "Families.h"
#include "StyleContext.h"

// The tabs of tool boxes.

namespace BRELK::ToolBoxes {

void paintTabShape(const PaintContext& context, const QStyleOptionToolBox&)
{
    context.drawByBase(QStyle::CE_ToolBoxTabShape);
}

} // namespace BRELK::ToolBoxes
