#include "StyleControls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>

namespace StyleBenchmark {

namespace {

constexpr QSize FieldSize(140, 28);
constexpr QSize BarSize(200, 20);
constexpr QSize SliderSize(200, 24);

template <class Button>
void setText(Button& button)
{
    button.setText(QStringLiteral("Button"));
}

template <class Button>
void setChecked(Button& button)
{
    setText(button);
    button.setCheckable(true);
    button.setChecked(true);
}

void addPushButtons(std::vector<Case>& cases)
{
    using Push = Control<QPushButton, QStyleOptionButton>;
    const auto variant = [](const char* name, void (*setUp)(Exposed<QPushButton>&)) {
        return Push{name, ButtonSize, setUp, fillByWidget<QPushButton, QStyleOptionButton>,
                    draw<QStyle::CE_PushButton, QStyleOptionButton>};
    };
    add(cases, ButtonStates, variant("PushButton", setText));
    add(cases, ButtonStates, variant("PushButtonChecked", setChecked));
    add(cases, ButtonStates, variant("PushButtonDefault", [](Exposed<QPushButton>& button) {
            setText(button);
            button.setAutoDefault(true);
            button.setDefault(true);
        }));
    add(cases, ButtonStates, variant("PushButtonFlat", [](Exposed<QPushButton>& button) {
            setText(button);
            button.setFlat(true);
        }));
    add(cases, PlainStates, variant("PushButtonIcon", [](Exposed<QPushButton>& button) {
            setText(button);
            button.setIcon(sampleIcon());
        }));
    add(cases, PlainStates, variant("PushButtonMenu", [](Exposed<QPushButton>& button) {
            setText(button);
            button.setMenu(new QMenu(&button));
        }));
}

void addToolButtons(std::vector<Case>& cases)
{
    using Tool = Control<QToolButton, QStyleOptionToolButton>;
    const auto variant = [](const char* name, QSize size, void (*setUp)(Exposed<QToolButton>&)) {
        return Tool{name,
                    size,
                    setUp,
                    fillByWidget<QToolButton, QStyleOptionToolButton>,
                    draw<QStyle::CC_ToolButton, QStyleOptionToolButton>,
                    QStyle::SC_ToolButton};
    };
    add(cases, ButtonStates, variant("ToolButton", {28, 28}, [](Exposed<QToolButton>& button) {
            button.setIcon(sampleIcon());
        }));
    add(cases, ButtonStates, variant("ToolButtonFlat", {28, 28}, [](Exposed<QToolButton>& button) {
            button.setIcon(sampleIcon());
            button.setAutoRaise(true);
        }));
    add(cases, PlainStates,
        variant("ToolButtonChecked", {28, 28}, [](Exposed<QToolButton>& button) {
            setChecked(button);
            button.setIcon(sampleIcon());
        }));
    add(cases, PlainStates, variant("ToolButtonText", ButtonSize, [](Exposed<QToolButton>& button) {
            setText(button);
            button.setIcon(sampleIcon());
            button.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        }));
    add(cases, ButtonStates, variant("ToolButtonMenu", {44, 28}, [](Exposed<QToolButton>& button) {
            button.setIcon(sampleIcon());
            button.setMenu(new QMenu(&button));
            button.setPopupMode(QToolButton::MenuButtonPopup);
        }));
    add(cases, PlainStates, variant("ToolButtonArrow", {20, 20}, [](Exposed<QToolButton>& button) {
            button.setArrowType(Qt::RightArrow);
        }));
}

void addChoices(std::vector<Case>& cases)
{
    using Check = Control<QCheckBox, QStyleOptionButton>;
    const auto check = [](const char* name, void (*setUp)(Exposed<QCheckBox>&)) {
        return Check{name,
                     {120, 20},
                     setUp,
                     fillByWidget<QCheckBox, QStyleOptionButton>,
                     draw<QStyle::CE_CheckBox, QStyleOptionButton>};
    };
    add(cases, ButtonStates, check("CheckBox", setText));
    add(cases, ButtonStates, check("CheckBoxChecked", setChecked));
    add(cases, PlainStates, check("CheckBoxPartial", [](Exposed<QCheckBox>& box) {
            setText(box);
            box.setTristate(true);
            box.setCheckState(Qt::PartiallyChecked);
        }));
    using Radio = Control<QRadioButton, QStyleOptionButton>;
    const auto radio = [](const char* name, void (*setUp)(Exposed<QRadioButton>&)) {
        return Radio{name,
                     {120, 20},
                     setUp,
                     fillByWidget<QRadioButton, QStyleOptionButton>,
                     draw<QStyle::CE_RadioButton, QStyleOptionButton>};
    };
    add(cases, ButtonStates, radio("RadioButton", setText));
    add(cases, ButtonStates, radio("RadioButtonChecked", setChecked));
}

void paintComboBox(const QStyle& style, const QStyleOptionComboBox& option, QPainter& painter,
                   const QWidget* widget)
{
    style.drawComplexControl(QStyle::CC_ComboBox, &option, &painter, widget);
    style.drawControl(QStyle::CE_ComboBoxLabel, &option, &painter, widget);
}

void addInputs(std::vector<Case>& cases)
{
    add(cases, InputStates,
        Control<QLineEdit, QStyleOptionFrame>{"LineEditPanel", FieldSize,
                                              [](Exposed<QLineEdit>&) {},
                                              fillByWidget<QLineEdit, QStyleOptionFrame>,
                                              draw<QStyle::PE_PanelLineEdit, QStyleOptionFrame>});
    const States inputs{Normal, Hovered, Pressed, Focused, Disabled};
    using Combo = Control<QComboBox, QStyleOptionComboBox>;
    add(cases, inputs,
        Combo{"ComboBox", FieldSize,
              [](Exposed<QComboBox>& box) { box.addItem(QStringLiteral("Item")); },
              fillByWidget<QComboBox, QStyleOptionComboBox>, paintComboBox,
              QStyle::SC_ComboBoxArrow});
    add(cases, inputs,
        Combo{"ComboBoxEditable", FieldSize,
              [](Exposed<QComboBox>& box) {
                  box.setEditable(true);
                  box.addItem(QStringLiteral("Item"));
              },
              fillByWidget<QComboBox, QStyleOptionComboBox>,
              draw<QStyle::CC_ComboBox, QStyleOptionComboBox>, QStyle::SC_ComboBoxArrow});
    using Spin = Control<QSpinBox, QStyleOptionSpinBox>;
    add(cases, inputs,
        Spin{"SpinBox", FieldSize, [](Exposed<QSpinBox>& box) { box.setValue(30); },
             fillByWidget<QSpinBox, QStyleOptionSpinBox>,
             draw<QStyle::CC_SpinBox, QStyleOptionSpinBox>, QStyle::SC_SpinBoxUp});
    add(cases, PlainStates,
        Spin{"SpinBoxPlusMinus", FieldSize,
             [](Exposed<QSpinBox>& box) { box.setButtonSymbols(QSpinBox::PlusMinus); },
             fillByWidget<QSpinBox, QStyleOptionSpinBox>,
             draw<QStyle::CC_SpinBox, QStyleOptionSpinBox>, QStyle::SC_SpinBoxUp});
}

template <class Slider, Qt::Orientation Orientation>
void setRange(Exposed<Slider>& slider)
{
    slider.setOrientation(Orientation);
    slider.setValue(30);
}

// Sliders and scroll bars name their parts only when they paint.

void fillSlider(const Exposed<QSlider>& slider, QStyleOptionSlider& option)
{
    slider.initStyleOption(&option);
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    if (slider.tickPosition() != QSlider::NoTicks)
        option.subControls |= QStyle::SC_SliderTickmarks;
}

void fillScrollBar(const Exposed<QScrollBar>& bar, QStyleOptionSlider& option)
{
    bar.initStyleOption(&option);
    option.subControls = QStyle::SC_All;
}

void addSliders(std::vector<Case>& cases)
{
    const States states{Normal, Hovered, Pressed, Disabled};
    using Slider = Control<QSlider, QStyleOptionSlider>;
    const auto slider = [](const char* name, QSize size, void (*setUp)(Exposed<QSlider>&)) {
        return Slider{name,
                      size,
                      setUp,
                      fillSlider,
                      draw<QStyle::CC_Slider, QStyleOptionSlider>,
                      QStyle::SC_SliderHandle};
    };
    add(cases, InputStates, slider("Slider", SliderSize, setRange<QSlider, Qt::Horizontal>));
    add(cases, states,
        slider("SliderVertical", SliderSize.transposed(), setRange<QSlider, Qt::Vertical>));
    add(cases, PlainStates, slider("SliderTicks", {200, 36}, [](Exposed<QSlider>& ticked) {
            setRange<QSlider, Qt::Horizontal>(ticked);
            ticked.setTickPosition(QSlider::TicksBothSides);
        }));

    using Scroll = Control<QScrollBar, QStyleOptionSlider>;
    const auto scrollBar = [](const char* name, QSize size, void (*setUp)(Exposed<QScrollBar>&)) {
        return Scroll{name,
                      size,
                      setUp,
                      fillScrollBar,
                      draw<QStyle::CC_ScrollBar, QStyleOptionSlider>,
                      QStyle::SC_ScrollBarSlider};
    };
    add(cases, states, scrollBar("ScrollBar", {300, 14}, setRange<QScrollBar, Qt::Horizontal>));
    add(cases, states,
        scrollBar("ScrollBarVertical", {14, 300}, setRange<QScrollBar, Qt::Vertical>));
}

void addProgressBars(std::vector<Case>& cases)
{
    using Progress = Control<QProgressBar, QStyleOptionProgressBar>;
    const auto variant = [](const char* name, QSize size, void (*setUp)(Exposed<QProgressBar>&)) {
        return Progress{name, size, setUp, fillByWidget<QProgressBar, QStyleOptionProgressBar>,
                        draw<QStyle::CE_ProgressBar, QStyleOptionProgressBar>};
    };
    add(cases, PlainStates,
        variant("ProgressBar", BarSize, [](Exposed<QProgressBar>& bar) { bar.setValue(40); }));
    add(cases, PlainStates,
        variant("ProgressBarFull", BarSize, [](Exposed<QProgressBar>& bar) { bar.setValue(100); }));
    add(cases, {Normal}, variant("ProgressBarBusy", BarSize, [](Exposed<QProgressBar>& bar) {
            bar.setRange(0, 0);
        }));
    add(cases, PlainStates,
        variant("ProgressBarVertical", BarSize.transposed(), [](Exposed<QProgressBar>& bar) {
            bar.setOrientation(Qt::Vertical);
            bar.setValue(40);
        }));
}

} // namespace

void addControls(std::vector<Case>& cases)
{
    addPushButtons(cases);
    addToolButtons(cases);
    addChoices(cases);
    addInputs(cases);
    addSliders(cases);
    addProgressBars(cases);
}

} // namespace StyleBenchmark
