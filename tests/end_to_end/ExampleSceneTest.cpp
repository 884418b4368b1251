// The example scene: it is read without a word, evaluates, and survives being saved.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<std::string> withPlugin(std::vector<std::string> more)
{
    more.insert(more.begin(), {"--plugin", pluginFile()});
    return more;
}

TEST(ExampleScene, IsReadWithoutWarningOrError)
{
    const ProgramResult result = runHost(withPlugin({exampleScene()}));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
}

TEST(ExampleScene, LoadsThePluginThatItRequires)
{
    const ProgramResult result =
        runHost({exampleScene(), "-e", "print (`pluginInfo -q -loaded tvxCrowdRender` + \"\\n\")"},
                {{"MAYA_PLUG_IN_PATH", pluginFile().parent_path()}});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(linesOf(result.output).back(), "1");
}

TEST(ExampleScene, EvaluatesEachNodeOfThePlugin)
{
    const ProgramResult result = runHost(withPlugin({"--evaluate", exampleScene()}));
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const std::vector<std::string> switches = linesWith(result.output, "Switch.output = ");
    // shader0 as it is set, as another switch gives it, and as a file texture without a picture gives it.
    EXPECT_THAT(switches, testing::Contains("standerSwitch.output = 0.55 0.14 0.12"));
    EXPECT_THAT(switches, testing::Contains("waverSwitch.output = 0.1 0.25 0.6"));
    EXPECT_EQ(switches.size(), 4u);
    EXPECT_THAT(linesWith(result.output, "crowdProxyVRayShape.sceneName"),
                ElementsAre("crowdProxyVRayShape.sceneName = \"band\""));
    EXPECT_EQ(linesWith(result.output, ".pythonCallback = ").size(), 8u);
    EXPECT_THAT(linesWith(result.output, "crowdProxyRMSShape1."),
                ElementsAre("crowdProxyRMSShape1.sceneName = \"backstage_left\"",
                            "crowdProxyRMSShape1.frame = 113", "crowdProxyRMSShape1.frameRate = 24",
                            "crowdProxyRMSShape1.ribFileDir = \"/shots/plaza/rib/backstage_left\""));
    EXPECT_THAT(linesWith(result.output, "crowdRenderManagerNodeShape"),
                ElementsAre("crowdRenderManagerNodeShape: no attributes of its own"));
    // The shift hands on what its switch gives: the colour of a file texture without a picture.
    EXPECT_THAT(linesWith(result.output, "walkerShift."), ElementsAre("walkerShift.output = 0 0 0"));
    EXPECT_THAT(linesWith(result.output, "clothesIndex.output"), ElementsAre("clothesIndex.output = 0"));
    EXPECT_THAT(linesWith(result.output, "clothes3Delight.shadingCode"),
                ElementsAre("clothes3Delight.shadingCode = \"outColor = clothes < 1 ? shader0 : shader1;\""));
    EXPECT_THAT(linesWith(result.output, "clothesIndex3Delight.shadingCode"),
                ElementsAre("clothesIndex3Delight.shadingCode = \"float clothes = fallback;\\n"
                            "attribute(\\\"user:clothes\\\", clothes);\""));
}

TEST(ExampleScene, UsesEveryNodeTypeOfThePlugin)
{
    const ProgramResult types =
        runHost(withPlugin({"-e", "string $t; for ($t in `pluginInfo -q -dependNode tvxCrowdRender`) "
                                  "print (\"type \" + $t + \"\\n\")"}));
    const std::vector<std::string> lines = linesWith(types.output, "type ");
    EXPECT_EQ(lines.size(), 8u);
    const std::string nodes = runHost(withPlugin({"--list-nodes", exampleScene()})).output;
    for (const std::string& line : lines)
        EXPECT_FALSE(linesWith(nodes, line.substr(5) + " ").empty()) << line;
}

