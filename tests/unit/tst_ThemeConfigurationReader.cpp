#include "BaseThemeSettings.h"
#include "MessageRecorder.h"
#include "TemporaryRepository.h"
#include "ThemeColorHelper.h"
#include "ThemeConfigurationReader.h"
#include "ThemeResources.h"

#include <QFontDatabase>
#include <QLinearGradient>
#include <QtTest>

using namespace BRELK;

namespace {

QByteArray palette(const QByteArray& colors, const QByteArray& brushes = {})
{
    return "<Config><Palette><ColorsList>" + colors + "</ColorsList><BrushesList>" + brushes
           + "</BrushesList></Palette></Config>";
}

/// Chained so that each refers to the next, which stands behind it.
QByteArray chainOfColors(int length)
{
    QByteArray colors;
    for (int i = 0; i < length; ++i)
        colors += "<Color name='c" + QByteArray::number(i) + "'>c" + QByteArray::number(i + 1)
                  + "</Color>";
    return colors;
}

} // namespace

class tst_ThemeConfigurationReader : public QObject
{
    Q_OBJECT

private:
    ThemeConfigurationReader read(const QByteArray& config)
    {
        const QString file = QStringLiteral("A/config.xml");
        m_files.write(file, config);
        return readFile(m_files.path(file));
    }

    ThemeConfigurationReader readFile(const QString& path)
    {
        const MessageRecorder recorder;
        const ThemeConfigurationReader reader(path);
        m_messages = recorder.messages();
        return reader;
    }

    /// What the last reading reported, without the path of the theme.
    QStringList reports() const
    {
        QStringList messages = m_messages;
        for (QString& message : messages)
            message.remove(m_files.path(QStringLiteral("A/")));
        return messages;
    }

    TemporaryRepository m_files;
    QStringList m_messages;

private Q_SLOTS:

    /// Disabled colors keep the factors that they are first derived with, for the life of the
    /// process.
    void initTestCase()
    {
        read("<Config><Palette><ColorsList><Color name='X'>red</Color></ColorsList></Palette>"
             "<Factors><Factor name='LightForegroundDisableFactor'>200</Factor>"
             "<Factor name='LightBackgroundDisableFactor'>110</Factor></Factors></Config>");
        QCOMPARE(ThemeColorHelper::disabled(Qt::white, true), QColor(Qt::white).darker(200));
        QCOMPARE(ThemeColorHelper::disabled(Qt::white, false), QColor(Qt::white).darker(110));
    }

    void documentedExampleIsReadAsDocumented()
    {
        QFile page(QStringLiteral(VARN_THEME_FORMAT));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QByteArray text = page.readAll();
        const int start = text.indexOf("<?xml");
        const ThemeConfigurationReader reader =
            read(text.mid(start, text.indexOf("```", start) - start));
        QCOMPARE(reports(), QStringList());
        QCOMPARE(reader.getStatus(), ThemeConfigurationReader::NO_ERROR);
        QCOMPARE(reader.getColorsMap().size(), 10);
        QCOMPARE(reader.getBrushesMap().size(), 16);
        QCOMPARE(reader.getOpacitiesMap().value(QStringLiteral("RubberBandOpacity")), 0.3);
        QCOMPARE(reader.getCornerRadiusMap().value(QStringLiteral("MediumSize")), 6);
        QCOMPARE(reader.getFont().getFont(ThemeFont::LARGE_FONT).pointSizeF(), 13.5);
    }

    void colors()
    {
        const auto color = [this](const char* elements) {
            return read(palette(elements)).getColorsMap().value(QStringLiteral("X"));
        };
        QCOMPARE(color("<Color name='X'> #80ff8800\n</Color>"), QColor(0xff, 0x88, 0, 0x80));
        QCOMPARE(color("<Color name='X'>SteelBlue</Color>"), QColor(0x46, 0x82, 0xb4));
        QCOMPARE(color("<Color name='X'>blue</Color><Color name='blue'>red</Color>"),
                 QColor(Qt::red));
        QCOMPARE(color("<Color name='X'>red</Color><Color name='red'>red</Color>"),
                 QColor(Qt::red));
        QCOMPARE(color("<Color name='X'>TextDisabled</Color><Color name='Text'>white</Color>"),
                 QColor(Qt::white).darker(200));
        QColor modified = QColor(Qt::red).lighter(200).darker(200);
        modified.setAlphaF(0.5);
        QCOMPARE(color("<Color name='X' alpha='0.5' darker='200' lighter='200'>red</Color>"),
                 modified);
    }

