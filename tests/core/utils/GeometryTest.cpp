// Units and orientations of the core library, footprints of meshes, and questions about nodes.
#include "../../host/api/meshFixture.h"
#include "UtilsFixture.h"

#include <maya/MAngle.h>
#include <maya/MQuaternion.h>

#include <cmath>

namespace tarvox::crowd::test {
namespace {

using core::DistanceUnit;
using core::Vector2;
using testing::ElementsAre;
using testing::IsEmpty;

using Points = std::vector<Vector2<float>>;

TEST(CoreUnits, LengthsAreConverted)
{
    EXPECT_EQ(MayaUtils::convertDistance(2.0f, DistanceUnit::kMeters, DistanceUnit::kCentimeters), 200.0f);
    EXPECT_EQ(MayaUtils::convertDistance(254.0f, DistanceUnit::kCentimeters, DistanceUnit::kInches), 100.0f);
    EXPECT_EQ(MayaUtils::convertDistance(3.0f, DistanceUnit::kFeet, DistanceUnit::kYards), 1.0f);
    EXPECT_EQ(MayaUtils::convertDistance(-1.0f, DistanceUnit::kKilometers, DistanceUnit::kMillimeters),
              -1000000.0f);
    EXPECT_EQ(MayaUtils::convertDistance(0.1f, DistanceUnit::kMiles, DistanceUnit::kMiles), 0.1f);
}

// Which decides the last digit: a foot is 3048 of the units that the factors count.
TEST(CoreUnits, LengthsAreMultipliedBeforeTheyAreDivided)
{
    const float expected = 0.1f * 3048.0f / 3048.0f;
    ASSERT_NE(expected, 0.1f);
    EXPECT_EQ(MayaUtils::convertDistance(0.1f, DistanceUnit::kFeet, DistanceUnit::kFeet), expected);
}

TEST(CoreUnits, LengthsWithoutAUnitAreInTheFirst)
{
    EXPECT_EQ(MayaUtils::convertDistanceTo(200.0f, DistanceUnit::kMeters), 2.0f);
    EXPECT_EQ(MayaUtils::convertDistanceTo(0.5f, DistanceUnit::kCentimeters), 0.5f);
    EXPECT_EQ(MayaUtils::convertDistanceTo(2.54f, DistanceUnit::kInches), 100.0f * 2.54f / 254.0f);
}

TEST(CoreFrame, AnglesAreHalfATurnFurther)
{
    EXPECT_EQ(MayaUtils::shiftedRadians(MAngle(0.0, MAngle::kDegrees)), 3.1415927f);
    EXPECT_EQ(MayaUtils::shiftedRadians(MAngle(1.0, MAngle::kRadians)), 1.0f + 3.1415927f);
    EXPECT_FLOAT_EQ(MayaUtils::shiftedRadians(MAngle(-180.0, MAngle::kDegrees)) + 1.0f, 1.0f);
}

TEST(CoreFrame, TheIdentityIsTurnedIntoTheFrame)
{
    const CoreQuaternion turned = MayaUtils::toCoreOrientation(MQuaternion(0, 0, 0, 1));
    EXPECT_EQ(turned.x, 0.0f);
    EXPECT_EQ(turned.y, -0.70710677f);
    EXPECT_EQ(turned.z, -0.70710677f);
    EXPECT_EQ(turned.w, 0.0f);
}

// i * -(j + k) / sqrt(2) = (j - k) / sqrt(2), j * ... = (1 - i) / sqrt(2), k * ... = (1 + i) / sqrt(2)
TEST(CoreFrame, TheUnitsAreTurnedAsQuaternionsMultiply)
{
    const float s = 0.70710677f;
    const struct
    {
        MQuaternion in;
        CoreQuaternion out;
    } rows[] = {
        {MQuaternion(1, 0, 0, 0), {0, s, -s, 0}},
        {MQuaternion(0, 1, 0, 0), {-s, 0, 0, s}},
        {MQuaternion(0, 0, 1, 0), {s, 0, 0, s}},
        {MQuaternion(0, 0, 0, 2), {0, -2 * s, -2 * s, 0}},
    };
    for (const auto& row : rows) {
        const CoreQuaternion turned = MayaUtils::toCoreOrientation(row.in);
        EXPECT_EQ(turned.x, row.out.x);
        EXPECT_EQ(turned.y, row.out.y);
        EXPECT_EQ(turned.z, row.out.z);
        EXPECT_EQ(turned.w, row.out.w);
    }
}

TEST(CoreFrame, ComponentsAreNarrowedFirst)
{
    const CoreQuaternion turned = MayaUtils::toCoreOrientation(MQuaternion(0, 0, 0, 0.1));
    EXPECT_EQ(turned.y, 0.1f * -0.70710677f);
}

class Footprint : public tvxhost::api::test::MeshFixture
{
protected:
    Points hull(const std::string& name)
    {
        Points points = {{7, 7}};
        EXPECT_EQ(MayaUtils::getMeshConvexHull(path(name), points), MStatus::kSuccess);
        return points;
    }
};

TEST_F(Footprint, IsTheHullOfTheGroundPoints)
{
    addGrid(); // three by two units
    EXPECT_THAT(hull("gridShape"), ElementsAre(Vector2<float>{-1.5f, -1}, Vector2<float>{1.5f, -1},
                                               Vector2<float>{1.5f, 1}, Vector2<float>{-1.5f, 1}));
}

TEST_F(Footprint, IsInWorldSpace)
{
    addQuad();
    set("quad.translate", {10, 5, 20});
    EXPECT_THAT(hull("quadShape"), ElementsAre(Vector2<float>{-11, 19}, Vector2<float>{-9, 19},
                                               Vector2<float>{-9, 21}, Vector2<float>{-11, 21}));
}

TEST_F(Footprint, OfWhatIsNoMeshIsEmpty)
{
    make("transform", "empty");
    EXPECT_THAT(hull("empty"), IsEmpty());
}

TEST_F(Footprint, OfAMeshThatCannotBeReadIsEmpty)
{
    addQuad();
    const MDagPath quad = path("quadShape");
    faults::failCall("MItMeshVertex::MItMeshVertex", 1, MStatus(MStatus::kFailure));
    Points points = {{7, 7}};
    EXPECT_EQ(MayaUtils::getMeshConvexHull(quad, points), MStatus::kSuccess);
    EXPECT_THAT(points, IsEmpty());
}

class NodeQueries : public UtilsFixture
{
protected:
    NodeQueries()
    {
        make("transform", "body");
        make("mesh", "skin", "body");
        make("plusMinusAverage", "sum");
        make("transform", "empty");
    }
    std::string shapeName(const std::string& nodeName, const MStatus& expected = MStatus::kSuccess)
    {
        MString name("unchanged");
        EXPECT_EQ(MayaUtils::getShapeName(object(nodeName), name), expected);
        return name.asChar();
    }
    void connect(const std::string& source, const std::string& destination)
    {
        EXPECT_TRUE(scene.connect(scene.findPlug(source).value, scene.findPlug(destination).value));
    }
};

TEST_F(NodeQueries, TheShapesNameIsThatBelowATransform)
{
    EXPECT_EQ(shapeName("body"), "skin");
    EXPECT_EQ(shapeName("skin"), "skin");
}

TEST_F(NodeQueries, ATransformWithoutAShapeGivesItsOwn)
{
    EXPECT_EQ(shapeName("empty"), "empty");
}

TEST_F(NodeQueries, TheNameIsLeftAsItIsOnFailure)
{
    EXPECT_EQ(shapeName("sum", MStatus::kInvalidParameter), "unchanged");
    const MObject body = object("body");
    MString name("unchanged");
    faults::failCall("MFnDependencyNode::MFnDependencyNode", 1, failure());
    EXPECT_EQ(MayaUtils::getShapeName(body, name), failure());
    EXPECT_EQ(name, MString("unchanged"));
    faults::clear();
    for (const char* call : {"MFnDagNode::MFnDagNode", "MFnDagNode::getPath", "MDagPath::node"}) {
        faults::failCall(call, 1, failure());
        EXPECT_NE(MayaUtils::getShapeName(body, name), MStatus::kSuccess) << call;
        EXPECT_EQ(name, MString("unchanged")) << call;
        faults::clear();
    }
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(NodeQueries, ConnectedElementsAreCounted)
{
    const MObject sum = object("sum");
    const MObject input = MFnDependencyNode(sum, nullptr).attribute("input1D");
    EXPECT_EQ(MayaUtils::countConnectedElements(sum, input), 0u);
    connect("body.tx", "sum.input1D[0]");
    connect("body.ty", "sum.input1D[7]");
    EXPECT_TRUE(tvxhost::engine::writeNumbers(scene.findPlug("sum.input1D[3]").value, {1.0}));
    EXPECT_EQ(MayaUtils::countConnectedElements(sum, input), 2u);
}

TEST_F(NodeQueries, ConnectedElementsAreNoneOnFailure)
{
    const MObject sum = object("sum");
    const MObject input = MFnDependencyNode(sum, nullptr).attribute("input1D");
    connect("body.tx", "sum.input1D[0]");
    for (const char* call : {"MFnDependencyNode::MFnDependencyNode", "MFnDependencyNode::findPlug",
                             "MPlug::numConnectedElements"}) {
        faults::failCall(call, 1, failure());
        EXPECT_EQ(MayaUtils::countConnectedElements(sum, input), 0u) << call;
        faults::clear();
    }
    EXPECT_EQ(MayaUtils::countConnectedElements(MObject::kNullObj, input), 0u);
    EXPECT_EQ(MayaUtils::countConnectedElements(object("body"), input), 0u);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

} // namespace
} // namespace tarvox::crowd::test
