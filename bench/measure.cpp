// Measures rows with Google Benchmark.
#include "measure.h"

#include "scratch.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <iostream>
#include <stdexcept>

#include <sys/wait.h>
#include <unistd.h>

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

Measured measureRow(const Row& row, int rounds)
{
    Times times;
    for (int round = 0; round < rounds; ++round)
        runRound(row, round % 2 == 0, times);
    return {quantile(times.subject, 0.5), quantile(times.peer, 0.5), quantile(times.ratio, 0.5),
            quantile(times.ratio, 0.25), quantile(times.ratio, 0.75)};
}

/// Both ends of a pipe, closed at the end.
struct Pipe
{
    Pipe()
    {
        if (::pipe(ends) != 0)
            throw std::runtime_error("cannot make a pipe");
    }
    ~Pipe()
    {
        ::close(ends[0]);
        ::close(ends[1]);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    int ends[2] = {-1, -1};
};

/// Measures in a process that ends with it, so that no row finds the memory as another one left it.
Measured measureApart(const Row& row, int rounds)
{
    const Pipe pipe;
    const pid_t child = ::fork();
    if (child < 0)
        throw std::runtime_error("cannot start a process");
    Measured measured;
    if (child == 0) {
        try {
            measured = measureRow(row, rounds);
            ::_exit(::write(pipe.ends[1], &measured, sizeof measured) == sizeof measured ? 0 : 1);
        } catch (const std::exception& error) {
            std::cerr << "tvxBench: " << error.what() << '\n';
            ::_exit(1);
        }
    }
    int status = 0;
    if (::waitpid(child, &status, 0) != child || status != 0 ||
        ::read(pipe.ends[0], &measured, sizeof measured) != sizeof measured)
        throw std::runtime_error("not measured: " + row.what);
    return measured;
}

} // namespace

std::vector<Measured> measure(const std::vector<Row>& rows, int rounds)
{
    (void)scratchFolder(); // made here, so that it goes when this process ends
    std::vector<Measured> measured;
    for (const Row& row : rows) {
        std::cerr << "row " << measured.size() + 1 << " of " << rows.size() << ": " << row.what << '\n';
        measured.push_back(measureApart(row, rounds));
    }
    return measured;
}

} // namespace tvxbench
