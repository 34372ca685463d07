#include "ButtonContent.h"
#include "Families.h"
#include "Shapes.h"
#include "WidgetTraits.h"

#include <QToolButton>

// The arrows of menus, combo boxes, tool buttons and branches.
//
// Properties: "no menu arrow".

namespace BRELK::Arrows {

namespace {

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

/// Icons of the icon theme outlive a change of theme: they look themselves up again.
const QIcon& leftArrow()
{
    static const QIcon sLeftArrowIcon = QIcon::fromTheme(QStringLiteral("chevron.left"));
    return sLeftArrowIcon;
}

const QIcon& rightArrow()
{
    static const QIcon sRightArrowIcon = QIcon::fromTheme(QStringLiteral("chevron.right"));
    return sRightArrowIcon;
}

const QIcon& upArrow()
{
    static const QIcon sUpArrowIcon = QIcon::fromTheme(QStringLiteral("chevron.up"));
    return sUpArrowIcon;
}

const QIcon& downArrow()
{
    static const QIcon sDownArrowIcon = QIcon::fromTheme(QStringLiteral("chevron.down"));
    return sDownArrowIcon;
}

const QIcon& calendar()
{
    static const QIcon sCalendarIcon = QIcon::fromTheme(QStringLiteral("view.calendar"));
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
