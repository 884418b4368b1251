// The logger's life, its registered logs and its preferences.
#include "LoggerTest.h"
#include "SystemCalls.h"

#include "core/log/tvxCoreLog.h"

#include <tvxCore/Exception.h>

#include <maya/MGlobal.h>

#include <gmock/gmock.h>

#include <cerrno>
#include <climits>
#include <filesystem>
#include <string>
#include <utility>

namespace tarvox::crowd {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

int optionVar(const char* name)
{
    bool exists = false;
    const int value = MGlobal::optionVarIntValue(name, &exists);
    return exists ? value : -1;
}

class Logger : public SharedLoggerTest
{
protected:
    Logger() { logToConsole(); }

    core::Log log, other;
};

// Registration

TEST_F(Logger, ForwardsARegisteredLogWhileItRuns)
{
    registerLog(log, "Mine", core::kInfo);
    trace(log, core::kError, "before the start");
    logger.start();
    trace(log, core::kInfo, "running");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tMine: running\n");
}

TEST_F(Logger, ForwardsALogThatIsRegisteredWhileItRunsAtOnce)
{
    logger.start();
    registerLog(log, "Mine", core::kDebug);
    EXPECT_EQ(log.getSeverityFilter(), core::kDebug);
    trace(log, core::kInfo, "running");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tMine: running\n");
}

TEST_F(Logger, RegisteringTwiceNeitherAddsAListenerNorChangesTheFilter)
{
    logger.start();
    registerLog(log, "Mine", core::kInfo);
    logger.registerLog(log, "Other name", core::kDebug);
    EXPECT_EQ(log.getSeverityFilter(), core::kInfo);
    EXPECT_EQ(optionVar("tvxPrefLogLevelForOther_name"), -1);
    EXPECT_EQ(logger.getLogLevelPreference("Unheard of"), core::kInfo) << "the default level stays, too";
    trace(log, core::kInfo, "once");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tMine: once\n");
    logger.unregisterLog(log);
}

TEST_F(Logger, ALogThatWasRegisteredTwiceIsUnregisteredTwice)
{
    logger.start();
    logger.registerLog(log, "Mine", core::kInfo);
    logger.registerLog(log, "Mine", core::kInfo);
    logger.unregisterLog(log);
    trace(log, core::kInfo, "still there");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tMine: still there\n");
    logger.unregisterLog(log);
    trace(log, core::kInfo, "gone");
    EXPECT_EQ(takeConsole(), "");
}

TEST_F(Logger, UnregisteringAnUnknownLogChangesNothing)
{
    registerLog(log, "Mine", core::kInfo);
    logger.unregisterLog(other);
    EXPECT_EQ(logger.setSeverityFilterAll(core::kInfo, false), 1u);
}

TEST_F(Logger, UnregisteringMovesLaterLogsDown)
{
    logger.registerLog(log, "First", core::kInfo);
    registerLog(other, "Second", core::kInfo);
    logger.start();
    logger.unregisterLog(log);
    logger.setSeverityFilter(0, core::kCritical, false);
    EXPECT_EQ(other.getSeverityFilter(), core::kCritical);
    EXPECT_EQ(log.getSeverityFilter(), core::kInfo);
}

TEST_F(Logger, ALogMayBeUnregisteredWhileItsMessageIsUnderWay)
{
    class Unregistering : public core::ILogEventListener
    {
    public:
        Unregistering(MayaLogger& theLogger, core::Log& theLog) : m_logger(theLogger), m_log(theLog) {}
        void onLogEvent(const core::LogEvent&) override { m_logger.unregisterLog(m_log); }

    private:
        MayaLogger& m_logger;
        core::Log& m_log;
    } unregistering(logger, log);
    log.addLogEventListener(&unregistering);
    logger.registerLog(log, "Mine", core::kInfo);
    logger.start();
    trace(log, core::kInfo, "missed");
    EXPECT_EQ(takeConsole(), "");
}

// Start and stop

TEST_F(Logger, StopsForwardingAndStartsAgainWithoutRegisteringAnew)
{
    registerLog(log, "Mine", core::kInfo);
    logger.start();
    logger.stop();
    trace(log, core::kCritical, "stopped");
    EXPECT_EQ(takeConsole(), "");
    logger.start();
    trace(log, core::kInfo, "again");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tMine: again\n");
}

TEST_F(Logger, StartedWhileRunningForwardsOnceStill)
{
    registerLog(log, "Mine", core::kInfo);
    logger.start();
    logger.start();
    trace(log, core::kInfo, "once");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tMine: once\n");
}

TEST_F(Logger, SetsTheFiltersAndTheIndentationWhenItStarts)
{
    registerLog(log, "Mine", core::kInfo);
    logger.indent(core::kCritical, 2);
    log.setSeverityFilter(core::kCritical);
    logger.start();
    EXPECT_EQ(log.getSeverityFilter(), core::kInfo);
    trace(log, core::kInfo, "at the margin");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tMine: at the margin\n");
}

TEST_F(Logger, StoppingClosesTheFileAndStartingDoesNotOpenItAgain)
{
    logger.setLogDirectory(folder.path());
    logger.setUseFile(true);
    logger.start();
    logger.log(core::kInfo, "running");
    logger.stop();
    logger.log(core::kInfo, "stopped");
    logger.start();
    logger.log(core::kInfo, "started again");
    EXPECT_EQ(folder.read("tvxCrowd.log"), "[TarvoxCrowd::INFO]\trunning\n");
    EXPECT_EQ(optionVar("tvxPrefLogToFile"), 1);
}

TEST_F(Logger, StartingWhileRunningKeepsTheFileOpen)
{
    logger.setLogDirectory(folder.path());
    logger.start();
    logger.setUseFile(true);
    logger.start();
    logger.log(core::kInfo, "kept");
    EXPECT_EQ(folder.read("tvxCrowd.log"), "[TarvoxCrowd::INFO]\tkept\n");
}

TEST_F(Logger, FileOutputThatStopClosedIsStillInUseForANewDirectory)
{
    logger.setLogDirectory(folder.path("none"));
    logger.setLogDirectory(folder.path());
    logger.setUseFile(true);
    logger.stop();
    std::filesystem::create_directory(folder.path("later"));
    logger.setLogDirectory(folder.path("later"));
    logger.log(core::kInfo, "moved");
    EXPECT_EQ(folder.read("later/tvxCrowd.log"), "[TarvoxCrowd::INFO]\tmoved\n");
}

// Levels

TEST_F(Logger, KeepsTheLevelOfALogWithBlanksInItsNameUnderUnderscores)
{
    registerLog(log, "My Log", core::kDebug);
    EXPECT_EQ(optionVar("tvxPrefLogLevelForMy_Log"), core::kDebug);
    logger.setLogLevelPreference("My Log", core::kError);
    EXPECT_EQ(optionVar("tvxPrefLogLevelForMy_Log"), core::kError);
    EXPECT_EQ(logger.getLogLevelPreference("My Log"), core::kError);
}

TEST_F(Logger, MakesEveryBlankOfALogsNameAnUnderscoreAndKeepsTheOtherCharacters)
{
    logger.setLogLevelPreference(" My  other\tLog ", core::kInfo);
    EXPECT_EQ(optionVar("tvxPrefLogLevelFor_My__other\tLog_"), core::kInfo);
    EXPECT_EQ(host.scene.optionVars().exists("tvxPrefLogLevelFor My  other\tLog "), false);
}

TEST_F(Logger, TakesTheUsersLevelInsteadOfTheDefault)
{
    MGlobal::setOptionVarValue("tvxPrefLogLevelForMine", 1);
    logger.start();
    registerLog(log, "Mine", core::kDebug);
    EXPECT_EQ(log.getSeverityFilter(), core::kError);
    EXPECT_EQ(optionVar("tvxPrefLogLevelForMine"), core::kError);
}

TEST_F(Logger, GivesALogWithoutAPreferenceTheLatestDefaultLevel)
{
    registerLog(log, "First", core::kError);
    registerLog(other, "Second", core::kDebug);
    EXPECT_EQ(logger.getLogLevelPreference("Unheard of"), core::kDebug);
    EXPECT_EQ(optionVar("tvxPrefLogLevelForUnheard_of"), core::kDebug);
}

TEST_F(Logger, SetsOneFilterAtOnceWhileItRuns)
{
    registerLog(log, "First", core::kInfo);
    registerLog(other, "Second", core::kInfo);
    logger.start();
    logger.setSeverityFilter(1, core::kError, false);
    EXPECT_EQ(log.getSeverityFilter(), core::kInfo);
    EXPECT_EQ(other.getSeverityFilter(), core::kError);
    EXPECT_EQ(optionVar("tvxPrefLogLevelForSecond"), core::kInfo);
}

TEST_F(Logger, KeepsAFilterThatWasSetWhileItRanForTheNextStart)
{
    registerLog(log, "Mine", core::kInfo);
    logger.start();
    logger.setSeverityFilter(0, core::kDebug, false);
    logger.stop();
    log.setSeverityFilter(core::kCritical);
    logger.start();
    EXPECT_EQ(log.getSeverityFilter(), core::kDebug);
    EXPECT_EQ(optionVar("tvxPrefLogLevelForMine"), core::kInfo);
}

TEST_F(Logger, SetsAFilterForTheNextStartWhileItDoesNotRun)
{
    registerLog(log, "Mine", core::kInfo);
    logger.setSeverityFilter(0, core::kDebug, true);
    EXPECT_EQ(log.getSeverityFilter(), core::kWarning);
    EXPECT_EQ(optionVar("tvxPrefLogLevelForMine"), core::kDebug);
    logger.start();
    EXPECT_EQ(log.getSeverityFilter(), core::kDebug);
}

TEST_F(Logger, SetsAllFiltersAndCountsThem)
{
    registerLog(log, "First", core::kInfo);
    registerLog(other, "Second", core::kInfo);
    logger.start();
    EXPECT_EQ(logger.setSeverityFilterAll(core::kCritical, true), 2u);
    EXPECT_EQ(log.getSeverityFilter(), core::kCritical);
    EXPECT_EQ(other.getSeverityFilter(), core::kCritical);
    EXPECT_EQ(optionVar("tvxPrefLogLevelForFirst"), core::kCritical);
    EXPECT_EQ(optionVar("tvxPrefLogLevelForSecond"), core::kCritical);
}

TEST_F(Logger, SetsAllFiltersForTheNextStartWhileItDoesNotRun)
{
    registerLog(log, "First", core::kInfo);
    registerLog(other, "Second", core::kInfo);
    EXPECT_EQ(logger.setSeverityFilterAll(core::kDebug, false), 2u);
    EXPECT_EQ(log.getSeverityFilter(), core::kWarning);
    EXPECT_EQ(optionVar("tvxPrefLogLevelForSecond"), core::kInfo);
    logger.start();
    EXPECT_EQ(log.getSeverityFilter(), core::kDebug);
    EXPECT_EQ(other.getSeverityFilter(), core::kDebug);
}

TEST_F(Logger, SetsNoFilterWithoutLogs)
{
    EXPECT_EQ(logger.setSeverityFilterAll(core::kDebug, true), 0u);
    logger.setSeverityFilter(0, core::kDebug, true);
    EXPECT_THAT(host.takeMessages(), IsEmpty());
}

TEST_F(Logger, KnowsSeveritiesByNameInAnyCase)
{
    EXPECT_EQ(MayaLogger::severityFromName("critical"), 0);
    EXPECT_EQ(MayaLogger::severityFromName("Error"), 1);
    EXPECT_EQ(MayaLogger::severityFromName("WARNING"), 2);
    EXPECT_EQ(MayaLogger::severityFromName("iNFO"), 3);
    EXPECT_EQ(MayaLogger::severityFromName("debug"), 4);
    EXPECT_EQ(MayaLogger::severityFromName("verbose"), 5);
    EXPECT_EQ(MayaLogger::severityFromName(""), 5);
}

TEST_F(Logger, NamesSeverities)
{
    EXPECT_STREQ(MayaLogger::severityName(0), "critical");
    EXPECT_STREQ(MayaLogger::severityName(1), "error");
    EXPECT_STREQ(MayaLogger::severityName(2), "warning");
    EXPECT_STREQ(MayaLogger::severityName(3), "info");
    EXPECT_STREQ(MayaLogger::severityName(4), "debug");
    EXPECT_STREQ(MayaLogger::severityName(7), "unknownSeverityLevel");
    EXPECT_STREQ(MayaLogger::severityName(5), "unknownSeverityLevel");
    EXPECT_STREQ(MayaLogger::severityName(-1), "unknownSeverityLevel");
}

// Outputs

TEST_F(Logger, RemembersWhichOutputsAreOn)
{
    logger.setUseScriptEditor(true);
    EXPECT_EQ(optionVar("tvxPrefLogToSE"), 1);
    logger.setUseScriptEditor(false);
    EXPECT_EQ(optionVar("tvxPrefLogToSE"), 0);
    EXPECT_EQ(optionVar("tvxPrefLogToOW"), 1);
    logger.setOutputStream(nullptr);
    EXPECT_EQ(optionVar("tvxPrefLogToOW"), 0);
    logger.setLogDirectory(folder.path());
    EXPECT_EQ(MGlobal::optionVarStringValue("tvxPrefLogDirectory"), folder.path().c_str());
    logger.setUseFile(true);
    EXPECT_EQ(optionVar("tvxPrefLogToFile"), 1);
    logger.setUseFile(false);
    EXPECT_EQ(optionVar("tvxPrefLogToFile"), 0);
}

TEST_F(Logger, OpensTheFileEmptiedEachTimeItIsSwitchedOn)
{
    logger.setLogDirectory(folder.path());
    logger.setUseFile(true);
    logger.log(core::kInfo, "first");
    logger.setUseFile(true);
    logger.log(core::kInfo, "second");
    EXPECT_EQ(folder.read("tvxCrowd.log"), "[TarvoxCrowd::INFO]\tsecond\n");
    logger.setUseFile(false);
    logger.log(core::kInfo, "third");
    EXPECT_EQ(folder.read("tvxCrowd.log"), "[TarvoxCrowd::INFO]\tsecond\n");
}

TEST_F(Logger, MovesAnOpenFileToTheNewDirectory)
{
    logger.setLogDirectory(folder.path());
    logger.setUseFile(true);
    logger.log(core::kInfo, "here");
    std::filesystem::create_directory(folder.path("there"));
    logger.setLogDirectory(folder.path("there"));
    logger.log(core::kInfo, "there");
    EXPECT_EQ(folder.read("tvxCrowd.log"), "[TarvoxCrowd::INFO]\there\n");
    EXPECT_EQ(folder.read("there/tvxCrowd.log"), "[TarvoxCrowd::INFO]\tthere\n");
}

// Failures: each report comes through the plug-in's core log.

class LoggerFileFailure : public Logger
{
protected:
    LoggerFileFailure()
    {
        registerLog(coreLog(), "Crowd Render", core::kInfo);
        logger.start();
        coreLog().addLogEventListener(&place);
    }
    ~LoggerFileFailure() override { coreLog().removeLogEventListener(&place); }

