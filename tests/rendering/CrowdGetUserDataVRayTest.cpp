// The V-Ray user-data node as a scene has it.
#include "NodeTest.h"

#include <maya/MDataBlock.h>
#include <maya/MDataHandle.h>
#include <maya/MFnAttribute.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MFnEnumAttribute.h>
#include <maya/MPxNode.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvox::crowd {
namespace {

using testing::IsEmpty;

class GetUserDataVRay : public test::NodeTest
{
protected:
    void SetUp() override
    {
        NodeTest::SetUp();
        node = createNode("CrowdGetUserDataVRay");
    }

    MPlug plug(const char* name) const { return plugOf(node, name); }

    MObject node;
};

TEST_F(GetUserDataVRay, AsksForTheMaterialAndGivesZeroWhenNew)
{
    const MFnEnumAttribute choice(plug("paramType").attribute(), nullptr);
    EXPECT_EQ(plug("paramType").asShort(), 0);
    EXPECT_EQ(choice.fieldName(plug("paramType").asShort()), "mtlIndex");
    EXPECT_EQ(choice.fieldName(1), "VRay ObjectID");
    EXPECT_EQ(plug("default").asDouble(), 0.0);
    EXPECT_EQ(plug("output").asDouble(), 0.0);
}

TEST_F(GetUserDataVRay, RunsAgainWhenAnInputChangesAndGivesZeroAllTheSame)
{
    EXPECT_EQ(plug("output").asDouble(), 0.0);
    ASSERT_FALSE(isDirty(plug("output")));
    EXPECT_TRUE(plug("paramType").setShort(1));
    EXPECT_TRUE(isDirty(plug("output")));
    EXPECT_EQ(plug("output").asDouble(), 0.0);
    ASSERT_FALSE(isDirty(plug("output")));
    EXPECT_TRUE(plug("default").setDouble(42.5));
    EXPECT_TRUE(isDirty(plug("output")));
    EXPECT_EQ(plug("output").asDouble(), 0.0);
}

TEST_F(GetUserDataVRay, MarksItsOutputCleanWhenAskedForIt)
{
    EXPECT_TRUE(plug("default").setDouble(42.5));
    ASSERT_TRUE(isDirty(plug("output")));
    EXPECT_EQ(compute(node, plug("output")), MStatus::kSuccess);
    EXPECT_FALSE(isDirty(plug("output")));
}

TEST_F(GetUserDataVRay, LeavesTheValueOfItsOutputAsItIs)
{
    MDataBlock block = MFnDependencyNode(node, nullptr).userNode()->_forceCache();
    block.outputValue(plug("output")).setDouble(12.5);
    EXPECT_TRUE(plug("paramType").setShort(1));
    EXPECT_EQ(compute(node, plug("output")), MStatus::kSuccess);
    EXPECT_EQ(plug("output").asDouble(), 12.5);
}

TEST_F(GetUserDataVRay, AnswersForNoOtherPlugAndTouchesNothing)
{
    EXPECT_TRUE(plug("default").setDouble(42.5));
    EXPECT_THAT(computedBeside(node, "output"), IsEmpty());
    EXPECT_TRUE(isDirty(plug("output")));
}

TEST_F(GetUserDataVRay, GivesItsOutputToWhomItIsConnected)
{
    const MObject shader = createNode("CrowdSwitchShaderVRay");
    EXPECT_TRUE(plugOf(shader, "selector").setInt(7));
    connect(plug("output"), plugOf(shader, "selector"));
    EXPECT_TRUE(plug("default").setDouble(3.0));
    EXPECT_EQ(plugOf(shader, "selector").asInt(), 0);
}

TEST_F(GetUserDataVRay, DoesNotLetItsOutputBeSetOrSaved)
{
    EXPECT_FALSE(plug("output").setDouble(1.0));
    EXPECT_EQ(plug("output").asDouble(), 0.0);
    const MFnAttribute output(plug("output").attribute(), nullptr);
    EXPECT_FALSE(output.isWritable());
    EXPECT_FALSE(output.isStorable());
}

} // namespace
} // namespace tarvox::crowd
