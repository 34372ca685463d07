#include "Families.h"
#include "StyleContext.h"

// Menus and menu bars.

namespace BRELK::Menus {

namespace {

constexpr int PanelMargin = 4;
constexpr int RowPadding = 5;
constexpr int SeparatorHeight = 9;
constexpr int ItemPadding = 8;
constexpr int ScrollerHeight = 20;
constexpr int TearoffHeight = 12;
constexpr int BarItemPadding = 8;
constexpr int BarRowPadding = 4;
constexpr int BarMargin = 2;

} // namespace

int metric(QStyle::PixelMetric metric, const MeasureContext& context)
{
    switch (metric) {
    case QStyle::PM_MenuVMargin: return context.dpiScaled(PanelMargin);
    case QStyle::PM_MenuPanelWidth: return 1;
    case QStyle::PM_MenuScrollerHeight: return context.dpiScaled(ScrollerHeight);
    case QStyle::PM_MenuTearoffHeight: return context.dpiScaled(TearoffHeight);
    case QStyle::PM_MenuBarHMargin:
    case QStyle::PM_MenuBarVMargin: return context.dpiScaled(BarMargin);
    case QStyle::PM_SubMenuOverlap: return -1;
    default: return 0;
    }
}

QSize itemSize(const MeasureContext& context, const QStyleOptionMenuItem& item, const QSize&,
               const QSize& base)
{
    if (item.menuItemType == QStyleOptionMenuItem::Separator && item.text.isEmpty())
        return {base.width(), context.dpiScaled(SeparatorHeight)};
    return {base.width() + 2 * context.dpiScaled(ItemPadding),
            qMax(base.height(), context.rowHeight(RowPadding))};
}

QSize barItemSize(const MeasureContext& context, const QStyleOptionMenuItem&, const QSize& contents,
                  const QSize&)
{
    return {contents.width() + 2 * context.dpiScaled(BarItemPadding),
            qMax(contents.height(), context.rowHeight(BarRowPadding))};
}

void paintPanel(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_PanelMenu);
}

void paintItem(const PaintContext& context, const QStyleOptionMenuItem&)
{
    context.drawByBase(QStyle::CE_MenuItem);
}

void paintBarItem(const PaintContext& context, const QStyleOptionMenuItem&)
{
    context.drawByBase(QStyle::CE_MenuBarItem);
}

void paintBarEmptyArea(const PaintContext& context)
{
    context.drawByBase(QStyle::CE_MenuBarEmptyArea);
}

} // namespace BRELK::Menus
