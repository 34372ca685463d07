#pragma once

#include "StyleCases.h"
#include "StyleSubjects.h"

#include <type_traits>

/// Cases that paint one control through the style, with a real widget and the option that the
/// widget fills.
namespace StyleBenchmark {

using States = std::vector<ControlState>;

inline const States InputStates{Normal, Hovered, Focused, Disabled};
inline const States ButtonStates{Normal, Hovered, Pressed, Focused, Disabled};
inline const States PlainStates{Normal, Disabled};
inline const States ItemStates{Normal, Selected, Disabled};

template <auto Element, class Option>
void draw(const QStyle& style, const Option& option, QPainter& painter, const QWidget* widget)
{
    using Kind = decltype(Element);
    if constexpr (std::is_same_v<Kind, QStyle::PrimitiveElement>)
        style.drawPrimitive(Element, &option, &painter, widget);
    else if constexpr (std::is_same_v<Kind, QStyle::ControlElement>)
        style.drawControl(Element, &option, &painter, widget);
    else
        style.drawComplexControl(Element, &option, &painter, widget);
}

/// A kind of control: how its widget is set up and fills its option, and by which elements it is
/// painted.
template <class Widget, class Option>
struct Control
{
    const char* name;
    QSize size;
    void (*setUp)(Exposed<Widget>&);
    void (*fill)(const Exposed<Widget>&, Option&);
    void (*paint)(const QStyle&, const Option&, QPainter&, const QWidget*);
    QStyle::SubControl activePart = QStyle::SC_None;
};

template <class Widget, class Option>
void fillByWidget(const Exposed<Widget>& widget, Option& option)
{
    widget.initStyleOption(&option);
}

template <class Widget, class Option>
Work prepare(const Control<Widget, Option>& control, const ControlState& state)
{
    auto widget = std::make_shared<Exposed<Widget>>();
    control.setUp(*widget);
    widget->setEnabled(state.enabled);
    widget->resize(control.size);
    widget->ensurePolished();

    auto option = std::make_shared<Option>();
    control.fill(*widget, *option);
    option->rect = QRect(QPoint(), control.size);
    apply(state, *option);
    if constexpr (std::is_base_of_v<QStyleOptionComplex, Option>) {
        if (state.added & (QStyle::State_MouseOver | QStyle::State_Sunken))
            option->activeSubControls = control.activePart;
    }

    auto canvas = std::make_shared<Canvas>(control.size);
    return {[=] { control.paint(*widget->style(), *option, canvas->painter, widget.get()); }};
}

template <class Widget, class Option>
void add(std::vector<Case>& cases, const States& states, const Control<Widget, Option>& control)
{
    for (const ControlState& state : states)
        cases.push_back({std::string("controls/") + control.name + '/' + state.name,
                         [control, state] { return prepare(control, state); }});
}

constexpr QSize ButtonSize(100, 28);

/// A widget that leaves it to others how its parts' options are filled.
template <class Widget>
struct Plain : Widget
{
    void initStyleOption(QStyleOption* option) const { option->initFrom(this); }
};

} // namespace StyleBenchmark
