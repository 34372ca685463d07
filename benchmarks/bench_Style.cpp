#include "RatioReporter.h"
#include "StyleCases.h"
#include "StyleWorkers.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <functional>

// How long the style takes for what an application asks of it, beside Qt's Fusion style.
//
// Every case runs in three processes in turn; see StyleWorkers.h. The figures are the shortest of
// several batches.

namespace {

using namespace StyleBenchmark;

constexpr int Rounds = 7;

struct Workers
{
    Worker fusion;
    Worker style;
    Worker theme;
};

/// The shortest times of a case so far, in nanoseconds; zero at first.
struct Times
{
    double fusion = 0;
    double style = 0;
    double theme = 0;
};

/// False when the process of the worker has died.
bool improve(double& shortest, const Worker& worker, int index)
{
    const double time = worker.measure(index);
    shortest = shortest > 0 ? std::min(shortest, time) : time;
    return time >= 0;
}

void compare(benchmark::State& state, const Workers& workers, int index)
{
    Times times;
    for ([[maybe_unused]] const auto round : state) {
        if (!improve(times.fusion, workers.fusion, index)
            || !improve(times.style, workers.style, index)
            || !improve(times.theme, workers.theme, index)) {
            state.SkipWithError("its process died");
            return;
        }
        state.SetIterationTime(times.style / 1e9);
    }
    state.counters[RatioReporter::Fusion] = times.fusion;
    state.counters[RatioReporter::Style] = times.style;
    state.counters[RatioReporter::Theme] = times.theme;
}

std::string environment(const char* name, const char* otherwise)
{
    const char* value = std::getenv(name);
    return value ? value : otherwise;
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;

    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setenv("QT_LOGGING_RULES", "qt.qpa.*=false", 0);
    const std::string theme = environment("VARN_BENCHMARK_THEME", "Dark");
    const std::string repository = environment("VARN_THEME_REPOSITORY", VARN_THEME_REPOSITORY);
    const Workers workers{{Look::Fusion, theme, repository},
                          {Look::Style, theme, repository},
                          {Look::WholeTheme, theme, repository}};

    const std::vector<Case> cases = allCases();
    for (size_t i = 0; i < cases.size(); ++i)
        benchmark::RegisterBenchmark(cases.at(i).name.c_str(), compare, std::cref(workers), int(i))
            ->UseManualTime()
            ->Iterations(Rounds);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
