#include "AllThemeNames.h"
#include "BaseTheme.h"
#include "MessageRecorder.h"
#include "ThemeResources.h"

#include <QApplication>
#include <QMetaEnum>
#include <QStyle>
#include <QtTest>

#include <cmath>

using namespace BRELK;

namespace {

const QString ThemeName = QStringLiteral(VARN_TEST_THEME);
const QString Disabled = QStringLiteral("Disabled");

/// The smallest contrast ratios that are good enough.
const double TextContrast = ThemeName == QLatin1String("HighContrast") ? 7 : 4.5;
constexpr double DisabledContrast = 3;
constexpr double ShapeContrast = 3;

QVariantMap group(const char* name)
{
    return ThemeResources::getThemeVar(QLatin1String(name), {}).toMap();
}

/// The theme's color or brush `name`; with a dot, that of a palette: "Inactive.Text".
QColor themed(const QString& name)
{
    const QList<QByteArray> parts = name.toLatin1().split('.');
    const auto groups = QMetaEnum::fromType<QPalette::ColorGroup>();
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    if (parts.size() == 2)
        return qApp->style()->standardPalette().color(
            QPalette::ColorGroup(groups.keyToValue(parts.first())),
            QPalette::ColorRole(roles.keyToValue(parts.last())));
    const QVariant brush = group("brushes").value(name);
    return brush.isValid() ? brush.value<QBrush>().color()
                           : group("colors").value(name).value<QColor>();
}

QStringList names(const QByteArray& text)
{
    return QString::fromLatin1(text).simplified().split(QLatin1Char(' '));
}

/// What controls and words stand on.
const QByteArray Surfaces =
    "BackgroundSubLevel2Brush BackgroundSubLevel1Brush BackgroundBrush BackgroundUpLevel1Brush "
    "TabBackgroundActiveBrush ItemViewBackgroundBrush ItemViewAlternateBackgroundBrush";

QColor over(const QColor& color, const QColor& ground)
{
    const double alpha = color.alphaF();
    const auto mix = [alpha](double above, double below) {
        return above * alpha + below * (1 - alpha);
    };
    return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                            mix(color.blueF(), ground.blueF()));
}

double luminance(const QColor& color)
{
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
           + 0.0722 * linear(color.blueF());
}

/// The contrast ratio of the Web Content Accessibility Guidelines, 1 to 21, of `color` laid over
/// the opaque color `ground`.
double contrast(const QColor& color, const QColor& ground)
{
    const double a = luminance(over(color, ground)) + 0.05;
    const double b = luminance(ground) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

/// Empty if the contrast is good enough, else what is wrong with it.
QByteArray fault(double least, const QString& name, const QColor& color, const QString& groundName,
                 const QColor& ground)
{
    const double found = contrast(color, ground);
    if (color.isValid() && found >= least)
        return {};
    return QStringLiteral("%1 on %2: %3 instead of %4\n")
        .arg(name, groundName)
        .arg(found)
        .arg(least)
        .toLatin1();
}

QStringList withTwins(const QStringList& plain)
{
    return plain
           + QStringList(plain).replaceInStrings(QRegularExpression(QStringLiteral("$")), Disabled);
}

} // namespace

