#include "NamePattern.h"

#include <QVector>

#include <algorithm>

namespace BRELK {

namespace {

/// What stands between the braces of a pattern, or outside of them: one alternative then.
using Segments = QVector<QStringList>;

bool isLiteral(const QString& text)
{
    return !text.contains(QLatin1Char('{')) && !text.contains(QLatin1Char('}'));
}

/// Nothing when a brace has no partner.
Segments readSegments(const QString& pattern)
{
    Segments segments;
    int position = 0;
    while (position < pattern.size()) {
        const int opening = pattern.indexOf(QLatin1Char('{'), position);
        const int end = opening < 0 ? pattern.size() : opening;
        segments.append({pattern.mid(position, end - position)});
        if (opening < 0)
            break;
        const int closing = pattern.indexOf(QLatin1Char('}'), opening);
        if (closing < 0)
            return {};
        segments.append(pattern.mid(opening + 1, closing - opening - 1).split(QLatin1Char(',')));
        position = closing + 1;
    }
    const auto isWellFormed = [](const QStringList& alternatives) {
        return std::all_of(alternatives.begin(), alternatives.end(), isLiteral);
    };
    return std::all_of(segments.begin(), segments.end(), isWellFormed) ? segments : Segments();
}

} // namespace

QStringList expandNamePattern(const QString& pattern, int most)
{
    if (isLiteral(pattern))
        return most > 0 && !pattern.isEmpty() ? QStringList{pattern} : QStringList();
    const Segments segments = readSegments(pattern);
    if (segments.isEmpty())
        return {};
    int count = 1;
    for (const QStringList& alternatives : segments) {
        if (alternatives.size() > most / count)
            return {};
        count *= alternatives.size();
    }
    QStringList names;
    for (int index = 0; index < count; ++index) {
        QString name;
        int rest = index;
        for (const QStringList& alternatives : segments) {
            name += alternatives.at(rest % alternatives.size());
            rest /= alternatives.size();
        }
        names.append(name);
    }
    return names;
}

} // namespace BRELK
