// Measures rows: rounds of subject and peer in turn, and the median of the per-round ratios.
#pragma once

#include "rows.h"

#include <vector>

namespace tvxbench {

struct Measured
{
    double subjectNanoseconds = 0; ///< median over the rounds
    double peerNanoseconds = 0;
    double ratio = 0;     ///< median of the per-round ratios
    double quartile1 = 0; ///< of the ratios
    double quartile3 = 0;
};

/// Runs every row `rounds` times, in a process of its own; within a round the row's two sides run one right
/// after the other, the order changing from round to round. Throws std::runtime_error when a benchmark of a
/// row did not run.
std::vector<Measured> measure(const std::vector<Row>& rows, int rounds);

} // namespace tvxbench
