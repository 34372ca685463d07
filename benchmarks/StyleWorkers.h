#pragma once

#include <string>
#include <sys/types.h>

/// Processes that run the cases, one per style.
///
/// An application has one style, one style sheet, one palette and one font, so each of the styles
/// to compare gets a process of its own. They take turns, case by case and batch by batch: what
/// disturbs the machine disturbs all of them.
namespace StyleBenchmark {

enum class Look {
    Fusion, ///< Qt's own style in its own palette, with the theme's font and icons
    Style, ///< the theme's style without the theme's style sheets
    WholeTheme, ///< the theme as it is applied to applications
};

/// A process in which an application has one look. It ends when the worker does.
class Worker
{
public:
    /// Starts the process. There must be no application object yet, since it does not survive in a
    /// copy of the process. `theme` is a directory of `repository`.
    Worker(Look look, const std::string& theme, const std::string& repository);
    ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    /// The processor time in nanoseconds that one unit of case number `index` takes, from one batch
    /// of runs. Negative when the process has died.
    double measure(int index) const;

private:
    pid_t m_process;
    int m_socket = -1;
};

} // namespace StyleBenchmark
