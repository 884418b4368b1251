// The 3Delight nodes as a scene has them.
#include "NodeTest.h"

#include <maya/MFnAttribute.h>

#include <gtest/gtest.h>

namespace tarvox::crowd {
namespace {

class Node3Delight : public test::NodeTest, public testing::WithParamInterface<const char*>
{
protected:
    void SetUp() override
    {
        NodeTest::SetUp();
        node = createNode(GetParam());
    }

    MObject node;
};

TEST_P(Node3Delight, ComputesNothing)
{
    for (const MPlug& plug : plugsOf(node))
        EXPECT_EQ(compute(node, plug), MStatus::kUnknownParameter) << plug.name().asChar();
}

TEST_P(Node3Delight, HoldsStringsThatStartEmptyAndAreSaved)
{
    for (const char* name : {"shadingParameters", "shadingCode"}) {
        MPlug plug = plugOf(node, name);
        EXPECT_TRUE(MFnAttribute(plug.attribute(), nullptr).isStorable()) << name;
        EXPECT_EQ(plug.asString(), "") << name;
        EXPECT_TRUE(plug.setString("color c = 1;\n")) << name;
        EXPECT_EQ(plug.asString(), "color c = 1;\n") << name;
    }
}

// Both types have attributes of the same names, and each its own.
TEST_P(Node3Delight, SharesNoAttributeWithTheOtherType)
{
    const MObject other =
        createNode(GetParam() == std::string("CrowdSwitchShader3Delight") ? "CrowdGetUserData3Delight"
                                                                          : "CrowdSwitchShader3Delight");
    for (const char* name : {"shadingParameters", "shadingCode"})
        EXPECT_FALSE(plugOf(node, name).attribute() == plugOf(other, name).attribute()) << name;
}

INSTANTIATE_TEST_SUITE_P(OfEachType, Node3Delight,
                         testing::Values("CrowdSwitchShader3Delight", "CrowdGetUserData3Delight"),
                         [](const auto& instance) { return std::string(instance.param); });

} // namespace
} // namespace tarvox::crowd