    void gradientsAreRelativeToWhatTheyFill()
    {
        const ThemeConfigurationReader reader = read(palette(
            "<Color name='Y'>white</Color>",
            "<LinearGradientBrush name='LinkBrush' startPoint='0, 0.5' endPoint='1,0.5'>"
            "<GradientStop offset='1'>red</GradientStop><GradientStop offset='0'>Y</GradientStop>"
            "</LinearGradientBrush>"));
        QLinearGradient gradient(0, 0.5, 1, 0.5);
        gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
        gradient.setStops({{0, Qt::white}, {1, Qt::red}});
        QCOMPARE(reader.getBrushesMap().value(QStringLiteral("LinkBrush")), QBrush(gradient));
        gradient.setStops({{0, ThemeColorHelper::disabled(Qt::white, true)},
                           {1, ThemeColorHelper::disabled(Qt::red, true)}});
        QCOMPARE(reader.getBrushesMap().value(QStringLiteral("LinkBrushDisabled")),
                 QBrush(gradient));
    }

    void disabledTwins()
    {
        const ThemeConfigurationReader reader =
            read(palette("<Color name='TextA'>white</Color><Color name='Atext'>white</Color>"
                         "<Color name='Own'>white</Color><Color name='OwnDisabled'>lime</Color>"
                         "<Color name='Secret' internal='true'>white</Color>",
                         "<SolidBrush name='OwnBrush'>white</SolidBrush>"
                         "<SolidBrush name='OwnBrushDisabled'>lime</SolidBrush>"
                         "<Brush name='Alias2'>Alias1</Brush><Brush name='Alias1'>OwnBrush</Brush>"
                         "<SolidBrush name='PlainBrush'>white</SolidBrush>"
                         "<Brush name='TextAlias'>PlainBrush</Brush>"));
        QCOMPARE(reports(), QStringList());
        const QColor text = ThemeColorHelper::disabled(Qt::white, true);
        const QColor surface = ThemeColorHelper::disabled(Qt::white, false);
        const auto color = [&](const char* name) {
            return reader.getColorsMap().value(QLatin1String(name));
        };
        QCOMPARE(color("TextADisabled"), text);
        QCOMPARE(color("AtextDisabled"), surface);
        QCOMPARE(color("OwnDisabled"), QColor(Qt::green));
        QVERIFY(!color("OwnDisabledDisabled").isValid());
        QCOMPARE(reader.getInternalColorsMap().value(QStringLiteral("SecretDisabled")), surface);

        const auto brush = [&](const char* name) {
            return reader.getBrushesMap().value(QLatin1String(name));
        };
        QCOMPARE(brush("PlainBrushDisabled"), QBrush(surface));
        QCOMPARE(brush("TextAliasDisabled"), QBrush(text));
        QCOMPARE(brush("Alias2Disabled"), QBrush(Qt::green));
    }

