#include "Commands.h"

namespace ThemeTool {

namespace {

const QString Program = QStringLiteral("varn-theme");
const QString Summary = QStringLiteral("make, look at and check themes");

QString padded(const QString& text)
{
    constexpr int Column = 28;
    return QLatin1String("  ") + text.leftJustified(Column) + QLatin1Char(' ');
}

QString dashed(const Option& option)
{
    const QString name = QLatin1String("--") + option.name;
    return option.value.isEmpty() ? name : QString(name + QLatin1Char(' ') + option.value);
}

QVector<Option> commonOptions()
{
    return {{QStringLiteral("repository"), QStringLiteral("DIR"),
             QStringLiteral("where themes are; otherwise those of this machine")},
            {QStringLiteral("help"), {}, QStringLiteral("print this and do nothing else")}};
}

QString optionsText(const QVector<Option>& options)
{
    QString text;
    for (const Option& option : options)
        text += padded(dashed(option)) + option.use + QLatin1Char('\n');
    return text;
}

QString manualOptions(const QVector<Option>& options)
{
    QString text;
    for (const Option& option : options)
        text += QLatin1String(".TP\n.B ")
                + dashed(option).replace(QLatin1Char('-'), QLatin1String("\\-")) + QLatin1Char('\n')
                + option.use + QLatin1Char('\n');
    return text;
}

QStringList names()
{
    QStringList names;
    for (const Command& command : commands())
        names += command.name;
    return names;
}

/// Prints the themes that a command takes; nothing for commands that take none.
QString themesFor(const Command& command)
{
    const bool takesThemes = command.arguments.contains(QLatin1String("THEME"))
                             || command.arguments == QLatin1String("A B");
    return takesThemes ? QStringLiteral("$(varn-theme list 2>/dev/null | cut -d' ' -f1)")
                       : QString();
}

QString fishCompletion()
{
    QString text;
    for (const Command& command : commands()) {
        if (!themesFor(command).isEmpty())
            text += QStringLiteral("complete -c varn-theme -n '__fish_seen_subcommand_from %1' -a "
                                   "\"(varn-theme list 2>/dev/null | cut -d' ' -f1)\"\n")
                        .arg(command.name);
        text += QStringLiteral("complete -c varn-theme -n __fish_use_subcommand -f -a %1 -d '%2'\n")
                    .arg(command.name, command.summary);
        for (const Option& option : command.options + commonOptions())
            text +=
                QStringLiteral(
                    "complete -c varn-theme -n '__fish_seen_subcommand_from %1' -l %2 -d '%3'\n")
                    .arg(command.name, option.name, option.use);
    }
    return text;
}

QString wordCompletion(const QString& frame)
{
    QString cases;
    for (const Command& command : commands()) {
        QStringList options;
        for (const Option& option : command.options + commonOptions())
            options += QLatin1String("--") + option.name;
        cases += QStringLiteral("    %1) words=\"%2 %3\" ;;\n")
                     .arg(command.name, options.join(QLatin1Char(' ')), themesFor(command));
    }
    return frame.arg(names().join(QLatin1Char(' ')), cases);
}

} // namespace

QString helpText(const Command& command)
{
    const QString usage = command.name + QLatin1String(" [options] ") + command.arguments;
    return QStringLiteral("Usage: varn-theme %1\n\n%2\n\nOptions:\n")
               .arg(usage.trimmed(), command.description)
           + optionsText(command.options + commonOptions());
}

QString helpText()
{
    QString text = QStringLiteral("Usage: varn-theme COMMAND [options] [arguments]\n\nCommands:\n");
    for (const Command& command : commands())
        text += padded(command.name + QLatin1Char(' ') + command.arguments) + command.summary
                + QLatin1Char('\n');
    return text
           + QStringLiteral("\n\"varn-theme COMMAND --help\" tells more. The exit status is 0, 1 "
                            "when a theme has faults, and "
                            "2 when\nthe command could not run.\n");
}

QString manualPage()
{
    QString text =
        QStringLiteral(
            ".TH VARN-THEME 1\n.SH NAME\nvarn\\-theme \\- %1\n.SH SYNOPSIS\n.B varn\\-theme\n"
            "COMMAND [options] [arguments]\n.SH COMMANDS\n")
            .arg(Summary);
    for (const Command& command : commands())
        text += QStringLiteral(".SS %1 %2\n%3\n")
                    .arg(command.name, command.arguments, command.description)
                + manualOptions(command.options);
    return text + QLatin1String(".SH OPTIONS OF ALL COMMANDS\n") + manualOptions(commonOptions())
           + QStringLiteral(".SH EXIT STATUS\n0, 1 when a theme has faults, and 2 when the command "
                            "could not run.\n"
                            ".SH ENVIRONMENT\n.TP\n.B NO_COLOR\nIf set, output has no colors on "
                            "terminals either.\n");
}

QString completion(const QString& shell)
{
    if (shell == QLatin1String("fish"))
        return fishCompletion();
    if (shell == QLatin1String("bash"))
        return wordCompletion(QStringLiteral(
            "_varn_theme() {\n    local words=\"%1\"\n    case \"${COMP_WORDS[1]}\" in\n%2    "
            "esac\n"
            "    [ \"$COMP_CWORD\" = 1 ] && words=\"%1\"\n"
            "    COMPREPLY=($(compgen -W \"$words\" -- \"${COMP_WORDS[COMP_CWORD]}\"))\n}\n"
            "complete -o default -F _varn_theme varn-theme\n"));
    if (shell == QLatin1String("zsh"))
        return wordCompletion(QStringLiteral(
            "#compdef varn-theme\nlocal words_=\"%1\" words=\"\"\nlocal -a names=(${=words_})\n"
            "if (( CURRENT == 2 )); then compadd -- $names; return; fi\n"
            "case \"${(Q)${(z)BUFFER}[2]}\" in\n%2esac\ncompadd -- ${=words}\n_files\n"));
    return {};
}

} // namespace ThemeTool
