#include "BaseStyle.h"
#include "StyleOptions.h"
#include "ThemeQApplication.h"

#include <QStyleOption>

#include <benchmark/benchmark.h>
#include <cstdlib>

// What every painting asks the style for: brushes by name, and the brushes of buttons.

namespace {

using namespace BRELK;
using namespace StyleOptions;

/// A closure with a name.
template <class Function>
void add(const char* name, Function function)
{
    benchmark::RegisterBenchmark(name, [=](benchmark::State& state) {
        for ([[maybe_unused]] const auto round : state)
            benchmark::DoNotOptimize(function());
    });
}

void addLookups()
{
    add("getBrush/enabled", [] { return BaseStyle::getBrush(QStringLiteral("MainBrush"), true); });
    add("getBrush/disabled",
        [] { return BaseStyle::getBrush(QStringLiteral("MainBrush"), false); });
    add("getBrush/missing",
        [] { return BaseStyle::getBrush(QStringLiteral("NoSuchBrush"), true); });
    add("getBorderBrush", [] { return BaseStyle::getBorderBrush(true); });
}

void addAllButtonBrushes()
{
    const struct
    {
        const char* name;
        const char* element;
        const char* settings;
        State state = AtRest;
    } buttons[] = {{"plain", "CE_PushButton", ""},
                   {"hovered", "CE_PushButton", "", Hovered},
                   {"disabled", "CE_PushButton", "", Disabled},
                   {"ofKind", "CE_PushButton", "ButtonType=Tarrin"},
                   {"toolButton", "CC_ToolButton", "popupMode=DelayedPopup"},
                   {"comboBox", "CC_ComboBox", ""},
                   {"spinBox", "CC_SpinBox", ""}};

    for (const auto& button : buttons) {
        const Sample sample =
            sampleNamed(button.element, settingsOf(button.settings), button.state);
        add((std::string("buttonBrushes/") + button.name).c_str(),
            [=] { return BaseStyle::buttonBrushes(sample.option.get(), sample.widget.get()); });
    }
    add("buttonBrushes/noWidget",
        [option = QStyleOptionButton()] { return BaseStyle::buttonBrushes(&option, nullptr); });
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const ThemeQApplication application(argc, argv, QStringLiteral("Dark"),
                                        QStringLiteral(VARN_THEME_REPOSITORY));
    addLookups();
    addAllButtonBrushes();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
