// The nodes that pass a colour through: the shader switch and the HSL shader.
#include "NodeTest.h"

#include <maya/MDataBlock.h>
#include <maya/MDataHandle.h>
#include <maya/MFloatVector.h>
#include <maya/MFnAttribute.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MPxNode.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace tarvox::crowd {
namespace {

using test::Color;
using testing::IsEmpty;

const Color kTeal{0.0f, 0.5f, 0.25f};

struct ColorType
{
    const char* type;
    const char* input;
    Color whenNew;
    std::vector<const char*> inputs; // a number of each
};

void PrintTo(const ColorType& type, std::ostream* text)
{
    *text << type.type;
}

class ColorNode : public test::NodeTest, public testing::WithParamInterface<ColorType>
{
protected:
    void SetUp() override
    {
        NodeTest::SetUp();
        node = createNode(GetParam().type);
    }

    static MPlug inputOf(const MObject& node) { return plugOf(node, GetParam().input); }
    MPlug input() const { return inputOf(node); }
    MPlug output() const { return plugOf(node, "output"); }

    MObject node;
};

TEST_P(ColorNode, GivesTheDefaultOfItsInputWhenNew)
{
    EXPECT_EQ(colorOf(output()), GetParam().whenNew);
}

TEST_P(ColorNode, GivesItsInput)
{
    for (const Color& color : {kTeal, Color{-1.0f, 0.0f, 1.0e30f}, Color{0.1f, 0.2f, 0.3f}}) {
        setColor(input(), color);
        EXPECT_EQ(colorOf(output()), color);
    }
}

TEST_P(ColorNode, FollowsAConnectedInput)
{
    const MObject source = createNode(GetParam().type);
    connect(plugOf(source, "output"), input());
    setColor(inputOf(source), kTeal);
    EXPECT_EQ(colorOf(output()), kTeal);
    setColor(inputOf(source), {0.125f, 0.25f, 0.5f});
    EXPECT_EQ(colorOf(output()), (Color{0.125f, 0.25f, 0.5f}));
}

TEST_P(ColorNode, ComputesAllComponentsWhenAskedForOne)
{
    setColor(input(), kTeal);
    MPxNode* code = MFnDependencyNode(node, nullptr).userNode();
    for (unsigned int i = 0; i < 3; ++i) {
        setColor(input(), {0.75f, 0.75f, 0.75f});
        colorOf(output());
        setColor(input(), kTeal);
        ASSERT_TRUE(isDirty(output()));
        MDataBlock block = code->_forceCache();
        EXPECT_EQ(code->compute(output().child(i), block), MStatus::kSuccess);
        EXPECT_FALSE(isDirty(output()));
        const MFloatVector& result = block.outputValue(output()).asFloatVector();
        EXPECT_EQ((Color{result.x, result.y, result.z}), kTeal) << i;
    }
}

TEST_P(ColorNode, GivesOneComponentToWhomItIsConnected)
{
    const MObject reader = createNode("CrowdSwitchShaderVRay");
    setColor(input(), kTeal);
    connect(output().child(1), plugOf(reader, "shader0").child(0));
    EXPECT_EQ(plugOf(reader, "output").child(0).asFloat(), 0.5f);
}

TEST_P(ColorNode, AnswersForNoOtherPlugAndTouchesNothing)
{
    setColor(input(), kTeal);
    ASSERT_TRUE(isDirty(output()));
    EXPECT_THAT(computedBeside(node, "output"), IsEmpty());
    EXPECT_TRUE(isDirty(output()));
}

TEST_P(ColorNode, RunsAgainWhenAnyInputChanges)
{
    for (const char* name : GetParam().inputs) {
        colorOf(output());
        ASSERT_FALSE(isDirty(output()));
        MPlug changed = plugOf(node, name);
        EXPECT_TRUE(changed.setDouble(changed.asDouble() == 0.0 ? 1.0 : 0.0)) << name;
        EXPECT_TRUE(isDirty(output())) << name;
    }
}

TEST_P(ColorNode, DoesNotLetItsOutputBeSetOrSaved)
{
    for (unsigned int i = 0; i < 3; ++i)
        EXPECT_FALSE(output().child(i).setFloat(0.625f));
    EXPECT_EQ(colorOf(output()), GetParam().whenNew);
    const MFnAttribute attribute(output().attribute(), nullptr);
    EXPECT_FALSE(attribute.isWritable());
    EXPECT_FALSE(attribute.isStorable());
}

INSTANTIATE_TEST_SUITE_P(
    OfEachType, ColorNode,
    testing::Values(ColorType{"CrowdSwitchShaderVRay",
                              "shader0",
                              {1.0f, 0.45f, 0.0f},
                              {"selector", "startOffset", "defaultR", "shader0G", "shader1R", "shader2R",
                               "shader3R", "shader4R", "shader5R", "shader6R", "shader7R", "shader8R",
                               "shader9B"}},
                    ColorType{"CrowdHSLShaderVRay", "input", {0.5f, 0.5f, 0.5f}, {"inputB", "h", "s", "l"}}),
    [](const auto& instance) { return instance.param.type; });

class SwitchShaderVRay : public test::NodeTest
{
};

TEST_F(SwitchShaderVRay, GivesTheFirstShaderWhateverIsSelected)
{
    const MObject node = createNode("CrowdSwitchShaderVRay");
    setColor(plugOf(node, "shader0"), kTeal);
    for (const int selected : {-5, 0, 3, 9, 10, 1000}) {
        EXPECT_TRUE(plugOf(node, "selector").setInt(selected));
        EXPECT_TRUE(plugOf(node, "startOffset").setInt(selected));
        EXPECT_EQ(colorOf(plugOf(node, "output")), kTeal) << selected;
    }
}

TEST_F(SwitchShaderVRay, GivesTheFirstShaderThoughAnotherOneIsConnectedAndSelected)
{
    const MObject node = createNode("CrowdSwitchShaderVRay");
    const MObject source = createNode("CrowdSwitchShaderVRay");
    setColor(plugOf(source, "shader0"), {0.875f, 0.875f, 0.875f});
    setColor(plugOf(node, "shader0"), kTeal);
    connect(plugOf(source, "output"), plugOf(node, "shader3"));
    EXPECT_TRUE(plugOf(node, "selector").setInt(3));
    EXPECT_EQ(colorOf(plugOf(node, "shader3")), (Color{0.875f, 0.875f, 0.875f}));
    EXPECT_EQ(colorOf(plugOf(node, "output")), kTeal);
}

class HSLShaderVRay : public test::NodeTest
{
};

TEST_F(HSLShaderVRay, LeavesTheColorAsItIsWhateverTheOffsets)
{
    const MObject node = createNode("CrowdHSLShaderVRay");
    setColor(plugOf(node, "input"), kTeal);
    for (const char* offset : {"h", "s", "l"})
        for (const double value : {0.5, -1.0, 1.0}) {
            EXPECT_TRUE(plugOf(node, offset).setDouble(value)) << offset;
            EXPECT_EQ(colorOf(plugOf(node, "output")), kTeal) << offset << value;
        }
}

TEST_F(HSLShaderVRay, HoldsItsOffsetsWithinTheirLimits)
{
    const MObject node = createNode("CrowdHSLShaderVRay");
    for (const char* offset : {"h", "s", "l"}) {
        MPlug plug = plugOf(node, offset);
        EXPECT_TRUE(plug.setDouble(0.25)) << offset;
        for (const double value : {2.0, 1.0001, -1.0001, -1.0e9}) {
            EXPECT_FALSE(plug.setDouble(value)) << offset << value;
            EXPECT_EQ(plug.asDouble(), 0.25) << offset << value;
        }
    }
}

} // namespace
} // namespace tarvox::crowd
