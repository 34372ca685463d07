#include "ThemeFactory.h"

#include "BaseTheme.h"

#include <QDir>

namespace BRELK {

ThemeFactory& ThemeFactory::getInstance()
{
    static ThemeFactory sInstance;
    return sInstance;
}

ThemeFactory::~ThemeFactory()
{
    qDeleteAll(m_loadedTheme);
}

void ThemeFactory::setThemesRepositoryPath(const QString& path)
{
    m_stylesPath = path;
    m_availableThemes.clear();
    const QDir repository(path);
    const QStringList names =
        repository.entryList(QDir::AllDirs | QDir::NoDotAndDotDot, QDir::NoSort);
    for (const QString& name : names)
        m_availableThemes.insert(name, repository.absolutePath() + QLatin1Char('/') + name);
}

QString ThemeFactory::getThemesRepositoryPath() const
{
    return m_stylesPath;
}

QStringList ThemeFactory::getAvailableThemes() const
{
    return m_availableThemes.keys();
}

Theme* ThemeFactory::getTheme(const QString& name)
{
    if (Theme* loaded = m_loadedTheme.value(name))
        return loaded;
    const QString path = m_availableThemes.value(name);
    // Deliberate: the theme is not kept, so every caller owns one of its own.
    return path.isEmpty() ? nullptr : readTheme(path);
}

Theme* ThemeFactory::readTheme(const QString& themePath)
{
    return new BaseTheme(themePath);
}

} // namespace BRELK
