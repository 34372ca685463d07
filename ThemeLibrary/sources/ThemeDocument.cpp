#include "ThemeDocument.h"

#include "ThemeRepositories.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>
#include <QXmlStreamReader>

#include <algorithm>
#include <memory>
#include <utility>

namespace BRELK {

namespace {

constexpr int MaxDepth = 64;
constexpr int MaxDocuments = 8;
constexpr int MaxReports = 200;
/// The XML reader's own messages may quote the file at any length.
constexpr int LongestFailure = 160;
/// Parsers compare each attribute of a tag with all others of it.
constexpr int MaxAttributes = 100;

const QLatin1String ExtendsAttribute("extends");

QString decoded(const QByteArray& bytes)
{
    constexpr int LongestDeclaration = 200;
    QXmlStreamReader declaration(bytes.left(LongestDeclaration));
    declaration.readNext();
    QTextCodec* codec =
        QTextCodec::codecForName(declaration.documentEncoding().toString().toLatin1());
    if (!codec)
        codec = QTextCodec::codecForName("UTF-8");
    return QTextCodec::codecForUtfText(bytes, codec)->toUnicode(bytes);
}

/// Counts the runs of equals signs between one "<" and the next; each attribute has one.
bool hasTooManyAttributes(const QString& text)
{
    int count = 0;
    int previous = -1;
    for (int sign = text.indexOf(u'='); sign >= 0; sign = text.indexOf(u'=', sign + 1)) {
        const QStringRef between = text.midRef(previous + 1, sign - previous - 1);
        if (between.contains(u'<'))
            count = 0;
        if ((previous < 0 || !between.isEmpty()) && ++count > MaxAttributes)
            return true;
        previous = sign;
    }
    return false;
}

/// How many characters the token that `reader` is at stands for, which may be many more than are in
/// the file when it refers to entities.
int sizeOfToken(const QXmlStreamReader& reader)
{
    int size = reader.text().size();
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QXmlStreamAttribute& attribute : attributes)
        size += attribute.value().size();
    return size;
}

/// `text`, without a copy where it is `known`: elements are like the one before.
QString shared(const QStringRef& text, const QString& known)
{
    return text == known ? known : text.toString();
}

/// Makes a tree of what a reader reads, as far as a budget goes.
class TreeBuilder
{
public:
    TreeBuilder(QXmlStreamReader& reader, ThemeFileBudget& budget)
        : m_reader(reader), m_budget(budget)
    { }

    /// Reads on to the end, or to the first problem, which is returned.
    QString build(ThemeNode& root);

private:
    QString take();
    void open();
    void close();

    QXmlStreamReader& m_reader;
    ThemeFileBudget& m_budget;
    /// From a node that holds the root to the innermost element that is not closed.
    std::vector<ThemeNode> m_open{1};
    int m_line = 0;
    int m_column = 0;
    bool m_hasEntities = false;
};

void TreeBuilder::open()
{
    static const ThemeNode sNone;
    const auto& siblings = m_open.back().children;
    const ThemeNode& sibling = siblings.empty() ? sNone : siblings.back();
    ThemeNode node;
    node.tag = shared(m_reader.qualifiedName(), sibling.tag);
    node.line = m_line;
    node.column = m_column;
    const QXmlStreamAttributes attributes = m_reader.attributes();
    node.attributes.reserve(attributes.size());
    for (int i = 0; i < attributes.size(); ++i) {
        const QXmlStreamAttribute& attribute = attributes.at(i);
        const QString name = shared(attribute.qualifiedName(), sibling.attributes.value(i).first);
        node.attributes.append({name, attribute.value().toString()});
    }
    m_open.push_back(std::move(node));
}

void TreeBuilder::close()
{
    ThemeNode node = std::move(m_open.back());
    m_open.pop_back();
    node.text = node.text.trimmed();
    m_open.back().children.push_back(std::move(node));
}

/// Takes the token that the reader is at, unless there is a problem with it.
QString TreeBuilder::take()
{
    switch (m_reader.tokenType()) {
    case QXmlStreamReader::StartElement:
        if (m_open.size() > MaxDepth)
            return QStringLiteral("elements are nested too deeply");
        if (--m_budget.elements < 0)
            return QStringLiteral("there are too many elements");
        open();
        return {};
    case QXmlStreamReader::EndElement: close(); return {};
    case QXmlStreamReader::Characters:
        if (!m_reader.isWhitespace())
            m_open.back().text += m_reader.text();
        return {};
    default: return {};
    }
}

QString TreeBuilder::build(ThemeNode& root)
{
    QString problem;
    while (!m_reader.atEnd() && problem.isEmpty()) {
        // Behind a text the reader has seen the bracket that ends it.
        const bool isPastBracket = m_reader.tokenType() == QXmlStreamReader::Characters;
        m_line = int(m_reader.lineNumber());
        m_column = int(m_reader.columnNumber()) + (isPastBracket ? 0 : 1);
        m_reader.readNext();
        m_hasEntities |= m_reader.tokenType() == QXmlStreamReader::DTD;
        if (m_hasEntities && (m_budget.characters -= sizeOfToken(m_reader)) < 0)
            return QStringLiteral("its entities stand for too much text");
        problem = take();
    }
    if (!m_open.front().children.empty())
        root = std::move(m_open.front().children.front());
    return problem;
}

/// Why `base` cannot be the theme that a file extends; empty when it can.
QString problemOfBase(const QString& base, const QStringList& themes)
{
    if (themes.contains(base))
        return QStringLiteral("extends itself through ") + quoted(base);
    if (!isThemeName(base))
        return QStringLiteral("extends ") + quoted(base)
               + QStringLiteral(", which is no theme's name");
    if (themes.size() >= MaxDocuments)
        return QStringLiteral("extends ") + quoted(base) + QStringLiteral(" as one theme too many");
    return {};
}

bool isUsable(const ThemeDocument& document, const QString& rootTag)
{
    if (document.getStatus() != ThemeDocument::NO_ERROR)
        return false;
    const ThemeElement root = document.getRoot();
    if (root.getTag() == rootTag)
        return true;
    root.report(QStringLiteral("the root element is ") + quoted(root.getTag())
                    + QStringLiteral(", not ") + quoted(rootTag),
                QStringLiteral("the file is not used"));
    return false;
}

/// The directory of the theme `base` in `repository`, or else in the first that is searched and has
/// one: a theme of the user's may extend one of the system's.
QString baseDirectory(const QString& base, const QDir& repository)
{
    const QString own = repository.filePath(base);
    if (QFileInfo::exists(own))
        return own;
    for (const QString& other : ThemeRepositories::all()) {
        const QString found = QDir(other).filePath(base);
        if (QFileInfo::exists(found))
            return found;
    }
    return own;
}

/// The file that the theme which `root` extends has in place of its own, at `file`; null, and
/// reported, when it cannot be used.
std::unique_ptr<ThemeDocument> readBase(const ThemeElement& root, const QFileInfo& file,
                                        const QStringList& themes, ThemeFileBudget& budget)
{
    const QString base = root.getAttribute(ExtendsAttribute);
    QString problem = problemOfBase(base, themes);
    std::unique_ptr<ThemeDocument> document;
    if (problem.isEmpty()) {
        const QDir repository(QFileInfo(file.absolutePath()).absolutePath());
        document = std::make_unique<ThemeDocument>(
            QDir(baseDirectory(base, repository)).filePath(file.fileName()), budget);
        document->reportFailure();
        if (isUsable(*document, root.getTag()))
            return document;
        problem = QLatin1String("extends ") + quoted(base)
                  + QLatin1String(", which has no readable ") + file.fileName();
    }
    root.report(problem, QStringLiteral("read without it"));
    return nullptr;
}

ThemeProblemRecorder*& currentRecorder()
{
    static ThemeProblemRecorder* sRecorder = nullptr;
    return sRecorder;
}

} // namespace

