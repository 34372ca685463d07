#pragma once

#include "ThemeCheck.h"

#include <QStringList>

namespace ThemeTool {

class ReadTheme;

/// The colors and other variables that the style sheets name, the library's and the theme's own.
QStringList namesInStyleSheets(const ReadTheme& theme);

/// All that is wrong with style sheets, pictures, icons, cursors and bundles of `theme`.
QVector<Finding> checkFiles(const ReadTheme& theme);

} // namespace ThemeTool
