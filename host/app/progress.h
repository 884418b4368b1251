// Progress: a line on a terminal that tells how far a long piece of work is.
#pragma once

#include <chrono>
#include <cstdint>
#include <ostream>
#include <string>

namespace tvxhost::app {

/// Shows nothing for work that is short or when told that the stream is no terminal. The line is overwritten
/// in place and wiped at the end.
class Progress
{
public:
    using Clock = std::chrono::steady_clock;

    /// `what` is being done, for example "reading shot.ma".
    Progress(std::ostream& out, bool isTerminal, std::string what, Clock::time_point start = Clock::now());
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// `done` of `total` units; may be called as often as one likes.
    void update(std::uint64_t done, std::uint64_t total, Clock::time_point now = Clock::now());

private:
    std::ostream& m_out;
    bool m_isTerminal;
    std::string m_what;
    Clock::time_point m_next;
    bool m_shown = false;
};

} // namespace tvxhost::app
