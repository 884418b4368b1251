// listHistory, and delete of what made or drives objects.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class HistoryCommandsTest : public CommandFixture
{
};

TEST_F(HistoryCommandsTest, aTransformStandsForItsShape)
{
    run("polySphere");
    EXPECT_THAT(strings("listHistory pSphere1"), ElementsAre("pSphereShape1", "polySphere1"));
    EXPECT_THAT(strings("listHistory -leaf false pSphere1"), ElementsAre("pSphere1"));
    EXPECT_THAT(strings("listHistory -future polySphere1"), Contains("initialShadingGroup"));
    EXPECT_THAT(strings("listHistory -f -pruneDagObjects polySphere1"), ElementsAre("polySphere1"));
    EXPECT_THAT(strings("listHistory -historyAttr pSphere1"), ElementsAre("pSphereShape1.inMesh"));
}

TEST_F(HistoryCommandsTest, theAttributesOfGeometryAreTold)
{
    run("polySphere; createNode nurbsCurve -n \"line\"; createNode locator -n \"mark\"");
    EXPECT_THAT(strings("listHistory -q -historyAttr pSphere1"), ElementsAre("pSphereShape1.inMesh"));
    EXPECT_THAT(strings("listHistory -q -futureLocalAttr pSphere1 line"),
                ElementsAre("pSphereShape1.outMesh", "line.local"));
    EXPECT_THAT(strings("listHistory -q -fw pSphere1 line"),
                ElementsAre("pSphereShape1.worldMesh", "line.worldSpace"));
    EXPECT_THAT(strings("listHistory -q -ha mark"), IsEmpty());
}

TEST_F(HistoryCommandsTest, aShadingNetworkIsFollowedToItsEnds)
{
    run("createNode checker -n \"board\"; createNode place2dTexture -n \"place\"; createNode blinn -n "
        "\"shader\";"
        "connectAttr place.outUV board.uvCoord; connectAttr board.outColor shader.color");
    EXPECT_THAT(strings("listHistory shader"), ElementsAre("shader", "board", "place"));
    EXPECT_THAT(strings("listHistory -levels 1 shader"), ElementsAre("shader", "board"));
    run("setAttr board.isHistoricallyInteresting 0");
    EXPECT_THAT(strings("listHistory -interestLevel 1 shader"), ElementsAre("shader", "place"));
}

TEST_F(HistoryCommandsTest, onlyTheNearestFirstWhenItIsWished)
{
    run("createNode multiplyDivide -n \"far\"; createNode multiplyDivide -n \"near\";"
        "createNode multiplyDivide -n \"beside\"; createNode plusMinusAverage -n \"sum\";"
        "connectAttr far.o near.i1; connectAttr near.o sum.i3[0]; connectAttr beside.o sum.i3[1]");
    EXPECT_THAT(strings("listHistory sum"), ElementsAre("sum", "near", "far", "beside"));
    EXPECT_THAT(strings("listHistory -breadthFirst sum"), ElementsAre("sum", "near", "beside", "far"));
}

TEST_F(HistoryCommandsTest, aLongChainIsNoDanger)
{
    run("string $last = `createNode multiplyDivide`; for ($i = 0; $i < 3000; $i++) {"
        "string $next = `createNode multiplyDivide`; connectAttr ($next + \".o\") ($last + \".i1\"); $last = "
        "$next; }");
    EXPECT_EQ(run("size(`listHistory multiplyDivide1`)"), "3001");
}

TEST_F(HistoryCommandsTest, deletedHistoryLeavesTheShape)
{
    run("polyCube -sx 2; delete -constructionHistory pCube1");
    EXPECT_EQ(run("objExists polyCube1"), "0");
    EXPECT_EQ(run("polyEvaluate -v pCube1"), "12");
}

TEST_F(HistoryCommandsTest, onlyTheAnimationGoes)
{
    run("createNode transform -n \"t\"; createNode animCurveTL -n \"x\"; createNode animCurveTL -n \"y\";"
        "createNode animCurveUL -n \"z\"; connectAttr x.o t.tx; connectAttr y.o t.ty; connectAttr z.o t.tz");
    run("delete -channels -attribute tx t");
    EXPECT_EQ(run("objExists x"), "0");
    run("delete -c -unitlessAnimationCurves false t");
    EXPECT_EQ(run("objExists y"), "0");
    EXPECT_EQ(run("objExists z"), "1");
    run("delete -c t");
    EXPECT_EQ(run("objExists z"), "0");
    EXPECT_EQ(run("objExists t"), "1");
}

TEST_F(HistoryCommandsTest, whatIsBelowIsReachedWhenItIsWished)
{
    run("createNode transform -n \"a\"; createNode transform -n \"b\" -p a; createNode animCurveTL -n \"x\";"
        "connectAttr x.o b.tx; delete -channels a");
    EXPECT_EQ(run("objExists x"), "1");
    run("delete -channels -hierarchy below a");
    EXPECT_EQ(run("objExists x"), "0");
    EXPECT_EQ(failure("delete -channels -hierarchy sideways a"),
              "delete: -hierarchy is above, below, both or none, not 'sideways'");
}

} // namespace tvxhost::mel
