// Writing scenes: the order of the file, its lines, and saving whole or not at all.
#include "SceneFixture.h"

#include "../support/temporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace tvxhost::scene {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class WriterTest : public SceneFixture
{
protected:
    engine::Node& make(const std::string& type, const std::string& name, const std::string& parent = {})
    {
        const auto made = scene.createNode(type, name, parent.empty() ? nullptr : node(parent).asDag());
        EXPECT_TRUE(made) << made.outcome.text;
        made.value->setUuid("AAAAAAAA-0000-0000-0000-000000000001");
        return *made.value;
    }

    void set(const std::string& plug, const std::vector<double>& values)
    {
        EXPECT_TRUE(engine::writeNumbers(scene.findPlug(plug).value, values)) << plug;
    }

    void connect(const std::string& from, const std::string& to)
    {
        const auto done = scene.connect(scene.findPlug(from).value, scene.findPlug(to).value);
        EXPECT_TRUE(done) << done.text;
    }
};

TEST_F(WriterTest, beginsAndEndsAsMayaDoes)
{
    ::setenv("TZ", "UTC", 1);
    ::tzset();
    const std::string text = saved();
    EXPECT_EQ(text.substr(0, text.find("fileInfo")), "//Maya ASCII 2016 scene\n"
                                                     "//Name: test.ma\n"
                                                     "//Last modified: Thu, Jan 01, 1970 12:00:00 AM\n"
                                                     "//Codeset: UTF-8\n"
                                                     "requires maya \"2016\";\n"
                                                     "currentUnit -l centimeter -a degree -t film;\n");
    EXPECT_THAT(text, testing::EndsWith("// End of test.ma\n"));
}

TEST_F(WriterTest, takesItsTimeFromTheEnvironmentWhenItIsFixedThere)
{
    ::setenv("SOURCE_DATE_EPOCH", "1458000000", 1);
    const std::string text = sceneText(scene, "x.ma");
    ::unsetenv("SOURCE_DATE_EPOCH");
    EXPECT_THAT(text, HasSubstr("//Last modified: Tue, Mar 15, 2016 12:00:00 AM\n"));
}

TEST_F(WriterTest, writesOnlyWhatDiffersFromTheDefault)
{
    make("transform", "a");
    set("a.translateX", {5});
    set("a.translateX", {0});
    set("a.scale", {1, 2, 1});
    EXPECT_EQ(savedSection("createNode transform -n \"a\""),
              std::string("createNode transform -n \"a\";\n") + kUid +
                  "\tsetAttr \".s\" -type \"double3\" 1 2 1 ;\n");
}

TEST_F(WriterTest, writesAnglesInDegreesAsTheyWereRead)
{
    read(std::string("createNode transform -n \"a\";\n") + kUid +
         "\tsetAttr \".r\" -type \"double3\" -2.7383527296028776 -17.400000000000166 30 ;\n");
    EXPECT_THAT(
        savedSection("createNode transform -n \"a\""),
        HasSubstr("\tsetAttr \".r\" -type \"double3\" -2.7383527296028776 -17.400000000000166 30 ;\n"));
}

TEST_F(WriterTest, writesStatesBesideTheValueOrAlone)
{
    make("transform", "a");
    engine::PlugState state;
    state.keyable = false;
    engine::setState(scene.findPlug("a.visibility").value, state);
    set("a.visibility", {0});
    state.locked = true;
    engine::setState(scene.findPlug("a.translateX").value, state);
    EXPECT_EQ(savedSection("createNode transform -n \"a\""), std::string("createNode transform -n \"a\";\n") +
                                                                 kUid +
                                                                 "\tsetAttr -k off \".v\" no;\n"
                                                                 "\tsetAttr -l on -k off \".tx\";\n");
}

TEST_F(WriterTest, writesThatTheVisibilityOfANewShapeIsNotKeyable)
{
    make("transform", "a");
    make("locator", "s", "a");
    EXPECT_EQ(savedSection("createNode locator"),
              std::string("createNode locator -n \"s\" -p \"a\";\n") + kUid + "\tsetAttr -k off \".v\";\n");
}

