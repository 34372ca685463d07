#pragma once

#include <QString>
#include <QVector>

namespace ThemeTool {

/// A name that the style asks themes for.
struct NameUse
{
    QString name;
    QString use; ///< what it is used for
};

/// Every such name, those of buttons and inputs last; without "Disabled" twins.
QVector<NameUse> nameUses();

/// The page docs/theme-names.md: names.txt with the contrasts that the check holds themes to.
QString namesPage();

} // namespace ThemeTool
