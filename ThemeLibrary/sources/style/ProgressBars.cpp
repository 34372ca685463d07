#include "Families.h"
#include "StyleContext.h"

// Progress bars.

namespace BRELK::ProgressBars {

namespace {

constexpr int TextPadding = 2;

} // namespace

int metric(QStyle::PixelMetric, const MeasureContext&)
{
    return 1; // the bar grows by the pixel
}

QSize progressBarSize(const MeasureContext& context, const QStyleOptionProgressBar& bar,
                      const QSize&, const QSize& base)
{
    const int thickness = context.rowHeight(TextPadding);
    return bar.orientation == Qt::Horizontal ? QSize(base.width(), thickness)
                                             : QSize(thickness, base.height());
}

void paintGroove(const PaintContext& context)
{
    context.drawByBase(QStyle::CE_ProgressBarGroove);
}

void paintContents(const PaintContext& context, const QStyleOptionProgressBar&)
{
    context.drawByBase(QStyle::CE_ProgressBarContents);
}

void paintLabel(const PaintContext& context, const QStyleOptionProgressBar&)
{
    context.drawByBase(QStyle::CE_ProgressBarLabel);
}

} // namespace BRELK::ProgressBars
