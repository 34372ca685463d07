#pragma once

#include "BaseThemeSettings.h"
#include "Theme.h"

namespace BRELK {

/// A theme that is read from a directory.
///
/// The directory holds `theme.xml` (the theme's name), `config.xml` (colors, brushes, fonts,
/// opacities, corner radii), `qpaletteMapping.xml` (palette roles), and, each of them optional,
/// `Fonts/*.ttf` and below `Images/<name>` the folders `scalable` (icons and `.rcc` bundles),
/// `Cursors` and `theme_resources`.
class VARN_COMMON_THEME_EXPORT BaseTheme : public Theme
{
public:
    /// Reads `theme.xml` of the directory `themePath`; the other files are read by `customize`.
    explicit BaseTheme(const QString& themePath);

    QString getName() const override;

    /// Publishes the theme's variables on `app`, installs the style, palettes, style sheets, font,
    /// icon theme and search paths. A theme whose `theme.xml` cannot be read changes nothing; every
    /// other missing or malformed file is reported through the debug logger and replaced by
    /// defaults. With the environment variable `BRELK_USE_NATIVE_STYLE` set, no style, palette or
    /// style sheet is installed. A null `app` is reported and ignored.
    void customize(QApplication* app) override;

private:
    QString m_themePath;
    BaseThemeSettings m_settings;
};

} // namespace BRELK
