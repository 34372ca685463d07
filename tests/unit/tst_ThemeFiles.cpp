#include "MessageRecorder.h"
#include "TemporaryRepository.h"
#include "ThemeResources.h"

#include <QApplication>
#include <QDir>
#include <QRegularExpression>
#include <QtTest>

using namespace BRELK;

namespace {

/// A ".cur" file of the library with another hot spot: the four bytes of its x and y.
QByteArray cursorFile(const QByteArray& hotSpot)
{
    QFile file(QStringLiteral(":/Cursors/tool.brush.cur"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll().replace(10, 4, hotSpot);
}

QRgb centre(const QImage& image)
{
    return image.pixel(image.width() / 2, image.height() / 2);
}

} // namespace

class tst_ThemeFiles : public QObject
{
    Q_OBJECT

private:
    const TemporaryRepository m_files;

    QIcon icon(const char* name) { return ThemeResources::getIcon(QString::fromLatin1(name)); }

private Q_SLOTS:

    void initTestCase()
    {
        m_files.write(QStringLiteral("icons/action.close.svg"), svgSquare("#ff0000"));
        m_files.write(QStringLiteral("icons/action.close.ForegroundBrush.svg"), svgSquare("#000"));
        m_files.write(QStringLiteral("icons/group/own.svg"), svgSquare("#0000ff"));
        QImage(4, 4, QImage::Format_RGB32).save(m_files.path(QStringLiteral("icons/both.png")));
        m_files.write(QStringLiteral("icons/both.svg"), svgSquare("#00ff00"));
        QDir::setSearchPaths(QStringLiteral("icons"),
                             {m_files.path(QStringLiteral("icons")),
                              m_files.path() + QLatin1Char('/'), QStringLiteral(":/Icons")});
        QDir().mkdir(m_files.path(QStringLiteral("cursors")));
        QDir::setSearchPaths(QStringLiteral("cursors"), {m_files.path(QStringLiteral("cursors")),
                                                         QStringLiteral(":/Cursors")});
    }

    void iconsAreFoundInTheThemeThenInTheLibrary()
    {
        QCOMPARE(centre(icon("action.close").pixmap(16).toImage()), qRgb(255, 0, 0));
        QVERIFY(!icon("action.add").isNull());
        QVERIFY(icon("action.none").isNull());
        QVERIFY(icon("").isNull());
        QCOMPARE(centre(icon("/group/own.svg").pixmap(16).toImage()), qRgb(0, 0, 255));
        // "png" is before "svg" in the list of formats.
        QCOMPARE(icon("both").actualSize(QSize(64, 64)), QSize(4, 4));
    }

    void iconsAreListedOnce()
    {
        const QStringList closing =
            ThemeResources::getIcons(QRegularExpression(QStringLiteral("^action\\.close")));
        QCOMPARE(closing.count(QStringLiteral("action.close")), 1);
        QVERIFY(closing.contains(QStringLiteral("action.close.all")));
        QVERIFY(closing.filter(QStringLiteral("Brush")).isEmpty());
    }

    void pixmapsHaveTheSizeAskedFor()
    {
        const QString name = QStringLiteral("action.close");
        QCOMPARE(ThemeResources::getPixmap(name, {40, 20}).size(), QSize(40, 20));
        QCOMPARE(ThemeResources::getPixmap(name, {}).size(), QSize(16, 16));
        QVERIFY(ThemeResources::getPixmap(QStringLiteral("action.none"), {8, 8}).isNull());
    }

    void hotSpots()
    {
        const auto hotSpot = [this](const char* name, const QByteArray& content) {
            m_files.write(QLatin1String("cursors/") + QLatin1String(name), content);
            return ThemeResources::getCursor(QLatin1String(name)).hotSpot();
        };
        const QByteArray stated = cursorFile(QByteArray("\x03\x00\x07\x00", 4));
        QCOMPARE(hotSpot("stated.cur", stated), QPoint(3, 7));
        QCOMPARE(hotSpot("two bytes.cur", cursorFile(QByteArray("\x02\x01\x00\x00", 4))),
                 QPoint(258, 0));
        // A low byte of 128 or more makes a coordinate negative, which QCursor takes for the
        // middle.
        QCOMPARE(hotSpot("signed.cur", cursorFile(QByteArray("\x90\x00\x05\x00", 4))),
                 QPoint(16, 5));
        QCOMPARE(hotSpot("icon.cur", QByteArray(stated).replace(2, 1, "\x01")), QPoint());
        QCOMPARE(hotSpot("picture.svg", svgSquare("#fff").replace("16", "32")), QPoint(16, 16));
    }

    void withoutUsableFileTheCursorIsTheArrow()
    {
        m_files.write(QStringLiteral("cursors/truncated.cur"), cursorFile({}).left(11));
        MessageRecorder messages;
        for (const char* name : {"truncated", "none", ""})
            QCOMPARE(ThemeResources::getCursor(QString::fromLatin1(name)).shape(), Qt::ArrowCursor);
        QVERIFY(!messages.take().isEmpty());
    }
};

QTEST_MAIN(tst_ThemeFiles)
#include "tst_ThemeFiles.moc"
