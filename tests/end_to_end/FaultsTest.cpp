// Failures of the API, told to happen: all that the program prints of each.
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost::test;
using testing::ElementsAre;

const char* const kEntryFile = "global/tvxCrowdRenderPlugin.cpp";
const char* const kLoadFailed = "Error: initializePlugin function failed (tvxCrowdRender)\n";

// The node types in the order in which they are registered.
const char* const kNodeTypes[] = {"CrowdRenderManagerNode",    "CrowdProxyVRay",
                                  "CrowdProxyRendermanStudio", "CrowdSwitchShaderVRay",
                                  "CrowdHSLShaderVRay",        "CrowdGetUserDataVRay",
                                  "CrowdSwitchShader3Delight", "CrowdGetUserData3Delight"};

std::string placeOf(const std::string& file, const std::string& statement)
{
    return "At line " + std::to_string(lineOfStatement(file, statement)) + " in file " + file + ": ";
}

std::string error(const std::string& file, const std::string& statement, const std::string& text)
{
    return "Error: [TarvoxCrowd::ERROR]\tCrowd Render: " + placeOf(file, statement) + text + "\n";
}

// What the entry point says of a step that Maya refuses.
std::string refused(const std::string& statement, const std::string& step,
                    const std::string& reason = "(kFailure): Unexpected Internal Failure")
{
    return error(kEntryFile, statement, "initializePlugin: Problem while " + step + " - " + reason);
}

std::string nodeRefused(const std::string& type)
{
    return refused("\"registering \" << row.name", "registering " + type + " node");
}

std::string loaded()
{
    return "[TarvoxCrowd::INFO]\tCrowd Render: " + placeOf(kEntryFile, "\" plugin loaded.\"") +
           "initializePlugin: tvxCrowdRender plugin loaded.\n"
           "tvxCrowdRender: loaded without user interface\n";
}

ProgramResult loadWithFault(const std::string& fault)
{
    return runHost({"--fail", fault, "--plugin", pluginFile()});
}

void expectFailedLoad(const std::string& fault, const std::string& errors)
{
    const ProgramResult result = loadWithFault(fault);
    EXPECT_EQ(result.exitCode, 1) << fault;
    EXPECT_EQ(result.output, "") << fault;
    EXPECT_EQ(result.errors, errors + kLoadFailed) << fault;
}

TEST(FailingCalls, OfThePluginItselfEndTheLoad)
{
    expectFailedLoad("MFnPlugin::MFnPlugin", refused("\"registering Plugin\"", "registering Plugin"));
}

TEST(FailingCalls, OfEachRegistrationEndTheLoadAndNameTheNodeType)
{
    for (std::size_t i = 0; i < std::size(kNodeTypes); ++i)
        expectFailedLoad("MFnPlugin::registerNode:" + std::to_string(i + 1), nodeRefused(kNodeTypes[i]));
}

TEST(FailingCalls, OfTheUserInterfaceEndTheLoad)
{
    expectFailedLoad("MFnPlugin::registerUI",
                     refused("\"registering Crowd Render UI\"", "registering Crowd Render UI"));
}

TEST(FailingCalls, GiveTheirReason)
{
    expectFailedLoad("MFnPlugin::registerUI:1:kInvalidParameter",
                     refused("\"registering Crowd Render UI\"", "registering Crowd Render UI",
                             "(kInvalidParameter): Invalid parameter"));
}

TEST(FailingCalls, OfARegistrationLeaveTheRowsBeforeItAndEndThere)
{
    const ProgramResult result =
        runHost({"--fail", "MFnPlugin::registerNode:3", "--list-calls", "--plugin", pluginFile(), "-e",
                 "createNode CrowdProxyVRay", "-e", "createNode CrowdProxyRendermanStudio"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors, nodeRefused("CrowdProxyRendermanStudio") + kLoadFailed +
                                 "Error: line 1: Unknown object type: CrowdProxyRendermanStudio\n");
    EXPECT_EQ(linesOf(result.output).front(), "crowdProxyVRayShape");
    EXPECT_EQ(linesWith(result.output, "MFnPlugin::registerNode").size(), 3u);
    EXPECT_EQ(linesWith(result.output, "MFnPlugin::registerUI").size(), 0u);
}

TEST(FailingCalls, OfAttributesAreReportedWithTheirPlaceAndThenThatOfTheirNode)
{
    expectFailedLoad("MPxNode::addAttribute:2",
                     error("rendering/tvxCrowdProxyVRay.cpp", "\"vrsceneFileDir\"", "Add attribute error") +
                         nodeRefused("CrowdProxyVRay"));
}

TEST(FailingCalls, OfDependenciesAreNotedOnStandardErrorAndTheLoadGoesOn)
{
    const std::string file = "rendering/tvxCrowdSwitchShaderVRay.cpp";
    const ProgramResult result = loadWithFault("MPxNode::attributeAffects:1");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, loaded());
    EXPECT_EQ(result.errors, "\nAPI error detected in " + file + " at line " +
                                 std::to_string(lineOfStatement(file, "TVX_CHECK_AFFECTS(*input")) +
                                 "\n(kFailure): Unexpected Internal Failure\n");
}

TEST(FailingCalls, WhileUnloadingLeaveThePluginLoaded)
{
    const ProgramResult result =
        runHost({"--fail", "MFnPlugin::deregisterNode:2", "--plugin", pluginFile(), "-e",
                 "unloadPlugin tvxCrowdRender", "-e", "pluginInfo -q -loaded tvxCrowdRender"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, loaded() + "1\n");
    EXPECT_EQ(result.errors,
              error(kEntryFile, "\"unregistering \" << row.name",
                    "uninitializePlugin: Problem while unregistering CrowdProxyVRay node - (kFailure): "
                    "Unexpected Internal Failure") +
                  "Error: line 1: uninitializePlugin function failed (tvxCrowdRender)\n");
}

TEST(FailingCalls, AreListedWithAllOthers)
{
    const ProgramResult result = runHost({"--list-calls", "--plugin", pluginFile()});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(linesWith(result.output, "MFnPlugin::registerUI"), ElementsAre("MFnPlugin::registerUI"));
    EXPECT_EQ(linesWith(result.output, "MFnPlugin::registerNode").size(), std::size(kNodeTypes));
}

} // namespace