TEST_F(WriterTest, keepsWhatAFileSaysOfTheVisibilityOfAShape)
{
    const std::string silent = std::string("createNode locator -n \"s\" -p \"a\";\n") + kUid;
    for (const char* said : {"", "\tsetAttr -k off \".v\";\n", "\tsetAttr -k off \".v\" no;\n"}) {
        read("createNode transform -n \"a\";\n" + silent + said);
        EXPECT_EQ(savedSection("createNode locator"), silent + said);
    }
}

TEST_F(WriterTest, writesChildrenOneByOneWhenOneIsFed)
{
    make("transform", "a");
    make("transform", "b");
    set("b.translate", {1, 2, 3});
    connect("a.translateX", "b.translateX");
    EXPECT_EQ(savedSection("createNode transform -n \"b\""),
              std::string("createNode transform -n \"b\";\n") + kUid +
                  "\tsetAttr \".ty\" 2;\n\tsetAttr \".tz\" 3;\n");
    EXPECT_EQ(savedStatements("connectAttr \"a"), "connectAttr \"a.tx\" \"b.tx\";\n");
}

TEST_F(WriterTest, writesDagNodesDepthFirstThenInstancesThenTheOthers)
{
    make("lambert", "shader");
    make("transform", "a");
    make("transform", "b");
    make("mesh", "s", "a");
    ASSERT_TRUE(scene.addParent(*node("s").asDag(), *node("b").asDag()));
    const std::string text = saved();
    std::size_t last = 0;
    for (const char* line : {"createNode transform -n \"a\";", "createNode mesh -n \"s\" -p \"a\";",
                             "createNode transform -n \"b\";", "parent -s -nc -r -add \"|a|s\" \"b\" ;",
                             "createNode lambert -n \"shader\";", "select -ne :time1;"}) {
        const std::size_t at = text.find(line);
        ASSERT_NE(at, std::string::npos) << line;
        EXPECT_GT(at, last) << line;
        last = at;
    }
}

TEST_F(WriterTest, namesWorldSpaceElementsByTheirPath)
{
    make("transform", "a");
    make("transform", "b");
    make("mesh", "s", "a");
    ASSERT_TRUE(scene.addParent(*node("s").asDag(), *node("b").asDag()));
    make("shadingEngine", "sg");
    connect("s.instObjGroups[1]", "sg.dagSetMembers[0]");
    EXPECT_EQ(savedStatements("connectAttr \"|b"), "connectAttr \"|b|s.iog\" \"sg.dsm\" -na;\n");
}

TEST_F(WriterTest, putsTheSizeOfAnArrayBeforeItsElements)
{
    read(std::string("createNode mesh -n \"m\";\n") + kUid +
         "\tsetAttr -s 3 \".vt[0:2]\"  0 0 0 1 0 0 0.1 1 0;\n"
         "\tsetAttr -s 2 \".uvst\";\n"
         "\tsetAttr \".uvst[0].uvsn\" -type \"string\" \"map1\";\n"
         "\tsetAttr \".uvst[1].uvsn\" -type \"string\" \"map2\";\n");
    const std::string section = savedSection("createNode mesh");
    EXPECT_THAT(section, HasSubstr("\tsetAttr -s 3 \".vt[0:2]\"  0 0 0 1 0 0 0.1 1 0;\n"));
    EXPECT_THAT(section, HasSubstr("\tsetAttr -s 2 \".uvst\";\n"
                                   "\tsetAttr \".uvst[0].uvsn\" -type \"string\" \"map1\";\n"
                                   "\tsetAttr \".uvst[1].uvsn\" -type \"string\" \"map2\";\n"));
}

