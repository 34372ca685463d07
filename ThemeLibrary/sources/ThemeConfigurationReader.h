#pragma once

#include "ColorDerivations.h"
#include "ThemeColorHelper.h"
#include "ThemeFont.h"

#include <QBrush>
#include <QColor>
#include <QMap>
#include <QStringList>

namespace BRELK {

class ThemeEntries;
struct ThemeDefinitions;

/// Reads a theme's `config.xml`, and those of the themes that it extends. See docs/theme-format.md
/// for the format.
///
/// Publishes the disabled-state factors on the application object before it derives any color from
/// them. Bad entries are reported through the debug logger and left out.
class ThemeConfigurationReader
{
public:
    enum Status : unsigned { NO_ERROR = 0, FILE_NOT_FOUND_ERROR = 1, READ_ERROR = 2 };

    /// Disabled colors that the theme does not derive itself are made by `disabled`.
    explicit ThemeConfigurationReader(const QString& path,
                                      DisabledColor disabled = &ThemeColorHelper::disabled);

    /// Not `NO_ERROR` only when the file itself cannot be opened or is not well-formed.
    Status getStatus() const { return m_status; }

    const QMap<QString, QColor>& getColorsMap() const { return m_colors; }

    const QMap<QString, QColor>& getInternalColorsMap() const { return m_internalColors; }

    const QMap<QString, QBrush>& getBrushesMap() const { return m_brushes; }

    const QMap<QString, QBrush>& getInternalBrushesMap() const { return m_internalBrushes; }

    const QMap<QString, double>& getOpacitiesMap() const { return m_opacities; }

    const QMap<QString, int>& getCornerRadiusMap() const { return m_cornerRadius; }

    /// The contrast that the theme promises its words.
    double getWordContrast() const { return m_wordContrast; }

    const QMap<QString, int>& getDisabledFactorsMap() const { return m_disabledFactors; }

    const ThemeFont& getFont() const { return m_font; }

private:
    void readDisabledFactors(const ThemeEntries& entries);
    void limitDisabledFactors(const ThemeEntries& entries, const ThemeColors& colors);
    void publishDisabledFactors() const;
    void readPalette(ThemeDefinitions& definitions, const DisabledColor& disabled);
    void readWordContrast(const ThemeEntries& entries);
    void readOpacities(const ThemeEntries& entries);
    void readCornerRadius(const ThemeEntries& entries);
    void readFont(const ThemeEntries& settings, const QStringList& families);

    Status m_status = NO_ERROR;
    double m_wordContrast = DefaultWordContrast;
    QMap<QString, QColor> m_colors;
    QMap<QString, QColor> m_internalColors;
    QMap<QString, QBrush> m_brushes;
    QMap<QString, QBrush> m_internalBrushes;
    QMap<QString, double> m_opacities;
    QMap<QString, int> m_cornerRadius;
    QMap<QString, int> m_disabledFactors;
    ThemeFont m_font;
};

} // namespace BRELK
