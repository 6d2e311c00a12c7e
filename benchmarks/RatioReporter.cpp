#include "RatioReporter.h"

#include "LifelikeDocument.h"

#include <algorithm>
#include <cstdio>

bool RatioReporter::ReportContext(const Context &context)
{
    static_cast<void>(context);
    return true;
}

void RatioReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.run_type != Run::RT_Iteration)
            continue;
        const std::string name = run.run_name.function_name;
        if (!m_times.count(name))
            m_order.push_back(name);
        m_times[name].push_back(m_clock == Clock::Processor ? run.GetAdjustedCPUTime()
                                                            : run.GetAdjustedRealTime());
    }
}

void RatioReporter::Finalize()
{
    const auto median = [this](const std::string &name) {
        std::vector<double> times = m_times.at(name);
        std::sort(times.begin(), times.end());
        return times[times.size() / 2];
    };
    std::sort(m_order.begin(), m_order.end()); // interleaved runs come in any order
    std::printf("%-60s %12s %8s\n", "benchmark", "median ms", "ratio");
    for (const std::string &name : m_order) {
        const std::string baseline = name.substr(0, name.rfind('/')) + "/baseline";
        const double time = median(name);
        if (m_times.count(baseline))
            std::printf("%-60s %12.1f %8.2f\n", name.c_str(), time / 1000.0, time / median(baseline));
        else
            std::printf("%-60s %12.1f %8s\n", name.c_str(), time / 1000.0, "-");
    }
}

int runRatioBenchmarks(int argc, char *argv[], Clock clock)
{
    std::vector<char *> arguments(argv, argv + argc);
    const bool isForAMoment = Lifelike::isForAMoment();
    std::string repetitions = isForAMoment ? "--benchmark_repetitions=1" : "--benchmark_repetitions=9";
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    std::string shortRuns = isForAMoment ? "--benchmark_min_time=0.0001" : "--benchmark_min_time=0.05";
    arguments.insert(arguments.begin() + 1, {repetitions.data(), interleaving.data(), shortRuns.data()});
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    RatioReporter reporter(clock);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
