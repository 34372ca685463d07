#include "StyleCases.h"
#include "StyleSubjects.h"

#include <QtWidgets>

namespace StyleBenchmark {

namespace {

using namespace StyleOptions;

template <class Enum, class Ask>
Work askAll(Ask ask)
{
    auto button = std::make_shared<QPushButton>();
    button->ensurePolished();
    const auto values = all<Enum>();
    return {[=] {
                for (const auto value : values)
                    ask(*button, value);
            },
            double(values.size())};
}

Work askMetrics()
{
    return askAll<QStyle::PixelMetric>([](const QWidget& widget, QStyle::PixelMetric metric) {
        widget.style()->pixelMetric(metric, nullptr, &widget);
    });
}

Work askHints()
{
    return askAll<QStyle::StyleHint>([](const QWidget& widget, QStyle::StyleHint hint) {
        widget.style()->styleHint(hint, nullptr, &widget);
    });
}

Work askSize(QStyle::ContentsType type)
{
    const Sample sample = sampleNamed(nameOf(type), settingsOf("icon=none"));
    return {[=] {
        sample.widget->style()->sizeFromContents(type, sample.option.get(), QSize(60, 16),
                                                 sample.widget.get());
    }};
}

using Parts = QVector<QStyle::SubControl>;

Work askParts(QStyle::ComplexControl control, const Parts& parts)
{
    const Sample sample = sampleNamed(nameOf(control), settingsOf("size=140x28"));
    const auto* option = static_cast<const QStyleOptionComplex*>(sample.option.get());
    return {[=] {
                for (const auto part : parts)
                    sample.widget->style()->subControlRect(control, option, part,
                                                           sample.widget.get());
            },
            double(parts.size())};
}

void addSizes(std::vector<Case>& cases)
{
    for (const auto type :
         {QStyle::CT_PushButton, QStyle::CT_CheckBox, QStyle::CT_ComboBox, QStyle::CT_LineEdit,
          QStyle::CT_SpinBox, QStyle::CT_ToolButton, QStyle::CT_TabBarTab, QStyle::CT_MenuItem})
        cases.push_back(
            {std::string("geometry/Size/") + (nameOf(type) + 3), [=] { return askSize(type); }});
}

void addParts(std::vector<Case>& cases)
{
    const std::pair<QStyle::ComplexControl, Parts> controls[] = {
        {QStyle::CC_ComboBox, {QStyle::SC_ComboBoxArrow, QStyle::SC_ComboBoxEditField}},
        {QStyle::CC_SpinBox,
         {QStyle::SC_SpinBoxUp, QStyle::SC_SpinBoxDown, QStyle::SC_SpinBoxEditField}},
        {QStyle::CC_Slider, {QStyle::SC_SliderGroove, QStyle::SC_SliderHandle}},
        {QStyle::CC_ScrollBar,
         {QStyle::SC_ScrollBarGroove, QStyle::SC_ScrollBarSlider, QStyle::SC_ScrollBarAddLine,
          QStyle::SC_ScrollBarSubLine}},
        {QStyle::CC_GroupBox,
         {QStyle::SC_GroupBoxContents, QStyle::SC_GroupBoxFrame, QStyle::SC_GroupBoxLabel,
          QStyle::SC_GroupBoxCheckBox}}};
    for (const auto& [control, parts] : controls)
        cases.push_back({std::string("geometry/Parts/") + (nameOf(control) + 3),
                         [control = control, parts = parts] { return askParts(control, parts); }});
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
