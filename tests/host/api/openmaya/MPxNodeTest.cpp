// MPxNode, MDataBlock and data handles: a plug-in's nodes and their values.
#include "../nodeFixture.h"

#include "api/support/pxBehaviour.h"
#include "engine/duplicate.h"

#include <maya/MArrayDataBuilder.h>
#include <maya/MArrayDataHandle.h>
#include <maya/MDGModifier.h>
#include <maya/MDataBlock.h>
#include <maya/MDataHandle.h>
#include <maya/MFloatVector.h>
#include <maya/MFnMatrixAttribute.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MMatrix.h>
#include <maya/MPlug.h>
#include <maya/MPlugArray.h>

using namespace tvxhost::api;
using namespace tvxhost::api::test;

namespace {

/// Copies a colour, adds up an array, joins a label; counts what it is asked.
class Worker : public MPxNode
{
public:
    Worker() { ++alive; }
    ~Worker() override { --alive; }

    static void* create() { return new Worker; }
    static MStatus initialize();

    void postConstructor() override
    {
        nameAtStart = tvxAccess::text(name());
        hasObjectAtStart = !thisMObject().isNull();
    }
    MStatus compute(const MPlug& plug, MDataBlock& block) override;

    MStatus setDependentsDirty(const MPlug& plug, MPlugArray& plugs) override
    {
        if (plug == trigger)
            plugs.append(MPlug(thisMObject(), sum));
        return MS::kSuccess;
    }
    MStatus connectionMade(const MPlug& plug, const MPlug& other, bool asSource) override
    {
        made.push_back(tvxAccess::text(plug.name()) + (asSource ? " > " : " < ") +
                       tvxAccess::text(other.name()));
        return MS::kSuccess;
    }
    MStatus legalConnection(const MPlug& plug, const MPlug&, bool, bool& isLegal) const override
    {
        if (plug != forbidden)
            return MS::kUnknownParameter;
        isLegal = false;
        return MS::kSuccess;
    }

    using MPxNode::forceCache;

    static MObject color, output, list, sum, first, joined, matrix, moved, forbidden, trigger, broken;
    static int alive;
    static std::vector<std::string> computed;
    static std::vector<std::string> made;
    std::string nameAtStart;
    bool hasObjectAtStart = false;
};

MObject Worker::color, Worker::output, Worker::list, Worker::sum, Worker::first, Worker::joined,
    Worker::matrix, Worker::moved, Worker::forbidden, Worker::trigger, Worker::broken;
int Worker::alive = 0;
std::vector<std::string> Worker::computed;
std::vector<std::string> Worker::made;

MStatus Worker::initialize()
{
    MFnNumericAttribute numeric;
    MFnTypedAttribute typed;
    MFnMatrixAttribute matrixSet;
    color = numeric.createColor("color", "co");
    numeric.setDefault(0.25f, 0.5f, 0.75f);
    output = numeric.createColor("output", "op");
    numeric.setStorable(false);
    list = numeric.create("list", "li", MFnNumericData::kDouble);
    numeric.setArray(true);
    numeric.setUsesArrayDataBuilder(true);
    sum = numeric.create("sum", "su", MFnNumericData::kDouble);
    first = typed.create("first", "fi", MFnData::kString);
    joined = typed.create("joined", "jo", MFnData::kString);
    matrix = matrixSet.create("inMatrix", "imx");
    moved = matrixSet.create("moved", "mv");
    forbidden = numeric.create("forbidden", "fo", MFnNumericData::kDouble);
    trigger = numeric.create("trigger", "tr", MFnNumericData::kDouble);
    broken = numeric.create("broken", "br", MFnNumericData::kDouble);
    for (const MObject* attribute :
         {&color, &output, &list, &sum, &first, &joined, &matrix, &moved, &forbidden, &trigger, &broken})
        if (const MStatus added = addAttribute(*attribute); !added)
            return added;
    attributeAffects(color, output);
    attributeAffects(list, sum);
    attributeAffects(first, joined);
    attributeAffects(matrix, moved);
    return attributeAffects(color, broken);
}

MStatus Worker::compute(const MPlug& plug, MDataBlock& block)
{
    computed.push_back(tvxAccess::text(plug.name()));
    if (plug == output || (plug.isChild() && plug.parent() == output)) {
        MDataHandle result = block.outputValue(output);
        result.asFloatVector() = block.inputValue(color).asFloatVector();
        result.setClean();
        return MS::kSuccess;
    }
    if (plug == sum) {
        double total = 0;
        MArrayDataHandle elements = block.inputArrayValue(list);
        for (unsigned int i = 0; i < elements.elementCount(); ++i, elements.next())
            total += elements.inputValue().asDouble() * elements.elementIndex();
        block.outputValue(sum).setDouble(total);
        return block.setClean(plug);
    }
    if (plug == joined) {
        block.outputValue(joined).setString(block.inputValue(first).asString() + "!");
        return block.setClean(plug);
    }
    if (plug == moved) {
        MMatrix result = block.inputValue(matrix).asMatrix();
        result.matrix[3][0] += 1.0;
        block.outputValue(moved).asMatrix() = result;
        return block.setClean(plug);
    }
    return plug == broken ? MS::kFailure : MS::kUnknownParameter;
}

/// Keeps a number outside its attributes.
class Counter : public MPxNode
{
public:
    static void* create() { return new Counter; }
    void copyInternalData(MPxNode* other) override { count = static_cast<Counter*>(other)->count; }
    int count = 0;
};

class PxNodes : public NodeFixture
{
protected:
    PxNodes()
    {
        Worker::computed.clear();
        Worker::made.clear();
        EXPECT_TRUE(registerType("worker", 0x2000, Worker::create, Worker::initialize));
        node = make("worker", "bee");
    }
    MPlug plug(const char* name) { return MFnDependencyNode(node, nullptr).findPlug(name, true); }
    Worker& worker() { return *static_cast<Worker*>(MFnDependencyNode(node, nullptr).userNode()); }

