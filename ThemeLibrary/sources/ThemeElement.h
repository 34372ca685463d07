#pragma once

#include <QPair>
#include <QStringList>
#include <QVector>

#include <initializer_list>
#include <vector>

namespace BRELK {

class ThemeDocument;
struct NamedThemeElement;

/// What is wrong in a theme file, and what was done about it.
struct ThemeProblem
{
    QString file;
    int line;
    int column; ///< 0: not known
    QString what;
    QString done;
};

/// An element as it stands in a file.
struct ThemeNode
{
    QString tag;
    QVector<QPair<QString, QString>> attributes;
    QString text; ///< all that stands right in it, without the blanks around it
    int line = 0;
    int column = 0;
    std::vector<ThemeNode> children;
};

/// An element of a theme file that knows how to report problems with itself. Valid as long as its
/// document.
class ThemeElement
{
public:
    ThemeElement(const ThemeDocument& document, const ThemeNode& node)
        : m_document(&document), m_node(&node)
    { }

    /// Whether both are the same element of the same document, read for the same name.
    bool operator==(const ThemeElement& other) const
    {
        return m_node == other.m_node && m_alternatives == other.m_alternatives;
    }

    const QString& getTag() const { return m_node->tag; }

    /// Where it stands, for messages.
    ThemeProblem place() const;

    /// The text without the blanks around it.
    QString getText() const { return withAlternatives(m_node->text); }

    int countAttributes() const { return m_node->attributes.size(); }

    bool hasAttribute(QLatin1String name) const { return findAttribute(name) != nullptr; }

    QString getAttribute(QLatin1String name) const;

    /// The elements within this one; other content is reported.
    std::vector<ThemeElement> getChildren() const;

    /// This element as it reads for each of the names that its attribute "name" spells: "{1}" in
    /// its content stands for the alternative of the name's first group. At most `most` names.
    std::vector<NamedThemeElement> spellNames(int most) const;

    /// `text` as a number from `smallest` to `largest`. Any other text makes `ok` false and has the
    /// element rejected.
    double readNumber(const QString& text, double smallest, double largest, bool& ok) const;

    /// The same for whole numbers.
    int readInteger(const QString& text, int smallest, int largest, bool& ok) const;

    /// Reports each attribute that is neither among `known` nor among `others`.
    void checkAttributes(std::initializer_list<const char*> known,
                         const std::vector<QLatin1String>& others = {}) const;

    /// The same for an element that holds only text; elements within it are reported too.
    void checkTextElement(std::initializer_list<const char*> known,
                          const std::vector<QLatin1String>& others = {}) const;

    /// Reports that this element is left out because of `problem`.
    void reject(const QString& problem) const;

    /// Reports that this element is left out because its tag means nothing where it stands.
    void rejectUnknown() const;

    /// Reports `what` is wrong here, and what was `done` about it.
    void report(const QString& what, const QString& done) const;

private:
    const QString* findAttribute(QLatin1String name) const;
    QString withAlternatives(const QString& text) const;

    const ThemeDocument* m_document;
    const ThemeNode* m_node;
    /// Of the groups in its name; empty for those that it does not refer to.
    QStringList m_alternatives;
};

struct NamedThemeElement
{
    QString name;
    ThemeElement element;
};

/// `text` as it appears in reports: in quotes, on one line, and of moderate length.
QString quoted(const QString& text);

} // namespace BRELK
