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
        const std::string begin = std::to_string(event.severity) + "|" + event.file + "|";
        const std::string end = std::string(event.function) + "|" + event.message;
        lines.push_back(event.line);
        events.push_back(begin + end);
        placed.push_back(begin + std::to_string(event.line) + "|" + end);
    }

    /// The reports since the last call, "severity|file|function|message" each.
    std::vector<std::string> take()
    {
        lines.clear();
        placed.clear();
        return std::exchange(events, {});
    }

    int exceptions = 0; ///< so many reports are answered with an exception first
    std::vector<int> lines;
    std::vector<std::string> events;
    std::vector<std::string> placed; ///< the same with the line behind the file
};

} // namespace tarvox::crowd::test