    MObject node;
};

void* makeNothing()
{
    return nullptr;
}

MStatus fail()
{
    return MStatus(MS::kNotFound);
}

MStatus nothing()
{
    return MS::kSuccess;
}

MObject lateAttribute()
{
    return MFnNumericAttribute().create("late", "lt", MFnNumericData::kInt);
}

MStatus clash()
{
    MFnNumericAttribute set;
    MPxNode::addAttribute(set.create("size", "sz", MFnNumericData::kInt));
    return MPxNode::addAttribute(set.create("other", "size", MFnNumericData::kInt));
}

MStatus keyableOutput()
{
    MFnNumericAttribute set;
    const MObject input = set.create("input", "in", MFnNumericData::kInt);
    const MObject output = set.create("output", "out", MFnNumericData::kInt);
    set.setKeyable(true);
    MPxNode::addAttribute(input);
    MPxNode::addAttribute(output);
    return MPxNode::attributeAffects(input, output);
}

} // namespace

TEST_F(PxNodes, ObjectAndNodeAreTiedBeforePostConstructor)
{
    EXPECT_TRUE(worker().hasObjectAtStart);
    EXPECT_EQ("bee", worker().nameAtStart);
    EXPECT_EQ(node, worker().thisMObject());
    EXPECT_EQ("worker", text(worker().typeName()));
    EXPECT_EQ(0x2000u, worker().typeId().id());
    EXPECT_EQ(MPxNode::kDependNode, worker().type());
}

TEST_F(PxNodes, TheObjectGoesWithItsNode)
{
    EXPECT_EQ(1, Worker::alive);
    ASSERT_TRUE(scene.deleteNode(*scene.findNode("bee").value));
    EXPECT_EQ(0, Worker::alive);
}

TEST_F(PxNodes, ACreatorWithoutResultMakesNoNode)
{
    ASSERT_TRUE(registerType("empty", 0x2001, makeNothing, nothing));
    MStatus status;
    EXPECT_TRUE(MFnDependencyNode().create("empty", &status).isNull());
    EXPECT_FALSE(status);
}

