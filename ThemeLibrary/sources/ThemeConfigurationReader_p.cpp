#include "ThemeConfigurationReader_p.h"

#include "ThemeNames.h"

#include <QGradient>

#include <algorithm>
#include <limits>
#include <utility>

namespace BRELK {

namespace {

bool isForeground(const QString& name)
{
    // In one pass: each name of the theme is asked.
    for (int place = 0; place < name.size(); ++place) {
        const QChar first = name.at(place);
        if (first != u'F' && first != u'T' && first != u'L')
            continue;
        const QStringView rest = QStringView(name).mid(place);
        if (rest.startsWith(u"Foreground") || rest.startsWith(u"Text") || rest.startsWith(u"Link"))
            return true;
    }
    return false;
}

} // namespace

DisabledColors::DisabledColors(const ThemeEntries& rules, DisabledColor byFactors)
    : m_byFactors(std::move(byFactors))
{
    const auto take = [&rules](Rule& rule, const QString& of) {
        const ThemeEntry* definition = rules.getDefinition(of);
        // Without derivation it says that the factors count again.
        if (!definition || !hasDerivation(definition->element))
            return;
        rule.element = &definition->element;
        rule.named = namedColors(*rule.element).mid(1);
    };
    take(m_foreground, QStringLiteral("foreground"));
    take(m_background, QStringLiteral("background"));
}

DisabledColors::Rule& DisabledColors::ruleOf(const QString& name) const
{
    return isForeground(name) ? m_foreground : m_background;
}

const QStringList& DisabledColors::getNamedColors(const QString& name) const
{
    return ruleOf(name).named;
}

QColor DisabledColors::derived(const QColor& color, const QString& name,
                               const ThemeColors& colors) const
{
    return solid(color, name, colors).color();
}

QBrush DisabledColors::solid(const QColor& color, const QString& name,
                             const ThemeColors& colors) const
{
    Rule& rule = ruleOf(name);
    if (!rule.element)
        return m_byFactors(color, isForeground(name));
    const auto known = rule.derived.constFind(color.rgba());
    if (known != rule.derived.constEnd())
        return *known;
    bool ok = true;
    QBrush result = derivedColor(*rule.element, color, colors, ok);
    if (!ok)
        result = m_byFactors(color, isForeground(name));
    rule.derived.insert(color.rgba(), result);
    return result;
}

QBrush DisabledColors::derived(const QBrush& brush, const QString& name,
                               const ThemeColors& colors) const
{
    if (!brush.gradient())
        return solid(brush.color(), name, colors);
    QGradient gradient = *brush.gradient();
    QGradientStops stops = gradient.stops();
    for (QGradientStop& stop : stops)
        stop.second = derived(stop.second, name, colors);
    gradient.setStops(stops);
    return gradient;
}

} // namespace BRELK
