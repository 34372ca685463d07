#include "Looks.h"

#include "BaseTheme.h"
#include "ThemeFactory.h"
#include "ThemeSwitcher.h"

#include <QFile>
#include <QProxyStyle>
#include <QStyleFactory>

#include <algorithm>

namespace Peers {

namespace {

constexpr char Theme[] = "theme";
constexpr char Style[] = "style";
constexpr char Sheet[] = "sheet";
constexpr char Proxy[] = "proxy";

/// The names of arguments outlive every application.
QApplication* plainApplication()
{
    static int sCount = 1;
    static char sName[] = "varn-peers";
    static char* sArguments[] = {sName, nullptr};
    return new QApplication(sCount, sArguments);
}

QString theme(bool again)
{
    return again ? QStringLiteral("Light") : QStringLiteral("Dark");
}

bool isOurs(const QString& look)
{
    return look == QLatin1String(Theme) || look == QLatin1String(Style);
}

QString repository()
{
    return qEnvironmentVariable("VARN_THEME_REPOSITORY", QStringLiteral(VARN_THEME_REPOSITORY));
}

/// Lives until the process ends, as themes that applications apply do.
void applyTheme(QApplication& application, const QString& name)
{
    (new BRELK::BaseTheme(repository() % QLatin1Char('/') % name))->customize(&application);
}

void wearOurs(QApplication& application, const QString& look, bool again)
{
    application.setProperty("varnNoStyleSheet", look == QLatin1String(Style));
    BRELK::ThemeFactory::getInstance().setThemesRepositoryPath(repository());
    if (again)
        BRELK::ThemeSwitcher::getInstance().switchTo(theme(again));
    else
        applyTheme(application, theme(again));
}

QStyle* createStyle(const QString& look)
{
    if (look == QLatin1String(Proxy))
        return new QProxyStyle(fusion());
    return QStyleFactory::create(look == QLatin1String(Sheet) ? fusion() : look);
}

QString contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void wearForeign(QApplication& application, const QString& look, bool again, const QString& sheet)
{
    QApplication::setStyle(createStyle(look));
    QPalette palette = QApplication::style()->standardPalette();
    if (again)
        palette.setColor(QPalette::Highlight, Qt::darkGreen);
    QApplication::setPalette(palette);
    if (look == QLatin1String(Sheet))
        application.setStyleSheet(contents(sheet) + (again ? QLatin1String(" ") : QLatin1String()));
}

} // namespace

QString fusion()
{
    return QStringLiteral("fusion");
}

QStringList allLooks()
{
    QStringList looks{fusion(), QLatin1String(Theme), QLatin1String(Style), QLatin1String(Sheet),
                      QLatin1String(Proxy)};
    for (const QString& key : QStyleFactory::keys()) {
        const QString look = key.toLower();
        const bool isPeer = look != fusion() && look != QLatin1String("windows")
                            && !look.startsWith(QLatin1String("varn"))
                            && !look.endsWith(QLatin1String("-dark"));
        if (isPeer)
            looks.append(look);
    }
    return looks;
}

std::unique_ptr<QApplication> createApplication(const QString& look, Dress dress,
                                                const QString& sheet)
{
    std::unique_ptr<QApplication> application(plainApplication());
    if (dress == Dress::Themed && !isOurs(look)) {
        qputenv("BRELK_USE_NATIVE_STYLE", "1");
        applyTheme(*application, theme(false));
    }
    wear(*application, look, false, sheet);
    return application;
}

void wear(QApplication& application, const QString& look, bool again, const QString& sheet)
{
    if (isOurs(look))
        wearOurs(application, look, again);
    else
        wearForeign(application, look, again, sheet);
}

} // namespace Peers
