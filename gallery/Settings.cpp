#include "Settings.h"

#include "Pages.h"
#include "ThemeRepositories.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>

#include <algorithm>

namespace Gallery {

namespace {

const QString DefaultTheme = QStringLiteral("Dark");
constexpr double LeastScale = 0.5;
constexpr double GreatestScale = 4;

/// The options by which a run does without a display.
bool needsNoDisplay(const QStringList& arguments)
{
    const QStringList options{QStringLiteral("--render"), QStringLiteral("--list-pages"),
                              QStringLiteral("--help"), QStringLiteral("-h")};
    return std::any_of(options.begin(), options.end(),
                       [&arguments](const QString& option) { return arguments.contains(option); });
}

/// The scale that `text` names, or 0 when it names none.
double toScale(const QString& text)
{
    bool isNumber = false;
    const double scale = text.toDouble(&isNumber);
    return isNumber && scale >= LeastScale && scale <= GreatestScale ? scale : 0;
}

struct Options
{
    QCommandLineOption theme{QStringLiteral("theme"),
                             QStringLiteral("Use the theme <name> (default: Dark)."),
                             QStringLiteral("name")};
    QCommandLineOption repository{
        QStringLiteral("theme-repository"),
        QStringLiteral("Look themes up in <directory> (default: those of this machine)."),
        QStringLiteral("directory")};
    QCommandLineOption page{
        QStringLiteral("page"),
        QStringLiteral("Start with the page <name>; with --render, write only that page."),
        QStringLiteral("name")};
    QCommandLineOption render{
        QStringLiteral("render"),
        QStringLiteral("Write each page to <directory> as PNG, print the paths and quit."),
        QStringLiteral("directory")};
    QCommandLineOption scale{QStringLiteral("scale"),
                             QStringLiteral("Draw everything <factor> times as large (0.5 to 4)."),
                             QStringLiteral("factor")};
    QCommandLineOption via{
        QStringLiteral("via"),
        QStringLiteral("Switch to the theme <name> and back before each picture."),
        QStringLiteral("name")};
    QCommandLineOption followDesktop{
        QStringLiteral("follow-desktop"),
        QStringLiteral("Use the theme Light or Dark, as the desktop prefers.")};
    QCommandLineOption rightToLeft{QStringLiteral("rtl"),
                                   QStringLiteral("Lay out from right to left.")};
    QCommandLineOption styleSheet{
        QStringLiteral("style-sheet"),
        QStringLiteral("Give the application the style sheet <text>, which may be empty, in place "
                       "of the theme's."),
        QStringLiteral("text")};
    QCommandLineOption listPages{QStringLiteral("list-pages"),
                                 QStringLiteral("Print the names of the pages and quit.")};
};

QString knownPage(const QString& name)
{
    if (name.isEmpty() || pageNames().contains(name))
        return name;
    qWarning().noquote() << QString(QLatin1String("No page \"") % name
                                    % QLatin1String("\": the pages are ")
                                    % pageNames().join(QLatin1String(", ")));
    return {};
}

} // namespace

QStringList Settings::themes() const
{
    return BRELK::ThemeRepositories::themes(repository ? QStringList{*repository}
                                                       : BRELK::ThemeRepositories::all());
}

QStringList Settings::toArguments() const
{
    QStringList arguments{QStringLiteral("--theme"), theme};
    if (repository)
        arguments << QStringLiteral("--theme-repository") << *repository;
    arguments << QStringLiteral("--page") << page;
    arguments << QStringLiteral("--scale") << QString::number(scale);
    if (followDesktop)
        arguments << QStringLiteral("--follow-desktop");
    if (rightToLeft)
        arguments << QStringLiteral("--rtl");
    if (styleSheet)
        arguments << QStringLiteral("--style-sheet") << *styleSheet;
    return arguments;
}

StartUp prepareStart(int argc, char** argv)
{
    const QCoreApplication probe(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int scaleIndex = arguments.indexOf(QStringLiteral("--scale")) + 1;
    if (scaleIndex > 0 && toScale(arguments.value(scaleIndex)) > 0)
        qputenv("QT_SCALE_FACTOR", arguments.at(scaleIndex).toLatin1());
    if (needsNoDisplay(arguments) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const int themeIndex = arguments.indexOf(QStringLiteral("--theme")) + 1;
    const QString theme = themeIndex > 0 ? arguments.value(themeIndex) : DefaultTheme;
    const QString known = BRELK::ThemeRepositories::find(theme);
    return {DefaultTheme, known.isEmpty() ? BRELK::ThemeRepositories::all().value(0)
                                          : QFileInfo(known).absolutePath()};
}

Settings readSettings(const QCoreApplication& application)
{
    QCommandLineParser parser;
    const Options options;
    parser.setApplicationDescription(
        QStringLiteral("Shows every kind of widget in a theme, in every state."));
    parser.addHelpOption();
    parser.addOptions({options.theme, options.repository, options.page, options.render, options.via,
                       options.followDesktop, options.scale, options.rightToLeft,
                       options.styleSheet, options.listPages});
    parser.process(application);

    Settings settings;
    settings.theme = parser.isSet(options.theme) ? parser.value(options.theme) : DefaultTheme;
    if (parser.isSet(options.repository))
        settings.repository = parser.value(options.repository);
    settings.page = knownPage(parser.value(options.page));
    settings.renderDirectory = parser.value(options.render);
    settings.via = parser.value(options.via);
    settings.followDesktop = parser.isSet(options.followDesktop);
    settings.rightToLeft = parser.isSet(options.rightToLeft);
    if (parser.isSet(options.styleSheet))
        settings.styleSheet = parser.value(options.styleSheet);
    settings.listPages = parser.isSet(options.listPages);
    // prepareStart() has put a valid scale there.
    const double scale = toScale(qEnvironmentVariable("QT_SCALE_FACTOR"));
    settings.scale = scale > 0 ? scale : 1;
    if (parser.isSet(options.scale) && toScale(parser.value(options.scale)) <= 0)
        qWarning().noquote() << "The scale must be a number from 0.5 to 4; it stays as it was.";
    return settings;
}

} // namespace Gallery
