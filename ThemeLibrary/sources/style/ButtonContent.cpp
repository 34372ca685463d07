#include "ButtonContent.h"

#include "ThemeColorHelper.h"

namespace BRELK::ButtonContent {

namespace {

QBrush foreground(const QStyleOption& option, const QWidget* widget)
{
    return textBrush(option, widget, QPalette::ButtonText,
                     BaseStyle::buttonBrushes(&option, widget).foregroundBrush);
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
