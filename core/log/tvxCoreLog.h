// The core log that the plug-in's own reports go to.
#pragma once

#include <tvxCore/Log.h>

namespace tarvox::crowd {

/// The plug-in's one core log: made on first use, destroyed when the library is unloaded.
core::Log& coreLog();

namespace detail {

inline constexpr int kFilterOfNewLog = core::Log::kInitialFilter;
/// The filter of the core log; before the log's life and after it, that of a new log.
inline const int* coreLogFilter = &kFilterOfNewLog;

} // namespace detail

/// Whether the core log passes a message of the severity. Makes no log to ask it, so that a report that is
/// rejected costs one comparison and no more.
inline bool coreLogAdmits(int severity)
{
    return *detail::coreLogFilter >= severity;
}

/// Registers the core log with the MayaLogger as "Crowd Render", by default at INFO, the first time it is
/// called in the library's life, and starts the logger each time.
void startLogging();

} // namespace tarvox::crowd