    void extendedThemesAreRecomputed()
    {
        m_files.write(QStringLiteral("Base/config.xml"),
                      "<Config><Palette><ColorsList><Color name='Accent'>red</Color>"
                      "<Color name='Secret' internal='true'>Accent</Color>"
                      "<Color name='Kept'>red</Color></ColorsList>"
                      "<BrushesList><SolidBrush name='MainBrush'>Secret</SolidBrush></BrushesList>"
                      "</Palette><Font><Weight>Bold</Weight><BaseSize>20</BaseSize></Font>"
                      "<CornerRadius><BaseSize>5</BaseSize></CornerRadius></Config>");
        m_files.write(QStringLiteral("Middle/config.xml"),
                      "<Config extends='Base'><Font><SmallSize>7</SmallSize></Font></Config>");
        const ThemeConfigurationReader reader =
            read("<Config extends='Middle'><Palette><ColorsList><Color name='Accent'>white</Color>"
                 "<Color name='Secret'>Accent</Color><Color name='Kept'>nonsense</Color>"
                 "</ColorsList></Palette></Config>");
        QCOMPARE(reports().size(), 1);
        QCOMPARE(reader.getColorsMap().value(QStringLiteral("Secret")), QColor(Qt::white));
        QCOMPARE(reader.getColorsMap().value(QStringLiteral("Kept")), QColor(Qt::red));
        QVERIFY(reader.getInternalColorsMap().isEmpty());
        QCOMPARE(reader.getBrushesMap().value(QStringLiteral("MainBrush")), QBrush(Qt::white));
        QCOMPARE(reader.getBrushesMap().value(QStringLiteral("MainBrushDisabled")),
                 QBrush(ThemeColorHelper::disabled(Qt::white, false)));
        QCOMPARE(reader.getCornerRadiusMap().value(QStringLiteral("BaseSize")), 5);
        QCOMPARE(reader.getFont().getFont(ThemeFont::SMALL_FONT).pointSizeF(), 7.0);
        QCOMPARE(reader.getFont().getFont(ThemeFont::MEDIUM_FONT).pointSizeF(), 24.0);
        QCOMPARE(reader.getFont().getFont(ThemeFont::BASE_FONT).weight(), int(QFont::Bold));
    }

