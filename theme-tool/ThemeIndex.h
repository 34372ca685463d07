#pragma once

#include "ThemeDocument.h"

#include <QHash>
#include <QMap>
#include <QSet>

namespace ThemeTool {

/// A color, brush or number as it stands in a theme file.
struct Entry
{
    QString name;
    bool isBrush = false;
    bool isInternal = false;
    bool isGradient = false;
    int level = 0; ///< 0 in the theme's own file, 1 in the one that it extends, and so on
    BRELK::ThemeProblem place;
    QString recipe; ///< what it is made of, as the file says it
    QStringList named; ///< the colors, or for aliases the brush, that it is made of
};

/// Where everything in a theme's configuration is written, and who refers to whom.
class ThemeIndex
{
public:
    explicit ThemeIndex(const QString& directory);

    /// The definition that counts; null when no file has one.
    const Entry* find(const QString& name) const;

    const QMap<QString, Entry>& getColors() const { return m_colors; }

    const QMap<QString, Entry>& getBrushes() const { return m_brushes; }

    /// The opacities and factors.
    const QMap<QString, Entry>& getNumbers() const { return m_numbers; }

    /// Whether another entry, a factor or the palette mapping names the color or brush `name`.
    bool isNamed(const QString& name) const { return m_named.contains(name); }

    /// The names that the palette mapping refers to.
    const QStringList& getMapped() const { return m_mapped; }

private:
    void readConfiguration(const QString& path);
    void readNumbers(const BRELK::ThemeElement& numbers, int level);
    void readPalette(const BRELK::ThemeElement& palette, int level);
    void readMapping(const QString& path);
    void add(QMap<QString, Entry>& entries, const BRELK::ThemeElement& element, int level);

    QMap<QString, Entry> m_colors;
    QMap<QString, Entry> m_brushes;
    QMap<QString, Entry> m_numbers;
    QSet<QString> m_named;
    QStringList m_mapped;
};

} // namespace ThemeTool
