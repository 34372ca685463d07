#include "Families.h"
#include "StyleContext.h"

#include <QAbstractScrollArea>

// Scroll bars and the corner between them.

namespace BRELK::ScrollBars {

namespace {

constexpr int Extent = 14;
constexpr int SmallestSlider = 32;

int scrollAreaFrameWidth(const QWidget* bar)
{
    for (const QWidget* widget = bar ? bar->parentWidget() : nullptr; widget;
         widget = widget->parentWidget()) {
        if (const auto* area = qobject_cast<const QAbstractScrollArea*>(widget))
            return area->frameWidth();
    }
    return 0;
}

QRect minimizedSliderRect(const StyleContext& context, const QStyleOptionSlider& bar,
                          const QRect& base)
{
    const bool transient =
        context.proxy().styleHint(QStyle::SH_ScrollBar_Transient, &bar, context.widget);
    const int extent = transient ? 0 : context.metric(QStyle::PM_ScrollBarExtent);
    const int frameWidth = scrollAreaFrameWidth(context.widget);
    // Deliberate: a vertical slider narrows by the frame, a horizontal one grows by it.
    return bar.orientation == Qt::Vertical
               ? base.adjusted(frameWidth, 1 - extent - frameWidth, 0, extent - 1 + frameWidth)
               : base.adjusted(1 - extent - frameWidth, 0, extent - 1 + frameWidth, frameWidth);
}

} // namespace

int metric(QStyle::PixelMetric metric, const MeasureContext& context)
{
    switch (metric) {
    case QStyle::PM_ScrollBarExtent: return context.dpiScaled(Extent);
    case QStyle::PM_ScrollBarSliderMin: return context.dpiScaled(SmallestSlider);
    default: return 0; // bars touch the view and do not cover it
    }
}

QRect partRect(const StyleContext& context, const QStyleOptionSlider& bar, QStyle::SubControl part,
               const QRect& base)
{
    if (!context.flag(WidgetProperties::Minimized))
        return base;
    switch (part) {
    case QStyle::SC_ScrollBarAddLine:
    case QStyle::SC_ScrollBarSubLine:
    case QStyle::SC_ScrollBarAddPage:
    case QStyle::SC_ScrollBarSubPage: return {};
    case QStyle::SC_ScrollBarGroove: return bar.rect;
    case QStyle::SC_ScrollBarSlider: return minimizedSliderRect(context, bar, base);
    default: return base;
    }
}

void paintCorner(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_PanelScrollAreaCorner);
}

void paintLine(const PaintContext& context, const QStyleOptionSlider& bar)
{
    context.style.QProxyStyle::drawControl(QStyle::CE_ScrollBarAddLine, &bar, &context.painter,
                                           context.widget);
}

void paintSlider(const PaintContext& context, const QStyleOptionSlider&)
{
    context.drawByBase(QStyle::CE_ScrollBarSlider);
}

void paintScrollBar(const PaintContext& context, const QStyleOptionSlider& bar)
{
    context.drawByBase(QStyle::CC_ScrollBar, bar);
}

} // namespace BRELK::ScrollBars
