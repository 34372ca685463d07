#pragma once

#include <QFont>
#include <QPalette>
#include <QString>

namespace BRELK {

/// What a program looks like beyond its style. A copy remembers it.
struct ProgramLooks
{
    /// What the program has now.
    static ProgramLooks current();

    /// Has the icons that the theme lacks come from the dark variant of where they come from, if
    /// the palette is dark and there is one: others could not be seen on it.
    static void matchIcons(const QPalette& palette);

    /// Gives these to the program where it still has the `others`: what it chose itself stays.
    void replace(const ProgramLooks& others) const;

    QFont font;
    QPalette toolTips;
    QString iconTheme; ///< that the program chose; empty when it leaves that to the desktop
    QString fallbackIconTheme;
};

} // namespace BRELK