TEST_F(WriterTest, writesFacesWithTheTotalOfTheirEdges)
{
    const std::string faces = "\tsetAttr -s 2 -ch 7 \".fc[0:1]\" -type \"polyFaces\" \n"
                              "\t\tf 4 0 1 2 3\n\t\tmu 0 4 0 1 2 3\n\t\tf 3 4 5 -2\n\t\th 3 6 7 8;\n";
    read("createNode mesh -n \"m\";\n" + faces);
    EXPECT_THAT(savedSection("createNode mesh"), HasSubstr(faces));
}

TEST_F(WriterTest, breaksLongListsIntoStatementsOfFiveHundredValues)
{
    std::string values;
    for (int i = 0; i < 400; ++i)
        values += " " + std::to_string(i) + " 0.5";
    read("createNode mesh -n \"m\";\n\tsetAttr -s 400 \".uvst[0].uvsp[0:399]\" -type \"float2\"" + values +
         ";\n");
    const std::string section = savedSection("createNode mesh");
    EXPECT_THAT(section,
                HasSubstr("\tsetAttr -s 400 \".uvst[0].uvsp\";\n\tsetAttr \".uvst[0].uvsp[0:249]\" -type "
                          "\"float2\" 0 0.5 1 0.5"));
    EXPECT_THAT(section, HasSubstr("\tsetAttr \".uvst[0].uvsp[250:399]\" 250 0.5"));
}

TEST_F(WriterTest, leavesGapsOfArraysOut)
{
    read("createNode transform -n \"a\";\n\taddAttr -ci true -m -sn \"x\" -ln \"xs\" -at \"double\";\n"
         "\tsetAttr \".x[1]\" 4;\n\tsetAttr \".x[5:6]\"  7 8;\n");
    EXPECT_THAT(savedSection("createNode transform -n \"a\""), HasSubstr("\tsetAttr -s 3 \".x\";\n"
                                                                         "\tsetAttr \".x[1]\" 4;\n"
                                                                         "\tsetAttr \".x[5:6]\" 7 8;\n"));
}

TEST_F(WriterTest, escapesStringsAndJoinsLongOnes)
{
    make("script", "s");
    ASSERT_TRUE(engine::writeString(scene.findPlug("s.before").value, "say \"hi\"\n\tback\\slash"));
    EXPECT_THAT(savedSection("createNode script"),
                HasSubstr("\tsetAttr \".b\" -type \"string\" \"say \\\"hi\\\"\\n\\tback\\\\slash\";\n"));
    std::string text;
    while (text.size() < 3000)
        text += "line\n";
    ASSERT_TRUE(engine::writeString(scene.findPlug("s.before").value, text));
    EXPECT_THAT(savedSection("createNode script"),
                HasSubstr("\tsetAttr \".b\" -type \"string\" (\n\t\t\"line\\nline"));
    const std::string first = saved();
    openSceneText(scene, first, "test.ma");
    EXPECT_EQ(string("s.before"), text);
}

TEST_F(WriterTest, leavesUnsetStringsOut)
{
    make("script", "s");
    EXPECT_THAT(savedSection("createNode script"), Not(HasSubstr("string")));
}

TEST_F(WriterTest, declaresDynamicAttributesAsTheyWereDeclared)
{
    const std::string lines =
        "createNode transform -n \"a\";\n" + std::string(kUid) +
        "\taddAttr -ci true -k true -sn \"zw\" -ln \"weight\" -nn \"The Weight\" -dv 0.5 -min 0 \n"
        "\t\t-max 1 -at \"double\";\n"
        "\taddAttr -ci true -sn \"ze\" -ln \"mode\" -min 0 -max 5 -en \"off:low=3:high\" -at \"enum\";\n"
        "\taddAttr -ci true -h true -sn \"zn\" -ln \"notes\" -dt \"string\";\n"
        "\taddAttr -ci true -uac -sn \"zc\" -ln \"tint\" -at \"float3\" -nc 3;\n"
        "\taddAttr -ci true -sn \"zcr\" -ln \"tintR\" -at \"float\" -p \"tint\";\n"
        "\taddAttr -ci true -sn \"zcg\" -ln \"tintG\" -at \"float\" -p \"tint\";\n"
        "\taddAttr -ci true -sn \"zcb\" -ln \"tintB\" -at \"float\" -p \"tint\";\n"
        "\tsetAttr -k on \".zw\" 0.75;\n"
        "\tsetAttr \".ze\" 4;\n"
        "\tsetAttr \".zn\" -type \"string\" \"hello\";\n"
        "\tsetAttr \".zc\" -type \"float3\" 0.1 0.2 0.30000001 ;\n";
    read(lines);
    ASSERT_THAT(messages(), testing::IsEmpty());
    EXPECT_EQ(savedSection("createNode transform -n \"a\""), lines);
}

