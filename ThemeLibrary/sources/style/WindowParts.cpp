#include "Families.h"
#include "StyleContext.h"

// Status bars, splitters and rubber bands, and what layouts and windows measure.

namespace BRELK::WindowParts {

namespace {

constexpr int WindowMargin = 12;
constexpr int ChildMargin = 8;
constexpr int LayoutSpacing = 8;
constexpr int SplitterWidth = 6;
constexpr int SmallIconSize = 16;
constexpr int LargeIconSize = 32;
constexpr int MessageBoxIconSize = 48;

} // namespace

int metric(QStyle::PixelMetric metric, const MeasureContext& context)
{
    switch (metric) {
    case QStyle::PM_LayoutHorizontalSpacing:
    case QStyle::PM_LayoutVerticalSpacing: return context.dpiScaled(LayoutSpacing);
    case QStyle::PM_SplitterWidth: return context.dpiScaled(SplitterWidth);
    case QStyle::PM_SmallIconSize: return context.dpiScaled(SmallIconSize);
    case QStyle::PM_LargeIconSize: return context.dpiScaled(LargeIconSize);
    case QStyle::PM_MessageBoxIconSize: return context.dpiScaled(MessageBoxIconSize);
    default:
        return context.dpiScaled(context.widget && context.widget->isWindow() ? WindowMargin
                                                                              : ChildMargin);
    }
}

void paintStatusBar(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_PanelStatusBar);
}

void paintSplitter(const PaintContext& context)
{
    context.drawByBase(QStyle::CE_Splitter);
}

void paintRubberBand(const PaintContext& context, const QStyleOptionRubberBand&)
{
    context.drawByBase(QStyle::CE_RubberBand);
}

} // namespace BRELK::WindowParts
