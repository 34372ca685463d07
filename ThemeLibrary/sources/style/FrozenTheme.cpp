#include "FrozenTheme.h"

#include "BaseStyle.h"

#include <array>
#include <optional>

namespace BRELK::FrozenTheme {

namespace {

/// A value for each name of a list and for its twin.
template <class Value, size_t Count>
using Values = std::array<std::optional<Value>, 2 * Count>;

template <class Values, class Name, class Value>
const Value& find(Values& values, Name name, bool enabled, Value (*lookUp)(QString, bool))
{
    auto& value = values.at(2 * size_t(name.place) + (enabled ? 1 : 0));
    if (!value)
        value = lookUp(name, enabled);
    return *value;
}

} // namespace

const QBrush& brush(ThemeNames::BrushName name, bool enabled)
{
    static Values<QBrush, std::size(ThemeNames::Brushes)> sBrushes;
    return find(sBrushes, name, enabled, &BaseStyle::getBrush);
}

const QColor& color(ThemeNames::ColorName name, bool enabled)
{
    static Values<QColor, std::size(ThemeNames::Colors)> sColors;
    return find(sColors, name, enabled, &BaseStyle::getColor);
}

} // namespace BRELK::FrozenTheme
