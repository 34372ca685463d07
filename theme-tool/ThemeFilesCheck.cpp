#include "ThemeFilesCheck.h"

#include "AllThemeNames.h"
#include "ReadTheme.h"
#include "ThemeResources.h"

#include <QDir>
#include <QDirIterator>
#include <QImageReader>
#include <QRegularExpression>
#include <QResource>
#include <QSettings>

using namespace BRELK;

namespace ThemeTool {

namespace {

/// A variable that a style sheet names, as "colors/MainColor".
struct Placeholder
{
    QString file;
    int line;
    int column;
    QString path;

    QString getName() const { return path.section(QLatin1Char('/'), 1); }
};

void readPlaceholders(const QString& directory, QVector<Placeholder>& placeholders)
{
    static const QRegularExpression sForm(QStringLiteral("@([\\w/]+)@"));
    QDirIterator sheets(directory, {QStringLiteral("*.qss")}, QDir::Files,
                        QDirIterator::Subdirectories);
    while (sheets.hasNext()) {
        QFile sheet(sheets.next());
        sheet.open(QIODevice::ReadOnly);
        int line = 0;
        while (!sheet.atEnd()) {
            ++line;
            for (auto found = sForm.globalMatch(QString::fromUtf8(sheet.readLine()));
                 found.hasNext();) {
                const QRegularExpressionMatch match = found.next();
                placeholders.append(
                    {sheet.fileName(), line, match.capturedStart() + 1, match.captured(1)});
            }
        }
    }
}

QVector<Placeholder> placeholdersOf(const ReadTheme& theme)
{
    QVector<Placeholder> placeholders;
    readPlaceholders(QStringLiteral(":/BRELK/ThemeLibrary/stylesheets"), placeholders);
    readPlaceholders(theme.getDirectory(), placeholders);
    return placeholders;
}

/// What a style sheet can name.
QStringList variablesOf(const ReadTheme& theme)
{
    const ThemeConfigurationReader& read = theme.getConfiguration();
    QStringList paths;
    const auto add = [&paths](const QString& group, const QStringList& names) {
        for (const QString& name : names)
            paths += group + QLatin1Char('/') + name;
    };
    add(ThemeResources::getColorsVarPrefix(), read.getColorsMap().keys());
    add(ThemeResources::getInternalColorsVarPrefix(), read.getInternalColorsMap().keys());
    add(ThemeResources::getOpacitiesVarPrefix(), read.getOpacitiesMap().keys());
    add(ThemeResources::getCornerRadiusVarPrefix(), read.getCornerRadiusMap().keys());
    add(ThemeResources::getFontsVarPrefix(), read.getFont().toVariantMap().keys());
    return paths;
}

QStringList baseNames(const QString& directory)
{
    QStringList names;
    for (const QFileInfo& file : QDir(directory).entryInfoList(QDir::Files))
        names += file.completeBaseName();
    return names;
}

/// Collects what is wrong with the images of one theme.
class ImagesCheck
{
public:
    ImagesCheck(const ReadTheme& theme, QVector<Finding>& findings)
        : m_theme(theme)
        , m_root(theme.getDirectory() + QLatin1String("/Images/"))
        , m_findings(findings)
    { }

    void run();

private:
    void checkFile(const QFileInfo& file);
    void checkFolder(const QString& folder);
    void checkIndex(const QFileInfo& index);
    void checkPicture(const QFileInfo& picture);
    void checkName(const QFileInfo& picture, const QString& library);
    void checkBrush(const QFileInfo& picture, const QString& brush);

    void add(const QFileInfo& file, bool isError, const QString& text)
    {
        m_findings.append({file.filePath(), 1, 1, isError, text});
    }

