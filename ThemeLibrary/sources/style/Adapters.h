#pragma once

#include "StyleContext.h"

#include <optional>

/// Lets a table name functions that take the option type they work on: the adapter casts the
/// option, and calls the function only when it has that type. All of it is resolved when compiling;
/// a table entry is a plain pointer.
namespace BRELK {

using Painter = void (*)(const PaintContext&);
using RectRule = std::optional<QRect> (*)(const StyleContext&, QStyle::SubElement);
using PartRule = std::optional<QRect> (*)(const StyleContext&, QStyle::SubControl);
using SizeRule = std::optional<QSize> (*)(const MeasureContext&, const QSize& contents);

template <auto Function>
struct Adapter;

template <void (*Paint)(const PaintContext&)>
struct Adapter<Paint>
{
    static void call(const PaintContext& context) { Paint(context); }
};

template <class Option, void (*Paint)(const PaintContext&, const Option&)>
struct Adapter<Paint>
{
    static void call(const PaintContext& context)
    {
        if (const auto* option = qstyleoption_cast<const Option*>(&context.option))
            Paint(context, *option);
    }
};

template <QRect (*Rule)(const StyleContext&, QStyle::SubElement)>
struct Adapter<Rule>
{
    static std::optional<QRect> call(const StyleContext& context, QStyle::SubElement element)
    {
        return Rule(context, element);
    }
};

template <class Option, QRect (*Rule)(const StyleContext&, const Option&, QStyle::SubElement)>
struct Adapter<Rule>
{
    static std::optional<QRect> call(const StyleContext& context, QStyle::SubElement element)
    {
        const auto* option = qstyleoption_cast<const Option*>(&context.option);
        return option ? std::optional(Rule(context, *option, element)) : std::nullopt;
    }
};

template <class Option, QRect (*Rule)(const StyleContext&, const Option&, QStyle::SubControl)>
struct Adapter<Rule>
{
    /// Rules place the parts of a control at the origin, where widgets paint; that of a delegate
    /// stands anywhere, and its parts with it.
    static std::optional<QRect> call(const StyleContext& context, QStyle::SubControl part)
    {
        const auto* option = qstyleoption_cast<const Option*>(&context.option);
        if (!option)
            return std::nullopt;
        const QPoint place = option->rect.topLeft();
        if (place.isNull())
            return Rule(context, *option, part);
        Option atOrigin = *option;
        atOrigin.rect.moveTo(0, 0);
        const QRect rect = Rule({context.style, atOrigin, context.widget}, atOrigin, part);
        return rect.isNull() ? rect : rect.translated(place);
    }
};

template <class Option, QSize (*Rule)(const MeasureContext&, const Option&, const QSize&)>
struct Adapter<Rule>
{
    static std::optional<QSize> call(const MeasureContext& context, const QSize& contents)
    {
        const auto* option = qstyleoption_cast<const Option*>(context.option);
        return option ? std::optional(Rule(context, *option, contents)) : std::nullopt;
    }
};

/// The table entry for `Function`.
template <auto Function>
constexpr auto by = &Adapter<Function>::call;

} // namespace BRELK
