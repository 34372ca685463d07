#include "BaseTheme.h"

#include "AppliedThemes.h"
#include "BaseStyle.h"
#include "BaseThemeSettings.h"
#include "BaseTheme_p.h"
#include "EmbeddedIcons.h"
#include "QPaletteReader.h"
#include "ThemeColorHelper.h"
#include "ThemeConfigurationReader.h"
#include "ThemeDocument.h"
#include "ThemeResources.h"
#include "ThemeValues.h"

#include <QApplication>
#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFontDatabase>
#include <QStyle>
#include <QToolTip>

namespace BRELK {

namespace {

void log(const QString& message)
{
    qDebug().noquote() << message;
}

void registerFonts(const QString& directory)
{
    const QFileInfoList files =
        QDir(directory).entryInfoList({QStringLiteral("*.ttf")}, QDir::NoFilter, QDir::NoSort);
    for (const QFileInfo& file : files) {
        const QString path = file.absoluteFilePath();
        if (appliedThemes().fontFiles.contains(path))
            continue;
        if (!file.isFile() || QFontDatabase::addApplicationFont(path) < 0)
            log(QLatin1String("Error reading font: ") + path);
        else
            appliedThemes().fontFiles.insert(path);
    }
}

QVariantMap themeVariables(const ThemeConfigurationReader& configuration)
{
    return {
        {ThemeResources::getColorsVarPrefix(), fillQVariantMap(configuration.getColorsMap())},
        {ThemeResources::getInternalColorsVarPrefix(),
         fillQVariantMap(configuration.getInternalColorsMap())},
        {ThemeResources::getBrushesVarPrefix(), fillQVariantMap(configuration.getBrushesMap())},
        {ThemeResources::getInternalBrushesVarPrefix(),
         fillQVariantMap(configuration.getInternalBrushesMap())},
        {ThemeResources::getOpacitiesVarPrefix(), fillQVariantMap(configuration.getOpacitiesMap())},
        {ThemeResources::getCornerRadiusVarPrefix(),
         fillQVariantMap(configuration.getCornerRadiusMap())},
        {ThemeResources::getFontsVarPrefix(), configuration.getFont().toVariantMap()}};
}

QPalette mappedPalette(const QPaletteReader& mapping)
{
    QPalette palette = mapping.deserialize();
    deriveDisabledGroup(palette, ThemeColorHelper::disabled);
    return palette;
}

QString styleName()
{
    return QStringLiteral("varn");
}

/// The application may do without the style sheet: the style needs none.
bool wantsStyleSheet(const QApplication& app)
{
    return !app.property("varnNoStyleSheet").toBool();
}

void installStyleSheets(QApplication& app)
{
    QString joined;
    QDirIterator files(QStringLiteral(":/BRELK/ThemeLibrary/stylesheets"),
                       {QStringLiteral("*.qss")}, QDir::Files);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly | QIODevice::Text))
            joined += QString::fromUtf8(file.readAll());
        else
            log(QLatin1String("Error reading stylesheet: ") + file.errorString());
    }
    appliedThemes().styleSheet = ThemeResources::customizeStyleSheet(joined);
    app.setStyleSheet(appliedThemes().styleSheet);
    // What now stands before the style has no name by itself.
    QApplication::style()->setObjectName(styleName());
}

void registerBundles(const QString& directory)
{
    QDirIterator files(directory);
    while (files.hasNext()) {
        const QString path = files.next();
        if (path.endsWith(QLatin1String(".rcc")) && !addBundle(path))
            log(QLatin1String("Error reading resource bundle: ") + path);
    }
}

/// Where the folders of a theme's images are; nowhere when there is something among them that
/// opening would wait for, such as a pipe: Qt looks for icons there without asking what they are.
QString imagesRoot(const QString& themePath)
{
    const QString root = themePath + QLatin1String("/Images/");
    QDirIterator others(root, QDir::System | QDir::Hidden,
                        QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
    if (!others.hasNext())
        return root;
    log(others.next() + QLatin1String(": it is no file; the images of the theme are not used"));
    return QStringLiteral(":/BRELK/ThemeLibrary/none/");
}

void useIcons(const QString& root, const QString& themeName)
{
    addIconThemePath(root);
    QIcon::setThemeName(themeName);
}

/// Asks for a mark of the style, which does not draw it; which formats there are takes longer, as
/// the toolkit then loads all plugins for pictures.
void checkIconEngine(const QString& themeName)
{
    if (!themeName.isEmpty() && QIcon::fromTheme(QStringLiteral("chevron.down")).isNull())
        log(QStringLiteral("Icons need Qt's SVG plugins, which are not installed"));
}

/// The folder of a theme's images: its name, unless that leads elsewhere.
QString imagesName(const QString& themePath, const QString& name)
{
    if (name.isEmpty() || isThemeName(name))
        return name;
    log(themePath + QLatin1String("/theme.xml: name: ") + quoted(name)
        + QLatin1String(" leads out of the theme; that of its directory is used"));
    return QFileInfo(themePath).fileName();
}

void addSearchPaths(const QString& imagesPath, const QString& scalablePath)
{
    addSearchPath(ThemeResources::iconsPrefix(), scalablePath);
    addSearchPath(ThemeResources::iconsPrefix(), QStringLiteral(":/Icons"));
    // Deliberate: lower case, so this is not the embedded folder but the place that theme bundles
    // add icons to, and the library's own come after.
    addIconFallbackPath(QStringLiteral(":/icons"));
    addSearchPath(ThemeResources::cursorsPrefix(), imagesPath + QLatin1String("/Cursors"));
    addSearchPath(ThemeResources::cursorsPrefix(), QStringLiteral(":/Cursors"));
    addSearchPath(ThemeResources::themeResourcesPrefix(),
                  imagesPath + QLatin1String("/theme_resources"));
}

/// What a theme leaves of the palette: that of the theme before, but for a switch.
QPalette basePalette()
{
    AppliedThemes& applied = appliedThemes();
    if (!applied.palette)
        applied.palette = QGuiApplication::palette();
    return applied.switching ? *applied.palette : QGuiApplication::palette();
}

} // namespace

