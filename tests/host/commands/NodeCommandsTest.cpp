// createNode, rename, delete, ls, select and their like.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::IsEmpty;

class NodeCommandsTest : public CommandFixture
{
};

TEST_F(NodeCommandsTest, createNodeGivesTheNameAndSelectsTheNode)
{
    EXPECT_EQ(run("createNode transform -n \"a\""), "a");
    EXPECT_THAT(strings("ls -sl"), ElementsAre("a"));
    EXPECT_EQ(run("createNode transform -n \"a\" -ss"), "a1");
    EXPECT_THAT(strings("ls -sl"), ElementsAre("a"));
}

TEST_F(NodeCommandsTest, createNodePutsShapesUnderANewOrANamedTransform)
{
    run("createNode transform -n \"body\"; createNode mesh -n \"inner\" -p \"body\"");
    EXPECT_THAT(strings("listRelatives -f \"body\""), ElementsAre("|body|inner"));
    run("createNode mesh -n \"ballShape\"");
    EXPECT_THAT(strings("ls -l \"ballShape\""), ElementsAre("|ball|ballShape"));
}

TEST_F(NodeCommandsTest, createNodeMakesShapesWhoseVisibilityIsNotKeyable)
{
    run("createNode mesh -n \"ballShape\"");
    EXPECT_EQ(run("getAttr -keyable \"ballShape.visibility\""), "0");
    EXPECT_EQ(run("getAttr -keyable \"ball.visibility\""), "1");
}

TEST_F(NodeCommandsTest, createNodeRefusesTypesThatNobodyKnows)
{
    EXPECT_EQ(failure("createNode frobnicator"), "Unknown object type: frobnicator");
}

TEST_F(NodeCommandsTest, createNodeSharedMakesOneOnly)
{
    run("createNode script -s -n \"once\"; createNode script -s -n \"once\"");
    EXPECT_THAT(strings("ls \"once*\""), ElementsAre("once"));
}

TEST_F(NodeCommandsTest, unknownFlagsAreNamed)
{
    EXPECT_EQ(failure("createNode transform -frob 1"), "Invalid flag '-frob'");
}

TEST_F(NodeCommandsTest, renameMakesNamesUniqueAndTakesShapesAlong)
{
    run("createNode transform -n \"a\"; createNode mesh -n \"ballShape\"");
    EXPECT_EQ(run("rename \"ball\" \"stone\""), "stone");
    EXPECT_EQ(run("objExists \"stoneShape\""), "1");
    EXPECT_EQ(run("rename \"stone\" \"a\""), "a1");
}

TEST_F(NodeCommandsTest, deleteReachesAnyDepthAndWhatStandsThereManyTimes)
{
    run("string $above = `createNode transform -n \"chain\"`; int $i; for ($i = 0; $i < 10000; $i++) "
        "$above = `createNode transform -p $above -n (\"level\" + $i)`");
    // Below each of them two transforms, both with the next one: as many paths as 2 to the power of 16.
    run("createNode transform -n g0; for ($i = 0; $i < 16; $i++) { createNode transform -p (\"g\" + $i) -n "
        "(\"p\" + $i); createNode transform -p (\"g\" + $i) -n (\"q\" + $i); createNode transform -p (\"p\" "
        "+ $i) -n (\"g\" + ($i + 1)); parent -add (\"g\" + ($i + 1)) (\"q\" + $i); }");
    run("delete chain g0");
    EXPECT_EQ(run("ls -type transform"), "persp top front side");
}

TEST_F(NodeCommandsTest, deleteTakesWhatIsBelowAlong)
{
    run("createNode transform -n \"a\"; createNode transform -n \"b\" -p \"a\"; delete \"a\"");
    EXPECT_EQ(run("objExists \"b\""), "0");
    EXPECT_EQ(failure("delete \"a\""), "No object matches name: a");
}

TEST_F(NodeCommandsTest, lockedAndDefaultNodesStay)
{
    run("createNode transform -n \"a\"; lockNode -l 1 \"a\"");
    EXPECT_EQ(failure("delete \"a\""), "Cannot delete locked node 'a'.");
    EXPECT_EQ(failure("delete \":time1\""),
              "Non-deletable object 'time1' (or its descendents) cannot be deleted.");
}

TEST_F(NodeCommandsTest, camerasOfEverySceneStayAndTheRestGoes)
{
    run("polyCube; createNode transform -n last");
    EXPECT_EQ(failure("delete persp pCube1 topShape last"),
              "Non-deletable object 'persp' (or its descendents) cannot be deleted.");
    EXPECT_EQ(run("ls -type transform -type polyCube"), "persp top front side");
    EXPECT_EQ(failure("delete topShape"),
              "Non-deletable object 'topShape' (or its descendents) cannot be deleted.");
    EXPECT_THAT(strings("ls -type camera"), ElementsAre("perspShape", "topShape", "frontShape", "sideShape"));
}

TEST_F(NodeCommandsTest, whatHoldsACameraOfEverySceneOrALockedNodeStaysAsWell)
{
    run("createNode transform -n above; parent persp above; createNode transform -n kept -p above");
    EXPECT_EQ(failure("delete above"),
              "Non-deletable object 'above' (or its descendents) cannot be deleted.");
    run("lockNode kept; parent -world persp");
    EXPECT_EQ(failure("delete above"), "Cannot delete locked node 'kept'.");
    run("lockNode -lock 0 kept; delete above");
    EXPECT_EQ(run("objExists above"), "0");
}

