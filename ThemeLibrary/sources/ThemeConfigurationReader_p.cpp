#include "ThemeConfigurationReader_p.h"

#include "ThemeColorHelper.h"

#include <QGradient>

#include <algorithm>
#include <limits>

namespace BRELK {

namespace {

bool isForeground(const QString& name)
{
    return name.contains(QLatin1String("Foreground")) || name.contains(QLatin1String("Text"))
           || name.contains(QLatin1String("Link"));
}

QBrush disabledBrush(const QBrush& brush, bool foreground)
{
    if (!brush.gradient())
        return ThemeColorHelper::disabled(brush.color(), foreground);
    QGradient gradient = *brush.gradient();
    QGradientStops stops = gradient.stops();
    for (QGradientStop& stop : stops)
        stop.second = ThemeColorHelper::disabled(stop.second, foreground);
    gradient.setStops(stops);
    return gradient;
}

bool isAlias(const ThemeElement& element)
{
    return element.getTag() == QLatin1String("Brush");
}

} // namespace

void ThemeResolver::resolve()
{
    for (const QString& name : m_entries.getNames()) {
        m_stack = QStringList{name};
        m_waiting = {name};
        while (!m_stack.isEmpty())
            step();
    }
}

QString ThemeResolver::unsettled(const QString& name) const
{
    return m_entries.contains(name) && !m_settled.contains(name) ? name : QString();
}

ThemeEntry ThemeResolver::getCurrent(const QString& name) const
{
    return m_entries.getDefinitions(name).at(m_currentDefinition.value(name));
}

void ThemeResolver::step()
{
    const QString name = m_stack.last();
    int& definition = m_currentDefinition[name];
    const bool isExhausted = definition >= m_entries.getDefinitions(name).size();
    if (isExhausted || m_settled.contains(name)) {
        m_settled.insert(name);
        m_waiting.remove(name);
        m_stack.removeLast();
        return;
    }
    const ThemeEntry entry = getCurrent(name);
    const QString dependency = getDependency(name, entry);
    if (m_waiting.contains(dependency)) {
        breakCycle(dependency);
    } else if (!dependency.isEmpty()) {
        m_stack.append(dependency);
        m_waiting.insert(dependency);
    } else if (evaluate(name, entry)) {
        m_internal.insert(name, entry.twinOf.isEmpty() ? entry.internal : isInternal(entry.twinOf));
        m_settled.insert(name);
    } else {
        ++definition;
    }
}

/// Drops those definitions of the cycle that are in the most derived file, as it is their fault.
void ThemeResolver::breakCycle(const QString& name)
{
    const QStringList cycle = m_stack.mid(m_stack.lastIndexOf(name));
    int level = std::numeric_limits<int>::max();
    for (const QString& member : cycle)
        level = std::min(level, getCurrent(member).level);

    bool isReported = false;
    for (const QString& member : cycle) {
        const ThemeEntry entry = getCurrent(member);
        if (entry.level != level)
            continue;
        if (!isReported)
            entry.element.reject(QStringLiteral("it leads back to itself, by way of ")
                                 + quoted(cycle.join(QLatin1String(", "))));
        isReported = true;
        ++m_currentDefinition[member];
    }
    while (m_stack.last() != name)
        m_waiting.remove(m_stack.takeLast());
}

QMap<QString, QColor> ThemeColorResolver::getColors(bool internal) const
{
    QMap<QString, QColor> colors;
    for (auto color = m_colors.begin(); color != m_colors.end(); ++color) {
        if (isInternal(color.key()) == internal)
            colors.insert(color.key(), *color);
    }
    return colors;
}

QString ThemeColorResolver::getDependency(const QString& name, const ThemeEntry& entry) const
{
    if (!entry.twinOf.isEmpty())
        return unsettled(entry.twinOf);
    const QString text = entry.element.getText();
    // A color may be called like the literal color that it is.
    return text == name && QColor::isValidColor(text) ? QString() : unsettled(text);
}

bool ThemeColorResolver::evaluate(const QString& name, const ThemeEntry& entry)
{
    bool ok = true;
    if (entry.twinOf.isEmpty()) {
        entry.element.checkTextElement({"name", "internal", "alpha", "lighter", "darker"});
        const QColor color = readColor(entry.element, m_colors, ok);
        if (ok)
            m_colors.insert(name, color);
        return ok;
    }
    const auto original = m_colors.constFind(entry.twinOf);
    if (original == m_colors.constEnd())
        return false;
    m_colors.insert(name, ThemeColorHelper::disabled(*original, isForeground(entry.twinOf)));
    return true;
}

ThemeBrushResolver::ThemeBrushResolver(const ThemeEntries& entries, const ThemeColors& colors)
    : ThemeResolver(entries), m_colors(colors)
{ }

bool ThemeBrushResolver::isBrush(const QString& tag)
{
    return tag == QLatin1String("Brush") || BrushReader::forTag(tag);
}

QMap<QString, QBrush> ThemeBrushResolver::getBrushes(bool internal) const
{
    QMap<QString, QBrush> brushes;
    for (auto brush = m_brushes.begin(); brush != m_brushes.end(); ++brush) {
        if (isInternal(brush.key()) == internal)
            brushes.insert(brush.key(), *brush);
    }
    return brushes;
}

QString ThemeBrushResolver::getDependency(const QString& name, const ThemeEntry& entry) const
{
    Q_UNUSED(name)
    if (!entry.twinOf.isEmpty()) {
        const QString original = unsettled(entry.twinOf);
        return original.isEmpty() ? unsettled(findTwin(entry)) : original;
    }
    return isAlias(entry.element) ? unsettled(entry.element.getText()) : QString();
}

/// The twin, written in a file, of a brush that the original of the twin `entry` names.
QString ThemeBrushResolver::findTwin(const ThemeEntry& entry) const
{
    for (QString named = m_namedBrushes.value(entry.twinOf); !named.isEmpty();
         named = m_namedBrushes.value(named)) {
        const ThemeEntries::Definitions twins = getEntries().getDefinitions(disabledName(named));
        if (!twins.isEmpty() && twins.first().twinOf.isEmpty())
            return disabledName(named);
    }
    return {};
}

bool ThemeBrushResolver::evaluate(const QString& name, const ThemeEntry& entry)
{
    bool ok = true;
    QBrush brush;
    if (!entry.twinOf.isEmpty()) {
        const QString twin = findTwin(entry);
        ok = m_brushes.contains(entry.twinOf);
        brush = m_brushes.contains(twin)
                    ? m_brushes.value(twin)
                    : disabledBrush(m_brushes.value(entry.twinOf), isForeground(entry.twinOf));
    } else if (isAlias(entry.element)) {
        const QString named = entry.element.getText();
        entry.element.checkTextElement({"name", "internal"});
        ok = m_brushes.contains(named);
        brush = m_brushes.value(named);
        if (ok)
            m_namedBrushes.insert(name, named);
        else
            entry.element.reject(quoted(named) + QStringLiteral(" is no brush of the theme"));
    } else {
        brush = BrushReader::forTag(entry.element.getTag())->readBrush(entry.element, m_colors, ok);
    }
    if (ok)
        m_brushes.insert(name, brush);
    return ok;
}

} // namespace BRELK
