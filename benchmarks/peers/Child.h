#pragma once

#include "Tasks.h"

namespace Peers {

/// Runs `task` in a process of its own, as this program does when it is called with `--task`;
/// figures of the process are added. Nothing when the process failed.
Figures runInProcess(const QString& task, const Order& order);

} // namespace Peers
