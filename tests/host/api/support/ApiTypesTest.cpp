// What objects are in terms of MFn::Type.
#include "../nodeFixture.h"

#include "api/support/apiTypes.h"

#include <maya/MFnEnumAttribute.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MFnUnitAttribute.h>
#include <maya/MPxLocatorNode.h>

using namespace tvxhost::api;
using namespace tvxhost::api::test;

namespace {

class ApiTypes : public NodeFixture
{
};

void* makeNode()
{
    return new MPxNode;
}

void* makeLocator()
{
    return new MPxLocatorNode;
}

MStatus nothing()
{
    return MS::kSuccess;
}

} // namespace

TEST_F(ApiTypes, BuiltInNodesHaveTheTypesOfTheirNames)
{
    EXPECT_EQ(MFn::kTransform, make("transform").apiType());
    EXPECT_STREQ("kTransform", make("transform").apiTypeStr());
    EXPECT_EQ(MFn::kLambert, make("lambert").apiType());
    EXPECT_EQ(MFn::kFileTexture, make("file").apiType());
    EXPECT_EQ(MFn::kSet, make("objectSet").apiType());
    EXPECT_EQ(MFn::kAnimCurveTimeToDistance, make("animCurveTL").apiType());
}

TEST_F(ApiTypes, NodesAnswerToTheSetsOfAllTheirBases)
{
    const MObject transform = make("transform");
    for (const MFn::Type type :
         {MFn::kTransform, MFn::kDagNode, MFn::kDependencyNode, MFn::kNamedObject, MFn::kBase})
        EXPECT_TRUE(transform.hasFn(type)) << type;
    for (const MFn::Type type : {MFn::kShape, MFn::kMesh, MFn::kAttribute, MFn::kWorld, MFn::kInvalid})
        EXPECT_FALSE(transform.hasFn(type)) << type;
}

TEST_F(ApiTypes, AShadingEngineIsASet)
{
    EXPECT_TRUE(make("shadingEngine").hasFn(MFn::kSet));
}

TEST_F(ApiTypes, AnObjectDoesNotAnswerForTheShapeBelow)
{
    const MObject transform = make("mesh");
    EXPECT_EQ(MFn::kTransform, transform.apiType());
    EXPECT_FALSE(transform.hasFn(MFn::kMesh));
}

TEST_F(ApiTypes, PluginNodesHaveTheTypesOfTheirKind)
{
    ASSERT_TRUE(registerType("plainNode", 0x1000, makeNode, nothing));
    ASSERT_TRUE(registerType("pinShape", 0x1001, makeLocator, nothing, MPxNode::kLocatorNode));
    const MObject plain = make("plainNode");
    EXPECT_EQ(MFn::kPluginDependNode, plain.apiType());
    EXPECT_TRUE(plain.hasFn(MFn::kDependencyNode));
    EXPECT_FALSE(plain.hasFn(MFn::kDagNode));
    const MObject transform = make("pinShape");
    EXPECT_EQ(MFn::kTransform, transform.apiType());
    const MObject pin = tvxAccess::handle(scene.findNode("pinShape1").value);
    EXPECT_EQ(MFn::kPluginLocatorNode, pin.apiType());
    for (const MFn::Type type : {MFn::kLocator, MFn::kShape, MFn::kDagNode, MFn::kDependencyNode})
        EXPECT_TRUE(pin.hasFn(type)) << type;
}

TEST_F(ApiTypes, TheWorldIsNoTransform)
{
    const MObject world = tvxAccess::handle(&scene.world());
    EXPECT_EQ(MFn::kWorld, world.apiType());
    EXPECT_TRUE(world.hasFn(MFn::kDagNode));
    EXPECT_FALSE(world.hasFn(MFn::kTransform));
}

TEST_F(ApiTypes, AttributesHaveTheTypesOfTheirValues)
{
    MFnNumericAttribute numeric;
    const MObject color = numeric.createColor("tint", "ti");
    EXPECT_EQ(MFn::kAttribute3Float, color.apiType());
    EXPECT_TRUE(color.hasFn(MFn::kNumericAttribute));
    EXPECT_EQ(MFn::kNumericAttribute, numeric.create("n", "n", MFnNumericData::kInt).apiType());
    EXPECT_EQ(MFn::kAttribute2Double, numeric.create("d", "d", MFnNumericData::k2Double).apiType());
    EXPECT_EQ(MFn::kEnumAttribute, MFnEnumAttribute().create("e", "e").apiType());
    EXPECT_EQ(MFn::kTypedAttribute, MFnTypedAttribute().create("t", "t", MFnData::kString).apiType());
    const MObject time = MFnUnitAttribute().create("u", "u", MFnUnitAttribute::kTime);
    EXPECT_EQ(MFn::kTimeAttribute, time.apiType());
    EXPECT_TRUE(time.hasFn(MFn::kUnitAttribute));
}

TEST_F(ApiTypes, ADeletedNodeAnswersToNothing)
{
    const MObject node = make("transform", "gone");
    ASSERT_TRUE(scene.deleteNode(*scene.findNode("gone").value));
    EXPECT_FALSE(node.isNull());
    EXPECT_EQ(MFn::kInvalid, node.apiType());
    EXPECT_FALSE(node.hasFn(MFn::kDependencyNode));
}

TEST_F(ApiTypes, ATypeKnowsTheSetsOfItsObjects)
{
    EXPECT_TRUE(typeHasFn(MFn::kTransform, MFn::kDagNode));
    EXPECT_FALSE(typeHasFn(MFn::kLambert, MFn::kDagNode));
    EXPECT_TRUE(typeHasFn(MFn::kAttribute3Float, MFn::kNumericAttribute));
    EXPECT_FALSE(typeHasFn(MFn::kTypedAttribute, MFn::kNumericAttribute));
}
