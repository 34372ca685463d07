#include "Families.h"
#include "StyleContext.h"

// The arrows of menus, combo boxes, tool buttons and branches.

namespace BRELK::Arrows {

namespace {

constexpr int MenuIndicatorSize = 16;
constexpr int ComboBoxIndicatorSize =
    24; ///< where the text of a combo box ends, its arrow area begins

} // namespace

int metric(QStyle::PixelMetric, const MeasureContext& context)
{
    const bool inComboBox = qstyleoption_cast<const QStyleOptionComboBox*>(context.option);
    return context.dpiScaled(inComboBox ? ComboBoxIndicatorSize : MenuIndicatorSize);
}

void paintDown(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_IndicatorArrowDown);
}

void paintLeft(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_IndicatorArrowLeft);
}

void paintRight(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_IndicatorArrowRight);
}

void paintUp(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_IndicatorArrowUp);
}

} // namespace BRELK::Arrows
