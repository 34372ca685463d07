#include "ThemeResolvers.h"

#include "ThemeNames.h"

#include <QGradient>

#include <algorithm>
#include <limits>
#include <utility>

namespace BRELK {

namespace {

bool isAlias(const ThemeElement& element)
{
    return element.getTag() == QLatin1String("Brush");
}

} // namespace

ThemeResolver::ThemeResolver(const ThemeEntries& entries) : m_entries(entries)
{
    m_nodes.reserve(size_t(entries.size()));
    for (int place = 0; place < entries.size(); ++place)
        m_nodes.push_back({entries.getDefinition(place)});
}

void ThemeResolver::resolve()
{
    for (int place = 0; place < m_entries.size(); ++place) {
        push(place);
        while (!m_stack.empty())
            step();
    }
}

int ThemeResolver::unsettled(int place) const
{
    return place < 0 || m_nodes[size_t(place)].settled ? -1 : place;
}

bool ThemeResolver::isExhausted(int place) const
{
    const Node& node = m_nodes[size_t(place)];
    return !node.current && (node.isPastTwin || m_entries.getOriginal(place) < 0);
}

void ThemeResolver::passOver(int place)
{
    Node& node = m_nodes[size_t(place)];
    if (node.current)
        node.current = node.current->next;
    else
        node.isPastTwin = true;
}

void ThemeResolver::push(int place)
{
    m_nodes[size_t(place)].waiting = true;
    m_stack.push_back(place);
}

void ThemeResolver::step()
{
    const int place = m_stack.back();
    Node& node = m_nodes[size_t(place)];
    if (node.settled || isExhausted(place)) {
        node.settled = true;
        node.waiting = false;
        m_stack.pop_back();
        return;
    }
    const ThemeEntry* entry = node.current;
    const int dependency = getDependency(place, entry);
    if (dependency >= 0) {
        if (m_nodes[size_t(dependency)].waiting)
            breakCycle(dependency);
        else
            push(dependency);
    } else if (evaluate(place, entry)) {
        node.internal = entry ? entry->internal : isInternal(m_entries.getOriginal(place));
        node.settled = true;
    } else {
        passOver(place);
    }
}

/// Drops those definitions of the cycle from `place` on that are in the most derived file, as it is
/// their fault.
void ThemeResolver::breakCycle(int place)
{
    const auto levelAt = [this](int member) {
        const ThemeEntry* entry = m_nodes[size_t(member)].current;
        return entry ? entry->level : std::numeric_limits<int>::max();
    };
    const auto last = std::find(m_stack.rbegin(), m_stack.rend(), place);
    const std::vector<int> cycle(last.base() - 1, m_stack.end());
    QStringList names;
    int level = std::numeric_limits<int>::max();
    for (const int member : cycle) {
        names += m_entries.getName(member);
        level = std::min(level, levelAt(member));
    }
    bool isReported = false;
    for (const int member : cycle) {
        if (levelAt(member) != level)
            continue;
        const ThemeEntry* entry = m_nodes[size_t(member)].current;
        if (!entry) // a twin is written as what it is derived from
            entry = m_entries.getDefinition(m_entries.getOriginal(member));
        if (!isReported)
            entry->element.reject(QStringLiteral("it leads back to itself, by way of ")
                                  + quoted(names.join(QLatin1String(", "))));
        isReported = true;
        passOver(member);
    }
    while (m_stack.back() != place) {
        m_nodes[size_t(m_stack.back())].waiting = false;
        m_stack.pop_back();
    }
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
        (isInternal(getEntries().find(color.key())) ? internal : published)
            .insert(color.key(), *color);
}

int ThemeColorResolver::firstUnsettled(int place, const QStringList& named) const
{
    for (const QString& other : named) {
        const int next = unsettled(other);
        // A color may be called like the literal color that it is.
        if (next >= 0 && !(next == place && QColor::isValidColor(other)))
            return next;
    }
    return -1;
}

int ThemeColorResolver::getDependency(int place, const ThemeEntry* entry) const
{
    if (entry)
        return firstUnsettled(place, namedColors(entry->element));
    const int original = getEntries().getOriginal(place);
    return unsettled(original) >= 0
               ? original
               : firstUnsettled(place, m_disabled.getNamedColors(getEntries().getName(original)));
}

bool ThemeColorResolver::evaluate(int place, const ThemeEntry* entry)
{
    const QString& name = getEntries().getName(place);
    bool ok = true;
    if (entry) {
        entry->element.checkTextElement({"name", "internal"}, derivationAttributes());
        const QColor color = readColor(entry->element, m_colors, ok);
        if (ok)
            m_colors.insert(name, color);
        return ok;
    }
    const QString& originalName = getEntries().getName(getEntries().getOriginal(place));
    const auto original = m_colors.constFind(originalName);
    if (original == m_colors.constEnd())
        return false;
    const QColor color = m_disabled.derived(*original, originalName, m_colors);
    m_colors.insert(name, color);
    return true;
}

ThemeBrushResolver::ThemeBrushResolver(const ThemeEntries& entries,
                                       const ThemeEntries& colorEntries, const ThemeColors& colors,
                                       const DisabledColors& disabled)
    : ThemeResolver(entries)
    , m_colorEntries(colorEntries)
    , m_colors(colors)
    , m_disabled(disabled)
    , m_values(size_t(entries.size()))
{ }

bool ThemeBrushResolver::isBrush(const QString& tag)
{
    return tag == QLatin1String("Brush") || BrushReader::forTag(tag);
}

void ThemeBrushResolver::splitBrushes(QMap<QString, QBrush>& published,
                                      QMap<QString, QBrush>& internal) const
{
    for (const int place : getEntries().sorted()) {
        const Value& value = m_values[size_t(place)];
        QMap<QString, QBrush>& brushes = isInternal(place) ? internal : published;
        if (value.known)
            brushes.insert(brushes.constEnd(), getEntries().getName(place), value.brush);
    }
}

bool ThemeBrushResolver::isLastOne(const ThemeEntry& entry) const
{
    return m_lastEntry && m_lastEntry->element == entry.element;
}

int ThemeBrushResolver::getDependency(int place, const ThemeEntry* entry) const
{
    if (!entry) {
        const int original = getEntries().getOriginal(place);
        return unsettled(original) >= 0 ? original : unsettled(m_values[size_t(original)].twin);
    }
    return !isLastOne(*entry) && isAlias(entry->element) ? unsettled(entry->element.getText()) : -1;
}

ThemeBrushResolver::Value ThemeBrushResolver::readAlias(const ThemeElement& element, bool& ok) const
{
    const QString named = element.getText();
    element.checkTextElement({"name", "internal"});
    const int found = getEntries().find(named);
    if (found < 0 || !m_values[size_t(found)].known) {
        element.reject(quoted(named) + QStringLiteral(" is no brush of the theme"));
        ok = false;
        return {};
    }
    Value value = m_values[size_t(found)];
    const int twin = getEntries().find(ThemeNames::twin(named));
    if (twin >= 0 && getEntries().getDefinition(twin))
        value.twin = twin;
    return value;
}

ThemeBrushResolver::Value ThemeBrushResolver::readValue(const ThemeElement& element, bool& ok) const
{
    if (isAlias(element))
        return readAlias(element, ok);
    Value value{true};
    value.brush = BrushReader::forTag(element.getTag())->readBrush(element, m_colors, ok);
    if (value.brush.gradient() || hasDerivation(element))
        return value;
    const QString twin = ThemeNames::twin(element.getText());
    const auto color = m_colors.constFind(twin);
    if (color != m_colors.constEnd() && m_colorEntries.getDefinition(twin))
        value.disabled = *color;
    return value;
}

QBrush ThemeBrushResolver::derivedTwin(int original) const
{
    const Value& value = m_values[size_t(original)];
    if (value.twin >= 0 && m_values[size_t(value.twin)].known)
        return m_values[size_t(value.twin)].brush;
    if (value.disabled.style() != Qt::NoBrush)
        return value.disabled;
    return m_disabled.derived(value.brush, getEntries().getName(original), m_colors);
}

bool ThemeBrushResolver::evaluate(int place, const ThemeEntry* entry)
{
    if (!entry) {
        const int original = getEntries().getOriginal(place);
        if (!m_values[size_t(original)].known)
            return false;
        m_values[size_t(place)] = {true, derivedTwin(original)};
        return true;
    }
    bool ok = true;
    if (!isLastOne(*entry))
        m_lastValue = readValue(entry->element, ok);
    m_lastEntry = ok ? entry : nullptr;
    if (ok)
        m_values[size_t(place)] = m_lastValue;
    return ok;
}

} // namespace BRELK
