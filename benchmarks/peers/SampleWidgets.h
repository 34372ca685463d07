#pragma once

class QWidget;

namespace Peers {

/// Adds `count` widgets of twenty kinds to `parent`, with texts and places.
void addSampleWidgets(QWidget& parent, int count);

} // namespace Peers