    struct Place : core::ILogEventListener
    {
        void onLogEvent(const core::LogEvent& event) override
        {
            line = event.line;
            function = event.function;
            file = event.file;
        }
        int line = 0;
        std::string function, file;
    } place;

    // The line that a report at that place makes on the console.
    std::string errorLine(const std::string& text) const
    {
        return "[TarvoxCrowd::ERROR]\tCrowd Render: At line " + std::to_string(place.line) +
               " in file core/log/tvxMayaLogger.cpp: " + text + "\n";
    }
};

TEST_F(LoggerFileFailure, AFolderThatDoesNotExistIsReportedAndTurnsFileOutputOff)
{
    logger.setLogDirectory(folder.path("none"));
    EXPECT_EQ(takeConsole(), "");
    logger.setUseFile(true);
    EXPECT_EQ(takeConsole(),
              errorLine("Unable to create " + folder.path("none/tvxCrowd.log") + " as log file"));
    EXPECT_EQ(place.function, "tarvox::crowd::MayaLogger::setUseFile");
    EXPECT_EQ(place.file, "core/log/tvxMayaLogger.cpp");
    EXPECT_EQ(optionVar("tvxPrefLogToFile"), 1) << "the preference keeps what was asked for";
    logger.setLogDirectory(folder.path());
    EXPECT_EQ(folder.read("tvxCrowd.log"), "(no such file)") << "file output is off";
}

TEST_F(LoggerFileFailure, ANewFolderWritesThePreferenceAsFileOutputIsInUse)
{
    logger.setLogDirectory(folder.path("none"));
    logger.setUseFile(true);
    logger.setLogDirectory(folder.path());
    EXPECT_EQ(optionVar("tvxPrefLogToFile"), 0) << "the failure turned it off";
    logger.setUseFile(true);
    MGlobal::setOptionVarValue("tvxPrefLogToFile", 0);
    logger.setLogDirectory(folder.path());
    EXPECT_EQ(optionVar("tvxPrefLogToFile"), 1);
}

TEST_F(LoggerFileFailure, AFileInPlaceOfTheFolderIsReportedAndKept)
{
    folder.write("taken", "a file");
    logger.setLogDirectory(folder.path("taken"));
    logger.setUseFile(true);
    EXPECT_EQ(takeConsole(),
              errorLine("Unable to create " + folder.path("taken/tvxCrowd.log") + " as log file"));
    EXPECT_EQ(folder.read("taken"), "a file");
}

TEST_F(LoggerFileFailure, AnExistingFolderThatTakesNoFilesIsReported)
{
    logger.setLogDirectory("/proc");
    logger.setUseFile(true);
    EXPECT_EQ(takeConsole(), errorLine("Unable to create /proc/tvxCrowd.log as log file"));
}

TEST_F(LoggerFileFailure, NamesTheRootWhenTheFolderIsEmpty)
{
    logger.setLogDirectory("");
    test::SystemCalls system;
    system.opens = {test::Outcome{EACCES}};
    logger.setUseFile(true);
    EXPECT_EQ(takeConsole(), errorLine("Unable to create /tvxCrowd.log as log file"));
}

TEST_F(LoggerFileFailure, ACoreExceptionWhileItIsReportedIsLoggedInItsPlace)
{
    class Throwing : public core::ILogEventListener
    {
    public:
        void onLogEvent(const core::LogEvent&) override
        {
            if (first)
                throw core::Exception(std::exchange(first, nullptr));
        }
        const char* first = "no more room";
    } throwing;
    coreLog().addLogEventListener(&throwing);
    logger.setLogDirectory(folder.path("none"));
    EXPECT_NO_THROW(logger.setUseFile(true));
    coreLog().removeLogEventListener(&throwing);
    EXPECT_EQ(takeConsole(),
              errorLine("Unable to create " + folder.path("none/tvxCrowd.log") + " as log file") +
                  "[TarvoxCrowd::ERROR]\tCrowd Render: no more room\n");
    EXPECT_EQ(place.function, "tarvox::crowd::MayaLogger::setUseFile");
}

TEST_F(LoggerFileFailure, APathThatIsAFolderIsReported)
{
    std::filesystem::create_directory(folder.path("tvxCrowd.log"));
    logger.setLogDirectory(folder.path());
    logger.setUseFile(true);
    EXPECT_EQ(takeConsole(), errorLine("Unable to create " + folder.path("tvxCrowd.log") + " as log file"));
}

TEST_F(LoggerFileFailure, AFolderThatMayNotBeWrittenIsReported)
{
    logger.setLogDirectory(folder.path());
    test::SystemCalls system;
    system.opens = {test::Outcome{EACCES}};
    logger.setUseFile(true);
    EXPECT_EQ(takeConsole(), errorLine("Unable to create " + folder.path("tvxCrowd.log") + " as log file"));
}

TEST_F(LoggerFileFailure, AnOpenFileThatCannotBeMovedIsClosedAndReported)
{
    logger.setLogDirectory(folder.path());
    logger.setUseFile(true);
    logger.setLogDirectory(folder.path("none"));
    EXPECT_EQ(takeConsole(),
              errorLine("Unable to create " + folder.path("none/tvxCrowd.log") + " as log file"));
    logger.log(core::kInfo, "nowhere");
    EXPECT_EQ(folder.read("tvxCrowd.log"), "");
}

TEST_F(LoggerFileFailure, AnEmptyPathIsReported)
{
    forgetFilePath(logger);
    logger.setUseFile(true);
    EXPECT_EQ(takeConsole(), errorLine("Logger log file name in use is empty, cannot create log file"));
    EXPECT_EQ(place.function, "tarvox::crowd::MayaLogger::setUseFile");
    EXPECT_EQ(optionVar("tvxPrefLogToFile"), 1);
    logger.setLogDirectory(folder.path());
    EXPECT_EQ(folder.read("tvxCrowd.log"), "(no such file)") << "file output is off";
}

TEST_F(LoggerFileFailure, IsReportedWithAnyFilterThatAdmitsErrorsAndTurnsFileOutputOffWithEvery)
{
    for (int filter = core::kCritical; filter <= core::kDebug; ++filter) {
        coreLog().setSeverityFilter(filter);
        logger.setLogDirectory(folder.path("none"));
        logger.setUseFile(true);
        EXPECT_EQ(takeConsole(),
                  filter < core::kError
                      ? ""
                      : errorLine("Unable to create " + folder.path("none/tvxCrowd.log") + " as log file"))
            << filter;
        logger.setLogDirectory(folder.path());
        EXPECT_EQ(folder.read("tvxCrowd.log"), "(no such file)") << filter;
    }
}

// Indentation

TEST_F(Logger, IndentsAndUnindents)
{
    logger.indent(core::kCritical, 3);
    logger.log(core::kInfo, "deep");
    logger.unindent(core::kCritical, 1);
    logger.log(core::kInfo, "less");
    logger.resetIndent();
    logger.log(core::kInfo, "margin");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\t      deep\n"
                             "[TarvoxCrowd::INFO]\t    less\n"
                             "[TarvoxCrowd::INFO]\tmargin\n");
}

