#include "Families.h"
#include "StyleContext.h"

// Group boxes.

namespace BRELK::GroupBoxes {

QRect partRect(const StyleContext& context, const QStyleOptionGroupBox& groupBox,
               QStyle::SubControl part, const QRect&)
{
    const QRect rect = context.style.QCommonStyle::subControlRect(QStyle::CC_GroupBox, &groupBox,
                                                                  part, context.widget);
    const bool besideCheckBox =
        part == QStyle::SC_GroupBoxLabel && groupBox.subControls & QStyle::SC_GroupBoxCheckBox;
    return besideCheckBox ? rect.adjusted(1, 0, 2, 0) : rect;
}

void paintFrame(const PaintContext& context, const QStyleOptionFrame&)
{
    context.drawByBase(QStyle::PE_FrameGroupBox);
}

void paintGroupBox(const PaintContext& context, const QStyleOptionGroupBox& groupBox)
{
    const QStyleOptionGroupBox copy = groupBox;
    context.style.QCommonStyle::drawComplexControl(QStyle::CC_GroupBox, &copy, &context.painter,
                                                   context.widget);
}

} // namespace BRELK::GroupBoxes
