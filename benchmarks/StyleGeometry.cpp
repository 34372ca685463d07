#include "StyleCases.h"
#include "StyleSubjects.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCommandLinkButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMetaEnum>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTableView>
#include <QToolButton>

namespace StyleBenchmark {

namespace {

/// Every value of one of QStyle's enums below its custom ones.
template <class Enum>
std::vector<Enum> allOf()
{
    constexpr unsigned CustomBase = 0xf0000000;
    const auto meta = QMetaEnum::fromType<Enum>();
    std::vector<Enum> values;
    for (int i = 0; i < meta.keyCount(); ++i) {
        if (unsigned(meta.value(i)) < CustomBase)
            values.push_back(Enum(meta.value(i)));
    }
    return values;
}

Work askMetrics()
{
    auto button = std::make_shared<QPushButton>();
    button->ensurePolished();
    const auto metrics = allOf<QStyle::PixelMetric>();
    return {[=] {
                for (const auto metric : metrics)
                    button->style()->pixelMetric(metric, nullptr, button.get());
            },
            double(metrics.size())};
}

Work askHints()
{
    auto button = std::make_shared<QPushButton>();
    button->ensurePolished();
    const auto hints = allOf<QStyle::StyleHint>();
    return {[=] {
                for (const auto hint : hints)
                    button->style()->styleHint(hint, nullptr, button.get());
            },
            double(hints.size())};
}

template <class Widget, class Option, class Fill>
Work askSize(QStyle::ContentsType type, Fill fill)
{
    auto widget = std::make_shared<Exposed<Widget>>();
    auto option = std::make_shared<Option>();
    fill(*widget, *option);
    widget->ensurePolished();
    return {[=] {
        widget->style()->sizeFromContents(type, option.get(), QSize(60, 16), widget.get());
    }};
}

template <class Widget, class Option>
Work askParts(QStyle::ComplexControl control, std::vector<QStyle::SubControl> parts)
{
    auto widget = std::make_shared<Exposed<Widget>>();
    auto option = std::make_shared<Option>();
    widget->resize(140, 28);
    widget->ensurePolished();
    widget->initStyleOption(option.get());
    const auto count = double(parts.size());
    return {[=, parts = std::move(parts)] {
                for (const auto part : parts)
                    widget->style()->subControlRect(control, option.get(), part, widget.get());
            },
            count};
}

constexpr auto FillByWidget = [](auto& widget, auto& option) { widget.initStyleOption(&option); };

void addSizes(std::vector<Case>& cases)
{
    const auto add = [&](const char* name, Work (*prepare)()) {
        cases.push_back({std::string("geometry/Size/") + name, prepare});
    };
    add("PushButton", [] {
        return askSize<QPushButton, QStyleOptionButton>(QStyle::CT_PushButton, FillByWidget);
    });
    add("CheckBox",
        [] { return askSize<QCheckBox, QStyleOptionButton>(QStyle::CT_CheckBox, FillByWidget); });
    add("ComboBox",
        [] { return askSize<QComboBox, QStyleOptionComboBox>(QStyle::CT_ComboBox, FillByWidget); });
    add("LineEdit",
        [] { return askSize<QLineEdit, QStyleOptionFrame>(QStyle::CT_LineEdit, FillByWidget); });
    add("SpinBox",
        [] { return askSize<QSpinBox, QStyleOptionSpinBox>(QStyle::CT_SpinBox, FillByWidget); });
    add("ToolButton", [] {
        return askSize<QToolButton, QStyleOptionToolButton>(QStyle::CT_ToolButton, FillByWidget);
    });
    add("Tab", [] {
        return askSize<QTabBar, QStyleOptionTab>(QStyle::CT_TabBarTab, [](auto& bar, auto& option) {
            bar.addTab(QStringLiteral("Tab"));
            bar.initStyleOption(&option, 0);
        });
    });
    add("MenuItem", [] {
        return askSize<QMenu, QStyleOptionMenuItem>(
            QStyle::CT_MenuItem, [](auto& menu, auto& option) {
                menu.initStyleOption(&option, menu.addAction(QStringLiteral("Item")));
            });
    });
}

void addParts(std::vector<Case>& cases)
{
    const auto add = [&](const char* name, Work (*prepare)()) {
        cases.push_back({std::string("geometry/Parts/") + name, prepare});
    };
    add("ComboBox", [] {
        return askParts<QComboBox, QStyleOptionComboBox>(
            QStyle::CC_ComboBox, {QStyle::SC_ComboBoxArrow, QStyle::SC_ComboBoxEditField});
    });
    add("SpinBox", [] {
        return askParts<QSpinBox, QStyleOptionSpinBox>(
            QStyle::CC_SpinBox,
            {QStyle::SC_SpinBoxUp, QStyle::SC_SpinBoxDown, QStyle::SC_SpinBoxEditField});
    });
    add("Slider", [] {
        return askParts<QSlider, QStyleOptionSlider>(
            QStyle::CC_Slider, {QStyle::SC_SliderGroove, QStyle::SC_SliderHandle});
    });
    add("ScrollBar", [] {
        return askParts<QScrollBar, QStyleOptionSlider>(
            QStyle::CC_ScrollBar, {QStyle::SC_ScrollBarGroove, QStyle::SC_ScrollBarSlider,
                                   QStyle::SC_ScrollBarAddLine, QStyle::SC_ScrollBarSubLine});
    });
    add("GroupBox", [] {
        return askParts<QGroupBox, QStyleOptionGroupBox>(
            QStyle::CC_GroupBox, {QStyle::SC_GroupBoxContents, QStyle::SC_GroupBoxFrame,
                                  QStyle::SC_GroupBoxLabel, QStyle::SC_GroupBoxCheckBox});
    });
}

template <class Widget>
Work polish()
{
    auto widget = std::make_shared<Widget>();
    widget->ensurePolished();
    return {[=] { widget->style()->polish(widget.get()); }};
}

template <class Widget>
Work create()
{
    return {[] {
        Widget widget;
        widget.ensurePolished();
    }};
}

template <class Widget>
void addPolishingOf(std::vector<Case>& cases)
{
    const std::string name = Widget::staticMetaObject.className();
    cases.push_back({"polishing/" + name + "/polished", polish<Widget>});
    cases.push_back({"polishing/" + name + "/created", create<Widget>});
}

} // namespace

void addGeometry(std::vector<Case>& cases)
{
    cases.push_back({"geometry/Metrics/all", askMetrics});
    cases.push_back({"geometry/Hints/all", askHints});
    addSizes(cases);
    addParts(cases);
}

void addPolishing(std::vector<Case>& cases)
{
    addPolishingOf<QWidget>(cases);
    addPolishingOf<QLabel>(cases);
    addPolishingOf<QPushButton>(cases);
    addPolishingOf<QToolButton>(cases);
    addPolishingOf<QCheckBox>(cases);
    addPolishingOf<QLineEdit>(cases);
    addPolishingOf<QComboBox>(cases);
    addPolishingOf<QSpinBox>(cases);
    addPolishingOf<QTabBar>(cases);
    addPolishingOf<QTableView>(cases);
    addPolishingOf<QCommandLinkButton>(cases);
}

} // namespace StyleBenchmark
