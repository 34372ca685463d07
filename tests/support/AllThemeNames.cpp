#include "AllThemeNames.h"

#include "style/ThemeNames.h"

#define VARN_THEME_TEXT(function, text) QStringLiteral(text),

namespace AllThemeNames {

QStringList colors()
{
    return {VARN_THEME_COLORS(VARN_THEME_TEXT)};
}

QStringList plainBrushes()
{
    return {VARN_THEME_BRUSHES(VARN_THEME_TEXT)};
}

QStringList kinds()
{
    return {QString(), VARN_THEME_KINDS(VARN_THEME_TEXT)};
}

QStringList states()
{
    QStringList states;
    for (const QString& checkState : {VARN_THEME_CHECK_STATES(VARN_THEME_TEXT)})
        for (const QString& pointer : {QString(), VARN_THEME_POINTER_STATES(VARN_THEME_TEXT)})
            states.append(checkState + pointer);
    return states;
}

QStringList brushes()
{
    QStringList names = plainBrushes() << QStringList{VARN_THEME_COMPOSED_BRUSHES(VARN_THEME_TEXT)};
    for (const QString& family :
         {QStringLiteral("Button"), QStringLiteral("ToggleButton"), QStringLiteral("Input")}) {
        for (const QString& kind : kinds()) {
            for (const QString& state : states()) {
                for (const QString& part : {VARN_THEME_PARTS(VARN_THEME_TEXT)})
                    names.append(QString(family + kind + state + part));
            }
        }
    }
    names.removeDuplicates();
    return names;
}

} // namespace AllThemeNames
