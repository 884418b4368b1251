// pointPosition, exactWorldBoundingBox, and move and xform of components.
#include "undoFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;

/// A unit cube with history and a plane of two faces without, one above the other, and a curve.
class PointCommandsTest : public UndoFixture
{
protected:
    PointCommandsTest()
    {
        run("polyCube -n \"box\"; move 10 0 0 box; scale 2 2 2 box;"
            "polyPlane -n \"net\" -w 2 -h 1 -sx 2 -sy 1 -ch 0; move 0 5 0 net;"
            "createNode transform -n \"bow\"; createNode nurbsCurve -n \"bowShape\" -p bow;"
            "setAttr \".cc\" -type \"nurbsCurve\" 1 3 0 no 3 4 0 1 2 3 4 0 0 0 1 0 0 2 0 0 3 0 0;"
            "setAttr bow.ty 1");
    }
};

TEST_F(PointCommandsTest, pointsAreToldInTheWorldOrInTheSpaceOfTheirObject)
{
    // The first corner of a cube of side 1 is (-0.5, -0.5, 0.5).
    expectNear("pointPosition box.vtx[0]", {9, -1, 1});
    expectNear("pointPosition -w box.vtx[0]", {9, -1, 1});
    expectNear("pointPosition -l box.vtx[0]", {-0.5, -0.5, 0.5});
    expectNear("pointPosition bow.cv[3]", {3, 1, 0});
    expectNear("pointPosition -local bow.ep[1]", {1, 0, 0});
    run("currentUnit -l m");
    expectNear("pointPosition bow.cv[3]", {0.03, 0.01, 0});
}

TEST_F(PointCommandsTest, locatorsAndPivotsArePoints)
{
    run("spaceLocator -n \"spot\" -p 1 2 3; move 10 0 0 spot");
    expectNear("pointPosition spot", {11, 2, 3});
    expectNear("pointPosition -l spot", {1, 2, 3});
    run("setAttr box.rotatePivot 0 0 0.5");
    expectNear("pointPosition box.rotatePivot", {10, 0, 1});
    expectNear("pointPosition box.scalePivot", {10, 0, 0});
    expectNear("pointPosition -l box.rotatePivot", {0, 0, 0.5});
    EXPECT_EQ(failure("pointPosition box"), "pointPosition: 'box' is no point");
    EXPECT_EQ(failure("pointPosition box.vtx[0] net.vtx[0]"), "pointPosition needs one point");
    EXPECT_EQ(failure("pointPosition box.vtx[8]"), "No object matches name: box.vtx[8]");
}

TEST_F(PointCommandsTest, xformTellsAndSetsPlacesOfComponents)
{
    expectNear("xform -q -ws -t net.vtx[0]", {-1, 5, 0.5});
    expectNear("xform -q -t net.vtx[0]", {-1, 0, 0.5});
    expectNear("xform -q -ws -t net.vtx[0:1]", {-1, 5, 0.5, 0, 5, 0.5});
    expectNear("xform -q -os -t net.f[0]", {-1, 0, 0.5, 0, 0, 0.5, -1, 0, -0.5, 0, 0, -0.5});
    expectNear("xform -q -ws -bb net.f[1]", {0, 5, -0.5, 1, 5, 0.5});
    run("xform -ws -t 7 8 9 net.vtx[0]; xform -r -t 0 1 0 bow.cv[1:2]");
    expectNear("xform -q -t net.vtx[0]", {7, 3, 9});
    expectNear("xform -q -t bow.cv[*]", {0, 0, 0, 1, 1, 0, 2, 1, 0, 3, 0, 0});
    EXPECT_EQ(failure("xform -q -ro net.vtx[0]"),
              "xform: components have a translation and a bounding box only");
    EXPECT_EQ(failure("xform -ro 1 2 3 net.vtx[0]"), "xform: of components only the translation can be set");
}

TEST_F(PointCommandsTest, moveMovesEachOfTheComponents)
{
    run("move -r 0 1 0 net.vtx[0] net.vtx[3]; move -y 7 net.f[1]");
    expectNear("xform -q -ws -t net.vtx[*]",
               {-1, 6, 0.5, 0, 7, 0.5, 1, 7, 0.5, -1, 6, -0.5, 0, 7, -0.5, 1, 7, -0.5});
    expectNear("getAttr net.t", {0, 5, 0});
    run("move -r -os 0 1 0 box.vtx[0]; move -r 0 2 0 box.vtx[1] bow");
    expectNear("xform -q -ws -t box.vtx[0:1]", {9, 1, 1, 11, 1, 1});
    expectNear("getAttr bow.t", {0, 3, 0});
    // With history the points are where it puts them and by how much they were moved.
    expectNear("getAttr box.vtx[0:1]", {0, 1, 0, 0, 1, 0});
}

