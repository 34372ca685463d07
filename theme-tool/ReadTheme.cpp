#include "ReadTheme.h"

#include "BaseThemeSettings.h"
#include "ColorDerivations.h"
#include "QPaletteReader.h"
#include "ThemeNames.h"

#include <QMetaEnum>

using namespace BRELK;

namespace ThemeTool {

namespace {

QColor paletteColor(const QPalette& palette, const QString& group, const QString& role)
{
    const auto groups = QMetaEnum::fromType<QPalette::ColorGroup>();
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    const QColor color = palette.color(QPalette::ColorGroup(groups.keyToValue(group.toLatin1())),
                                       QPalette::ColorRole(roles.keyToValue(role.toLatin1())));
    return color.rgba() == UnmappedColor ? QColor() : color;
}

} // namespace

ReadTheme::ReadTheme(const QString& directory)
    : m_directory(directory)
    , m_name(BaseThemeSettings(directory + QLatin1String("/theme.xml")).getName())
    , m_configuration(
          directory + QLatin1String("/config.xml"),
          [this](const QColor& color, bool foreground) { return disabled(color, foreground); })
    , m_palette(readPalette())
{ }

/// By the factors of this theme, which are known before the first color is read.
QColor ReadTheme::disabled(const QColor& color, bool foreground) const
{
    const QMap<QString, int>& factors = m_configuration.getDisabledFactorsMap();
    return foreground ? disabledBy(color, factors.value(ThemeNames::LightForegroundFactor),
                                   factors.value(ThemeNames::DarkForegroundFactor))
                      : disabledBy(color, factors.value(ThemeNames::LightBackgroundFactor),
                                   factors.value(ThemeNames::DarkBackgroundFactor));
}

QPalette ReadTheme::readPalette() const
{
    QPalette unmapped;
    for (int role = 0; role < QPalette::NColorRoles; ++role)
        unmapped.setColor(QPalette::ColorRole(role), UnmappedColor);
    const QPaletteReader reader(m_directory + QLatin1String("/qpaletteMapping.xml"),
                                m_configuration.getBrushesMap(), m_configuration.getColorsMap(),
                                unmapped);
    QPalette palette = reader.deserialize();
    deriveDisabledGroup(palette, [this](const QColor& color, bool foreground) {
        return disabled(color, foreground);
    });
    return palette;
}

QColor ReadTheme::getColor(const QString& name) const
{
    const QStringList parts = name.split(QLatin1Char('.'));
    if (parts.size() == 2)
        return paletteColor(m_palette, parts.first(), parts.last());
    const auto& brushes = m_configuration.getBrushesMap();
    const auto& internalBrushes = m_configuration.getInternalBrushesMap();
    const QBrush brush = brushes.value(name, internalBrushes.value(name));
    if (brush.style() == Qt::SolidPattern)
        return brush.color();
    return m_configuration.getColorsMap().value(name,
                                                m_configuration.getInternalColorsMap().value(name));
}

} // namespace ThemeTool
