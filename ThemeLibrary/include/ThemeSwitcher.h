#pragma once

#include "ThemeLibraryGlobal.h"

#include <QObject>

#include <map>
#include <memory>

namespace BRELK {

class DesktopFollower;
class Theme;

/// Gives the running application another theme, and lets go of all that is kept of the one before:
/// style, palettes, style sheet, fonts, icons, search paths and every value that lookups keep.
///
/// Nothing else lets go of them: an application that never calls this keeps the values of its first
/// theme. What an application has copied from a theme, it reads again when it is told by
/// `switched()`; docs/switching.md lists what that is.
class VARN_COMMON_THEME_EXPORT ThemeSwitcher : public QObject
{
    Q_OBJECT

public:
    /// The one object, alive from the first call to the end of the process.
    static ThemeSwitcher& getInstance();

    /// Applies `theme`, which must outlive the application. Returns false, and leaves everything as
    /// it is, when there is no application object, the theme cannot be read, or another switch is
    /// going on. The theme that is applied already is read and applied anew, at the same cost, so
    /// that its author sees what has changed.
    ///
    /// For the GUI thread, at any time but inside painting or a function of the style. Each widget
    /// is polished once, and nothing is painted before control returns to the event loop.
    bool switchTo(Theme& theme);

    /// Applies the theme of the directory `name` of `ThemeFactory`'s repository; false also when
    /// there is none, which is reported with the names that there are. The theme lives until the
    /// end of the process.
    bool switchTo(const QString& name);

    /// Applies the theme `dark` while the desktop prefers dark colors, else `light`, both
    /// directories of `ThemeFactory`'s repository: once the desktop has said what it prefers, and
    /// whenever that changes.
    ///
    /// The desktop is asked by the settings portal on the session bus, without waiting for it. The
    /// theme stays as it is for as long as there is no answer, and for good where there is no
    /// session bus or the library was built without Qt's D-Bus module. `switchTo()` is still there
    /// for the user to choose: that theme stays until the preference changes.
    void followDesktop(const QString& light, const QString& dark);

    /// Leaves the theme as it is, whatever the desktop prefers from now on.
    void stopFollowingDesktop();

Q_SIGNALS:
    /// Every widget has the new theme.
    void switched();

private:
    ThemeSwitcher();
    ~ThemeSwitcher() override;

    std::map<QString, std::unique_ptr<Theme>> m_themes; ///< by directory
    std::unique_ptr<DesktopFollower> m_follower;
};

} // namespace BRELK
