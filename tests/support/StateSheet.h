#pragma once

#include "BaseStyle.h"
#include "ProbeTheme.h"
#include "StyleOptions.h"
#include "Transcript.h"

#include <QtTest>
#include <QtWidgets>

#include <type_traits>

/// What a control looks like in the states that it can be in, as one text for a transcript.
namespace StateSheet {

using StyleOptions::Open;
using StyleOptions::Sample;

/// Publishes the probe theme, or one without a name, and makes `BaseStyle` the application's style.
/// To be called once, before any widget is there.
inline BRELK::BaseStyle* applyProbeTheme(bool withNames = true)
{
    withNames ? ProbeTheme::publish() : ProbeTheme::publishEmpty();
    auto* style = new TranscribedStyle;
    style->setPalette(ProbeTheme::palette());
    QApplication::setStyle(style);
    QApplication::setPalette(ProbeTheme::palette());
    return style;
}

/// A state that a widget can be painted in, as it differs from the one at rest.
struct State
{
    const char* name;
    QStyle::State added = QStyle::State_None;
    QStyle::State removed = QStyle::State_None;
};

constexpr State AtRest{"at rest"};
constexpr State Hovered{"hovered", QStyle::State_MouseOver};
constexpr State Pressed{"pressed", QStyle::State_MouseOver | QStyle::State_Sunken};
constexpr State Checked{"checked", QStyle::State_On};
constexpr State Focused{"focused", QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange};
constexpr State Disabled{"disabled", {}, QStyle::State_Enabled};

inline void setState(QStyleOption& option, const State& state)
{
    option.state = (option.state | state.added) & ~state.removed;
    if (!(option.state & QStyle::State_Enabled))
        option.palette.setCurrentColorGroup(QPalette::Disabled);
}

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

} // namespace StateSheet