    void badEntriesAreReportedOnceAndLeftOut_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* name, const QByteArray& content, const char* report) {
            QTest::newRow(name) << content
                                << QString(QLatin1String("config.xml:2: ") + QLatin1String(report));
        };
        const auto color = [](const char* element) { return palette(QByteArray("\n") + element); };
        const auto brush = [](const char* element) {
            return palette({}, QByteArray("\n") + element);
        };
        row("no color", color("<Color name='X'>#12345</Color>"),
            "Color \"X\": \"#12345\" is neither a color of the theme nor a color value; "
            "left out");
        row("duplicate",
            color("<Color name='Y'>red</Color><Color name='Y' internal='true'>blue</Color>"),
            "Color \"Y\": there is another one of this name; left out");
        row("no name", color("<Color>red</Color>"),
            "Color: it needs a name without blanks, \"/\" and \"@\"; left out");
        row("alpha out of range", color("<Color name='X' alpha='nan'>red</Color>"),
            "Color \"X\": \"nan\" is not a number from 0 to 1; left out");
        row("internal", color("<Color name='X' internal='yes'>red</Color>"),
            "Color \"X\": \"yes\" for internal is neither true nor false; left out");
        row("cycle", color("<Color name='X'>Y</Color><Color name='Y'>X</Color>"),
            "Color \"X\": it leads back to itself, by way of \"X, Y\"; left out");
        row("unknown brush", brush("<Brush name='X'>red</Brush>"),
            "Brush \"X\": \"red\" is no brush of the theme; left out");
        row("gradient without stops", brush("<LinearGradientBrush name='X'/>"),
            "LinearGradientBrush \"X\": it has no stop; left out");
        row("point", brush("<LinearGradientBrush name='X' endPoint='1'/>"),
            "LinearGradientBrush \"X\": endPoint \"1\" is not of the form x,y; left out");
        row("unknown section", "<Config>\n<Surfaces/></Config>",
            "unknown element \"Surfaces\"; left out");
        row("factor", "<Config><Factors>\n<Factor name='X'>110%</Factor></Factors></Config>",
            "Factor \"X\": \"110%\" is not a whole number from 0 to 1000; left out");
        row("root", "\n<config/>",
            "config: the root element is \"config\", not \"Config\"; the file is not used");
        row("extending itself", "\n<Config extends='A'/>",
            "Config: extends itself through \"A\"; read without it");
        row("missing base", "\n<Config extends='None'/>",
            "Config: extends \"None\", which has no readable config.xml; read without it");
        row("no base", "\n<Config extends='../B'/>",
            "Config: extends \"../B\", which is no theme's name; read without it");
    }

    void badEntriesAreReportedOnceAndLeftOut()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, expected);
        const ThemeConfigurationReader reader = read(content);
        QCOMPARE(reports(), QStringList(expected));
        QCOMPARE(reader.getStatus(), ThemeConfigurationReader::NO_ERROR);
        const QString name = QStringLiteral("X");
        QVERIFY(!reader.getColorsMap().contains(name)
                && !reader.getInternalColorsMap().contains(name));
        QVERIFY(!reader.getBrushesMap().contains(name)
                && !reader.getDisabledFactorsMap().contains(name));
        QCOMPARE(reader.getCornerRadiusMap().value(QStringLiteral("BaseSize")), 4);
    }

    void onlyWhatIsWrongIsIgnored()
    {
        const ThemeConfigurationReader reader =
            read(palette("<Color name='X' note='?'>red<b/></Color>stray",
                         "<LinearGradientBrush name='Y'><GradientStop offset='0'>red</GradientStop>"
                         "<GradientStop offset='0'>lime</GradientStop><GradientStop "
                         "offset='2'>lime</GradientStop>"
                         "</LinearGradientBrush>"));
        QCOMPARE(reports().size(), 5);
        QCOMPARE(reader.getColorsMap().value(QStringLiteral("X")), QColor(Qt::red));
        QCOMPARE(reader.getBrushesMap().value(QStringLiteral("Y")).gradient()->stops().size(), 1);
    }

    void badFilesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("content");
        const auto row = [](const char* name, const QByteArray& content) {
            QTest::newRow(name) << content;
        };
        row("empty", {});
        row("not closed", "<Config><Palette>");
        row("nested deeply", "<Config>" + QByteArray("<a>").repeated(20000));
        row("external entity",
            "<!DOCTYPE Config [<!ENTITY a SYSTEM 'file:///etc/passwd'>]><Config>&a;</Config>");
        row("megabytes", "<Config>" + QByteArray(2000000, 'x') + "</Config>");
        row("zeros", QByteArray(100000, '\0'));
    }

    void badFilesAreRefused()
    {
        QFETCH(QByteArray, content);
        const ThemeConfigurationReader reader = read(content);
        QCOMPARE(reader.getStatus(), ThemeConfigurationReader::READ_ERROR);
        QVERIFY(reader.getColorsMap().isEmpty() && reader.getCornerRadiusMap().isEmpty());
        const QStringList messages = reports();
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages.first().endsWith(QStringLiteral("; the file is not used")),
                 qPrintable(messages.first()));

        const BaseThemeSettings settings(m_files.path(QStringLiteral("A/config.xml")));
        QCOMPARE(settings.getStatus(), BaseThemeSettings::READ_ERROR);
    }

    void longChainsAreResolved()
    {
        constexpr int Length = 3500;
        const QByteArray last = "<Color name='c" + QByteArray::number(Length) + "'>red</Color>";
        const ThemeConfigurationReader reader = read(palette(chainOfColors(Length) + last));
        QCOMPARE(reports(), QStringList());
        QCOMPARE(reader.getColorsMap().value(QStringLiteral("c0")), QColor(Qt::red));
    }

    void floodsOfProblemsAreCut()
    {
        read(palette(chainOfColors(1000)));
        const QStringList messages = reports();
        QCOMPARE(messages.size(), 200);
        QCOMPARE(messages.last().section(QLatin1Char(':'), 2),
                 QStringLiteral(" too many problems; the rest is not reported"));
    }

    void missingFileGivesThePlatformsFonts()
    {
        const ThemeConfigurationReader reader =
            readFile(m_files.path(QStringLiteral("None/config.xml")));
        QCOMPARE(reader.getStatus(), ThemeConfigurationReader::FILE_NOT_FOUND_ERROR);
        QCOMPARE(reports(), QStringList());
        QCOMPARE(reader.getFont().getFont(ThemeFont::BASE_FONT),
                 QFontDatabase::systemFont(QFontDatabase::GeneralFont));
    }
};

QTEST_MAIN(tst_ThemeConfigurationReader)
#include "tst_ThemeConfigurationReader.moc"
