// Data of plug-ins' own types: made, kept in attributes, handed on, and what is left of it when its plug-in
// goes.
#include "../nodeFixture.h"

#include "engine/pluginData.h"

#include <maya/MArgList.h>
#include <maya/MDataBlock.h>
#include <maya/MDataHandle.h>
#include <maya/MFnGenericAttribute.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnPluginData.h>
#include <maya/MFnStringData.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MPlug.h>
#include <maya/MPxData.h>
#include <maya/MUintArray.h>

#include <ostream>

namespace tvxhost::api::test {
namespace {

const MTypeId kPebbleId(0x4100);
const MTypeId kOtherId(0x4101);

/// One number; counts those that live.
class Pebble : public MPxData
{
public:
    Pebble() { ++living; }
    ~Pebble() override { --living; }
    static void* create() { return new Pebble; }

    MStatus readASCII(const MArgList& list, unsigned int& index) override
    {
        MStatus status;
        weight = list.asDouble(index++, &status);
        return status;
    }
    MStatus writeASCII(std::ostream& out) override
    {
        out << weight;
        return MS::kSuccess;
    }
    void copy(const MPxData& src) override { weight = static_cast<const Pebble&>(src).weight; }
    MTypeId typeId() const override { return kPebbleId; }
    MString name() const override { return "pebble"; }

    double weight = 0.0;
    static int living;
};
int Pebble::living = 0;

/// Data that is as its base class made it.
class Bare final : public MPxData
{
public:
    static void* create() { return new Bare; }
    void copy(const MPxData&) override {}
    MTypeId typeId() const override { return kOtherId; }
    MString name() const override { return "bare"; }
};

/// A node that hands its pebble on, twice as heavy.
class Heavier : public MPxNode
{
public:
    static void* create() { return new Heavier; }
    static MStatus initialize()
    {
        MFnTypedAttribute set;
        input = set.create("input", "in", kPebbleId);
        output = set.create("output", "out", kPebbleId);
        addAttribute(input);
        addAttribute(output);
        return attributeAffects(input, output);
    }
    MStatus compute(const MPlug& plug, MDataBlock& block) override
    {
        if (plug != output)
            return MS::kUnknownParameter;
        const MDataHandle given = block.inputValue(input);
        const auto* pebble = static_cast<const Pebble*>(given.asPluginData());
        MDataHandle result = block.outputValue(output);
        auto* made = new Pebble;
        made->weight = pebble ? 2.0 * pebble->weight : -1.0;
        if (const MStatus set = result.set(made); !set)
            return set;
        return block.setClean(plug);
    }
    static MObject input, output;
};
MObject Heavier::input;
MObject Heavier::output;

class PluginDataTest : public NodeFixture
{
protected:
    PluginDataTest()
    {
        EXPECT_EQ(0, Pebble::living);
        EXPECT_EQ(MS::kSuccess, MFnPlugin(pluginObject).registerData("pebble", kPebbleId, Pebble::create));
    }
    ~PluginDataTest() override { scene.dataTypes().remove(*scene.dataTypes().find("pebble")); }

