// How messages become lines on the logger's outputs.
#include "LoggerTest.h"
#include "SystemCalls.h"

#include <maya/MString.h>

#include <gmock/gmock.h>

#include <cerrno>
#include <filesystem>
#include <functional>
#include <ostream>
#include <sstream>
#include <string>

namespace tarvox::crowd {
namespace {

using test::Outcome;
using test::SystemCalls;
using testing::ElementsAre;
using testing::IsEmpty;

class LoggerOutput : public SharedLoggerTest
{
protected:
    void logToFile()
    {
        logger.setLogDirectory(folder.path());
        logger.setUseFile(true);
    }

    std::string file() const { return folder.read("tvxCrowd.log"); }

    core::Log log; ///< outlives its registration, which ends with the test
};

TEST_F(LoggerOutput, SendsEverySeverityToItsPlaceInTheScriptEditorWithoutALineEnd)
{
    for (int severity = 0; severity <= 3; ++severity)
        logger.log(severity, "text");
    EXPECT_THAT(host.takeMessages(),
                ElementsAre("error|[TarvoxCrowd::CRITICAL]\ttext", "error|[TarvoxCrowd::ERROR]\ttext",
                            "warning|[TarvoxCrowd::WARNING]\ttext", "info|[TarvoxCrowd::INFO]\ttext"));
}

TEST_F(LoggerOutput, GivesDebugLinesTheTimeSinceTheStart)
{
    SystemCalls system;
    system.clock = 1000000;
    logger.start();
    system.clock += 65;
    logger.log(core::kDebug, "text");
    logger.log(core::kInfo, "text");
    EXPECT_THAT(host.takeMessages(),
                ElementsAre("info|[TarvoxCrowd::DEBUG]\t00:01:05  text", "info|[TarvoxCrowd::INFO]\ttext"));
}

TEST_F(LoggerOutput, CountsTheTimeAnewFromEachStart)
{
    SystemCalls system;
    system.clock = 1000000;
    logger.start();
    system.clock += 3600;
    logger.start();
    logger.log(core::kDebug, "text");
    EXPECT_THAT(host.takeMessages(), ElementsAre("info|[TarvoxCrowd::DEBUG]\t00:00:00  text"));
}

TEST_F(LoggerOutput, IndentsBehindTheTimeStamp)
{
    SystemCalls system;
    system.clock = 1000000;
    logger.start();
    logger.indent(core::kCritical, 1);
    logger.log(core::kDebug, "text");
    EXPECT_THAT(host.takeMessages(), ElementsAre("info|[TarvoxCrowd::DEBUG]\t00:00:00    text"));
}

TEST_F(LoggerOutput, GivesConsoleAndFileTheLineWithItsEnd)
{
    logToConsole();
    logToFile();
    logger.log(core::kWarning, "text");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::WARNING]\ttext\n");
    EXPECT_EQ(file(), "[TarvoxCrowd::WARNING]\ttext\n");
    EXPECT_THAT(host.takeMessages(), IsEmpty());
}

TEST_F(LoggerOutput, GivesEveryOutputTheSameLinesOfEverySeverity)
{
    SystemCalls system;
    system.clock = 1000000;
    logger.start();
    system.clock += 3661;
    logger.setOutputStream(&console);
    logToFile();
    logger.indent(core::kCritical, 3);
    for (int severity = 0; severity <= 4; ++severity)
        logger.log(severity, "text");
    const std::string lines[] = {"[TarvoxCrowd::CRITICAL]\t      text", "[TarvoxCrowd::ERROR]\t      text",
                                 "[TarvoxCrowd::WARNING]\t      text", "[TarvoxCrowd::INFO]\t      text",
                                 "[TarvoxCrowd::DEBUG]\t01:01:01        text"};
    std::string all;
    for (const std::string& line : lines)
        all += line + "\n";
    EXPECT_THAT(host.takeMessages(),
                ElementsAre("error|" + lines[0], "error|" + lines[1], "warning|" + lines[2],
                            "info|" + lines[3], "info|" + lines[4]));
    EXPECT_EQ(takeConsole(), all);
    EXPECT_EQ(file(), all);
}

TEST_F(LoggerOutput, ReachesTheScriptEditorThenTheConsoleThenTheFile)
{
    class Watcher : public std::stringbuf
    {
    public:
        std::function<std::string()> file;
        std::string fileWhenFlushed;

    protected:
        int sync() override
        {
            fileWhenFlushed = file();
            return 0;
        }
    } watcher;
    watcher.file = [this] { return file(); };
    std::ostream stream(&watcher);
    std::string consoleWhenShown = "(not shown)";
    host.scene.scriptEditor().setListener(
        [&](const tvxhost::engine::Message&) { consoleWhenShown = watcher.str(); });
    logger.setOutputStream(&stream);
    logToFile();
    logger.log(core::kInfo, "first");
    logger.log(core::kInfo, "second");
    host.scene.scriptEditor().setListener(nullptr);
    logger.setOutputStream(nullptr);
    EXPECT_EQ(consoleWhenShown, "[TarvoxCrowd::INFO]\tfirst\n");
    EXPECT_EQ(watcher.fileWhenFlushed, "[TarvoxCrowd::INFO]\tfirst\n");
    EXPECT_EQ(file(), "[TarvoxCrowd::INFO]\tfirst\n[TarvoxCrowd::INFO]\tsecond\n");
}

TEST_F(LoggerOutput, IndentsLinesWithoutAPrefixToo)
{
    logger.setOutputStream(&console);
    logger.indent(core::kCritical, 2);
    logger.log(5, "five");
    EXPECT_EQ(takeConsole(), "    five\n");
}

TEST_F(LoggerOutput, SendsOtherSeveritiesToConsoleAndFileOnlyAndWithoutAPrefix)
{
    logger.setOutputStream(&console);
    logToFile();
    logger.log(5, "five");
    logger.log(-1, "minus one");
    EXPECT_EQ(takeConsole(), "five\nminus one\n");
    EXPECT_EQ(file(), "five\nminus one\n");
    EXPECT_THAT(host.takeMessages(), IsEmpty());
}

TEST_F(LoggerOutput, FlushesTheConsoleWithEachMessage)
{
    class FlushCounter : public std::stringbuf
    {
    public:
        int flushes = 0;

    protected:
        int sync() override
        {
            ++flushes;
            return 0;
        }
    } buffer;
    std::ostream stream(&buffer);
    logger.setUseScriptEditor(false);
    logger.setOutputStream(&stream);
    logger.log(core::kInfo, "a");
    logger.log(core::kInfo, "b");
    EXPECT_EQ(buffer.flushes, 2);
    logger.setOutputStream(nullptr);
}

TEST_F(LoggerOutput, WritesEachMessageToTheFileWithOneSystemCall)
{
    logger.setUseScriptEditor(false);
    logToFile();
    const std::string longText(100000, 'x');
    SystemCalls system;
    logger.log(core::kInfo, "short");
    logger.log(core::kDebug + 1, longText.c_str());
    logger.write(core::kInfo, true, "%d%s", 1, longText.c_str());
    EXPECT_THAT(system.written, ElementsAre("[TarvoxCrowd::INFO]\tshort\n", longText + "\n",
                                            "[TarvoxCrowd::INFO]\t1" + longText + "\n"));
}

TEST_F(LoggerOutput, WritesEachMessageToFileAndStandardOutputWithOneSystemCallEach)
{
    host.scene.optionVars().set("tvxPrefLogToOW", 1);
    host.scene.optionVars().set("tvxPrefLogToSE", 0);
    const Owned own = makeLogger();
    own->setLogDirectory(folder.path());
    own->setUseFile(true);
    testing::internal::CaptureStdout();
    {
        SystemCalls system;
        own->log(core::kInfo, "text");
        EXPECT_THAT(system.written,
                    ElementsAre("[TarvoxCrowd::INFO]\ttext\n", "[TarvoxCrowd::INFO]\ttext\n"));
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "[TarvoxCrowd::INFO]\ttext\n");
    EXPECT_EQ(file(), "[TarvoxCrowd::INFO]\ttext\n");
}

TEST_F(LoggerOutput, GoesOnAfterAFailedWrite)
{
    logToConsole();
    logToFile();
    {
        SystemCalls system;
        system.writes = {Outcome{ENOSPC}};
        logger.log(core::kInfo, "lost");
    }
    EXPECT_EQ(file(), "");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tlost\n");
    logger.setUseFile(true);
    logger.log(core::kInfo, "back");
    EXPECT_EQ(file(), "[TarvoxCrowd::INFO]\tback\n");
}

TEST_F(LoggerOutput, AFullDeviceSilencesTheFileAndNothingElse)
{
    logger.setOutputStream(&console);
    std::filesystem::create_symlink("/dev/full", folder.path("tvxCrowd.log"));
    logToFile();
    logger.log(core::kInfo, "first");
    logger.log(core::kInfo, "second");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tfirst\n[TarvoxCrowd::INFO]\tsecond\n");
    EXPECT_THAT(host.takeMessages(),
                ElementsAre("info|[TarvoxCrowd::INFO]\tfirst", "info|[TarvoxCrowd::INFO]\tsecond"));
    std::filesystem::remove(folder.path("tvxCrowd.log"));
    logger.setUseFile(true);
    logger.log(core::kInfo, "third");
    EXPECT_EQ(file(), "[TarvoxCrowd::INFO]\tthird\n");
}

TEST_F(LoggerOutput, StopsAllTheSameWhenTheFileCannotBeClosed)
{
    logToFile();
    SystemCalls system;
    system.closes = {Outcome{EIO}};
    logger.stop();
    EXPECT_THAT(system.closes, IsEmpty());
    logger.log(core::kInfo, "after");
    EXPECT_EQ(file(), "");
}

TEST_F(LoggerOutput, LogsAnEmptyTextButNotAnEmptyString)
{
    logToConsole();
    logger.log(core::kInfo, "");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\t\n");
    logger.log(core::kInfo, static_cast<const char*>(nullptr));
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\t\n");
    logger.log(core::kInfo, MString());
    EXPECT_EQ(takeConsole(), "");
    logger.log(core::kInfo, MString("text"));
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\ttext\n");
}

TEST_F(LoggerOutput, DoesNotCareForTheFlag)
{
    logToConsole();
    logger.log(core::kInfo, "a", false);
    logger.log(core::kInfo, MString("b"), false);
    logger.write(core::kInfo, false, "c");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\ta\n[TarvoxCrowd::INFO]\tb\n[TarvoxCrowd::INFO]\tc\n");
}

TEST_F(LoggerOutput, KeepsTextsOfSeveralLines)
{
    logToConsole();
    logger.log(core::kInfo, "one\ntwo");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tone\ntwo\n");
}

TEST_F(LoggerOutput, GivesLinesOfAnyLengthWhole)
{
    logToFile();
    std::string expected;
    for (const std::size_t length :
         {1, 400, 430, 431, 432, 433, 450, 490, 491, 492, 511, 512, 513, 100'000}) {
        const std::string text(length, 'x');
        logger.log(core::kInfo, text.c_str());
        EXPECT_THAT(host.takeMessages(), ElementsAre("info|[TarvoxCrowd::INFO]\t" + text));
        expected += "[TarvoxCrowd::INFO]\t" + text + "\n";
    }
    EXPECT_EQ(file(), expected);
}

TEST_F(LoggerOutput, IndentsByAnyDepth)
{
    logToFile();
    logger.indent(core::kCritical, 1000);
    logger.log(core::kError, "deep");
    EXPECT_EQ(file(), "[TarvoxCrowd::ERROR]\t" + std::string(2000, ' ') + "deep\n");
}

TEST_F(LoggerOutput, ANestedMessageLeavesTheOuterOneAlone)
{
    logToFile();
    const std::string more(1000, 'x');
    host.scene.scriptEditor().setListener([&](const tvxhost::engine::Message& message) {
        if (message.text.find("outer") != std::string::npos)
            logger.log(core::kInfo, ("inner, of another length than the other one" + more).c_str());
    });
    logger.log(core::kInfo, "outer");
    logger.log(core::kInfo, ("outer" + more).c_str());
    host.scene.scriptEditor().setListener(nullptr);
    const std::string inner =
        "[TarvoxCrowd::INFO]\tinner, of another length than the other one" + more + "\n";
    EXPECT_EQ(file(),
              inner + "[TarvoxCrowd::INFO]\touter\n" + inner + "[TarvoxCrowd::INFO]\touter" + more + "\n");
}

TEST_F(LoggerOutput, ANestedTraceOfTheSameLogLeavesTheOuterOneAlone)
{
    registerLog(log, "Mine", core::kInfo);
    logger.start();
    logger.setOutputStream(&console);
    host.scene.scriptEditor().setListener([&](const tvxhost::engine::Message& message) {
        if (message.text.find("outer") != std::string::npos)
            trace(log, core::kWarning, "inner, of another length than the other one");
    });
    trace(log, core::kInfo, "outer");
    host.scene.scriptEditor().setListener(nullptr);
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::WARNING]\tMine: inner, of another length than the other one\n"
                             "[TarvoxCrowd::INFO]\tMine: outer\n");
}

