// What the host does not understand is kept and comes back in the saved file.
#include "SceneFixture.h"

#include <gmock/gmock.h>

namespace tvxhost::scene {

using testing::ElementsAre;
using testing::HasSubstr;

class UnknownTest : public SceneFixture
{
};

TEST_F(UnknownTest, nodesOfUnknownTypesKeepAllTheirLines)
{
    const std::string lines = "createNode FancyShader -n \"fancy\";\n"
                              "\trename -uid \"AAAAAAAA-0000-0000-0000-000000000001\";\n"
                              "\taddAttr -ci true -sn \"nts\" -ln \"notes\" -dt \"string\";\n"
                              "\tsetAttr \".col\" -type \"float3\" 0.1 0.2 0.3 ;\n"
                              "\tsetAttr -k off \".weird[0:1].data\" -type \"blob\" 1 2\n\t\t3 4;\n";
    const ReadResult result = read(lines);
    EXPECT_EQ(result.summary.errors, 0u);
    EXPECT_EQ(node("fancy").type().name, "unknown");
    EXPECT_EQ(result.summary.nodes.at("FancyShader"), 1u);
    EXPECT_EQ(savedSection("createNode FancyShader"), lines);
    EXPECT_EQ(messages().front(),
              "Warning: file: /scenes/test.ma line 2: Unrecognized node type 'FancyShader'; its "
              "nodes are kept as they are in the file.\n");
}

TEST_F(UnknownTest, eachUnknownTypeIsWarnedOfOnce)
{
    const ReadResult result =
        read("createNode Fancy -n \"a\";\ncreateNode Fancy -n \"b\";\ncreateNode Other -n \"c\";\n");
    EXPECT_EQ(result.summary.warnings, 2u);
    EXPECT_EQ(result.summary.nodes.at("Fancy"), 2u);
}

TEST_F(UnknownTest, shapesBelowTransformsStayThere)
{
    read("createNode transform -n \"a\";\ncreateNode FancyShape -n \"s\" -p \"a\";\n");
    EXPECT_EQ(engine::DagPath::firstTo(*node("s").asDag()).fullName(), "|a|s");
    EXPECT_THAT(savedSection("createNode FancyShape"),
                HasSubstr("createNode FancyShape -n \"s\" -p \"a\";\n"));
}

TEST_F(UnknownTest, nodesThatTurnOutToBeParentsBecomeTransforms)
{
    const ReadResult result = read("createNode FancyRig -n \"rig\";\n\tsetAttr \".x\" 1;\n"
                                   "createNode FancyBone -n \"bone\" -p \"rig\";\n"
                                   "createNode transform -n \"t\" -p \"bone\";\n");
    EXPECT_EQ(result.summary.errors, 0u);
    EXPECT_EQ(engine::DagPath::firstTo(*node("t").asDag()).fullName(), "|rig|bone|t");
    EXPECT_THAT(node("rig").keptLines, ElementsAre("setAttr \".x\" 1;"));
}

TEST_F(UnknownTest, attributesOfKnownNodesAreKeptWithTheNode)
{
    const ReadResult result = read("createNode camera -n \"c\";\n"
                                   "\trename -uid \"AAAAAAAA-0000-0000-0000-000000000001\";\n"
                                   "\tsetAttr \".mtco_blades\" 3;\n");
    EXPECT_TRUE(result.isClean());
    EXPECT_EQ(result.summary.keptStatements, 1u);
    EXPECT_THAT(savedSection("createNode camera -n"), HasSubstr("\n\tsetAttr \".mtco_blades\" 3;\n"));
}

TEST_F(UnknownTest, connectionsOfUnknownAttributesAreKept)
{
    const ReadResult result = read("createNode FancyShader -n \"f\";\ncreateNode shadingEngine -n \"sg\";\n"
                                   "connectAttr \"f.oc\" \"sg.ss\";\n");
    EXPECT_EQ(result.summary.errors, 0u);
    EXPECT_EQ(savedStatements("connectAttr \"f."), "connectAttr \"f.oc\" \"sg.ss\";\n");
}

TEST_F(UnknownTest, connectionsOfAttributesThatWereAddedToUnknownNodesAreReal)
{
    read("createNode Fancy -n \"f\";\n\taddAttr -ci true -sn \"w\" -ln \"weight\" -at \"double\";\n"
         "createNode transform -n \"t\";\nconnectAttr \"f.w\" \"t.tx\";\n");
    EXPECT_NE(source("t.tx"), "");
}

TEST_F(UnknownTest, relationshipsAndMetadataComeBackInTheirOrder)
{
    const std::string relationship = "relationship \"link\" \":lightLinker1\" "
                                     "\":initialShadingGroup.message\" \":defaultLightSet.message\";\n";
    const std::string metadata = "dataStructure -fmt \"raw\" -as \"name=x:string=y\";\n";
    read(relationship + metadata);
    const std::string text = saved();
    EXPECT_LT(text.find(relationship), text.find(metadata));
    EXPECT_NE(text.find(metadata), std::string::npos);
}

TEST_F(UnknownTest, sectionsOfMissingDefaultNodesAreKept)
{
    const std::string section = "select -ne :fancyGlobals;\n\tsetAttr \".a\" 1;\n\tsetAttr \".b\" yes;\n";
    const ReadResult result = read(section);
    EXPECT_TRUE(result.isClean());
    EXPECT_EQ(savedSection("select -ne :fancyGlobals"), section);
}

TEST_F(UnknownTest, referencesStandBeforeTheRequirements)
{
    read("file -r -ns \"r\" -rfn \"rRN\" -typ \"mayaAscii\" \"/no/such.ma\";\n");
    const std::string text = saved();
    EXPECT_LT(text.find("file -r -ns \"r\""), text.find("requires maya"));
}

TEST_F(UnknownTest, dataOfUnknownTypesKeepsItsWords)
{
    read("createNode nurbsCurve -n \"c\";\n\tsetAttr \".cc\" -type \"nurbsCurve\" \n\t\t1 1 0 no 3\n\t\t2 0 "
         "1\n\t\t2\n"
         "\t\t0 0 0\n\t\t1 0 0\n\t\t;\n");
    EXPECT_THAT(
        savedSection("createNode nurbsCurve"),
        HasSubstr("\tsetAttr \".cc\" -type \"nurbsCurve\" \n\t\t1 1 0 no 3\n\t\t2 0 1\n\t\t2\n\t\t0 0 0\n"
                  "\t\t1 0 0\n\t\t;\n"));
}

TEST_F(UnknownTest, requirementsOfMissingPluginsComeBack)
{
    read("requires -nodeType \"Fancy\" -dataType \"fancyData\" \"fancy\" \"1.2\";\n");
    EXPECT_EQ(
        savedStatements("requires"),
        "requires maya \"2016\";\nrequires -nodeType \"Fancy\" -dataType \"fancyData\" \"fancy\" \"1.2\";\n");
}

TEST_F(UnknownTest, keptLinesUseLineFeedsOnly)
{
    openSceneText(scene,
                  "//Maya ASCII 2016 scene\r\ncreateNode Fancy -n \"f\";\r\n\tsetAttr \".a\" 1\r\n\t\t2;\r\n",
                  "x.ma");
    EXPECT_THAT(node("f").keptLines, ElementsAre("setAttr \".a\" 1\n\t\t2;"));
}

} // namespace tvxhost::scene
