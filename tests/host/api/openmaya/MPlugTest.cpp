// MPlug: identity, structure, values, connections.
#include "../nodeFixture.h"

#include <maya/MAngle.h>
#include <maya/MDGContext.h>
#include <maya/MDGModifier.h>
#include <maya/MDataHandle.h>
#include <maya/MDistance.h>
#include <maya/MFnCompoundAttribute.h>
#include <maya/MFnMatrixData.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnNumericData.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MFnUnitAttribute.h>
#include <maya/MIntArray.h>
#include <maya/MMatrix.h>
#include <maya/MPlugArray.h>
#include <maya/MTime.h>

using namespace tvxhost::api::test;

namespace {

const char* const kLockedText = "(kFailure): Unexpected Internal Failure";

/// A transform with some attributes of all sorts added.
class Plugs : public NodeFixture
{
protected:
    Plugs() : node(make("transform", "thing")), set(node, nullptr)
    {
        add(numeric.create("count", "ct", MFnNumericData::kInt, 3));
        add(numeric.create("ratio", "rt", MFnNumericData::kDouble, 0.5));
        numeric.create("bounded", "bd", MFnNumericData::kDouble);
        numeric.setMin(-1.0);
        numeric.setMax(1.0);
        add(numeric.object());
        numeric.create("list", "li", MFnNumericData::kDouble);
        numeric.setArray(true);
        add(numeric.object());
        add(MFnTypedAttribute().create("label", "la", MFnData::kString));
        add(MFnUnitAttribute().create("when", "wh", MFnUnitAttribute::kTime));
    }

    void add(const MObject& attribute) { ASSERT_TRUE(set.addAttribute(attribute)); }
    MPlug plug(const char* name) { return set.findPlug(name, true); }
    void connect(const MPlug& source, const MPlug& destination)
    {
        MDGModifier modifier;
        ASSERT_TRUE(modifier.connect(source, destination));
        ASSERT_TRUE(modifier.doIt());
    }

    MFnNumericAttribute numeric;
    MObject node;
    MFnDependencyNode set;
};

} // namespace

TEST_F(Plugs, ADefaultPlugIsNullAndHarmless)
{
    const MPlug none;
    MStatus status;
    EXPECT_TRUE(none.isNull());
    EXPECT_TRUE(!none);
    EXPECT_EQ("", text(none.name()));
    EXPECT_TRUE(none.node(&status).isNull());
    EXPECT_FALSE(status);
    EXPECT_EQ(0.0, none.asDouble(MDGContext::fsNormal, &status));
    EXPECT_FALSE(status);
    EXPECT_FALSE(none.asBool());
    EXPECT_EQ("", text(none.asString()));
    EXPECT_TRUE(none.asMObject().isNull());
}

TEST_F(Plugs, APlugOfAnAttributeThatTheNodeLacksCanBeMadeButNotRead)
{
    const MObject stranger = MFnNumericAttribute().create("stranger", "st", MFnNumericData::kInt, 7);
    const MPlug made(node, stranger);
    EXPECT_FALSE(made.isNull());
    EXPECT_TRUE(made == stranger);
    MStatus status;
    EXPECT_EQ(0, made.asInt(MDGContext::fsNormal, &status));
    EXPECT_FALSE(status);
}

TEST_F(Plugs, PlugsAreEqualWhenNodeAttributeAndIndicesAre)
{
    EXPECT_TRUE(plug("count") == plug("ct"));
    EXPECT_TRUE(plug("count") != plug("ratio"));
    EXPECT_TRUE(plug("list").elementByLogicalIndex(1) != plug("list").elementByLogicalIndex(2));
    EXPECT_TRUE(plug("count") == set.attribute("count"));
    EXPECT_EQ(set.attribute("count"), plug("count").attribute());
    EXPECT_EQ(node, plug("count").node());
}

TEST_F(Plugs, NamesAreLongWithIndicesAndPartialNamesShort)
{
    EXPECT_EQ("thing.translateX", text(plug("tx").name()));
    EXPECT_EQ("thing.list[4]", text(plug("list").elementByLogicalIndex(4).name()));
    EXPECT_EQ("tx", text(plug("tx").partialName()));
    EXPECT_EQ("thing.tx", text(plug("tx").partialName(true)));
    EXPECT_EQ("thing.translateX", text(plug("tx").partialName(true, false, false, false, false, true)));
}

