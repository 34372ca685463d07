#include "ButtonContent.h"

#include "ThemeColorHelper.h"
#include "WidgetTraits.h"

#include <QToolButton>

namespace BRELK::ButtonContent {

namespace {

/// Whether a tool button shows a ground of its own.
bool hasPanel(const QStyleOption& option)
{
    if (option.state & (QStyle::State_Sunken | QStyle::State_On))
        return true;
    return option.state & QStyle::State_Raised
           && (BaseStyle::isHovered(&option) || !(option.state & QStyle::State_AutoRaise));
}

void setForeground(QStyleOption& option, const QBrush& brush)
{
    if (option.palette.brush(QPalette::ButtonText) != brush)
        option.palette.setBrush(option.palette.currentColorGroup(), QPalette::ButtonText, brush);
}

template <class Option>
void prepare(Option& option, const QWidget* widget)
{
    const QBrush brush = foreground(option, widget);
    setForeground(option, brush);
    modifyStyleOptionIcon(option, brush);
}

} // namespace

QBrush foreground(const QStyleOption& option, const QWidget* widget)
{
    const QBrush themed = BaseStyle::buttonBrushes(&option, widget).foregroundBrush;
    // The bar of a calendar is highlighted.
    if (WidgetTraits::isCalendarButton(widget) && qobject_cast<const QToolButton*>(widget))
        return hasPanel(option) ? themed : option.palette.brush(QPalette::HighlightedText);
    return textBrush(option, widget, QPalette::ButtonText, themed);
}

QBrush textBrush(const QStyleOption& option, const QWidget* widget, QPalette::ColorRole role,
                 const QBrush& themed)
{
    const bool isApplications = widget && widget->palette().resolve() & (1U << role);
    return isApplications || themed.style() == Qt::NoBrush ? option.palette.brush(role) : themed;
}

QIcon commonModifyStyleOptionIcon(const QIcon& icon, const QBrush& brush)
{
    if (icon.isNull() || brush.style() == Qt::NoBrush)
        return icon;
    return ThemeColorHelper::getModifiedIconWithForegroundBrush(icon, brush);
}

void modifyStyleOptionIcon(QStyleOptionButton& option, const QBrush& brush)
{
    option.icon = commonModifyStyleOptionIcon(option.icon, brush);
}

void modifyStyleOptionIcon(QStyleOptionToolButton& option, const QBrush& brush)
{
    option.icon = commonModifyStyleOptionIcon(option.icon, brush);
}

void modifyStyleOptionIcon(QStyleOptionComboBox& option, const QBrush& brush)
{
    option.currentIcon = commonModifyStyleOptionIcon(option.currentIcon, brush);
}

void modifyStyleOptionIcon(QStyleOptionViewItem& option, const QBrush& brush)
{
    option.icon = commonModifyStyleOptionIcon(option.icon, brush);
}

void commonCallButtonText(QStyleOption& option, const QWidget* widget)
{
    setForeground(option, foreground(option, widget));
}

void commonCallButtonText(QStyleOptionButton& option, const QWidget* widget)
{
    prepare(option, widget);
}

void commonCallButtonText(QStyleOptionToolButton& option, const QWidget* widget)
{
    prepare(option, widget);
}

} // namespace BRELK::ButtonContent
