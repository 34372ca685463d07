#pragma once

#include "ThemeDocument.h"

#include <QHash>

#include <deque>
#include <vector>

namespace BRELK {

/// One definition of a name.
struct ThemeEntry
{
    ThemeElement element;
    /// 0 in the theme's own file, 1 in the one that it extends, and so on.
    int level;
    bool internal = false;
    /// The definition of the same name in the file that is extended; null when there is none.
    ThemeEntry* next = nullptr;
};

/// The definitions of each name, those of the theme itself first. A name is told by its place:
/// names stand in the order in which they were added.
class ThemeEntries
{
public:
    ThemeEntries() = default;
    Q_DISABLE_COPY(ThemeEntries)

    /// Adds a definition; a second one of the same file is rejected.
    void add(const QString& name, const ThemeEntry& entry);

    /// Gives each name a derived disabled twin, which counts where no definition of it does.
    void addTwins();

    int size() const { return int(m_named.size()); }

    /// The place of `name`; negative if it was not added.
    int find(const QString& name) const { return m_ends.value(name) - 1; }

    const QString& getName(int place) const { return m_named[size_t(place)].name; }

    /// The place of that whose derived twin this is; negative if it is none.
    int getOriginal(int place) const { return m_named[size_t(place)].original; }

    /// The first definition of what is at `place`; null for a mere twin.
    const ThemeEntry* getDefinition(int place) const { return m_named[size_t(place)].first; }

    /// The same by name; null for one that was not added.
    const ThemeEntry* getDefinition(const QString& name) const
    {
        const int place = find(name);
        return place < 0 ? nullptr : getDefinition(place);
    }

    /// All places in the order of the names, but for few of the twins.
    std::vector<int> sorted() const;

private:
    struct Named
    {
        QString name;
        int original = -1;
        int twin = -1;
        ThemeEntry* first = nullptr;
    };

    int placeOf(const QString& name);

    std::deque<ThemeEntry> m_entries; ///< stay where they are
    std::vector<Named> m_named;
    QHash<QString, int> m_ends; ///< how many names there are up to each
};

/// The value of the first definition of `name` that `read(element, ok)` accepts, or else `missing`.
template <class Value, class Read>
Value evaluate(const ThemeEntries& entries, const QString& name, const Value& missing, Read read)
{
    for (const ThemeEntry* entry = entries.getDefinition(name); entry; entry = entry->next) {
        bool ok = true;
        const Value value = read(entry->element, ok);
        if (ok)
            return value;
    }
    return missing;
}

} // namespace BRELK
