#include "Commands.h"

#include "ReadTheme.h"
#include "ThemeRepositories.h"

#include <QFileInfo>
#include <QTextStream>

#include <cstdio>
#include <limits>
#include <unistd.h>

namespace ThemeTool {

namespace {

constexpr int Any = std::numeric_limits<int>::max();

Option option(const char* name, const char* value, const char* use)
{
    return {QLatin1String(name), QLatin1String(value), QLatin1String(use)};
}

bool isColored()
{
    return isatty(STDOUT_FILENO) && !qEnvironmentVariableIsSet("NO_COLOR");
}

} // namespace

const QVector<Command>& commands()
{
    static const QVector<Command> sCommands{
        {QStringLiteral("check"),
         QStringLiteral("[THEME...]"),
         QStringLiteral("say what is wrong with themes"),
         QStringLiteral("Reads each THEME, a directory or a name in the repository (all of it when "
                        "none is given), and prints a "
                        "line FILE:LINE:COLUMN: error|warning: TEXT for whatever is wrong: what "
                        "the readers report, names that are "
                        "missing or that nobody asks for, palette roles without a color, "
                        "placeholders of style sheets without a value, icons, pictures and "
                        "bundles that are not found or cannot be read, and colors that do not "
                        "stand out enough."),
         {option("own", "PATTERN", "names that an application asks for, as a regular expression"),
          option("strict", "", "warnings count as faults"),
          option("json", "", "print an array of objects instead of lines")},
         0,
         Any,
         runCheck},
        {QStringLiteral("new"),
         QStringLiteral("NAME"),
         QStringLiteral("write a theme that passes the check"),
         QStringLiteral(
             "Makes the theme directory NAME in the repository (that of this user unless "
             "given), with a theme that "
             "extends another one, there or installed, and replaces the colors that are given. "
             "Nothing is overwritten."),
         {option("extends", "THEME", "the theme to stand on, Dark unless given"),
          option("background", "COLOR", "the color of windows"),
          option("foreground", "COLOR", "the color of words, at least 7:1 to the background"),
          option("accent", "COLOR", "the color of what is chosen")},
         1,
         1,
         runNew},
        {QStringLiteral("show"),
         QStringLiteral("THEME [PATTERN]"),
         QStringLiteral("print values and where they come from"),
         QStringLiteral(
             "Prints each color and brush of THEME whose name contains a match of the regular "
             "expression PATTERN, with "
             "the file and line that it stands in and what it is made of, step by step."),
         {},
         1,
         2,
         runShow},
        {QStringLiteral("names"),
         QStringLiteral("[PATTERN]"),
         QStringLiteral("print what the style asks a theme for"),
         QStringLiteral("Prints each name that the style asks for, or that contains a match of "
                        "PATTERN, and what it is used for."),
         {option("markdown", "", "print the page of the documentation instead")},
         0,
         1,
         runNames},
        {QStringLiteral("diff"),
         QStringLiteral("A B"),
         QStringLiteral("print what differs between two themes"),
         QStringLiteral("Prints each color and brush that the themes A and B do not have alike."),
         {},
         2,
         2,
         runDiff},
        {QStringLiteral("contrast"),
         QStringLiteral("THEME"),
         QStringLiteral("print how colors stand out"),
         QStringLiteral("Prints the table of contrasts of THEME, beginning with what is nearest to "
                        "its limit or beyond it."),
         {},
         1,
         1,
         runContrast},
        {QStringLiteral("list"),
         QString(),
         QStringLiteral("print the themes"),
         QStringLiteral("Prints the name and the directory of each theme."),
         {},
         0,
         0,
         runList},
        {QStringLiteral("icons"),
         QStringLiteral("[PATTERN]"),
         QStringLiteral("print the names of the icons"),
         QStringLiteral("Prints the name of each of the library's icons, or of those that contain "
                        "a match of PATTERN."),
         {},
         0,
         1,
         runIcons},
        {QStringLiteral("render"),
         QStringLiteral("THEME DIR"),
         QStringLiteral("picture every widget in a theme"),
         QStringLiteral(
             "Writes the pages of the gallery in THEME to the directory DIR, as pictures."),
         {},
         2,
         2,
         runRender}};
    return sCommands;
}

QString themeDirectory(const Request& request, const QString& name)
{
    for (const QString& directory :
         {name, BRELK::ThemeRepositories::find(name, request.repositories)}) {
        if (QFileInfo::exists(directory + QLatin1String("/theme.xml"))
            || QFileInfo::exists(directory + QLatin1String("/config.xml")))
            return directory;
    }
    printError(QStringLiteral("\"%1\" is neither a theme directory nor a theme of %2; \"varn-theme "
                              "list\" prints those")
                   .arg(name, request.repositories.join(QLatin1String(", "))));
    return {};
}

bool isUsable(const QRegularExpression& expression)
{
    if (!expression.isValid())
        printError(QStringLiteral("the pattern is no regular expression: ")
                   + expression.errorString());
    return expression.isValid();
}

void showProgress(const QElapsedTimer& timer, const QString& text)
{
    constexpr int Patience = 1000; // ms
    if (timer.elapsed() > Patience && isatty(STDERR_FILENO))
        QTextStream(stderr) << text << '\n';
}

void print(const QString& text)
{
    QTextStream(stdout) << text;
}

void printError(const QString& text)
{
    QTextStream(stderr) << "varn-theme: " << text << '\n';
}

QString shown(const QColor& color)
{
    const QString name = color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
    if (!isColored())
        return name;
    return QStringLiteral("\033[48;2;%1;%2;%3m    \033[0m ")
               .arg(color.red())
               .arg(color.green())
               .arg(color.blue())
           + name;
}

} // namespace ThemeTool
