#include "AllThemeNames.h"
#include "BaseTheme.h"
#include "ColorMetrics.h"
#include "MessageRecorder.h"
#include "ThemeResources.h"

#include <QApplication>
#include <QMetaEnum>
#include <QStyle>
#include <QtTest>

using namespace BRELK;
using namespace ColorMetrics;

namespace {

const QString ThemeName = QStringLiteral(VARN_TEST_THEME);
const QString Disabled = QStringLiteral("Disabled");

/// The smallest contrast ratios that are good enough.
const double TextContrast = ThemeName == QLatin1String("HighContrast") ? 7 : 4.5;
/// Of words of less weight, such as subtitles.
constexpr double SubduedContrast = 4.5;
constexpr double DisabledContrast = 3;
/// Of what is recognised by its shape: borders, marks, thumbs.
constexpr double ShapeContrast = 3;

QVariantMap group(const char* name)
{
    return ThemeResources::getThemeVar(QLatin1String(name), {}).toMap();
}

/// The theme's color or brush `name`.
QColor themed(const QString& name)
{
    const bool isBrush =
        name.endsWith(QLatin1String("Brush")) || name.endsWith(QLatin1String("BrushDisabled"));
    return isBrush ? group("brushes").value(name).value<QBrush>().color()
                   : group("colors").value(name).value<QColor>();
}

QStringList names(const char* text)
{
    return QString::fromLatin1(text).simplified().split(QLatin1Char(' '));
}

/// What controls and words stand on.
const QStringList& surfaces()
{
    static const QStringList sSurfaces = names(
        "BackgroundSubLevel2Brush BackgroundSubLevel1Brush BackgroundBrush BackgroundUpLevel1Brush "
        "TabBackgroundActiveBrush ItemViewBackgroundBrush ItemViewAlternateBackgroundBrush");
    return sSurfaces;
}

/// What users write into.
QStringList fields()
{
    return names("InputBackgroundBrush InputBackgroundActiveBrush InputUncheckedBackgroundBrush");
}

/// Collects the pairs that are too close to one another.
class Contrasts
{
public:
    void require(double least, const QString& name, const QColor& color, const QString& groundName,
                 const QColor& ground)
    {
        const double found = contrast(color, ground);
        if (!(found >= least) || !color.isValid())
            m_failures.append(QStringLiteral("%1 on %2: %3 instead of %4")
                                  .arg(name, groundName)
                                  .arg(found, 0, 'f', 2)
                                  .arg(least));
    }

    void require(double least, const QStringList& colors, const QStringList& grounds)
    {
        for (const QString& color : colors) {
            for (const QString& ground : grounds)
                require(least, color, themed(color), ground, themed(ground));
        }
    }

    QByteArray getFailures() const { return m_failures.join(QLatin1Char('\n')).toLocal8Bit(); }

private:
    QStringList m_failures;
};

#define VERIFY_CONTRASTS(contrasts)                                                                \
    QVERIFY2((contrasts).getFailures().isEmpty(), (contrasts).getFailures().constData())

} // namespace

/// Holds one shipped theme to what the style asks of it and to what readers need.
class tst_Themes : public QObject
{
    Q_OBJECT

private:
    static QStringList twinsOf(const QStringList& plain)
    {
        QStringList twins;
        for (const QString& name : plain)
            twins.append(QString(name + Disabled));
        return twins;
    }

    static QStringList missing(const QStringList& names, const char* inGroup)
    {
        const QVariantMap found = group(inGroup);
        QStringList absent;
        for (const QString& name : names)
            if (!found.contains(name))
                absent.append(name);
        return absent;
    }

