#include "ButtonContent.h"

#include "ThemeColorHelper.h"
#include "WidgetTraits.h"

#include <QCache>
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

/// A palette, and the text of its buttons.
struct PaletteKey
{
    qint64 palette;
    QPalette::ColorGroup group;
    QBrush text;

    friend bool operator==(const PaletteKey& one, const PaletteKey& other)
    {
        return one.palette == other.palette && one.group == other.group && one.text == other.text;
    }

    friend uint qHash(const PaletteKey& key, uint seed)
    {
        return ::qHash(key.palette, seed) ^ key.text.color().rgba() ^ uint(key.group);
    }
};

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

void setForeground(QStyleOption& option, const QBrush& brush)
{
    constexpr int MostPalettes = 64;
    // To change one brush of a palette all others are copied, which takes longer than painting.
    static QCache<PaletteKey, QPalette> sPalettes(MostPalettes);

    QPalette& palette = option.palette;
    if (palette.brush(QPalette::ButtonText) == brush)
        return;
    const PaletteKey key{palette.cacheKey(), palette.currentColorGroup(), brush};
    if (const QPalette* known = sPalettes.object(key)) {
        palette = *known;
        return;
    }
    palette.setBrush(palette.currentColorGroup(), QPalette::ButtonText, brush);
    sPalettes.insert(key, new QPalette(palette));
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
