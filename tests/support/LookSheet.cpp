#include "LookSheet.h"

#include <QByteArrayList>
#include <QRegularExpression>

#include <algorithm>
#include <cctype>

namespace {

using Line = QByteArrayList; ///< of words
using Lines = QVector<Line>;

Lines linesOf(const QByteArray& text)
{
    Lines lines;
    for (const QByteArray& line : text.split('\n'))
        if (!line.isEmpty())
            lines.append(line.split(' '));
    return lines;
}

int differences(const Line& one, const Line& other)
{
    int count = std::abs(one.size() - other.size());
    for (int i = 0; i < qMin(one.size(), other.size()); ++i)
        count += one.at(i) != other.at(i);
    return count;
}

int differences(const Lines& some, const Lines& others)
{
    int count = 0;
    for (int i = 0; i < some.size(); ++i)
        count += differences(some.at(i), others.at(i));
    return count;
}

/// Pairs of lines that say the same in other words, by their indices and in order: of those that
/// begin alike the ones that differ least, as far as it does not leave out others.
QVector<QPair<int, int>> pairsOf(const Lines& from, const Lines& to)
{
    constexpr int TooMuch = 8;
    QVector<QPair<int, int>> pairs;
    for (int next = 0, j = 0; j < to.size(); ++j) {
        int best = -1;
        int least = TooMuch;
        for (int i = next; i < from.size(); ++i) {
            const int cost = differences(from.at(i), to.at(j)) + 2 * (i - next);
            if (from.at(i).first() == to.at(j).first() && cost < least) {
                best = i;
                least = cost;
            }
        }
        if (best < 0)
            continue;
        pairs.append({best, j});
        next = best + 1;
    }
    return pairs;
}

bool isName(const QByteArray& word)
{
    return word.contains("Brush") || word.contains("Color") || word.startsWith("palette.");
}

/// "Button", "Unchecked", "Border", "Brush"; "palette.", "Text".
QByteArrayList partsOf(const QByteArray& name)
{
    QByteArrayList parts;
    for (const char letter : name) {
        if (parts.isEmpty() || std::isupper(letter))
            parts.append(QByteArray());
        parts.last().append(letter);
    }
    return parts;
}

/// The parts of the name `from` to replace so that it becomes `to`: some at least.
QPair<QByteArray, QByteArray> shortest(const QByteArray& from, const QByteArray& to)
{
    const QByteArrayList given = partsOf(from);
    const QByteArrayList wanted = partsOf(to);
    const int most = qMin(given.size(), wanted.size());
    int head = 0;
    while (head < most && given.at(head) == wanted.at(head))
        ++head;
    int tail = 0;
    while (tail < most - head
           && given.at(given.size() - 1 - tail) == wanted.at(wanted.size() - 1 - tail))
        ++tail;
    if (head + tail == given.size())
        --(head > 0 ? head : tail);
    return {given.mid(head, given.size() - head - tail).join(),
            wanted.mid(head, wanted.size() - head - tail).join()};
}

using Rule = QPair<QByteArray, QByteArray>;

/// Names have parts that are replaced, other words only as a whole.
Lines replaced(Lines lines, const Rule& rule)
{
    for (Line& line : lines)
        for (QByteArray& word : line)
            if (word == rule.first)
                word = rule.second;
            else if (isName(word) && std::isalpha(rule.first.at(0)))
                word.replace(rule.first, rule.second);
    return lines;
}

/// The rule that makes most of `from` equal to `to` by its first word that differs, if any does.
Rule nextRule(const Lines& from, const Lines& to, int line)
{
    const Line& wanted = to.at(line);
    const Line& given = from.at(line);
    if (given.size() != wanted.size())
        return {};
    const int word =
        int(std::mismatch(given.begin(), given.end(), wanted.begin()).first - given.begin());
    const Rule whole(given.at(word), wanted.at(word));
    if (whole.first.contains('>')) // a rule itself
        return {};
    const Rule part = isName(whole.first) ? shortest(whole.first, whole.second) : whole;
    const int before = differences(from, to);
    const int byPart = differences(replaced(from, part), to);
    const int byWhole = differences(replaced(from, whole), to);
    return byPart < before && byPart <= byWhole ? part : byWhole < before ? whole : Rule();
}

/// How far the place in `line`, its second word, is from the one in `other`, if they differ in
/// nothing else.
QByteArray step(const Line& line, const Line& other)
{
    const QByteArrayList from = other.value(1).split(',');
    const QByteArrayList to = line.value(1).split(',');
    if (line.value(0) != other.value(0) || line.mid(2) != other.mid(2) || from.size() != 2
        || to.size() != 2)
        return {};
    return QByteArray::number(to.at(0).toDouble() - from.at(0).toDouble()) + ','
           + QByteArray::number(to.at(1).toDouble() - from.at(1).toDouble());
}

/// With rows of equal pairs of shapes, as grips are made of, written once.
Lines folded(const Lines& lines)
{
    constexpr int Least = 4;
    const auto stepOf = [&](int line) {
        return line < lines.size() ? step(lines.at(line), lines.at(line - 2)) : QByteArray();
    };
    Lines text;
    for (int line = 0; line < lines.size();) {
        const QByteArray first = stepOf(line + 2);
        int end = line + 2;
        while (!first.isEmpty() && stepOf(end) == first)
            ++end;
        const int times = (end - line) / 2;
        if (times >= Least)
            text.append({QByteArray::number(times), "times", first, "apart:"});
        text += lines.mid(line, times >= Least ? 2 : 1);
        line += times >= Least ? 2 * times : 1;
    }
    return text;
}

QByteArray toText(const Lines& lines)
{
    QByteArray text;
    for (const Line& line : lines)
        text += line.join(' ') + '\n';
    return text;
}

/// What is in the place of `word`, which `next` follows, when all is seen in a mirror.
QByteArray mirrored(const QByteArray& word, const QByteArray& next, int width)
{
    static const QRegularExpression sPoint(QStringLiteral("^(-?[\\d.]+),(-?[\\d.]+)(c?)$"));
    static const QRegularExpression sSize(QStringLiteral("^([\\d.]+)x[\\d.]+$"));
    const auto point = sPoint.match(QString::fromUtf8(word));
    if (point.hasMatch() && next != "apart:") {
        const double own = sSize.match(QString::fromUtf8(next)).captured(1).toDouble();
        const double x = width - point.captured(1).toDouble() - own;
        return QByteArray::number(x) + ',' + point.captured(2).toUtf8()
               + point.captured(3).toUtf8();
    }
    QByteArray text = word;
    text.replace("left", "\t").replace("right", "left").replace("\t", "right");
    return text;
}

Lines mirrored(Lines lines, int width)
{
    for (Line& line : lines)
        for (int i = 0; i < line.size(); ++i)
            line[i] = mirrored(line.at(i), line.value(i + 1), width);
    return lines;
}

/// What a painter makes of them that looks into a mirror.
Lines turned(Lines lines, int width)
{
    for (Line& line : lines)
        line += {"matrix", "-1,0", "0,1", QByteArray::number(width) + ",0"};
    return lines;
}

/// What `from` needs to become `to`.
QByteArray departure(const Lines& from, const Lines& to, int width)
{
    if (from == to)
        return "\n";
    if (mirrored(from, width) == to)
        return " mirrored\n";
    if (turned(from, width) == to)
        return " mirrored by the painter\n";
    auto pairs = pairsOf(from, to);
    Lines kept;
    Lines wanted;
    for (const auto& [one, other] : pairs) {
        kept.append(from.at(one));
        wanted.append(to.at(other));
    }
    QByteArray text;
    for (int line = 0; line < kept.size();) {
        if (kept.at(line) == wanted.at(line)) {
            ++line;
        } else if (const Rule rule = nextRule(kept, wanted, line); !rule.first.isEmpty()) {
            kept = replaced(kept, rule);
            text += ' ' + rule.first + '>' + rule.second;
            line = 0;
        } else {
            kept.remove(line);
            wanted.remove(line);
            pairs.remove(line);
        }
    }
    QByteArray added;
    for (int i = 0; i < from.size(); ++i)
        if (std::none_of(pairs.cbegin(), pairs.cend(), [i](auto pair) { return pair.first == i; }))
            text += " -" + QByteArray::number(i + 1);
    for (int i = 0; i < to.size(); ++i)
        if (std::none_of(pairs.cbegin(), pairs.cend(), [i](auto pair) { return pair.second == i; }))
            added += '+' + QByteArray::number(i + 1) + ' ' + to.at(i).join(' ') + '\n';
    return text + '\n' + added;
}

} // namespace

