// MFnTransform: transforms.
#include "../sceneFixture.h"

#include <maya/MEulerRotation.h>
#include <maya/MFnTransform.h>
#include <maya/MMatrix.h>
#include <maya/MPoint.h>
#include <maya/MQuaternion.h>
#include <maya/MVector.h>

namespace tvxhost::api::test {
namespace {

const double kQuarterTurn = 3.14159265358979323846 / 2.0;

/// A parent at (10, 0, 0), turned a quarter about z and twice as large, and a child in it.
class MFnTransformTest : public SceneFixture
{
protected:
    MFnTransformTest()
    {
        make("transform", "parent");
        make("transform", "child", "parent");
        set("parent.translate", {10, 0, 0});
        set("parent.rotate", {0, 0, kQuarterTurn});
        set("parent.scale", {2, 2, 2});
    }
    std::vector<double> numbers(const std::string& plugName)
    {
        return engine::readNumbers(scene.findPlug(plugName).value).value;
    }
    static void expectNear(const MVector& actual, const MVector& expected)
    {
        EXPECT_TRUE(actual.isEquivalent(expected, 1.0e-9)) << actual << " is not " << expected;
    }
};

TEST_F(MFnTransformTest, AttachesToTransformsOnly)
{
    MStatus status;
    const MFnTransform child(object("child"), &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(child.type(), MFn::kTransform);
    make("lambert", "skin");
    MFnTransform wrong(object("skin"), &status);
    EXPECT_EQ(text(status), "(kInvalidParameter): Object is incompatible with this method");
    EXPECT_EQ(wrong.setTranslation(MVector(), MSpace::kTransform), MS::kFailure);
    MFnTransform null(MObject(), &status);
    EXPECT_EQ(text(status), "(kInvalidParameter): Argument is a NULL pointer");
    MFnTransform nowhere(MDagPath(), &status);
    EXPECT_EQ(text(status), "(kInvalidParameter): Object does not exist");
}

TEST_F(MFnTransformTest, ReadsAndWritesItsTranslation)
{
    MFnTransform child(object("child"), nullptr);
    EXPECT_EQ(child.setTranslation(MVector(1, 2, 3), MSpace::kTransform), MS::kSuccess);
    EXPECT_EQ(numbers("child.translate"), (std::vector<double>{1, 2, 3}));
    EXPECT_EQ(child.getTranslation(MSpace::kTransform), MVector(1, 2, 3));
    EXPECT_EQ(child.translation(MSpace::kObject), MVector(1, 2, 3));
}

TEST_F(MFnTransformTest, KnowsTheWorldOnlyOnAPath)
{
    MFnTransform onObject(object("child"), nullptr);
    MStatus status;
    EXPECT_EQ(onObject.getTranslation(MSpace::kWorld, &status), MVector());
    EXPECT_EQ(status, MS::kFailure);
    EXPECT_EQ(onObject.setTranslation(MVector(1, 1, 1), MSpace::kWorld), MS::kFailure);
    MFnTransform onPath(path("child"), &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(onPath.setTranslation(MVector(10, 2, 0), MSpace::kWorld), MS::kSuccess);
    // Two above the parent along its own x, which points up and is twice as long.
    expectNear(onPath.getTranslation(MSpace::kTransform), MVector(1, 0, 0));
    expectNear(onPath.getTranslation(MSpace::kWorld), MVector(10, 2, 0));
}

TEST_F(MFnTransformTest, MovesAlongTheAxesOfTheSpace)
{
    MFnTransform child(path("child"), nullptr);
    child.setRotation(MEulerRotation(0, 0, kQuarterTurn));
    EXPECT_EQ(child.translateBy(MVector(1, 0, 0), MSpace::kTransform), MS::kSuccess);
    expectNear(child.getTranslation(MSpace::kTransform), MVector(1, 0, 0));
    EXPECT_EQ(child.translateBy(MVector(1, 0, 0), MSpace::kObject), MS::kSuccess);
    expectNear(child.getTranslation(MSpace::kTransform), MVector(1, 1, 0));
    EXPECT_EQ(child.translateBy(MVector(0, 2, 0), MSpace::kWorld), MS::kSuccess);
    expectNear(child.getTranslation(MSpace::kTransform), MVector(2, 1, 0));
}

TEST_F(MFnTransformTest, ScalesAndShears)
{
    MFnTransform child(object("child"), nullptr);
    const double three[3] = {3, 3, 3}, factor[3] = {2, 1, 0.5}, shear[3] = {0.1, 0.2, 0.3};
    EXPECT_EQ(child.setScale(three), MS::kSuccess);
    EXPECT_EQ(child.scaleBy(factor), MS::kSuccess);
    double scale[3] = {};
    EXPECT_EQ(child.getScale(scale), MS::kSuccess);
    EXPECT_EQ(scale[0], 6.0);
    EXPECT_EQ(scale[2], 1.5);
    EXPECT_EQ(child.setShear(shear), MS::kSuccess);
    EXPECT_EQ(child.shearBy(shear), MS::kSuccess);
    double sheared[3] = {};
    EXPECT_EQ(child.getShear(sheared), MS::kSuccess);
    EXPECT_DOUBLE_EQ(sheared[1], 0.4);
}

TEST_F(MFnTransformTest, TurnsInItsParentsOrTheWorldsSpace)
{
    MFnTransform child(path("child"), nullptr);
    MQuaternion world;
    EXPECT_EQ(child.getRotation(world, MSpace::kWorld), MS::kSuccess);
    EXPECT_TRUE(world.isEquivalent(MQuaternion(kQuarterTurn, MVector::zAxis)));
    const MQuaternion wanted(0.5, MVector(1, 2, 3));
    EXPECT_EQ(child.setRotation(wanted, MSpace::kWorld), MS::kSuccess);
    child.getRotation(world, MSpace::kWorld);
    EXPECT_TRUE(world.isEquivalent(wanted) || world.isEquivalent(-wanted)) << world;
    EXPECT_EQ(child.rotateBy(MQuaternion(0.25, MVector::yAxis), MSpace::kWorld), MS::kSuccess);
    child.getRotation(world, MSpace::kWorld);
    const MQuaternion further = wanted * MQuaternion(0.25, MVector::yAxis);
    EXPECT_TRUE(world.isEquivalent(further) || world.isEquivalent(-further)) << world;
}

TEST_F(MFnTransformTest, KeepsTheOrderOfItsAngles)
{
    MFnTransform child(object("child"), nullptr);
    const double angles[3] = {0.1, 0.2, 0.3};
    EXPECT_EQ(child.setRotation(angles, MTransformationMatrix::kZXY), MS::kSuccess);
    EXPECT_EQ(child.rotationOrder(), MTransformationMatrix::kZXY);
    EXPECT_EQ(numbers("child.rotateOrder"), (std::vector<double>{2}));
    double back[3] = {};
    MTransformationMatrix::RotationOrder order = MTransformationMatrix::kInvalid;
    EXPECT_EQ(child.getRotation(back, order), MS::kSuccess);
    EXPECT_EQ(order, MTransformationMatrix::kZXY);
    EXPECT_EQ(back[1], 0.2);
    const MMatrix before = child.transformation().asMatrix();
    EXPECT_EQ(child.setRotationOrder(MTransformationMatrix::kXYZ, true), MS::kSuccess);
    EXPECT_TRUE(child.transformation().asMatrix().isEquivalent(before));
    EXPECT_EQ(child.setRotationOrder(MTransformationMatrix::kZXY, false), MS::kSuccess);
    EXPECT_FALSE(child.transformation().asMatrix().isEquivalent(before));
    EXPECT_EQ(child.setRotationOrder(MTransformationMatrix::kInvalid, true), MS::kInvalidParameter);
}

TEST_F(MFnTransformTest, ShowsItsPivotThroughTheWorld)
{
    MFnTransform child(path("child"), nullptr);
    EXPECT_EQ(child.setRotatePivot(MPoint(1, 0, 0), MSpace::kTransform, false), MS::kSuccess);
    EXPECT_EQ(child.rotatePivot(MSpace::kTransform), MPoint(1, 0, 0));
    // One along the parent's x, which points up and is twice as long.
    EXPECT_TRUE(child.rotatePivot(MSpace::kWorld).isEquivalent(MPoint(10, 2, 0), 1.0e-9));
    EXPECT_EQ(child.setRotatePivot(MPoint(10, 4, 0), MSpace::kWorld, false), MS::kSuccess);
    EXPECT_TRUE(child.rotatePivot(MSpace::kTransform).isEquivalent(MPoint(2, 0, 0), 1.0e-9));
}

TEST_F(MFnTransformTest, ItsMatrixIsThatOfItsPath)
{
    MFnTransform child(path("child"), nullptr);
    MTransformationMatrix parts;
    const double scale[3] = {1, 2, 3};
    parts.setScale(scale, MSpace::kTransform);
    parts.rotateTo(MEulerRotation(0.1, 0.2, 0.3, MEulerRotation::kYZX));
    parts.setRotationOrientation(MQuaternion(0.4, MVector(1, 1, 0)));
    parts.setRotatePivot(MPoint(1, 2, 3), MSpace::kTransform, false);
    parts.setScalePivot(MPoint(3, 2, 1), MSpace::kTransform, false);
    parts.setTranslation(MVector(4, 5, 6), MSpace::kTransform);
    EXPECT_EQ(child.set(parts), MS::kSuccess);
    EXPECT_TRUE(child.transformation().isEquivalent(parts, 1.0e-9));
    const MMatrix expected = parts.asMatrix() * path("parent").inclusiveMatrix();
    EXPECT_TRUE(path("child").inclusiveMatrix().isEquivalent(expected, 1.0e-9));
}

TEST_F(MFnTransformTest, KeepsTheWholeWhenTheAxesTurnInBalance)
{
    MFnTransform child(object("child"), nullptr);
    child.setRotation(MEulerRotation(0.1, 0.2, 0.3));
    const MMatrix before = child.transformation().asMatrix();
    EXPECT_EQ(child.setRotateOrientation(MQuaternion(0.7, MVector(0, 1, 1)), MSpace::kTransform, true),
              MS::kSuccess);
    EXPECT_TRUE(child.transformation().asMatrix().isEquivalent(before, 1.0e-9));
}

TEST_F(MFnTransformTest, RefusesLockedAndConnectedChannels)
{
    engine::PlugState locked;
    locked.locked = true;
    engine::setState(scene.findPlug("child.translateX").value, locked);
    MFnTransform child(object("child"), nullptr);
    EXPECT_EQ(text(child.setTranslation(MVector(1, 0, 0), MSpace::kTransform)),
              "(kFailure): Unexpected Internal Failure");
    EXPECT_EQ(child.getTranslation(MSpace::kTransform), MVector());
    const double scale[3] = {2, 2, 2};
    EXPECT_EQ(child.setScale(scale), MS::kSuccess) << "another channel";
}

TEST_F(MFnTransformTest, LockedChannelsThatStayAsTheyAreRefuseNothing)
{
    engine::PlugState locked;
    locked.locked = true;
    engine::setState(scene.findPlug("child.translateZ").value, locked);
    MFnTransform child(object("child"), nullptr);
    EXPECT_EQ(child.translateBy(MVector(1, 2, 0), MSpace::kTransform), MS::kSuccess);
    EXPECT_EQ(child.getTranslation(MSpace::kTransform), MVector(1, 2, 0));
    EXPECT_EQ(child.translateBy(MVector(5, 5, 5), MSpace::kTransform), MS::kFailure);
    EXPECT_EQ(child.getTranslation(MSpace::kTransform), MVector(1, 2, 0)) << "all of it or nothing";
}

TEST_F(MFnTransformTest, MakesATransformBelowAParent)
{
    MFnTransform set;
    MStatus status = MS::kFailure;
    const MObject made = set.create(object("parent"), &status);
    EXPECT_EQ(status, MS::kSuccess);
    ASSERT_FALSE(made.isNull());
    EXPECT_TRUE(set.object() == made);
    EXPECT_TRUE(path("parent").child(1) == made);
    make("lambert", "skin");
    EXPECT_TRUE(set.create(object("skin"), &status).isNull());
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MFnTransformTest, LimitsItsTranslation)
{
    MFnTransform child(object("child"), nullptr);
    EXPECT_FALSE(child.isLimited(MFnTransform::kTranslateMaxX));
    EXPECT_EQ(child.setLimit(MFnTransform::kTranslateMaxX, 5.0), MS::kSuccess);
    EXPECT_EQ(child.enableLimit(MFnTransform::kTranslateMaxX, true), MS::kSuccess);
    EXPECT_TRUE(child.isLimited(MFnTransform::kTranslateMaxX));
    EXPECT_EQ(child.limitValue(MFnTransform::kTranslateMaxX), 5.0);
    EXPECT_EQ(numbers("child.maxTransXLimit"), (std::vector<double>{5}));
}

} // namespace
} // namespace tvxhost::api::test
