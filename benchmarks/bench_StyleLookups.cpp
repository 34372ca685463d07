#include "BaseStyle.h"
#include "StyleSubjects.h"
#include "ThemeQApplication.h"

#include <QComboBox>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>

#include <benchmark/benchmark.h>
#include <cstdlib>

// What every painting asks the style for: brushes by name, and the brushes of buttons.

namespace {

using namespace BRELK;
using StyleBenchmark::Exposed;

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

template <class Widget, class Option>
void addButtonBrushes(const char* name, void (*setUp)(Widget&), QStyle::State state = {})
{
    auto widget = std::make_shared<Exposed<Widget>>();
    setUp(*widget);
    widget->ensurePolished();
    Option option;
    widget->initStyleOption(&option);
    option.state |= QStyle::State_Active | QStyle::State_Enabled | state;
    add(name, [=] { return BaseStyle::buttonBrushes(&option, widget.get()); });
}

void addAllButtonBrushes()
{
    using Push = QStyleOptionButton;
    addButtonBrushes<QPushButton, Push>("buttonBrushes/plain", [](QPushButton&) {});
    addButtonBrushes<QPushButton, Push>(
        "buttonBrushes/hovered", [](QPushButton&) {}, QStyle::State_MouseOver);
    addButtonBrushes<QPushButton, Push>("buttonBrushes/disabled",
                                        [](QPushButton& button) { button.setEnabled(false); });
    addButtonBrushes<QPushButton, Push>("buttonBrushes/ofKind", [](QPushButton& button) {
        button.setProperty("ButtonType", QStringLiteral("Tarrin"));
    });
    addButtonBrushes<QToolButton, QStyleOptionToolButton>("buttonBrushes/toolButton",
                                                          [](QToolButton&) {});
    addButtonBrushes<QComboBox, QStyleOptionComboBox>("buttonBrushes/comboBox", [](QComboBox&) {});
    addButtonBrushes<QSpinBox, QStyleOptionSpinBox>("buttonBrushes/spinBox", [](QSpinBox&) {});
    add("buttonBrushes/noWidget",
        [option = Push()] { return BaseStyle::buttonBrushes(&option, nullptr); });
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
