#include "RatioReporter.h"

#include <cmath>
#include <iomanip>

namespace {

constexpr int NameWidth = 38;

/// "group/control/state" and more, as far as there is more.
std::string part(const std::string& name, int index)
{
    size_t start = 0;
    for (; index > 0 && start != std::string::npos; --index)
        start = name.find('/', start) + 1;
    return name.substr(start, name.find('/', start) - start);
}

std::string withoutTail(const std::string& name)
{
    return name.substr(0, name.find("/iterations:"));
}

} // namespace

bool RatioReporter::ReportContext(const Context& /*context*/)
{
    GetOutputStream() << std::left << std::setw(NameWidth) << "microseconds, ratios to Fusion"
                      << std::right << std::setw(10) << "Fusion" << std::setw(10) << "style"
                      << std::setw(10) << "ratio" << std::setw(14) << "whole theme\n";
    return true;
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    std::ostream& out = GetOutputStream();
    for (const Run& run : runs) {
        const std::string name = withoutTail(run.benchmark_name());
        out << std::left << std::setw(NameWidth) << name << std::right;
        if (run.error_occurred) {
            out << "  " << run.error_message << std::endl;
            continue;
        }
        const double fusion = run.counters.at(Fusion);
        const double style = run.counters.at(Style);
        const Ratios ratios{style / fusion, run.counters.at(Theme) / fusion};
        out << std::fixed << std::setprecision(2) << std::setw(10) << fusion / 1000 << std::setw(10)
            << style / 1000 << std::setw(10) << ratios.style << std::setw(13) << ratios.theme
            << std::endl;
        m_groups[part(name, 0)][part(name, 1)].push_back(ratios);
    }
}

RatioReporter::Ratios RatioReporter::mean(const std::vector<Ratios>& ratios)
{
    Ratios sum{0, 0};
    for (const Ratios& ratio : ratios) {
        sum.style += std::log(ratio.style);
        sum.theme += std::log(ratio.theme);
    }
    const auto count = double(ratios.size());
    return {std::exp(sum.style / count), std::exp(sum.theme / count)};
}

void RatioReporter::Finalize()
{
    std::ostream& out = GetOutputStream();
    const auto print = [&](const std::string& name, const Ratios& ratios) {
        out << std::left << std::setw(NameWidth) << name << std::right << std::setw(10)
            << ratios.style << std::setw(13) << ratios.theme << '\n';
    };
    out << "\nGeometric means of the ratios to Fusion\n";
    out << std::left << std::setw(NameWidth) << "" << std::right << std::setw(10) << "style"
        << std::setw(13) << "whole theme" << '\n';
    for (const auto& [group, controls] : m_groups) {
        std::vector<Ratios> means;
        for (const auto& [control, ratios] : controls) {
            means.push_back(mean(ratios));
            print(std::string(group).append("/").append(control), means.back());
        }
        print("= " + group, mean(means));
    }
    out << std::flush;
}
