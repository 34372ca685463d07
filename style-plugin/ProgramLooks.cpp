#include "ProgramLooks.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QToolTip>

#include <algorithm>

namespace BRELK {

namespace {

QString chosenIconTheme()
{
    const QString name = QIcon::themeName();
    QIcon::setThemeName({});
    const bool isOfDesktop = QIcon::themeName() == name;
    if (isOfDesktop)
        return {};
    QIcon::setThemeName(name);
    return name;
}

bool isInstalled(const QString& iconTheme)
{
    const QStringList paths = QIcon::themeSearchPaths();
    return std::any_of(paths.begin(), paths.end(), [&iconTheme](const QString& path) {
        return QFileInfo::exists(QDir(path).filePath(iconTheme + QLatin1String("/index.theme")));
    });
}

void setFallbackIconTheme(const QString& name)
{
    QIcon::setFallbackThemeName(name);
    // Icon themes that were read already would keep the one that they were read with.
    QIcon::setThemeSearchPaths(QIcon::themeSearchPaths());
}

} // namespace

ProgramLooks ProgramLooks::current()
{
    return {QApplication::font(), QToolTip::palette(), chosenIconTheme(),
            QIcon::fallbackThemeName()};
}

void ProgramLooks::matchIcons(const QPalette& palette)
{
    const QString fallback = QIcon::fallbackThemeName();
    const QString dark = fallback + QLatin1String("-dark");
    const bool isDark = palette.color(QPalette::Window).lightness()
                        < palette.color(QPalette::WindowText).lightness();
    if (!fallback.isEmpty() && isDark && isInstalled(dark))
        setFallbackIconTheme(dark);
}

void ProgramLooks::replace(const ProgramLooks& others) const
{
    const ProgramLooks now = current();
    if (now.font == others.font)
        QApplication::setFont(font);
    if (now.toolTips == others.toolTips)
        QToolTip::setPalette(toolTips);
    if (now.iconTheme == others.iconTheme)
        QIcon::setThemeName(iconTheme);
    if (now.fallbackIconTheme == others.fallbackIconTheme)
        setFallbackIconTheme(fallbackIconTheme);
}

} // namespace BRELK
