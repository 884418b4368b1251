// How the plug-in tells of problems: a logged report, or a note on standard error.
#pragma once

#include "core/log/tvxCoreLog.h"

#include <maya/MStatus.h>

#include <functional>
#include <iosfwd>

#if defined(__GNUC__)
#define TVX_COLD __attribute__((cold, noinline))
#else
#define TVX_COLD
#endif

/// Reports `text`, a chain of stream insertions, through the core log at `severity` in the name of
/// `function`. Nothing is built when the log's filter rejects the severity. A core exception raised on the
/// way is logged in place of the report; no core exception leaves it.
#define TVX_REPORT(severity, function, text)                                                                 \
    do {                                                                                                     \
        const int tvxSeverity = (severity);                                                                  \
        if (::tarvox::crowd::coreLogAdmits(tvxSeverity))                                                     \
            ::tarvox::crowd::report(tvxSeverity, __FILE__, __LINE__, (function),                             \
                                    [&](std::ostream& tvxText) { tvxText << text; });                        \
    } while (false)

/// Notes a failed MStatus on standard error and goes on: the text that Maya 2016's CHECK_MSTATUS writes, with
/// every devkit.
#define TVX_CHECK_STATUS(status) ::tarvox::crowd::checkStatus((status), __FILE__, __LINE__)

namespace tarvox::crowd {

/// Traces the text as it stands. A core exception raised on the way is logged in its place; none leaves.
/// @param buildText  writes the text; may throw
TVX_COLD void trace(int severity, const char* file, int line, const char* function,
                    const std::function<void(std::ostream&)>& buildText);

/// What TVX_REPORT does once the filter has let it through: traces "At line <line> in file <file>: <text>".
/// @param buildText  writes the text; may throw
TVX_COLD void report(int severity, const char* file, int line, const char* function,
                     const std::function<void(std::ostream&)>& buildText);

/// Traces the text of a caught core exception as it is, when the filter admits it.
TVX_COLD void reportException(int severity, const char* file, int line, const char* function,
                              const char* text);

/// What TVX_CHECK_STATUS does.
void checkStatus(const MStatus& status, const char* file, int line);

} // namespace tarvox::crowd
