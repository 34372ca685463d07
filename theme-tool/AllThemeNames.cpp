#include "AllThemeNames.h"

#include "ThemeNames.h"

using namespace BRELK;
using ThemeNames::Group;

namespace {

QStringList words(Group group)
{
    QStringList texts;
    for (const ThemeNames::Word& word : ThemeNames::Words) {
        if (word.group == group)
            texts.append(word.text);
    }
    return texts;
}

QStringList composedBrushes()
{
    QStringList names;
    for (const QString& family : AllThemeNames::families())
        for (const QString& kind : AllThemeNames::kinds())
            for (const QString& state : AllThemeNames::states())
                for (const QString& part : AllThemeNames::parts())
                    names.append(QString(family + kind + state + part));
    return names;
}

} // namespace

namespace AllThemeNames {

QStringList colors()
{
    return {std::begin(ThemeNames::Colors), std::end(ThemeNames::Colors)};
}

QStringList plainBrushes()
{
    const QStringList composed = composedBrushes();
    QStringList names;
    for (const QLatin1String name : ThemeNames::Brushes) {
        if (!composed.contains(name))
            names.append(name);
    }
    return names;
}

QStringList families()
{
    return words(Group::Family) + QStringList{ThemeNames::Toggle.text + ThemeNames::Button.text};
}

QStringList parts()
{
    return words(Group::Part);
}

QStringList numbers()
{
    return words(Group::Opacity) + words(Group::Factor);
}

QStringList kinds()
{
    return QStringList{QString()} + words(Group::Kind);
}

QStringList states()
{
    QStringList states;
    for (const QString& checkState : words(Group::CheckState))
        for (const QString& pointer : QStringList{QString()} + words(Group::PointerState))
            states.append(checkState + pointer);
    return states;
}

QStringList brushes()
{
    return plainBrushes() + composedBrushes();
}

} // namespace AllThemeNames
