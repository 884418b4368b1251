// A log: a severity filter and the listeners behind it.
#pragma once

#include <tvxCore/Export.h>
#include <tvxCore/ILogEventListener.h>
#include <tvxCore/Severity.h>

#include <cstddef>
#include <vector>

namespace tarvox::core {

/// Passes messages on to its listeners when they are severe enough.
///
/// A log is meant for one thread at a time; it takes no lock. Listeners are called in the order in which they
/// were added. They are not owned.
class TVX_CORE_API Log
{
public:
    /// The filter of a new log: critical messages, errors and warnings pass.
    static constexpr int kInitialFilter = kWarning;

    /// A log without listeners.
    Log();
    ~Log();
    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;

    /// Sends one message to every listener when `severity` is at most the filter, else does nothing.
    /// Null strings are passed on as empty ones. Allocates nothing. Throws what a listener throws.
    void trace(int severity, const char* file, int line, const char* function, const char* message);

    /// The largest severity code that passes. Inline: a rejected report costs no more than this comparison.
    int getSeverityFilter() const noexcept { return m_severityFilter; }

    /// Where the filter is kept, for those who look at it very often; good for as long as the log lives.
    const int& severityFilter() const noexcept { return m_severityFilter; }

    /// Sets the largest severity code that passes. Any number is legal, see Severity.
    void setSeverityFilter(int level) noexcept;

    /// Adds a listener; a listener that is there already, or null, changes nothing, so nobody hears a message
    /// twice. Added while a message is under way, it hears the next one.
    void addLogEventListener(ILogEventListener* listener);

    /// Removes a listener; one that is not there changes nothing. Removed while a message is under way, by
    /// itself or by another listener, it is not called any more, not even for that message; the listeners
    /// after it still are, once each. A listener may be deleted as soon as it is removed, except by its own
    /// handler before that returns.
    void removeLogEventListener(ILogEventListener* listener) noexcept;

private:
    class Dispatch;

    void dropRemovedListeners() noexcept;

    std::vector<ILogEventListener*> m_listeners; // null where one was removed while a message was under way
    int m_severityFilter = kInitialFilter;
    int m_messagesUnderWay = 0;
};

} // namespace tarvox::core
