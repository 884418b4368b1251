// MFnDagNode: parents, children, paths and instances.
#include "../nodeFixture.h"

#include <maya/MColor.h>
#include <maya/MDagPath.h>
#include <maya/MDagPathArray.h>
#include <maya/MFnDagNode.h>
#include <maya/MMatrix.h>
#include <maya/MPlug.h>

using namespace tvxhost::api::test;

namespace {

/// |root|inner|shape, and |branch.
class DagNodes : public NodeFixture
{
protected:
    DagNodes()
    {
        root = make("transform", "root");
        branch = make("transform", "branch");
        inner = MFnDagNode().create("transform", "inner", root);
        shape = MFnDagNode().create("locator", "shape", inner);
    }
    MObject root, branch, inner, shape;
};

} // namespace

TEST_F(DagNodes, ATopLevelNodeHasTheWorldAsParent)
{
    MFnDagNode set(root);
    EXPECT_EQ(1u, set.parentCount());
    const MObject world = set.parent(0);
    EXPECT_EQ(MFn::kWorld, world.apiType());
    MStatus status;
    MFnDagNode worldSet(world, &status);
    EXPECT_TRUE(status);
    EXPECT_EQ(0u, worldSet.parentCount());
    EXPECT_TRUE(worldSet.parent(0, &status).isNull());
    EXPECT_EQ("(kInvalidParameter): No element at given index", text(status));
    EXPECT_TRUE(worldSet.findPlug("visibility", true).asBool());
}

TEST_F(DagNodes, FamilyIsTold)
{
    const MFnDagNode set(inner);
    EXPECT_EQ(1u, set.childCount());
    EXPECT_EQ(shape, set.child(0));
    EXPECT_TRUE(set.hasParent(root));
    EXPECT_TRUE(set.hasChild(shape));
    EXPECT_TRUE(MFnDagNode(root).isParentOf(shape));
    EXPECT_FALSE(MFnDagNode(root).hasChild(shape));
    EXPECT_TRUE(MFnDagNode(shape).isChildOf(root));
    EXPECT_FALSE(MFnDagNode(shape).isChildOf(branch));
    EXPECT_EQ(MFn::kWorld, MFnDagNode(shape).dagRoot().apiType());
}

TEST_F(DagNodes, PathsAreNamed)
{
    MDagPath path;
    EXPECT_TRUE(MFnDagNode(shape).getPath(path));
    EXPECT_EQ("|root|inner|shape", text(path.fullPathName()));
    EXPECT_EQ("|root|inner|shape", text(MFnDagNode(shape).fullPathName()));
    EXPECT_EQ("shape", text(MFnDagNode(shape).partialPathName()));
}

TEST_F(DagNodes, ASetOnAPathKnowsItsInstance)
{
    MFnDagNode branchSet(branch);
    ASSERT_TRUE(branchSet.addChild(inner, MFnDagNode::kNextPos, true));
    MDagPathArray paths;
    EXPECT_TRUE(MFnDagNode(shape).getAllPaths(paths));
    ASSERT_EQ(2u, paths.length());
    EXPECT_EQ("|branch|inner|shape", text(paths[1].fullPathName()));
    const MFnDagNode second(paths[1]);
    EXPECT_EQ("|branch|inner|shape", text(second.fullPathName()));
    MStatus status;
    EXPECT_EQ("|branch|inner|shape", text(second.dagPath(&status).fullPathName()));
    EXPECT_TRUE(status);
    MFnDagNode(shape).dagPath(&status);
    EXPECT_FALSE(status);
    EXPECT_TRUE(MFnDagNode(shape).isInstanced());
    EXPECT_FALSE(MFnDagNode(shape).isInstanced(false));
    EXPECT_TRUE(MFnDagNode(inner).isInstanced(false));
    EXPECT_EQ(2u, MFnDagNode(shape).instanceCount(true));
    EXPECT_EQ(1u, MFnDagNode(shape).instanceCount(false));
}

TEST_F(DagNodes, AnInvalidPathAttachesNothing)
{
    MStatus status;
    const MFnDagNode set(MDagPath(), &status);
    EXPECT_EQ("(kInvalidParameter): Object does not exist", text(status));
    EXPECT_TRUE(set.object().isNull());
}

