#include "ItemColors.h"

#include "OwnColors.h"
#include "ThemeNames.h"
#include "WidgetTraits.h"

namespace BRELK::ItemColors {

namespace {

/// Whether the keyboard moves in this view. The rows of a popup have it while they are seen.
bool isInFront(const StyleContext& context)
{
    return context.widget
               ? context.widget->hasFocus() || WidgetTraits::isComboBoxList(context.widget)
               : context.has(QStyle::State_Active);
}

/// An application that colors the selection keeps its color.
bool hasOwnSelection(const StyleContext& context)
{
    const bool isSet =
        context.widget && context.widget->palette().resolve() & (1U << QPalette::Highlight);
    return isSet || OwnColors::has(context, QPalette::Highlight);
}

/// What the model fills the item with; none when a selection covers it.
QBrush modelGround(const StyleContext& context)
{
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(&context.option);
    const bool isSeen = item && !context.has(QStyle::State_Selected);
    return isSeen && item->backgroundBrush.isOpaque() ? item->backgroundBrush : Qt::NoBrush;
}

} // namespace

QPalette::ColorGroup group(const StyleContext& context)
{
    if (!context.enabled())
        return QPalette::Disabled;
    const bool isActive = context.has(QStyle::State_Selected) ? isInFront(context)
                                                              : context.has(QStyle::State_Active);
    return isActive ? QPalette::Active : QPalette::Inactive;
}

QBrush selection(const StyleContext& context)
{
    if (hasOwnSelection(context))
        return context.option.palette.brush(group(context), QPalette::Highlight);
    return context.brush(isInFront(context) ? ThemeNames::MainBrush
                                            : ThemeNames::MainSubLevel1Brush);
}

QBrush words(const StyleContext& context)
{
    const bool isSelected = context.has(QStyle::State_Selected);
    // A disabled selection is a tint so faint that the words of other rows are read on it.
    const bool isFaint = !context.enabled() && !hasOwnSelection(context);
    const QPalette::ColorRole role =
        isSelected && !isFaint ? QPalette::HighlightedText : QPalette::Text;
    const QBrush& given = context.option.palette.brush(group(context), role);
    const QBrush rowGround = modelGround(context);
    const bool isOwn =
        rowGround.style() != Qt::NoBrush || OwnColors::has(context, role)
        || OwnColors::has(context, isSelected ? QPalette::Highlight : QPalette::Base);
    if (!isOwn || OwnColors::isForThis(context, role))
        return given;
    QBrush ground = rowGround;
    if (isSelected)
        ground = selection(context);
    else if (ground.style() == Qt::NoBrush)
        ground = OwnColors::ground(context, QPalette::Base,
                                   context.brush(ThemeNames::ItemViewBackgroundBrush));
    // Who colors a row alone has not seen the theme's words on it.
    const double least = rowGround.style() == Qt::NoBrush ? OwnColors::Readable : 3;
    return OwnColors::readable(ground, {given, context.style.getPalette().brush(role)}, least);
}

} // namespace BRELK::ItemColors
