// Loading the plug-in: the exact lines on the script editor, the console stream and in the log file.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost::test;
using testing::ElementsAre;

std::string loadedLine()
{
    const std::string file = "global/tvxCrowdRenderPlugin.cpp";
    return "[TarvoxCrowd::INFO]\tCrowd Render: At line " +
           std::to_string(lineOfStatement(file, "\" plugin loaded.\"")) + " in file " + file +
           ": initializePlugin: tvxCrowdRender plugin loaded.";
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
    for (const std::string level : {"0", "1", "2"}) {
        prefer(" -iv \"tvxPrefLogToFile\" 1\n -iv \"tvxPrefLogLevelForCrowd_Render\" " + level + "\n");
        const ProgramResult result = run({"--plugin", pluginFile()});
        EXPECT_EQ(result.exitCode, 0) << level;
        EXPECT_EQ(result.output, kBatchLine + "\n") << level;
        EXPECT_EQ(result.errors, "") << level;
        EXPECT_EQ(log(), "") << level;
    }
}

TEST_F(LoadTest, IsToldFromInfoOn)
{
    for (const std::string level : {"3", "4"}) {
        prefer(" -iv \"tvxPrefLogToFile\" 1\n -iv \"tvxPrefLogLevelForCrowd_Render\" " + level + "\n");
        EXPECT_EQ(run({"--plugin", pluginFile()}).output, loadedLine() + "\n" + kBatchLine + "\n") << level;
        EXPECT_EQ(log(), loadedLine() + "\n") << level;
    }
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
    prefer(" -iv \"tvxPrefLogToOW\" 1\n -iv \"tvxPrefLogToFile\" 1\n");
    const std::string load = "loadPlugin \"" + pluginFile().string() + "\"";
    const ProgramResult result = run({"-e", load, "-e", "unloadPlugin tvxCrowdRender", "-e", load});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    // Of the script editor and of the console stream, then what the interface and loadPlugin say.
    const std::string once = loadedLine() + "\n" + loadedLine() + "\n" + kBatchLine + "\ntvxCrowdRender\n";
    EXPECT_EQ(result.output, once + "tvxCrowdRender\n" + once);
    EXPECT_EQ(log(), loadedLine() + "\n") << "the second load has emptied the file";
}

TEST_F(LoadTest, GoesOnWithoutALogFileThatCannotBeOpened)
{
    writeFile(m_folder / "taken", "a file");
    for (const std::string& folder :
         {(m_folder / "none").string(), (m_folder / "taken").string(), std::string("/proc")}) {
        writeFile(m_folder / "userPrefs.mel", "optionVar -iv \"tvxPrefLogToFile\" 1 -sv "
                                              "\"tvxPrefLogDirectory\" \"" +
                                                  folder + "\";\n");
        const ProgramResult result = run({"--plugin", pluginFile()});
        EXPECT_EQ(result.exitCode, 0) << folder;
        EXPECT_EQ(result.output, loadedLine() + "\n" + kBatchLine + "\n") << folder;
        EXPECT_EQ(result.errors, "") << folder;
    }
    EXPECT_EQ(contentsOf(m_folder / "taken"), "a file");
}

TEST_F(LoadTest, GoesOnWhenTheLogFileIsOnAFullDevice)
{
    std::filesystem::create_symlink("/dev/full", m_folder / "tvxCrowd.log");
    prefer(" -iv \"tvxPrefLogToFile\" 1\n");
    const ProgramResult result = run({"--plugin", pluginFile()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, loadedLine() + "\n" + kBatchLine + "\n");
    EXPECT_EQ(result.errors, "");
}

TEST_F(LoadTest, EmptiesTheLogFileOfTheLastSession)
{
    writeFile(m_folder / "tvxCrowd.log", "of the last session\n");
    prefer(" -iv \"tvxPrefLogToFile\" 1\n");
    run({"--plugin", pluginFile()});
    EXPECT_EQ(log(), loadedLine() + "\n");
}

TEST_F(LoadTest, AThousandTimesInOneProcessEndsCleanly)
{
    prefer(" -iv \"tvxPrefLogToSE\" 0\n -iv \"tvxPrefLogToOW\" 1\n");
    const std::string name = "\"" + pluginFile().string() + "\"";
    const ProgramResult result = run(
        {"-e",
         "int $i; for ($i = 0; $i < 1000; $i++) { loadPlugin " + name + "; unloadPlugin tvxCrowdRender; }",
         "-e", "print (`pluginInfo -q -loaded tvxCrowdRender` + \"\\n\")"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(linesOf(result.output).back(), "0");
    EXPECT_EQ(linesWith(result.output, kBatchLine).size(), 1000u);
    EXPECT_EQ(linesWith(result.output, loadedLine()).size(), 1000u);
    EXPECT_EQ(linesOf(result.output).size(), 2002u) << "these, and what the two texts give";
}

} // namespace
