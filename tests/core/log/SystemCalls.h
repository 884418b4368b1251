// Stands between the code under test and the system calls of its outputs and clock: counts them and lets a
// test decide what they do. Linked in by the linker's --wrap.
#pragma once

#include <cstddef>
#include <ctime>
#include <deque>
#include <string>
#include <vector>

namespace tarvox::crowd::test {

/// What the next call does instead of its work.
struct Outcome
{
    int error = 0;         ///< errno of a failure; 0 for none
    std::size_t taken = 0; ///< bytes that write accepts when it does not fail
};

/// While one lives, calls made by the code under test are seen; when it ends all is real again.
class SystemCalls
{
public:
    SystemCalls();
    ~SystemCalls();
    SystemCalls(const SystemCalls&) = delete;
    SystemCalls& operator=(const SystemCalls&) = delete;

    std::deque<Outcome> writes;       ///< for the next writes, in order; then they do their work
    std::deque<Outcome> opens;        ///< the same for open
    std::deque<Outcome> closes;       ///< the same for close, which closes in any case
    std::vector<std::string> written; ///< the text of each write that was not told to fail, as accepted
    int writeCount = 0;               ///< all calls of write
    std::vector<std::string> opened;  ///< the path of each call of open
    std::time_t clock = 0;            ///< what the clock shows; 0 for the real time
};

} // namespace tarvox::crowd::test
