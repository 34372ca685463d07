#include "ThemeQApplication.h"

#include "Theme.h"
#include "ThemeFactory.h"
#include "ThemeQApplication_p.h"

#include <QDebug>
#include <QFileInfo>

#include <memory>
#include <vector>

namespace BRELK {

namespace {

/// Themes that were asked for by name stay for the life of the process, as nobody else owns them.
Theme& keep(Theme* theme)
{
    static std::vector<std::unique_ptr<Theme>> sThemes;
    return *sThemes.emplace_back(theme);
}

QString knownThemes(const ThemeFactory& factory)
{
    const QString repository = factory.getThemesRepositoryPath();
    if (repository.isEmpty())
        return QStringLiteral("no theme repository was given");
    if (!QFileInfo(repository).isDir())
        return QLatin1String("there is no theme repository \"") + repository + QLatin1Char('"');
    constexpr int Most = 50; // a line, also of a directory that holds anything else
    QStringList themes = factory.getAvailableThemes();
    if (themes.size() > Most)
        themes = themes.mid(0, Most) + QStringList(QStringLiteral("..."));
    return QLatin1String("the repository \"") + repository + QLatin1String("\" has ")
           + (themes.isEmpty() ? QStringLiteral("no themes") : themes.join(QLatin1String(", ")));
}

void readOption(const QStringList& args, const QString& option, QString& value)
{
    const int index = args.indexOf(option);
    if (index >= 0 && index + 1 < args.size())
        value = args.at(index + 1);
}

} // namespace

void reportMissingTheme(const QString& name)
{
    const QString reason = knownThemes(ThemeFactory::getInstance());
    qDebug().noquote() << QString(QLatin1String("No theme \"") + name + QLatin1String("\": ")
                                  + reason);
}

ThemeQApplication::ThemeQApplication(int& argc, char** argv) : ThemeQApplication(argc, argv, {}, {})
{ }

ThemeQApplication::ThemeQApplication(int& argc, char** argv, const QString& themeName,
                                     const QString& themeRepository)
    : QApplication(argc, argv)
{
    init(themeName, themeRepository);
}

void ThemeQApplication::init(QString theme, QString repository)
{
    parseArguments(arguments(), theme, repository);
    if (!repository.isEmpty())
        initThemesRepository(repository);
    if (!theme.isEmpty())
        setTheme(theme);
}

void ThemeQApplication::initThemesRepository(const QString& path)
{
    // Deliberate: an empty path is passed on as it is; there is no default repository beside the
    // program.
    ThemeFactory::getInstance().setThemesRepositoryPath(path);
}

QString ThemeQApplication::getThemeRepository() const
{
    return ThemeFactory::getInstance().getThemesRepositoryPath();
}

bool ThemeQApplication::setTheme(const QString& name)
{
    Theme* theme = ThemeFactory::getInstance().getTheme(name);
    if (!theme) {
        reportMissingTheme(name);
        return false;
    }
    setTheme(keep(theme));
    return true;
}

void ThemeQApplication::setTheme(Theme& theme)
{
    theme.customize(this);
    m_currentTheme = &theme;
}

Theme* ThemeQApplication::getCurrentTheme() const
{
    return m_currentTheme;
}

void ThemeQApplication::parseArguments(const QStringList& args, QString& theme,
                                       QString& repository) const
{
    readOption(args, QStringLiteral("--theme"), theme);
    readOption(args, QStringLiteral("--theme-repository"), repository);
}

} // namespace BRELK
