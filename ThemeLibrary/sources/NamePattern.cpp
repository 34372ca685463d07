#include "NamePattern.h"

#include <algorithm>

namespace BRELK {

namespace {

bool isLiteral(const QString& text)
{
    return !text.contains(QLatin1Char('{')) && !text.contains(QLatin1Char('}'));
}

bool areLiteral(const QStringList& texts)
{
    return std::all_of(texts.begin(), texts.end(), isLiteral);
}

/// How many combinations there are; 0 when that is more than `most`.
int countNames(const QVector<QStringList>& groups, int most)
{
    int count = 1;
    for (const QStringList& alternatives : groups) {
        if (alternatives.size() > most / count)
            return 0;
        count *= alternatives.size();
    }
    return std::min(count, most);
}

} // namespace

NamePattern::NamePattern(const QString& text, int most)
{
    int position = 0;
    for (;;) {
        const int opening = text.indexOf(QLatin1Char('{'), position);
        m_literals.append(text.mid(position, opening < 0 ? -1 : opening - position));
        if (opening < 0)
            break;
        const int closing = text.indexOf(QLatin1Char('}'), opening);
        if (closing < 0)
            return;
        m_groups.append(text.mid(opening + 1, closing - opening - 1).split(QLatin1Char(',')));
        position = closing + 1;
    }
    if (!text.isEmpty() && areLiteral(m_literals)
        && std::all_of(m_groups.begin(), m_groups.end(), areLiteral))
        m_size = countNames(m_groups, most);
}

QString NamePattern::getName(int index) const
{
    int length = m_literals.first().size();
    for (int group = 0, rest = index; group < m_groups.size(); ++group) {
        const QStringList& alternatives = m_groups.at(group);
        length +=
            alternatives.at(rest % alternatives.size()).size() + m_literals.at(group + 1).size();
        rest /= alternatives.size();
    }
    QString name;
    name.reserve(length);
    name += m_literals.first();
    for (int group = 0; group < m_groups.size(); ++group) {
        const QStringList& alternatives = m_groups.at(group);
        name += alternatives.at(index % alternatives.size());
        name += m_literals.at(group + 1);
        index /= alternatives.size();
    }
    return name;
}

QString NamePattern::getAlternative(int index, int group) const
{
    for (int before = 0; before < group; ++before)
        index /= m_groups.at(before).size();
    const QStringList& alternatives = m_groups.at(group);
    return alternatives.at(index % alternatives.size());
}

QStringList expandNamePattern(const QString& pattern, int most)
{
    const NamePattern names(pattern, most);
    QStringList spelt;
    for (int index = 0; index < names.size(); ++index)
        spelt.append(names.getName(index));
    return spelt;
}

} // namespace BRELK
