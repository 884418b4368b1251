// MDGModifier and MDagModifier: queued changes, done and undone.
#include "../nodeFixture.h"

#include "api/support/modifier.h"

#include <maya/MDagModifier.h>
#include <maya/MFnDagNode.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MPlug.h>
#include <maya/MPlugArray.h>
#include <maya/MTime.h>

using namespace tvxhost::api::test;

namespace {

const char* const kRefused = "(kFailure): Unexpected Internal Failure";

class Modifiers : public NodeFixture
{
protected:
    ~Modifiers() override { tvxhost::api::setStrictDisconnect(false); }

    MObject a = make("transform", "a");
    MObject b = make("transform", "b");
    MPlug ax = plug(a, "tx"), ay = plug(a, "ty"), bx = plug(b, "tx"), by = plug(b, "ty");
    MDGModifier modifier;
};

} // namespace

TEST_F(Modifiers, NothingHappensBeforeDoIt)
{
    EXPECT_TRUE(modifier.connect(ax, bx));
    EXPECT_FALSE(bx.isConnected());
    EXPECT_TRUE(modifier.doIt());
    EXPECT_TRUE(bx.isDestination());
}

TEST_F(Modifiers, UndoReversesAndDoItThenRedoes)
{
    modifier.connect(ax, bx);
    modifier.newPlugValueDouble(by, 4.0);
    modifier.renameNode(b, "renamed");
    ASSERT_TRUE(modifier.doIt());
    EXPECT_EQ(4.0, by.asDouble());
    ASSERT_TRUE(modifier.undoIt());
    EXPECT_FALSE(bx.isConnected());
    EXPECT_EQ(0.0, by.asDouble());
    EXPECT_EQ("b", text(MFnDependencyNode(b, nullptr).name()));
    ASSERT_TRUE(modifier.doIt());
    EXPECT_TRUE(bx.isConnected());
    EXPECT_EQ(4.0, by.asDouble());
    EXPECT_EQ("renamed", text(MFnDependencyNode(b, nullptr).name()));
}

TEST_F(Modifiers, ASecondDoItRunsOnlyWhatIsNew)
{
    modifier.newPlugValueDouble(ax, 1.0);
    ASSERT_TRUE(modifier.doIt());
    ASSERT_TRUE(ax.setValue(7.0));
    modifier.newPlugValueDouble(ay, 2.0);
    ASSERT_TRUE(modifier.doIt());
    EXPECT_EQ(7.0, ax.asDouble());
    EXPECT_EQ(2.0, ay.asDouble());
}

TEST_F(Modifiers, NullArgumentsAreRefusedWhenQueued)
{
    EXPECT_EQ(MS::kInvalidParameter, modifier.connect(MPlug(), bx).statusCode());
    EXPECT_EQ(MS::kInvalidParameter, modifier.disconnect(ax, MPlug()).statusCode());
    EXPECT_EQ(MS::kInvalidParameter, modifier.deleteNode(MObject::kNullObj).statusCode());
    EXPECT_EQ(MS::kInvalidParameter, modifier.addAttribute(a, MObject::kNullObj).statusCode());
    MStatus status;
    EXPECT_TRUE(modifier.createNode("transform", &status).isNull());
    EXPECT_EQ(MS::kInvalidParameter, status.statusCode());
    EXPECT_TRUE(modifier.createNode("noSuchType", &status).isNull());
    EXPECT_EQ(MS::kInvalidParameter, status.statusCode());
}

TEST_F(Modifiers, WhatTheGraphRefusesFailsWhenDone)
{
    modifier.connect(ax, bx);
    ASSERT_TRUE(modifier.doIt());
    EXPECT_TRUE(modifier.connect(ay, bx));
    EXPECT_EQ(kRefused, text(modifier.doIt()));
    MPlugArray source;
    bx.connectedTo(source, true, false);
    EXPECT_TRUE(source[0] == ax);
}

TEST_F(Modifiers, AfterAFailureEarlierChangesStayAndLaterOnesAreForgotten)
{
    modifier.newPlugValueDouble(ax, 1.0);
    modifier.disconnect(ax, bx);
    modifier.newPlugValueDouble(ay, 2.0);
    EXPECT_EQ(kRefused, text(modifier.doIt()));
    EXPECT_EQ(1.0, ax.asDouble());
    EXPECT_EQ(0.0, ay.asDouble());
    EXPECT_TRUE(modifier.doIt());
    EXPECT_EQ(0.0, ay.asDouble());
    EXPECT_TRUE(modifier.undoIt());
    EXPECT_EQ(0.0, ax.asDouble());
}