TEST_F(PxNodes, ComputeRunsWhenAskedAndOnlyWhileDirty)
{
    EXPECT_TRUE(Worker::computed.empty());
    EXPECT_FLOAT_EQ(0.5f, plug("outputG").asFloat());
    EXPECT_FLOAT_EQ(0.75f, plug("outputB").asFloat());
    EXPECT_EQ(std::vector<std::string>{"bee.outputG"}, Worker::computed);
    EXPECT_TRUE(plug("colorR").setValue(0.125f));
    EXPECT_FLOAT_EQ(0.125f, plug("outputR").asFloat());
    EXPECT_EQ((std::vector<std::string>{"bee.outputG", "bee.outputR"}), Worker::computed);
}

TEST_F(PxNodes, ArraysAreWalkedInAscendingOrder)
{
    EXPECT_TRUE(plug("list").elementByLogicalIndex(10).setValue(2.0));
    EXPECT_TRUE(plug("list").elementByLogicalIndex(3).setValue(5.0));
    EXPECT_EQ(35.0, plug("sum").asDouble());
}

TEST_F(PxNodes, StringsAndMatricesPassThroughHandles)
{
    EXPECT_EQ("!", text(plug("joined").asString()));
    EXPECT_TRUE(plug("first").setValue("hello"));
    EXPECT_EQ("hello!", text(plug("joined").asString()));
    const MObject element = plug("moved").asMObject();
    EXPECT_FALSE(element.isNull());
}

TEST_F(PxNodes, ReadingAStringThatWasNeverSetDoesNotSetIt)
{
    MDataBlock block = worker().forceCache();
    EXPECT_EQ("", text(block.inputValue(Worker::first).asString()));
    EXPECT_FALSE(tvxhost::engine::hasOwnValue(scene.findPlug("bee.first").value));
}

TEST_F(PxNodes, AFailingComputeLeavesThePlugDirtyAndIsReported)
{
    plug("broken").asDouble();
    EXPECT_TRUE(tvxhost::engine::isDirty(scene.findPlug("bee.broken").value));
    EXPECT_EQ(1u, shown(scene, tvxhost::engine::MessageKind::error).size() +
                      shown(scene, tvxhost::engine::MessageKind::warning).size());
}

TEST_F(PxNodes, APlugThatNothingAffectsIsNeverComputed)
{
    plug("forbidden").asDouble();
    EXPECT_TRUE(Worker::computed.empty());
}

TEST_F(PxNodes, FurtherPlugsCanBeMadeDirty)
{
    EXPECT_TRUE(plug("list").elementByLogicalIndex(1).setValue(1.0));
    EXPECT_EQ(1.0, plug("sum").asDouble());
    Worker::computed.clear();
    EXPECT_TRUE(plug("trigger").setValue(1.0));
    plug("sum").asDouble();
    EXPECT_EQ(std::vector<std::string>{"bee.sum"}, Worker::computed);
}

TEST_F(PxNodes, TheNodeIsToldOfConnectionsAndMayForbidThem)
{
    const MObject other = make("transform", "other");
    const MPlug tx = MFnDependencyNode(other, nullptr).findPlug("tx", true);
    MDGModifier modifier;
    ASSERT_TRUE(modifier.connect(plug("sum"), tx));
    ASSERT_TRUE(modifier.doIt());
    ASSERT_FALSE(Worker::made.empty());
    EXPECT_EQ("bee.sum > ", Worker::made.front().substr(0, 10));
    MDGModifier refused;
    ASSERT_TRUE(refused.connect(plug("sum"), plug("forbidden")));
    EXPECT_EQ("(kFailure): Unexpected Internal Failure", text(refused.doIt()));
}

