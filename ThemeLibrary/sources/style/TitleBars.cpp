#include "Families.h"
#include "Shapes.h"
#include "ThemeColorHelper.h"

// The title bars of sub-windows and docks, and the frames of windows.

namespace BRELK::TitleBars {

namespace {

constexpr int RowPadding = 5;
constexpr int IconSize = 16;
constexpr int ButtonSize = 24;
constexpr int DockTitleMargin = 6;
constexpr int DockButtonMargin = 4;
constexpr int SeparatorExtent = 4;
constexpr int HandleExtent = 8;
constexpr int MinimizedWidth = 196;

} // namespace

int metric(QStyle::PixelMetric metric, const MeasureContext& context)
{
    switch (metric) {
    case QStyle::PM_TitleBarHeight: return context.rowHeight(RowPadding);
    case QStyle::PM_TitleBarButtonIconSize: return context.dpiScaled(IconSize);
    case QStyle::PM_TitleBarButtonSize: return context.dpiScaled(ButtonSize);
    case QStyle::PM_DockWidgetTitleMargin: return context.dpiScaled(DockTitleMargin);
    case QStyle::PM_DockWidgetTitleBarButtonMargin: return context.dpiScaled(DockButtonMargin);
    case QStyle::PM_DockWidgetSeparatorExtent: return context.dpiScaled(SeparatorExtent);
    case QStyle::PM_DockWidgetHandleExtent: return context.dpiScaled(HandleExtent);
    case QStyle::PM_MdiSubWindowMinimizedWidth: return context.dpiScaled(MinimizedWidth);
    default: return 1; // frames of one pixel
    }
}

void paintWindowFrame(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_FrameWindow);
}

void paintDockTitle(const PaintContext& context, const QStyleOptionDockWidget&)
{
    context.drawByBase(QStyle::CE_DockWidgetTitle);
}

void paintTitleBar(const PaintContext& context, const QStyleOptionTitleBar& titleBar)
{
    context.drawByBase(QStyle::CC_TitleBar, titleBar);
}

} // namespace BRELK::TitleBars

namespace BRELK {

void BaseStyle::drawTitleBarButton(QPainter* painter, const QStyleOptionTitleBar* option,
                                   SubControl part, StandardPixmap icon,
                                   const QWidget* widget) const
{
    if (!painter || !option)
        return;
    const QRect rect = proxy()->subControlRect(CC_TitleBar, option, part, widget);
    if (!rect.isValid())
        return;
    QStyleOptionButton button;
    button.rect = rect;
    button.palette = option->palette;
    button.state = State_None;
    // Deliberate: a button that is not the active one is drawn without State_Enabled.
    if (option->activeSubControls & part)
        button.state =
            option->state
            & (State_MouseOver | State_Sunken | State_HasFocus | State_Active | State_Enabled);
    proxy()->drawPrimitive(PE_PanelButtonBevel, &button, painter, widget);

    const QIcon colored = ThemeColorHelper::getModifiedIconWithForegroundBrush(
        standardIcon(icon, nullptr, widget), buttonBrushes(&button, widget).foregroundBrush);
    proxy()->drawItemPixmap(
        painter, rect, Qt::AlignCenter,
        Shapes::iconPixmap(*painter, colored, {TitleBars::IconSize, TitleBars::IconSize}));
}

} // namespace BRELK