TEST(ExampleScene, FollowsAConnectionMadeByAScript)
{
    const ProgramResult result = runHost(withPlugin(
        {exampleScene(), "-e", "connectAttr -f waverSwitch.output cheererSwitch.shader0", "-e",
         "setAttr waverSwitch.shader0 -type double3 0.25 0.5 0.75", "-e", "getAttr cheererSwitch.output"}));
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(linesOf(result.output).back(), "0.25 0.5 0.75");
}

TEST(ExampleScene, IsSavedSoThatReadingAndSavingAgainGivesTheSameBytes)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "again");
    const std::filesystem::path first = folder / "crowd_shot.ma";
    const std::filesystem::path second = folder / "again" / "crowd_shot.ma";
    const Environment clock{{"SOURCE_DATE_EPOCH", "1457345551"}};
    EXPECT_EQ(runHost(withPlugin({exampleScene(), "--save", first}), clock).exitCode, 0);
    EXPECT_EQ(runHost(withPlugin({first, "--save", second}), clock).exitCode, 0);
    const std::string saved = contentsOf(first);
    EXPECT_THAT(saved,
                HasSubstr("createNode CrowdProxyVRay -n \"crowdProxyVRayShape\" -p \"proxyStage\";\n"));
    EXPECT_THAT(saved, HasSubstr("\tsetAttr \".scn\" -type \"string\" \"band\";\n"));
    EXPECT_THAT(saved,
                HasSubstr("requires -nodeType \"CrowdGetUserData3Delight\" -nodeType \"CrowdGetUserDataVRay\""
                          " -nodeType \"CrowdHSLShaderVRay\"\n"
                          "\t\t -nodeType \"CrowdProxyRendermanStudio\" -nodeType \"CrowdProxyVRay\""
                          " -nodeType \"CrowdRenderManagerNode\"\n"
                          "\t\t -nodeType \"CrowdSwitchShader3Delight\" -nodeType \"CrowdSwitchShaderVRay\""
                          " \"tvxCrowdRender\" \"2.5.0.1\";\n"));
    EXPECT_EQ(saved, contentsOf(second));
}

TEST(ExampleScene, HoldsTheSameNodesAfterItWasSaved)
{
    const TemporaryFolder folder;
    const std::filesystem::path saved = folder / "saved.ma";
    const auto nodes = [](const std::filesystem::path& scene) {
        const ProgramResult result = runHost(withPlugin({"--list-nodes", scene}));
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        std::vector<std::string> lines = linesOf(result.output);
        std::sort(lines.begin(), lines.end());
        return lines;
    };
    EXPECT_EQ(runHost(withPlugin({exampleScene(), "--save", saved})).exitCode, 0);
    EXPECT_EQ(nodes(saved), nodes(exampleScene()));
}

TEST(ExampleScene, IsKeptWholeWhereThePluginIsMissing)
{
    const TemporaryFolder folder;
    const std::filesystem::path saved = folder / "without.ma";
    const ProgramResult without =
        runHost({exampleScene(), "--save", saved}, {{"MAYA_PLUG_IN_PATH", folder.path()}});
    EXPECT_EQ(without.exitCode, 0) << without.errors;
    EXPECT_EQ(linesWith(without.errors, "tvxCrowdRender").size(), 1u) << without.errors;
    // What the plug-in's nodes hold comes back when it is there again.
    const ProgramResult with = runHost(withPlugin({"--evaluate", saved}));
    EXPECT_EQ(with.exitCode, 0) << with.errors;
    EXPECT_EQ(with.errors, "");
    const ProgramResult original = runHost(withPlugin({"--evaluate", exampleScene()}));
    const auto sorted = [](const std::string& text) {
        std::vector<std::string> lines = linesOf(text);
        std::sort(lines.begin(), lines.end());
        return lines;
    };
    EXPECT_EQ(sorted(with.output), sorted(original.output));
}

TEST(ExampleScene, IsNotTouchedByARunThatOnlyReadsIt)
{
    const std::string before = contentsOf(exampleScene());
    runHost(withPlugin({exampleScene(), "-e", "delete proxies"}));
    EXPECT_EQ(contentsOf(exampleScene()), before);
}

} // namespace
