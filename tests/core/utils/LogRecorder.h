// What reaches the core log, for tests of reports.
#pragma once

#include "core/log/tvxCoreLog.h"

#include <tvxCore/Exception.h>

#include <string>
#include <utility>
#include <vector>

namespace tarvox::crowd::test {

/// Listens to the core log while it lives, and puts the filter back to its default at the end.
class LogRecorder : public core::ILogEventListener
{
public:
    LogRecorder() { coreLog().addLogEventListener(this); }
    ~LogRecorder() override
    {
        coreLog().removeLogEventListener(this);
        coreLog().setSeverityFilter(core::kWarning);
    }
    LogRecorder(const LogRecorder&) = delete;
    LogRecorder& operator=(const LogRecorder&) = delete;

    void onLogEvent(const core::LogEvent& event) override
    {
        if (exceptions > 0) {
            --exceptions;
            throw core::Exception("listener failed");
        }
        lines.push_back(event.line);
        events.push_back(std::to_string(event.severity) + "|" + event.file + "|" + event.function + "|" +
                         event.message);
    }

    /// The reports since the last call, "severity|file|function|message" each.
    std::vector<std::string> take()
    {
        lines.clear();
        return std::exchange(events, {});
    }

    int exceptions = 0; ///< so many reports are answered with an exception first
    std::vector<int> lines;
    std::vector<std::string> events;
};

} // namespace tarvox::crowd::test
