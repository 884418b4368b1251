// What data handles remember: the way to a value through arrays inside arrays.
#include "../nodeFixture.h"

#include "api/support/elementCursor.h"
#include "api/support/handleState.h"

#include <maya/MDataBlock.h>
#include <maya/MFnCompoundAttribute.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MPlug.h>

using namespace tvxhost::api;
using namespace tvxhost::api::test;
using tvxhost::engine::Plug;

namespace {

/// layers[] { groups[] { weight } }
class Nested : public MPxNode
{
public:
    static void* create() { return new Nested; }
    static MStatus initialize()
    {
        MFnNumericAttribute numeric;
        weight = numeric.create("weight", "we", MFnNumericData::kDouble);
        MFnCompoundAttribute compound;
        groups = compound.create("groups", "gr");
        compound.setArray(true);
        compound.addChild(weight);
        layers = compound.create("layers", "ly");
        compound.setArray(true);
        compound.addChild(groups);
        return addAttribute(layers);
    }
    using MPxNode::forceCache;

    static MObject layers, groups, weight;
};

MObject Nested::layers;
MObject Nested::groups;
MObject Nested::weight;

class HandleStates : public NodeFixture
{
protected:
    HandleStates()
    {
        EXPECT_TRUE(registerType("nested", 0x2100, Nested::create, Nested::initialize));
        node = make("nested", "nest");
    }

    MPlug weightAt(unsigned int layer, unsigned int group)
    {
        MPlug plug(node, Nested::weight);
        EXPECT_TRUE(plug.selectAncestorLogicalIndex(layer, Nested::layers));
        EXPECT_TRUE(plug.selectAncestorLogicalIndex(group, Nested::groups));
        return plug;
    }
    MDataBlock block()
    {
        return static_cast<Nested*>(MFnDependencyNode(node, nullptr).userNode())->forceCache();
    }

    MObject node;
};

} // namespace

TEST_F(HandleStates, AHandleFindsItsPlugAgainThroughTwoArrays)
{
    const MPlug plug = weightAt(3, 1000000);
    EXPECT_EQ("nest.layers[3].groups[1000000].weight", text(plug.name()));
    MStatus status;
    MDataHandle handle = block().outputValue(plug, &status);
    ASSERT_TRUE(status);
    handle.setDouble(0.25);
    EXPECT_EQ(0.25, plug.asDouble());
    EXPECT_EQ(tvxAccess::plug(plug), HandleState::read(handle).plug());
    MDataHandle copy = handle;
    copy.setClean();
    EXPECT_EQ(0.25, copy.asDouble());
}

TEST_F(HandleStates, IndicesPastWhatAHandleRemembersAreRefused)
{
    EXPECT_TRUE(PackedIndices::of(tvxAccess::plug(weightAt(0, (1u << 30) - 1))));
    EXPECT_FALSE(PackedIndices::of(tvxAccess::plug(weightAt(0, 1u << 30))));
    EXPECT_FALSE(PackedIndices::of(tvxAccess::plug(MPlug(node, Nested::weight))));
}

TEST_F(HandleStates, APlugWithUndeterminedIndicesGivesAHarmlessHandle)
{
    MStatus status;
    MDataHandle handle = block().outputValue(Nested::weight, &status);
    EXPECT_EQ(MS::kInvalidParameter, status.statusCode());
    handle.setDouble(1.0);
    EXPECT_EQ(0.0, handle.asDouble());
}

TEST_F(HandleStates, ElementsAreWalkedOverWithoutAList)
{
    for (const unsigned int layer : {9u, 2u, 5u})
        EXPECT_TRUE(weightAt(layer, 0).setValue(1.0));
    const Plug array = tvxAccess::plug(MFnDependencyNode(node, nullptr).findPlug("layers", true));
    EXPECT_EQ(3u, elementCount(array));
    EXPECT_EQ(2, elementAfter(array, -1));
    EXPECT_EQ(5, elementAfter(array, 2));
    EXPECT_EQ(9, elementAfter(array, 5));
    EXPECT_EQ(std::nullopt, elementAfter(array, 9));
    EXPECT_TRUE(hasElement(array, 5));
    EXPECT_FALSE(hasElement(array, 6));
}

TEST_F(HandleStates, ElementsOfPlainNumbersAreWalkedOverToo)
{
    const MObject made = MFnNumericAttribute().create("values", "va", MFnNumericData::kDouble);
    MFnAttribute(made, nullptr).setArray(true);
    ASSERT_TRUE(MFnDependencyNode(node, nullptr).addAttribute(made));
    const MPlug values = MFnDependencyNode(node, nullptr).findPlug("values", true);
    for (const unsigned int index : {4u, 1u, 7u})
        EXPECT_TRUE(values.elementByLogicalIndex(index).setValue(1.0));
    const Plug array = tvxAccess::plug(values);
    EXPECT_EQ(3u, elementCount(array));
    EXPECT_EQ(1, elementAfter(array, -1));
    EXPECT_EQ(4, elementAfter(array, 1));
    EXPECT_EQ(7, elementAfter(array, 4));
    EXPECT_EQ(std::nullopt, elementAfter(array, 7));
}
