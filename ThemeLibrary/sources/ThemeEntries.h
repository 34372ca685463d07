#pragma once

#include "ThemeDocument.h"

#include <QHash>
#include <QStringList>
#include <QVector>

namespace BRELK {

/// One definition of a name.
struct ThemeEntry
{
    ThemeElement element;
    /// 0 in the theme's own file, 1 in the one that it extends, and so on.
    int level;
    bool internal = false;
    /// What this is the derived disabled twin of; empty in entries that stand in a file.
    QString twinOf = {};
};

/// The definitions of each name, those of the theme itself first.
class ThemeEntries
{
public:
    using Definitions = QVector<ThemeEntry>;

    /// Adds a definition; a second one of the same file is rejected.
    void add(const QString& name, const ThemeEntry& entry);

    /// Gives each name a derived twin, which counts where no other definition does.
    void addTwins();

    bool contains(const QString& name) const { return m_definitions.contains(name); }

    /// All names in the order in which they were added.
    const QStringList& getNames() const { return m_names; }

    /// None for a name that was not added.
    const Definitions& getDefinitions(const QString& name) const;

private:
    void append(const QString& name, const ThemeEntry& entry);

    QHash<QString, Definitions> m_definitions;
    QStringList m_names;
};

/// The value of the first definition of `name` that `read(element, ok)` accepts, or else `missing`.
template <class Value, class Read>
Value evaluate(const ThemeEntries& entries, const QString& name, const Value& missing, Read read)
{
    for (const ThemeEntry& entry : entries.getDefinitions(name)) {
        bool ok = true;
        const Value value = read(entry.element, ok);
        if (ok)
            return value;
    }
    return missing;
}

} // namespace BRELK
