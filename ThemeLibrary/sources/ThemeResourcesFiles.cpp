#include "ThemeFileIcons.h"
#include "ThemeResources.h"
#include "ThemeResources_p.h"
#include "ThemeValues.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>

namespace BRELK::ThemeResources {

namespace {

/// Both negative: QCursor then takes the centre.
constexpr QPoint CentreHotSpot(-1, -1);

QStringList readableExtensions()
{
    QStringList extensions;
    for (const QByteArray& format : QImageReader::supportedImageFormats())
        extensions.append(QString::fromLatin1(format));
    return extensions;
}

/// Opening a pipe or a device would wait for ever, so they are as good as missing.
bool isThere(const QString& path)
{
    const QFileInfo info(path);
    return info.isFile() || info.isDir();
}

QString searchFile(const QString& base, const QStringList& extensions)
{
    if (isThere(base))
        return base;
    for (const QString& extension : extensions) {
        const QString path = base + QLatin1Char('.') + extension;
        if (isThere(path))
            return path;
    }
    return {};
}

QString findFilePath(const QString& name, const QStringList& searchPaths,
                     const QStringList& extensions)
{
    if (name.isEmpty())
        return {};
    const QString file = QDir::fromNativeSeparators(name);
    for (const QString& searchPath : searchPaths) {
        QString base = QDir::fromNativeSeparators(searchPath);
        if (!base.endsWith(QLatin1Char('/')) && !file.startsWith(QLatin1Char('/')))
            base += QLatin1Char('/');
        const QString path = searchFile(base + file, extensions);
        if (!path.isEmpty())
            return path;
    }
    return {};
}

bool isIconFile(const QString& fileName, const QRegularExpression& re)
{
    // Files named after a brush are variants of an icon, not icons of their own.
    return fileName.contains(re) && !fileName.contains(QLatin1String("Brush.svg"));
}

/// The next two bytes of a Windows cursor file, low byte first.
int readCoordinate(QFile& file)
{
    char bytes[2] = {0, 0};
    file.read(bytes, sizeof bytes);
    // Deliberate: both bytes are signed, so a low byte of 128 or more gives a negative coordinate.
    const auto low = static_cast<signed char>(bytes[0]);
    const auto high = static_cast<signed char>(bytes[1]);
    return (high * 256) | low;
}

/// The hot spot of the first image of a Windows cursor file; (0, 0) when it is none.
QPoint extractHotspotFromCurFile(const QString& path)
{
    constexpr int CursorType = 2;
    constexpr qint64 TypeOffset = 2;
    constexpr qint64 HotSpotOffset = 10;

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(TypeOffset)
        || readCoordinate(file) != CursorType || !file.seek(HotSpotOffset))
        return {};
    const int x = readCoordinate(file);
    const int y = readCoordinate(file);
    return {x, y};
}

} // namespace

const QString& iconsPrefix()
{
    static const QString sPrefix = QStringLiteral("icons");
    return sPrefix;
}

const QString& cursorsPrefix()
{
    static const QString sPrefix = QStringLiteral("cursors");
    return sPrefix;
}

const QString& themeResourcesPrefix()
{
    static const QString sPrefix = QStringLiteral("resources");
    return sPrefix;
}

QString findIconPath(const QString& name)
{
    return findFilePath(name, QDir::searchPaths(iconsPrefix()), readableExtensions());
}

QIcon getIcon(const QString& name)
{
    const QString path = findIconPath(name);
    if (!path.isEmpty())
        return ThemeFileIcons::icon(name, path);
    reportMissing(name);
    return {};
}

QStringList getIcons(const QRegularExpression& re)
{
    QStringList names;
    QSet<QString> known;
    for (const QString& searchPath : QDir::searchPaths(iconsPrefix())) {
        QDirIterator files(searchPath, QDir::Files);
        while (files.hasNext()) {
            files.next();
            const QString name = files.fileInfo().completeBaseName();
            if (!isIconFile(files.fileName(), re) || known.contains(name))
                continue;
            known.insert(name);
            names.append(name);
        }
    }
    return names;
}

QPixmap getPixmap(const QString& name, const QSize& size)
{
    const QString path = findIconPath(name);
    if (!QFileInfo::exists(path)) {
        reportMissing(name);
        return {};
    }
    QImageReader reader(path);
    reader.setScaledSize(size);
    return QPixmap::fromImageReader(&reader);
}

QCursor getCursor(const QString& name)
{
    const QString path =
        findFilePath(name, QDir::searchPaths(cursorsPrefix()), readableExtensions());
    if (path.isEmpty())
        reportMissing(name);
    const QPixmap pixmap(path);
    if (pixmap.isNull())
        return {};
    const bool isWindowsCursor = QFileInfo(path).suffix() == QLatin1String("cur");
    const QPoint hotSpot = isWindowsCursor ? extractHotspotFromCurFile(path) : CentreHotSpot;
    return {pixmap, hotSpot.x(), hotSpot.y()};
}

} // namespace BRELK::ThemeResources
