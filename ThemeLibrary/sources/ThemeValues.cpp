#include "ThemeValues.h"

#include "ThemeResources.h"

#include <QCoreApplication>
#include <QLoggingCategory>

namespace BRELK {

using ThemeNames::Group;

namespace {

// Nothing of it is written by default.
Q_LOGGING_CATEGORY(diagnostics, "varn.theme", QtInfoMsg)

struct Source
{
    const QLatin1String& property;
    const QString& group;
};

Source sourceOf(Group group)
{
    using namespace ThemeResources;
    const QLatin1String& theme = getThemeVariablePropertyName();
    switch (group) {
    case Group::Color: return {theme, getColorsVarPrefix()};
    case Group::Brush: return {theme, getBrushesVarPrefix()};
    case Group::Font: return {theme, getFontsVarPrefix()};
    case Group::Opacity: return {theme, getOpacitiesVarPrefix()};
    case Group::Radius: return {theme, getCornerRadiusVarPrefix()};
    default: return {getInternalThemeVariablePropertyName(), getDisabledFactorsVarPrefix()};
    }
}

/// The names of the list, in the order of their places; those of other groups are empty.
std::vector<QString> knownNames(Group group)
{
    std::vector<QString> names;
    if (group == Group::Color) {
        names.assign(std::begin(ThemeNames::Colors), std::end(ThemeNames::Colors));
    } else if (group == Group::Brush) {
        names.assign(std::begin(ThemeNames::Brushes), std::end(ThemeNames::Brushes));
    } else {
        for (const ThemeNames::Word& word : ThemeNames::Words)
            names.push_back(word.group == group ? QString(word.text) : QString());
    }
    return names;
}

template <class Value>
Value convert(const QVariant& value)
{
    return value.value<Value>();
}

/// A color is no brush, although QVariant would convert it.
template <>
QBrush convert(const QVariant& value)
{
    return value.userType() == QMetaType::QBrush ? value.value<QBrush>() : QBrush();
}

} // namespace

void reportMissing(const QString& name)
{
    if (!diagnostics().isDebugEnabled() || themeValues().reportedMissing.contains(name))
        return;
    themeValues().reportedMissing.insert(name);
    qCDebug(diagnostics).noquote() << QString(QLatin1String("The theme has no ") + name);
}

template <class Value>
void FrozenGroup<Value>::freeze(const QString& firstName)
{
    const auto* app = QCoreApplication::instance();
    if (!app)
        return;
    const Source source = sourceOf(m_group);
    const QVariant variables = app->property(source.property.data());
    if (!variables.isValid() && themeValues().askedTooEarly.isEmpty())
        themeValues().askedTooEarly = firstName;

    m_variables = variables.toMap().value(source.group).toMap();
    const std::vector<QString> names = knownNames(m_group);
    // References stay good when others are added.
    m_values.reserve(1 + 2 * names.size() + size_t(m_variables.size()));
    m_values.resize(1);
    for (const QString& name : names) {
        for (const QString& variant : {name, ThemeNames::twin(name)}) {
            m_places.insert(variant, int(m_values.size()));
            m_values.push_back(convert<Value>(m_variables.value(variant)));
        }
        if (!name.isEmpty() && !m_variables.contains(name))
            reportMissing(name);
    }
}

/// Most programs ask for few of the composed brushes.
template <class Value>
int FrozenGroup<Value>::seek(const QString& name)
{
    constexpr int MostPlaces = 4096; // far more than there are names in a theme
    const auto found = m_variables.constFind(name);
    int place = 0;
    if (found == m_variables.constEnd()) {
        reportMissing(name);
    } else {
        place = int(m_values.size());
        m_values.push_back(convert<Value>(*found));
    }
    if (place > 0 || m_places.size() < MostPlaces)
        m_places.insert(name, place);
    return place;
}

template class FrozenGroup<QColor>;
template class FrozenGroup<QBrush>;
template class FrozenGroup<QFont>;
template class FrozenGroup<double>;
template class FrozenGroup<int>;

void FrozenPair::freeze()
{
    m_known = true;
    m_enabled = themeValues().brushes.value(m_name, true);
    m_disabled = themeValues().brushes.value(m_name, false);
}

QIcon FrozenIcon::icon()
{
    if (!m_icon)
        m_icon.emplace(m_name);
    return *m_icon;
}

ThemeValues::ThemeValues() = default;

void letGoOfThemeValues()
{
    themeValues() = ThemeValues();
}

} // namespace BRELK
