#include "ColorArithmetic.h"
#include "Commands.h"
#include "ReadTheme.h"
#include "ThemeCheck.h"
#include "ThemeDocument.h"
#include "ThemeRepositories.h"

#include <QDir>
#include <QSaveFile>
#include <QStandardPaths>

using namespace BRELK;

namespace ThemeTool {

namespace {

/// With less, words cannot stand out from every surface that follows from the background.
constexpr double SeedContrast = 7;

struct Seed
{
    const char* option;
    const char* name;
};

constexpr Seed Seeds[] = {{"background", "BackgroundColor"},
                          {"foreground", "ForegroundColor"},
                          {"accent", "AccentColor"}};

bool write(const QString& path, const QString& text)
{
    QSaveFile file(path);
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) >= 0 && file.commit();
    if (!isWritten)
        printError(path + QLatin1String(": ") + file.errorString());
    return isWritten;
}

bool areColors(const Request& request)
{
    for (const Seed& seed : Seeds) {
        const QString text = request.value(seed.option);
        if (request.has(seed.option) && !QColor::isValidColor(text)) {
            printError(QStringLiteral("--%1: \"%2\" is no color; write it like #2F7FD0, in quotes "
                                      "because of the shell")
                           .arg(QLatin1String(seed.option), text));
            return false;
        }
    }
    return true;
}

/// Whether words can be read on the background; says what would do if not.
bool isReadable(const Request& request, const ReadTheme& base)
{
    const auto color = [&](const Seed& seed) {
        return request.has(seed.option) ? QColor(request.value(seed.option))
                                        : base.getColor(QLatin1String(seed.name));
    };
    const QColor background = color(Seeds[0]);
    const QColor foreground = color(Seeds[1]);
    const double found = ColorArithmetic::contrast(foreground, background);
    if (found >= SeedContrast)
        return true;
    const QColor better = ColorArithmetic::withContrast(foreground, {background}, SeedContrast);
    const bool isPossible = ColorArithmetic::contrast(better, background) >= SeedContrast;
    printError(QStringLiteral(
                   "the foreground %1 has a contrast of %2 to the background %3, and needs %4; %5")
                   .arg(foreground.name())
                   .arg(found, 0, 'f', 1)
                   .arg(background.name())
                   .arg(SeedContrast)
                   .arg(isPossible ? QString(QLatin1String("--foreground \"") + better.name()
                                             + QLatin1String("\" has it"))
                                   : QStringLiteral("no foreground has it on this background, so "
                                                    "choose a lighter or a darker one")));
    return false;
}

QString configuration(const Request& request, const QString& base)
{
    QString colors;
    for (const Seed& seed : Seeds) {
        if (request.has(seed.option))
            colors += QStringLiteral("      <Color name=\"%1\">%2</Color>\n")
                          .arg(QLatin1String(seed.name), request.value(seed.option));
    }
    return QStringLiteral(
               "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "<!-- What is not written here follows from %1 and from these colors. -->\n"
               "<Config extends=\"%1\">\n  <Palette>\n    <ColorsList>\n%2    </ColorsList>\n  "
               "</Palette>\n</Config>\n")
        .arg(base, colors);
}

} // namespace

int runNew(const Request& request)
{
    const QString name = request.arguments.first();
    const QString base = request.has("extends") ? request.value("extends") : QStringLiteral("Dark");
    if (!isThemeName(name) || name.contains(QLatin1Char('<')) || name.contains(QLatin1Char('&'))) {
        printError(
            quoted(name)
            + QLatin1String(
                " cannot be a theme's name; it names a directory, without \"/\", \"<\" and \"&\""));
        return CouldNotRun;
    }
    const QString repository =
        request.has("repository")
            ? request.value("repository")
            : QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
                  + QLatin1String("/varn/themes");
    const QString directory = repository + QLatin1Char('/') + name;
    if (QFileInfo::exists(directory)) {
        printError(directory
                   + QLatin1String(" is there already; choose another name or remove it"));
        return CouldNotRun;
    }
    // A theme to stand on may be in the repository, or be one of this machine.
    Request anywhere = request;
    anywhere.repositories += BRELK::ThemeRepositories::all();
    const QString baseDirectory = themeDirectory(anywhere, base);
    if (baseDirectory.isEmpty() || !areColors(request))
        return CouldNotRun;
    if (!isReadable(request, ReadTheme(baseDirectory)))
        return Faults;

    const QString header = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    const bool isWritten =
        QDir().mkpath(directory)
        && write(directory + QLatin1String("/theme.xml"),
                 header + QStringLiteral("<theme>\n  <name>%1</name>\n</theme>\n").arg(name))
        && write(directory + QLatin1String("/config.xml"), configuration(request, base))
        && write(directory + QLatin1String("/qpaletteMapping.xml"),
                 header + QStringLiteral("<QPalette extends=\"%1\"/>\n").arg(base));
    if (!isWritten)
        return CouldNotRun;
    print(
        QStringLiteral(
            "wrote %1; look at it with\n  varn-gallery --theme-repository \"%2\" --theme \"%3\"\n")
            .arg(directory, repository, name));
    for (const Finding& finding : checkTheme(directory))
        print(finding.text + QLatin1Char('\n'));
    return Success;
}

} // namespace ThemeTool
