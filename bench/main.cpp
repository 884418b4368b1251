// tvxBench: measures every row beside its peer and prints the table.
#include "measure.h"
#include "rows.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <functional>
#include <iostream>

namespace {

constexpr const char* kUsage =
    "usage: tvxBench [--rounds N] [--only TEXT]\n"
    "\n"
    "Measures each row of the table beside its peer, round by round in turn and in a process\n"
    "of its own, and prints the median of the per-round ratios (with their quartiles) and `ok`\n"
    "where the target is reached, `short` where it is not. Run it pinned to one core: tools/bench\n"
    "does.\n"
    "\n"
    "  --rounds N    rounds per row (default 11)\n"
    "  --only TEXT   only the rows that have TEXT in their first two columns\n";

std::vector<tvxbench::Row> allRows()
{
    std::vector<tvxbench::Row> rows;
    for (const auto& family : {tvxbench::loggerRows, tvxbench::formatRows, tvxbench::rejectedReportRows,
                               tvxbench::loadRows, tvxbench::circleRows, tvxbench::switchRows,
                               tvxbench::hullRows, tvxbench::utilsRows, tvxbench::sceneRows})
        for (tvxbench::Row& row : family())
            rows.push_back(std::move(row));
    return rows;
}

std::vector<tvxbench::Row> rowsNamed(const std::string& text)
{
    std::vector<tvxbench::Row> rows;
    for (const tvxbench::Row& row : allRows())
        if ((row.what + row.beside).find(text) != std::string::npos)
            rows.push_back(row);
    return rows;
}

void printTable(const std::vector<tvxbench::Row>& rows, const std::vector<tvxbench::Measured>& measured)
{
    std::printf("%-46s %-44s %10s %10s %7s %15s %7s\n", "what", "beside", "ns", "peer ns", "ratio",
                "quartiles", "target");
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const tvxbench::Measured& m = measured[i];
        std::printf("%-46s %-44s %10.1f %10.1f %7.3f %7.3f-%-7.3f %7.2f %s\n", rows[i].what.c_str(),
                    rows[i].beside.c_str(), m.subjectNanoseconds, m.peerNanoseconds, m.ratio, m.quartile1,
                    m.quartile3, rows[i].target, m.ratio <= rows[i].target ? "ok" : "short");
    }
}

} // namespace

int main(int argc, char** argv)
try {
    int rounds = 11;
    std::string only;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--rounds") && i + 1 < argc)
            rounds = std::atoi(argv[++i]);
        else if (!std::strcmp(argv[i], "--only") && i + 1 < argc)
            only = argv[++i];
        else {
            const bool help = !std::strcmp(argv[i], "--help") || !std::strcmp(argv[i], "-h");
            (help ? std::cout : std::cerr) << kUsage;
            return help ? 0 : 2;
        }
    }
    if (rounds < 1) {
        std::cerr << "tvxBench: --rounds needs a number above 0\n";
        return 2;
    }
    // Memory stays with the process, as in a long session: asking the system for it anew is no row's
    // business.
    mallopt(M_TRIM_THRESHOLD, INT_MAX);
    int none = 0;
    benchmark::Initialize(&none, argv);
    const std::vector<tvxbench::Row> rows = rowsNamed(only);
    if (rows.empty()) {
        std::cerr << "tvxBench: no row has \"" << only << "\" in its name\n";
        return 2;
    }
    printTable(rows, tvxbench::measure(rows, rounds));
    return 0;
} catch (const std::exception& error) {
    std::cerr << "tvxBench: " << error.what() << '\n';
    return 1;
}