TEST_F(Plugs, ChildrenAreReachedByIndexAndAttribute)
{
    const MPlug translate = plug("translate");
    EXPECT_TRUE(translate.isCompound());
    EXPECT_EQ(3u, translate.numChildren());
    EXPECT_TRUE(translate.child(1) == plug("translateY"));
    MObject z = set.attribute("translateZ");
    EXPECT_TRUE(translate.child(z) == plug("translateZ"));
    EXPECT_TRUE(plug("translateY").isChild());
    EXPECT_TRUE(plug("translateY").parent() == translate);
    MStatus status;
    EXPECT_TRUE(translate.child(3, &status).isNull());
    EXPECT_EQ("(kInvalidParameter): No element at given index", text(status));
    EXPECT_TRUE(translate.parent(&status).isNull());
    EXPECT_FALSE(status);
}

TEST_F(Plugs, ElementsAreFoundByPlaceHoweverTheyAreKept)
{
    MPlug list = plug("list");
    const auto expectAllFound = [&](std::vector<unsigned int> expected) {
        EXPECT_EQ(expected.size(), list.numElements());
        std::vector<unsigned int> found;
        for (unsigned int i = 0; i < list.numElements(); ++i)
            found.push_back(list.elementByPhysicalIndex(i).logicalIndex());
        EXPECT_EQ(expected, found);
        EXPECT_TRUE(list.elementByPhysicalIndex(list.numElements()).isNull());
    };
    const auto remove = [&](int index) {
        EXPECT_TRUE(tvxhost::engine::removeElement(tvxAccess::plug(list), index));
    };
    for (const unsigned int index : {1u, 4u, 9u, 12u})
        EXPECT_TRUE(list.elementByLogicalIndex(index).setValue(1.0));
    expectAllFound({1, 4, 9, 12});
    // Connected elements are kept in another way than those that are set.
    for (const unsigned int index : {0u, 5u, 6u, 20u})
        connect(plug("ratio"), list.elementByLogicalIndex(index));
    expectAllFound({0, 1, 4, 5, 6, 9, 12, 20});
    remove(5);
    expectAllFound({0, 1, 4, 6, 9, 12, 20});
    for (const int index : {1, 4, 9, 12})
        remove(index);
    expectAllFound({0, 6, 20});
    remove(6);
    remove(0);
    expectAllFound({20});
    EXPECT_TRUE(list.elementByLogicalIndex(3).setValue(1.0));
    expectAllFound({3, 20});
    remove(20);
    expectAllFound({3});
    remove(3);
    expectAllFound({});
}

TEST_F(Plugs, ElementsAreCountedOnceSetAndComeInAscendingOrder)
{
    MPlug list = plug("list");
    EXPECT_TRUE(list.isArray());
    EXPECT_EQ(0u, list.numElements());
    EXPECT_TRUE(list.elementByLogicalIndex(7).setValue(70.0));
    EXPECT_TRUE(list.elementByLogicalIndex(2).setValue(20.0));
    EXPECT_EQ(2u, list.numElements());
    EXPECT_EQ(2u, list.evaluateNumElements());
    EXPECT_EQ(20.0, list.elementByPhysicalIndex(0).asDouble());
    EXPECT_EQ(70.0, list[1].asDouble());
    EXPECT_EQ(7u, list[1].logicalIndex());
    EXPECT_TRUE(list[1].isElement());
    EXPECT_TRUE(list[1].array() == list);
    MIntArray indices;
    EXPECT_EQ(2u, list.getExistingArrayAttributeIndices(indices));
    EXPECT_EQ(2, indices[0]);
    EXPECT_EQ(7, indices[1]);
    MStatus status;
    EXPECT_TRUE(list.elementByPhysicalIndex(2, &status).isNull());
    EXPECT_FALSE(status);
    EXPECT_TRUE(plug("count").elementByLogicalIndex(0, &status).isNull());
    EXPECT_FALSE(status);
}

TEST_F(Plugs, NumbersConvertByTheRulesOfC)
{
    EXPECT_EQ(3, plug("count").asInt());
    EXPECT_EQ(3.0, plug("count").asDouble());
    EXPECT_TRUE(plug("count").setValue(2.9));
    EXPECT_EQ(2, plug("count").asInt());
    EXPECT_TRUE(plug("ratio").setValue(-3.75));
    EXPECT_EQ(-3, plug("ratio").asInt());
    EXPECT_EQ(-3, plug("ratio").asShort());
    EXPECT_EQ(-3.75f, plug("ratio").asFloat());
    EXPECT_TRUE(plug("ratio").asBool());
    EXPECT_TRUE(plug("visibility").setValue(0));
    EXPECT_FALSE(plug("visibility").asBool());
    EXPECT_TRUE(plug("displayLocalAxis").setInt(1));
    EXPECT_TRUE(plug("displayLocalAxis").asBool());
}

TEST_F(Plugs, HardLimitsRefuseAndKeepTheValue)
{
    EXPECT_TRUE(plug("bounded").setValue(0.75));
    EXPECT_EQ(kLockedText, text(plug("bounded").setValue(1.5)));
    EXPECT_EQ(kLockedText, text(plug("bounded").setValue(-1.5)));
    EXPECT_EQ(0.75, plug("bounded").asDouble());
}

