#include "Families.h"
#include "StyleContext.h"

// Tool buttons.

namespace BRELK::ToolButtons {

namespace {

constexpr int HorizontalPadding = 6;
constexpr int VerticalPadding = 4;

} // namespace

QSize toolButtonSize(const MeasureContext& context, const QStyleOptionToolButton& button,
                     const QSize& contents, const QSize&)
{
    const int width = contents.width() + 2 * context.dpiScaled(HorizontalPadding);
    const int height =
        qMax(contents.height() + 2 * context.dpiScaled(VerticalPadding), context.controlHeight());
    const bool iconOnly = button.toolButtonStyle == Qt::ToolButtonIconOnly;
    return {iconOnly ? qMax(width, height) : width, height};
}

void paintLabel(const PaintContext& context, const QStyleOptionToolButton&)
{
    context.drawByBase(QStyle::CE_ToolButtonLabel);
}

void paintToolButton(const PaintContext& context, const QStyleOptionToolButton& button)
{
    context.drawByBase(QStyle::CC_ToolButton, button);
}

} // namespace BRELK::ToolButtons
