// A row of the benchmark table: what is measured, beside what, and the ratio to reach.
#pragma once

#include <string>
#include <vector>

namespace tvxbench {

/// The names are those under which both sides are registered with Google Benchmark.
struct Row
{
    std::string what;    ///< for people
    std::string beside;  ///< for people
    std::string subject; ///< benchmark of ours
    std::string peer;    ///< benchmark of the other side
    double target;       ///< median of (time of subject / time of peer) to reach or stay below
};

/// Each family registers its benchmarks and returns its rows.
std::vector<Row> loggerRows();
std::vector<Row> formatRows();
std::vector<Row> rejectedReportRows();
std::vector<Row> loadRows();
std::vector<Row> circleRows();
std::vector<Row> hullRows();
std::vector<Row> switchRows();
std::vector<Row> utilsRows();
std::vector<Row> sceneRows();

} // namespace tvxbench