Theme::~Theme() = default;

BaseTheme::BaseTheme(const QString& themePath)
    : m_themePath(themePath)
    , m_settings(new BaseThemeSettings(themePath + QLatin1String("/theme.xml")))
{ }

BaseTheme::~BaseTheme() = default;

QString BaseTheme::getName() const
{
    return m_settings->getName();
}

void BaseTheme::customize(QApplication* app)
{
    apply(app, [app](QStyle& style, const QPalette& palette) {
        QApplication::setStyle(&style);
        QToolTip::setPalette(palette);
        if (wantsStyleSheet(*app))
            installStyleSheets(*app);
    });
}

QStyle* BaseTheme::createStyle(QApplication* app)
{
    QStyle* created = nullptr;
    apply(app, [&created](QStyle& style, const QPalette& palette) {
        QToolTip::setPalette(palette);
        created = &style;
    });
    return created;
}

QPalette BaseTheme::getPalette(const QPalette& base) const
{
    const ThemeConfigurationReader configuration(m_themePath + QLatin1String("/config.xml"));
    const QPaletteReader mapping(m_themePath + QLatin1String("/qpaletteMapping.xml"),
                                 configuration.getBrushesMap(), configuration.getColorsMap(), base);
    return mappedPalette(mapping);
}

void BaseTheme::apply(QApplication* app, const UseStyle& useStyle)
{
    m_error.clear();
    if (m_settings->getStatus() != BaseThemeSettings::NO_ERROR)
        m_error = QLatin1String("Error reading theme configuration file ") + m_themePath
                  + QLatin1String("/theme.xml");
    else if (!app)
        m_error = QLatin1String("No application to apply the theme to: ") + m_themePath;
    if (!m_error.isEmpty()) {
        log(m_error);
        return;
    }

    registerFonts(m_themePath + QLatin1String("/Fonts"));

    const ThemeConfigurationReader configuration(m_themePath + QLatin1String("/config.xml"));
    if (configuration.getStatus() != ThemeConfigurationReader::NO_ERROR) {
        // Deliberate: the message has always named this file, and tools look for it.
        log(QLatin1String("Error reading theme palette file: ") + m_themePath
            + QLatin1String("/palette.xml"));
    }
    const QString mappingPath = m_themePath + QLatin1String("/qpaletteMapping.xml");
    const QPaletteReader mapping(mappingPath, configuration.getBrushesMap(),
                                 configuration.getColorsMap(), basePalette());

    app->setProperty(ThemeResources::getThemeVariablePropertyName().data(),
                     themeVariables(configuration));
    if (const QString& name = themeValues().askedTooEarly; !name.isEmpty()) {
        log(QLatin1String("Asked for before a theme was applied, and frozen as missing: ") + name);
        themeValues().askedTooEarly.clear();
    }

    QColor foreground = QGuiApplication::palette().color(QPalette::WindowText);
    if (!qEnvironmentVariableIsSet("BRELK_USE_NATIVE_STYLE")) {
        if (mapping.getStatus() != QPaletteReader::NO_ERROR)
            log(QLatin1String("Error reading theme QPalette mapping file: ") + mappingPath);
        const QPalette palette = mappedPalette(mapping);
        foreground = palette.color(QPalette::WindowText);
        auto* style = new BaseStyle;
        style->setPalette(palette);
        style->setObjectName(styleName());
        useStyle(*style, palette);
    }

    QApplication::setFont(configuration.getFont().getFont(ThemeFont::BASE_FONT));
    const QString name = imagesName(m_themePath, getName());
    const QString root = imagesRoot(m_themePath);
    useIcons(root, name);
    const QString imagesPath = root + name;
    const QString scalablePath = imagesPath + QLatin1String("/scalable");
    registerBundles(scalablePath);
    EmbeddedIcons::offerToIconTheme(name, foreground);
    addSearchPaths(imagesPath, scalablePath);
    checkIconEngine(name);
}

} // namespace BRELK
