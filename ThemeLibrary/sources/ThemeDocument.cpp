#include "ThemeDocument.h"

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
constexpr int MaxQuotedLength = 60;
/// The XML reader's own messages may quote the file at any length.
constexpr int LongestFailure = 160;
/// Parsers compare each attribute of a tag with all others of it.
constexpr int MaxAttributes = 100;

QString extendsAttribute()
{
    return QStringLiteral("extends");
}

QString leftOut()
{
    return QStringLiteral("left out");
}

QString ignored()
{
    return QStringLiteral("ignored");
}

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

QString range(double smallest, double largest)
{
    return QLatin1String(" from ") + QString::number(smallest) + QLatin1String(" to ")
           + QString::number(largest);
}

/// Counts the runs of equals signs between one "<" and the next; each attribute has one.
bool hasTooManyAttributes(const QString& text)
{
    int count = 0;
    QChar previous;
    for (const QChar character : text) {
        if (character == u'<')
            count = 0;
        else if (character == u'=' && previous != u'=' && ++count > MaxAttributes)
            return true;
        previous = character;
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

/// Why the token that `reader` is at must not be given to the document parser; empty when it may.
QString problemOfToken(const QXmlStreamReader& reader, int& depth, ThemeFileBudget& budget)
{
    switch (reader.tokenType()) {
    case QXmlStreamReader::StartElement:
        if (++depth > MaxDepth)
            return QStringLiteral("elements are nested too deeply");
        return --budget.elements < 0 ? QStringLiteral("there are too many elements") : QString();
    case QXmlStreamReader::EndElement: --depth; return {};
    default: return {};
    }
}

/// Reads on to the end of the content, or to the first problem, which is returned.
QString scan(QXmlStreamReader& reader, ThemeFileBudget& budget)
{
    int depth = 0;
    bool hasEntities = false;
    QString problem;
    while (!reader.atEnd() && problem.isEmpty()) {
        reader.readNext();
        problem = problemOfToken(reader, depth, budget);
        hasEntities |= reader.tokenType() == QXmlStreamReader::DTD;
        if (hasEntities && (budget.characters -= sizeOfToken(reader)) < 0)
            problem = QStringLiteral("its entities stand for too much text");
    }
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

/// The file `name` of the theme that `root` extends; null, and reported, when it cannot be used.
std::unique_ptr<ThemeDocument> readBase(const ThemeElement& root, const QDir& repository,
                                        const QString& name, const QStringList& themes,
                                        ThemeFileBudget& budget)
{
    const QString base = root.getAttribute(extendsAttribute());
    QString problem = problemOfBase(base, themes);
    std::unique_ptr<ThemeDocument> document;
    if (problem.isEmpty()) {
        document = std::make_unique<ThemeDocument>(
            repository.filePath(base + QLatin1Char('/') + name), budget);
        document->reportFailure();
        if (isUsable(*document, root.getTag()))
            return document;
        problem = QLatin1String("extends ") + quoted(base)
                  + QLatin1String(", which has no readable ") + name;
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

QString quoted(const QString& text)
{
    QString shown = text.left(MaxQuotedLength).simplified();
    if (text.size() > MaxQuotedLength)
        shown += QLatin1String("...");
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

ThemeElement::ThemeElement(const ThemeDocument& document, const QDomElement& element)
    : m_document(&document), m_element(element)
{ }

QString ThemeElement::getText() const
{
    QString text;
    for (QDomNode node = m_element.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isText())
            text += node.nodeValue();
    }
    return text.trimmed();
}

std::vector<ThemeElement> ThemeElement::getChildren() const
{
    std::vector<ThemeElement> children;
    for (QDomNode node = m_element.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isElement())
            children.emplace_back(*m_document, node.toElement());
        else if (node.isText())
            report(QStringLiteral("text ") + quoted(node.nodeValue().trimmed()), ignored());
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
    return {m_document->getPath(), m_element.lineNumber(), m_element.columnNumber(), {}, {}};
}

void ThemeElement::checkAttributes(std::initializer_list<const char*> known,
                                   const QStringList& others) const
{
    const QDomNamedNodeMap attributes = m_element.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QString name = attributes.item(i).nodeName();
        const auto isName = [&name](const char* other) { return name == QLatin1String(other); };
        if (std::none_of(known.begin(), known.end(), isName) && !others.contains(name))
            report(QStringLiteral("unknown attribute ") + quoted(name), ignored());
    }
}

void ThemeElement::checkTextElement(std::initializer_list<const char*> known,
                                    const QStringList& others) const
{
    checkAttributes(known, others);
    for (QDomElement child = m_element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        ThemeElement(*m_document, child).rejectUnknown();
}

void ThemeElement::reject(const QString& problem) const
{
    report(problem, leftOut());
}

void ThemeElement::rejectUnknown() const
{
    m_document->report(m_element.lineNumber(), m_element.columnNumber(),
                       QStringLiteral("unknown element ") + quoted(getTag()), leftOut());
}

void ThemeElement::report(const QString& what, const QString& done) const
{
    QString subject = getTag();
    for (const QString& key :
         {QStringLiteral("name"), QStringLiteral("role"), QStringLiteral("group")}) {
        if (hasAttribute(key))
            subject += QLatin1Char(' ') + quoted(getAttribute(key));
    }
    m_document->report(m_element.lineNumber(), m_element.columnNumber(),
                       subject + QStringLiteral(": ") + what, done);
}

ThemeDocument::ThemeDocument(const QString& path, ThemeFileBudget& budget) : m_path(path)
{
    QFile file(path);
    // Opening a pipe or a device would wait for ever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        m_status = FILE_NOT_FOUND_ERROR;
        return;
    }
    const QByteArray bytes = file.read(qint64(budget.bytes) + 1);
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
    const QString problem = scan(reader, budget);
    if (!problem.isEmpty()) {
        fail(int(reader.lineNumber()), problem);
        return;
    }
    if (reader.hasError())
        fail(int(reader.lineNumber()), reader.errorString());

    QString error;
    int line = 0;
    const QString checked = reader.hasError() ? text.left(int(reader.characterOffset())) : text;
    if (!m_content.setContent(checked, &error, &line) && m_status == NO_ERROR)
        fail(line, error);
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
    const QFileInfo file(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    const QDir repository(QFileInfo(file.absolutePath()).absolutePath());
    QStringList themes{file.absoluteDir().dirName()};
    ThemeFileBudget budget;
    ThemeDocuments documents;
    documents.push_back(std::make_unique<ThemeDocument>(path, budget));
    documents.front()->reportFailure();
    if (!isUsable(*documents.front(), rootTag))
        return documents;

    for (ThemeElement root = documents.front()->getRoot(); root.hasAttribute(extendsAttribute());
         root = documents.back()->getRoot()) {
        auto base = readBase(root, repository, file.fileName(), themes, budget);
        if (!base)
            break;
        documents.push_back(std::move(base));
        themes += root.getAttribute(extendsAttribute());
    }
    return documents;
}

} // namespace BRELK
