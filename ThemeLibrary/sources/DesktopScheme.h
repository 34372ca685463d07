#pragma once

#include <functional>

class QObject;

namespace BRELK {

/// Calls `tell` with whether the desktop prefers dark colors, once that is known and whenever it
/// changes, until the returned object is deleted, at the latest with `parent`. A desktop without a
/// preference has light colors.
///
/// Never waits: `tell` is called from the event loop. Without a session bus, without the settings
/// portal on it, or without an answer from that, nothing is told until there is one; null where
/// there is no bus, or the library was built without D-Bus.
QObject* listenToDesktop(QObject* parent, std::function<void(bool dark)> tell);

} // namespace BRELK
