#pragma once

#include <QPoint>
#include <QString>

class QWidget;

namespace Gallery {

/// The states in which a widget is shown.
enum class State { Normal, Hovered, Pressed, Focused, Disabled };

QString nameOf(State state);

/// Puts `widget` into `state` and, unless that is Normal, keeps it there: it no longer reacts to
/// mouse and keyboard. The widget itself answers `hasFocus()`, `underMouse()`, `isDown()` as if a
/// person did it, so a style cannot tell the difference.
void force(QWidget& widget, State state);

/// As above with the mouse at `where`, in coordinates of `widget` in a left-to-right layout, which
/// complex widgets such as tab bars and views need to know what is hovered or pressed.
void forceAt(QWidget& widget, State state, const QPoint& where);

} // namespace Gallery
