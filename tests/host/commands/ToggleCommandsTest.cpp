// toggle and inheritTransform.
#include "undoFixture.h"

namespace tvxhost::mel {

class ToggleCommandsTest : public UndoFixture
{
protected:
    ToggleCommandsTest()
    {
        run("group -em -n top; polyCube -n box; parent box top; group -em -n leaf -p box");
    }
};

TEST_F(ToggleCommandsTest, statesOfObjectsAndOfTheirShapesChange)
{
    run("toggle -template -vertex box");
    EXPECT_EQ(run("getAttr box.template"), "1");
    EXPECT_EQ(run("getAttr boxShape.displayVertices"), "1");
    EXPECT_EQ(run("toggle -q -vertex boxShape"), "1");
    EXPECT_EQ(run("toggle -q -localAxis box"), "0");
    run("toggle -template box");
    EXPECT_EQ(run("toggle -q -te box"), "0");
    run("toggle -te -state on box; toggle -te -st on box");
    EXPECT_EQ(run("toggle -q -te box"), "1");
}

TEST_F(ToggleCommandsTest, whatIsAboveAndBelowChangesToo)
{
    run("toggle -localAxis -above leaf");
    EXPECT_EQ(run("getAttr top.dla; getAttr box.dla; getAttr leaf.dla"), "1");
    EXPECT_EQ(run("getAttr top.dla"), "1");
    run("toggle -localAxis -below box");
    EXPECT_EQ(run("getAttr top.dla"), "1");
    EXPECT_EQ(run("getAttr box.dla"), "0");
    EXPECT_EQ(run("getAttr leaf.dla"), "0");
}

TEST_F(ToggleCommandsTest, whatAnObjectHasNotStaysOff)
{
    run("toggle -controlVertex box");
    EXPECT_EQ(run("toggle -q -controlVertex box"), "0");
    EXPECT_EQ(failure("toggle -q box"), "toggle: nothing was asked");
    EXPECT_EQ(failure("toggle -newCurve -state on"),
              "Flag '-newCurve' of toggle is refused: new objects are made as their types say");
    EXPECT_EQ(failure("select -cl; toggle -te"), "Nothing is selected for toggle.");
}

TEST_F(ToggleCommandsTest, inheritingIsTurnedOnAndOff)
{
    run("setAttr top.t 1 2 3; setAttr box.t 10 0 0; inheritTransform box");
    EXPECT_EQ(run("inheritTransform -q box"), "0");
    expectNear("xform -q -ws -t box", {10, 0, 0});
    run("inheritTransform -on box; inheritTransform -on box");
    expectNear("xform -q -ws -t box", {11, 2, 3});
    run("inheritTransform -off -preserve box");
    expectNear("xform -q -ws -t box", {11, 2, 3});
    expectNear("getAttr box.t", {11, 2, 3});
    run("inheritTransform -toggle -p box");
    expectNear("getAttr box.t", {10, 0, 0});
}

TEST_F(ToggleCommandsTest, statesComeBack)
{
    expectUndoable("toggle -template -vertex box");
    run("setAttr top.t 1 2 3");
    expectUndoable("inheritTransform -off -preserve box");
}

} // namespace tvxhost::mel
