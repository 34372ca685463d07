#pragma once

#include <QStringList>
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

/// A row of the contrast table, as it is written.
struct ContrastRule
{
    QString least; ///< a ratio, or "words" for the one that the theme promises its words
    QString subject; ///< names with blanks between them, or words for all buttons and inputs
    QStringList grounds; ///< names, and "surfaces" for what controls and words stand on
};

QVector<ContrastRule> contrastRules();

/// Measures `theme` by every row of the contrast table, contrasts.txt.
QVector<Contrast> measureContrasts(const ReadTheme& theme);

} // namespace ThemeTool
