#pragma once

#include <QMap>
#include <QVariantMap>

namespace BRELK {

/// `source` with its values wrapped; keys stay as they are.
template <class T>
QVariantMap fillQVariantMap(const QMap<QString, T>& source)
{
    QVariantMap map;
    for (auto entry = source.begin(); entry != source.end(); ++entry)
        map.insert(map.constEnd(), entry.key(), QVariant::fromValue(entry.value()));
    return map;
}

} // namespace BRELK
