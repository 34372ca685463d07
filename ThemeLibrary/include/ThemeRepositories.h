#pragma once

#include "ThemeLibraryGlobal.h"

#include <QString>
#include <QStringList>

namespace BRELK::ThemeRepositories {

/// The theme repositories of this machine, those that exist: `../share/varn/themes` beside the
/// application, `varn/themes` below `XDG_DATA_HOME` and below each of `XDG_DATA_DIRS`, and the one
/// that was installed with the library. What comes first wins. Without an application object
/// nothing is beside the application.
VARN_COMMON_THEME_EXPORT QStringList all();

/// The theme directories of `repositories`, by name; of those that differ in upper and lower case
/// only, the first.
VARN_COMMON_THEME_EXPORT QStringList themes(const QStringList& repositories);

/// The theme directory `name` of the first repository that has one, in its own spelling: upper and
/// lower case are one. Empty when there is none.
VARN_COMMON_THEME_EXPORT QString find(const QString& name);

/// The same, in `repositories`.
VARN_COMMON_THEME_EXPORT QString find(const QString& name, const QStringList& repositories);

} // namespace BRELK::ThemeRepositories
