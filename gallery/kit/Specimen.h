#pragma once

#include <QPoint>
#include <QString>

#include <functional>

class QWidget;

namespace Gallery {

/// The states in which a widget is shown.
enum class State { Normal, Hovered, Pressed, Focused, Disabled };

QString nameOf(State state);

/// Puts `widget` into `state` and, unless that is Normal, keeps it there: it no longer reacts to
/// mouse and keyboard. The widget itself answers `hasFocus()`, `underMouse()`, `isDown()` as if a
/// person did it, so a style cannot tell the difference.
void force(QWidget& widget, State state);

/// As above with the mouse at `place`, in coordinates of `widget`, which complex widgets such as
/// tab bars and views need to know what is hovered or pressed. It is asked anew after each resize.
void forceAt(QWidget& widget, State state, std::function<QPoint()> place);

} // namespace Gallery