TEST_F(LoggerOutput, ALogMayBeUnregisteredByWhatItsOwnMessageSetsOff)
{
    registerLog(log, "Mine", core::kInfo);
    logger.start();
    logger.setOutputStream(&console);
    host.scene.scriptEditor().setListener(
        [this](const tvxhost::engine::Message&) { logger.unregisterLog(log); });
    trace(log, core::kInfo, "the last one");
    host.scene.scriptEditor().setListener(nullptr);
    trace(log, core::kInfo, "unheard");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tMine: the last one\n");
}

// write

TEST_F(LoggerOutput, ANestedWriteLeavesTheOuterOneAlone)
{
    logger.setOutputStream(&console);
    host.scene.scriptEditor().setListener([this](const tvxhost::engine::Message& message) {
        if (message.text.find("outer") != std::string::npos)
            logger.write(core::kWarning, true, "inner %d, of another length than the other one", 2);
    });
    logger.write(core::kInfo, true, "outer %d", 1);
    host.scene.scriptEditor().setListener(nullptr);
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::WARNING]\tinner 2, of another length than the other one\n"
                             "[TarvoxCrowd::INFO]\touter 1\n");
}

TEST_F(LoggerOutput, WritesAPercentageAtInfo)
{
    logToConsole();
    logger.write(core::kInfo, true, "%d%%", 50);
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\t50%\n");
}

