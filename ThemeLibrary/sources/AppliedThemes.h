#pragma once

#include <QPalette>
#include <QSet>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>

namespace BRELK {

/// Where themes are looked into, beyond what the application has set itself.
struct ThemePaths
{
    QStringList iconThemes;
    QStringList iconFallbacks;
    std::map<QString, QStringList> searchPaths; ///< by prefix
    QStringList bundles;
};

/// What applying themes has added to the process. Only a switch takes it back.
struct AppliedThemes
{
    ThemePaths paths;
    QSet<QString> fontFiles; ///< these stay
    QString styleSheet; ///< the library's part of the application's
    std::optional<QPalette> palette; ///< the application's without any theme
    bool switching = false;
};

AppliedThemes& appliedThemes();

/// Adds the paths of a theme to Qt's, behind those that are there.
void addIconThemePath(const QString& path);
void addIconFallbackPath(const QString& path);
void addSearchPath(const QString& prefix, const QString& path);
bool addBundle(const QString& path);

/// Takes `paths`, each as often as it is named, away from Qt's.
void removePaths(const ThemePaths& paths);

} // namespace BRELK