TEST_F(PointCommandsTest, pointsThatSeveralComponentsHaveMoveOnce)
{
    // The faces share the vertices 1 and 4, which are the ends of an edge.
    run("move -r 0 1 0 net.f[0] net.f[1] net.e[*] net.vtx[4]");
    expectNear("xform -q -t net.vtx[*]",
               {-1, 1, 0.5, 0, 1, 0.5, 1, 1, 0.5, -1, 1, -0.5, 0, 1, -0.5, 1, 1, -0.5});
}

TEST_F(PointCommandsTest, rotateTurnsPointsAboutThePivotOfTheirObject)
{
    // A quarter about y takes x to -z and z to x.
    run("rotate -r 0 90 0 net.vtx[2]; rotate -y 90 net.vtx[0]");
    expectNear("xform -q -ws -t net.vtx[2]", {0.5, 5, -1});
    expectNear("xform -q -ws -t net.vtx[0]", {0.5, 5, 1});
    run("setAttr net.rotatePivot 1 0 -0.5; rotate 0 0 90 net.vtx[3]");
    expectNear("xform -q -ws -t net.vtx[3]", {1, 3, -0.5});
    expectNear("getAttr net.r", {0, 0, 0});
    run("rotate -p 1 5 0.5 0 180 0 net.vtx[1]");
    expectNear("xform -q -ws -t net.vtx[1]", {2, 5, 0.5});
}

TEST_F(PointCommandsTest, scaleTakesPointsApart)
{
    run("scale 2 1 1 net.f[0] net.f[1]");
    expectNear("xform -q -ws -bb net.vtx[*]", {-2, 5, -0.5, 2, 5, 0.5});
    run("scale 2 2 2 bow.cv[3] bow");
    expectNear("getAttr bow.s", {2, 2, 2});
    expectNear("getAttr bow.cv[3]", {6, 0, 0});
    run("setAttr net.scalePivot 2 0 0; scale -r -x 0.5 net.vtx[0]");
    expectNear("xform -q -ws -t net.vtx[0]", {0, 5, 0.5});
}

TEST_F(PointCommandsTest, thePivotMayBeTheCenterOfThePoints)
{
    run("scale -cp 2 1 2 net.f[1]");
    expectNear("xform -q -ws -bb net.f[1]", {-0.5, 5, -1, 1.5, 5, 1});
    // Of each object its own center: 10 and 0.5.
    run("scale -ocp 2 1 1 net.f[1] box.vtx[0:1]");
    expectNear("xform -q -ws -bb net.f[1]", {-1.5, 5, -1, 2.5, 5, 1});
    expectNear("xform -q -ws -t box.vtx[0:1]", {8, -1, 1, 12, -1, 1});
    // Of all together: (12 - 1.5) / 2.
    run("scale -cp 0 1 1 net.f[1] box.vtx[0:1]");
    expectNear("pointPosition net.vtx[1]", {5.25, 5, 1});
    expectNear("pointPosition box.vtx[1]", {5.25, -1, 1});
}

TEST_F(PointCommandsTest, theAxesAreThoseOfTheWorldOrOfTheObject)
{
    run("setAttr box.ry 90; scale -os 3 1 1 box.vtx[0]");
    expectNear("xform -q -t box.vtx[0]", {-1.5, -0.5, 0.5});
    run("scale -ws 3 1 1 box.vtx[1]");
    expectNear("xform -q -t box.vtx[1]", {0.5, -0.5, 1.5});
    run("rotate -os 90 0 0 box.vtx[2]");
    expectNear("xform -q -t box.vtx[2]", {-0.5, -0.5, 0.5});
}

TEST_F(PointCommandsTest, scaleComponentsScalesAlongTurnedAxes)
{
    // Of (1, 0, 0.5) the part along (1, 0, -1) is (0.25, 0, -0.25).
    run("scaleComponents -p 0 5 0 -ro 0 45 0 3 1 1 net.vtx[2]");
    expectNear("xform -q -ws -t net.vtx[2]", {1.5, 5, 0});
    run("scaleComponents 1 2 1 net.vtx[0]");
    expectNear("xform -q -ws -t net.vtx[0]", {-1, 10, 0.5});
    EXPECT_EQ(failure("scaleComponents 1 2 1 net"), "scaleComponents scales components only");
}

