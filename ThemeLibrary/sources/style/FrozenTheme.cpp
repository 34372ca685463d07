#include "FrozenTheme.h"

#include "BaseStyle.h"

#include <array>
#include <optional>

namespace BRELK::FrozenTheme {

namespace {

/// A value for each name and for its "Disabled" twin.
template <class Value, auto Count>
using Values = std::array<std::optional<Value>, 2 * size_t(Count)>;

template <class Values, class Value>
const Value& find(Values& values, ThemeNames::Name<Value> name, bool enabled,
                  Value (*lookUp)(QString, bool))
{
    auto& value = values.at(2 * size_t(name.place) + (enabled ? 1 : 0));
    if (!value)
        value = lookUp(name, enabled);
    return *value;
}

} // namespace

const QBrush& brush(ThemeNames::Name<QBrush> name, bool enabled)
{
    static Values<QBrush, ThemeNames::BrushPlace::Count> sBrushes;
    return find(sBrushes, name, enabled, &BaseStyle::getBrush);
}

const QColor& color(ThemeNames::Name<QColor> name, bool enabled)
{
    static Values<QColor, ThemeNames::ColorPlace::Count> sColors;
    return find(sColors, name, enabled, &BaseStyle::getColor);
}

} // namespace BRELK::FrozenTheme
