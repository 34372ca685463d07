#include "Families.h"
#include "StyleContext.h"

#include <QApplication>
#include <QTabBar>

// Tab bars and tab widgets.

namespace BRELK::Tabs {

namespace {

constexpr int HorizontalSpace = 24; ///< of both sides of a tab together
constexpr int VerticalSpace = 12; ///< above and below a tab's text together
constexpr int BaseOverlap = 1;
constexpr int ScrollButtonWidth = 24;
constexpr int IconSize = 16;
constexpr int CloseButtonInset = 2;
constexpr int SelectedTextGain = 2;

enum class Side { North, South, West, East };

Side sideOf(QTabBar::Shape shape)
{
    switch (shape) {
    case QTabBar::RoundedSouth:
    case QTabBar::TriangularSouth: return Side::South;
    case QTabBar::RoundedWest:
    case QTabBar::TriangularWest: return Side::West;
    case QTabBar::RoundedEast:
    case QTabBar::TriangularEast: return Side::East;
    default: return Side::North;
    }
}

bool isCurrentTabHighlighted(const StyleContext& context)
{
    return context.flag(WidgetProperties::CurrentTabHighlighted)
           || WidgetProperties::flag(qApp, WidgetProperties::AppCurrentTabHighlighted);
}

} // namespace

int metric(QStyle::PixelMetric metric, const MeasureContext& context)
{
    switch (metric) {
    case QStyle::PM_TabBarTabHSpace: return context.dpiScaled(HorizontalSpace);
    case QStyle::PM_TabBarTabVSpace: return context.dpiScaled(VerticalSpace);
    case QStyle::PM_TabBarBaseOverlap: return BaseOverlap;
    case QStyle::PM_TabBarScrollButtonWidth: return context.dpiScaled(ScrollButtonWidth);
    case QStyle::PM_TabBarIconSize:
    case QStyle::PM_TabCloseIndicatorWidth:
    case QStyle::PM_TabCloseIndicatorHeight: return context.dpiScaled(IconSize);
    default: return 0; // tabs stand side by side, on the frame, and do not move when selected
    }
}

QSize tabSize(const MeasureContext&, const QStyleOptionTab&, const QSize&, const QSize& base)
{
    return base;
}

QRect barRect(const StyleContext& context, const QStyleOptionTabWidgetFrame& frame,
              const QRect& base)
{
    if (!context.flag(WidgetProperties::Stretched))
        return base;
    const Side side = sideOf(frame.shape);
    QRect rect = base;
    if (side == Side::West || side == Side::East)
        rect.setHeight(context.widget->height());
    else
        rect.setWidth(context.widget->width());
    return rect;
}

QRect textRect(const StyleContext& context, const QStyleOptionTab& tab, const QRect&)
{
    const QRect rect =
        context.style.QCommonStyle::subElementRect(QStyle::SE_TabBarTabText, &tab, context.widget);
    if (!context.widget || isCurrentTabHighlighted(context)
        || context.style.getTabBackgroundState(tab) != BaseStyle::TabBackground_Selected)
        return rect;
    switch (sideOf(tab.shape)) {
    case Side::West: return rect.adjusted(0, -SelectedTextGain, 0, 0);
    case Side::East: return rect.adjusted(0, 0, 0, SelectedTextGain);
    default: return rect.adjusted(0, 0, SelectedTextGain, 0);
    }
}

QRect rightButtonRect(const StyleContext&, const QStyleOptionTab& tab, const QRect& base)
{
    QRect rect = base;
    switch (tab.shape) {
    case QTabBar::RoundedNorth:
    case QTabBar::RoundedSouth: rect.moveRight(tab.rect.right() - CloseButtonInset); break;
    case QTabBar::RoundedWest: rect.moveTop(tab.rect.top() + CloseButtonInset); break;
    case QTabBar::RoundedEast: rect.moveBottom(tab.rect.bottom() - CloseButtonInset); break;
    default: break;
    }
    return rect;
}

void paintFrame(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_FrameTabWidget);
}

void paintBarBase(const PaintContext& context, const QStyleOptionTabBarBase&)
{
    context.drawByBase(QStyle::PE_FrameTabBarBase);
}

void paintCloseButton(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_IndicatorTabClose);
}

void paintShape(const PaintContext& context, const QStyleOptionTab&)
{
    context.drawByBase(QStyle::CE_TabBarTabShape);
}

void paintLabel(const PaintContext& context, const QStyleOptionTab&)
{
    context.drawByBase(QStyle::CE_TabBarTabLabel);
}

} // namespace BRELK::Tabs
