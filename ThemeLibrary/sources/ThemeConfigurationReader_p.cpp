#include "ThemeConfigurationReader_p.h"

#include "ThemeColorHelper.h"
#include "ThemeNames.h"

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

ThemeResolver::ThemeResolver(const ThemeEntries& entries) : m_entries(entries)
{
    m_nodes.reserve(entries.getNames().size());
    for (const QString& name : entries.getNames())
        m_nodes.insert(name, {name, &entries.getDefinitions(name)});
}

void ThemeResolver::resolve()
{
    for (const QString& name : m_entries.getNames()) {
        push(m_nodes[name]);
        while (!m_stack.isEmpty())
            step();
    }
}

QString ThemeResolver::unsettled(const QString& name) const
{
    const auto node = m_nodes.constFind(name);
    return node == m_nodes.constEnd() || node->settled ? QString() : name;
}

void ThemeResolver::push(Node& node)
{
    node.waiting = true;
    m_stack.append(&node);
}

void ThemeResolver::step()
{
    Node& node = *m_stack.last();
    if (node.settled || node.current == node.definitions->size()) {
        node.settled = true;
        node.waiting = false;
        m_stack.removeLast();
        return;
    }
    const ThemeEntry& entry = node.getEntry();
    const QString dependency = getDependency(node.name, entry);
    if (!dependency.isEmpty()) {
        Node& next = m_nodes[dependency];
        if (next.waiting)
            breakCycle(next);
        else
            push(next);
    } else if (evaluate(node.name, entry)) {
        node.internal = entry.twinOf.isEmpty() ? entry.internal : isInternal(entry.twinOf);
        node.settled = true;
    } else {
        ++node.current;
    }
}

/// Drops those definitions of the cycle from `node` on that are in the most derived file, as it is
/// their fault.
void ThemeResolver::breakCycle(Node& node)
{
    const QVector<Node*> cycle = m_stack.mid(m_stack.lastIndexOf(&node));
    QStringList names;
    int level = std::numeric_limits<int>::max();
    for (const Node* member : cycle) {
        names += member->name;
        level = std::min(level, member->getEntry().level);
    }
    bool isReported = false;
    for (Node* member : cycle) {
        if (member->getEntry().level != level)
            continue;
        if (!isReported)
            member->getEntry().element.reject(QStringLiteral("it leads back to itself, by way of ")
                                              + quoted(names.join(QLatin1String(", "))));
        isReported = true;
        ++member->current;
    }
    while (m_stack.last() != &node)
        m_stack.takeLast()->waiting = false;
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
        const ThemeEntries::Definitions twins =
            getEntries().getDefinitions(ThemeNames::twin(named));
        if (!twins.isEmpty() && twins.first().twinOf.isEmpty())
            return ThemeNames::twin(named);
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