/// Holds one shipped theme to what the style asks of it and to what readers need.
class tst_Themes : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase()
    {
        QPalette foreign;
        for (int role = 0; role < QPalette::NColorRoles; ++role)
            foreign.setColor(QPalette::ColorRole(role), Qt::magenta);
        QApplication::setPalette(foreign);

        const MessageRecorder recorder;
        BaseTheme theme(QStringLiteral(VARN_THEME_REPOSITORY "/") + ThemeName);
        theme.customize(qApp);
        QCOMPARE(theme.getName(), ThemeName);
        QCOMPARE(recorder.take(), QStringList());
        QVERIFY(!qApp->styleSheet().contains(QLatin1Char('@')));
    }

    void everyNameIsDefined()
    {
        const std::pair<const char*, QStringList> groups[] = {
            {"colors", withTwins(AllThemeNames::colors())},
            {"brushes", withTwins(AllThemeNames::brushes())},
            {"fonts", names("small base medium large")},
            {"cornerRadius", names("SmallSize BaseSize MediumSize LargeSize")},
            {"opacities", names("RubberBandOpacity")}};
        for (const auto& [name, wanted] : groups)
            for (const QString& value : wanted)
                QVERIFY2(group(name).contains(value), qPrintable(value));
        for (const char* factor : {"LightForegroundDisableFactor", "LightBackgroundDisableFactor",
                                   "DarkForegroundDisableFactor", "DarkBackgroundDisableFactor"})
            QVERIFY2(ThemeResources::getDisabledFactor(QLatin1String(factor)) > 0, factor);
    }

    void everyPaletteRoleIsMapped()
    {
        const QPalette palette = qApp->style()->standardPalette();
        const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
        for (const auto paletteGroup : {QPalette::Active, QPalette::Inactive})
            for (int role = 0; role < QPalette::NColorRoles; ++role)
                if (role != QPalette::NoRole)
                    QVERIFY2(palette.color(paletteGroup, QPalette::ColorRole(role))
                                 != QColor(Qt::magenta),
                             roles.valueToKey(role));
        QVERIFY(palette.color(QPalette::Inactive, QPalette::Highlight)
                != palette.color(QPalette::Active, QPalette::Highlight));
    }

    void colorsStandOut()
    {
        QFile file(QStringLiteral(VARN_CONTRASTS));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QByteArray text;
        for (const QByteArray& line : file.readAll().split('\n')) {
            const QByteArrayList fields = line.split('|');
            if (fields.size() != 3)
                continue;
            const bool isWords = fields.first().startsWith("words");
            const double least = isWords ? TextContrast : fields.first().toDouble();
            QByteArray grounds = fields.last();
            for (const QString& color : names(fields.at(1)))
                for (const QString& ground : names(grounds.replace("surfaces", Surfaces)))
                    text += fault(least, color, themed(color), ground, themed(ground));
        }
        QVERIFY2(text.isEmpty(), text);
    }

    /// Words and borders of all buttons and inputs, and those of disabled ones, on every surface.
    void controlsAreRead()
    {
        QByteArray text;
        for (const char* family : {"Button", "ToggleButton", "Input"})
            for (const QString& kind : AllThemeNames::kinds())
                for (const QString& state : AllThemeNames::states()) {
                    const QString control = QLatin1String(family) + kind + state;
                    const QColor border = themed(control + QLatin1String("BorderBrush"));
                    const QColor body = themed(control + QLatin1String("BackgroundBrush"));
                    const auto twin = [&control](const char* part) {
                        return themed(control + QLatin1String(part) + Disabled);
                    };
                    for (const QString& surface : names(Surfaces)) {
                        const QColor ground = themed(surface);
                        text += fault(TextContrast, control,
                                      themed(control + QLatin1String("ForegroundBrush")), surface,
                                      over(body, ground));
                        // A border in the color of the body is none.
                        if (border != body)
                            text += fault(ShapeContrast, control + QLatin1String("Border"), border,
                                          surface, ground);
                        text += fault(DisabledContrast, control + Disabled, twin("ForegroundBrush"),
                                      surface, over(twin("BackgroundBrush"), ground));
                    }
                }
        QVERIFY2(text.isEmpty(), text);
    }

    void disabledLooksDisabled()
    {
        const QColor ground = themed(QStringLiteral("BackgroundBrush"));
        for (const QString& name :
             names("ForegroundBrush InputForegroundBrush ButtonUncheckedForegroundBrush "
                   "ControlBorderBrush InputUncheckedBorderBrush MainBrush "
                   "ButtonDefaultBackgroundBrush PrioritySecondarySubLevel1Brush"))
            QVERIFY2(contrast(themed(name + Disabled), ground)
                         < 0.85 * contrast(themed(name), ground),
                     qPrintable(name));
    }

    void seriesAreToldApart()
    {
        const QStringList series = AllThemeNames::colors().filter(QLatin1String("Series"));
        for (const QString& a : series)
            for (const QString& b : series) {
                const QColor one = themed(a);
                const QColor other = themed(b);
                const int distance = qAbs(one.red() - other.red())
                                     + qAbs(one.green() - other.green())
                                     + qAbs(one.blue() - other.blue());
                QVERIFY2(a == b || distance > 50, qPrintable(a + QLatin1String(" is like ") + b));
            }
    }

    void documentationNamesThemAll()
    {
        QFile file(QStringLiteral(VARN_DOCS "/theme-names.md"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        for (const QString& name : AllThemeNames::colors() + AllThemeNames::plainBrushes()
                                       + AllThemeNames::kinds().mid(1))
            QVERIFY2(text.contains(QString(QLatin1Char('`') + name + QLatin1Char('`'))),
                     qPrintable(name));
    }
};

QTEST_MAIN(tst_Themes)
#include "tst_Themes.moc"
