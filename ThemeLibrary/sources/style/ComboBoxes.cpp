#include "Families.h"
#include "StyleContext.h"

// Combo boxes and calendar-popup date editors.

namespace BRELK::ComboBoxes {

namespace {

constexpr int TextPadding = 8;

/// The arrow area is a square of the box's height, but never narrower than the arrow.
int arrowExtent(const StyleContext& context, const QRect& box)
{
    return qMax(box.height(), context.metric(QStyle::PM_MenuButtonIndicator));
}

} // namespace

QSize comboBoxSize(const MeasureContext& context, const QStyleOptionComboBox& comboBox,
                   const QSize& contents, const QSize&)
{
    if (!comboBox.frame)
        return {contents.width() + context.metric(QStyle::PM_MenuButtonIndicator),
                contents.height()};
    const int height = qMax(contents.height() + 2, context.controlHeight());
    return {contents.width() + 2 * context.dpiScaled(TextPadding) + height, height};
}

QRect partRect(const StyleContext& context, const QStyleOptionComboBox& comboBox,
               QStyle::SubControl part, const QRect& base)
{
    // Deliberate: nothing is mirrored, combo boxes keep their sides in right-to-left layouts.
    const QRect& box = comboBox.rect;
    QRect rect = base;
    switch (part) {
    case QStyle::SC_ComboBoxEditField:
        if (comboBox.editable) {
            rect.setRight(box.width() - box.height());
            return rect.adjusted(1, 1, 2, -1);
        }
        rect.setRight(box.width() - context.metric(QStyle::PM_MenuButtonIndicator));
        return rect.adjusted(2, 0, 0, 0);
    case QStyle::SC_ComboBoxArrow:
        rect.setLeft(box.width() + 4 - arrowExtent(context, box));
        return rect;
    default: return base;
    }
}

void paintLabel(const PaintContext& context, const QStyleOptionComboBox&)
{
    context.drawByBase(QStyle::CE_ComboBoxLabel);
}

void paintComboBox(const PaintContext& context, const QStyleOptionComboBox& comboBox)
{
    context.drawByBase(QStyle::CC_ComboBox, comboBox);
}

} // namespace BRELK::ComboBoxes
