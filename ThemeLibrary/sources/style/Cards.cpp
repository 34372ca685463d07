#include "Families.h"
#include "StyleContext.h"

// The parts of cards: header, contents and footer.

namespace BRELK::Cards {

void paintWidget(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_Widget);
}

} // namespace BRELK::Cards
