#include "Families.h"
#include "StyleContext.h"

// Line edits, and the frames that text editors and views share with them.

namespace BRELK::LineEdits {

QSize lineEditSize(const MeasureContext& context, const QStyleOptionFrame& frame,
                   const QSize& contents, const QSize&)
{
    if (frame.lineWidth <= 0)
        return contents;
    return {contents.width() + 2 * frame.lineWidth,
            qMax(contents.height() + 2 * frame.lineWidth, context.controlHeight())};
}

void paintFrame(const PaintContext& context, const QStyleOptionFrame&)
{
    context.drawByBase(QStyle::PE_FrameLineEdit);
}

void paintPanel(const PaintContext& context, const QStyleOptionFrame&)
{
    context.drawByBase(QStyle::PE_PanelLineEdit);
}

} // namespace BRELK::LineEdits
