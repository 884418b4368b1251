// Measures rows with Google Benchmark.
#include "measure.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <iostream>
#include <stdexcept>

namespace tvxbench {
namespace {

/// Keeps the time of the one benchmark that runs, and prints nothing.
class TimeReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.error_occurred)
                throw std::runtime_error(run.benchmark_name() + ": " + run.error_message);
            m_nanoseconds = run.GetAdjustedRealTime() * 1e9 / benchmark::GetTimeUnitMultiplier(run.time_unit);
        }
    }
    double nanoseconds() const { return m_nanoseconds; }

private:
    double m_nanoseconds = 0;
};

double timeOf(const std::string& name)
{
    TimeReporter reporter;
    if (benchmark::RunSpecifiedBenchmarks(&reporter, "^" + name + "(/.*)?$") != 1)
        throw std::runtime_error("no single benchmark is named " + name);
    return reporter.nanoseconds();
}

double quantile(std::vector<double> values, double q)
{
    std::sort(values.begin(), values.end());
    const double place = q * static_cast<double>(values.size() - 1);
    const auto below = static_cast<std::size_t>(place);
    const std::size_t above = std::min(below + 1, values.size() - 1);
    const double part = place - static_cast<double>(below);
    return values[below] * (1 - part) + values[above] * part;
}

struct Times
{
    std::vector<double> subject, peer, ratio;
};

void runRound(const Row& row, bool subjectFirst, Times& times)
{
    double subject = 0, peer = 0;
    if (subjectFirst) {
        subject = timeOf(row.subject);
        peer = timeOf(row.peer);
    } else {
        peer = timeOf(row.peer);
        subject = timeOf(row.subject);
    }
    times.subject.push_back(subject);
    times.peer.push_back(peer);
    times.ratio.push_back(subject / peer);
}

} // namespace

std::vector<Measured> measure(const std::vector<Row>& rows, int rounds)
{
    std::vector<Times> times(rows.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < rows.size(); ++i)
            runRound(rows[i], round % 2 == 0, times[i]);
        std::cerr << "round " << round + 1 << " of " << rounds << '\n';
    }
    std::vector<Measured> measured;
    for (const Times& t : times)
        measured.push_back({quantile(t.subject, 0.5), quantile(t.peer, 0.5), quantile(t.ratio, 0.5),
                            quantile(t.ratio, 0.25), quantile(t.ratio, 0.75)});
    return measured;
}

} // namespace tvxbench