TEST_F(LoggerOutput, WritesNothingForANullOrEmptyFormat)
{
    logToConsole();
    const char* const none = nullptr;
    logger.write(core::kInfo, true, none);
    const std::string empty;
    logger.write(core::kInfo, true, empty.c_str());
    EXPECT_EQ(takeConsole(), "");
}

TEST_F(LoggerOutput, WritesALineForAFormatWhoseTextIsEmpty)
{
    logToConsole();
    logger.write(core::kInfo, true, "%s", "");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\t\n");
}

TEST_F(LoggerOutput, ReportsAnUnknownConversionBeforeItsMessage)
{
    logToConsole();
    logger.write(core::kInfo, true, "a%qb");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::ERROR]\tMayaLogger::write(...) using unknown format %q\n"
                             "[TarvoxCrowd::INFO]\tab\n");
}

TEST_F(LoggerOutput, ReportsAnUnknownLongConversionBeforeItsMessage)
{
    logToConsole();
    logger.write(core::kWarning, true, "a long text before it %lxand %d behind", 7);
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::ERROR]\tMayaLogger::write(...) using unknown format %lx\n"
                             "[TarvoxCrowd::WARNING]\ta long text before it and 7 behind\n");
}

TEST_F(LoggerOutput, ReportsAnUnknownConversionOnEveryOutput)
{
    logger.setOutputStream(&console);
    logToFile();
    logger.write(core::kInfo, true, "%l%");
    EXPECT_THAT(host.takeMessages(),
                ElementsAre("error|[TarvoxCrowd::ERROR]\tMayaLogger::write(...) using unknown format %l%",
                            "info|[TarvoxCrowd::INFO]\t"));
    EXPECT_EQ(file(), "[TarvoxCrowd::ERROR]\tMayaLogger::write(...) using unknown format %l%\n"
                      "[TarvoxCrowd::INFO]\t\n");
    EXPECT_EQ(takeConsole(), file());
}

TEST_F(LoggerOutput, DropsAPercentSignAtTheEndWithoutAReport)
{
    logToConsole();
    logger.write(core::kInfo, true, "100%");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\t100\n");
}

TEST_F(LoggerOutput, ReportsEachUnknownConversion)
{
    logToConsole();
    logger.write(core::kInfo, true, "%5d and %-3s");
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::ERROR]\tMayaLogger::write(...) using unknown format %5\n"
                             "[TarvoxCrowd::ERROR]\tMayaLogger::write(...) using unknown format %-\n"
                             "[TarvoxCrowd::INFO]\td and 3s\n");
}

TEST_F(LoggerOutput, WritesEveryConversion)
{
    logToConsole();
    logger.write(core::kInfo, true, "%c %d %i %u %f %s %p %ld %li %lf", 'x', -1, 2, 3u, 0.25, "text",
                 reinterpret_cast<void*>(0x2A), -4L, 5L, 0.1);
    EXPECT_EQ(takeConsole(), "[TarvoxCrowd::INFO]\tx -1 2 3 0.25 text 0x2a -4 5 0.1\n");
}

} // namespace
} // namespace tarvox::crowd