TEST_F(Modifiers, ConnectingWhatIsConnectedChangesNothing)
{
    modifier.connect(ax, bx);
    ASSERT_TRUE(modifier.doIt());
    MDGModifier again;
    again.connect(ax, bx);
    EXPECT_TRUE(again.doIt());
    EXPECT_TRUE(again.undoIt());
    EXPECT_TRUE(bx.isDestination());
}

TEST_F(Modifiers, APairIsDisconnectedInEitherOrder)
{
    modifier.connect(ax, bx);
    ASSERT_TRUE(modifier.doIt());
    MDGModifier swapped;
    swapped.disconnect(bx, ax);
    EXPECT_TRUE(swapped.doIt());
    EXPECT_FALSE(bx.isConnected());
    EXPECT_TRUE(swapped.undoIt());
    EXPECT_TRUE(bx.isDestination());
    EXPECT_TRUE(ax.isSource());
}

TEST_F(Modifiers, TheStrictReadingInsistsOnTheOrder)
{
    modifier.connect(ax, bx);
    ASSERT_TRUE(modifier.doIt());
    tvxhost::api::setStrictDisconnect(true);
    MDGModifier swapped;
    swapped.disconnect(bx, ax);
    EXPECT_EQ(kRefused, text(swapped.doIt()));
    EXPECT_TRUE(bx.isDestination());
}

TEST_F(Modifiers, NodesAreMadeAndUnmade)
{
    MStatus status;
    const MObject made = modifier.createNode("lambert", &status);
    ASSERT_TRUE(status);
    EXPECT_EQ(MFn::kLambert, made.apiType());
    EXPECT_TRUE(modifier.doIt());
    EXPECT_TRUE(modifier.undoIt());
    EXPECT_EQ(MFn::kInvalid, made.apiType());
    const std::size_t before = scene.nodeCount();
    EXPECT_TRUE(modifier.doIt());
    EXPECT_EQ(before + 1, scene.nodeCount());
}

TEST_F(Modifiers, ANodeThatIsNeverDoneGoesWithItsModifier)
{
    MObject made;
    {
        MDGModifier forgotten;
        made = forgotten.createNode("lambert");
        EXPECT_EQ(MFn::kLambert, made.apiType());
    }
    EXPECT_EQ(MFn::kInvalid, made.apiType());
}

TEST_F(Modifiers, TheNodeThatIsMadeAgainIsTheSame)
{
    const MObject made = modifier.createNode("lambert");
    modifier.renameNode(made, "paint");
    ASSERT_TRUE(modifier.doIt());
    ASSERT_TRUE(modifier.undoIt());
    EXPECT_FALSE(scene.findNode("paint"));
    ASSERT_TRUE(modifier.doIt());
    EXPECT_EQ("paint", text(MFnDependencyNode(made, nullptr).name()));
}

TEST_F(Modifiers, ADeletedNodeComesBackWithItsConnectionsAndItsHandles)
{
    modifier.connect(ax, bx);
    ASSERT_TRUE(modifier.doIt());
    by.setDouble(3.0);
    MDGModifier deletion;
    deletion.deleteNode(b);
    ASSERT_TRUE(deletion.doIt());
    EXPECT_FALSE(scene.findNode("b"));
    EXPECT_FALSE(ax.isConnected());
    ASSERT_TRUE(deletion.undoIt());
    EXPECT_EQ("b", text(MFnDependencyNode(b, nullptr).name()));
    EXPECT_EQ(3.0, by.asDouble());
    EXPECT_TRUE(bx.isDestination());
    ASSERT_TRUE(deletion.doIt());
    EXPECT_FALSE(scene.findNode("b"));
}

TEST_F(Modifiers, ACameraOfEverySceneIsNotDeleted)
{
    MDagModifier deletion;
    deletion.deleteNode(tvxAccess::handle(scene.findNode("top").value));
    EXPECT_FALSE(deletion.doIt());
    EXPECT_TRUE(scene.findNode("topShape"));
}

