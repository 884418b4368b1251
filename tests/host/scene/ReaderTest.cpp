// Reading scenes: nodes, values, connections.
#include "SceneFixture.h"

#include "engine/data.h"
#include "engine/mesh.h"

#include <gmock/gmock.h>

#include <cmath>

namespace tvxhost::scene {

using testing::ElementsAre;
using testing::IsEmpty;

class ReaderTest : public SceneFixture
{
};

TEST_F(ReaderTest, makesNodesUnderTheirParentsWithTheirIdentifiers)
{
    const ReadResult result = read("createNode transform -n \"group1\";\n"
                                   "\trename -uid \"AAAAAAAA-0000-0000-0000-000000000001\";\n"
                                   "createNode mesh -n \"ballShape\" -p \"group1\";\n");
    EXPECT_TRUE(result.isClean());
    EXPECT_EQ(node("group1").uuid(), "AAAAAAAA-0000-0000-0000-000000000001");
    EXPECT_EQ(engine::DagPath::firstTo(*node("ballShape").asDag()).fullName(), "|group1|ballShape");
}

TEST_F(ReaderTest, takesValuesInTheUnitsOfTheFile)
{
    read("currentUnit -l meter -a degree -t pal;\n"
         "createNode transform -n \"a\";\n"
         "\tsetAttr \".t\" -type \"double3\" 1 2 3 ;\n"
         "\tsetAttr \".ry\" 90;\n");
    EXPECT_THAT(numbers("a.translate"), ElementsAre(100, 200, 300));
    EXPECT_DOUBLE_EQ(numbers("a.rotateY")[0], std::acos(-1.0) / 2);
}

TEST_F(ReaderTest, understandsBooleanWordsInEverySpelling)
{
    read("createNode transform -n \"a\";\n\tsetAttr \".v\" no;\n"
         "createNode transform -n \"b\";\n\tsetAttr \".v\" off;\n"
         "createNode transform -n \"c\";\n\tsetAttr \".v\" false;\n"
         "createNode transform -n \"d\";\n\tsetAttr \".v\" 0;\n");
    for (const char* name : {"a.visibility", "b.visibility", "c.visibility", "d.visibility"})
        EXPECT_THAT(numbers(name), ElementsAre(0)) << name;
}

TEST_F(ReaderTest, spreadsRangesOverElements)
{
    read("createNode mesh -n \"m\" ;\n"
         "\tsetAttr -s 4 \".vt[0:3]\"  0 0 0 1 0 0 1 1 0\n\t\t 0 1 0;\n"
         "\tsetAttr -s 4 \".ed[0:3]\"  0 1 0 1 2 0 2 3 0 3 0 0;\n"
         "\tsetAttr -ch 4 \".fc[0]\" -type \"polyFaces\" \n\t\tf 4 0 1 2 3;\n");
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_THAT(numbers("m.vrts[2]"), ElementsAre(1, 1, 0));
    EXPECT_THAT(numbers("m.edge[3]"), ElementsAre(3, 0, 0));
    const engine::MeshData* mesh = engine::meshOf(*node("m").asDag());
    ASSERT_NE(mesh, nullptr);
    EXPECT_EQ(mesh->points.size(), 4u);
    ASSERT_EQ(mesh->faces.size(), 1u);
    EXPECT_THAT(mesh->faces.outline(0), ElementsAre(0, 1, 2, 3));
}

TEST_F(ReaderTest, takesFurtherFacesWithoutTheirType)
{
    read("createNode mesh -n \"m\" ;\n"
         "\tsetAttr -s 4 \".vt[0:3]\"  0 0 0 1 0 0 1 1 0 0 1 0;\n"
         "\tsetAttr -s 5 \".ed[0:4]\"  0 1 0 1 2 0 2 3 0 3 0 0 0 2 0;\n"
         "\tsetAttr -s 2 -ch 6 \".fc\";\n"
         "\tsetAttr \".fc[0]\" -type \"polyFaces\" \n\t\tf 3 0 1 -5;\n"
         "\tsetAttr \".fc[1]\"\n\t\tf 3 4 2 3\n\t\tmu 0 3 0 1 2;\n");
    EXPECT_THAT(messages(), IsEmpty());
    const engine::MeshData* mesh = engine::meshOf(*node("m").asDag());
    ASSERT_NE(mesh, nullptr);
    ASSERT_EQ(mesh->faces.size(), 2u);
    EXPECT_THAT(mesh->faces.outline(1), ElementsAre(4, 2, 3));
}

TEST_F(ReaderTest, reportsARangeWithTooFewValues)
{
    const ReadResult result = read("createNode mesh -n \"m\" ;\n\tsetAttr \".vt[0:3]\"  0 0 0 1 0 0;\n");
    EXPECT_EQ(result.summary.errors, 1u);
    EXPECT_THAT(
        messages(),
        ElementsAre("Error: file: /scenes/test.ma line 3: setAttr: Error reading the values of 'm.vrts'\n",
                    "Error: Errors have occurred while reading this scene that may result in data loss.\n"));
}

TEST_F(ReaderTest, joinsStringsThatStandOnSeveralLines)
{
    read("createNode script -n \"s\";\n"
         "\tsetAttr \".b\" -type \"string\" (\n\t\t\"one \\\"two\\\"\\n\"\n\t\t+ \"three\");\n");
    EXPECT_EQ(string("s.before"), "one \"two\"\nthree");
}

TEST_F(ReaderTest, readsLinesThatEndInCarriageReturnAndLineFeed)
{
    const ReadResult result = openSceneText(scene,
                                            "//Maya ASCII 2016 scene\r\nrequires maya \"2016\";\r\n"
                                            "createNode transform -n \"a\";\r\n\tsetAttr \".tx\" 4;\r\n",
                                            "crlf.ma");
    EXPECT_TRUE(result.isClean());
    EXPECT_EQ(result.summary.version, "2016");
    EXPECT_THAT(numbers("a.tx"), ElementsAre(4));
}

TEST_F(ReaderTest, declaresDynamicAttributesAndCompounds)
{
    read("createNode transform -n \"a\";\n"
         "\taddAttr -ci true -k true -sn \"w\" -ln \"weight\" -dv 0.5 -min 0 -max 1 -at \"double\";\n"
         "\taddAttr -ci true -sn \"o\" -ln \"options\" -at \"compound\" -nc 2;\n"
         "\taddAttr -ci true -sn \"on\" -ln \"optionName\" -dt \"string\" -p \"options\";\n"
         "\taddAttr -ci true -sn \"zoc\" -ln \"optionColor\" -uac -at \"float3\" -p \"options\" -nc 3;\n"
         "\taddAttr -ci true -sn \"zocr\" -ln \"optionColorR\" -at \"float\" -p \"optionColor\";\n"
         "\taddAttr -ci true -sn \"zocg\" -ln \"optionColorG\" -at \"float\" -p \"optionColor\";\n"
         "\taddAttr -ci true -sn \"zocb\" -ln \"optionColorB\" -at \"float\" -p \"optionColor\";\n"
         "\tsetAttr -k on \".w\";\n"
         "\tsetAttr \".on\" -type \"string\" \"first\";\n"
         "\tsetAttr \".zoc\" -type \"float3\" 1 0.5 0.25 ;\n");
    ASSERT_THAT(messages(), IsEmpty());
    EXPECT_THAT(numbers("a.weight"), ElementsAre(0.5));
    EXPECT_EQ(string("a.optionName"), "first");
    EXPECT_THAT(numbers("a.optionColor"), ElementsAre(1, 0.5, 0.25));
}

TEST_F(ReaderTest, tellsOfCompoundsThatLackChildren)
{
    const ReadResult result = read("createNode transform -n \"a\";\n\taddAttr -ci true -sn \"o\" -ln "
                                   "\"options\" -at \"compound\" -nc 2;\n");
    EXPECT_EQ(result.summary.errors, 1u);
    EXPECT_EQ(messages().front(), "Error: file: /scenes/test.ma line 3: The compound attribute 'a.options' "
                                  "lacks some of its children\n");
}

TEST_F(ReaderTest, connectsAndPicksTheNextElementWhereTheIndexDoesNotMatter)
{
    const ReadResult result = read("createNode mesh -n \"aShape\";\n"
                                   "createNode mesh -n \"bShape\";\n"
                                   "createNode shadingEngine -n \"sg\";\n"
                                   "connectAttr \"aShape.iog\" \"sg.dsm\" -na;\n"
                                   "connectAttr \"bShape.iog\" \"sg.dsm\" -na;\n");
    EXPECT_EQ(result.summary.connections, 2u);
    EXPECT_EQ(source("sg.dagSetMembers[0]"), "aShape.instObjGroups[0]");
    EXPECT_EQ(source("sg.dagSetMembers[1]"), "bShape.instObjGroups[0]");
}

TEST_F(ReaderTest, takesTheInstanceThatAPathNames)
{
    read("createNode transform -n \"a\";\n"
         "createNode mesh -n \"s\" -p \"a\";\n"
         "createNode transform -n \"b\";\n"
         "parent -s -nc -r -add \"|a|s\" \"b\" ;\n"
         "createNode shadingEngine -n \"sg\";\n"
         "connectAttr \"|b|s.iog\" \"sg.dsm\" -na;\n");
    EXPECT_EQ(node("s").asDag()->parents().size(), 2u);
    EXPECT_EQ(source("sg.dagSetMembers[0]"), "s.instObjGroups[1]");
}

TEST_F(ReaderTest, locksDestinationsThatTheFileLocks)
{
    read("createNode transform -n \"a\";\ncreateNode transform -n \"b\";\n"
         "connectAttr \"a.tx\" \"b.tx\" -l on;\n");
    EXPECT_TRUE(engine::isLocked(scene.findPlug("b.tx").value));
}

TEST_F(ReaderTest, replacesWhatWasInTheSceneAndTheCamerasOfANewOne)
{
    ASSERT_TRUE(scene.createNode("transform", "old"));
    read("createNode transform -s -n \"persp\";\n\tsetAttr \".t\" -type \"double3\" 1 2 3 ;\n");
    EXPECT_FALSE(scene.findNode("old"));
    EXPECT_THAT(numbers("persp.translate"), ElementsAre(1, 2, 3));
    // What the file does not say is the attribute's own default, not that of a new scene's camera.
    EXPECT_THAT(numbers("persp.rotate"), ElementsAre(0, 0, 0));
    EXPECT_THAT(numbers("persp.visibility"), ElementsAre(1));
}

TEST_F(ReaderTest, setsDefaultNodesThroughSelect)
{
    read("select -ne :defaultResolution;\n\tsetAttr \".w\" 1280;\n");
    EXPECT_THAT(numbers(":defaultResolution.width"), ElementsAre(1280));
}

TEST_F(ReaderTest, bringsTheTimeOfTheFile)
{
    read("currentUnit -l centimeter -a degree -t film;\nselect -ne :time1;\n\tsetAttr \".o\" 48;\n");
    EXPECT_DOUBLE_EQ(scene.time(), 2.0);
}

TEST_F(ReaderTest, keepsWhatTheFileTellsOfItself)
{
    read("fileInfo \"application\" \"maya\";\nfileInfo \"studio\" \"Tarvox\";\n");
    EXPECT_THAT(scene.fileInfo, ElementsAre(std::pair<std::string, std::string>("application", "maya"),
                                            std::pair<std::string, std::string>("studio", "Tarvox")));
    EXPECT_EQ(scene.fileName, "/scenes/test.ma");
    EXPECT_FALSE(scene.isModified);
}

TEST_F(ReaderTest, locksNodes)
{
    read("createNode transform -n \"a\";\nlockNode -l 1 ;\n");
    EXPECT_TRUE(node("a").isLockedNode);
}

TEST_F(ReaderTest, warnsOncePerPluginThatIsMissing)
{
    const ReadResult result =
        read("requires \"stereoCamera\" \"10.0\";\nrequires \"stereoCamera\" \"10.0\";\n");
    EXPECT_EQ(result.summary.warnings, 1u);
    EXPECT_THAT(result.summary.plugins, ElementsAre("stereoCamera"));
    EXPECT_THAT(messages(),
                ElementsAre("Warning: file: /scenes/test.ma line 2: Plug-in, \"stereoCamera\", was not "
                            "found on MAYA_PLUG_IN_PATH.\n"));
}

TEST_F(ReaderTest, asksForEachRequiredPluginOnce)
{
    std::vector<std::string> asked;
    ReadOptions options;
    options.loadPlugin = [&](const std::string& name) {
        asked.push_back(name);
        return engine::Outcome();
    };
    read("requires -nodeType \"x\" \"crowd\" \"1\";\nrequires \"crowd\" \"1\";\n", options);
    EXPECT_THAT(asked, ElementsAre("crowd"));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(ReaderTest, warnsOncePerReferenceThatIsMissing)
{
    read("file -rdi 1 -ns \"r\" -rfn \"rRN\" -op \"v=0;\" -typ \"mayaAscii\" \"/no/such.ma\";\n"
         "file -r -ns \"r\" -dr 1 -rfn \"rRN\" -op \"v=0;\" -typ \"mayaAscii\" \"/no/such.ma\";\n");
    EXPECT_THAT(
        messages(),
        ElementsAre("Warning: file: /scenes/test.ma line 3: Reference file not found: \"/no/such.ma\"\n"));
}

TEST_F(ReaderTest, goesOnBehindErrorsAndSaysAtTheEndThatThereWereSome)
{
    const ReadResult result = read("createNode transform -n \"a\";\n"
                                   "\tsetAttr \".tx\" \"oops;\n"
                                   "\tsetAttr \".ty\" 2;\n"
                                   "connectAttr \"a.tx\" \"a.msg\";\n"
                                   "frobnicate 1 2;\n"
                                   "createNode transform -n \"b\";\n");
    EXPECT_TRUE(result.outcome);
    EXPECT_TRUE(scene.findNode("b"));
    EXPECT_EQ(messages().back(),
              "Error: Errors have occurred while reading this scene that may result in data loss.\n");
    EXPECT_EQ(result.summary.errors + 1, messages().size());
}

TEST_F(ReaderTest, refusesConnectionsThatDoNotFitButKeepsTheirText)
{
    const ReadResult result = read("createNode transform -n \"a\";\ncreateNode script -n \"s\";\n"
                                   "connectAttr \"a.tx\" \"s.b\";\n");
    EXPECT_EQ(result.summary.errors, 1u);
    EXPECT_EQ(
        messages().front(),
        "Error: file: /scenes/test.ma line 4: Connection not made: 'a.translateX' -> 's.before'.  Data types "
        "of source and destination are not compatible.\n");
    EXPECT_THAT(scene.keptConnections, ElementsAre("connectAttr \"a.tx\" \"s.b\";"));
}

TEST_F(ReaderTest, tellsHowFarItIs)
{
    std::size_t last = 0;
    ReadOptions options;
    options.progress = [&](std::size_t done, std::size_t total) {
        EXPECT_LE(done, total);
        last = done;
    };
    const std::string body = "createNode transform -n \"a\";\n";
    read(body, options);
    EXPECT_EQ(last, std::string(kHeader).size() + body.size());
}

TEST_F(ReaderTest, survivesAnIndexAtTheEndOfWhatFits)
{
    read("createNode transform -n \"a\";\n\taddAttr -ci true -m -sn \"x\" -ln \"xs\" -at \"double\";\n"
         "\tsetAttr \".x[2147483647]\" 3;\n");
    EXPECT_THAT(numbers("a.xs[2147483647]"), ElementsAre(3));
}

TEST_F(ReaderTest, readsEveryKindOfArrayData)
{
    read("createNode transform -n \"a\";\n"
         "\taddAttr -sn \"ai\" -ln \"ints\" -dt \"Int32Array\";\n"
         "\taddAttr -sn \"ad\" -ln \"doubles\" -dt \"doubleArray\";\n"
         "\taddAttr -sn \"av\" -ln \"vectors\" -dt \"vectorArray\";\n"
         "\taddAttr -sn \"as\" -ln \"strings\" -dt \"stringArray\";\n"
         "\taddAttr -sn \"mt\" -ln \"mat\" -dt \"matrix\";\n"
         "\tsetAttr \".ai\" -type \"Int32Array\" 3 1 -2 3 ;\n"
         "\tsetAttr \".ad\" -type \"doubleArray\" 2 0.5 1e-3 ;\n"
         "\tsetAttr \".vectors\" -type \"vectorArray\" 2 1 2 3 4 5 6 ;\n"
         "\tsetAttr \".as\" -type \"stringArray\" 2 \"a b\" \"c\"  ;\n"
         "\tsetAttr \".mt\" -type \"matrix\" 1 0 0 0 0 1 0 0 0 0 1 0 7 8 9 1;\n");
    EXPECT_THAT(messages(), IsEmpty());
    const auto data = [&](const char* plug) { return engine::readData(scene.findPlug(plug).value).value; };
    EXPECT_THAT(static_cast<engine::IntArrayData&>(*data("a.ints")).values, ElementsAre(1, -2, 3));
    EXPECT_THAT(static_cast<engine::DoubleArrayData&>(*data("a.doubles")).values, ElementsAre(0.5, 0.001));
    EXPECT_EQ(static_cast<engine::VectorArrayData&>(*data("a.vectors")).values[1], engine::Vec3d(4, 5, 6));
    EXPECT_EQ(static_cast<engine::StringArrayData&>(*data("a.strings")).values[0].str(), "a b");
    EXPECT_EQ(static_cast<engine::MatrixData&>(*data("a.mat")).value.translation(), engine::Vec3d(7, 8, 9));
}

TEST_F(ReaderTest, multipliesAMatrixFromThePartsOfATransform)
{
    // Scale 2, a quarter turn about z, moved by (1, 2, 3): x = (1, 0, 0) goes to (1, 4, 3).
    read("createNode dagPose -n \"p\";\n"
         "\tsetAttr \".xm[0]\" -type \"matrix\" \"xform\" 2 2 2 0 0 1.5707963267948966 0 1 2 3 0 0 0 0 0 0 0 "
         "0 0 0 0 0 "
         "0 0 0 0 0 0 1 0 0 0 1 1 1 1 yes;\n");
    EXPECT_THAT(messages(), IsEmpty());
    const auto data = engine::readData(scene.findPlug("p.xm[0]").value);
    ASSERT_TRUE(data);
    engine::Vec3d moved;
    static_cast<engine::MatrixData&>(*data.value).value.multVecMatrix(engine::Vec3d(1, 0, 0), moved);
    EXPECT_NEAR(moved.x, 1, 1e-12);
    EXPECT_NEAR(moved.y, 4, 1e-12);
    EXPECT_NEAR(moved.z, 3, 1e-12);
}

} // namespace tvxhost::scene
