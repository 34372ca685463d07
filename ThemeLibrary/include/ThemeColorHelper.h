#pragma once

#include "ThemeLibraryGlobal.h"

#include <QBrush>
#include <QColor>
#include <QIcon>

/// Derives variants of colors and icons from the current theme.
namespace BRELK::ThemeColorHelper {

/// The disabled variant of `color`: bright colors are darkened, dark ones lightened, by the theme's
/// factors for foregrounds or for backgrounds. Alpha is kept. A theme without factors leaves colors
/// unchanged.
///
/// The factors are read at the first call and kept until `ThemeSwitcher` applies another theme.
VARN_COMMON_THEME_EXPORT QColor disabled(const QColor& color, bool foreground);

/// `icon` in the color of `brush`.
///
/// When `brush` is a theme brush and the icon theme has an icon named `<icon name>.<brush name>`,
/// that icon is returned. Otherwise the icons' reference color #E5EEF4 is replaced by `brush`, and
/// the result is faded when the brush's name says that it is a disabled one.
VARN_COMMON_THEME_EXPORT QIcon getModifiedIconWithForegroundBrush(QIcon icon, QBrush brush);

} // namespace BRELK::ThemeColorHelper