TEST_F(Modifiers, ARemovedAttributeComesBackWithItsValue)
{
    const MObject extra = MFnNumericAttribute().create("extra", "ex", MFnNumericData::kInt);
    MFnDependencyNode(a, nullptr).addAttribute(extra);
    plug(a, "extra").setInt(7);
    modifier.removeAttribute(a, extra);
    ASSERT_TRUE(modifier.doIt());
    EXPECT_FALSE(MFnDependencyNode(a, nullptr).hasAttribute("extra"));
    ASSERT_TRUE(modifier.undoIt());
    EXPECT_EQ(7, plug(a, "extra").asInt());
}

TEST_F(Modifiers, ARemovedElementComesBack)
{
    MFnNumericAttribute list;
    const MObject extra = list.create("list", "li", MFnNumericData::kInt);
    list.setArray(true);
    MFnDependencyNode(a, nullptr).addAttribute(extra);
    const MPlug element = plug(a, "list").elementByLogicalIndex(5);
    MPlug(element).setInt(9);
    modifier.removeMultiInstance(element, true);
    ASSERT_TRUE(modifier.doIt());
    EXPECT_EQ(0u, plug(a, "list").numElements());
    ASSERT_TRUE(modifier.undoIt());
    EXPECT_EQ(1u, plug(a, "list").numElements());
    EXPECT_EQ(9, element.asInt());
}

TEST_F(Modifiers, WhatAModifierDoesIsInNoStepOfUndo)
{
    scene.journal().setOn(true);
    {
        const tvxhost::engine::Journal::Command command(scene.journal(), "command");
        modifier.newPlugValueDouble(ax, 4.0);
        ASSERT_TRUE(modifier.doIt());
    }
    EXPECT_TRUE(scene.journal().undoable().empty());
    ASSERT_TRUE(modifier.undoIt());
    EXPECT_EQ(0.0, ax.asDouble());
}

TEST_F(Modifiers, AttributesAndLocksAreUndone)
{
    const MObject extra = MFnNumericAttribute().create("extra", "ex", MFnNumericData::kInt);
    modifier.addAttribute(a, extra);
    modifier.setNodeLockState(b, true);
    ASSERT_TRUE(modifier.doIt());
    EXPECT_TRUE(MFnDependencyNode(a, nullptr).hasAttribute("extra"));
    EXPECT_TRUE(MFnDependencyNode(b, nullptr).isLocked());
    ASSERT_TRUE(modifier.undoIt());
    EXPECT_FALSE(MFnDependencyNode(a, nullptr).hasAttribute("extra"));
    EXPECT_FALSE(MFnDependencyNode(b, nullptr).isLocked());
}

TEST_F(Modifiers, ACommandWithoutALanguageFails)
{
    modifier.commandToExecute("print 1");
    EXPECT_EQ(kRefused, text(modifier.doIt()));
}

TEST_F(Modifiers, ShapesAreMadeWithAVisibilityThatIsNotKeyable)
{
    MDagModifier dag;
    const MFnDagNode made(dag.createNode("locator", a));
    EXPECT_FALSE(made.findPlug("visibility").isKeyable());
    MFnDagNode set;
    MObject above = a;
    set.create("mesh", above);
    EXPECT_FALSE(set.findPlug("visibility").isKeyable());
    EXPECT_TRUE(MFnDagNode(a).findPlug("visibility").isKeyable());
}

TEST_F(Modifiers, DagNodesAreMadeAndMoved)
{
    MDagModifier dag;
    MStatus status;
    const MObject child = dag.createNode("transform", a, &status);
    ASSERT_TRUE(status);
    EXPECT_EQ("|a|transform1", text(MFnDagNode(child).fullPathName()));
    EXPECT_TRUE(dag.createNode("lambert", MObject::kNullObj, &status).isNull());
    EXPECT_EQ(MS::kInvalidParameter, status.statusCode());
    EXPECT_TRUE(dag.reparentNode(child, b));
    ASSERT_TRUE(dag.doIt());
    EXPECT_EQ("|b|transform1", text(MFnDagNode(child).fullPathName()));
    EXPECT_TRUE(dag.reparentNode(child));
    ASSERT_TRUE(dag.doIt());
    EXPECT_EQ("|transform1", text(MFnDagNode(child).fullPathName()));
}
