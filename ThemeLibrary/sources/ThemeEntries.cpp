#include "ThemeEntries.h"

#include <limits>

namespace BRELK {

QString disabledName(const QString& name)
{
    return name + QLatin1String("Disabled");
}

void ThemeEntries::add(const QString& name, const ThemeEntry& entry)
{
    Definitions& definitions = m_definitions[name];
    if (!definitions.isEmpty() && definitions.last().level == entry.level)
        entry.element.reject(QStringLiteral("there is another one of this name"));
    else
        definitions.append(entry);
}

void ThemeEntries::addTwins()
{
    constexpr int LastLevel = std::numeric_limits<int>::max();
    const QMap<QString, Definitions> originals = m_definitions;
    for (auto entry = originals.begin(); entry != originals.end(); ++entry) {
        const QString& name = entry.key();
        if (!name.endsWith(QLatin1String("Disabled")))
            m_definitions[disabledName(name)].append(
                {entry->first().element, LastLevel, false, name});
    }
}

} // namespace BRELK
