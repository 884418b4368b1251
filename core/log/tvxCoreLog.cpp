// Ties the plug-in's core log to the logger.
#include "core/log/tvxCoreLog.h"

#include "core/log/tvxMayaLogger.h"

namespace tarvox::crowd {

namespace {

/// The log, whose filter reports can see as long as it lives.
class CoreLog
{
public:
    CoreLog() { detail::coreLogFilter = &log.severityFilter(); }
    ~CoreLog() { detail::coreLogFilter = &detail::kFilterOfNewLog; }
    CoreLog(const CoreLog&) = delete;
    CoreLog& operator=(const CoreLog&) = delete;

    core::Log log;
};

bool registerCoreLog()
{
    MayaLogger::getInstance().registerLog(coreLog(), "Crowd Render", core::kInfo);
    return true;
}

} // namespace

core::Log& coreLog()
{
    static CoreLog only;
    return only.log;
}

void startLogging()
{
    static const bool registered = registerCoreLog();
    static_cast<void>(registered);
    MayaLogger::getInstance().start();
}

} // namespace tarvox::crowd
