#include "Theme.h"
#include "ThemeColorHelper.h"
#include "ThemeFactory.h"
#include "ThemeResources.h"
#include "ThemeSwitcher.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>

#include <array>
#include <benchmark/benchmark.h>
#include <memory>

// What a theme costs: applying it to an application with many widgets, and switching to another one
// until that is painted, beside Qt's Fusion style with style sheets of the same rules; reading its
// variables; and putting icons into its brushes.

using namespace BRELK;

namespace {

std::unique_ptr<Theme> s_theme;
QString s_sheet;
QFont s_font;

QWidget* makeWidget(int index)
{
    switch (index % 10) {
    case 0: return new QPushButton(QStringLiteral("Button"));
    case 1: return new QLineEdit(QStringLiteral("Text"));
    case 2: return new QCheckBox(QStringLiteral("Check"));
    case 3: return new QSpinBox;
    case 4: return new QComboBox;
    case 5: return new QSlider;
    case 6: return new QToolButton;
    case 7: return new QTabBar;
    case 8: return new QListWidget;
    default: return new QLabel(QStringLiteral("Label"));
    }
}

/// A shown window with `count` widgets of ten kinds besides those that they are made of.
std::unique_ptr<QWidget> makeWindow(int count)
{
    constexpr int Columns = 50;
    auto window = std::make_unique<QWidget>();
    auto* layout = new QGridLayout(window.get());
    for (int i = 0; i < count; ++i)
        layout->addWidget(makeWidget(i), i / Columns, i % Columns);
    if (count > 0)
        window->show();
    QApplication::processEvents();
    return window;
}

void reset()
{
    qApp->setStyleSheet({});
    QApplication::setStyle(QStringLiteral("windows"));
    QApplication::setFont(QFont());
    QApplication::processEvents();
}

void applyDark()
{
    s_theme->customize(qApp);
}

void applyFusion()
{
    QApplication::setStyle(QStringLiteral("fusion"));
    qApp->setStyleSheet(s_sheet);
    QApplication::setFont(s_font);
}

void apply(benchmark::State& state, void (*look)())
{
    const std::unique_ptr<QWidget> window = makeWindow(int(state.range(0)));
    for ([[maybe_unused]] const auto iteration : state) {
        state.PauseTiming();
        reset();
        state.ResumeTiming();
        look();
    }
    reset();
}

void applying(const char* name, void (*look)())
{
    constexpr std::array<int, 4> Counts{0, 100, 1000, 5000};
    for (const int count : Counts) {
        benchmark::RegisterBenchmark(name, apply, look)
            ->Arg(count)
            ->Unit(benchmark::kMillisecond)
            ->Iterations(count > 1000 ? 3 : 20);
    }
}

/// A theme without the library: a style sheet, a palette and a font.
struct SheetTheme
{
    QString sheet;
    QPalette palette;
};

SheetTheme s_sheets[2];

void switchSheet(int round)
{
    const SheetTheme& theme = s_sheets[round % 2];
    QApplication::setPalette(theme.palette);
    qApp->setStyleSheet(theme.sheet);
}

void switchTheme(int round)
{
    ThemeSwitcher::getInstance().switchTo(QLatin1String(round % 2 ? "Light" : "Dark"));
}

void switching(benchmark::State& state, void (*start)(), void (*change)(int round))
{
    start();
    const std::unique_ptr<QWidget> window = makeWindow(int(state.range(0)));
    int round = 0;
    for ([[maybe_unused]] const auto iteration : state) {
        change(++round);
        // Layouts and paints wait for timers.
        for (int turn = 0; turn < 4; ++turn)
            QApplication::processEvents();
    }
    reset();
}

void switching(const char* name, void (*start)(), void (*change)(int round))
{
    constexpr std::array<int, 3> Counts{100, 1000, 5000};
    for (const int count : Counts) {
        benchmark::RegisterBenchmark(
            name, [=](benchmark::State& state) { switching(state, start, change); })
            ->Arg(count)
            ->Unit(benchmark::kMillisecond)
            ->Iterations(count > 1000 ? 4 : 10);
    }
}

/// Keeps what the two themes that are switched between look like without the library.
void readSheets()
{
    for (int theme = 0; theme < 2; ++theme) {
        switchTheme(theme);
        s_sheets[theme] = {qApp->styleSheet(), QApplication::style()->standardPalette()};
    }
    switchTheme(0);
}

template <class Function>
void time(const char* name, Function function)
{
    benchmark::RegisterBenchmark(name, [function](benchmark::State& state) {
        for ([[maybe_unused]] const auto iteration : state)
            benchmark::DoNotOptimize(function());
    });
}

void lookups()
{
    using namespace ThemeResources;
    time("lookup/getColor", [] { return getColor(QStringLiteral("BackgroundUpLevel1Color")); });
    time("lookup/getBrush",
         [] { return getBrush(QStringLiteral("ToggleButtonCheckedHoverBackgroundBrush")); });
    time("lookup/getBrush, unknown", [] { return getBrush(QStringLiteral("NoSuchBrush")); });
    time("lookup/getFont", [] { return getFont(QStringLiteral("base")); });
    time("lookup/getOpacity", [] { return getOpacity(QStringLiteral("RubberBandOpacity")); });
    time("lookup/getCornerRadius", [] { return getCornerRadius(QStringLiteral("BaseSize")); });
    time("lookup/getDisabledFactor",
         [] { return getDisabledFactor(QStringLiteral("DarkForegroundDisableFactor")); });
    time("lookup/getThemeVar",
         [] { return getThemeVar(QStringLiteral("colors/BackgroundUpLevel1Color"), {}); });
    time("lookup/getBrushKey",
         [brush = getBrush(QStringLiteral("ForegroundBrush"))] { return getBrushKey(brush); });
    time("lookup/getIcon", [] { return getIcon(QStringLiteral("action.close")); });
    time("lookup/customizeStyleSheet", [] { return customizeStyleSheet(s_sheet); });
}

/// Brushes that no cache has seen.
QBrush nextBrush()
{
    static QRgb s_color = 0xff000000;
    return QColor::fromRgb(++s_color);
}

void recoloring()
{
    const QIcon icon = QIcon::fromTheme(QStringLiteral("action.close"));
    const QBrush brush = ThemeResources::getBrush(QStringLiteral("ForegroundBrush"));
    const auto recolored = [icon](const QBrush& with) {
        return ThemeColorHelper::getModifiedIconWithForegroundBrush(icon, with);
    };
    time("recolor/icon, cold", [recolored] { return recolored(nextBrush()); });
    time("recolor/icon, warm", [recolored, brush] { return recolored(brush); });
    time("recolor/pixmap, cold", [recolored] { return recolored(nextBrush()).pixmap(16); });
    time("recolor/pixmap, warm", [recolored, brush] { return recolored(brush).pixmap(16); });
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const QApplication app(argc, argv);
    ThemeFactory::getInstance().setThemesRepositoryPath(QStringLiteral(VARN_THEME_REPOSITORY));
    s_theme.reset(ThemeFactory::getInstance().getTheme(QStringLiteral("Dark")));
    if (!s_theme)
        return 1;
    applyDark();
    s_sheet = QString(app.styleSheet());
    s_font = QApplication::font();

    readSheets();

    lookups();
    recoloring();
    applying("apply/Dark", applyDark);
    applying("apply/Fusion and the same style sheet", applyFusion);
    switching("switch/Dark and Light", applyDark, switchTheme);
    switching("switch/Fusion and the same style sheets", applyFusion, switchSheet);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