TEST_F(Plugs, LockedAndConnectedPlugsRefuse)
{
    EXPECT_TRUE(plug("ratio").setLocked(true));
    EXPECT_TRUE(plug("ratio").isLocked());
    EXPECT_EQ(kLockedText, text(plug("ratio").setValue(9.0)));
    EXPECT_EQ(0.5, plug("ratio").asDouble());
    EXPECT_EQ(MPlug::kNotFreeToChange, plug("ratio").isFreeToChange());
    EXPECT_TRUE(plug("ratio").setLocked(false));
    EXPECT_EQ(MPlug::kFreeToChange, plug("ratio").isFreeToChange());
    connect(plug("ratio"), plug("bounded"));
    EXPECT_EQ(kLockedText, text(plug("bounded").setValue(0.0)));
    EXPECT_EQ(0.5, plug("bounded").asDouble());
    connect(plug("ratio"), plug("translateX"));
    EXPECT_EQ(MPlug::kChildrenNotFreeToChange, plug("translate").isFreeToChange());
    EXPECT_EQ(MPlug::kFreeToChange, plug("translate").isFreeToChange(true, false));
}

TEST_F(Plugs, AStringNeverSetIsEmptyAndSucceeds)
{
    MStatus status;
    EXPECT_EQ("", text(plug("label").asString(MDGContext::fsNormal, &status)));
    EXPECT_TRUE(status);
    EXPECT_TRUE(plug("label").setValue("Grüße"));
    EXPECT_EQ("Grüße", text(plug("label").asString()));
    MString value;
    EXPECT_TRUE(plug("label").getValue(value));
    EXPECT_EQ("Grüße", text(value));
}

TEST_F(Plugs, TheWrongKindGivesANeutralValueAndAFailure)
{
    MStatus status;
    EXPECT_TRUE(plug("label").setValue("7"));
    EXPECT_EQ(0, plug("label").asInt(MDGContext::fsNormal, &status));
    EXPECT_EQ(MS::kFailure, status.statusCode());
    EXPECT_EQ("", text(plug("ratio").asString(MDGContext::fsNormal, &status)));
    EXPECT_EQ(MS::kFailure, status.statusCode());
    EXPECT_EQ(0.0, plug("translate").asDouble(MDGContext::fsNormal, &status));
    EXPECT_EQ(MS::kFailure, status.statusCode());
    double value = 4.0;
    EXPECT_FALSE(plug("label").getValue(value));
    EXPECT_EQ(4.0, value);
}

TEST_F(Plugs, AnglesAndDistancesAreInInternalUnitsWhateverTheUser)
{
    scene.units().linear = tvxhost::engine::LinearUnit::metres;
    EXPECT_TRUE(plug("translateX").setValue(250.0));
    EXPECT_EQ(250.0, plug("translateX").asMDistance().asCentimeters());
    MAngle quarter(90.0, MAngle::kDegrees);
    EXPECT_TRUE(plug("rotateY").setValue(quarter));
    EXPECT_DOUBLE_EQ(1.57079632679489661923, plug("rotateY").asDouble());
    EXPECT_DOUBLE_EQ(90.0, plug("rotateY").asMAngle().asDegrees());
    MDistance inch(1.0, MDistance::kInches);
    EXPECT_TRUE(plug("translateZ").setMDistance(inch));
    EXPECT_DOUBLE_EQ(2.54, plug("translateZ").asDouble());
}

TEST_F(Plugs, TimesAreNumbersOfTheUsersUnit)
{
    EXPECT_TRUE(plug("when").setValue(48.0));
    EXPECT_DOUBLE_EQ(2.0, plug("when").asMTime().as(MTime::kSeconds));
    EXPECT_DOUBLE_EQ(48.0, plug("when").asDouble());
    MTime second(1.0, MTime::kSeconds);
    EXPECT_TRUE(plug("when").setValue(second));
    EXPECT_DOUBLE_EQ(24.0, plug("when").asDouble());
}

TEST_F(Plugs, ANumberGroupIsAnObjectOfItsNumbers)
{
    EXPECT_TRUE(plug("translateX").setValue(1.0));
    EXPECT_TRUE(plug("translateZ").setValue(3.0));
    MObject object;
    ASSERT_TRUE(plug("translate").getValue(object));
    EXPECT_EQ(MFn::kData3Double, object.apiType());
    MFnNumericData data(object, nullptr);
    double x = 0, y = 0, z = 0;
    EXPECT_TRUE(data.getData(x, y, z));
    EXPECT_EQ(3.0, z);
    EXPECT_TRUE(data.setData(7.0, 8.0, 9.0));
    EXPECT_TRUE(plug("translate").setValue(object));
    EXPECT_EQ(8.0, plug("translateY").asDouble());
}