    const ReadTheme& m_theme;
    QString m_root;
    QVector<Finding>& m_findings;
};

void ImagesCheck::run()
{
    const QStringList folders = QDir(m_root).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& folder : folders)
        checkFolder(folder);
    QDirIterator files(m_root, QDir::Files | QDir::System | QDir::Hidden,
                       QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
    while (files.hasNext()) {
        files.next();
        checkFile(files.fileInfo());
    }
}

void ImagesCheck::checkFolder(const QString& folder)
{
    // A missing name is reported by itself.
    if (!m_theme.getName().isEmpty() && folder != m_theme.getName())
        add(QFileInfo(m_root + folder), false,
            QLatin1String("nothing looks for icons here; name the folder \"") + m_theme.getName()
                + QLatin1String("\" like the theme"));
}

void ImagesCheck::checkFile(const QFileInfo& file)
{
    const QString suffix = file.suffix().toLower();
    const QString root = QStringLiteral("/varn-theme-check");
    if (!file.isFile())
        add(file, true,
            QStringLiteral("it is no file; with such a thing below Images the theme has no icons"));
    else if (file.fileName() == QLatin1String("index.theme"))
        checkIndex(file);
    else if (suffix == QLatin1String("rcc") && !QResource::registerResource(file.filePath(), root))
        add(file, true, QStringLiteral("it is no resource bundle, as \"rcc --binary\" makes them"));
    else if (suffix == QLatin1String("rcc"))
        QResource::unregisterResource(file.filePath(), root);
    else if (QImageReader::supportedImageFormats().contains(suffix.toLatin1()))
        checkPicture(file);
}

/// Icons are found by Qt in the folders that the index lists.
void ImagesCheck::checkIndex(const QFileInfo& index)
{
    const QSettings settings(index.filePath(), QSettings::IniFormat);
    const QStringList folders =
        settings.value(QStringLiteral("Icon Theme/Directories")).toStringList();
    if (folders.isEmpty())
        add(index, false,
            QStringLiteral("it lists no folder as \"Directories\" of its \"[Icon Theme]\""));
    for (const QString& folder : folders) {
        if (!index.absoluteDir().exists(folder))
            add(index, false, QLatin1Char('"') + folder + QLatin1String("\" is not there"));
        else if (!settings.contains(folder + QLatin1String("/Size")))
            add(index, false,
                QLatin1Char('"') + folder
                    + QLatin1String("\" has no \"Size\", so its icons are not found; add \"[")
                    + folder + QLatin1String("]\" with \"Size=16\" and \"Type=Scalable\""));
    }
}

void ImagesCheck::checkPicture(const QFileInfo& picture)
{
    if (QImageReader(picture.filePath()).size().isEmpty()) {
        add(picture, true, QStringLiteral("the picture cannot be read; it would show as nothing"));
        return;
    }
    const QString folder = picture.absoluteDir().dirName();
    if (folder == QLatin1String("scalable"))
        checkName(picture, QStringLiteral(":/Icons"));
    else if (folder == QLatin1String("Cursors"))
        checkName(picture, QStringLiteral(":/Cursors"));
}

/// A name that is nearly one of the library's, or that ends in a brush.
void ImagesCheck::checkName(const QFileInfo& picture, const QString& library)
{
    const QString name = picture.completeBaseName();
    if (name.endsWith(QLatin1String("Brush"))) {
        checkBrush(picture, name.section(QLatin1Char('.'), -1));
        return;
    }
    const QStringList known = baseNames(library);
    const QString meant = known.contains(name) ? QString() : likelyName(name, known);
    if (!meant.isEmpty())
        add(picture, false,
            QStringLiteral("the library has no \"%1\" that this would replace; was \"%2\" meant?")
                .arg(name, meant));
}

void ImagesCheck::checkBrush(const QFileInfo& picture, const QString& brush)
{
    QString wanted = brush;
    wanted.replace(QLatin1String("DisabledBrush"), QLatin1String("BrushDisabled"));
    const auto& brushes = m_theme.getConfiguration().getBrushesMap();
    if (brushes.contains(wanted) || brushes.contains(brush))
        return;
    const QString meant = likelyName(wanted, brushes.keys());
    add(picture, false,
        QLatin1Char('"') + brush
            + QLatin1String("\" is no brush of the theme, so this is never shown")
            + (meant.isEmpty()
                   ? QString()
                   : QString(QLatin1String("; was \"") + meant + QLatin1String("\" meant?"))));
}

void checkStyleSheets(const ReadTheme& theme, QVector<Finding>& findings)
{
    const QStringList known = variablesOf(theme);
    for (const Placeholder& placeholder : placeholdersOf(theme)) {
        if (known.contains(placeholder.path))
            continue;
        const QString subject = QLatin1Char('@') + placeholder.path + QLatin1Char('@');
        const QString meant = likelyName(placeholder.path, known);
        const QString config = theme.getDirectory() + QLatin1String("/config.xml");
        // What the library's sheets lack is the theme's fault.
        if (placeholder.file.startsWith(QLatin1Char(':')))
            findings.append({config, 1, 1, true,
                             subject
                                 + QLatin1String(" of the style sheets is no color of the theme; "
                                                 "without it none of their rules applies")});
        else
            findings.append({placeholder.file, placeholder.line, placeholder.column, true,
                             subject + QLatin1String(" has no value that a style sheet can hold")
                                 + (meant.isEmpty() ? QString()
                                                    : QString(QLatin1String("; was @") + meant
                                                              + QLatin1String("@ meant?")))});
    }
}

} // namespace

QStringList namesInStyleSheets(const ReadTheme& theme)
{
    QStringList names;
    for (const Placeholder& placeholder : placeholdersOf(theme))
        names += placeholder.getName();
    return names;
}

QVector<Finding> checkFiles(const ReadTheme& theme)
{
    QVector<Finding> findings;
    checkStyleSheets(theme, findings);
    ImagesCheck(theme, findings).run();
    return findings;
}

} // namespace ThemeTool
