#pragma once

#include <QMainWindow>

#include <memory>

namespace EveryWidget {

/// A shown window with something of everything.
std::unique_ptr<QMainWindow> shown();

} // namespace EveryWidget