TEST_F(PxNodes, ABuilderReplacesTheElements)
{
    EXPECT_TRUE(plug("list").elementByLogicalIndex(1).setValue(1.0));
    EXPECT_TRUE(plug("list").elementByLogicalIndex(2).setValue(2.0));
    MDataBlock block = worker().forceCache();
    MArrayDataHandle array = block.outputArrayValue(Worker::list);
    MArrayDataBuilder builder = array.builder();
    EXPECT_EQ(2u, builder.elementCount());
    builder.addElement(7).setDouble(70.0);
    builder.addLast().setDouble(80.0);
    EXPECT_TRUE(builder.removeElement(1));
    EXPECT_TRUE(array.set(builder));
    EXPECT_EQ(3u, array.elementCount());
    EXPECT_EQ(2u, array.elementIndex());
    EXPECT_TRUE(array.jumpToElement(8));
    EXPECT_EQ(80.0, array.inputValue().asDouble());
    EXPECT_FALSE(array.jumpToElement(1));
    EXPECT_TRUE(array.jumpToArrayElement(1));
    EXPECT_EQ(7u, array.elementIndex());
    EXPECT_TRUE(array.next());
    EXPECT_FALSE(array.next());
}

TEST_F(PxNodes, HandlesTellTheirKind)
{
    MDataBlock block = worker().forceCache();
    MDataHandle color = block.inputValue(Worker::color);
    EXPECT_TRUE(color.isNumeric());
    EXPECT_EQ(MFnNumericData::k3Float, color.numericType());
    EXPECT_EQ(MFnData::kNumeric, color.type());
    EXPECT_EQ(MFn::kData3Float, color.data().apiType());
    EXPECT_EQ(MFnData::kString, block.inputValue(Worker::first).type());
    EXPECT_EQ(MFnData::kMatrix, block.inputValue(Worker::matrix).type());
    const MObject green = MFnNumericAttribute(Worker::color, nullptr).child(1);
    EXPECT_FLOAT_EQ(0.5f, color.child(green).asFloat());
    EXPECT_FLOAT_EQ(0.5f, color.asFloat3()[1]);
    EXPECT_DOUBLE_EQ(0.5, color.asDouble3()[1]);
}

TEST_F(PxNodes, WritingDoesNotClean)
{
    MDataBlock block = worker().forceCache();
    block.outputValue(Worker::output).set3Float(1.0f, 2.0f, 3.0f);
    EXPECT_FALSE(block.isClean(Worker::output));
    EXPECT_TRUE(block.setClean(Worker::output));
    EXPECT_TRUE(block.isClean(Worker::output));
    EXPECT_FLOAT_EQ(2.0f, plug("outputG").asFloat());
    EXPECT_TRUE(Worker::computed.empty());
}

TEST_F(PxNodes, ValuesAreCopiedBetweenHandlesWithConversion)
{
    MDataBlock block = worker().forceCache();
    EXPECT_TRUE(block.outputValue(Worker::output).copy(block.inputValue(Worker::color)));
    EXPECT_FLOAT_EQ(0.75f, block.outputValue(Worker::output).asFloatVector().z);
    EXPECT_FALSE(block.outputValue(Worker::output).copy(block.inputValue(Worker::first)));
}

TEST_F(PxNodes, WhatIsNotOfTheNodeGivesAHarmlessHandle)
{
    MDataBlock block = worker().forceCache();
    MStatus status;
    MDataHandle handle = block.inputValue(lateAttribute(), &status);
    EXPECT_EQ(MS::kInvalidParameter, status.statusCode());
    EXPECT_EQ(0.0, handle.asDouble());
    EXPECT_EQ("", text(handle.asString()));
    handle.setDouble(1.0);
    handle.setClean();
    const MPlug elsewhere = MFnDependencyNode(make("transform"), nullptr).findPlug("tx", true);
    block.outputValue(elsewhere, &status);
    EXPECT_FALSE(status);
}

TEST_F(PxNodes, AttributesAreDeclaredInsideARegistrationOnly)
{
    EXPECT_EQ("(kFailure): Unexpected Internal Failure", text(MPxNode::addAttribute(lateAttribute())));
    EXPECT_EQ("(kFailure): Unexpected Internal Failure",
              text(MPxNode::attributeAffects(Worker::color, Worker::output)));
}

TEST_F(PxNodes, ATypeNameOrIdThatIsTakenIsRefused)
{
    EXPECT_EQ("(kFailure): Unexpected Internal Failure",
              text(registerType("worker", 0x2002, Worker::create, nothing)));
    EXPECT_EQ("(kFailure): Unexpected Internal Failure",
              text(registerType("worker2", 0x2000, Worker::create, nothing)));
    EXPECT_EQ("(kFailure): Unexpected Internal Failure",
              text(registerType("transform", 0x2003, Worker::create, nothing)));
    EXPECT_FALSE(MFnPlugin::isNodeRegistered("worker2"));
}

