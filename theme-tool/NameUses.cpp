#include "NameUses.h"

#include "AllThemeNames.h"
#include "ContrastTable.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>

/// The page is in a static library, whose resources register themselves only when asked to.
static void registerNames()
{
    Q_INIT_RESOURCE(theme_tool);
}

namespace ThemeTool {

namespace {

QStringList readLines()
{
    registerNames();
    QFile file(QStringLiteral(":/theme-tool/names.txt"));
    file.open(QIODevice::ReadOnly);
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
}

/// A line of names.txt that says what names are used for; other lines have no names.
struct Row
{
    explicit Row(const QString& line)
    {
        static const QRegularExpression sForm(
            QStringLiteral("^([A-Z]\\w*(?: [A-Z]\\w*)*)(?: of (\\w+))? \\| (.+)$"));
        const auto match = sForm.match(line);
        if (match.hasMatch())
            names = match.captured(1).split(QLatin1Char(' '));
        section = match.captured(2);
        use = match.captured(3);
    }

    QStringList names;
    QString section; ///< of the configuration, where that is needed to tell them apart
    QString use;
};

QString asCode(const QString& text)
{
    return QLatin1Char('`') + text + QLatin1Char('`');
}

/// What `names` have to stand out from, and by how much.
QString contrastsOf(const QStringList& names)
{
    QMap<QString, QStringList> grounds;
    for (const ContrastRule& rule : contrastRules()) {
        for (const QString& name : names) {
            if (rule.subject.split(QLatin1Char(' ')).contains(name))
                grounds[rule.least] += rule.grounds;
        }
    }
    QStringList texts;
    for (auto ratio = grounds.begin(); ratio != grounds.end(); ++ratio) {
        ratio->removeDuplicates();
        for (QString& ground : *ratio) {
            if (ground != QLatin1String("surfaces"))
                ground = asCode(ground);
        }
        texts.prepend(ratio.key() + QLatin1String(" on ") + ratio->join(QLatin1String(", ")));
    }
    return texts.join(QLatin1String("; "));
}

QString tableLine(const Row& row)
{
    QStringList names;
    for (const QString& name : row.names)
        names += asCode(name);
    QString shown = names.join(QLatin1String(", "));
    if (!row.section.isEmpty())
        shown += QLatin1String(" of ") + asCode(row.section);
    return QStringLiteral("| %1 | %2 | %3 |\n").arg(shown, row.use, contrastsOf(row.names));
}

QString wordOf(const QString& text, const QMap<QString, QString>& words)
{
    for (auto word = words.begin(); word != words.end(); ++word) {
        if (text.startsWith(word.key()) || text.endsWith(word.key()))
            return *word;
    }
    return {};
}

/// What the name of a control, composed of these words, is used for.
QString useOfControl(const QString& family, const QString& kind, const QString& state,
                     const QString& part)
{
    static const QMap<QString, QString> sFamilies{
        {QStringLiteral("Button"), QStringLiteral("buttons")},
        {QStringLiteral("Input"), QStringLiteral("combo boxes, spin boxes and date editors")},
        {QStringLiteral("ToggleButton"), QStringLiteral("checkable buttons")}};
    static const QMap<QString, QString> sParts{
        {QStringLiteral("BackgroundBrush"), QStringLiteral("body")},
        {QStringLiteral("BorderBrush"), QStringLiteral("border")},
        {QStringLiteral("ForegroundBrush"), QStringLiteral("words and icons")}};
    static const QMap<QString, QString> sStates{
        {QStringLiteral("Checked"), QStringLiteral(", checked")},
        {QStringLiteral("Default"), QStringLiteral(", as the window's default")}};
    static const QMap<QString, QString> sPointers{
        {QStringLiteral("Hover"), QStringLiteral(", under the pointer")},
        {QStringLiteral("Pressed"), QStringLiteral(", pressed")}};
    QString use = sParts.value(part) + QLatin1String(" of ") + sFamilies.value(family);
    if (!kind.isEmpty())
        use += QLatin1String(" of the kind ") + kind;
    return use + wordOf(state, sStates) + wordOf(state, sPointers);
}

} // namespace

QVector<NameUse> nameUses()
{
    QVector<NameUse> uses;
    for (const QString& line : readLines()) {
        const Row row(line);
        for (const QString& name : row.names)
            uses.append({name, row.section.isEmpty() ? row.use
                                                     : QString(row.use + QLatin1String(" (")
                                                               + row.section + QLatin1Char(')'))});
    }
    for (const QString& family : AllThemeNames::families())
        for (const QString& kind : AllThemeNames::kinds())
            for (const QString& state : AllThemeNames::states())
                for (const QString& part : AllThemeNames::parts())
                    uses.append({QString(family + kind + state + part),
                                 useOfControl(family, kind, state, part)});
    return uses;
}

QString namesPage()
{
    const QString head = QStringLiteral("| Name | Use | Contrast |\n|---|---|---|\n");
    QString page;
    bool isInTable = false;
    for (const QString& line : readLines()) {
        const Row row(line);
        const bool isRow = !row.names.isEmpty();
        if (isRow)
            page += (isInTable ? QString() : head) + tableLine(row);
        else
            page += line + QLatin1Char('\n');
        isInTable = isRow;
    }
    return page.trimmed() + QLatin1Char('\n');
}

} // namespace ThemeTool
