#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

/// Prints one line per case with its ratios to Fusion as they come, and at the end the geometric
/// means: of the states of each control, of the controls of each group.
class RatioReporter : public benchmark::BenchmarkReporter
{
public:
    /// Names of the counters that a case brings, in nanoseconds.
    static constexpr char Fusion[] = "fusion";
    static constexpr char Style[] = "style";
    static constexpr char Theme[] = "theme";

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    struct Ratios
    {
        double style;
        double theme;
    };

    static Ratios mean(const std::vector<Ratios>& ratios);

    using Controls = std::map<std::string, std::vector<Ratios>>;
    std::map<std::string, Controls> m_groups;
};
