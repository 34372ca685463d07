#include "Foregrounds.h"

#include "Kept.h"
#include "OwnColors.h"
#include "ThemeIcons.h"
#include "WidgetTraits.h"

#include <QToolButton>

namespace BRELK::Foregrounds {

namespace {

/// Whether a tool button shows a ground of its own.
bool hasPanel(const QStyleOption& option)
{
    if (option.state & (QStyle::State_Sunken | QStyle::State_On))
        return true;
    return option.state & QStyle::State_Raised
           && (BaseStyle::isHovered(&option) || !(option.state & QStyle::State_AutoRaise));
}

/// A palette, and what is changed in it.
struct PaletteKey
{
    qint64 palette;
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
    QBrush brush;

    friend bool operator==(const PaletteKey& one, const PaletteKey& other)
    {
        return one.palette == other.palette && one.group == other.group && one.role == other.role
               && one.brush == other.brush;
    }

    friend uint qHash(const PaletteKey& key, uint seed)
    {
        return ::qHash(key.palette, seed) ^ key.brush.color().rgba() ^ uint(key.group);
    }
};

} // namespace

QBrush of(const StyleContext& context)
{
    const BaseStyle::ButtonBrushes brushes =
        BaseStyle::buttonBrushes(&context.option, context.widget);
    const bool isToolButton = qobject_cast<const QToolButton*>(context.widget);
    const bool isOnPanel = !isToolButton || hasPanel(context.option);
    // The bar of a calendar is highlighted, unless it cannot be used.
    if (isToolButton && WidgetTraits::isCalendarButton(context.widget))
        return isOnPanel ? brushes.foregroundBrush
                         : context.option.palette.brush(
                             context.enabled() ? QPalette::HighlightedText : QPalette::Text);
    return ofText(context, QPalette::ButtonText, brushes.foregroundBrush,
                  isOnPanel ? brushes.backgroundBrush : QBrush());
}

QBrush ofText(const StyleContext& context, QPalette::ColorRole role, const QBrush& themed,
              const QBrush& ground)
{
    const QBrush& given = context.option.palette.brush(role);
    const bool isSet = context.widget && context.widget->palette().resolve() & (1U << role);
    const bool isOwn = isSet || OwnColors::has(context, role);
    const QBrush brush = isOwn || themed.style() == Qt::NoBrush ? given : themed;
    if (isOwn && OwnColors::isForThis(context, role))
        return brush;
    if (ground.style() == Qt::NoBrush && !OwnColors::has(context, QPalette::Window))
        return brush;
    if (ground.style() == Qt::NoBrush)
        return OwnColors::readable(context.option.palette.brush(QPalette::Window), {brush, given});
    const QBrush ownGround = OwnColors::controlGround(context);
    if (ownGround.style() != Qt::NoBrush)
        return OwnColors::readable(ownGround, {brush, given});
    return isOwn ? OwnColors::readable(ground, {brush, themed}) : brush;
}

void set(QStyleOption& option, const QBrush& brush, QPalette::ColorRole role)
{
    constexpr int BytesOfPalette = 4096;
    // To change one brush of a palette all others are copied: 7,000 instructions, a fifth of what a
    // push button takes.
    static Kept::Store<PaletteKey, QPalette> sPalettes;

    QPalette& palette = option.palette;
    if (palette.brush(role) == brush)
        return;
    const PaletteKey key{palette.cacheKey(), palette.currentColorGroup(), role, brush};
    if (const QPalette* known = sPalettes.find(key)) {
        palette = *known;
        return;
    }
    palette.setBrush(palette.currentColorGroup(), role, brush);
    sPalettes.keep(key, std::make_unique<QPalette>(palette), BytesOfPalette);
}

QIcon commonModifyStyleOptionIcon(const QIcon& icon, const QBrush& brush)
{
    if (icon.isNull() || brush.style() == Qt::NoBrush)
        return icon;
    return ThemeIcons::colored(icon, brush);
}

void commonCallButtonText(const BaseStyle& style, QStyleOption& option, const QWidget* widget)
{
    const QBrush brush = of({style, option, widget});
    set(option, brush);
    if (auto* button = qstyleoption_cast<QStyleOptionButton*>(&option))
        button->icon = commonModifyStyleOptionIcon(button->icon, brush);
    else if (auto* toolButton = qstyleoption_cast<QStyleOptionToolButton*>(&option))
        toolButton->icon = commonModifyStyleOptionIcon(toolButton->icon, brush);
}

} // namespace BRELK::Foregrounds
