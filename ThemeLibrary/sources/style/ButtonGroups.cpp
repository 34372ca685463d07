#include "Shapes.h"
#include "ThemeNames.h"

// The segments of button groups.

namespace BRELK {

namespace {

Helpers::StraightCornerFlags segmentCorners(int index, int count, bool horizontal)
{
    if (count == 1)
        return Helpers::None;
    if (index == 0)
        return horizontal ? Helpers::RightCorners : Helpers::BottomCorners;
    if (index == count - 1)
        return horizontal ? Helpers::LeftCorners : Helpers::TopCorners;
    return Helpers::AllCorners;
}

/// Which neighbours a step of a workflow is linked to.
struct Links
{
    bool toFormer;
    bool toNext;
};

Links linksOf(int index, int count)
{
    return {index > 0, index == 0 || (index > 0 && index != count - 1)};
}

/// A pill with the dots of the links to its neighbours at its ends.
void drawWorkflowStep(const QRectF& rect, QPainter& painter, int diameter, const QBrush& dotBrush,
                      Links links, bool horizontal)
{
    const qreal inset = diameter / 2.0;
    painter.setBrush(Qt::NoBrush);
    Helpers::drawRoundedRectShape(rect.adjusted(inset, inset, -inset, -inset),
                                  int((rect.height() - diameter) / 2), Helpers::None, &painter);
    painter.setBrush(dotBrush);
    painter.setPen(themeValues().brushes.value(ThemeNames::ListBackgroundBrush).color());
    QRectF first(0, 0, diameter, diameter);
    first.moveCenter(rect.center());
    QRectF second = first;
    if (horizontal) {
        first.moveLeft(rect.left());
        second.moveLeft(rect.right() - diameter);
    } else {
        first.moveTop(rect.top());
        second.moveTop(rect.bottom() - diameter);
    }
    // With a radius beyond half the side these are circles, and quicker than ellipses.
    if (links.toFormer)
        Helpers::drawRoundedRectShape(first, diameter, Helpers::None, &painter);
    if (links.toNext)
        Helpers::drawRoundedRectShape(second, diameter, Helpers::None, &painter);
}

} // namespace

void BaseStyle::drawButtonGroup(const QRectF& rect, QPainter* painter, const QStyleOption* option,
                                int radius, ButtonBrushes brushes, const QWidget* widget) const
{
    if (!painter || !option)
        return;
    const QObject* group = widget ? widget->parent() : nullptr;
    const QVariant visibleIndex =
        WidgetProperties::value(widget, WidgetProperties::ButtonVisibleIndex);
    const int index = visibleIndex.toInt();
    const int count =
        WidgetProperties::value(group, WidgetProperties::ButtonGroupVisibleCount).toInt();
    const bool horizontal =
        WidgetProperties::value(group, WidgetProperties::Orientation).toInt() == Qt::Horizontal;

    // Deliberate: the painter keeps the pen and brush that are set here.
    if (WidgetProperties::flag(group, WidgetProperties::ButtonGroupWorkflow)) {
        const int diameter = proxy()->pixelMetric(PM_RadioButtonLabelSpacing, option, widget);
        drawWorkflowStep(rect, *painter, diameter, brushes.borderBrush, linksOf(index, count),
                         horizontal);
    } else if (index >= 0) {
        Helpers::drawRoundedRectShape(rect, radius, segmentCorners(index, count, horizontal),
                                      painter);
    }
}

} // namespace BRELK
