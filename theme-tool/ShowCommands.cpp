#include "Commands.h"
#include "ContrastTable.h"
#include "NameUses.h"
#include "ReadTheme.h"
#include "ThemeIndex.h"
#include "ThemeRepositories.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>

#include <algorithm>

namespace ThemeTool {

namespace {

/// The pattern that is argument `index`; everything when there is none.
QRegularExpression pattern(const Request& request, int index)
{
    return QRegularExpression(request.arguments.value(index));
}

/// The exit status of a command that prints what matches `pattern`; says so when nothing does.
int matched(bool isAny, const QString& pattern, const char* all)
{
    if (!isAny)
        printError(QStringLiteral("nothing contains a match of \"%1\"; \"%2\" prints all")
                       .arg(pattern, QLatin1String(all)));
    return isAny ? Success : Faults;
}

QString place(const Entry& entry)
{
    return QStringLiteral("%1:%2").arg(entry.place.file).arg(entry.place.line);
}

/// What `name` is made of, and what that is made of, to the seeds.
void printChain(const ReadTheme& theme, const ThemeIndex& index, const QString& name, int depth,
                QSet<QString>& printed)
{
    constexpr int Deepest = 12;
    const Entry* entry = index.find(name);
    const QString indent(2 * depth, QLatin1Char(' '));
    if (!entry || depth > Deepest)
        return;
    print(QStringLiteral("%1%2 %3  %4  %5\n")
              .arg(indent, name, shown(theme.getColor(name)), entry->recipe, place(*entry)));
    if (printed.contains(name))
        return;
    printed.insert(name);
    for (const QString& named : entry->named)
        if (named != name)
            printChain(theme, index, named, depth + 1, printed);
}

template <class Values>
QStringList matching(const Values& values, const QRegularExpression& expression)
{
    QStringList names;
    for (auto value = values.begin(); value != values.end(); ++value)
        if (value.key().contains(expression))
            names += value.key();
    return names;
}

QStringList allNames(const ReadTheme& theme, const QRegularExpression& expression)
{
    const auto& read = theme.getConfiguration();
    return matching(read.getColorsMap(), expression)
           + matching(read.getInternalColorsMap(), expression)
           + matching(read.getBrushesMap(), expression)
           + matching(read.getInternalBrushesMap(), expression);
}

QString described(const ReadTheme& theme, const QString& name)
{
    const QColor color = theme.getColor(name);
    return color.isValid() ? shown(color) : QStringLiteral("-");
}

/// The pictures in `directory` that are not older than `since`.
int countPictures(const QString& directory, const QDateTime& since)
{
    const QFileInfoList files = QDir(directory).entryInfoList({QStringLiteral("*.png")});
    return int(std::count_if(files.begin(), files.end(), [&since](const QFileInfo& file) {
        return file.lastModified() >= since;
    }));
}

} // namespace

int runShow(const Request& request)
{
    const QString directory = themeDirectory(request, request.arguments.first());
    const QRegularExpression expression = pattern(request, 1);
    if (directory.isEmpty() || !isUsable(expression))
        return CouldNotRun;
    const ReadTheme theme(directory);
    const ThemeIndex index(directory);
    const QStringList names = allNames(theme, expression);
    for (const QString& name : names) {
        QSet<QString> printed;
        if (index.find(name))
            printChain(theme, index, name, 0, printed);
        else
            print(name + QLatin1Char(' ') + described(theme, name)
                  + QLatin1String("  derived for disabled widgets\n"));
    }
    return matched(!names.isEmpty(), request.arguments.value(1), "varn-theme show THEME");
}

int runNames(const Request& request)
{
    const QRegularExpression expression = pattern(request, 0);
    if (!isUsable(expression))
        return CouldNotRun;
    if (request.has("markdown")) {
        print(namesPage());
        return Success;
    }
    bool isAny = false;
    for (const NameUse& use : nameUses()) {
        if (!use.name.contains(expression))
            continue;
        isAny = true;
        print(QStringLiteral("%1  %2\n").arg(use.name.leftJustified(48), use.use));
    }
    return matched(isAny, request.arguments.value(0), "varn-theme names");
}

int runDiff(const Request& request)
{
    const QString one = themeDirectory(request, request.arguments.first());
    const QString other = themeDirectory(request, request.arguments.last());
    if (one.isEmpty() || other.isEmpty())
        return CouldNotRun;
    const ReadTheme a(one);
    const ReadTheme b(other);
    QStringList names = allNames(a, {}) + allNames(b, {});
    names.removeDuplicates();
    names.sort();
    for (const QString& name : qAsConst(names))
        if (a.getColor(name) != b.getColor(name))
            print(QStringLiteral("%1  %2  %3\n")
                      .arg(name.leftJustified(44), described(a, name), described(b, name)));
    return Success;
}

int runContrast(const Request& request)
{
    const QString directory = themeDirectory(request, request.arguments.first());
    if (directory.isEmpty())
        return CouldNotRun;
    QVector<Contrast> contrasts = measureContrasts(ReadTheme(directory));
    std::sort(contrasts.begin(), contrasts.end(), [](const Contrast& one, const Contrast& other) {
        return one.found / one.least < other.found / other.least;
    });
    bool isEnough = true;
    for (const Contrast& contrast : qAsConst(contrasts)) {
        isEnough &= contrast.isEnough();
        print(QStringLiteral("%1 %2  of %3  %4 on %5\n")
                  .arg(QLatin1String(contrast.isEnough() ? "   " : "bad"))
                  .arg(contrast.found, 5, 'f', 2)
                  .arg(contrast.least, 3, 'f', 1)
                  .arg(contrast.color, contrast.ground));
    }
    return isEnough ? Success : Faults;
}

int runList(const Request& request)
{
    const QStringList themes = BRELK::ThemeRepositories::themes(request.repositories);
    for (const QString& theme : themes)
        print(QStringLiteral("%1  %2\n").arg(QFileInfo(theme).fileName().leftJustified(16), theme));
    if (themes.isEmpty())
        printError(QStringLiteral("there are no themes; give --repository DIR"));
    return themes.isEmpty() ? CouldNotRun : Success;
}

int runIcons(const Request& request)
{
    const QRegularExpression expression = pattern(request, 0);
    if (!isUsable(expression))
        return CouldNotRun;
    bool isAny = false;
    for (const QString& file :
         QDir(QStringLiteral(":/Icons")).entryList({QStringLiteral("*.svg")})) {
        const QString name = file.left(file.size() - int(qstrlen(".svg")));
        if (!name.contains(expression))
            continue;
        isAny = true;
        print(name + QLatin1Char('\n'));
    }
    return matched(isAny, request.arguments.value(0), "varn-theme icons");
}

int runRender(const Request& request)
{
    const QFileInfo theme(themeDirectory(request, request.arguments.first()));
    if (theme.filePath().isEmpty())
        return CouldNotRun;
    const QString gallery = QCoreApplication::applicationDirPath() + QLatin1String("/varn-gallery");
    if (!QFileInfo(gallery).isExecutable()) {
        printError(gallery + QLatin1String(" is missing; install the gallery beside this program"));
        return CouldNotRun;
    }
    QDir().mkpath(request.arguments.last());
    const QDateTime started = QDateTime::currentDateTime();
    QElapsedTimer timer;
    timer.start();
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(gallery, {QStringLiteral("--theme-repository"), theme.absolutePath(),
                            QStringLiteral("--theme"), theme.fileName(), QStringLiteral("--render"),
                            request.arguments.last()});
    constexpr int BetweenReports = 1000; // ms
    while (!process.waitForFinished(BetweenReports) && process.state() != QProcess::NotRunning)
        showProgress(timer, QStringLiteral("pages rendered: %1")
                                .arg(countPictures(request.arguments.last(), started)));
    const bool isDone = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return isDone ? Success : CouldNotRun;
}

} // namespace ThemeTool
