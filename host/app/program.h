// Program: does what a command line asks for, one option after the other.
#pragma once

#include "options.h"
#include "session.h"

#include <iosfwd>

namespace tvxhost::app {

/// Where the program writes.
struct Streams
{
    std::ostream& out;
    std::ostream& err;
    bool errIsTerminal = false; ///< progress is shown then
};

/// Runs the whole program; the exit code: 0 when nothing went wrong, else 1.
int runProgram(const Options& options, const Streams& streams);

} // namespace tvxhost::app