TEST_F(NodeCommandsTest, whatStandsElsewhereAsWellNeedNotGoAlong)
{
    run("createNode transform -n above; parent -add persp above; delete above");
    EXPECT_EQ(run("ls -long persp"), "|persp");
}

TEST_F(NodeCommandsTest, allLeavesWhatCannotGo)
{
    run("createNode transform -n holder; parent side holder; createNode transform -s -n known; "
        "createNode transform -n loose; delete -all");
    EXPECT_EQ(run("ls -type transform"), "persp top front side holder");
}

TEST_F(NodeCommandsTest, objExistsKnowsNodesPathsAndAttributes)
{
    run("createNode transform -n \"a\"; createNode transform -n \"b\" -p \"a\"");
    EXPECT_EQ(run("objExists a"), "1");
    EXPECT_EQ(run("objExists \"|a|b\""), "1");
    EXPECT_EQ(run("objExists \"a.tx\""), "1");
    EXPECT_EQ(run("objExists \"a.nope\""), "0");
    EXPECT_EQ(run("objExists \"|b\""), "0");
    EXPECT_EQ(run("objExists \"a*\""), "1");
}

TEST_F(NodeCommandsTest, nodeTypeTellsTypesAndWhatTheyDeriveFrom)
{
    run("createNode mesh -n \"m\"");
    EXPECT_EQ(run("nodeType \"m\""), "mesh");
    const Value::Strings chain = strings("nodeType -i \"m\"");
    EXPECT_EQ(chain.back(), "mesh");
    EXPECT_THAT(chain, testing::Contains("dagNode"));
}

TEST_F(NodeCommandsTest, lsListsByTypeNameAndPattern)
{
    run("createNode transform -n \"fig1\"; createNode transform -n \"fig2\"; createNode script -n "
        "\"figNote\"");
    EXPECT_THAT(strings("ls -type script"), ElementsAre("figNote"));
    EXPECT_THAT(strings("ls \"fig?\""), ElementsAre("fig1", "fig2"));
    EXPECT_THAT(strings("ls -tr \"fig*\""), ElementsAre("fig1", "fig2"));
    EXPECT_THAT(strings("ls \"none\""), IsEmpty());
    EXPECT_THAT(strings("ls -hd 1 \"fig*\""), ElementsAre("fig1"));
    EXPECT_THAT(strings("ls -tl 1 \"fig*\""), ElementsAre("figNote"));
    EXPECT_THAT(strings("ls -st \"fig1\""), ElementsAre("fig1", "transform"));
}

TEST_F(NodeCommandsTest, lsFlattensComponents)
{
    run("createNode mesh -n \"ballShape\"; select -r \"ball.vtx[0:2]\"");
    EXPECT_THAT(strings("ls -sl"), ElementsAre("ball.vtx[0:2]"));
    EXPECT_THAT(strings("ls -sl -fl"), ElementsAre("ball.vtx[0]", "ball.vtx[1]", "ball.vtx[2]"));
}

TEST_F(NodeCommandsTest, selectionKeepsItsOrder)
{
    run("createNode transform -n \"a\"; createNode transform -n \"b\"; createNode transform -n \"c\"");
    run("select -r c a b");
    EXPECT_THAT(strings("ls -sl"), ElementsAre("c", "a", "b"));
    run("select -d a");
    EXPECT_THAT(strings("ls -sl"), ElementsAre("c", "b"));
    run("select -tgl a b");
    EXPECT_THAT(strings("ls -sl"), ElementsAre("c", "a"));
    run("select -af b");
    EXPECT_THAT(strings("ls -sl"), ElementsAre("b", "c", "a"));
    run("select -cl");
    EXPECT_THAT(strings("ls -sl"), IsEmpty());
    EXPECT_EQ(failure("select -r nobody"), "No object matches name: nobody");
}

TEST_F(NodeCommandsTest, ambiguousNamesAreRefused)
{
    run("createNode transform -n \"a\"; createNode transform -n \"b\"");
    run("createNode transform -n \"x\" -p \"a\"; createNode transform -n \"x\" -p \"b\"");
    EXPECT_EQ(failure("select -r x"), "More than one object matches name: x");
    EXPECT_THAT(strings("ls x"), ElementsAre("a|x", "b|x"));
}

TEST_F(NodeCommandsTest, setsAreSelectedByTheirMembersUnlessTold)
{
    run("createNode transform -n \"a\"; createNode transform -n \"b\"; sets -n \"crowd\" a b");
    run("select -r crowd");
    EXPECT_THAT(strings("ls -sl"), ElementsAre("a", "b"));
    run("select -r -ne crowd");
    EXPECT_THAT(strings("ls -sl"), ElementsAre("crowd"));
    run("sets -rm crowd a");
    EXPECT_THAT(strings("sets -q crowd"), ElementsAre("b"));
    EXPECT_EQ(run("sets -im crowd b"), "1");
    EXPECT_EQ(run("sets -im crowd a"), "0");
}

TEST_F(NodeCommandsTest, namespacesAreMadeAndSet)
{
    run("namespace -add \"rig\"; namespace -set \"rig\"");
    EXPECT_EQ(run("namespaceInfo -cur"), "rig");
    EXPECT_EQ(run("createNode transform -n \"a\""), "rig:a");
    run("namespace -set \":\"");
    EXPECT_EQ(run("namespace -ex \"rig\""), "1");
    EXPECT_EQ(run("namespace -ex \"none\""), "0");
}

} // namespace tvxhost::mel
