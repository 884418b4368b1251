// How a new logger follows the user's preferences.
#include "LoggerTest.h"

#include <maya/MGlobal.h>

#include <gmock/gmock.h>

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
    MGlobal::setOptionVarValue("tvxPrefLogToFile", 1);
    MGlobal::setOptionVarValue("tvxPrefLogDirectory", MString(folder.path("none").c_str()));
    const Owned logger = makeLogger();
    EXPECT_THAT(host.takeMessages(), IsEmpty());
    // File output is off: moving the folder does not open a file.
    logger->setLogDirectory(folder.path());
    EXPECT_EQ(folder.read("tvxCrowd.log"), "(no such file)");
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

TEST_F(MayaLoggerConstruction, DoesNotRun)
{
    core::Log log;
    const Owned logger = makeLogger();
    logger->registerLog(log, "Mine", core::kDebug);
    EXPECT_EQ(log.getSeverityFilter(), core::kWarning) << "the filter is set when the logger starts";
    logger->unregisterLog(log);
}

} // namespace
} // namespace tarvox::crowd
