#include "RatioReporter.h"
#include "StyleCases.h"
#include "StyleWorkers.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <cstdlib>

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

void compare(benchmark::State& state, Workers& workers, int index)
{
    std::array<Worker*, 3> competitors{&workers.fusion, &workers.style, &workers.theme};
    std::array<double, 3> best{};
    for ([[maybe_unused]] const auto round : state) {
        for (size_t i = 0; i < competitors.size(); ++i) {
            const double time = competitors.at(i)->measure(index);
            if (time < 0) {
                state.SkipWithError("its process died");
                return;
            }
            best.at(i) = best.at(i) > 0 ? std::min(best.at(i), time) : time;
        }
        state.SetIterationTime(best.at(1) / 1e9);
    }
    state.counters[RatioReporter::Fusion] = best.at(0);
    state.counters[RatioReporter::Style] = best.at(1);
    state.counters[RatioReporter::Theme] = best.at(2);
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
    Workers workers{{Look::Fusion, theme, repository},
                    {Look::Style, theme, repository},
                    {Look::WholeTheme, theme, repository}};

    const std::vector<Case> cases = allCases();
    for (size_t i = 0; i < cases.size(); ++i)
        benchmark::RegisterBenchmark(cases.at(i).name.c_str(), compare, std::ref(workers), int(i))
            ->UseManualTime()
            ->Iterations(Rounds);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
