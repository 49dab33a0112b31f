#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

/**
 * Prints the benchmarks of one run as a table: a row per work, a column per way to do it, and how
 * often the second way fits into the first.
 *
 * A benchmark belongs into the table by its name: "work/way". The times are the medians of the
 * repetitions, in milliseconds.
 */
class RatioReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    /** Runs all registered benchmarks, five repetitions each, and prints the table. */
    static int runAll(int argc, char** argv);

private:
    using Times = std::vector<double>;
    struct Row {
        std::vector<std::string> ways;
        std::map<std::string, Times> times;
    };

    std::vector<std::string> works;
    std::map<std::string, Row> rows;
};
