#pragma once

#include "StyleContext.h"

#include <optional>

/// Lets a table name functions that take the option type they work on: the adapter casts the
/// option, and calls the function only when it has that type. All of it is resolved when compiling;
/// a table entry is a plain pointer.
namespace BRELK {

using Painter = void (*)(const PaintContext&);
using RectRule = QRect (*)(const StyleContext&, const QRect& base);
using PartRule = QRect (*)(const StyleContext&, QStyle::SubControl, const BasePart& base);
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

template <QRect (*Rule)(const StyleContext&, const QRect&)>
struct Adapter<Rule>
{
    static QRect call(const StyleContext& context, const QRect& base)
    {
        return Rule(context, base);
    }
};

template <class Option, QRect (*Rule)(const StyleContext&, const Option&, const QRect&)>
struct Adapter<Rule>
{
    static QRect call(const StyleContext& context, const QRect& base)
    {
        const auto* option = qstyleoption_cast<const Option*>(&context.option);
        return option ? Rule(context, *option, base) : base;
    }
};

template <class Option,
          QRect (*Rule)(const StyleContext&, const Option&, QStyle::SubControl, const BasePart&)>
struct Adapter<Rule>
{
    /// Rules place the parts of a control at the origin, where widgets paint; that of a delegate
    /// stands anywhere, and its parts with it.
    static QRect call(const StyleContext& context, QStyle::SubControl part, const BasePart& base)
    {
        const auto* option = qstyleoption_cast<const Option*>(&context.option);
        if (!option)
            return base.rect();
        const QPoint place = option->rect.topLeft();
        if (place.isNull())
            return Rule(context, *option, part, base);
        Option atOrigin = *option;
        atOrigin.rect.moveTo(0, 0);
        const StyleContext moved{context.style, atOrigin, context.widget};
        const QRect rect = Rule(moved, atOrigin, part, base.of(atOrigin));
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
