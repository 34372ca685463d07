#pragma once

#include "ThemeElement.h"

#include <QSet>
#include <QStringList>
#include <QVector>

#include <memory>
#include <vector>

namespace BRELK {

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

} // namespace BRELK
