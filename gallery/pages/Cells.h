#pragma once

class QWidget;

namespace Gallery {

/// A table whose delegate paints controls into its cells, as applications do.
QWidget* makeControlCells();

} // namespace Gallery
