#pragma once

#include <QVariantMap>

namespace BRELK::ThemeResources {

/// The current "theme_var" property of the application object, which must exist.
QVariantMap themeVariables();

/// The value at `path` in nested maps, or `defaultValue`.
QVariant findVariable(const QVariantMap& variables, const QString& path,
                      const QVariant& defaultValue);

/// The file of the icon `name` in the first of the icon folders that has one; empty if none has.
QString findIconPath(const QString& name);

} // namespace BRELK::ThemeResources
