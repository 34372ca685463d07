#include "BaseThemeSettings.h"
#include "MessageRecorder.h"
#include "NamePattern.h"
#include "QPaletteReader.h"
#include "TemporaryRepository.h"
#include "ThemeColorHelper.h"
#include "ThemeConfigurationReader.h"
#include "Transcript.h"

#include <QFontDatabase>
#include <QMetaEnum>
#include <QtTest>

using namespace BRELK;

namespace {

/// What readers reported, without the directories of the files.
QByteArray reports(const MessageRecorder& recorder)
{
    QByteArray text;
    for (QString message : recorder.take())
        text += message.remove(QRegularExpression(QStringLiteral("^\\S*/"))).toUtf8() + '\n';
    return text;
}

QByteArray toText(const QBrush& brush)
{
    if (!brush.gradient())
        return brush.color().name(QColor::HexArgb).toLatin1();
    const auto* gradient = static_cast<const QLinearGradient*>(brush.gradient());
    QByteArray text = "gradient " + toText(QRectF(gradient->start(), gradient->finalStop()));
    for (const QGradientStop& stop : gradient->stops())
        text += ' ' + QByteArray::number(stop.first) + ' ' + toText(QBrush(stop.second));
    return text;
}

QByteArray toText(double number)
{
    return QByteArray::number(number);
}

/// A line for each, in which the value for disabled ones stands last.
template <class Value>
QByteArray toText(const char* title, const QMap<QString, Value>& values)
{
    const QLatin1String disabled("Disabled");
    QByteArray text;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        if (value.key().endsWith(disabled) && values.contains(value.key().chopped(disabled.size())))
            continue;
        text += QByteArray(title) + ' ' + value.key().toLatin1() + ' ' + toText(*value);
        if (const auto twin = values.find(value.key() + disabled); twin != values.end())
            text += ' ' + toText(*twin);
        text += '\n';
    }
    return text;
}

QByteArray toText(const ThemeConfigurationReader& reader)
{
    const QFont font = reader.getFont().getFont(ThemeFont::BASE_FONT);
    const QFont platforms = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    QByteArray numbers =
        toText("opacity", reader.getOpacitiesMap()) + toText("radius", reader.getCornerRadiusMap());
    if (font.pointSizeF() != platforms.pointSizeF())
        for (const auto size : {ThemeFont::SMALL_FONT, ThemeFont::BASE_FONT, ThemeFont::MEDIUM_FONT,
                                ThemeFont::LARGE_FONT})
            numbers += "font " + toText(reader.getFont().getFont(size).pointSizeF()) + '\n';
    return "status " + toText(reader.getStatus()) + " weight " + toText(font.weight()) + ' '
           + numbers.simplified() + '\n' + toText("factor", reader.getDisabledFactorsMap())
           + toText("color", reader.getColorsMap())
           + toText("internal color", reader.getInternalColorsMap())
           + toText("brush", reader.getBrushesMap())
           + toText("internal brush", reader.getInternalBrushesMap());
}

/// The colors of active, inactive and disabled ones that differ from those that the reader was
/// given.
QByteArray toText(const QPaletteReader& reader)
{
    const QPalette palette = reader.deserialize();
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    QByteArray text = "status " + toText(reader.getStatus()) + '\n';
    for (int i = 0; i < QPalette::NColorRoles; ++i) {
        const auto role = QPalette::ColorRole(i);
        QByteArray colors;
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            colors += palette.brush(group, role) == QPalette(Qt::gray).brush(group, role)
                          ? QByteArray(" as-given")
                          : QByteArray(" ") + toText(palette.brush(group, role));
        if (colors.contains('#'))
            text += roles.valueToKey(role) + colors + '\n';
    }
    return text;
}

QByteArray readConfiguration(const QString& path)
{
    const MessageRecorder recorder;
    const ThemeConfigurationReader reader(path);
    return toText(reader) + reports(recorder);
}

QByteArray readMapping(const QString& path)
{
    const MessageRecorder recorder;
    const QPaletteReader reader(
        path,
        {{QStringLiteral("Red"), QBrush(Qt::red)}, {QStringLiteral("Both"), QBrush(Qt::yellow)}},
        {{QStringLiteral("Blue"), QColor(Qt::blue)}, {QStringLiteral("Both"), QColor(Qt::black)}},
        QPalette(Qt::gray));
    return toText(reader) + reports(recorder);
}

/// Chained so that each refers to the next, which stands behind it.
QByteArray chainOfColors(int length, const QByteArray& last = {})
{
    QByteArray colors;
    for (int i = 0; i < length; ++i)
        colors += "<Color name='c" + QByteArray::number(i) + "'>c" + QByteArray::number(i + 1)
                  + "</Color>";
    return "<Config><Palette><ColorsList>" + colors + last + "</ColorsList></Palette></Config>";
}

} // namespace

