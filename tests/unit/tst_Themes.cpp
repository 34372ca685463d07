#include "AllThemeNames.h"
#include "ColorArithmetic.h"
#include "ContrastTable.h"
#include "ReadTheme.h"
#include "TemporaryRepository.h"

#include <QMetaEnum>
#include <QtTest>

#include <random>

using namespace BRELK;
using namespace ThemeTool;

namespace {

QStringList names(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

/// What the readers report, and what does not stand out as the table of contrasts wants it.
QByteArray faults(const ReadTheme& theme)
{
    QByteArray text;
    for (const ThemeProblem& problem : theme.getProblems())
        text += QByteArray::number(problem.line) + ": " + problem.what.toUtf8() + "; "
                + problem.done.toUtf8() + '\n';
    for (const Contrast& contrast : measureContrasts(theme))
        if (!contrast.isEnough())
            text += QStringLiteral("%1 on %2: %3 instead of %4\n")
                        .arg(contrast.color, contrast.ground)
                        .arg(contrast.found)
                        .arg(contrast.least)
                        .toLatin1();
    return text;
}

/// Surfaces that stand side by side.
const char* const Scale = "BackgroundSubLevel2Color BackgroundSubLevel1Color BackgroundColor "
                          "BackgroundUpLevel1Color BackgroundUpLevel2Color";

struct Seeds
{
    QColor background;
    QColor foreground;
    QColor accent;
};

/// Any hue and chroma; words at least 7:1 to their ground.
Seeds randomSeeds(std::mt19937& random)
{
    Seeds seeds;
    do {
        seeds = {QRgb(random()), QRgb(random()), QRgb(random())};
        // Pairs with so much contrast are rare unless both are near the ends of the scale.
        std::uniform_real_distribution<double> share;
        const bool isDark = random() & 1;
        seeds.background = ColorArithmetic::withLightness(
            seeds.background, isDark ? share(random) * 0.48 : 1 - share(random) * 0.4);
        seeds.foreground = ColorArithmetic::withLightness(
            seeds.foreground, isDark ? 1 - share(random) * 0.4 : share(random) * 0.5);
    } while (ColorArithmetic::contrast(seeds.foreground, seeds.background) < 7);
    return seeds;
}

QByteArray configuration(const Seeds& seeds)
{
    const auto color = [](const char* name, const QColor& value) -> QByteArray {
        return QByteArray("<Color name='") + name + "'>" + value.name().toLatin1() + "</Color>";
    };
    return "<Config extends='Dark'><Palette><ColorsList>"
           + color("BackgroundColor", seeds.background) + color("ForegroundColor", seeds.foreground)
           + color("AccentColor", seeds.accent) + "</ColorsList></Palette></Config>";
}

} // namespace

/// Holds the shipped themes, and those that follow from seeds, to what the style asks of a theme
/// and to what readers need.
class tst_Themes : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void shippedThemes_data()
    {
        QTest::addColumn<QString>("directory");
        for (const QFileInfo& theme : QDir(QStringLiteral(VARN_THEME_REPOSITORY))
                                          .entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot))
            QTest::newRow(qPrintable(theme.fileName())) << theme.filePath();
    }

    /// What is disabled stands back, and its words are no stronger than quiet ones.
    void shippedThemes()
    {
        QFETCH(QString, directory);
        const ReadTheme theme(directory);
        const QColor ground = theme.getColor(QStringLiteral("BackgroundBrush"));
        const auto contrast = [&](const QString& name) {
            return ColorArithmetic::contrast(theme.getColor(name), ground);
        };
        for (const QString& name :
             names("ForegroundBrush InputForegroundBrush ButtonUncheckedForegroundBrush "
                   "ControlBorderBrush InputUncheckedBorderBrush MainBrush "
                   "ButtonDefaultBackgroundBrush PrioritySecondarySubLevel1Brush"))
            QVERIFY2(contrast(name + QStringLiteral("Disabled")) < 0.85 * contrast(name),
                     qPrintable(name));
        for (const QString& name :
             names("ForegroundBrushDisabled InputForegroundBrushDisabled Disabled.WindowText"))
            QVERIFY2(contrast(name) <= 1.01 * contrast(QStringLiteral("ForegroundDisabledBrush")),
                     qPrintable(name));
        QVERIFY(theme.getColor(QStringLiteral("Inactive.Highlight"))
                != theme.getColor(QStringLiteral("Active.Highlight")));
        const QStringList series = AllThemeNames::colors().filter(QLatin1String("Series"));
        const QStringList status =
            names("StatusSuccessColor StatusWarningColor StatusDangerColor StatusInfoColor");
        for (const QString& a : series + status)
            for (const QString& b : series.contains(a) ? series : status) {
                const QColor one = theme.getColor(a);
                const QColor other = theme.getColor(b);
                const int distance = qAbs(one.red() - other.red())
                                     + qAbs(one.green() - other.green())
                                     + qAbs(one.blue() - other.blue());
                const bool differs = series.contains(a)
                                         ? distance > 50
                                         : ColorArithmetic::contrast(one, other) > 1.2;
                QVERIFY2(a == b || differs, qPrintable(a + QLatin1String(" is like ") + b));
            }
        const QColor field =
            theme.getColor(QStringLiteral("InputUncheckedBackgroundBrushDisabled"));
        const QColor placeholder = theme.getColor(QStringLiteral("Disabled.PlaceholderText"));
        QVERIFY(ColorArithmetic::contrast(placeholder, field) > 3);
    }

    /// Whatever background, foreground and accent a theme chooses, the rest follows.
    void seedsAreEnough()
    {
        bool isGiven = false;
        const int given = qEnvironmentVariableIntValue("VARN_SEEDS", &isGiven);
        const TemporaryRepository repository;
        for (const char* file : {"config.xml", "qpaletteMapping.xml"}) {
            QFile dark(QStringLiteral(VARN_THEME_REPOSITORY "/Dark/") + QLatin1String(file));
            QVERIFY(dark.open(QIODevice::ReadOnly));
            repository.write(QStringLiteral("Dark/") + QLatin1String(file), dark.readAll());
        }
        repository.write(QStringLiteral("Seeds/qpaletteMapping.xml"), "<QPalette extends='Dark'/>");
        repository.write(QStringLiteral("Seeds/theme.xml"), "<theme><name>Seeds</name></theme>");
        std::mt19937 random(1);
        int failed = 0;
        QElapsedTimer timer;
        qint64 slowest = 0;
        for (int i = 0; i < (isGiven ? given : 25); ++i) {
            const QByteArray seeds = configuration(randomSeeds(random));
            repository.write(QStringLiteral("Seeds/config.xml"), seeds);
            timer.start();
            const ReadTheme theme(repository.path(QStringLiteral("Seeds")));
            slowest = std::max(slowest, timer.nsecsElapsed());
            QByteArray text = faults(theme);
            const QStringList scale = names(Scale);
            for (int level = 1; level < scale.size(); ++level)
                if (theme.getColor(scale.at(level)) == theme.getColor(scale.at(level - 1)))
                    text += "no step to " + scale.at(level).toUtf8() + '\n';
            if (!text.isEmpty() && ++failed <= (isGiven ? given : 5))
                qWarning().noquote() << QString::fromLatin1(seeds + '\n' + text);
        }
        qInfo("slowest reading: %lld us", slowest / 1000);
        QCOMPARE(failed, 0);
    }
};

QTEST_MAIN(tst_Themes)
#include "tst_Themes.moc"
