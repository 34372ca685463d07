#pragma once

#include "BaseStyle.h"
#include "ProbeTheme.h"
#include "Transcript.h"

#include <QApplication>
#include <QStyleOption>
#include <QWidget>

#include <type_traits>

/// What a control looks like in every state that it can be in, as one text for a transcript.
namespace StateSheet {

/// To be called once, before any widget is there.
inline void applyProbeTheme()
{
    ProbeTheme::publish();
    auto* style = new BRELK::BaseStyle;
    style->setPalette(ProbeTheme::palette());
    QApplication::setStyle(style);
}

struct State
{
    const char* name;
    QStyle::State flags;
};

constexpr QStyle::State Focus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;

constexpr State AtRest{"at rest", QStyle::State_None};
constexpr State Hovered{"hovered", QStyle::State_MouseOver};
constexpr State Pressed{"pressed", QStyle::State_MouseOver | QStyle::State_Sunken};
constexpr State Checked{"checked", QStyle::State_On};
constexpr State Partly{"partly checked", QStyle::State_NoChange};
constexpr State Focused{"focused", Focus};

/// Lets a test read a widget's protected way to fill its option.
template <class Widget>
struct Open : Widget
{
    using Widget::initStyleOption;
    using Widget::Widget;
};

/// The option of `widget` in a rectangle of `size` at the origin, enabled and in an active window.
template <class Option, class Widget>
Option optionOf(const Open<Widget>& widget, const QSize& size)
{
    Option option;
    widget.initStyleOption(&option);
    if constexpr (std::is_base_of_v<QStyleOptionComplex, Option>)
        option.subControls = QStyle::SC_All;
    option.rect = QRect(QPoint(), size);
    option.state |= QStyle::State_Active;
    option.state &= ~QStyle::State(QStyle::State_MouseOver);
    return option;
}

/// `element` in each of `states` and then disabled, each under its name.
template <class Element, class Option>
QByteArray sheetOf(Element element, const Option& option, QWidget& widget,
                   std::initializer_list<State> states)
{
    QByteArray sheet;
    for (const State& state : states) {
        Option copy = option;
        copy.state |= state.flags;
        sheet += QByteArray("[") + state.name + "]\n" + transcriptOf(drawn(element, copy, &widget));
    }
    Option copy = option;
    copy.state &= ~QStyle::State(QStyle::State_Enabled);
    copy.palette.setCurrentColorGroup(QPalette::Disabled);
    widget.setEnabled(false);
    sheet += "[disabled]\n" + transcriptOf(drawn(element, copy, &widget));
    widget.setEnabled(true);
    return sheet;
}

} // namespace StateSheet
