#include "ThemeResolvers.h"

#include "ThemeNames.h"

#include <QGradient>

#include <algorithm>
#include <limits>
#include <utility>

namespace BRELK {

namespace {

/// Whether `entries` has a definition of `name` that is no derived twin.
bool isWritten(const ThemeEntries& entries, const QString& name)
{
    const ThemeEntries::Definitions& definitions = entries.getDefinitions(name);
    return !definitions.isEmpty() && definitions.first().twinOf.isEmpty();
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

bool ThemeResolver::isInternal(const QString& name) const
{
    const auto node = m_nodes.constFind(name);
    return node != m_nodes.constEnd() && node->internal;
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

ThemeColorResolver::ThemeColorResolver(const ThemeEntries& entries, const DisabledColors& disabled,
                                       double wordContrast)
    : ThemeResolver(entries), m_disabled(disabled)
{
    m_colors.wordContrast = wordContrast;
}

void ThemeColorResolver::splitColors(QMap<QString, QColor>& published,
                                     QMap<QString, QColor>& internal) const
{
    for (auto color = m_colors.begin(); color != m_colors.end(); ++color)
        (isInternal(color.key()) ? internal : published).insert(color.key(), *color);
}

QString ThemeColorResolver::firstUnsettled(const QString& name, const QStringList& named) const
{
    for (const QString& other : named) {
        // A color may be called like the literal color that it is.
        const QString next =
            other == name && QColor::isValidColor(other) ? QString() : unsettled(other);
        if (!next.isEmpty())
            return next;
    }
    return {};
}

QString ThemeColorResolver::getDependency(const QString& name, const ThemeEntry& entry) const
{
    if (entry.twinOf.isEmpty())
        return firstUnsettled(name, namedColors(entry.element));
    const QString original = unsettled(entry.twinOf);
    return original.isEmpty() ? firstUnsettled(name, m_disabled.getNamedColors(entry.twinOf))
                              : original;
}

bool ThemeColorResolver::evaluate(const QString& name, const ThemeEntry& entry)
{
    bool ok = true;
    if (entry.twinOf.isEmpty()) {
        entry.element.checkTextElement({"name", "internal"}, derivationAttributes());
        const QColor color = readColor(entry.element, m_colors, ok);
        if (ok)
            m_colors.insert(name, color);
        return ok;
    }
    const auto original = m_colors.constFind(entry.twinOf);
    if (original == m_colors.constEnd())
        return false;
    const QColor color = m_disabled.derived(*original, entry.twinOf, m_colors);
    m_colors.insert(name, color);
    return true;
}

ThemeBrushResolver::ThemeBrushResolver(const ThemeEntries& entries,
                                       const ThemeEntries& colorEntries, const ThemeColors& colors,
                                       const DisabledColors& disabled)
    : ThemeResolver(entries), m_colorEntries(colorEntries), m_colors(colors), m_disabled(disabled)
{ }

bool ThemeBrushResolver::isBrush(const QString& tag)
{
    return tag == QLatin1String("Brush") || BrushReader::forTag(tag);
}

void ThemeBrushResolver::splitBrushes(QMap<QString, QBrush>& published,
                                      QMap<QString, QBrush>& internal) const
{
    for (auto value = m_values.begin(); value != m_values.end(); ++value)
        (isInternal(value.key()) ? internal : published).insert(value.key(), value->brush);
}

bool ThemeBrushResolver::isLastOne(const ThemeEntry& entry) const
{
    return m_lastEntry && m_lastEntry->element == entry.element;
}

QString ThemeBrushResolver::getDependency(const QString& name, const ThemeEntry& entry) const
{
    Q_UNUSED(name)
    if (!entry.twinOf.isEmpty()) {
        const QString original = unsettled(entry.twinOf);
        return original.isEmpty() ? unsettled(m_values.value(entry.twinOf).twin) : original;
    }
    return !isLastOne(entry) && isAlias(entry.element) ? unsettled(entry.element.getText())
                                                       : QString();
}

ThemeBrushResolver::Value ThemeBrushResolver::readAlias(const ThemeElement& element, bool& ok) const
{
    const QString named = element.getText();
    element.checkTextElement({"name", "internal"});
    const auto found = m_values.constFind(named);
    if (found == m_values.constEnd()) {
        element.reject(quoted(named) + QStringLiteral(" is no brush of the theme"));
        ok = false;
        return {};
    }
    Value value = *found;
    const QString twin = ThemeNames::twin(named);
    if (isWritten(getEntries(), twin))
        value.twin = twin;
    return value;
}

ThemeBrushResolver::Value ThemeBrushResolver::readValue(const ThemeElement& element, bool& ok) const
{
    if (isAlias(element))
        return readAlias(element, ok);
    Value value;
    value.brush = BrushReader::forTag(element.getTag())->readBrush(element, m_colors, ok);
    if (!value.brush.gradient() && !hasDerivation(element))
        value.color = element.getText();
    return value;
}

QBrush ThemeBrushResolver::derivedTwin(const QString& original, const Value& value) const
{
    const auto named = m_values.constFind(value.twin);
    if (named != m_values.constEnd())
        return named->brush;
    const QString twin = ThemeNames::twin(value.color);
    if (isWritten(m_colorEntries, twin) && m_colors.contains(twin))
        return m_colors.value(twin);
    return m_disabled.derived(value.brush, original, m_colors);
}

bool ThemeBrushResolver::evaluate(const QString& name, const ThemeEntry& entry)
{
    if (!entry.twinOf.isEmpty()) {
        const auto original = m_values.constFind(entry.twinOf);
        if (original == m_values.constEnd())
            return false;
        const QBrush twin = derivedTwin(entry.twinOf, *original);
        m_values.insert(name, {twin, {}, {}});
        return true;
    }
    bool ok = true;
    if (!isLastOne(entry))
        m_lastValue = readValue(entry.element, ok);
    m_lastEntry = ok ? &entry : nullptr;
    if (ok)
        m_values.insert(name, m_lastValue);
    return ok;
}

} // namespace BRELK
