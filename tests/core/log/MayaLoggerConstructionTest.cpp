// How a new logger follows the user's preferences.
#include "LoggerTest.h"
#include "SystemCalls.h"

#include "core/log/tvxCoreLog.h"

#include <maya/MGlobal.h>

#include <gmock/gmock.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace tarvox::crowd {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MayaLoggerConstruction : public MayaLoggerTest
{
protected:
    // A line on every output of a new logger; what reached the console.
    std::string logOn(MayaLogger& logger)
    {
        testing::internal::CaptureStdout();
        logger.log(core::kInfo, "hello");
        return testing::internal::GetCapturedStdout();
    }
};

TEST_F(MayaLoggerConstruction, UsesTheScriptEditorAloneWithoutPreferences)
{
    const Owned logger = makeLogger();
    EXPECT_EQ(logOn(*logger), "");
    EXPECT_THAT(host.takeMessages(), ElementsAre("info|[TarvoxCrowd::INFO]\thello"));
}

TEST_F(MayaLoggerConstruction, CreatesNoPreferences)
{
    makeLogger();
    EXPECT_THAT(host.scene.optionVars().names(), IsEmpty());
}

TEST_F(MayaLoggerConstruction, DoesWithoutTheScriptEditorWhenItsPreferenceIsOff)
{
    MGlobal::setOptionVarValue("tvxPrefLogToSE", 0);
    logOn(*makeLogger());
    EXPECT_THAT(host.takeMessages(), IsEmpty());
}

TEST_F(MayaLoggerConstruction, UsesStandardOutputWhenItsPreferenceIsOn)
{
    MGlobal::setOptionVarValue("tvxPrefLogToOW", 1);
    EXPECT_EQ(logOn(*makeLogger()), "[TarvoxCrowd::INFO]\thello\n");
}

TEST_F(MayaLoggerConstruction, DoesWithoutStandardOutputWhenItsPreferenceIsOff)
{
    MGlobal::setOptionVarValue("tvxPrefLogToOW", 0);
    EXPECT_EQ(logOn(*makeLogger()), "");
}

TEST_F(MayaLoggerConstruction, TakesAnyNumberButZeroForOn)
{
    for (const int on : {-1, 2}) {
        MGlobal::setOptionVarValue("tvxPrefLogToSE", on);
        MGlobal::setOptionVarValue("tvxPrefLogToOW", on);
        MGlobal::setOptionVarValue("tvxPrefLogToFile", on);
        MGlobal::setOptionVarValue("tvxPrefLogDirectory", MString(folder.path().c_str()));
        EXPECT_EQ(logOn(*makeLogger()), "[TarvoxCrowd::INFO]\thello\n") << on;
        EXPECT_THAT(host.takeMessages(), ElementsAre("info|[TarvoxCrowd::INFO]\thello")) << on;
        EXPECT_EQ(folder.read("tvxCrowd.log"), "[TarvoxCrowd::INFO]\thello\n") << on;
    }
}

TEST_F(MayaLoggerConstruction, LeavesTheLogFileAloneWhenItsPreferenceIsOff)
{
    MGlobal::setOptionVarValue("tvxPrefLogToFile", 0);
    MGlobal::setOptionVarValue("tvxPrefLogDirectory", MString(folder.path().c_str()));
    folder.write("tvxCrowd.log", "of the last session\n");
    logOn(*makeLogger());
    EXPECT_EQ(folder.read("tvxCrowd.log"), "of the last session\n");
}

TEST_F(MayaLoggerConstruction, OpensTheLogFileWhenItsPreferenceIsOn)
{
    MGlobal::setOptionVarValue("tvxPrefLogToFile", 1);
    MGlobal::setOptionVarValue("tvxPrefLogDirectory", MString(folder.path().c_str()));
    folder.write("tvxCrowd.log", "of the last session\n");
    const Owned logger = makeLogger();
    EXPECT_EQ(folder.read("tvxCrowd.log"), "");
    logOn(*logger);
    EXPECT_EQ(folder.read("tvxCrowd.log"), "[TarvoxCrowd::INFO]\thello\n");
}

