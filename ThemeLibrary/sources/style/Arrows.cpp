#include "ArrowIcons.h"
#include "Families.h"
#include "Foregrounds.h"
#include "WidgetTraits.h"

#include <QToolButton>

// The arrows of menus, combo boxes, tool buttons and branches.
//
// Properties: "no menu arrow".

namespace BRELK::Arrows {

namespace {

constexpr int BesideMenuArrow = 4; ///< keeps the arrow off border and focus mark
constexpr int BesideComboBoxArrow = 8; ///< up to where the text of a combo box ends

} // namespace

int indicatorWidth(const MeasureContext& context)
{
    const bool inComboBox = qstyleoption_cast<const QStyleOptionComboBox*>(context.option);
    return context.indicatorSize()
           + context.dpiScaled(inComboBox ? BesideComboBoxArrow : BesideMenuArrow);
}

namespace {

void paintArrow(const PaintContext& context, const QIcon& icon)
{
    // Deliberate: no widget, no arrow.
    if (!context.widget || context.flag(WidgetProperties::NoMenuArrow))
        return;
    const QBrush brush = qobject_cast<const QToolButton*>(context.widget)
                             ? Foregrounds::of(context)
                             : context.option.palette.brush(QPalette::ButtonText);
    ArrowIcons::draw(context, icon, context.option.rect, brush);
}

} // namespace

void paintDown(const PaintContext& context)
{
    paintArrow(context, WidgetTraits::isCalendarPopupEditor(context.widget)
                            ? themeValues().calendar.icon()
                            : themeValues().downArrow.icon());
}

void paintLeft(const PaintContext& context)
{
    paintArrow(context, themeValues().leftArrow.icon());
}

void paintRight(const PaintContext& context)
{
    paintArrow(context, themeValues().rightArrow.icon());
}

void paintUp(const PaintContext& context)
{
    paintArrow(context, themeValues().upArrow.icon());
}

} // namespace BRELK::Arrows
