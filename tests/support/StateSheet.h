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
    auto* style = new BRELK::BaseStyle;
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
constexpr State Partly{"partly checked", QStyle::State_NoChange};
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

/// `element` in each of `states` and then disabled, each under its name.
template <class Element, class Option>
QByteArray sheetOf(Element element, const Option& option, QWidget& widget, QVector<State> states)
{
    QByteArray sheet;
    for (const State& state : states << Disabled) {
        widget.setEnabled(state.removed == QStyle::State_None);
        Option copy = option;
        setState(copy, state);
        sheet += QByteArray("[") + state.name + "]\n" + drawn(element, copy, &widget);
    }
    widget.setEnabled(true);
    return sheet;
}

/// Where the parts of a control are.
template <class Option>
QByteArray partsOf(QStyle::ComplexControl control, const Option& option, const QWidget& widget)
{
    QByteArray text;
    for (unsigned part = 1; part <= QStyle::SC_ScrollBarGroove; part <<= 1) {
        const QRect rect = QApplication::style()->subControlRect(control, &option,
                                                                 QStyle::SubControl(part), &widget);
        if (rect.isValid())
            text += StyleOptions::nameOf(control, QStyle::SubControl(part)) + ": " + toText(rect)
                    + '\n';
    }
    return text;
}

/// `element` in each of `states`, under headings, at the size of `rect`: for the option that the
/// toolkit's own widget would pass.
template <class Element>
QByteArray sampleSheet(Element element, const QVector<State>& states,
                       const QRect& rect = QRect(0, 0, 120, 28))
{
    QByteArray sheet;
    for (const State& state : states) {
        const Sample sample = StyleOptions::sampleNamed(StyleOptions::nameOf(element));
        QStyleOption& option = *sample.option;
        option.rect = rect;
        setState(option, state);
        sheet += QByteArray("# ") + StyleOptions::nameOf(element) + ", " + state.name + '\n'
                 + drawn(element, option, sample.widget.get());
    }
    return sheet;
}

} // namespace StateSheet
