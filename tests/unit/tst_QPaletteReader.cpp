#include "MessageRecorder.h"
#include "QPaletteReader.h"
#include "TemporaryRepository.h"

#include <QtTest>

using namespace BRELK;

class tst_QPaletteReader : public QObject
{
    Q_OBJECT

private:
    QPaletteReader read(const QByteArray& roles, const QByteArray& root = "<QPalette>")
    {
        const QString file = QStringLiteral("A/qpaletteMapping.xml");
        m_files.write(file, root + roles + "</QPalette>");
        return readFile(m_files.path(file));
    }

    QPaletteReader readFile(const QString& path)
    {
        const MessageRecorder recorder;
        const QPaletteReader reader(path, m_brushes, m_colors, QPalette(Qt::gray));
        m_messages = recorder.messages();
        return reader;
    }

    const QMap<QString, QBrush> m_brushes{{QStringLiteral("Red"), QBrush(Qt::red)},
                                          {QStringLiteral("Both"), QBrush(Qt::yellow)}};
    const QMap<QString, QColor> m_colors{{QStringLiteral("Blue"), QColor(Qt::blue)},
                                         {QStringLiteral("Both"), QColor(Qt::black)}};
    TemporaryRepository m_files;
    QStringList m_messages;

private Q_SLOTS:

    void oneGroupsRolesWinWhereverTheyStand()
    {
        const QPaletteReader reader = read(
            "<ColorGroup group='Inactive'><ColorRole role='Window'>Blue</ColorRole></ColorGroup>"
            "<ColorRole role='Window'>Red</ColorRole><ColorRole "
            "role='Foreground'>Both</ColorRole>");
        QCOMPARE(m_messages, QStringList());
        const QPalette palette = reader.deserialize();
        QCOMPARE(palette.color(QPalette::Active, QPalette::Window), QColor(Qt::red));
        QCOMPARE(palette.color(QPalette::Disabled, QPalette::Window), QColor(Qt::red));
        QCOMPARE(palette.color(QPalette::Inactive, QPalette::Window), QColor(Qt::blue));
        QCOMPARE(palette.color(QPalette::WindowText), QColor(Qt::yellow));
        QCOMPARE(palette.brush(QPalette::Button), QPalette(Qt::gray).brush(QPalette::Button));
    }

    void badEntriesAreReportedAndLeftOut()
    {
        const QPaletteReader reader =
            read("\n<ColorRole role='Windows'>Red</ColorRole>"
                 "\n<ColorRole role='Window'>Gold</ColorRole>"
                 "\n<ColorRole role='NoRole'>Red</ColorRole>"
                 "\n<ColorRole role='Base'>Red</ColorRole>"
                 "\n<ColorRole role='Base'>Blue</ColorRole>"
                 "\n<ColorGroup group='All'><ColorRole role='Text'>Red</ColorRole></ColorGroup>"
                 "\n<ColorGroup group='Active'><ColorGroup group='Active'/></ColorGroup>");
        QString messages = m_messages.join(QLatin1Char('\n'));
        messages.remove(m_files.path(QStringLiteral("A/qpaletteMapping.xml:")));
        QCOMPARE(
            messages,
            QLatin1String("2: ColorRole \"Windows\": \"Windows\" is no palette role; left out\n"
                          "4: ColorRole \"NoRole\": \"NoRole\" has no color; left out\n"
                          "6: ColorRole \"Base\": there is another one of this name; left out\n"
                          "7: ColorGroup \"All\": \"All\" is no palette group; left out\n"
                          "8: unknown element \"ColorGroup\"; left out\n"
                          "3: ColorRole \"Window\": \"Gold\" is neither a brush nor a color of the "
                          "theme; left out"));
        QCOMPARE(reader.getStatus(), QPaletteReader::NO_ERROR);
        QCOMPARE(reader.deserialize().color(QPalette::Base), QColor(Qt::red));
        QCOMPARE(reader.deserialize().color(QPalette::Window),
                 QPalette(Qt::gray).color(QPalette::Window));
    }

    void mappingsExtendOneAnother()
    {
        m_files.write(QStringLiteral("Base/qpaletteMapping.xml"),
                      "<QPalette><ColorRole role='Base'>Red</ColorRole><ColorRole "
                      "role='Text'>Red</ColorRole></QPalette>");
        const QPalette palette =
            read("<ColorRole role='Text'>Blue</ColorRole>", "<QPalette extends='Base'>")
                .deserialize();
        QCOMPARE(palette.color(QPalette::Base), QColor(Qt::red));
        QCOMPARE(palette.color(QPalette::Text), QColor(Qt::blue));
    }

    void unreadableFilesLeaveThePalette()
    {
        const QPaletteReader malformed = read("<ColorRole role='Base'>Red</ColorRole><");
        QCOMPARE(malformed.getStatus(), QPaletteReader::READ_ERROR);
        QCOMPARE(malformed.deserialize(), QPalette(Qt::gray));
        QCOMPARE(m_messages.size(), 1);

        const QPaletteReader missing =
            readFile(m_files.path(QStringLiteral("None/qpaletteMapping.xml")));
        QCOMPARE(missing.getStatus(), QPaletteReader::FILE_NOT_FOUND_ERROR);
        QCOMPARE(missing.deserialize(), QPalette(Qt::gray));
        QCOMPARE(m_messages, QStringList());
    }
};

QTEST_MAIN(tst_QPaletteReader)
#include "tst_QPaletteReader.moc"
