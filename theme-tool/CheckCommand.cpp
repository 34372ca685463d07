#include "Commands.h"
#include "ThemeCheck.h"
#include "ThemeRepositories.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace ThemeTool {

namespace {

QStringList directoriesToCheck(const Request& request)
{
    QStringList directories;
    for (const QString& name : request.arguments)
        directories += themeDirectory(request, name);
    return request.arguments.isEmpty() ? BRELK::ThemeRepositories::themes(request.repositories)
                                       : directories;
}

const char* kindOf(const Finding& finding)
{
    return finding.isError ? "error" : "warning";
}

QString line(const Finding& finding)
{
    return QStringLiteral("%1:%2:%3: %4: %5\n")
        .arg(finding.file)
        .arg(finding.line)
        .arg(finding.column)
        .arg(QLatin1String(kindOf(finding)), finding.text);
}

QJsonObject object(const Finding& finding)
{
    return {{QStringLiteral("file"), finding.file},
            {QStringLiteral("line"), finding.line},
            {QStringLiteral("column"), finding.column},
            {QStringLiteral("kind"), QLatin1String(kindOf(finding))},
            {QStringLiteral("text"), finding.text}};
}

QString counted(int count, const char* thing)
{
    return QString::number(count) + QLatin1Char(' ') + QLatin1String(thing)
           + QLatin1String(count == 1 ? "" : "s");
}

} // namespace

int runCheck(const Request& request)
{
    const QStringList directories = directoriesToCheck(request);
    if (directories.isEmpty())
        printError(QLatin1String("there are no themes; give a theme, or --repository DIR"));
    if (directories.isEmpty() || directories.contains(QString()))
        return CouldNotRun;

    const QRegularExpression own(request.value("own"));
    if (!isUsable(own))
        return CouldNotRun;

    QElapsedTimer timer;
    timer.start();
    int errors = 0;
    int warnings = 0;
    QJsonArray objects;
    for (int i = 0; i < directories.size(); ++i) {
        for (const Finding& finding : checkTheme(directories.at(i), own)) {
            ++(finding.isError ? errors : warnings);
            if (request.has("json"))
                objects.append(object(finding));
            else
                print(line(finding));
        }
        showProgress(timer,
                     QStringLiteral("checked %1 of %2 themes").arg(i + 1).arg(directories.size()));
    }
    if (request.has("json"))
        print(QString::fromUtf8(QJsonDocument(objects).toJson()));
    else
        print(QStringLiteral("%1, %2 in %3\n")
                  .arg(counted(errors, "error"), counted(warnings, "warning"),
                       counted(directories.size(), "theme")));
    return errors > 0 || (warnings > 0 && request.has("strict")) ? Faults : Success;
}

} // namespace ThemeTool
