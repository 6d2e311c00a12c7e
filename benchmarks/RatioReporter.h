#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// What is compared.
enum class Clock
{
    Wall,
    Processor, ///< of the thread that runs the benchmarks: other programs count less
};

/// Prints, for every group of benchmarks named "GROUP/NAME", the ratio of each to the group's "baseline": the
/// only figures that mean something on another machine.
class RatioReporter : public benchmark::BenchmarkReporter
{
public:
    explicit RatioReporter(Clock clock)
        : m_clock(clock)
    {}

    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    Clock m_clock;
    std::vector<std::string> m_order;
    std::map<std::string, std::vector<double>> m_times;
};

/// Runs all registered benchmarks, interleaved, and prints their ratios. The exit code of main.
int runRatioBenchmarks(int argc, char *argv[], Clock clock = Clock::Wall);
