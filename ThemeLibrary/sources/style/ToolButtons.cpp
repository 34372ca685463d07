#include "ButtonContent.h"
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

namespace BRELK {

void BaseStyle::drawToolButtonArrow(const QStyle* style, const QStyleOptionToolButton* option,
                                    const QRect& rect, QPainter* painter,
                                    const QWidget* widget) const
{
    if (!style || !option || !painter)
        return;
    PrimitiveElement element;
    switch (option->arrowType) {
    case Qt::UpArrow: element = PE_IndicatorArrowUp; break;
    case Qt::DownArrow: element = PE_IndicatorArrowDown; break;
    case Qt::LeftArrow: element = PE_IndicatorArrowLeft; break;
    case Qt::RightArrow: element = PE_IndicatorArrowRight; break;
    default: return;
    }
    QStyleOption arrow = *option;
    arrow.rect = rect;
    ButtonContent::commonCallButtonText(arrow, widget);
    style->drawPrimitive(element, &arrow, painter, widget);
}

} // namespace BRELK
