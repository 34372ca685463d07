#pragma once

#include <QString>
#include <QVector>

namespace ThemeTool {

class ReadTheme;

/// How one color stands out from another, and how it should.
struct Contrast
{
    QString color;
    QString ground; ///< what it lies on, or the state that it is told from
    double found;
    double least;

    bool isEnough() const { return found >= least; }
};

/// Measures `theme` by every row of the contrast table, contrasts.txt.
QVector<Contrast> measureContrasts(const ReadTheme& theme);

} // namespace ThemeTool