TEST_F(Plugs, TheMatrixOfAnInstanceIsAnElement)
{
    EXPECT_TRUE(plug("translateX").setValue(5.0));
    MStatus status;
    const MObject element =
        plug("worldMatrix").elementByLogicalIndex(0).asMObject(MDGContext::fsNormal, &status);
    EXPECT_TRUE(status);
    EXPECT_EQ(5.0, MFnMatrixData(element, nullptr).matrix().matrix[3][0]);
    const MFnMatrixData whole(plug("worldMatrix").asMObject(), &status);
    EXPECT_EQ("(kInvalidParameter): Object is incompatible with this method", text(status));
}

TEST_F(Plugs, DataNeverSetIsANullObjectAndAFailure)
{
    add(MFnTypedAttribute().create("points", "pts", MFnData::kVectorArray));
    MStatus status;
    EXPECT_TRUE(plug("points").asMObject(MDGContext::fsNormal, &status).isNull());
    EXPECT_EQ(MS::kFailure, status.statusCode());
}

TEST_F(Plugs, ConnectedToSaysWhetherThereIsAnyConnection)
{
    connect(plug("ratio"), plug("translateX"));
    connect(plug("ratio"), plug("translateY"));
    MPlugArray partners(1, plug("count"));
    EXPECT_TRUE(plug("ratio").connectedTo(partners, true, false));
    EXPECT_EQ(0u, partners.length());
    EXPECT_TRUE(plug("ratio").connectedTo(partners, false, true));
    ASSERT_EQ(2u, partners.length());
    EXPECT_TRUE(partners[0] == plug("translateX"));
    EXPECT_TRUE(partners[1] == plug("translateY"));
    EXPECT_TRUE(plug("translateX").connectedTo(partners, true, true));
    ASSERT_EQ(1u, partners.length());
    EXPECT_TRUE(partners[0] == plug("ratio"));
    EXPECT_FALSE(plug("count").connectedTo(partners, true, true));
    EXPECT_TRUE(plug("ratio").isSource());
    EXPECT_FALSE(plug("ratio").isDestination());
    EXPECT_TRUE(plug("translateX").isDestination());
    EXPECT_EQ(2u, plug("translate").numConnectedChildren());
    EXPECT_FALSE(plug("translate").isConnected());
}

TEST_F(Plugs, ConnectedElementsAreCountedAndListed)
{
    connect(plug("ratio"), plug("list").elementByLogicalIndex(3));
    connect(plug("ratio"), plug("list").elementByLogicalIndex(9));
    EXPECT_TRUE(plug("list").elementByLogicalIndex(5).setValue(1.0));
    EXPECT_EQ(2u, plug("list").numConnectedElements());
    EXPECT_EQ(9u, plug("list").connectionByPhysicalIndex(1).logicalIndex());
    EXPECT_EQ(3u, plug("list").numElements());
}

TEST_F(Plugs, AnotherTimeIsRefusedLoudlyAndTheCurrentOneIsNot)
{
    MStatus status;
    MDGContext now((MTime(scene.time(), MTime::kSeconds)));
    EXPECT_EQ(0.5, plug("ratio").asDouble(now, &status));
    EXPECT_TRUE(status);
    MDGContext later(MTime(100.0, MTime::kSeconds));
    EXPECT_EQ(0.0, plug("ratio").asDouble(later, &status));
    EXPECT_EQ(MS::kNotImplemented, status.statusCode());
    const std::vector<std::string> expected = {"Not implemented: MPlug::asDouble at another time"};
    EXPECT_EQ(expected, shown(scene, tvxhost::engine::MessageKind::error));
}

TEST_F(Plugs, AHandleOfAPlugHoldsACopy)
{
    MDataHandle handle = plug("ratio").asMDataHandle();
    EXPECT_EQ(0.5, handle.asDouble());
    handle.setDouble(4.0);
    EXPECT_EQ(0.5, plug("ratio").asDouble());
    EXPECT_TRUE(plug("ratio").setValue(handle));
    EXPECT_EQ(4.0, plug("ratio").asDouble());
    plug("ratio").destructHandle(handle);
    EXPECT_EQ(0.0, handle.asDouble());
}

TEST_F(Plugs, ThePlugsOfADeletedNodeFail)
{
    const MPlug ratio = plug("ratio");
    ASSERT_TRUE(scene.deleteNode(*scene.findNode("thing").value));
    MStatus status;
    EXPECT_EQ(0.0, ratio.asDouble(MDGContext::fsNormal, &status));
    EXPECT_EQ("(kFailure): Object does not exist", text(status));
    EXPECT_EQ("", text(ratio.name(&status)));
    EXPECT_FALSE(status);
    EXPECT_TRUE(ratio.node().isNull());
}
