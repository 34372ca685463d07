#pragma once

#include <QStringList>

namespace BRELK {

/// The names that `pattern` spells: it stands for itself, but each group of alternatives in braces,
/// "{a,b,}", is replaced by each of them in turn. Groups do not nest.
///
/// Empty when a brace has no partner, or when there would be more than `most` names.
QStringList expandNamePattern(const QString& pattern, int most);

} // namespace BRELK
