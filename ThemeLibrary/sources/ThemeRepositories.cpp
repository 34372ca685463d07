#include "ThemeRepositories.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QStandardPaths>

#ifdef Q_OS_UNIX
#include <dlfcn.h>
#endif

namespace BRELK::ThemeRepositories {

namespace {

/// The file that this code was loaded from; empty where the platform does not tell.
QString libraryPath()
{
#ifdef Q_OS_UNIX
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(&libraryPath), &info) != 0 && info.dli_fname)
        return QString::fromLocal8Bit(info.dli_fname);
#endif
    return {};
}

} // namespace

QStringList all()
{
    QStringList candidates;
    const auto beside = [&candidates](const QString& directory, const QString& path) {
        if (!directory.isEmpty())
            candidates.append(QDir::cleanPath(QDir(directory).absoluteFilePath(path)));
    };
    if (QCoreApplication::instance())
        beside(QCoreApplication::applicationDirPath(), QStringLiteral("../share/varn/themes"));
    candidates +=
        QStandardPaths::locateAll(QStandardPaths::GenericDataLocation,
                                  QStringLiteral("varn/themes"), QStandardPaths::LocateDirectory);
    // Libraries lie in lib or in a directory of their architecture below it.
    const QString library = libraryPath();
    for (const QString& path :
         {QStringLiteral("../share/varn/themes"), QStringLiteral("../../share/varn/themes")})
        beside(library.isEmpty() ? QString() : QFileInfo(library).absolutePath(), path);

    QStringList existing;
    for (const QString& candidate : qAsConst(candidates)) {
        if (QFileInfo(candidate).isDir() && !existing.contains(candidate))
            existing.append(candidate);
    }
    return existing;
}

QStringList themes(const QStringList& repositories)
{
    QMap<QString, QString> found;
    for (const QString& repository : repositories) {
        const QDir directory(repository);
        for (const QString& name : directory.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QString key = name.toLower();
            if (!found.contains(key))
                found.insert(key, directory.absoluteFilePath(name));
        }
    }
    return found.values();
}

QString find(const QString& name)
{
    return find(name, all());
}

QString find(const QString& name, const QStringList& repositories)
{
    for (const QString& theme : themes(repositories)) {
        if (QFileInfo(theme).fileName().compare(name, Qt::CaseInsensitive) == 0)
            return theme;
    }
    return {};
}

} // namespace BRELK::ThemeRepositories
