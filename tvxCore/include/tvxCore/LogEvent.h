// One message on its way from a log to its listeners.
#pragma once

namespace tarvox::core {

/// What a listener gets to see of one message. The strings belong to the caller of Log::trace and are valid
/// only until the event handler returns; none of them is null.
struct LogEvent
{
    int severity;         ///< code of Severity, or any other number the caller traced with
    const char* file;     ///< source file of the report
    int line;             ///< line in that file, from 1
    const char* function; ///< qualified name of the reporting function
    const char* message;  ///< the text
};

} // namespace tarvox::core
