#include "ButtonContent.h"
#include "EmbeddedIcons.h"
#include "Families.h"
#include "Shapes.h"
#include "WidgetTraits.h"

#include <QToolButton>

// The arrows of menus, combo boxes, tool buttons and branches.
//
// Properties: "no menu arrow".

namespace BRELK::Arrows {

namespace {

using EmbeddedIcons::StyleIcon;

constexpr int MenuIndicatorSize = 20; ///< keeps the arrow off border and focus mark
constexpr int IconSize = 16;
constexpr int ComboBoxIndicatorSize =
    24; ///< where the text of a combo box ends, its arrow area begins

} // namespace

int indicatorWidth(const MeasureContext& context)
{
    const bool inComboBox = qstyleoption_cast<const QStyleOptionComboBox*>(context.option);
    return context.dpiScaled(inComboBox ? ComboBoxIndicatorSize : MenuIndicatorSize);
}

namespace {

QIcon leftArrow()
{
    static const StyleIcon sLeftArrowIcon(QStringLiteral("chevron.left"));
    return sLeftArrowIcon;
}

QIcon rightArrow()
{
    static const StyleIcon sRightArrowIcon(QStringLiteral("chevron.right"));
    return sRightArrowIcon;
}

QIcon upArrow()
{
    static const StyleIcon sUpArrowIcon(QStringLiteral("chevron.up"));
    return sUpArrowIcon;
}

QIcon downArrow()
{
    static const StyleIcon sDownArrowIcon(QStringLiteral("chevron.down"));
    return sDownArrowIcon;
}

QIcon calendar()
{
    static const StyleIcon sCalendarIcon(QStringLiteral("view.calendar"));
    return sCalendarIcon;
}

void paintArrow(const PaintContext& context, const QIcon& icon)
{
    // Deliberate: no widget, no arrow.
    if (!context.widget || context.flag(WidgetProperties::NoMenuArrow))
        return;
    const QBrush brush = qobject_cast<const QToolButton*>(context.widget)
                             ? ButtonContent::foreground(context.option, context.widget)
                             : context.option.palette.brush(QPalette::ButtonText);
    const QRect& rect = context.option.rect;
    const int size = qMin(context.measure().dpiScaled(IconSize), qMin(rect.width(), rect.height()));
    Shapes::drawIcon(context, icon, brush, rect, size);
}

} // namespace

void paintDown(const PaintContext& context)
{
    paintArrow(context,
               WidgetTraits::isCalendarPopupEditor(context.widget) ? calendar() : downArrow());
}

void paintLeft(const PaintContext& context)
{
    paintArrow(context, leftArrow());
}

void paintRight(const PaintContext& context)
{
    paintArrow(context, rightArrow());
}

void paintUp(const PaintContext& context)
{
    paintArrow(context, upArrow());
}

} // namespace BRELK::Arrows
