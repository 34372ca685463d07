#include "Families.h"
#include "StyleContext.h"

// Tool bars, their handles and separators.

namespace BRELK::ToolBars {

namespace {

constexpr int IconSize = 16;
constexpr int ItemMargin = 4;
constexpr int ItemSpacing = 4;
constexpr int HandleExtent = 8;
constexpr int SeparatorExtent = 9;
constexpr int ExtensionExtent = 16;

} // namespace

int metric(QStyle::PixelMetric metric, const MeasureContext& context)
{
    switch (metric) {
    case QStyle::PM_ToolBarIconSize: return context.dpiScaled(IconSize);
    case QStyle::PM_ToolBarItemMargin: return context.dpiScaled(ItemMargin);
    case QStyle::PM_ToolBarItemSpacing: return context.dpiScaled(ItemSpacing);
    case QStyle::PM_ToolBarHandleExtent: return context.dpiScaled(HandleExtent);
    case QStyle::PM_ToolBarSeparatorExtent: return context.dpiScaled(SeparatorExtent);
    case QStyle::PM_ToolBarExtensionExtent: return context.dpiScaled(ExtensionExtent);
    default: return 0; // no frame
    }
}

void paintHandle(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_IndicatorToolBarHandle);
}

void paintSeparator(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_IndicatorToolBarSeparator);
}

void paintToolBar(const PaintContext& context, const QStyleOptionToolBar&)
{
    context.drawByBase(QStyle::CE_ToolBar);
}

} // namespace BRELK::ToolBars