TEST_F(PointCommandsTest, setAttrSetsPlacesOfControlPoints)
{
    run("setAttr bow.cv[1] 1 2 3; setAttr bowShape.cv[2:3] 4 5 6 7 8 9; setAttr bow.cv[0].yValue -1");
    expectNear("getAttr bow.cv[*]", {0, -1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
    expectNear("getAttr bow.cv[1:2].zValue", {3, 6});
    run("currentUnit -l m; setAttr bow.cv[0].xv 0.5; currentUnit -l cm");
    expectNear("getAttr bow.cv[0]", {50, -1, 0});
    EXPECT_EQ(failure("setAttr bow.cv[0] 1 2"), "setAttr: 'bow.cv[0]' takes 3 numbers and nothing else");
    EXPECT_EQ(failure("setAttr bow.cv[0].pntx 1"), "No object matches name: bow.cv[0].pntx");
    EXPECT_EQ(failure("setAttr bow.cv[4] 1 2 3"), "No object matches name: bow.cv[4]");
}

TEST_F(PointCommandsTest, setAttrSetsHowFarVerticesWereMoved)
{
    run("setAttr box.vtx[0] 1 2 3; setAttr boxShape.vtx[1:2].pntx 4 5; setAttr box.pnts[3:4] 1 0 0 2 0 0;"
        "setAttr boxShape.pnts[5] -type \"float3\" 0 0 7");
    expectNear("getAttr box.vtx[0:5]", {1, 2, 3, 4, 0, 0, 5, 0, 0, 1, 0, 0, 2, 0, 0, 0, 0, 7});
    expectNear("xform -q -t box.vtx[0]", {0.5, 1.5, 3.5});
    expectNear("getAttr box.vtx[0:2].pntx", {1, 4, 5});
    EXPECT_EQ(failure("getAttr box.vtx[0].xValue"), "'boxShape' has no attribute 'pt[0].xValue'");
    EXPECT_EQ(failure("setAttr box.vtx[8] 1 2 3"), "No object matches name: box.vtx[8]");
}

TEST_F(PointCommandsTest, theFirstPointsOfAPeriodicCurveMoveTheLastOnes)
{
    run("createNode transform -n \"ring\"; createNode nurbsCurve -n \"ringShape\" -p ring;"
        "setAttr \".cc\" -type \"nurbsCurve\" 1 4 2 no 3 5 0 1 2 3 4 5 1 0 0 0 1 0 -1 0 0 0 -1 0 1 0 0;"
        "move 2 0 0 ring.cv[0]");
    expectNear("getAttr ring.cv[*]", {2, 0, 0, 0, 1, 0, -1, 0, 0, 0, -1, 0});
    expectNear("pointPosition ring.ep[0]", {2, 0, 0});
    EXPECT_EQ(failure("move 1 1 1 ring.ep[0]"), "'move': edit points cannot be moved here");
}

TEST_F(PointCommandsTest, theBoxInTheWorldIsAroundAllThatIsNamed)
{
    expectNear("exactWorldBoundingBox box", {9, -1, -1, 11, 1, 1});
    expectNear("exactWorldBoundingBox box net", {-1, -1, -1, 11, 5, 1});
    expectNear("exactWorldBoundingBox netShape", {-1, 5, -0.5, 1, 5, 0.5});
    expectNear("exactWorldBoundingBox net.vtx[0] net.vtx[1]", {-1, 5, 0.5, 0, 5, 0.5});
    run("hide net");
    expectNear("exactWorldBoundingBox -ignoreInvisible true box net", {9, -1, -1, 11, 1, 1});
    expectNear("exactWorldBoundingBox -ii false box net", {-1, -1, -1, 11, 5, 1});
    run("group -n \"all\" box net; select all");
    expectNear("exactWorldBoundingBox -ii 1", {9, -1, -1, 11, 1, 1});
    run("select -cl");
    EXPECT_EQ(failure("exactWorldBoundingBox"), "Nothing is selected for exactWorldBoundingBox.");
}

TEST_F(PointCommandsTest, movedPointsComeBack)
{
    expectUndoable("move -r 0 1 0 box.vtx[0:3] net.f[0] bow.cv[1]");
    expectUndoable("xform -ws -t 1 2 3 net.vtx[2]");
    expectUndoable("rotate 0 90 0 box.vtx[0:3] net.f[0] bow.cv[1]");
    expectUndoable("scale 2 3 4 box.vtx[0:3] net.f[0] bow.cv[1]");
    expectUndoable("setAttr bow.cv[1] 7 7 7");
    expectUndoable("setAttr box.vtx[0:1] 1 2 3 4 5 6");
}

} // namespace tvxhost::mel
