#include "BaseThemeSettings.h"
#include "NamePattern.h"
#include "QPaletteReader.h"
#include "ThemeConfigurationReader.h"
#include "ThemeResources.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

// Reads whatever a file of a theme may hold, by libFuzzer. VARN_READER names the file.

using namespace BRELK;

namespace {

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

struct Reader
{
    const char* file;
    void (*read)(const QString& path);
};

constexpr Reader Readers[] = {
    {"config.xml", [](const QString& path) { ThemeConfigurationReader{path}; }},
    {"qpaletteMapping.xml",
     [](const QString& path) {
         const QBrush red(Qt::red);
         QPaletteReader(path, {{QStringLiteral("A"), red}}, {{QStringLiteral("B"), red.color()}},
                        QPalette(Qt::gray))
             .deserialize();
     }},
    {"theme.xml", [](const QString& path) { BaseThemeSettings{path}; }},
    {"sheet.qss", [](const QString& path) { ThemeResources::customizeStyleSheet(textOf(path)); }},
    {"pattern", [](const QString& path) { expandNamePattern(textOf(path), 1000); }},
    {"pointer.cur",
     [](const QString& path) {
         QDir::setSearchPaths(QStringLiteral("cursors"), {QFileInfo(path).path()});
         ThemeResources::getCursor(QStringLiteral("pointer.cur"));
     }},
};

const Reader& chosenReader()
{
    const QByteArray name = qgetenv("VARN_READER");
    for (const Reader& reader : Readers)
        if (name == reader.file)
            return reader;
    return Readers[0];
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments)
{
    new QApplication(*count, *arguments);
    qApp->setProperty("theme_var",
                      QVariantMap{{QStringLiteral("colors"),
                                   QVariantMap{{QStringLiteral("A"), QColor(Qt::red)}}}});
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const Reader& sReader = chosenReader();
    static const QTemporaryDir sDirectory;
    const QString path = sDirectory.filePath(QLatin1String(sReader.file));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return 0;
    file.write(reinterpret_cast<const char*>(data), qint64(size));
    file.close();
    sReader.read(path);
    return 0;
}
