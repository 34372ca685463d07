#pragma once

#include <QPair>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <initializer_list>
#include <memory>
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

/// While one lives, problems are collected in it and not written to the debug logger. The innermost
/// one counts.
class ThemeProblemRecorder
{
public:
    ThemeProblemRecorder();
    ~ThemeProblemRecorder();
    Q_DISABLE_COPY(ThemeProblemRecorder)

    const QVector<ThemeProblem>& getProblems() const { return m_problems; }

private:
    friend class ThemeDocument;

    ThemeProblemRecorder* m_outer;
    QVector<ThemeProblem> m_problems;
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

    bool hasAttribute(const QString& name) const { return findAttribute(name) != nullptr; }

    QString getAttribute(const QString& name) const;

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
                         const QStringList& others = {}) const;

    /// The same for an element that holds only text; elements within it are reported too.
    void checkTextElement(std::initializer_list<const char*> known,
                          const QStringList& others = {}) const;

    /// Reports that this element is left out because of `problem`.
    void reject(const QString& problem) const;

    /// Reports that this element is left out because its tag means nothing where it stands.
    void rejectUnknown() const;

    /// Reports `what` is wrong here, and what was `done` about it.
    void report(const QString& what, const QString& done) const;

private:
    const QString* findAttribute(const QString& name) const;
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

/// What may be read of a theme file and the files it extends together. It is far more than any
/// theme needs, and little enough to be read in no time.
struct ThemeFileBudget
{
    int bytes = 1 << 19;
    int characters = 1 << 20; ///< of text and attributes, with what entities stand for
    int elements = 10000;
};

/// A theme file that is safe to walk: of bounded size and depth, whatever its entities stand for.
class ThemeDocument
{
public:
    enum Status : unsigned { NO_ERROR = 0, FILE_NOT_FOUND_ERROR = 1, READ_ERROR = 2 };

    /// Reads the file at `path`; the budget loses what was read.
    ThemeDocument(const QString& path, ThemeFileBudget& budget);
    Q_DISABLE_COPY(ThemeDocument)

    /// `FILE_NOT_FOUND_ERROR` when there is no such file or it cannot be opened, `READ_ERROR` when
    /// it is not well-formed XML, too large or too deep.
    Status getStatus() const { return m_status; }

    /// The file's content, decoded. Of a file that is not well-formed, what stands before the
    /// error; of one that is too large or too deep, nothing.
    const QString& getText() const { return m_text; }

    ThemeElement getRoot() const { return {*this, m_root}; }

    /// Reports why the status is `READ_ERROR`, if it is.
    void reportFailure() const;

    QString getPath() const { return m_path; }

    /// Writes `file:line: what; done` to the debug logger, the same only once.
    void report(int line, int column, const QString& what, const QString& done) const;

private:
    void parse(const QString& text, ThemeFileBudget& budget);
    void fail(int line, const QString& what);

    QString m_path;
    QString m_text;
    ThemeNode m_root;
    Status m_status = NO_ERROR;
    int m_failureLine = 0;
    QString m_failure;
    mutable QSet<QString> m_reports;
};

/// A theme file, followed by the one it extends, and so on. Never empty.
using ThemeDocuments = std::vector<std::unique_ptr<ThemeDocument>>;

/// Reads the theme file at `path` and, as its root's attribute "extends" says, the files of the
/// same name in sibling theme directories or, where there is no such sibling, in the first of
/// `ThemeRepositories::all()` that has one. Only the first document's status can differ from
/// `NO_ERROR`; a base that cannot be read is reported and ends the list.
ThemeDocuments readThemeDocuments(const QString& path, const QString& rootTag);

/// Whether `name` can be that of a theme: it leads nowhere but into a directory of the repository.
bool isThemeName(const QString& name);

/// `text` as it appears in reports: in quotes, on one line, and of moderate length.
QString quoted(const QString& text);

} // namespace BRELK
