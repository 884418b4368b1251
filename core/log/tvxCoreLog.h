// The core log that the plug-in's own reports go to.
#pragma once

#include <tvxCore/Log.h>

namespace tarvox::crowd {

/// The plug-in's one core log: made on first use, destroyed when the library is unloaded. Inline, so that a
/// report that the filter rejects costs no call.
inline core::Log& coreLog()
{
    static core::Log log;
    return log;
}

/// Registers the core log with the MayaLogger as "Crowd Render", by default at INFO, the first time it is
/// called in the library's life, and starts the logger each time.
void startLogging();

} // namespace tarvox::crowd
