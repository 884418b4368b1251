// Progress: at most ten updates a second, the first after half a second.
#include "progress.h"

#include <utility>

namespace tvxhost::app {

namespace {

constexpr std::chrono::milliseconds kQuietStart{500};
constexpr std::chrono::milliseconds kInterval{100};
constexpr const char* kWipeLine = "\r\033[K";

} // namespace

Progress::Progress(std::ostream& out, bool isTerminal, std::string what, Clock::time_point start)
    : m_out(out), m_isTerminal(isTerminal), m_what(std::move(what)), m_next(start + kQuietStart)
{
}

Progress::~Progress()
{
    if (m_shown)
        m_out << kWipeLine << std::flush;
}

void Progress::update(std::uint64_t done, std::uint64_t total, Clock::time_point now)
{
    if (!m_isTerminal || now < m_next || total == 0)
        return;
    m_next = now + kInterval;
    m_shown = true;
    m_out << kWipeLine << m_what << ": " << done * 100 / total << " %" << std::flush;
}

} // namespace tvxhost::app
