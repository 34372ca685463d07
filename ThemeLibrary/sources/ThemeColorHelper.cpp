#include "ThemeColorHelper.h"

#include "Helpers.h"
#include "ThemeResources.h"

namespace BRELK::ThemeColorHelper {

namespace {

/// Brighter colors than this, of 255, are darkened when disabled.
constexpr int LargestDarkBrightness = 130;

} // namespace

QColor disabled(const QColor& color, bool foreground)
{
    static const int sLightForegroundFactor =
        ThemeResources::getDisabledFactor(QStringLiteral("LightForegroundDisableFactor"));
    static const int sLightBackgroundFactor =
        ThemeResources::getDisabledFactor(QStringLiteral("LightBackgroundDisableFactor"));
    static const int sDarkForegroundFactor =
        ThemeResources::getDisabledFactor(QStringLiteral("DarkForegroundDisableFactor"));
    static const int sDarkBackgroundFactor =
        ThemeResources::getDisabledFactor(QStringLiteral("DarkBackgroundDisableFactor"));

    if (Helpers::getPerceivedBrightness(color) > LargestDarkBrightness)
        return color.darker(foreground ? sLightForegroundFactor : sLightBackgroundFactor);
    return color.lighter(foreground ? sDarkForegroundFactor : sDarkBackgroundFactor);
}

QIcon getModifiedIconWithForegroundBrush(QIcon icon, QBrush brush)
{
    QString brushName = ThemeResources::getBrushKey(brush);
    brushName.replace(QLatin1String("BrushDisabled"), QLatin1String("DisabledBrush"));

    // Qt shortens names at hyphens until it finds an icon; only the exact name is the theme
    // author's own.
    const QString themedName = icon.name() + QLatin1Char('.') + brushName;
    const QIcon themed = QIcon::fromTheme(themedName);
    if (!themed.isNull() && themed.name() == themedName)
        return themed;

    const QColor reference(0xE5, 0xEE, 0xF4);
    return Helpers::getModifiedIconWithForegroundBrush(
        icon, reference, brush, brushName.contains(QLatin1String("Disabled")));
}

} // namespace BRELK::ThemeColorHelper
