#include "Families.h"
#include "StyleContext.h"

// Spin boxes, date and time editors.

namespace BRELK::SpinBoxes {

namespace {

constexpr int ButtonWidth = 14;
constexpr int ButtonMargin = 1; ///< between the buttons and the right border
constexpr int TextPadding = 4;

bool hasButtons(const QStyleOptionSpinBox& spinBox)
{
    return spinBox.buttonSymbols != QAbstractSpinBox::NoButtons;
}

} // namespace

QSize spinBoxSize(const MeasureContext& context, const QStyleOptionSpinBox& spinBox,
                  const QSize& contents, const QSize&)
{
    const int buttons = hasButtons(spinBox) ? ButtonWidth + ButtonMargin : 0;
    const int height =
        spinBox.frame ? qMax(contents.height() + 2, context.controlHeight()) : contents.height();
    return {contents.width() + 2 * context.dpiScaled(TextPadding) + buttons, height};
}

QRect partRect(const StyleContext& context, const QStyleOptionSpinBox& spinBox,
               QStyle::SubControl part, const QRect& base)
{
    const QRect& box = spinBox.rect;
    const int buttonLeft = box.width() - ButtonWidth - ButtonMargin;
    const int half = box.height() / 2;
    switch (part) {
    case QStyle::SC_SpinBoxUp:
        return hasButtons(spinBox) ? context.visual({buttonLeft, 0, ButtonWidth, half}) : QRect();
    case QStyle::SC_SpinBoxDown:
        return hasButtons(spinBox)
                   ? context.visual({buttonLeft, half, ButtonWidth, box.bottom() - half})
                   : QRect();
    case QStyle::SC_SpinBoxFrame: return context.visual(box);
    case QStyle::SC_SpinBoxEditField: {
        const int width = hasButtons(spinBox) ? buttonLeft - 1 : box.width();
        return context.visual({1, 1, width, box.height() - 2});
    }
    default: return context.visual(base);
    }
}

void paintMinus(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_IndicatorSpinMinus);
}

void paintPlus(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_IndicatorSpinPlus);
}

void paintSpinBox(const PaintContext& context, const QStyleOptionSpinBox& spinBox)
{
    context.drawByBase(QStyle::CC_SpinBox, spinBox);
}

} // namespace BRELK::SpinBoxes
