#pragma once

#include "ThemeLibraryGlobal.h"

#include <QMap>
#include <QString>
#include <QStringList>

namespace BRELK {

class Theme;

/// Lists the themes of one repository, a directory with one sub-directory per theme, and creates
/// them by name.
class VARN_COMMON_THEME_EXPORT ThemeFactory
{
public:
    /// The factory of this process, alive from the first call to the end of the process.
    static ThemeFactory& getInstance();

    ThemeFactory(const ThemeFactory&) = delete;
    ThemeFactory& operator=(const ThemeFactory&) = delete;

    /// Lists the themes below `path` anew. A directory that does not exist has no themes.
    void setThemesRepositoryPath(const QString& path);

    /// The path as it was last set; empty at first.
    QString getThemesRepositoryPath() const;

    /// The names of the theme directories, in ascending order. These are directory names, whatever
    /// `theme.xml` says.
    QStringList getAvailableThemes() const;

    /// A new theme for the directory `name`, or null when the repository has none of that name.
    ///
    /// Every call creates another theme. The caller owns it and keeps it for as long as the
    /// application uses it.
    Theme* getTheme(const QString& name);

private:
    ThemeFactory() = default;
    ~ThemeFactory();

    Theme* readTheme(const QString& themePath);

    QString m_stylesPath;
    QMap<QString, QString> m_availableThemes;
    QMap<QString, Theme*> m_loadedTheme;
};

} // namespace BRELK
