#pragma once

#include <QStringList>
#include <QVector>

namespace BRELK {

/// A name, or several: a text that stands for itself, but each group of alternatives in braces,
/// "{a,b,}", is replaced by each of them in turn. Groups do not nest.
class NamePattern
{
public:
    /// Spells nothing when a brace has no partner, or when there would be more than `most` names.
    NamePattern(const QString& text, int most);
    Q_DISABLE_COPY(NamePattern)

    int size() const { return m_size; }

    QString getName(int index) const;

    int countGroups() const { return m_groups.size(); }

    /// What stands for the group `group` in the name `index`.
    QString getAlternative(int index, int group) const;

private:
    using Pieces = QVector<QStringRef>;

    const QString m_text;
    /// Literal text, and after each piece but the last the alternatives of a group.
    Pieces m_literals;
    QVector<Pieces> m_groups;
    int m_size = 0;
};

/// The names that `pattern` spells.
QStringList expandNamePattern(const QString& pattern, int most);

} // namespace BRELK
