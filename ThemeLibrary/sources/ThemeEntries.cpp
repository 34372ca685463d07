#include "ThemeEntries.h"

#include "ThemeNames.h"

#include <algorithm>

namespace BRELK {

void ThemeEntries::add(const QString& name, const ThemeEntry& entry)
{
    ThemeEntry** place = &m_named[size_t(placeOf(name))].first;
    while (*place && (*place)->level != entry.level)
        place = &(*place)->next;
    if (*place) {
        entry.element.reject(QStringLiteral("there is another one of this name"));
        return;
    }
    m_entries.push_back(entry);
    *place = &m_entries.back();
}

void ThemeEntries::addTwins()
{
    const int count = size();
    m_named.reserve(size_t(2 * count));
    m_ends.reserve(2 * count);
    for (int place = 0; place < count; ++place) {
        const QString& name = getName(place);
        if (name.endsWith(ThemeNames::Disabled.text))
            continue;
        const int twin = placeOf(ThemeNames::twin(name));
        m_named[size_t(twin)].original = place;
        m_named[size_t(place)].twin = twin;
    }
}

std::vector<int> ThemeEntries::sorted() const
{
    std::vector<int> originals;
    originals.reserve(m_named.size());
    for (int place = 0; place < size(); ++place)
        if (getOriginal(place) < 0)
            originals.push_back(place);
    std::sort(originals.begin(), originals.end(),
              [this](int one, int other) { return getName(one) < getName(other); });
    std::vector<int> places;
    places.reserve(m_named.size());
    for (const int place : originals) {
        places.push_back(place);
        if (const int twin = m_named[size_t(place)].twin; twin >= 0)
            places.push_back(twin);
    }
    return places;
}

int ThemeEntries::placeOf(const QString& name)
{
    int& end = m_ends[name];
    if (end == 0) {
        m_named.push_back({name});
        end = size();
    }
    return end - 1;
}

} // namespace BRELK
