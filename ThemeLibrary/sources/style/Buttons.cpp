#include "Families.h"
#include "StyleContext.h"

// Push buttons, command links, and the panels of everything that looks like a button.

namespace BRELK::Buttons {

namespace {

constexpr int HorizontalPadding = 12;
constexpr int VerticalPadding = 4;
constexpr int IconOnlyPadding = 6;
constexpr int SmallestTextWidth = 72;
constexpr int Margin = 8;
constexpr int IconSize = 16;

} // namespace

int metric(QStyle::PixelMetric metric, const MeasureContext& context)
{
    switch (metric) {
    case QStyle::PM_ButtonMargin: return context.dpiScaled(Margin);
    case QStyle::PM_ButtonIconSize: return context.dpiScaled(IconSize);
    default:
        return 0; // the default button needs no room of its own, and pressed labels stay where they
                  // are
    }
}

QSize buttonSize(const MeasureContext& context, const QStyleOptionButton& button,
                 const QSize& contents, const QSize&)
{
    const bool hasText = !button.text.isEmpty();
    const int padding = context.dpiScaled(hasText ? HorizontalPadding : IconOnlyPadding);
    const int smallestWidth = hasText ? context.dpiScaled(SmallestTextWidth) : 0;
    const int height = contents.height() + 2 * context.dpiScaled(VerticalPadding);
    const QSize size(qMax(contents.width() + 2 * padding, smallestWidth),
                     qMax(height, context.controlHeight()));
    if (!WidgetProperties::flag(context.widget, WidgetProperties::Circular))
        return size;
    const int diameter = hasText ? qMax(size.width(), size.height()) : size.height();
    return {diameter, diameter};
}

void paintDefaultFrame(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_FrameDefaultButton);
}

void paintPanel(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_PanelButtonCommand);
}

void paintButton(const PaintContext& context, const QStyleOptionButton&)
{
    context.drawByBase(QStyle::CE_PushButton);
}

void paintBevel(const PaintContext& context, const QStyleOptionButton&)
{
    context.drawByBase(QStyle::CE_PushButtonBevel);
}

void paintLabel(const PaintContext& context, const QStyleOptionButton&)
{
    context.drawByBase(QStyle::CE_PushButtonLabel);
}

} // namespace BRELK::Buttons
