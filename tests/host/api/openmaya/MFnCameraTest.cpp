// MFnCamera: cameras.
#include "../sceneFixture.h"

#include <maya/MFnCamera.h>
#include <maya/MPointArray.h>

#include <cmath>

namespace tvxhost::api::test {
namespace {

constexpr double kPi = 3.14159265358979323846;

class MFnCameraTest : public SceneFixture
{
protected:
    MFnCameraTest()
    {
        make("transform", "rig");
        make("camera", "eye", "rig");
    }
};

TEST_F(MFnCameraTest, LooksAlongItsNegativeZAxis)
{
    set("rig.t", {1.0, 2.0, 3.0});
    set("rig.ry", {kPi / 2.0});
    const MFnCamera camera(path("eye"), nullptr);
    EXPECT_EQ(camera.eyePoint(), MPoint(0.0, 0.0, 0.0));
    EXPECT_TRUE(camera.eyePoint(MSpace::kWorld).isEquivalent(MPoint(1.0, 2.0, 3.0), 1e-9));
    EXPECT_TRUE(camera.viewDirection().isEquivalent(MVector(0.0, 0.0, -1.0)));
    EXPECT_TRUE(camera.viewDirection(MSpace::kWorld).isEquivalent(MVector(-1.0, 0.0, 0.0), 1e-9));
    EXPECT_TRUE(camera.upDirection(MSpace::kWorld).isEquivalent(MVector(0.0, 1.0, 0.0), 1e-9));
    EXPECT_TRUE(camera.rightDirection(MSpace::kWorld).isEquivalent(MVector(0.0, 0.0, -1.0), 1e-9));
    EXPECT_DOUBLE_EQ(camera.centerOfInterest(), 5.0);
    EXPECT_TRUE(camera.centerOfInterestPoint(MSpace::kWorld).isEquivalent(MPoint(-4.0, 2.0, 3.0), 1e-9));
}

TEST_F(MFnCameraTest, FieldsOfViewFollowFilmAndLens)
{
    MFnCamera camera(object("eye"), nullptr);
    EXPECT_EQ(camera.setHorizontalFilmAperture(2.0), MS::kSuccess);
    EXPECT_EQ(camera.setVerticalFilmAperture(1.0), MS::kSuccess);
    EXPECT_EQ(camera.setFocalLength(25.4), MS::kSuccess);
    EXPECT_NEAR(camera.horizontalFieldOfView(), kPi / 2.0, 1e-12) << "an inch to each side of an inch";
    EXPECT_NEAR(camera.verticalFieldOfView(), 2.0 * std::atan(0.5), 1e-12);
    EXPECT_DOUBLE_EQ(camera.aspectRatio(), 2.0);
    EXPECT_EQ(camera.setAspectRatio(1.5), MS::kSuccess);
    EXPECT_DOUBLE_EQ(camera.horizontalFilmAperture(), 1.5);
    EXPECT_EQ(camera.setHorizontalFilmAperture(2.0), MS::kSuccess);
    EXPECT_EQ(camera.setHorizontalFieldOfView(2.0 * std::atan(0.5)), MS::kSuccess);
    EXPECT_NEAR(camera.focalLength(), 50.8, 1e-9);
    EXPECT_EQ(camera.setHorizontalFieldOfView(kPi), MS::kInvalidParameter);
    EXPECT_EQ(camera.setFocalLength(1.0), MS::kFailure) << "below its limit";
    EXPECT_NEAR(camera.focalLength(), 50.8, 1e-9);
}

TEST_F(MFnCameraTest, AttributesAreReadAndSet)
{
    MFnCamera camera(object("eye"), nullptr);
    EXPECT_EQ(camera.filmFit(), MFnCamera::kHorizontalFilmFit);
    EXPECT_EQ(camera.setFilmFit(MFnCamera::kOverscanFilmFit), MS::kSuccess);
    EXPECT_EQ(camera.filmFit(), MFnCamera::kOverscanFilmFit);
    EXPECT_EQ(camera.setNearFarClippingPlanes(1.0, 500.0), MS::kSuccess);
    EXPECT_DOUBLE_EQ(camera.nearClippingPlane(), 1.0);
    EXPECT_DOUBLE_EQ(camera.farClippingPlane(), 500.0);
    EXPECT_EQ(camera.setNearFarClippingPlanes(10.0, 5.0), MS::kInvalidParameter);
    EXPECT_FALSE(camera.isClippingPlanes()) << "planes are fitted at first";
    EXPECT_EQ(camera.setClippingPlanes(true), MS::kSuccess);
    EXPECT_TRUE(camera.isClippingPlanes());
    EXPECT_NEAR(camera.shutterAngle(), 144.0 * kPi / 180.0, 1e-12);
    EXPECT_EQ(camera.setDepthOfField(true), MS::kSuccess);
    EXPECT_TRUE(camera.isDepthOfField());
    EXPECT_EQ(camera.setTumblePivot(MPoint(1.0, 2.0, 3.0)), MS::kSuccess);
    EXPECT_EQ(camera.tumblePivot(), MPoint(1.0, 2.0, 3.0));
    EXPECT_FALSE(camera.isOrtho());
    EXPECT_EQ(camera.setIsOrtho(true), MS::kSuccess);
    EXPECT_TRUE(camera.isOrtho());
    EXPECT_EQ(camera.setOrthoWidth(12.0), MS::kSuccess);
    EXPECT_DOUBLE_EQ(camera.orthoWidth(), 12.0);
}

TEST_F(MFnCameraTest, AnOrthographicViewCanKeepTheSizeOfADistance)
{
    MFnCamera camera(object("eye"), nullptr);
    camera.setHorizontalFilmAperture(2.0);
    camera.setFocalLength(25.4);
    EXPECT_EQ(camera.setIsOrtho(true, 10.0), MS::kSuccess);
    EXPECT_NEAR(camera.orthoWidth(), 20.0, 1e-9);
}

TEST_F(MFnCameraTest, IsMadeBelowATransform)
{
    MStatus status;
    MFnCamera camera;
    const MObject transform = camera.create(&status);
    ASSERT_EQ(status, MS::kSuccess);
    EXPECT_EQ(camera.parent(0), transform);
    MObject rig = object("rig");
    camera.create(rig, &status);
    EXPECT_EQ(camera.parent(0), rig);
    EXPECT_TRUE(camera.hasSamePerspective(path("eye"), &status));
    EXPECT_EQ(camera.setFocalLength(50.0), MS::kSuccess);
    EXPECT_FALSE(camera.hasSamePerspective(path("eye"), &status));
    camera.hasSamePerspective(path("rig"), &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MFnCameraTest, TellsWhatItCannotDo)
{
    MFnCamera camera(object("eye"), nullptr);
    EXPECT_EQ(camera.setStereo(true), MS::kNotImplemented);
    MStatus status;
    EXPECT_FALSE(camera.isMotionBlur(&status));
    EXPECT_EQ(status, MS::kNotImplemented);
    MFnCamera nothing;
    EXPECT_EQ(nothing.focalLength(&status), 0.0);
    EXPECT_EQ(status, MS::kFailure);
    EXPECT_EQ(nothing.setFocalLength(35.0), MS::kFailure);
    faults::failCall("MFnCamera::focalLength", 1, MS::kInsufficientMemory);
    camera.focalLength(&status);
    EXPECT_EQ(status, MS::kInsufficientMemory);
}

} // namespace
} // namespace tvxhost::api::test
