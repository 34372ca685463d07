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

    /// Gives these to the program where it still has the `others`: what it chose itself stays.
    void replace(const ProgramLooks& others) const;

    QFont font;
    QPalette toolTips;
    QString iconTheme; ///< that the program chose; empty when it leaves that to the desktop
};

} // namespace BRELK
