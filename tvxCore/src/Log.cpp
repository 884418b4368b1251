// The log's dispatch: safe against listeners that come and go while a message is under way.
#include <tvxCore/Log.h>

#include <algorithm>

namespace tarvox::core {

namespace {

const char* orEmpty(const char* text)
{
    return text ? text : "";
}

} // namespace

// While one lives, removed listeners leave a gap instead of moving the others.
class Log::Dispatch
{
public:
    explicit Dispatch(Log& log) : m_log(log) { ++m_log.m_messagesUnderWay; }

    ~Dispatch()
    {
        if (--m_log.m_messagesUnderWay == 0)
            m_log.dropRemovedListeners();
    }

    Dispatch(const Dispatch&) = delete;
    Dispatch& operator=(const Dispatch&) = delete;

private:
    Log& m_log;
};

Log::Log() = default;

Log::~Log() = default;

void Log::trace(int severity, const char* file, int line, const char* function, const char* message)
{
    if (severity > m_severityFilter)
        return;
    const LogEvent event{severity, orEmpty(file), line, orEmpty(function), orEmpty(message)};
    const Dispatch underWay(*this);
    // By index and up to the present end: handlers may add listeners, which hear the next message.
    const std::size_t end = m_listeners.size();
    for (std::size_t i = 0; i < end; ++i)
        if (ILogEventListener* listener = m_listeners[i])
            listener->onLogEvent(event);
}

void Log::setSeverityFilter(int level) noexcept
{
    m_severityFilter = level;
}

void Log::addLogEventListener(ILogEventListener* listener)
{
    const bool known = std::find(m_listeners.begin(), m_listeners.end(), listener) != m_listeners.end();
    if (listener && !known)
        m_listeners.push_back(listener);
}

void Log::removeLogEventListener(ILogEventListener* listener) noexcept
{
    const auto found = std::find(m_listeners.begin(), m_listeners.end(), listener);
    if (!listener || found == m_listeners.end())
        return;
    *found = nullptr;
    if (m_messagesUnderWay == 0)
        dropRemovedListeners();
}

void Log::dropRemovedListeners() noexcept
{
    m_listeners.erase(std::remove(m_listeners.begin(), m_listeners.end(), nullptr), m_listeners.end());
}

} // namespace tarvox::core