TEST_F(WriterTest, locksNodesBehindTheirLines)
{
    make("transform", "a").isLockedNode = true;
    EXPECT_THAT(saved(), HasSubstr(std::string(kUid) + "lockNode -l 1 ;\n"));
}

TEST_F(WriterTest, requiresThePluginsWhoseNodesAreInTheScene)
{
    engine::NodeType& type =
        *scene.types().add("crowdThing", 0x7f001, *scene.types().find("THdependNode")).value;
    type.plugin = "crowd";
    make("crowdThing", "thing");
    WriteOptions options;
    options.pluginVersion = [](const std::string& name) { return name == "crowd" ? "2.5.0.1" : ""; };
    EXPECT_THAT(
        sceneText(scene, "x.ma", options),
        HasSubstr("requires maya \"2016\";\nrequires -nodeType \"crowdThing\" \"crowd\" \"2.5.0.1\";\n"));
}

TEST_F(WriterTest, givesTheSameBytesAfterReadingThemBack)
{
    make("transform", "a");
    set("a.rotate", {0.1, 1.0 / 3, 2e-7});
    make("transform", "b", "a");
    set("b.translate", {1.0 / 3, 1e20, -0.1});
    connect("a.scale", "b.scale");
    const std::string first = saved();
    ASSERT_TRUE(openSceneText(scene, first, "test.ma").isClean());
    EXPECT_EQ(saved(), first);
}

class SavingTest : public WriterTest
{
protected:
    test::TemporaryFolder m_folder;
};

TEST_F(SavingTest, writesTheFileAndRemembersItsName)
{
    scene.isModified = true;
    ASSERT_TRUE(saveScene(scene, m_folder / "shot.ma"));
    EXPECT_THAT(m_folder.read("shot.ma"), testing::EndsWith("// End of shot.ma\n"));
    EXPECT_EQ(scene.fileName, m_folder.path("shot.ma"));
    EXPECT_FALSE(scene.isModified);
}

TEST_F(SavingTest, leavesNothingBesideTheFile)
{
    ASSERT_TRUE(saveScene(scene, m_folder / "shot.ma"));
    ASSERT_TRUE(saveScene(scene, m_folder / "shot.ma"));
    EXPECT_THAT(m_folder.names(), ElementsAre("shot.ma"));
}

TEST_F(SavingTest, failsWithOneErrorWhereThereIsNoFolder)
{
    scene.isModified = true;
    const engine::Outcome saved = saveScene(scene, m_folder / "none/shot.ma");
    EXPECT_FALSE(saved);
    EXPECT_THAT(saved.text, HasSubstr(m_folder.path("none/shot.ma")));
    EXPECT_THAT(saved.text, HasSubstr("No such file or directory"));
    EXPECT_TRUE(scene.isModified);
    EXPECT_EQ(scene.fileName, "");
}

TEST_F(WriterTest, aLineEndInTheNameOfTheFileDoesNotEndItsComment)
{
    const std::string text = sceneText(scene, "a\nb\r.ma");
    EXPECT_NE(text.find("\n//Name: a b .ma\n"), std::string::npos) << text.substr(0, 200);
    EXPECT_NE(text.find("\n// End of a b .ma\n"), std::string::npos);
    EXPECT_TRUE(openSceneText(scene, text, "/scenes/test.ma").isClean());
}

} // namespace tvxhost::scene
