#include "StyleContext.h"

#include "InputMetrics.h"

#include <QApplication>

namespace BRELK {

namespace {

/// Heights of controls and rows are multiples of this.
constexpr int Rhythm = 4;

} // namespace

QFontMetrics MeasureContext::fontMetrics() const
{
    if (option)
        return option->fontMetrics;
    return widget ? widget->fontMetrics() : QApplication::fontMetrics();
}

int MeasureContext::dpiScaled(int pixels) const
{
    constexpr int ReferenceDpi = 96;
    if (QApplication::testAttribute(Qt::AA_Use96Dpi))
        return pixels;
    return int(pixels * fontMetrics().fontDpi() / ReferenceDpi);
}

int MeasureContext::rowHeight(int padding) const
{
    const int height = fontMetrics().height() + 2 * dpiScaled(padding);
    return (height + Rhythm - 1) / Rhythm * Rhythm;
}

int MeasureContext::indicatorSize() const
{
    constexpr int SmallestSize = 16;
    constexpr int LessThanText = 3;
    return qMax(dpiScaled(SmallestSize), (fontMetrics().height() - LessThanText) / Rhythm * Rhythm);
}

int MeasureContext::controlHeight() const
{
    return rowHeight(InputMetrics::ControlPadding);
}

} // namespace BRELK
