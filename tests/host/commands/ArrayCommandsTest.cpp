// getAttr of arrays and their elements, removeMultiInstance.
#include "undoFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::IsEmpty;

class ArrayCommandsTest : public UndoFixture
{
protected:
    ArrayCommandsTest()
    {
        run("createNode transform -n \"n\"; addAttr -ln \"list\" -at double -m n; addAttr -ln \"counts\" -at "
            "long "
            "-m n; addAttr -ln \"words\" -dt \"string\" -m n; setAttr n.list[0] 1.5; setAttr n.list[2] 2.5; "
            "setAttr n.list[5] 3.5; setAttr n.counts[1] 7; setAttr n.counts[4] 8; "
            "setAttr -type \"string\" n.words[0] \"a\"; setAttr -type \"string\" n.words[3] \"b\"");
    }
};

TEST_F(ArrayCommandsTest, anArrayIsToldByTheElementsThatExist)
{
    EXPECT_THAT(numbers("getAttr n.list"), ElementsAre(1.5, 2.5, 3.5));
    EXPECT_THAT(numbers("getAttr \"n.list[*]\""), ElementsAre(1.5, 2.5, 3.5));
    EXPECT_THAT(value("getAttr n.counts").integers(), ElementsAre(7, 8));
    EXPECT_THAT(strings("getAttr n.words"), ElementsAre("a", "b"));
    run("addAttr -ln \"none\" -at double -m n");
    EXPECT_THAT(numbers("getAttr n.none"), IsEmpty());
}

TEST_F(ArrayCommandsTest, aRangeIsToldElementByElement)
{
    EXPECT_THAT(numbers("getAttr n.list[0:2]"), ElementsAre(1.5, 0, 2.5));
    EXPECT_THAT(value("getAttr n.counts[0:1]").integers(), ElementsAre(0, 7));
    EXPECT_EQ(run("getAttr -size n.list"), "3") << "nothing was made by asking";
    EXPECT_EQ(failure("getAttr n.list[2:0]"), "Illegal range of elements: list[2:0]");
    EXPECT_EQ(failure("getAttr n.gone[0:2]"), "No object matches name: n.gone[0:2]");
}

TEST_F(ArrayCommandsTest, elementsThatNobodyCouldListAreRefused)
{
    run("polyCube -n cube; select cube.vtx[0:2147483647]");
    const std::string most = ": at most 10000000 can be listed one by one";
    for (const std::string command :
         {"getAttr cubeShape.pt[0:2147483647]", "getAttr cubeShape.vtx[0:2147483647]"})
        EXPECT_THAT(failure(command), testing::HasSubstr("is 2147483648 elements" + most)) << command;
    EXPECT_THAT(failure("ls -sl -fl"), testing::HasSubstr("is 2147483648 elements" + most));
    EXPECT_EQ(run("ls -sl"), "cube.vtx[0:2147483647]");
    EXPECT_EQ(run("select cube.vtx[2147483646:2147483647]; ls -sl -fl"),
              "cube.vtx[2147483646] cube.vtx[2147483647]");
}

TEST_F(ArrayCommandsTest, groupsOfNumbersAreToldOneAfterTheOther)
{
    run("polyPlane -n \"net\" -w 2 -h 2 -sx 1 -sy 1 -ch 0; setAttr net.pnts[1] 0 3 0; setAttr net.pnts[3] 4 "
        "0 0");
    EXPECT_THAT(numbers("getAttr netShape.pnts"), ElementsAre(0, 3, 0, 4, 0, 0));
    EXPECT_THAT(numbers("getAttr net.pnts[0:1]"), ElementsAre(0, 0, 0, 0, 3, 0));
    EXPECT_THAT(numbers("getAttr net.vtx[0:1]"), ElementsAre(0, 0, 0, 0, 3, 0))
        << "by how far they were moved";
    EXPECT_THAT(numbers("getAttr net.pt[3]"), ElementsAre(4, 0, 0));
    EXPECT_THAT(numbers("getAttr netShape.vrts[0:1]"), ElementsAre(-1, 0, 1, 1, 0, 1)) << "without that";
    EXPECT_THAT(numbers("getAttr net.pnts[0:3].pntx"), ElementsAre(0, 0, 0, 4));
}

TEST_F(ArrayCommandsTest, askingForGeometryChangesNothing)
{
    run("polyPlane -n \"net\" -sx 1 -sy 1 -ch 0");
    const std::string before = state();
    scene.isModified = false;
    EXPECT_EQ(numbers("getAttr netShape.vrts").size(), 12u);
    EXPECT_FALSE(scene.isModified);
    EXPECT_EQ(state(), before);
}

TEST_F(ArrayCommandsTest, matricesOfEachInstanceAreToldTogether)
{
    run("setAttr n.t 1 2 3");
    EXPECT_THAT(numbers("getAttr n.worldMatrix"),
                ElementsAre(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 1, 2, 3, 1));
    run("createNode locator -n \"spot\" -p n; instance n");
    EXPECT_EQ(numbers("getAttr spot.worldMatrix").size(), 32u);
}

TEST_F(ArrayCommandsTest, controlPointsAreToldByTheirPlaces)
{
    run("createNode transform -n \"bow\"; createNode nurbsCurve -n \"bowShape\" -p bow;"
        "setAttr \".cc\" -type \"nurbsCurve\" 1 3 0 no 3 4 0 1 2 3 4 0 0 0 1 0 0 2 0 0 3 0 0");
    EXPECT_THAT(numbers("getAttr bowShape.cv[1:2]"), ElementsAre(1, 0, 0, 2, 0, 0));
    EXPECT_THAT(numbers("getAttr bow.cv[*]"), ElementsAre(0, 0, 0, 1, 0, 0, 2, 0, 0, 3, 0, 0));
    EXPECT_EQ(failure("getAttr bow.cv[4]"), "No object matches name: bow.cv[4]");
}

TEST_F(ArrayCommandsTest, elementsAreRemoved)
{
    EXPECT_EQ(run("removeMultiInstance n.list[2]"), "1");
    EXPECT_THAT(value("getAttr -mi n.list").integers(), ElementsAre(0, 5));
    EXPECT_EQ(run("removeMultiInstance -allChildren true n.list"), "1");
    EXPECT_EQ(run("getAttr -size n.list"), "0");
    EXPECT_EQ(failure("removeMultiInstance n.list"),
              "removeMultiInstance: 'n.list' is no element of an array");
    EXPECT_EQ(failure("removeMultiInstance n.tx"), "removeMultiInstance: 'n.tx' is no element of an array");
}

TEST_F(ArrayCommandsTest, connectedElementsAreRemovedWhenThatIsSaid)
{
    run("connectAttr n.tx n.list[2]");
    EXPECT_EQ(failure("removeMultiInstance n.list[2]"),
              "removeMultiInstance: 'n.list[2]' is connected; -break true breaks its connections");
    run("removeMultiInstance -b true n.list[2]");
    EXPECT_THAT(value("getAttr -mi n.list").integers(), ElementsAre(0, 5));
    EXPECT_THAT(strings("listConnections n.tx"), IsEmpty());
}

TEST_F(ArrayCommandsTest, removedElementsComeBack)
{
    run("connectAttr n.tx n.list[2]");
    expectUndoable("removeMultiInstance -b true n.list[2]");
    expectUndoable("removeMultiInstance -all true n.words");
}

} // namespace tvxhost::mel