/// What the readers of theme files make of the files below tests/unit/readings.
class tst_ThemeReaders : public QObject
{
    Q_OBJECT

private:
    static QString reading(const char* file)
    {
        return QStringLiteral(VARN_READINGS "/%1").arg(QLatin1String(file));
    }

    QByteArray read(const QByteArray& config)
    {
        m_files.write(QStringLiteral("A/config.xml"), config);
        return readConfiguration(m_files.path(QStringLiteral("A/config.xml")));
    }

    const TemporaryRepository m_files;

private Q_SLOTS:

    /// Disabled colors keep the factors that they are first derived with, for the life of the
    /// process.
    void initTestCase()
    {
        qputenv("XDG_DATA_DIRS", VARN_READINGS "/system");
        readConfiguration(reading("Factors/config.xml"));
        QCOMPARE(ThemeColorHelper::disabled(Qt::white, true), QColor(Qt::white).darker(200));
        QCOMPARE(ThemeColorHelper::disabled(Qt::white, false), QColor(Qt::white).darker(110));
    }

    void configurations()
    {
        QByteArray text;
        for (const char* theme :
             {"Factors", "Colors", "Base", "Derived", "BadEntries", "BadRoot", "ExtendsItself",
              "ExtendsCircle", "ExtendsNothing", "ExtendsAPath", "ExtendsInstalled", "Entities",
              "Derivations", "NotClosed", "Empty", "None"})
            text += QByteArray("# ") + theme + ": "
                    + readConfiguration(reading(theme) + QLatin1String("/config.xml"));
        COMPARE_TRANSCRIPT("Readers.configurations", text);
    }

    void mappings()
    {
        QByteArray text;
        for (const char* theme : {"Groups", "Derived", "BadEntries", "BadRoot", "None"})
            text += QByteArray("# ") + theme + ": "
                    + readMapping(reading(theme) + QLatin1String("/qpaletteMapping.xml"));
        COMPARE_TRANSCRIPT("Readers.mappings", text);
    }

    void documentedExampleIsReadAsDocumented()
    {
        QFile page(QStringLiteral(VARN_THEME_FORMAT));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QByteArray text = page.readAll();
        const int start = text.indexOf("<?xml");
        COMPARE_TRANSCRIPT("Readers.documented",
                           read(text.mid(start, text.indexOf("```", start) - start)));
    }

    void hugeFilesAreRefused()
    {
        for (const QByteArray& config : QByteArrayList{
                 "<Config>" + QByteArray("<a>").repeated(20000),
                 "<Config>" + QByteArray(2000000, 'x') + "</Config>", QByteArray(100000, '\0'),
                 "<!DOCTYPE Config [<!ENTITY a '" + QByteArray(4000, 'x') + "'>]><Config>"
                     + QByteArray("&a;").repeated(1000) + "</Config>"}) {
            const QByteArrayList lines = read(config).split('\n');
            QVERIFY(lines.at(0).startsWith("status"));
            QVERIFY(lines.at(1).endsWith("; the file is not used"));
            const BaseThemeSettings settings(m_files.path(QStringLiteral("A/config.xml")));
            QCOMPARE(settings.getStatus(), BaseThemeSettings::READ_ERROR);
        }
    }

    void longChainsAreResolvedAndFloodsOfProblemsAreCut()
    {
        const QByteArray resolved = read(chainOfColors(3500, "<Color name='c3500'>red</Color>"));
        QVERIFY(resolved.contains("color c0 #ffff0000 "));
        const QByteArrayList lines = read(chainOfColors(1000)).split('\n');
        QCOMPARE(lines.size(), 202); // the last is empty
        QVERIFY(lines.at(200).endsWith(" too many problems; the rest is not reported"));
    }

    void patternsOfNames()
    {
        const auto expanded = [](const char* pattern) {
            return expandNamePattern(QLatin1String(pattern), 6).join(QLatin1Char(' ')).toLatin1();
        };
        QCOMPARE(expanded("{,Toggle}Button"), "Button ToggleButton");
        QCOMPARE(expanded("A{b,c}D{,e}"), "AbD AcD AbDe AcDe");
        QCOMPARE(expanded("{a,b}{1,2,3}"), "a1 b1 a2 b2 a3 b3");
        // Seven names are too many, and so is what no memory could hold.
        const QByteArray endless = QByteArray("{a,b}").repeated(40);
        for (const char* bad : {"{1,2,3,4,5,6,7}", "{a,b}{a,b}{a,b}", endless.constData(), "{", "}",
                                "a{b", "a}b", "{a,{b}}", "{a}}", "}{"})
            QCOMPARE(expanded(bad), "");
        QCOMPARE(expandNamePattern(QStringLiteral("a"), 0), QStringList());
    }
};

QTEST_MAIN(tst_ThemeReaders)
#include "tst_ThemeReaders.moc"
