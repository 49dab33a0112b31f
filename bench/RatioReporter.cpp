#include "bench/RatioReporter.h"

#include <algorithm>
#include <cstdio>

namespace {

constexpr int workWidth = 44;
constexpr double millisecondsPerSecond = 1000;

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

bool RatioReporter::ReportContext(const Context& /*context*/) {
    return true;
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred) {
            continue;
        }
        const std::string& name = run.run_name.function_name;
        const std::size_t slash = name.rfind('/');
        const std::string work = name.substr(0, slash);
        const std::string way = name.substr(slash + 1);
        if (rows.count(work) == 0) {
            works.push_back(work);
        }
        Row& row = rows[work];
        if (row.times.count(way) == 0) {
            row.ways.push_back(way);
        }
        const double seconds = run.real_accumulated_time / static_cast<double>(run.iterations);
        row.times[way].push_back(seconds * millisecondsPerSecond);
    }
}

void RatioReporter::Finalize() {
    for (const std::string& work : works) {
        const Row& row = rows[work];
        std::printf("%-*s", workWidth, work.c_str());
        for (const std::string& way : row.ways) {
            std::printf("  %s %10.4f ms", way.c_str(), median(row.times.at(way)));
        }
        if (row.ways.size() == 2) {
            std::printf("  ratio %6.2f",
                        median(row.times.at(row.ways[0])) / median(row.times.at(row.ways[1])));
        }
        std::printf("\n");
    }
}

int RatioReporter::runAll(int argc, char** argv) {
    std::vector<char*> arguments(argv, argv + argc);
    std::string repetitions = "--benchmark_repetitions=5";
    std::string shortest = "--benchmark_min_time=0.1";
    arguments.push_back(repetitions.data());
    arguments.push_back(shortest.data());
    auto count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
