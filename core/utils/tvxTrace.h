// How the utilities tell of what went wrong.
#pragma once

#include "core/log/tvxReport.h"

#include <iosfwd>

/// Traces `text`, a chain of stream insertions, through the core log at `severity` in the name of `function`,
/// as it stands. Nothing is built when the log's filter rejects the severity. A core exception raised on the
/// way is logged in place of the text; no core exception leaves it.
#define TVX_TRACE(severity, function, text)                                                                  \
    do {                                                                                                     \
        const int tvxSeverity = (severity);                                                                  \
        if (::tarvox::crowd::coreLogAdmits(tvxSeverity))                                                     \
            ::tarvox::crowd::trace(tvxSeverity, __FILE__, __LINE__, (function),                              \
                                   [&](std::ostream& tvxText) { tvxText << text; });                         \
    } while (false)

/// A warning, see TVX_TRACE.
#define TVX_WARN(function, text) TVX_TRACE(::tarvox::core::kWarning, function, text)

/// Ends a member that returns a status: reports `text` at ERROR, with line and file, and returns
/// MS::kFailure.
#define TVX_FAIL(function, text)                                                                             \
    do {                                                                                                     \
        TVX_REPORT(::tarvox::core::kError, (function), text);                                                \
        return MStatus(MStatus::kFailure);                                                                   \
    } while (false)

/// The qualified name of a member of MayaUtils; `name` is a literal.
#define TVX_UTILS_MEMBER(name) "tarvox::crowd::MayaUtils::" name
