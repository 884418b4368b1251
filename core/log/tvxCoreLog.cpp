// Ties the plug-in's core log to the logger.
#include "core/log/tvxCoreLog.h"

#include "core/log/tvxMayaLogger.h"

namespace tarvox::crowd {

namespace {

bool registerCoreLog()
{
    MayaLogger::getInstance().registerLog(coreLog(), "Crowd Render", core::kInfo);
    return true;
}

} // namespace

void startLogging()
{
    static const bool registered = registerCoreLog();
    static_cast<void>(registered);
    MayaLogger::getInstance().start();
}

} // namespace tarvox::crowd
