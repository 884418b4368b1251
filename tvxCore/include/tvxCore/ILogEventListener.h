// What a log calls for each message.
#pragma once

#include <tvxCore/Export.h>
#include <tvxCore/LogEvent.h>

namespace tarvox::core {

/// Receives the messages of the logs it is added to. A log does not own its listeners: remove a listener from
/// every log before it is destroyed.
class TVX_CORE_API ILogEventListener
{
public:
    virtual ~ILogEventListener();

    /// Called once for every message that passes the log's filter, on the thread that traces it. It may trace
    /// into the log again, and add or remove listeners, itself included. What it throws reaches the caller of
    /// Log::trace, and listeners after it miss the message.
    virtual void onLogEvent(const LogEvent& event) = 0;

protected:
    ILogEventListener() = default;
    ILogEventListener(const ILogEventListener&) = default;
    ILogEventListener& operator=(const ILogEventListener&) = default;
};

} // namespace tarvox::core
