// The plug-in's user interface: a menu where there is an interface, one line where there is none.
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost::test;
using testing::HasSubstr;

std::string answerTo(const std::vector<std::string>& words)
{
    const ProgramResult result = runHost(words);
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const std::vector<std::string> lines = linesOf(result.output);
    return lines.empty() ? "" : lines.back();
}

/// Prints a MEL expression of type string as the last line.
std::string shown(const std::string& expression)
{
    return "print ((" + expression + ") + \"\\n\")";
}

TEST(UserInterface, IsAMenuWithAnItemPerNodeType)
{
    EXPECT_EQ(answerTo({"--interactive", "--plugin", pluginFile(), "-e",
                        shown("stringArrayToString(`menu -q -itemArray tvxCrowdRenderMenu`, \" \")")}),
              "tvxCreateCrowdRenderManagerNode tvxCreateCrowdProxyVRay tvxCreateCrowdProxyRendermanStudio "
              "tvxCreateCrowdSwitchShaderVRay tvxCreateCrowdHSLShaderVRay tvxCreateCrowdGetUserDataVRay "
              "tvxCreateCrowdSwitchShader3Delight tvxCreateCrowdGetUserData3Delight");
    EXPECT_EQ(answerTo({"--interactive", "--plugin", pluginFile(), "-e",
                        shown("`menu -q -label tvxCrowdRenderMenu`")}),
              "Crowd Render");
}

TEST(UserInterface, ItemsCreateTheirNodes)
{
    EXPECT_EQ(answerTo({"--interactive", "--plugin", pluginFile(), "-e",
                        "eval(`menuItem -q -command tvxCreateCrowdProxyVRay`)", "-e",
                        shown("size(`ls -type CrowdProxyVRay`)")}),
              "1");
}

TEST(UserInterface, IsMadeOnceAndRemovedWhole)
{
    EXPECT_EQ(
        answerTo({"--interactive", "--plugin", pluginFile(), "-e",
                  "tvxCrowdRenderCreateUI(); " + shown("size(`menu -q -itemArray tvxCrowdRenderMenu`)")}),
        "8");
    EXPECT_EQ(answerTo({"--interactive", "--plugin", pluginFile(), "-e", "unloadPlugin tvxCrowdRender", "-e",
                        shown("`menu -exists tvxCrowdRenderMenu`")}),
              "0");
}

TEST(UserInterface, InBatchIsOneLineAndNoMenu)
{
    const ProgramResult result =
        runHost({"--plugin", pluginFile(), "-e", shown("`menu -exists tvxCrowdRenderMenu`")});
    EXPECT_EQ(linesWith(result.output, "tvxCrowdRender: loaded without user interface").size(), 1u);
}

TEST(UserInterface, MissingProceduresAreAnErrorAndTheLoadSucceeds)
{
    const ProgramResult result =
        runHost({"--plugin", pluginFile(), "-e", shown("`pluginInfo -q -loaded tvxCrowdRender`")},
                {{"MAYA_SCRIPT_PATH", "/nonexistent"}});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors, "Error: line 1: Cannot find procedure \"tvxCrowdRenderBatchMode\".\n");
    EXPECT_EQ(linesOf(result.output).back(), "1");
}

} // namespace
