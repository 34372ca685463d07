#pragma once

#include "BaseStyle.h"
#include "ProbeTheme.h"
#include "StyleOptions.h"
#include "Transcript.h"

#include <QtTest>
#include <QtWidgets>

#include <type_traits>

/// An application in the probe theme, and what its controls look like.
namespace StateSheet {

using namespace StyleOptions;

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
