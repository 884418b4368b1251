// Data of a plug-in's own type through the whole program: set, connected, saved, opened with and without its
// plug-in.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace tvxhost::test;

class PluginData : public ::testing::Test
{
protected:
    /// A scene with data that was set, data that is computed, and none.
    void save()
    {
        const ProgramResult result = runHost(
            {"--plugin", TVX_DATA_PLUGIN, "-e", "createNode measureKeeper -n keeper", "-e",
             "createNode measureMaker -n maker", "-e", "createNode measureSum -n total", "-e",
             "createNode measureKeeper -n empty", "-e", "setMeasures keeper.kept \"the wall; 2\" 1.5 -2 40",
             "-e", "connectAttr keeper.kept total.measures", "--save", file});
        ASSERT_EQ(result.exitCode, 0) << result.errors;
    }

    TemporaryFolder folder;
    const std::string file = folder / "measures.ma";
};

TEST_F(PluginData, IsWrittenByItsPluginsCode)
{
    save();
    const std::string text = contentsOf(file);
    EXPECT_EQ(linesWith(text, "-type \"measures\""),
              (std::vector<std::string>{"\tsetAttr \".k\" -type \"measures\" \"the wall; 2\" 3 1.5 -2 40;"}));
    EXPECT_NE(
        text.find("requires -nodeType \"measureKeeper\" -nodeType \"measureMaker\" -nodeType \"measureSum\"\n"
                  "\t\t -dataType \"measures\" \"dataPlugin\" \"1.2\";\n"),
        std::string::npos)
        << text;
}

TEST_F(PluginData, IsReadByItsPluginsCodeAndFlowsOn)
{
    save();
    const ProgramResult result =
        runHost({"-e", "print (`tellMeasures keeper.kept` + \" \" + `getAttr total.sum` + \"\\n\")", "-e",
                 "connectAttr -f maker.made total.measures; setAttr maker.count 4", "-e",
                 "print (`getAttr total.sum` + \"\\n\")", file},
                {{"MAYA_PLUG_IN_PATH", TVX_DATA_PLUGIN_FOLDER}});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(linesWith(result.output, "39.5"), std::vector<std::string>{"the wall; 2:39.5 39.5"})
        << result.output;
    EXPECT_EQ(linesWith(result.output, "10"), std::vector<std::string>{"10"}) << "1 + 2 + 3 + 4";
}

TEST_F(PluginData, IsKeptWholeWithoutItsPlugin)
{
    save();
    const std::string before = contentsOf(file);
    const std::string copy = folder / "copy.ma";
    const ProgramResult without = runHost({"--save", copy, file});
    ASSERT_EQ(without.exitCode, 0) << without.errors;
    EXPECT_EQ(linesWith(contentsOf(copy), "-type \"measures\""), linesWith(before, "-type \"measures\""));
    const ProgramResult with = runHost({"--plugin", TVX_DATA_PLUGIN, "-e", "tellMeasures keeper.kept", copy});
    EXPECT_EQ(with.exitCode, 0) << with.errors;
    EXPECT_NE(with.output.find("the wall; 2:39.5"), std::string::npos) << with.output;
}

TEST_F(PluginData, ComesAndGoesWithUndo)
{
    const ProgramResult result =
        runHost({"--plugin", TVX_DATA_PLUGIN,
                 "-e",       "undoInfo -state on",
                 "-e",       "createNode transform -n box; addAttr -ln held -dt measures box",
                 "-e",       "setAttr box.held -type \"measures\" \"a\" 2 1 2",
                 "-e",       "setAttr box.held -type \"measures\" \"b\" 1 8",
                 "-e",       "undo",
                 "-e",       "print (\"told \" + `tellMeasures box.held` + \"\\n\")",
                 "-e",       "redo",
                 "-e",       "print (\"told \" + `tellMeasures box.held` + \"\\n\")",
                 "-e",       "duplicate -n copy box",
                 "-e",       "print (\"told copy \" + `tellMeasures copy.held` + \"\\n\")"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    std::vector<std::string> told = linesWith(result.output, "told ");
    EXPECT_EQ(told, (std::vector<std::string>{"told a:3", "told b:8", "told copy b:8"})) << result.output;
}

TEST_F(PluginData, WrongValuesAreOneErrorAndChangeNothing)
{
    const ProgramResult result =
        runHost({"--plugin", TVX_DATA_PLUGIN, "-e", "createNode measureKeeper -n keeper", "-e",
                 "setMeasures keeper.kept good 5", "-e", "setAttr keeper.kept -type \"measures\" \"a\" 3 1 2",
                 "-e", "tellMeasures keeper.kept"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors, "Error: line 1: setAttr: Error reading the values of type 'measures'\n");
    EXPECT_NE(result.output.find("good:5"), std::string::npos) << result.output;
}

TEST_F(PluginData, ThatCannotBeWrittenIsAnError)
{
    const ProgramResult result =
        runHost({"--plugin", TVX_DATA_PLUGIN, "-e", "createNode measureKeeper -n keeper", "-e",
                 "setMeasures keeper.kept unwritable 5", "--save", file});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors, "Error: The data of type 'measures' cannot be written.\n");
}

TEST_F(PluginData, InUseKeepsItsPluginLoaded)
{
    const ProgramResult result = runHost(
        {"--plugin", TVX_DATA_PLUGIN, "-e", "createNode transform -n box; addAttr -ln held -dt measures box",
         "-e", "print (\"free: \" + `pluginInfo -q -unloadOk dataPlugin` + \"\\n\")", "-e",
         "setAttr box.held -type \"measures\" \"a\" 2 1 2", "-e",
         "print (\"free: \" + `pluginInfo -q -unloadOk dataPlugin` + \"\\n\")", "-e",
         "unloadPlugin dataPlugin", "-e", "delete box", "-e", "unloadPlugin dataPlugin"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(linesWith(result.output, "free: "), (std::vector<std::string>{"free: 1", "free: 0"}));
    EXPECT_EQ(linesOf(result.errors).size(), 1u) << result.errors;
    EXPECT_NE(result.errors.find("cannot be unloaded because it is still in use"), std::string::npos)
        << result.errors;
}

TEST_F(PluginData, IsSavedWithItsNodesAlsoAfterThePluginWasForcedOut)
{
    const ProgramResult result =
        runHost({"--plugin", TVX_DATA_PLUGIN, "-e", "createNode measureKeeper -n keeper", "-e",
                 "createNode measureMaker -n maker; setAttr maker.count 7", "-e",
                 "setMeasures keeper.kept wall 5 6", "-e", "unloadPlugin -f dataPlugin", "--save", file});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const std::string text = contentsOf(file);
    EXPECT_EQ(linesWith(text, "setAttr \".k\""),
              (std::vector<std::string>{"\tsetAttr \".k\" -type \"measures\" \"wall\" 2 5 6;"}));
    EXPECT_EQ(linesWith(text, "setAttr \".c\""), (std::vector<std::string>{"\tsetAttr \".c\" 7;"}));
    EXPECT_EQ(linesWith(text, "requires -nodeType").size(), 1u) << text;
    const ProgramResult again =
        runHost({"-e", "print (`tellMeasures keeper.kept` + \" \" + `getAttr maker.count` + \"\\n\")", file},
                {{"MAYA_PLUG_IN_PATH", TVX_DATA_PLUGIN_FOLDER}});
    EXPECT_EQ(again.exitCode, 0) << again.errors;
    EXPECT_EQ(linesWith(again.output, "wall"), std::vector<std::string>{"wall:11 7"});
}

} // namespace