TEST_F(MayaLoggerConstruction, TurnsFileOutputOffWithoutAWordWhenTheFileCannotBeOpened)
{
    struct Counter : core::ILogEventListener
    {
        void onLogEvent(const core::LogEvent&) override { ++reports; }
        int reports = 0;
    } counter;
    coreLog().addLogEventListener(&counter);
    folder.write("taken", "a file");
    MGlobal::setOptionVarValue("tvxPrefLogToFile", 1);
    for (const std::string& unusable : {folder.path("none"), folder.path("taken"), std::string("/proc")}) {
        MGlobal::setOptionVarValue("tvxPrefLogDirectory", MString(unusable.c_str()));
        const Owned logger = makeLogger();
        EXPECT_THAT(host.takeMessages(), IsEmpty()) << unusable;
        EXPECT_EQ(MGlobal::optionVarIntValue("tvxPrefLogToFile"), 1) << "the preference stays";
        logOn(*logger);
        EXPECT_THAT(host.takeMessages(), ElementsAre("info|[TarvoxCrowd::INFO]\thello")) << unusable;
    }
    coreLog().removeLogEventListener(&counter);
    EXPECT_EQ(counter.reports, 0);
    EXPECT_EQ(folder.read("taken"), "a file");
}

TEST_F(MayaLoggerConstruction, OpensNoFileInALaterFolderAfterAFailureAndRemembersThatFileOutputIsOff)
{
    MGlobal::setOptionVarValue("tvxPrefLogToFile", 1);
    MGlobal::setOptionVarValue("tvxPrefLogDirectory", MString(folder.path("none").c_str()));
    makeLogger()->setLogDirectory(folder.path());
    EXPECT_EQ(folder.read("tvxCrowd.log"), "(no such file)");
    EXPECT_EQ(MGlobal::optionVarIntValue("tvxPrefLogToFile"), 0);
}

TEST_F(MayaLoggerConstruction, LooksForTheFileOnDriveCWithoutADirectory)
{
    const std::string before = std::filesystem::current_path();
    std::filesystem::create_directory(folder.path("c:"));
    std::filesystem::current_path(folder.path());
    MGlobal::setOptionVarValue("tvxPrefLogToFile", 1);
    logOn(*makeLogger());
    std::filesystem::current_path(before);
    EXPECT_EQ(folder.read("c:/tvxCrowd.log"), "[TarvoxCrowd::INFO]\thello\n");
}

TEST_F(MayaLoggerConstruction, TakesAnEmptyDirectoryForTheRoot)
{
    MGlobal::setOptionVarValue("tvxPrefLogToFile", 1);
    MGlobal::setOptionVarValue("tvxPrefLogDirectory", MString(""));
    test::SystemCalls system;
    system.opens = {test::Outcome{EACCES}};
    makeLogger();
    EXPECT_THAT(system.opened, ElementsAre("/tvxCrowd.log"));
}

TEST_F(MayaLoggerConstruction, BeginsTheTimeOfTheTimeStamps)
{
    test::SystemCalls system;
    system.clock = 1000000;
    const Owned logger = makeLogger();
    system.clock += 10;
    logger->log(core::kDebug, "before the start");
    EXPECT_THAT(host.takeMessages(), ElementsAre("info|[TarvoxCrowd::DEBUG]\t00:00:10  before the start"));
}

TEST_F(MayaLoggerConstruction, MakesWarningTheDefaultLevel)
{
    const Owned logger = makeLogger();
    EXPECT_EQ(logger->getLogLevelPreference("Unheard of"), core::kWarning);
    logger->indent(core::kInfo, 1);
    logOn(*logger);
    logger->indent(core::kWarning, 1);
    logOn(*logger);
    EXPECT_THAT(host.takeMessages(),
                ElementsAre("info|[TarvoxCrowd::INFO]\thello", "info|[TarvoxCrowd::INFO]\t  hello"));
}

TEST_F(MayaLoggerConstruction, DoesNotRun)
{
    core::Log log;
    const Owned logger = makeLogger();
    logger->registerLog(log, "Mine", core::kDebug);
    EXPECT_EQ(log.getSeverityFilter(), core::kWarning) << "the filter is set when the logger starts";
    logger->unregisterLog(log);
}

bool isCoreLogMade()
{
    return detail::coreLogFilter != &detail::kFilterOfNewLog;
}

// What is made first ends last: a logger reports, and detaches its logs, until its own end.
TEST_F(MayaLoggerConstruction, MakesTheCoreLogBeforeTheLogger)
{
    // In a process where nobody has asked for the log yet.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto construct = [] {
        const bool wasMade = isCoreLogMade();
        makeLogger();
        std::exit(!wasMade && isCoreLogMade() ? 0 : 1);
    };
    EXPECT_EXIT(construct(), testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace tarvox::crowd
