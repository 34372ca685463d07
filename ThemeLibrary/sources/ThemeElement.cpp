#include "ThemeElement.h"

#include "NamePattern.h"
#include "ThemeDocument.h"

#include <algorithm>

namespace BRELK {

namespace {

const QLatin1String NameAttribute("name");

/// Whether `text` stands in the content of `node`.
bool mentions(const ThemeNode& node, const QString& text)
{
    const auto hasIt = [&text](const QPair<QString, QString>& attribute) {
        return attribute.first != NameAttribute && attribute.second.contains(text);
    };
    return node.text.contains(text)
           || std::any_of(node.attributes.begin(), node.attributes.end(), hasIt)
           || std::any_of(node.children.begin(), node.children.end(),
                          [&text](const ThemeNode& child) { return mentions(child, text); });
}

/// How the content of an element refers to the alternative of its name's group `index`.
QString reference(int index)
{
    return QLatin1Char('{') + QString::number(index + 1) + QLatin1Char('}');
}

/// `text` with `alternatives` in the place of references to them.
QString substituted(const QString& text, const QStringList& alternatives)
{
    QString result;
    int from = 0;
    for (int brace = text.indexOf(u'{'); brace >= 0; brace = text.indexOf(u'{', from)) {
        const int closing = text.indexOf(u'}', brace);
        const int group = text.midRef(brace + 1, closing - brace - 1).toInt();
        result += text.midRef(from, brace - from);
        if (closing >= 0 && group > 0 && group <= alternatives.size())
            result += alternatives.at(group - 1);
        else
            result += text.midRef(brace, closing < 0 ? -1 : closing + 1 - brace);
        from = closing < 0 ? text.size() : closing + 1;
    }
    return result + text.midRef(from);
}

QString leftOut()
{
    return QStringLiteral("left out");
}

QString ignored()
{
    return QStringLiteral("ignored");
}

QString range(double smallest, double largest)
{
    return QLatin1String(" from ") + QString::number(smallest) + QLatin1String(" to ")
           + QString::number(largest);
}

} // namespace

QString quoted(const QString& text)
{
    constexpr int MaxQuotedLength = 60;
    QString shown = text.left(MaxQuotedLength).simplified();
    if (text.size() > MaxQuotedLength)
        shown += QLatin1String("...");
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

const QString* ThemeElement::findAttribute(QLatin1String name) const
{
    for (const auto& attribute : m_node->attributes) {
        if (attribute.first == name)
            return &attribute.second;
    }
    return nullptr;
}

QString ThemeElement::getAttribute(QLatin1String name) const
{
    const QString* value = findAttribute(name);
    return value ? withAlternatives(*value) : QString();
}

QString ThemeElement::withAlternatives(const QString& text) const
{
    return m_alternatives.isEmpty() ? text : substituted(text, m_alternatives);
}

std::vector<NamedThemeElement> ThemeElement::spellNames(int most) const
{
    const NamePattern pattern(getAttribute(NameAttribute), most);
    std::vector<NamedThemeElement> named;
    named.reserve(size_t(pattern.size()));
    QVector<bool> isMentioned;
    if (pattern.countGroups() > 0 && mentions(*m_node, QStringLiteral("{"))) {
        for (int group = 0; group < pattern.countGroups(); ++group)
            isMentioned += mentions(*m_node, reference(group));
    }
    for (int index = 0; index < pattern.size(); ++index) {
        ThemeElement element = *this;
        for (int group = 0; group < isMentioned.size(); ++group)
            element.m_alternatives +=
                isMentioned.at(group) ? pattern.getAlternative(index, group) : QString();
        named.push_back({pattern.getName(index), element});
    }
    return named;
}

std::vector<ThemeElement> ThemeElement::getChildren() const
{
    if (!m_node->text.isEmpty())
        report(QStringLiteral("text ") + quoted(m_node->text), ignored());
    std::vector<ThemeElement> children;
    children.reserve(m_node->children.size());
    for (const ThemeNode& child : m_node->children) {
        children.emplace_back(*m_document, child);
        children.back().m_alternatives = m_alternatives;
    }
    return children;
}

double ThemeElement::readNumber(const QString& text, double smallest, double largest,
                                bool& ok) const
{
    bool isNumber = false;
    const double number = text.trimmed().toDouble(&isNumber);
    if (isNumber && number >= smallest && number <= largest)
        return number;
    reject(quoted(text) + QLatin1String(" is not a number") + range(smallest, largest));
    ok = false;
    return smallest;
}

int ThemeElement::readInteger(const QString& text, int smallest, int largest, bool& ok) const
{
    bool isNumber = false;
    const int number = text.trimmed().toInt(&isNumber);
    if (isNumber && number >= smallest && number <= largest)
        return number;
    reject(quoted(text) + QLatin1String(" is not a whole number") + range(smallest, largest));
    ok = false;
    return smallest;
}

ThemeProblem ThemeElement::place() const
{
    return {m_document->getPath(), m_node->line, m_node->column, {}, {}};
}

void ThemeElement::checkAttributes(std::initializer_list<const char*> known,
                                   const std::vector<QLatin1String>& others) const
{
    for (const auto& attribute : m_node->attributes) {
        const QString& name = attribute.first;
        const auto isName = [&name](const char* other) { return name == QLatin1String(other); };
        if (std::none_of(known.begin(), known.end(), isName)
            && std::find(others.begin(), others.end(), name) == others.end())
            report(QStringLiteral("unknown attribute ") + quoted(name), ignored());
    }
}

void ThemeElement::checkTextElement(std::initializer_list<const char*> known,
                                    const std::vector<QLatin1String>& others) const
{
    checkAttributes(known, others);
    for (const ThemeNode& child : m_node->children)
        ThemeElement(*m_document, child).rejectUnknown();
}

void ThemeElement::reject(const QString& problem) const
{
    report(problem, leftOut());
}

void ThemeElement::rejectUnknown() const
{
    m_document->report(m_node->line, m_node->column,
                       QStringLiteral("unknown element ") + quoted(getTag()), leftOut());
}

void ThemeElement::report(const QString& what, const QString& done) const
{
    QString subject = getTag();
    for (const QLatin1String key : {NameAttribute, QLatin1String("role"), QLatin1String("group")}) {
        if (const QString* value = findAttribute(key))
            subject += QLatin1Char(' ') + quoted(*value);
    }
    m_document->report(m_node->line, m_node->column, subject + QStringLiteral(": ") + what, done);
}

} // namespace BRELK
