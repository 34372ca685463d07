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

    m_values.resize(1);
    for (const QString& name : knownNames(m_group)) {
        for (const QString& variant : {name, ThemeNames::twin(name)}) {
            m_places.insert(variant, int(m_values.size()));
            m_values.emplace_back();
        }
    }
    const QVariantMap values = variables.toMap().value(source.group).toMap();
    if (diagnostics().isDebugEnabled()) {
        for (const QString& name : knownNames(m_group))
            if (!name.isEmpty() && !values.contains(name))
                reportMissing(name);
    }
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
        const int place = m_places.value(entry.key(), int(m_values.size()));
        if (size_t(place) == m_values.size()) {
            m_places.insert(entry.key(), place);
            m_values.emplace_back();
        }
        m_values[size_t(place)] = convert<Value>(entry.value());
    }
}

template void FrozenGroup<QColor>::freeze(const QString&);
template void FrozenGroup<QBrush>::freeze(const QString&);
template void FrozenGroup<QFont>::freeze(const QString&);
template void FrozenGroup<double>::freeze(const QString&);
template void FrozenGroup<int>::freeze(const QString&);

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