void LookSheet::add(const QByteArray& title, const QByteArray& atRest, const States& states,
                    int width, Written written)
{
    const Lines rest = folded(linesOf(atRest));
    QByteArrayList names;
    QByteArrayList departures;
    for (const auto& [name, look] : states) {
        const QByteArray text =
            look == atRest ? QByteArray() : departure(rest, folded(linesOf(look)), width);
        if (const int same = departures.indexOf(text); same >= 0) {
            names[same] += ", " + name;
        } else {
            names.append(name);
            departures.append(text);
        }
    }
    QByteArray look = rest.isEmpty() ? QByteArrayLiteral("nothing\n") : toText(rest);
    bool isLast = false; // the line of a state, and all of it
    for (int i = 0; i < names.size(); ++i) {
        const QByteArray& text = departures.at(i);
        const bool isShort = text.count('\n') == 1;
        if (isLast && isShort)
            look.replace(look.size() - 1, 1, " ");
        if (!text.isEmpty())
            look += '[' + names.at(i) + ']' + text;
        isLast = isShort || (isLast && text.isEmpty());
    }
    const auto same = std::find_if(m_looks.begin(), m_looks.end(), [&](const Look& known) {
        return known.look == look && !known.written.isEmpty();
    });
    if (same != m_looks.end())
        same->titles.append(title);
    else
        m_looks.append(
            {{title}, look, written == Elsewhere ? QByteArray() : shortest(look, width)});
}

QByteArray LookSheet::shortest(const QByteArray& look, int width) const
{
    constexpr int Few = 3; ///< lines, of which the first says most
    QByteArray text = look;
    for (const Look& known : m_looks) {
        if (known.written != known.look && !known.written.isEmpty())
            continue;
        const QByteArray other = "as " + known.titles.first() + ':'
                                 + departure(linesOf(known.look), linesOf(look), width);
        const int lines = other.count('\n');
        if (3 * other.size() < 2 * text.size() && lines < text.count('\n')
            && lines <= qMax(Few, look.count('\n') / 2))
            text = other;
    }
    return text;
}

QByteArray LookSheet::text() const
{
    QByteArray text;
    for (const Look& look : m_looks)
        if (!look.written.isEmpty())
            text += "# " + look.titles.join(" | ") + (look.written.count('\n') == 1 ? ": " : "\n")
                    + look.written;
    return text;
}
