#include "Families.h"
#include "StyleContext.h"

// Sliders.

namespace BRELK::Sliders {

namespace {

constexpr int HandleLength = 16;
constexpr int GrooveThickness = 12; ///< the metric; the groove is half of it, less two
constexpr int CrossSize = 20;
constexpr int TickLength = 4;

int minimumHeight(const QWidget* widget)
{
    return widget ? widget->minimumHeight() : 0;
}

QRect handleRect(const StyleContext& context, const QStyleOptionSlider& slider, const QRect& base)
{
    const int length = context.proxy().pixelMetric(QStyle::PM_SliderLength);
    const bool isRange = context.flag(WidgetProperties::RangeSlider);
    QRect rect = base;
    rect.setSize({length, isRange ? qMax(length, minimumHeight(context.widget)) : length});
    const QPoint centre = slider.rect.center();
    if (slider.orientation == Qt::Horizontal)
        rect.moveTop(centre.y() - rect.height() / 2 + 1);
    else
        rect.moveLeft(centre.x() - rect.width() / 2 + 1);
    return rect;
}

QRect grooveRect(const StyleContext& context, const QStyleOptionSlider& slider)
{
    const bool isRange = context.flag(WidgetProperties::RangeSlider);
    const int thickness = isRange ? context.proxy().pixelMetric(QStyle::PM_SliderLength)
                                  : context.proxy().pixelMetric(QStyle::PM_SliderThickness) / 2;
    QRect rect = slider.rect;
    if (slider.orientation == Qt::Vertical)
        rect.setWidth(thickness - 2);
    else
        rect.setHeight(isRange ? qMax(thickness, minimumHeight(context.widget)) : thickness - 2);
    rect.moveCenter(slider.rect.center());
    return rect;
}

} // namespace

int metric(QStyle::PixelMetric metric, const MeasureContext& context)
{
    switch (metric) {
    case QStyle::PM_SliderThickness: return context.dpiScaled(GrooveThickness);
    case QStyle::PM_SliderTickmarkOffset: return context.dpiScaled(TickLength);
    case QStyle::PM_SliderSpaceAvailable:
        if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(context.option)) {
            const QSize size = slider->rect.size();
            const int length = context.metric(QStyle::PM_SliderLength);
            return (slider->orientation == Qt::Horizontal ? size.width() : size.height()) - length;
        }
        return 0;
    default: return context.dpiScaled(HandleLength);
    }
}

QSize sliderSize(const MeasureContext& context, const QStyleOptionSlider& slider, const QSize&,
                 const QSize& base)
{
    const QSize smallest(slider.orientation == Qt::Vertical ? context.dpiScaled(CrossSize) : 0,
                         slider.orientation == Qt::Horizontal ? context.dpiScaled(CrossSize) : 0);
    return base.expandedTo(smallest);
}

QRect partRect(const StyleContext& context, const QStyleOptionSlider& slider,
               QStyle::SubControl part, const QRect& base)
{
    switch (part) {
    case QStyle::SC_SliderHandle: return context.visual(handleRect(context, slider, base));
    case QStyle::SC_SliderGroove: return context.visual(grooveRect(context, slider));
    default: return context.visual(base);
    }
}

void paintSlider(const PaintContext& context, const QStyleOptionSlider& slider)
{
    context.drawByBase(QStyle::CC_Slider, slider);
}

} // namespace BRELK::Sliders
