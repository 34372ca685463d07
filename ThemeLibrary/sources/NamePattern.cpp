#include "NamePattern.h"

#include <QVarLengthArray>

#include <algorithm>

namespace BRELK {

namespace {

bool isLiteral(const QStringRef& text)
{
    return !text.contains(QLatin1Char('{')) && !text.contains(QLatin1Char('}'));
}

bool areLiteral(const QVector<QStringRef>& texts)
{
    return std::all_of(texts.begin(), texts.end(), isLiteral);
}

/// How many combinations there are; 0 when that is more than `most`.
int countNames(const QVector<QVector<QStringRef>>& groups, int most)
{
    int count = 1;
    for (const QVector<QStringRef>& alternatives : groups) {
        if (alternatives.size() > most / count)
            return 0;
        count *= alternatives.size();
    }
    return std::min(count, most);
}

} // namespace

NamePattern::NamePattern(const QString& text, int most) : m_text(text)
{
    int position = 0;
    for (;;) {
        const int opening = m_text.indexOf(QLatin1Char('{'), position);
        m_literals.append(m_text.midRef(position, opening < 0 ? -1 : opening - position));
        if (opening < 0)
            break;
        const int closing = m_text.indexOf(QLatin1Char('}'), opening);
        if (closing < 0)
            return;
        m_groups.append(m_text.midRef(opening + 1, closing - opening - 1).split(QLatin1Char(',')));
        position = closing + 1;
    }
    if (!m_text.isEmpty() && areLiteral(m_literals)
        && std::all_of(m_groups.begin(), m_groups.end(), areLiteral))
        m_size = countNames(m_groups, most);
}

QString NamePattern::getName(int index) const
{
    if (m_groups.isEmpty())
        return m_text;
    constexpr int UsualLength = 128;
    QVarLengthArray<char16_t, UsualLength> name; // grows for less than a QString does
    const auto add = [&name](QStringView text) { name.append(text.utf16(), int(text.size())); };
    add(m_literals.first());
    for (int group = 0; group < m_groups.size(); ++group) {
        const Pieces& alternatives = m_groups.at(group);
        add(alternatives.at(index % alternatives.size()));
        add(m_literals.at(group + 1));
        index /= alternatives.size();
    }
    return QStringView(name.data(), name.size()).toString();
}

QString NamePattern::getAlternative(int index, int group) const
{
    for (int before = 0; before < group; ++before)
        index /= m_groups.at(before).size();
    const Pieces& alternatives = m_groups.at(group);
    return alternatives.at(index % alternatives.size()).toString();
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