TEST_F(PxNodes, AFailingInitializeGivesItsStatusAndNoType)
{
    EXPECT_EQ(MS::kNotFound, registerType("failing", 0x2004, Worker::create, fail).statusCode());
    EXPECT_FALSE(MFnPlugin::isNodeRegistered("failing"));
    EXPECT_TRUE(registerType("failing", 0x2004, Worker::create, nothing));
}

TEST_F(PxNodes, LongAndShortNamesShareOneTable)
{
    EXPECT_EQ("(kFailure): Unexpected Internal Failure",
              text(registerType("clash", 0x2005, Worker::create, clash)));
}

TEST_F(PxNodes, AKeyableOutputCannotBeAffected)
{
    EXPECT_FALSE(registerType("keyable", 0x2006, Worker::create, keyableOutput));
}

TEST_F(PxNodes, KindsWithoutABaseInTheHostFailLoudly)
{
    EXPECT_EQ(MS::kNotImplemented,
              registerType("deformer", 0x2007, Worker::create, nothing, MPxNode::kDeformerNode).statusCode());
    const std::vector<std::string> expected = {
        "Not implemented: MFnPlugin::registerNode of this kind of node"};
    EXPECT_EQ(expected, shown(scene, tvxhost::engine::MessageKind::error));
}

TEST_F(PxNodes, InternalAttributesAreToldOfBecauseTheirClassIsNotAsked)
{
    const auto declare = [] {
        MFnNumericAttribute number;
        for (const char* name : {"kept", "plain"}) {
            const MObject attribute = number.create(name, name, MFnNumericData::kDouble);
            if (MString("kept") == name)
                number.setInternal(true);
            if (const MStatus status = MPxNode::addAttribute(attribute); !status)
                return status;
        }
        return MStatus();
    };
    ASSERT_EQ(MS::kSuccess, registerType("keeper", 0x2008, Worker::create, declare));
    const std::vector<std::string> expected = {
        "'keeper.kept' is internal, but its value is kept as any other: MPxNode::getInternalValue and "
        "setInternalValue are not called"};
    EXPECT_EQ(expected, shown(scene, tvxhost::engine::MessageKind::warning));
}

TEST_F(PxNodes, DeregisteringTurnsLivingNodesIntoUnknownOnes)
{
    MFnPlugin set(pluginObject);
    EXPECT_TRUE(plug("colorR").setValue(0.125f));
    EXPECT_TRUE(set.deregisterNode(MTypeId(0x2000)));
    EXPECT_EQ(0, Worker::alive);
    EXPECT_FALSE(MFnPlugin::isNodeRegistered("worker"));
    EXPECT_EQ(MFn::kUnknown, node.apiType());
    EXPECT_EQ(MS::kInvalidParameter, set.deregisterNode(MTypeId(0x2000)).statusCode());
}

TEST_F(PxNodes, ACopyTakesOverWhatItsOriginalKeeps)
{
    ASSERT_EQ(MS::kSuccess, registerType("counter", 0x4210, Counter::create, nullptr));
    make("counter", "a");
    const auto counterOf = [](const tvxhost::engine::Node& each) {
        return static_cast<Counter*>(each.behaviour()->apiObject());
    };
    tvxhost::engine::Node& original = *scene.findNode("a").value;
    counterOf(original)->count = 5;
    tvxhost::engine::DuplicateOptions options;
    options.onCopy = copyInternalData;
    const auto copy = tvxhost::engine::duplicateNode(original, options);
    ASSERT_TRUE(copy) << copy.outcome.text;
    EXPECT_EQ(5, counterOf(*copy.value)->count);
}

TEST_F(PxNodes, InheritedAttributesAreStaticMembers)
{
    EXPECT_EQ("message", text(MFnAttribute(MPxNode::message, nullptr).name()));
    EXPECT_EQ("nodeState", text(MFnAttribute(MPxNode::state, nullptr).name()));
}
