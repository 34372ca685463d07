#pragma once

#include "BrushReaders.h"
#include "ThemeEntries.h"

#include <QBrush>
#include <QColor>
#include <QMap>
#include <QVector>

namespace BRELK {

/// Makes the disabled forms of colors: as the theme says, and where it says nothing, by factors.
class DisabledColors
{
public:
    /// `rules` holds the elements "DisabledColor" by what they are of, "foreground" or
    /// "background", and must outlive this.
    DisabledColors(const ThemeEntries& rules, DisabledColor byFactors);

    /// The colors that have to be known before those called `name` can be derived.
    const QStringList& getNamedColors(const QString& name) const;

    /// The disabled form of `color`, which the theme calls `name`.
    QColor derived(const QColor& color, const QString& name, const ThemeColors& colors) const;

    QBrush derived(const QBrush& brush, const QString& name, const ThemeColors& colors) const;

private:
    struct Rule
    {
        const ThemeElement* element = nullptr;
        QStringList named;
        QHash<QRgb, QBrush> derived;
    };

    Rule& ruleOf(const QString& name) const;
    QBrush solid(const QColor& color, const QString& name, const ThemeColors& colors) const;

    mutable Rule m_foreground;
    mutable Rule m_background;
    DisabledColor m_byFactors;
};

} // namespace BRELK