TEST_F(DagNodes, AddingAChildMovesItUnlessParentsAreKept)
{
    EXPECT_TRUE(MFnDagNode(branch).addChild(inner));
    EXPECT_EQ("|branch|inner", text(MFnDagNode(inner).fullPathName()));
    EXPECT_EQ(0u, MFnDagNode(root).childCount());
    EXPECT_FALSE(MFnDagNode(shape).addChild(branch));
    EXPECT_FALSE(MFnDagNode(inner).addChild(branch) && MFnDagNode(branch).isChildOf(branch));
}

TEST_F(DagNodes, AChildIsAddedAtAPlace)
{
    MObject a = make("transform", "a"), b = make("transform", "b");
    MFnDagNode set(branch);
    EXPECT_TRUE(set.addChild(a));
    EXPECT_TRUE(set.addChild(b, 0));
    EXPECT_TRUE(set.addChild(inner, 1));
    EXPECT_EQ("b", text(MFnDagNode(set.child(0)).name()));
    EXPECT_EQ("inner", text(MFnDagNode(set.child(1)).name()));
    EXPECT_EQ("a", text(MFnDagNode(set.child(2)).name()));
    // What is there already moves; beyond the last is the end.
    EXPECT_TRUE(set.addChild(b, 7));
    EXPECT_EQ("b", text(MFnDagNode(set.child(2)).name()));
}

TEST_F(DagNodes, RemovingTheLastInstancePutsItBelowTheWorld)
{
    EXPECT_TRUE(MFnDagNode(root).removeChild(inner));
    EXPECT_EQ("|inner", text(MFnDagNode(inner).fullPathName()));
    EXPECT_EQ("(kInvalidParameter): Cannot find item of required type",
              text(MFnDagNode(root).removeChild(inner)));
    EXPECT_FALSE(MFnDagNode(root).removeChildAt(0));
}

TEST_F(DagNodes, TheLocalMatrixIsThatOfTheTransform)
{
    MFnDagNode set(root);
    EXPECT_TRUE(set.findPlug("ty", true).setValue(2.5));
    EXPECT_EQ(2.5, set.transformationMatrix().matrix[3][1]);
}

TEST_F(DagNodes, IntermediateAndColorsAreAttributes)
{
    MFnDagNode set(shape);
    EXPECT_FALSE(set.isIntermediateObject());
    EXPECT_TRUE(set.setIntermediateObject(true));
    EXPECT_TRUE(set.findPlug("intermediateObject", true).asBool());
    EXPECT_FALSE(set.usingObjectColor());
    EXPECT_TRUE(set.setUseObjectColor(true));
    EXPECT_TRUE(set.setObjectColor(4));
    EXPECT_EQ(4, set.objectColorIndex());
    EXPECT_TRUE(set.findPlug("overrideEnabled", true).setValue(true));
    EXPECT_TRUE(set.findPlug("overrideDisplayType", true).setValue(2));
    EXPECT_TRUE(set.drawOverrideIsReference());
    EXPECT_FALSE(set.drawOverrideIsTemplate());
}

TEST_F(DagNodes, NodesOutsideTheDagDoNotFit)
{
    MStatus status;
    const MFnDagNode set(make("lambert"), &status);
    EXPECT_EQ("(kInvalidParameter): Object is incompatible with this method", text(status));
    EXPECT_TRUE(MFnDagNode().create("lambert", MObject::kNullObj, &status).isNull());
    EXPECT_FALSE(status);
}

TEST_F(DagNodes, DuplicatesStandBesideTheOriginal)
{
    MStatus status;
    MFnDagNode set(inner);
    EXPECT_TRUE(set.findPlug("translateX", true).setValue(3.0));
    const MFnDagNode copy(set.duplicate(false, false, &status));
    EXPECT_TRUE(status);
    EXPECT_EQ("|root|inner1", text(copy.fullPathName()));
    EXPECT_EQ(3.0, copy.findPlug("translateX", true).asDouble());
    EXPECT_EQ("|root|inner1|shape1", text(MFnDagNode(copy.child(0)).fullPathName()));
    const MFnDagNode sharing(set.duplicate(false, true, &status));
    EXPECT_EQ(shape, sharing.child(0));
    EXPECT_TRUE(set.duplicate(true, false, &status).isNull());
    EXPECT_EQ(MS::kNotImplemented, status.statusCode());
    EXPECT_TRUE(MFnDagNode().duplicate(false, false, &status).isNull());
    EXPECT_EQ("(kFailure): Object does not exist", text(status));
}