    static MObject pebble(double weight)
    {
        MFnPluginData set;
        MObject object = set.create(kPebbleId);
        static_cast<Pebble*>(set.data())->weight = weight;
        return object;
    }
    static double weightOf(const MObject& object)
    {
        MStatus status;
        const MFnPluginData set(object, &status);
        EXPECT_TRUE(status) << text(status);
        const auto* data = static_cast<const Pebble*>(set.constData());
        return data ? data->weight : -100.0;
    }
    MObject makeHeavier(const char* name)
    {
        if (!scene.types().find("heavier")) {
            EXPECT_EQ(MS::kSuccess, registerType("heavier", 0x4102, Heavier::create, Heavier::initialize));
        }
        return make("heavier", name);
    }
};

TEST_F(PluginDataTest, DataIsMadeByItsNumberAndIsOfItsType)
{
    MFnPluginData set;
    MStatus status = MS::kFailure;
    const MObject object = set.create(kPebbleId, &status);
    EXPECT_EQ(MS::kSuccess, status);
    EXPECT_EQ(MFn::kPluginData, object.apiType());
    EXPECT_EQ(kPebbleId, set.typeId(&status));
    EXPECT_EQ(MS::kSuccess, status);
    const MFnPluginData again(object, &status);
    EXPECT_EQ(MS::kSuccess, status);
    EXPECT_EQ(set.data(), again.constData()) << "both are attached to the one object";
    EXPECT_EQ("pebble", text(set.data()->name()));
}

TEST_F(PluginDataTest, ThereIsNoDataOfAnUnknownType)
{
    MFnPluginData set;
    MStatus status;
    EXPECT_TRUE(set.create(kOtherId, &status).isNull());
    EXPECT_EQ(MS::kInvalidParameter, status);
    EXPECT_EQ(nullptr, set.data(&status));
    EXPECT_EQ("(kFailure): Object does not exist", text(status));
    MFnStringData string;
    const MFnPluginData wrong(string.create("x"), &status);
    EXPECT_EQ("(kInvalidParameter): Object is incompatible with this method", text(status));
}

TEST_F(PluginDataTest, ANameOrANumberIsRegisteredOnce)
{
    MFnPlugin set(pluginObject);
    EXPECT_EQ(MS::kFailure, set.registerData("pebble", kOtherId, Pebble::create));
    EXPECT_EQ(MS::kFailure, set.registerData("stone", kPebbleId, Pebble::create));
    EXPECT_EQ(MS::kInvalidParameter, set.registerData("stone", kOtherId, nullptr));
    EXPECT_EQ(MS::kNotImplemented,
              set.registerData("stone", kOtherId, Pebble::create, MPxData::kGeometryData));
    EXPECT_EQ(MS::kInvalidParameter, set.deregisterData(kOtherId));
}

TEST_F(PluginDataTest, AnAttributeOfTheTypeKeepsACopyOfWhatItIsGiven)
{
    const MPlug input = plug(makeHeavier("a"), "input");
    MObject given = pebble(3.0);
    MPlug target = input;
    EXPECT_EQ(MS::kSuccess, target.setMObject(given));
    static_cast<Pebble*>(MFnPluginData(given, nullptr).data())->weight = 4.0;
    EXPECT_EQ(3.0, weightOf(input.asMObject()));
    MDataHandle handle = target.asMDataHandle();
    EXPECT_EQ(kPebbleId, handle.typeId());
    EXPECT_EQ(MFnData::kPlugin, handle.type());
    target.destructHandle(handle);
}

TEST_F(PluginDataTest, APlugTakesThePluginsObject)
{
    MPlug input = plug(makeHeavier("a"), "input");
    MFnPluginData set;
    const MObject holder = set.create(kPebbleId);
    static_cast<Pebble*>(set.data())->weight = 7.0;
    EXPECT_EQ(MS::kSuccess, input.setValue(set.data()));
    EXPECT_EQ(7.0, weightOf(input.asMObject()));
    EXPECT_EQ(MS::kInvalidParameter, input.setMPxData(nullptr));
}

TEST_F(PluginDataTest, DataFlowsThroughConnections)
{
    const MObject first = makeHeavier("a");
    const MObject second = makeHeavier("b");
    MPlug input = plug(first, "input");
    MObject given = pebble(1.5);
    ASSERT_TRUE(
        scene.connect(tvxAccess::plug(plug(first, "output")), tvxAccess::plug(plug(second, "input"))));
    EXPECT_EQ(-2.0, weightOf(plug(second, "output").asMObject())) << "-1 where nothing was set";
    EXPECT_EQ(MS::kSuccess, input.setMObject(given));
    EXPECT_EQ(6.0, weightOf(plug(second, "output").asMObject()));
    EXPECT_FALSE(
        scene.connect(tvxAccess::plug(plug(second, "output")), scene.findPlug("persp.translateX").value));
}

TEST_F(PluginDataTest, OtherDataIsRefused)
{
    ASSERT_EQ(MS::kSuccess, MFnPlugin(pluginObject).registerData("bare", kOtherId, Bare::create));
    MPlug input = plug(makeHeavier("a"), "input");
    MFnPluginData set;
    MObject other = set.create(kOtherId);
    EXPECT_FALSE(input.setMObject(other));
    EXPECT_FALSE(input.setValue(set.data()));
    MFnStringData string;
    MObject words = string.create("x");
    EXPECT_FALSE(input.setMObject(words));
    const auto notes = scene.findPlug("persp.translateX").value;
    MPlug number = tvxAccess::plug(notes);
    MObject given = pebble(1.0);
    EXPECT_FALSE(number.setMObject(given));
}

TEST_F(PluginDataTest, AnAttributeHasADefault)
{
    MFnTypedAttribute set;
    MStatus status;
    MFnStringData string;
    set.create("pocket", "p", kPebbleId, string.create("x"), &status);
    EXPECT_EQ(MS::kInvalidParameter, status);
    set.create("pocket", "p", kOtherId, MObject::kNullObj, &status);
    EXPECT_EQ(MS::kInvalidParameter, status) << "the type must be registered first";
    const MObject attribute = set.create("pocket", "p", kPebbleId, pebble(9.0), &status);
    ASSERT_EQ(MS::kSuccess, status);
    EXPECT_EQ(MFnData::kPlugin, set.attrType());
    EXPECT_TRUE(set.accepts(kPebbleId));
    EXPECT_FALSE(set.accepts(kOtherId));
    MFnDependencyNode node(make("transform", "box"), nullptr);
    ASSERT_EQ(MS::kSuccess, node.addAttribute(attribute));
    EXPECT_EQ(9.0, weightOf(node.findPlug("pocket", true).asMObject()));
    MObject own;
    EXPECT_EQ(MS::kSuccess, set.getDefault(own));
    EXPECT_EQ(9.0, weightOf(own));
}

TEST_F(PluginDataTest, AGenericAttributeTakesTheTypesThatItAccepts)
{
    ASSERT_EQ(MS::kSuccess, MFnPlugin(pluginObject).registerData("bare", kOtherId, Bare::create));
    MFnGenericAttribute set;
    const MObject attribute = set.create("bag", "b");
    EXPECT_EQ(MS::kSuccess, set.addAccept(kPebbleId));
    EXPECT_EQ(MS::kInvalidParameter, set.addAccept(MTypeId(0x4199)));
    EXPECT_TRUE(set.accepts(kPebbleId));
    EXPECT_FALSE(set.accepts(kOtherId));
    MFnDependencyNode node(make("transform", "box"), nullptr);
    ASSERT_EQ(MS::kSuccess, node.addAttribute(attribute));
    MPlug bag = node.findPlug("bag", true);
    MObject stone = pebble(2.0);
    EXPECT_EQ(MS::kSuccess, bag.setMObject(stone));
    EXPECT_EQ(2.0, weightOf(bag.asMObject()));
    MFnPluginData other;
    MObject bare = other.create(kOtherId);
    EXPECT_FALSE(bag.setMObject(bare));
    EXPECT_EQ(MS::kSuccess, set.removeAccept(kPebbleId));
    EXPECT_FALSE(set.accepts(kPebbleId));
    EXPECT_FALSE(set.removeAccept(kPebbleId));
}

TEST_F(PluginDataTest, WhatTheBaseClassDoesIsToRefuse)
{
    Bare bare;
    unsigned int index = 0;
    std::ostream nowhere(nullptr);
    std::istream nothing(nullptr);
    EXPECT_EQ(MS::kFailure, bare.readASCII(MArgList(), index));
    EXPECT_EQ(MS::kFailure, bare.writeASCII(nowhere));
    EXPECT_EQ(MS::kFailure, bare.readBinary(nothing, 0));
    EXPECT_EQ(MS::kFailure, bare.writeBinary(nowhere));
}

TEST_F(PluginDataTest, WhatIsLeftOfDataIsWhatItIsSavedWith)
{
    MPlug input = plug(makeHeavier("a"), "input");
    MObject given = pebble(2.5);
    ASSERT_EQ(MS::kSuccess, input.setMObject(given));
    EXPECT_EQ(2, Pebble::living);
    MFnPlugin set(pluginObject);
    EXPECT_EQ(MS::kSuccess, set.deregisterData(kPebbleId));
    EXPECT_EQ(0, Pebble::living) << "no code of the plug-in is needed any more";
    const MObject left = input.asMObject();
    MStatus status;
    MFnPluginData gone(left, &status);
    EXPECT_EQ(MS::kSuccess, status);
    EXPECT_EQ(nullptr, gone.data(&status));
    EXPECT_EQ("(kFailure): Object does not exist", text(status));
    EXPECT_EQ(kPebbleId, gone.typeId());
    const auto& data = static_cast<const engine::PluginData&>(*tvxAccess::object(left));
    EXPECT_EQ("2.5", data.words().value);
    const engine::Ref<engine::Data> copy = data.clone();
    EXPECT_EQ("2.5", static_cast<const engine::PluginData&>(*copy).words().value);
    EXPECT_EQ(MS::kSuccess, set.registerData("pebble", kPebbleId, Pebble::create));
}

TEST_F(PluginDataTest, DataInAnAttributeIsInUseAndADefaultIsNot)
{
    const auto isUsed = [&] {
        return engine::hasDataInUse(*scene.dataTypes().find("pebble"), scene.types());
    };
    const MObject node = makeHeavier("a");
    EXPECT_FALSE(isUsed());
    {
        MObject given = pebble(1.0);
        EXPECT_TRUE(isUsed()) << "a handle holds it";
        ASSERT_EQ(MS::kSuccess, plug(node, "input").setMObject(given));
    }
    EXPECT_TRUE(isUsed());
    EXPECT_TRUE(scene.deleteNode(*scene.findNode("a").value));
    EXPECT_FALSE(isUsed());
}

} // namespace
} // namespace tvxhost::api::test
