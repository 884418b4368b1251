// camera and lookThru.
#include "CommandFixture.h"

#include <cmath>

namespace tvxhost::mel {

using testing::DoubleNear;
using testing::ElementsAre;

class CameraCommandsTest : public CommandFixture
{
};

TEST_F(CameraCommandsTest, aNewCameraIsATransformAndAShapeAndIsSelected)
{
    EXPECT_THAT(strings("camera"), ElementsAre("camera1", "cameraShape1"));
    EXPECT_THAT(strings("camera -n \"shot\""), ElementsAre("shot", "shotShape"));
    EXPECT_THAT(strings("ls -sl"), ElementsAre("shot"));
    EXPECT_EQ(run("camera -q -focalLength shot"), "35");
}

TEST_F(CameraCommandsTest, flagsSetAttributesAndTellThem)
{
    run("camera -fl 50 -hfa 1 -o true -filmFit vertical -nearClipPlane 0.5 -position 1 2 3 -rotation 0 90 0");
    EXPECT_EQ(run("getAttr cameraShape1.focalLength"), "50");
    EXPECT_EQ(run("getAttr cameraShape1.orthographic"), "1");
    EXPECT_EQ(run("getAttr -as cameraShape1.filmFit"), "Vertical");
    EXPECT_EQ(run("camera -q -ff camera1"), "vertical");
    EXPECT_EQ(run("camera -q -ncp camera1"), "0.5");
    EXPECT_THAT(numbers("camera -q -p cameraShape1"), ElementsAre(1.0, 2.0, 3.0));
    EXPECT_THAT(numbers("camera -q -rot camera1"), ElementsAre(0.0, 90.0, 0.0));
    run("camera -e -fl 24 -cp true camera1");
    EXPECT_EQ(run("getAttr cameraShape1.focalLength"), "24");
    EXPECT_EQ(run("getAttr cameraShape1.bestFitClippingPlanes"), "0");
    EXPECT_EQ(run("camera -q -cp camera1"), "1");
}

TEST_F(CameraCommandsTest, distancesAreInTheUnitOfTheUser)
{
    run("camera; currentUnit -l m; camera -e -farClipPlane 20 camera1; currentUnit -l cm");
    EXPECT_EQ(run("getAttr cameraShape1.farClipPlane"), "2000");
}

TEST_F(CameraCommandsTest, anAngleOfViewIsAFocalLength)
{
    // A film of one inch at 45 degrees to either side: half an inch away.
    run("camera -hfa 1 -vfa 0.5; camera -e -hfv 90 camera1");
    EXPECT_THAT(value("getAttr cameraShape1.focalLength").toNumber(), DoubleNear(12.7, 1e-9));
    EXPECT_THAT(value("camera -q -hfv camera1").toNumber(), DoubleNear(90.0, 1e-9));
    EXPECT_THAT(value("camera -q -vfv camera1").toNumber(),
                DoubleNear(2.0 * std::atan(0.5) * 180.0 / std::acos(-1.0), 1e-9));
    run("camera -e -aspectRatio 4 camera1");
    EXPECT_EQ(run("getAttr cameraShape1.verticalFilmAperture"), "0.25");
    EXPECT_EQ(run("camera -q -ar camera1"), "4");
}

TEST_F(CameraCommandsTest, mistakesAreNamed)
{
    run("camera; createNode transform -n \"t\"");
    EXPECT_EQ(failure("camera -q -fl t"), "'t' is not a camera");
    EXPECT_EQ(failure("camera -e -filmFit diagonal camera1"),
              "'diagonal' is no value of cameraShape1.filmFit");
    EXPECT_EQ(failure("camera -q camera1"), "camera: nothing was asked");
    EXPECT_EQ(failure("camera -motionBlur true"),
              "Flag '-motionBlur' of camera is refused: the host draws no such thing");
}

TEST_F(CameraCommandsTest, startupCamerasCannotBeDeleted)
{
    EXPECT_EQ(run("camera -q -startupCamera top"), "1");
    run("camera -n shot; camera -e -startupCamera true shot; camera -e -startupCamera false top");
    EXPECT_EQ(run("camera -q -sc shotShape"), "1");
    EXPECT_THAT(strings("ls -undeletable -type camera"),
                ElementsAre("perspShape", "frontShape", "sideShape", "shotShape"));
    EXPECT_EQ(failure("delete shot"), "Non-deletable object 'shot' (or its descendents) cannot be deleted.");
    run("delete top");
    EXPECT_EQ(run("objExists topShape"), "0");
}

TEST_F(CameraCommandsTest, beingAStartupCameraIsTakenBack)
{
    run("undoInfo -state on");
    run("camera -e -startupCamera false top");
    run("delete top");
    run("undo; undo");
    EXPECT_EQ(run("camera -q -startupCamera top"), "1");
}

TEST_F(CameraCommandsTest, camerasAreListedByName)
{
    run("camera -n shot; camera -n plan -o true");
    EXPECT_THAT(strings("listCameras"), ElementsAre("front", "persp", "plan", "shot", "side", "top"));
    EXPECT_THAT(strings("listCameras -perspective"), ElementsAre("persp", "shot"));
    EXPECT_THAT(strings("listCameras -o"), ElementsAre("front", "plan", "side", "top"));
    // A transform with two cameras names neither.
    run("createNode camera -n second -p shot");
    EXPECT_THAT(strings("listCameras -p"), ElementsAre("persp", "second", "shotShape"));
}

TEST_F(CameraCommandsTest, theViewShowsACamera)
{
    EXPECT_EQ(run("lookThru -q"), "persp");
    run("camera -n \"shot\"; lookThru -nc 0.25 shotShape");
    EXPECT_EQ(run("lookThru -q"), "shot");
    EXPECT_EQ(run("getAttr shotShape.nearClipPlane"), "0.25");
    EXPECT_EQ(failure("lookThru nobody"), "No object matches name: nobody");
}

} // namespace tvxhost::mel
