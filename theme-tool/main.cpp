#include "Commands.h"
#include "ThemeRepositories.h"

#include <QGuiApplication>

#include <algorithm>

using namespace ThemeTool;

namespace {

const Command* findCommand(const QString& name)
{
    const auto found =
        std::find_if(commands().begin(), commands().end(),
                     [&name](const Command& command) { return command.name == name; });
    return found == commands().end() ? nullptr : &*found;
}

/// Takes the options of `command` out of `words`. False, and an error printed, for unknown ones.
bool readOptions(const Command& command, QStringList words, Request& request)
{
    while (!words.isEmpty()) {
        const QString word = words.takeFirst();
        if (!word.startsWith(QLatin1String("--"))) {
            request.arguments += word;
            continue;
        }
        const QString name = word.mid(2).section(QLatin1Char('='), 0, 0);
        const bool isCommon = name == QLatin1String("repository");
        const auto option =
            std::find_if(command.options.begin(), command.options.end(),
                         [&name](const Option& other) { return other.name == name; });
        if (!isCommon && option == command.options.end()) {
            printError(QStringLiteral("%1 has no option %2; \"varn-theme %1 --help\" lists them")
                           .arg(command.name, word));
            return false;
        }
        const bool takesValue = isCommon || !option->value.isEmpty();
        if (takesValue && !word.contains(QLatin1Char('=')) && words.isEmpty()) {
            printError(QStringLiteral("%1 needs a value").arg(word));
            return false;
        }
        QString value;
        if (takesValue)
            value = word.contains(QLatin1Char('=')) ? word.section(QLatin1Char('='), 1)
                                                    : words.takeFirst();
        request.options.insert(name, value);
    }
    return true;
}

int runCommand(const Command& command, const QStringList& words)
{
    Request request;
    if (words.contains(QLatin1String("--help"))) {
        print(helpText(command));
        return Success;
    }
    if (!readOptions(command, words, request))
        return CouldNotRun;
    if (request.arguments.size() < command.fewest || request.arguments.size() > command.most) {
        printError(QStringLiteral("usage: varn-theme %1 [options] %2")
                       .arg(command.name, command.arguments));
        return CouldNotRun;
    }
    request.repositories = request.has("repository") ? QStringList{request.value("repository")}
                                                     : BRELK::ThemeRepositories::all();
    return command.run(request);
}

int run(QStringList words)
{
    const QString first = words.isEmpty() ? QStringLiteral("--help") : words.takeFirst();
    if (first == QLatin1String("--help") || first == QLatin1String("help")) {
        print(helpText());
        return Success;
    }
    if (first == QLatin1String("--man")) {
        print(manualPage());
        return Success;
    }
    if (first == QLatin1String("--completion")) {
        const QString text = completion(words.value(0));
        if (text.isEmpty())
            printError(QStringLiteral("--completion needs bash, zsh or fish"));
        print(text);
        return text.isEmpty() ? CouldNotRun : Success;
    }
    if (const Command* command = findCommand(first))
        return runCommand(*command, words);
    printError(
        QStringLiteral("there is no command \"%1\"; \"varn-theme --help\" lists them").arg(first));
    return CouldNotRun;
}

} // namespace

int main(int argc, char** argv)
{
    // Nothing is shown, so no display is needed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return run(QCoreApplication::arguments().mid(1));
}
