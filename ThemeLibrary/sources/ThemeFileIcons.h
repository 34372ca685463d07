#pragma once

#include <QIcon>

namespace BRELK::ThemeFileIcons {

/// The icon of the file `path`, which is where `name` was found. It follows a switch to another
/// theme, as long as that has such an icon; an icon that was given a picture of the application's
/// own follows no more.
QIcon icon(const QString& name, const QString& path);

/// Lets all of them look for their files anew.
void lookAgain();

} // namespace BRELK::ThemeFileIcons
