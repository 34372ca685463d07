#pragma once

#include <QColor>
#include <QElapsedTimer>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QVector>

namespace ThemeTool {

/// How the program ends.
enum ExitStatus { Success = 0, Faults = 1, CouldNotRun = 2 };

/// What the command line asks for, as far as it is the same for all commands.
struct Request
{
    QStringList repositories; ///< where themes are looked up by name; the first wins
    QStringList arguments; ///< without options
    QHash<QString, QString> options; ///< by name, without dashes; flags have an empty value

    bool has(const char* option) const { return options.contains(QLatin1String(option)); }

    QString value(const char* option) const { return options.value(QLatin1String(option)); }
};

struct Option
{
    QString name;
    QString value; ///< what to call it; empty for a flag
    QString use;
};

struct Command
{
    QString name;
    QString arguments;
    QString summary;
    QString description;
    QVector<Option> options;
    int fewest; ///< arguments
    int most;
    int (*run)(const Request& request);
};

/// All commands, in the order of the help.
const QVector<Command>& commands();

int runCheck(const Request& request);
int runNew(const Request& request);
int runShow(const Request& request);
int runNames(const Request& request);
int runDiff(const Request& request);
int runContrast(const Request& request);
int runList(const Request& request);
int runIcons(const Request& request);
int runRender(const Request& request);

/// The help of all, or of one command.
QString helpText();
QString helpText(const Command& command);
/// The same as a manual page.
QString manualPage();
/// What a shell, "bash", "zsh" or "fish", completes; empty for others.
QString completion(const QString& shell);

/// The directory of the theme that `name` names, by path or in the repositories; empty, and an
/// error printed, when there is none.
QString themeDirectory(const Request& request, const QString& name);

/// Whether `expression` is one; an error is printed when not.
bool isUsable(const QRegularExpression& expression);

/// Says on a terminal how far a command is that has taken longer than a second.
void showProgress(const QElapsedTimer& timer, const QString& text);

void print(const QString& text);
void printError(const QString& text);
/// `color` as text, with a swatch before it on a terminal.
QString shown(const QColor& color);

} // namespace ThemeTool
