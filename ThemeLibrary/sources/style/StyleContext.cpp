#include "StyleContext.h"

#include "InputMetrics.h"

#include <QApplication>

#include <limits>

namespace BRELK {

namespace {

/// Heights of controls and rows are multiples of this.
constexpr int Rhythm = 4;

/// What the font that the control is drawn in says: copying its metrics takes as long as asking.
template <class Ask>
auto askFont(const MeasureContext& context, Ask ask)
{
    return context.option ? ask(context.option->fontMetrics) : ask(context.fontMetrics());
}

int fontHeight(const MeasureContext& context)
{
    return askFont(context, [](const QFontMetrics& metrics) { return metrics.height(); });
}

} // namespace

bool isCountable(const QRect& rect)
{
    constexpr int Farthest = 4 * QWIDGETSIZE_MAX;
    const auto isNear = [](int place) { return place >= -Farthest && place <= Farthest; };
    return isNear(rect.left()) && isNear(rect.top()) && isNear(rect.right())
           && isNear(rect.bottom());
}

bool isCountable(const QStyleOptionSlider& slider)
{
    return qint64(slider.maximum) - slider.minimum <= std::numeric_limits<int>::max();
}

QStyleOptionSlider halved(QStyleOptionSlider slider)
{
    for (int* value : {&slider.minimum, &slider.maximum, &slider.sliderPosition, &slider.pageStep,
                       &slider.tickInterval})
        *value /= 2;
    return slider;
}

QFontMetrics MeasureContext::fontMetrics() const
{
    if (option)
        return option->fontMetrics;
    return widget ? widget->fontMetrics() : QApplication::fontMetrics();
}

int MeasureContext::dpiScaled(int pixels) const
{
    constexpr int ReferenceDpi = 96;
    const qreal dpi = askFont(*this, [](const QFontMetrics& metrics) { return metrics.fontDpi(); });
    return dpi == ReferenceDpi || QApplication::testAttribute(Qt::AA_Use96Dpi)
               ? pixels
               : int(pixels * dpi / ReferenceDpi);
}

int MeasureContext::rowHeight(int padding) const
{
    const int height = fontHeight(*this) + 2 * dpiScaled(padding);
    return (height + Rhythm - 1) / Rhythm * Rhythm;
}

int MeasureContext::indicatorSize() const
{
    constexpr int SmallestSize = 16;
    constexpr int LessThanText = 3;
    return qMax(dpiScaled(SmallestSize), (fontHeight(*this) - LessThanText) / Rhythm * Rhythm);
}

int MeasureContext::controlHeight() const
{
    return rowHeight(InputMetrics::ControlPadding);
}

} // namespace BRELK
