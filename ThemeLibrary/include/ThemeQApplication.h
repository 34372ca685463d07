#pragma once

#include "ThemeLibraryGlobal.h"

#include <QApplication>

namespace BRELK {

class Theme;

/// An application that starts with a theme.
///
/// The theme is chosen by the constructor's arguments or by the command line, which wins:
/// `--theme NAME` and `--theme-repository PATH`, each value being the next argument.
class VARN_COMMON_THEME_EXPORT ThemeQApplication : public QApplication
{
    Q_OBJECT

public:
    /// Applies the theme that the command line names, if any. `argc` and `argv` must outlive the
    /// application.
    ThemeQApplication(int& argc, char** argv);

    /// As above, with `themeName` of the directory `themeRepository` where the command line does
    /// not say otherwise. Either may be empty.
    ThemeQApplication(int& argc, char** argv, const QString& themeName,
                      const QString& themeRepository);

    /// Makes `path` the repository that themes are looked up in.
    void initThemesRepository(const QString& path);

    /// The repository as it was last set, here or in `ThemeFactory`.
    QString getThemeRepository() const;

    /// Applies the theme of the directory `name` and returns true, or returns false when the
    /// repository has none, which is reported with the names that it has. The theme lives until the
    /// end of the process.
    bool setTheme(const QString& name);

    /// Applies `theme`, which must outlive the application.
    void setTheme(Theme& theme);

    /// The theme that was applied last through this object, or null.
    Theme* getCurrentTheme() const;

    /// Takes the values of `--theme` and `--theme-repository` from `args`; an option that is absent
    /// or has no value leaves its output as it was.
    void parseArguments(const QStringList& args, QString& theme, QString& repository) const;

protected:
    /// Applies `theme` of `repository`, either of which the command line may replace.
    void init(QString theme, QString repository);

private:
    Theme* m_currentTheme = nullptr;
};

} // namespace BRELK
