// Messages of a core log on their way into Maya.
#include "LoggerTest.h"

#include "core/log/tvxMayaLogEventListener.h"

#include <gmock/gmock.h>

#include <string>

namespace tarvox::crowd {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LogEventListener : public SharedLoggerTest
{
protected:
    core::Log log;
};

TEST_F(LogEventListener, MarksMessagesWithTheNameOfTheLog)
{
    logToConsole();
    registerLog(log, "Crowd Render", core::kInfo);
    logger.start();
    trace(log, core::kInfo, "done");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tCrowd Render: done\n");
}

TEST_F(LogEventListener, SaysNothingAfterStopAndGoesOnAfterTheNextStart)
{
    logToConsole();
    registerLog(log, "Crowd Render", core::kInfo);
    logger.start();
    logger.stop();
    trace(log, core::kCritical, "unheard");
    EXPECT_EQ(takeConsole(), "");
    EXPECT_THAT(host.takeMessages(), IsEmpty());
    logger.start();
    trace(log, core::kInfo, "heard");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tCrowd Render: heard\n");
}

TEST_F(LogEventListener, PassesTheSeverityOn)
{
    registerLog(log, "L", core::kDebug);
    logger.start();
    log.setSeverityFilter(5);
    for (int severity = 0; severity <= 5; ++severity)
        if (severity != core::kDebug)
            trace(log, severity, "text");
    EXPECT_THAT(host.takeMessages(),
                ElementsAre("error|[TarvoxCrowd::CRITICAL]\tL: text", "error|[TarvoxCrowd::ERROR]\tL: text",
                            "warning|[TarvoxCrowd::WARNING]\tL: text", "info|[TarvoxCrowd::INFO]\tL: text"));
}

TEST_F(LogEventListener, PassesCodesWithoutAPlaceInTheScriptEditorToTheConsole)
{
    logger.setOutputStream(&console);
    MayaLogEventListener listener("L");
    listener.onLogEvent(core::LogEvent{5, "", 0, "", "text"});
    EXPECT_EQ(takeConsole(), "L: text\n");
    EXPECT_THAT(host.takeMessages(), IsEmpty());
}

TEST_F(LogEventListener, FiltersNothingItself)
{
    logToConsole();
    MayaLogEventListener listener("L");
    logger.resetIndent();
    listener.onLogEvent(core::LogEvent{core::kInfo, "", 0, "", "text"});
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tL: text\n");
}

TEST_F(LogEventListener, KeepsACopyOfTheName)
{
    std::string name = "First";
    const MayaLogEventListener listener(name);
    name = "Second";
    EXPECT_EQ(listener.logName(), "First");
}

TEST_F(LogEventListener, LogsAnEmptyMessage)
{
    logToConsole();
    MayaLogEventListener("").onLogEvent(core::LogEvent{core::kInfo, "", 0, "", ""});
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\t: \n");
}

} // namespace
} // namespace tarvox::crowd
