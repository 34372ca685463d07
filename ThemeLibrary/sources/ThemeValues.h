#pragma once

#include "EmbeddedIcons.h"
#include "ThemeNames.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QHash>
#include <QIcon>
#include <QSet>
#include <QVariant>

#include <array>
#include <optional>
#include <vector>

namespace BRELK {

/// Says once, where the logging category "varn.theme" is enabled, that the theme has no `name`.
void reportMissing(const QString& name);

/// A group of theme variables as it was when a value was first asked for. Nothing is copied while
/// there is no application object. References are good until the values are let go of.
template <class Value>
class FrozenGroup
{
public:
    explicit FrozenGroup(ThemeNames::Group group) : m_group(group) { }

    /// The value of a name that the library knows, or of its twin; a default one if there is none.
    template <ThemeNames::Group group>
    const Value& value(ThemeNames::Name<group> name, bool enabled = true)
    {
        if (m_values.empty())
            freeze(name.text);
        return at(placeOf(name.place, enabled));
    }

    const Value& value(const QString& name) { return at(placeOf(name)); }

    /// Where the value of any name is: the same place for all that have none. Negative while
    /// nothing is copied.
    int placeOf(const QString& name)
    {
        if (m_values.empty())
            freeze(name);
        if (m_values.empty())
            return -1;
        const auto place = m_places.constFind(name);
        return place != m_places.constEnd() ? *place : seek(name);
    }

    const Value& at(int place) const
    {
        return m_values.empty() ? m_missing : m_values[size_t(place)];
    }

private:
    static int placeOf(int namePlace, bool enabled)
    {
        return 1 + 2 * namePlace + (enabled ? 0 : 1);
    }

    void freeze(const QString& firstName);
    int seek(const QString& name);

    ThemeNames::Group m_group;
    Value m_missing{};
    /// What is missing, the names of the list, then others as they are asked for.
    std::vector<Value> m_values;
    QHash<QString, int> m_places;
    QVariantMap m_variables; ///< as the application had them
};

/// A brush and its twin, both looked up when one of them is first asked for, even if there is no
/// application object yet. References are good for the life of the process.
class FrozenPair
{
public:
    explicit FrozenPair(ThemeNames::BrushName name) : m_name(name) { }

    const QBrush& value(bool enabled)
    {
        if (!m_known)
            freeze();
        return enabled ? m_enabled : m_disabled;
    }

private:
    void freeze();

    ThemeNames::BrushName m_name;
    bool m_known = false;
    QBrush m_enabled;
    QBrush m_disabled;
};

/// A mark of the style. It outlives a change of the icon theme: it looks itself up again.
class FrozenIcon
{
public:
    explicit FrozenIcon(QLatin1String name) : m_name(name) { }

    QIcon icon();

private:
    QLatin1String m_name;
    std::optional<EmbeddedIcons::StyleIcon> m_icon;
};

/// Where the composed brushes of a kind are, by all other words of their names; negative where none
/// was sought yet.
struct ComposedPlaces
{
    static constexpr size_t Words = 3; ///< families, check states, pointer states and parts

    ComposedPlaces() { places.fill(-1); }

    std::array<int, 2 * Words * Words * Words * Words> places; ///< the twins first
};

/// The factors of disabled colors, in percent.
struct DisabledFactors
{
    int lightForeground;
    int lightBackground;
    int darkForeground;
    int darkBackground;
};

/// All that is frozen at its first use and kept for the life of the process: this is the whole
/// list.
struct ThemeValues
{
    ThemeValues();

    FrozenGroup<QColor> colors{ThemeNames::Group::Color};
    FrozenGroup<QBrush> brushes{ThemeNames::Group::Brush};
    FrozenGroup<QFont> fonts{ThemeNames::Group::Font};
    FrozenGroup<double> opacities{ThemeNames::Group::Opacity};
    FrozenGroup<double> radii{ThemeNames::Group::Radius};
    FrozenGroup<int> factors{ThemeNames::Group::Factor};

    FrozenPair border{ThemeNames::CardBorderBrush};
    FrozenPair groove{ThemeNames::GrooveBackgroundBrush};
    ComposedPlaces composedBrushes;
    QHash<QString, ComposedPlaces> composedBrushesOfKinds;
    std::optional<DisabledFactors> disabledFactors;
    std::optional<int> listViewPadding;
    FrozenIcon leftArrow{QLatin1String("chevron.left")};
    FrozenIcon rightArrow{QLatin1String("chevron.right")};
    FrozenIcon upArrow{QLatin1String("chevron.up")};
    FrozenIcon downArrow{QLatin1String("chevron.down")};
    FrozenIcon calendar{QLatin1String("view.calendar")};
    QIcon horizontalExtension; ///< the button of a tool bar that is too short
    QIcon verticalExtension;

    QSet<QString> reportedMissing;
    /// The name that was first asked for before any theme was applied.
    QString askedTooEarly;
};

/// The one object of them.
inline ThemeValues& themeValues()
{
    static ThemeValues sValues;
    return sValues;
}

/// Lets go of all of it: everything is frozen anew at its next use.
void letGoOfThemeValues();

} // namespace BRELK
