#include "ThemeFont.h"

#include "ThemeNames.h"

namespace BRELK {

QFont ThemeFont::getFont(ThemeFontId id) const
{
    return id < NUM_FONT_IDS ? m_fonts.at(id) : QFont();
}

void ThemeFont::setFont(ThemeFontId id, const QFont& font)
{
    if (id < NUM_FONT_IDS)
        m_fonts.at(id) = font;
}

QString ThemeFont::getFontName(ThemeFontId id)
{
    return getFontsLabels().value(int(id));
}

const QStringList& ThemeFont::getFontsLabels()
{
    static const QStringList sLabels{ThemeNames::SmallFont, ThemeNames::BaseFont,
                                     ThemeNames::MediumFont, ThemeNames::LargeFont};
    return sLabels;
}

QVariantMap ThemeFont::toVariantMap() const
{
    QVariantMap map;
    for (int id = 0; id < int(NUM_FONT_IDS); ++id)
        map.insert(getFontsLabels().at(id), m_fonts.at(size_t(id)));
    return map;
}

} // namespace BRELK
