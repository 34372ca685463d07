#include "Families.h"
#include "PainterSaver.h"
#include "Shapes.h"
#include "ThemeNames.h"

// Group boxes.

namespace BRELK::GroupBoxes {

QRect partRect(const StyleContext& context, const QStyleOptionGroupBox& groupBox,
               QStyle::SubControl part)
{
    const QRect rect = context.style.QCommonStyle::subControlRect(QStyle::CC_GroupBox, &groupBox,
                                                                  part, context.widget);
    const bool besideCheckBox =
        part == QStyle::SC_GroupBoxLabel && groupBox.subControls & QStyle::SC_GroupBoxCheckBox;
    return besideCheckBox ? rect.adjusted(1, 0, 2, 0) : rect;
}

void paintFrame(const PaintContext& context, const QStyleOptionFrame& frame)
{
    const QRect& rect = frame.rect;
    if (frame.features & QStyleOptionFrame::Flat)
        Shapes::drawLine(context, rect.topLeft(), rect.topRight(), context.borderBrush());
    else
        Shapes::drawBox(context, rect, Shapes::cornerRadius(ThemeNames::MediumSize), QBrush(),
                        context.borderBrush());
}

void paintGroupBox(const PaintContext& context, const QStyleOptionGroupBox& groupBox)
{
    const PainterSaver saver(context.painter); // Qt leaves the pen of the title in it
    const QStyleOptionGroupBox copy = groupBox;
    context.style.QCommonStyle::drawComplexControl(QStyle::CC_GroupBox, &copy, &context.painter,
                                                   context.widget);
}

} // namespace BRELK::GroupBoxes
