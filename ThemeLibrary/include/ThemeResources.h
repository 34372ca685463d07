#pragma once

#include "ThemeLibraryGlobal.h"

#include <QBrush>
#include <QColor>
#include <QCursor>
#include <QFont>
#include <QIcon>
#include <QPixmap>
#include <QStringList>
#include <QVariant>

class QRegularExpression;

/// Read access to the current theme: variables by path or by name, icons, pixmaps and cursors by
/// dotted name, and style sheets with theme variables in them.
///
/// The variables live in two dynamic properties of the application object, so code that does not
/// link this library can read them too. All functions are for the GUI thread.
namespace BRELK::ThemeResources {

/// "theme_var": the application property that holds every group but the factors, as a map of maps.
VARN_COMMON_THEME_EXPORT const QLatin1String& getThemeVariablePropertyName();
/// "theme_var_internal": the application property that holds the group of disabled-state factors.
VARN_COMMON_THEME_EXPORT const QLatin1String& getInternalThemeVariablePropertyName();

/// "colors", a group of `QColor`.
VARN_COMMON_THEME_EXPORT const QString& getColorsVarPrefix();
/// "internalColors", a group of `QColor` that only the theme itself refers to.
VARN_COMMON_THEME_EXPORT const QString& getInternalColorsVarPrefix();
/// "brushes", a group of `QBrush`, solid or gradient.
VARN_COMMON_THEME_EXPORT const QString& getBrushesVarPrefix();
/// "internalBrushes", a group of `QBrush` that only the theme itself refers to.
VARN_COMMON_THEME_EXPORT const QString& getInternalBrushesVarPrefix();
/// "fonts", a group of `QFont`.
VARN_COMMON_THEME_EXPORT const QString& getFontsVarPrefix();
/// "opacities", a group of `double` from 0 to 1.
VARN_COMMON_THEME_EXPORT const QString& getOpacitiesVarPrefix();
/// "cornerRadius", a group of `int` in logical pixels.
VARN_COMMON_THEME_EXPORT const QString& getCornerRadiusVarPrefix();
/// "factors", a group of `int` in percent.
VARN_COMMON_THEME_EXPORT const QString& getDisabledFactorsVarPrefix();

/// The variable at `path`, group and name joined by "/" ("colors/MainColor"), or `defaultValue`
/// when there is none.
///
/// A path that names a group gives the whole group as a map; parts that follow a plain value are
/// ignored. Reads the current theme on every call. An application object must exist.
VARN_COMMON_THEME_EXPORT QVariant getThemeVar(const QString& path, const QVariant& defaultValue);

/// The theme's color `name`; invalid when there is none or no application object.
///
/// This and the five lookups below answer from a copy of their group that is taken at their first
/// call and kept until `ThemeSwitcher` applies another theme.
VARN_COMMON_THEME_EXPORT QColor getColor(const QString& name);
/// The theme's brush `name`; `Qt::NoBrush` when there is none or no application object.
VARN_COMMON_THEME_EXPORT QBrush getBrush(const QString& name);
/// The theme's font "small", "base", "medium" or "large"; a default font when there is none or no
/// application object.
VARN_COMMON_THEME_EXPORT QFont getFont(const QString& name);
/// The theme's opacity `name`, 0 to 1; 0 when there is none, 1 without an application object.
VARN_COMMON_THEME_EXPORT double getOpacity(const QString& name);
/// The theme's corner radius "SmallSize", "BaseSize", "MediumSize" or "LargeSize" in logical
/// pixels; 0 when there is none or no application object.
VARN_COMMON_THEME_EXPORT double getCornerRadius(const QString& name);
/// The theme's disabled-state factor `name` in percent; 0 when there is none, 100 without an
/// application object.
VARN_COMMON_THEME_EXPORT int getDisabledFactor(const QString& name);

/// The names, in ascending order, of the theme's colors in which `re` matches anywhere. An
/// application object must exist.
VARN_COMMON_THEME_EXPORT QStringList getColors(const QRegularExpression& re);
/// The name of the theme color that equals `color`, as `getColorOrBrushKey` chooses it.
VARN_COMMON_THEME_EXPORT QString getColorKey(const QColor& color);
/// The name of the theme brush that equals `brush`, as `getColorOrBrushKey` chooses it.
VARN_COMMON_THEME_EXPORT QString getBrushKey(const QBrush& brush);
/// The key of `map` whose value equals `value`: the first that begins with "Foreground" or "Main",
/// else the first; empty when there is none.
VARN_COMMON_THEME_EXPORT QString getColorOrBrushKey(const QVariant& value, const QVariantMap& map);

/// `styleSheet` with every placeholder "@group/Name@" that names a theme variable replaced by its
/// value.
///
/// Colors become `#rrggbb` or `#aarrggbb`, numbers and fonts their text, brushes nothing. Unknown
/// placeholders stay as they are. Reads the current theme on every call. An application object must
/// exist.
VARN_COMMON_THEME_EXPORT QString customizeStyleSheet(const QString& styleSheet);

/// "icons": the search-path prefix of icons.
VARN_COMMON_THEME_EXPORT const QString& iconsPrefix();
/// "cursors": the search-path prefix of cursors.
VARN_COMMON_THEME_EXPORT const QString& cursorsPrefix();
/// "resources": the search-path prefix of a theme's other files.
VARN_COMMON_THEME_EXPORT const QString& themeResourcesPrefix();

/// The icon `name`, such as "action.close", from the theme or else from the library; null when
/// neither has it. Its `QIcon::name()` is empty.
VARN_COMMON_THEME_EXPORT QIcon getIcon(const QString& name);
/// The names of all icons whose file name `re` matches anywhere, the theme's before the library's,
/// each once.
VARN_COMMON_THEME_EXPORT QStringList getIcons(const QRegularExpression& re);
/// The icon `name` drawn at exactly `size` device pixels (an invalid size: the file's own); null
/// when there is none.
VARN_COMMON_THEME_EXPORT QPixmap getPixmap(const QString& name, const QSize& size);
/// The cursor `name`, such as "tool.brush", with the hot spot that its file states; files in other
/// formats than ".cur" are hot in their centre. Without such a file it is the arrow cursor.
VARN_COMMON_THEME_EXPORT QCursor getCursor(const QString& name);

} // namespace BRELK::ThemeResources
