#pragma once

#include "Theme.h"

#include <QPalette>

#include <functional>
#include <memory>

class QStyle;

namespace BRELK {

class BaseThemeSettings;

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
    ~BaseTheme() override;

    QString getName() const override;

    /// Publishes the theme's variables on `app`, installs the style, palettes, style sheets, font,
    /// icon theme and search paths. A theme whose `theme.xml` cannot be read changes nothing; every
    /// other missing or malformed file is reported through the debug logger and replaced by
    /// defaults. With the environment variable `BRELK_USE_NATIVE_STYLE` set, no style, palette or
    /// style sheet is installed. A null `app` is reported and ignored.
    void customize(QApplication* app) override;

    /// Does what `customize` does, but installs neither style nor style sheet, and returns the
    /// style instead: for style plugins, and for applications that put a style of their own over
    /// it. The caller owns it. Null when nothing was done, or no style is wanted
    /// (`BRELK_USE_NATIVE_STYLE`).
    QStyle* createStyle(QApplication* app);

    /// Why the theme was not applied by the last `customize` or `createStyle`; empty when it was.
    QString getError() const { return m_error; }

    /// The palette that the theme gives to an application; the roles that it does not map are those
    /// of `base`. Reads the theme's files, and needs the application object.
    QPalette getPalette(const QPalette& base) const;

private:
    using UseStyle = std::function<void(QStyle&, const QPalette&)>;

    void apply(QApplication* app, const UseStyle& useStyle);

    QString m_themePath;
    std::unique_ptr<const BaseThemeSettings> m_settings;
    QString m_error;
};

} // namespace BRELK