TEST_F(Logger, UnindentingBelowZeroLeavesZero)
{
    logger.indent(core::kCritical, 1);
    logger.unindent(core::kCritical, 5);
    logger.indent(core::kCritical, 1);
    logger.log(core::kInfo, "one");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\t  one\n");
}

TEST_F(Logger, HeedsIndentationUpToTheDefaultLevelOnly)
{
    registerLog(log, "Mine", core::kWarning);
    logger.indent(core::kInfo, 2);
    logger.log(core::kInfo, "margin");
    logger.indent(core::kWarning, 1);
    logger.unindent(core::kInfo, 1);
    logger.log(core::kInfo, "one");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tmargin\n[TarvoxCrowd::INFO]\t  one\n");
}

TEST_F(Logger, SurvivesAbsurdIndentation)
{
    logger.indent(core::kCritical, INT_MAX);
    logger.indent(core::kCritical, INT_MAX);
    logger.unindent(core::kCritical, INT_MAX - 1);
    logger.log(core::kInfo, "one");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\t  one\n");
    logger.unindent(core::kCritical, INT_MIN);
    logger.unindent(core::kCritical, INT_MAX);
    logger.indent(core::kCritical, -1);
    logger.log(core::kInfo, "margin");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tmargin\n");
}

// End

TEST_F(Logger, DetachesItsLogsWhenItEnds)
{
    {
        const Owned shortLived = makeLogger();
        shortLived->registerLog(log, "Mine", core::kInfo);
        shortLived->start();
    }
    trace(log, core::kCritical, "nobody hears");
    EXPECT_EQ(takeConsole(), "");
}

} // namespace
} // namespace tarvox::crowd
