#pragma once

#include <QPixmap>

#include <memory>

class QMainWindow;
class QMenu;

namespace StyleBenchmark {

/// A picture of 16 pixels in the color that themes recolor icons from.
QPixmap picture();

/// Fills `menu` as applications do: icons, shortcuts, marks, a submenu and separators.
void fillMenu(QMenu& menu);

/// A window with some of everything, not shown yet.
std::unique_ptr<QMainWindow> createWindow();

} // namespace StyleBenchmark
