#pragma once

#include "ThemeLibraryGlobal.h"

#include <QFont>
#include <QStringList>
#include <QVariantMap>

#include <array>

namespace BRELK {

/// The four fonts of a theme.
class VARN_COMMON_THEME_EXPORT ThemeFont
{
public:
    enum ThemeFontId : unsigned {
        SMALL_FONT = 0,
        BASE_FONT = 1,
        MEDIUM_FONT = 2,
        LARGE_FONT = 3,
        NUM_FONT_IDS = 4
    };

    /// The font `id`; a default font until it is set, and for an `id` out of range.
    QFont getFont(ThemeFontId id) const;

    /// Sets the font `id`; an `id` out of range is ignored.
    void setFont(ThemeFontId id, const QFont& font);

    /// The label that the font `id` is published under: "small", "base", "medium" or "large"; empty
    /// out of range.
    static QString getFontName(ThemeFontId id);

    /// The four labels, in the order of their ids.
    static const QStringList& getFontsLabels();

    /// The fonts by label, as the theme variables hold them.
    QVariantMap toVariantMap() const;

private:
    std::array<QFont, NUM_FONT_IDS> m_fonts;
};

} // namespace BRELK
