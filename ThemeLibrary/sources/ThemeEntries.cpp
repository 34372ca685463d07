#include "ThemeEntries.h"

#include "ThemeNames.h"

#include <limits>

namespace BRELK {

const ThemeEntries::Definitions& ThemeEntries::getDefinitions(const QString& name) const
{
    static const Definitions sNone;
    const auto found = m_definitions.constFind(name);
    return found == m_definitions.constEnd() ? sNone : *found;
}

void ThemeEntries::add(const QString& name, const ThemeEntry& entry)
{
    const Definitions& definitions = getDefinitions(name);
    if (!definitions.isEmpty() && definitions.last().level == entry.level)
        entry.element.reject(QStringLiteral("there is another one of this name"));
    else
        append(name, entry);
}

void ThemeEntries::addTwins()
{
    constexpr int LastLevel = std::numeric_limits<int>::max();
    const QStringList originals = m_names;
    for (const QString& name : originals) {
        if (!name.endsWith(ThemeNames::Disabled.text))
            append(ThemeNames::twin(name),
                   {getDefinitions(name).first().element, LastLevel, false, name});
    }
}

void ThemeEntries::append(const QString& name, const ThemeEntry& entry)
{
    Definitions& definitions = m_definitions[name];
    if (definitions.isEmpty())
        m_names.append(name);
    definitions.append(entry);
}

} // namespace BRELK