ThemeProblemRecorder::ThemeProblemRecorder() : m_outer(currentRecorder())
{
    currentRecorder() = this;
}

ThemeProblemRecorder::~ThemeProblemRecorder()
{
    currentRecorder() = m_outer;
}

bool isThemeName(const QString& name)
{
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..")
           && !name.contains(u'/') && !name.contains(u'\\');
}

ThemeDocument::ThemeDocument(const QString& path, ThemeFileBudget& budget) : m_path(path)
{
    QFile file(path);
    // Opening a pipe or a device would wait for ever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        m_status = FILE_NOT_FOUND_ERROR;
        return;
    }
    const QByteArray bytes = file.read(std::min<qint64>(file.size(), budget.bytes) + 1);
    budget.bytes -= bytes.size();
    if (budget.bytes < 0)
        fail(1, QStringLiteral("the file is too large"));
    else
        parse(decoded(bytes), budget);
}

void ThemeDocument::parse(const QString& text, ThemeFileBudget& budget)
{
    if (hasTooManyAttributes(text)) {
        fail(1, QStringLiteral("an element has too many attributes"));
        return;
    }
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false);
    const QString problem = TreeBuilder(reader, budget).build(m_root);
    if (!problem.isEmpty() || reader.hasError())
        fail(int(reader.lineNumber()), problem.isEmpty() ? reader.errorString() : problem);
    if (problem.isEmpty())
        m_text = reader.hasError() ? text.left(int(reader.characterOffset())) : text;
}

void ThemeDocument::fail(int line, const QString& what)
{
    m_status = READ_ERROR;
    m_failureLine = line;
    m_failure = what.simplified().left(LongestFailure);
}

void ThemeDocument::reportFailure() const
{
    if (m_status == READ_ERROR)
        report(m_failureLine, 0, m_failure, QStringLiteral("the file is not used"));
}

void ThemeDocument::report(int line, int column, const QString& what, const QString& done) const
{
    if (ThemeProblemRecorder* recorder = currentRecorder()) {
        recorder->m_problems.append({m_path, line, column, what, done});
        return;
    }
    const QString place = m_path + QLatin1Char(':') + QString::number(line) + QLatin1String(": ");
    const QString message = place + what + QLatin1String("; ") + done;
    if (m_reports.size() >= MaxReports || m_reports.contains(message))
        return;
    m_reports.insert(message);
    if (m_reports.size() < MaxReports)
        qDebug().noquote() << message;
    else
        qDebug().noquote() << QString(
            place + QLatin1String("too many problems; the rest is not reported"));
}

ThemeDocuments readThemeDocuments(const QString& path, const QString& rootTag)
{
    QFileInfo file(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    QStringList themes{file.absoluteDir().dirName()};
    ThemeFileBudget budget;
    ThemeDocuments documents;
    documents.push_back(std::make_unique<ThemeDocument>(path, budget));
    documents.front()->reportFailure();
    if (!isUsable(*documents.front(), rootTag))
        return documents;

    for (ThemeElement root = documents.front()->getRoot(); root.hasAttribute(ExtendsAttribute);
         root = documents.back()->getRoot()) {
        auto base = readBase(root, file, themes, budget);
        if (!base)
            break;
        file.setFile(base->getPath());
        documents.push_back(std::move(base));
        themes += root.getAttribute(ExtendsAttribute);
    }
    return documents;
}

} // namespace BRELK
