#pragma once

#include "ColorDerivations.h"

#include <QBrush>
#include <QColor>
#include <QMap>
#include <QPalette>

namespace BRELK {

/// Reads a theme's `qpaletteMapping.xml`: which theme brush or color each palette role takes. See
/// docs/theme-format.md.
class QPaletteReader
{
public:
    enum Status : unsigned { NO_ERROR = 0, FILE_NOT_FOUND_ERROR = 1, READ_ERROR = 2 };

    /// Names are looked up in `brushes` first, then in `colors`; roles that the file does not map
    /// are `basePalette`'s.
    QPaletteReader(const QString& path, const QMap<QString, QBrush>& brushes,
                   const QMap<QString, QColor>& colors, QPalette basePalette);

    /// Not `NO_ERROR` only when the file cannot be opened or is not well-formed.
    Status getStatus() const { return m_status; }

    QPalette deserialize() const { return m_palette; }

private:
    Status m_status = NO_ERROR;
    QPalette m_palette;
};

/// Makes the disabled group of `palette` from the active one's colors.
void deriveDisabledGroup(QPalette& palette, const DisabledColor& disabled);

} // namespace BRELK
