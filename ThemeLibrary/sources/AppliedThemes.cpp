#include "AppliedThemes.h"

#include <QDir>
#include <QIcon>
#include <QResource>

namespace BRELK {

namespace {

/// `all` without the first occurrence of each of `some`.
QStringList without(QStringList all, const QStringList& some)
{
    for (const QString& path : some)
        all.removeOne(path);
    return all;
}

} // namespace

AppliedThemes& appliedThemes()
{
    static AppliedThemes sThemes;
    return sThemes;
}

void addIconThemePath(const QString& path)
{
    QIcon::setThemeSearchPaths(QIcon::themeSearchPaths() << path);
    appliedThemes().paths.iconThemes.append(path);
}

void addIconFallbackPath(const QString& path)
{
    QIcon::setFallbackSearchPaths(QIcon::fallbackSearchPaths() << path);
    appliedThemes().paths.iconFallbacks.append(path);
}

void addSearchPath(const QString& prefix, const QString& path)
{
    QDir::addSearchPath(prefix, path);
    appliedThemes().paths.searchPaths[prefix].append(path);
}

bool addBundle(const QString& path)
{
    const bool added = QResource::registerResource(path, QString());
    if (added)
        appliedThemes().paths.bundles.append(path);
    return added;
}

void removePaths(const ThemePaths& paths)
{
    for (const QString& path : paths.bundles)
        QResource::unregisterResource(path, QString());
    for (const auto& [prefix, added] : paths.searchPaths)
        QDir::setSearchPaths(prefix, without(QDir::searchPaths(prefix), added));
    QIcon::setFallbackSearchPaths(without(QIcon::fallbackSearchPaths(), paths.iconFallbacks));
    QIcon::setThemeSearchPaths(without(QIcon::themeSearchPaths(), paths.iconThemes));
}

} // namespace BRELK