    /// Words, border and focus mark of a button, on every surface.
    static void requireButton(Contrasts& contrasts, const QString& button)
    {
        const QColor body = themed(button + QLatin1String("BackgroundBrush"));
        const QColor border = themed(button + QLatin1String("BorderBrush"));
        for (const QString& surface : surfaces()) {
            const QColor ground = themed(surface);
            contrasts.require(TextContrast, button,
                              themed(button + QLatin1String("ForegroundBrush")), surface,
                              over(body, ground));
            contrasts.require(ShapeContrast, button + QLatin1String(" focus"),
                              themed(QStringLiteral("ForegroundBrush")), surface,
                              over(body, ground));
            // A border in the color of the body is none.
            if (border != body)
                contrasts.require(ShapeContrast, button + QLatin1String(" border"), border, surface,
                                  ground);
            contrasts.require(
                DisabledContrast, button + QLatin1String(" disabled"),
                themed(button + QLatin1String("ForegroundBrushDisabled")), surface,
                over(themed(button + QLatin1String("BackgroundBrushDisabled")), ground));
        }
    }

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
        QCOMPARE(recorder.messages(), QStringList());
    }

    void everyNameIsDefined()
    {
        const QStringList colors = AllThemeNames::colors();
        const QStringList brushes = AllThemeNames::brushes();
        QCOMPARE(missing(colors + twinsOf(colors), "colors"), QStringList());
        QCOMPARE(missing(brushes + twinsOf(brushes), "brushes"), QStringList());
        QCOMPARE(missing(names("small base medium large"), "fonts"), QStringList());
        QCOMPARE(missing(names("SmallSize BaseSize MediumSize LargeSize"), "cornerRadius"),
                 QStringList());
        QCOMPARE(missing(names("RubberBandOpacity"), "opacities"), QStringList());
        for (const char* factor : {"LightForegroundDisableFactor", "LightBackgroundDisableFactor",
                                   "DarkForegroundDisableFactor", "DarkBackgroundDisableFactor"})
            QVERIFY2(ThemeResources::getDisabledFactor(QLatin1String(factor)) > 0, factor);
    }

    void styleSheetHoldsNoPlaceholder() { QVERIFY(!qApp->styleSheet().contains(QLatin1Char('@'))); }

    void everyPaletteRoleIsMapped()
    {
        const QPalette palette = qApp->style()->standardPalette();
        const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
        for (const auto paletteGroup : {QPalette::Active, QPalette::Inactive}) {
            for (int role = 0; role < QPalette::NColorRoles; ++role) {
                if (role != QPalette::NoRole)
                    QVERIFY2(palette.color(paletteGroup, QPalette::ColorRole(role))
                                 != QColor(Qt::magenta),
                             roles.valueToKey(role));
            }
        }
        QVERIFY(palette.color(QPalette::Inactive, QPalette::Highlight)
                != palette.color(QPalette::Active, QPalette::Highlight));
    }

    void paletteIsRead()
    {
        using P = QPalette;
        constexpr std::pair<P::ColorRole, P::ColorRole> Pairs[] = {
            {P::WindowText, P::Window},
            {P::WindowText, P::Light},
            {P::Text, P::Base},
            {P::Text, P::AlternateBase},
            {P::ButtonText, P::Button},
            {P::ToolTipText, P::ToolTipBase},
            {P::HighlightedText, P::Highlight}};
        const QPalette palette = qApp->style()->standardPalette();
        const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
        Contrasts contrasts;
        for (const auto paletteGroup : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            const bool isDisabled = paletteGroup == QPalette::Disabled;
            for (const auto& [text, ground] : Pairs) {
                // Tool tips are never disabled.
                if (!isDisabled || text != QPalette::ToolTipText)
                    contrasts.require(isDisabled ? DisabledContrast : TextContrast,
                                      QLatin1String(roles.valueToKey(text)),
                                      palette.color(paletteGroup, text),
                                      QLatin1String(roles.valueToKey(ground)),
                                      palette.color(paletteGroup, ground));
            }
        }
        // Views without focus in the active window select in another brush, not in another role.
        contrasts.require(TextContrast, QStringLiteral("HighlightedText"),
                          palette.color(QPalette::HighlightedText),
                          QStringLiteral("MainSubLevel1Brush"),
                          themed(QStringLiteral("MainSubLevel1Brush")));
        for (const auto role : {QPalette::Link, QPalette::LinkVisited, QPalette::PlaceholderText})
            contrasts.require(SubduedContrast, QLatin1String(roles.valueToKey(role)),
                              palette.color(role), QStringLiteral("Base"),
                              palette.color(QPalette::Base));
        VERIFY_CONTRASTS(contrasts);
    }

    void colorsStandOut_data()
    {
        QTest::addColumn<double>("contrast");
        QTest::addColumn<QStringList>("colors");
        QTest::addColumn<QStringList>("grounds");
        const auto row = [](const char* title, double contrast, const char* colors,
                            const QStringList& grounds) {
            QTest::newRow(title) << contrast << names(colors) << grounds;
        };
        row("words on surfaces", TextContrast,
            "ForegroundBrush ForegroundSubLevel1Color ForegroundUpLevel1Color", surfaces());
        row("subtitles", SubduedContrast, "ForegroundDisabledBrush",
            surfaces() + names("TabBackgroundBrush"));
        row("tabs and headers", TextContrast, "ForegroundBrush TabForegroundMouseOverBrush",
            names("TabBackgroundBrush TabBackgroundActiveBrush ExpanderHeaderBrush"));
        row("marked tabs", TextContrast, "MainUpLevel1Color",
            names("TabBackgroundBrush TabBackgroundActiveBrush"));
        row("statuses", TextContrast,
            "ForegroundColor ForegroundSubLevel1Color ForegroundUpLevel1Color",
            names("StatusConfigColor"));
        row("disabled words", DisabledContrast,
            "ForegroundBrushDisabled ForegroundDisabledBrushDisabled",
            surfaces() + twinsOf(surfaces()));
        row("shapes on surfaces", ShapeContrast,
            "ControlBorderBrush ForegroundMouseOverBrush InputBorderBrush InputBorderActiveBrush "
            "MainBrush TabBorderMouseOverBrush PrioritySecondarySubLevel1Brush StatusDangerColor "
            "StatusSuccessColor StatusWarningColor StatusInfoColor",
            surfaces());
        row("marks of controls", ShapeContrast,
            "ControlBorderBrush ForegroundMouseOverBrush MainBrush ForegroundBrush "
            "SwitchEllipseBrush SwitchForegroundCheckedEllipseBrush",
            names("ControlBackgroundBrush"));
        row("sliders", ShapeContrast,
            "MainBrush PrioritySecondarySubLevel1Brush InputForegroundBrush "
            "SliderThumbNailHoverBrush SliderThumbNailPressedBrush",
            names("GrooveBackgroundBrush"));
        row("high contrast", ShapeContrast,
            "HighContrastBorderBrush MainBrush InputForegroundBrush",
            names("HighContrastBackgroundBrush"));
        row("inputs", TextContrast, "InputForegroundBrush", fields());
        row("disabled inputs", DisabledContrast, "InputForegroundBrushDisabled", twinsOf(fields()));
        // Buttons of a workflow have no body and write in the colors of borders and of the accent.
        row("workflow", TextContrast, "MainBrush ForegroundBrush", names("ListBackgroundBrush"));
        row("workflow borders", ShapeContrast, "ListBorderBrush PrioritySecondaryUpLevel1Brush",
            names("ListBackgroundBrush"));
        // Flat buttons change their words when they are pressed.
        for (const char* button :
             {"ButtonHighlighted", "ButtonTarrin", "ToggleButtonHighlighted", "ToggleButtonTarrin"})
            for (const char* state : {"Checked", "Default", "Unchecked"})
                QTest::addRow("flat %s%s", button, state)
                    << TextContrast << names("ButtonHighlightedUncheckedHoverForegroundBrush")
                    << QStringList{QLatin1String(button) + QLatin1String(state)
                                   + QLatin1String("PressedBackgroundBrush")};
    }

    void colorsStandOut()
    {
        QFETCH(double, contrast);
        QFETCH(QStringList, colors);
        QFETCH(QStringList, grounds);
        Contrasts contrasts;
        contrasts.require(contrast, colors, grounds);
        VERIFY_CONTRASTS(contrasts);
    }

    void buttonsAreRead()
    {
        Contrasts contrasts;
        for (const char* family : {"Button", "ToggleButton"})
            for (const QString& kind : AllThemeNames::kinds())
                for (const QString& state : AllThemeNames::states())
                    requireButton(contrasts, QLatin1String(family) + kind + state);
        VERIFY_CONTRASTS(contrasts);
    }

    void workflowButtonsAreRead()
    {
        const QStringList list = names("ListBackgroundBrush");
        Contrasts contrasts;
        for (const QString& state : AllThemeNames::states()) {
            const QString words = QLatin1String("Button") + state + QLatin1String("BorderBrush");
            contrasts.require(TextContrast, {words}, list);
            contrasts.require(DisabledContrast, {words + Disabled}, twinsOf(list));
        }
        VERIFY_CONTRASTS(contrasts);
    }

    void inputsAreRead()
    {
        Contrasts contrasts;
        for (const QString& kind : AllThemeNames::kinds())
            for (const QString& state : AllThemeNames::states()) {
                const QString input = QLatin1String("Input") + kind + state;
                const QString ground = input + QLatin1String("BackgroundBrush");
                const QString words = input + QLatin1String("ForegroundBrush");
                contrasts.require(TextContrast, {words}, {ground});
                contrasts.require(DisabledContrast, {words + Disabled}, {ground + Disabled});
                contrasts.require(ShapeContrast, {input + QLatin1String("BorderBrush")},
                                  surfaces() + QStringList{ground});
                // The frame in focus, and the arrows of spin boxes under the pointer and pressed.
                contrasts.require(ShapeContrast, names("MainBrush MainSubLevel1Brush"), {ground});
            }
        VERIFY_CONTRASTS(contrasts);
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
        constexpr double LeastDistance = 18;
        const QStringList series = AllThemeNames::colors().filter(QLatin1String("Series"));
        QCOMPARE(series.size(), 11);
        Contrasts contrasts;
        contrasts.require(ShapeContrast, series, surfaces());
        VERIFY_CONTRASTS(contrasts);
        for (const Vision vision : AllVisions) {
            for (const QString& a : series) {
                for (const QString& b : series) {
                    if (a < b && distanceInLab(themed(a), themed(b), vision) < LeastDistance)
                        QFAIL(qPrintable(a + QLatin1String(" looks like ") + b));
                }
            }
        }
    }

    void documentationNamesThemAll()
    {
        QFile file(QStringLiteral(VARN_DOCS "/theme-names.md"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        QStringList unnamed;
        for (const QString& name : AllThemeNames::colors() + AllThemeNames::plainBrushes()
                                       + AllThemeNames::kinds().mid(1)) {
            if (!text.contains(QString(QLatin1Char('`') + name + QLatin1Char('`'))))
                unnamed.append(name);
        }
        QCOMPARE(unnamed, QStringList());
    }
};

QTEST_MAIN(tst_Themes)
#include "tst_Themes.moc"
