// Loading the plug-in: the exact lines on the script editor, the console stream and in the log file.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost::test;
using testing::ElementsAre;
using testing::IsEmpty;

/// The line of the report that a load ends with, found in the source itself.
int lineOfReport(const std::string& piece)
{
    const std::vector<std::string> lines =
        linesOf(contentsOf(sourceRoot() / "global/tvxCrowdRenderPlugin.cpp"));
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].find(piece) != std::string::npos)
            return static_cast<int>(i) + 1;
    }
    ADD_FAILURE() << "no line holds " << piece;
    return 0;
}

std::string loadedLine()
{
    return "[TarvoxCrowd::INFO]\tCrowd Render: At line " + std::to_string(lineOfReport("plugin loaded.")) +
           " in file global/tvxCrowdRenderPlugin.cpp: initializePlugin: tvxCrowdRender plugin loaded.";
}

const std::string kBatchLine = "tvxCrowdRender: loaded without user interface";

/// A preferences folder that sends the log where a test looks.
class LoadTest : public testing::Test
{
protected:
    void prefer(const std::string& options)
    {
        writeFile(m_folder / "userPrefs.mel", "optionVar\n -sv \"tvxPrefLogDirectory\" \"" +
                                                  m_folder.path().string() + "\"\n" + options + ";\n");
    }
    ProgramResult run(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), {"--prefs", m_folder.path()});
        return runHost(arguments);
    }
    std::string log() const { return contentsOf(m_folder / "tvxCrowd.log"); }

    TemporaryFolder m_folder;
};

TEST_F(LoadTest, IsOneLineInTheScriptEditor)
{
    prefer("");
    const ProgramResult result = run({"--plugin", pluginFile()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, loadedLine() + "\n" + kBatchLine + "\n");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(log(), "");
}

TEST_F(LoadTest, IsOneLineInTheLogFile)
{
    prefer(" -iv \"tvxPrefLogToSE\" 0\n -iv \"tvxPrefLogToFile\" 1\n");
    const ProgramResult result = run({"--plugin", pluginFile()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, kBatchLine + "\n");
    EXPECT_EQ(log(), loadedLine() + "\n");
}

TEST_F(LoadTest, IsOneLineOnTheConsoleStream)
{
    prefer(" -iv \"tvxPrefLogToSE\" 0\n -iv \"tvxPrefLogToOW\" 1\n");
    const ProgramResult result = run({"--plugin", pluginFile()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, loadedLine() + "\n" + kBatchLine + "\n");
}

TEST_F(LoadTest, IsOneLineOnEachOfThemAtOnce)
{
    prefer(" -iv \"tvxPrefLogToOW\" 1\n -iv \"tvxPrefLogToFile\" 1\n");
    const ProgramResult result = run({"--plugin", pluginFile()});
    EXPECT_THAT(linesOf(result.output), ElementsAre(loadedLine(), loadedLine(), kBatchLine));
    EXPECT_EQ(log(), loadedLine() + "\n");
}

TEST_F(LoadTest, IsSilentBelowInfo)
{
    prefer(" -iv \"tvxPrefLogLevelForCrowd_Render\" 2\n");
    const ProgramResult result = run({"--plugin", pluginFile()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, kBatchLine + "\n");
}

TEST_F(LoadTest, KeepsTheLevelItCreatedInThePreferences)
{
    prefer("");
    run({"--plugin", pluginFile()});
    EXPECT_THAT(linesWith(contentsOf(m_folder / "userPrefs.mel"), "tvxPrefLogLevelForCrowd_Render"),
                ElementsAre(testing::HasSubstr("-iv \"tvxPrefLogLevelForCrowd_Render\" 3")));
}

TEST_F(LoadTest, TwiceLogsEachLoadOnce)
{
    prefer(" -iv \"tvxPrefLogToSE\" 0\n -iv \"tvxPrefLogToFile\" 1\n");
    const std::string name = "\"" + pluginFile().string() + "\"";
    const ProgramResult result = run({"-e", "loadPlugin " + name, "-e", "unloadPlugin tvxCrowdRender", "-e",
                                      "optionVar -iv \"tvxPrefLogToSE\" 1; loadPlugin " + name});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(linesWith(result.output + log(), "plugin loaded.").size(), 2u) << result.output << log();
    EXPECT_THAT(linesWith(result.output + log(), "plugin unloaded."), IsEmpty());
}

TEST_F(LoadTest, AThousandTimesInOneProcessEndsCleanly)
{
    prefer(" -iv \"tvxPrefLogToSE\" 0\n -iv \"tvxPrefLogToFile\" 0\n");
    const std::string name = "\"" + pluginFile().string() + "\"";
    const ProgramResult result = run(
        {"-e",
         "int $i; for ($i = 0; $i < 1000; $i++) { loadPlugin " + name + "; unloadPlugin tvxCrowdRender; }",
         "-e", "print (`pluginInfo -q -loaded tvxCrowdRender` + \"\\n\")"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(linesOf(result.output).back(), "0");
    EXPECT_EQ(linesWith(result.output, kBatchLine).size(), 1000u);
}

} // namespace
