// Failures of the API, told to happen: what the plug-in reports of each while it is loaded.
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost::test;
using testing::Contains;
using testing::HasSubstr;
using testing::MatchesRegex;

ProgramResult loadWithFault(const std::string& fault)
{
    return runHost({"--fail", fault, "--plugin", pluginFile()});
}

std::string errorOf(const std::string& text)
{
    return "Error: \\[TarvoxCrowd::ERROR\\]\tCrowd Render: At line [0-9]+ in file "
           "global/tvxCrowdRenderPlugin.cpp: " +
           text;
}

TEST(FailingCalls, OfTheFirstRegistrationEndTheLoad)
{
    const ProgramResult result = loadWithFault("MFnPlugin::registerNode:1:kFailure");
    EXPECT_EQ(result.exitCode, 1);
    const std::vector<std::string> errors = linesOf(result.errors);
    ASSERT_GE(errors.size(), 2u) << result.errors;
    EXPECT_THAT(errors[0],
                MatchesRegex(errorOf("initializePlugin: Problem while registering CrowdProxyVRay node - "
                                     ".*kFailure.*")));
    EXPECT_EQ(errors[1], "Error: initializePlugin function failed (tvxCrowdRender)");
    EXPECT_EQ(errors.size(), 2u);
}

TEST(FailingCalls, OfARegistrationLeaveTheRowsBeforeItAndEndThere)
{
    const ProgramResult result =
        runHost({"--fail", "MFnPlugin::registerNode:2", "--list-calls", "--plugin", pluginFile(), "-e",
                 "createNode CrowdProxyVRay", "-e", "createNode CrowdSwitchShaderVRay"});
    EXPECT_EQ(result.exitCode, 1);
    const std::vector<std::string> errors = linesOf(result.errors);
    ASSERT_EQ(errors.size(), 3u) << result.errors;
    EXPECT_THAT(errors[0],
                MatchesRegex(errorOf("initializePlugin: Problem while registering CrowdSwitchShaderVRay "
                                     "node - \\(kFailure\\): Unexpected Internal Failure")));
    EXPECT_EQ(errors[1], "Error: initializePlugin function failed (tvxCrowdRender)");
    EXPECT_THAT(errors[2], HasSubstr("CrowdSwitchShaderVRay"));
    EXPECT_THAT(linesOf(result.output), Contains("crowdProxyVRayShape"));
    EXPECT_EQ(linesWith(result.output, "MFnPlugin::registerNode").size(), 2u);
    EXPECT_EQ(linesWith(result.output, "MFnPlugin::registerUI").size(), 0u);
}

TEST(FailingCalls, OfTheUserInterfaceEndTheLoad)
{
    const ProgramResult result = loadWithFault("MFnPlugin::registerUI");
    EXPECT_EQ(result.exitCode, 1);
    ASSERT_FALSE(result.errors.empty());
    EXPECT_THAT(linesOf(result.errors)[0],
                MatchesRegex(errorOf("initializePlugin: Problem while registering Crowd Render UI - .*")));
}

TEST(FailingCalls, OfAttributesAreReportedUnderTheNodesName)
{
    const ProgramResult result = loadWithFault("MPxNode::addAttribute:2");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(linesOf(result.errors)[0],
                MatchesRegex("Error: \\[TarvoxCrowd::ERROR\\]\tCrowd Render: At line [0-9]+ in file "
                             "rendering/tvxCrowdProxyVRay.cpp: Add attribute error"));
}

TEST(FailingCalls, AreListedWithAllOthers)
{
    const ProgramResult result = runHost({"--list-calls", "--plugin", pluginFile()});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const std::vector<std::string> calls = linesOf(result.output);
    EXPECT_THAT(calls, Contains("MFnPlugin::registerUI"));
    EXPECT_EQ(linesWith(result.output, "MFnPlugin::registerNode").size(), 2u);
}

} // namespace
