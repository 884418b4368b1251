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
}

} // namespace tvxhost::mel
