#pragma once

#include <QByteArrayList>
#include <QPair>
#include <QVector>

/// What something looks like in several states, written as what is there at rest and how each other
/// state departs from it.
///
/// \code
/// # CE_PushButton
/// rounded 0.5,0.5 119x27 r4 pen ButtonUncheckedBorderBrush brush ButtonUncheckedBackgroundBrush
/// [hovered, pressed] Unchecked>UncheckedHover [disabled] Brush>BrushDisabled
/// [checked] Unchecked>Checked -1
/// +2 path 4,14 8,19 12.5,10 pen ForegroundMouseOverBrush 1.8 smooth
/// [right to left] mirrored
/// # CE_PushButton highlighted: as CE_PushButton: Button>ButtonHighlighted
/// \endcode
///
/// In checked ones "Checked" stands for "Unchecked" (in names; of other words all must be the
/// same), the first line is not there, and what follows "+2" is the second line of those that are.
/// A state that looks as at rest is left out, and looks that are alike are written once, behind
/// all of their titles. What departs little from a look that is written out, in this sheet or in
/// another, is told in the same way: of its lines as they are written.
class LookSheet
{
public:
    using States = QVector<QPair<QByteArray, QByteArray>>; ///< their names and lines

    enum Written { Here, Elsewhere };

    /// `width` is that of what is mirrored.
    void add(const QByteArray& title, const QByteArray& atRest, const States& states, int width,
             Written written = Here);

    QByteArray text() const;

private:
    struct Look
    {
        QByteArrayList titles;
        QByteArray look;
        QByteArray written; ///< empty if it is elsewhere
    };

    QByteArray shortest(const QByteArray& look, int width) const;

    QVector<Look> m_looks;
};
