#include "MessageRecorder.h"
#include "TemporaryRepository.h"
#include "ThemeResources.h"

#include <QtTest>
#include <QtWidgets>

using namespace BRELK;

namespace {

void publish(const QVariantMap& colors, const QVariantMap& brushes = {})
{
    qApp->setProperty("theme_var", QVariantMap{{QStringLiteral("colors"), colors},
                                               {QStringLiteral("brushes"), brushes},
                                               {QStringLiteral("opacities"),
                                                QVariantMap{{QStringLiteral("Half"), 0.5}}},
                                               {QStringLiteral("cornerRadius"),
                                                QVariantMap{{QStringLiteral("BaseSize"), 4}}}});
}

QIcon icon(const char* name)
{
    return ThemeResources::getIcon(QString::fromLatin1(name));
}

QColor colorOf(const QIcon& icon)
{
    return icon.pixmap(16).toImage().pixelColor(8, 8);
}

/// A ".cur" file of the library with another hot spot: the four bytes of its x and y.
QByteArray cursorFile(const QByteArray& hotSpot)
{
    QFile file(QStringLiteral(":/Cursors/tool.brush.cur"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().replace(10, 4, hotSpot) : QByteArray();
}

} // namespace

class tst_ThemeResources : public QObject
{
    Q_OBJECT

private:
    const TemporaryRepository m_files;

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
        QDir::setSearchPaths(QStringLiteral("cursors"), {m_files.path(QStringLiteral("cursors")),
                                                         QStringLiteral(":/Cursors")});
    }

    void init()
    {
        publish({{QStringLiteral("MainColor"), QColor(Qt::red)},
                 {QStringLiteral("BackgroundColor"), QColor(Qt::red)},
                 {QStringLiteral("VeiledColor"), QColor(255, 0, 0, 128)},
                 {QStringLiteral("AtColor"), QStringLiteral("@colors/MainColor@")}},
                {{QStringLiteral("FlatBrush"), QBrush(Qt::blue)},
                 {QStringLiteral("WrongBrush"), QColor(Qt::green)}});
    }

    void pathLookup()
    {
        const auto lookup = [](const char* path) {
            return ThemeResources::getThemeVar(QString::fromLatin1(path), 7);
        };
        QCOMPARE(lookup("colors/MainColor"), QVariant(QColor(Qt::red)));
        QCOMPARE(lookup("colors/MainColor/more/yet"), QVariant(QColor(Qt::red)));
        QCOMPARE(lookup("colors").toMap().size(), 4);
        for (const char* path : {"shapes/Round", "colors/maincolor", "", "/colors/MainColor"})
            QCOMPARE(lookup(path), QVariant(7));
    }

    void typedLookupsKeepTheFirstTheme()
    {
        QCOMPARE(ThemeResources::getBrush(QStringLiteral("FlatBrush")), QBrush(Qt::blue));
        QCOMPARE(ThemeResources::getBrush(QStringLiteral("WrongBrush")), QBrush());
        QCOMPARE(ThemeResources::getOpacity(QStringLiteral("Half")), 0.5);
        QCOMPARE(ThemeResources::getColor(QStringLiteral("MainColor")), QColor(Qt::red));
        publish({{QStringLiteral("MainColor"), QColor(Qt::blue)}});
        QCOMPARE(ThemeResources::getColor(QStringLiteral("MainColor")), QColor(Qt::red));
        QCOMPARE(ThemeResources::getColorKey(Qt::blue), QStringLiteral("MainColor"));
    }

    void reverseLookupPrefersForegroundAndMain()
    {
        QCOMPARE(ThemeResources::getColorKey(Qt::red), QStringLiteral("MainColor"));
        QCOMPARE(ThemeResources::getColorKey(Qt::yellow), QString());
        QCOMPARE(ThemeResources::getBrushKey(QBrush(Qt::blue)), QStringLiteral("FlatBrush"));
        const QVariantMap map{{QStringLiteral("MainA"), 1},
                              {QStringLiteral("ForegroundB"), 1},
                              {QStringLiteral("A"), 1}};
        QCOMPARE(ThemeResources::getColorOrBrushKey(1, map), QStringLiteral("ForegroundB"));
    }

    void styleSheetPlaceholders()
    {
        const auto expanded = [](const char* sheet) {
            return ThemeResources::customizeStyleSheet(QString::fromLatin1(sheet)).toLatin1();
        };
        QCOMPARE(expanded("a: @colors/VeiledColor@;"), "a: #80ff0000;");
        QCOMPARE(expanded("@cornerRadius/BaseSize@px @opacities/Half@"), "4px 0.5");
        QCOMPARE(expanded("[@brushes/FlatBrush@]"), "[]");
        QCOMPARE(expanded("@colors/MainColor@@colors/MainColor@"), "#ff0000#ff0000");
        // A shared sign is not used twice, and inserted text is not expanded.
        QCOMPARE(expanded("@colors/None@colors/MainColor@"), "@colors/None@colors/MainColor@");
        QCOMPARE(expanded("@colors/AtColor@"), "@colors/MainColor@");
        QCOMPARE(expanded("@@ @a-b@ me@here"), "@@ @a-b@ me@here");
    }

    void iconsAreFoundInTheThemeThenInTheLibrary()
    {
        QCOMPARE(colorOf(icon("action.close")), QColor(Qt::red));
        QVERIFY(!icon("action.add").isNull());
        QVERIFY(icon("action.none").isNull());
        QVERIFY(icon("").isNull());
        QCOMPARE(colorOf(icon("/group/own.svg")), QColor(Qt::blue));
        // "png" is before "svg" in the list of formats.
        QCOMPARE(icon("both").actualSize(QSize(64, 64)), QSize(4, 4));

        const QStringList closing =
            ThemeResources::getIcons(QRegularExpression(QStringLiteral("^action\\.close")));
        QCOMPARE(closing.count(QStringLiteral("action.close")), 1);
        QVERIFY(closing.contains(QStringLiteral("action.close.all")));
        QVERIFY(closing.filter(QStringLiteral("Brush")).isEmpty());

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
        const MessageRecorder messages;
        for (const char* name : {"truncated", "none", ""})
            QCOMPARE(ThemeResources::getCursor(QString::fromLatin1(name)).shape(), Qt::ArrowCursor);
        QCOMPARE(messages.take(), QStringList());
    }

    void onlyFilesAreOpened()
    {
        for (const char* pipe : {"icons/pipe.svg", "cursors/pipe.cur"})
            m_files.makePipe(QLatin1String(pipe));
        QVERIFY(icon("pipe").isNull() && icon("pipe.svg").isNull());
        QVERIFY(ThemeResources::getPixmap(QStringLiteral("pipe"), {16, 16}).isNull());
        QCOMPARE(ThemeResources::getCursor(QStringLiteral("pipe")).shape(), Qt::ArrowCursor);
    }
};

QTEST_MAIN(tst_ThemeResources)
#include "tst_ThemeResources.moc"
