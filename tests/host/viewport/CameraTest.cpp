// Cameras: what Maya's camera attributes mean for the volume that is seen.
#include "viewport/camera.h"
#include "engine/deletion.h"
#include "engine/scene.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace tvxhost;
using engine::Matrix;
using engine::Vec3d;
using viewport::FilmFit;
using viewport::Lens;
using viewport::Volume;

/// A lens whose film gate is 36 x 24 mm and whose near plane is as far away as its focal length, so that the
/// gate's size on the near plane is its size in millimetres.
Lens millimetreLens()
{
    Lens lens;
    lens.focalLength = 50;
    lens.nearClip = 50;
    lens.farClip = 150;
    lens.horizontalAperture = 36 / 25.4;
    lens.verticalAperture = 24 / 25.4;
    return lens;
}

void expectSize(const Volume& volume, double width, double height)
{
    EXPECT_NEAR(volume.right - volume.left, width, 1e-9);
    EXPECT_NEAR(volume.top - volume.bottom, height, 1e-9);
}

/// Where a point of eye space lands in the picture, -1 to 1.
Vec3d projected(const Lens& lens, double aspect, const Vec3d& eye)
{
    Vec3d clip;
    viewport::projectionMatrix(lens, aspect).multVecMatrix(eye, clip);
    return clip;
}

TEST(CameraVolume, ShowsTheWholeGateInAPictureOfItsShape)
{
    for (FilmFit fit : {FilmFit::fill, FilmFit::horizontal, FilmFit::vertical, FilmFit::overscan}) {
        Lens lens = millimetreLens();
        lens.fit = fit;
        expectSize(viewport::volumeOf(lens, 1.5), 36, 24);
    }
}

TEST(CameraVolume, FillShowsNoMoreThanTheGate)
{
    expectSize(viewport::volumeOf(millimetreLens(), 2), 36, 18);
    expectSize(viewport::volumeOf(millimetreLens(), 1), 24, 24);
}

TEST(CameraVolume, OverscanShowsAllOfTheGate)
{
    Lens lens = millimetreLens();
    lens.fit = FilmFit::overscan;
    expectSize(viewport::volumeOf(lens, 2), 48, 24);
    expectSize(viewport::volumeOf(lens, 1), 36, 36);
}

TEST(CameraVolume, HorizontalFitKeepsTheWidthAndVerticalFitTheHeight)
{
    Lens lens = millimetreLens();
    lens.fit = FilmFit::horizontal;
    expectSize(viewport::volumeOf(lens, 1), 36, 36);
    lens.fit = FilmFit::vertical;
    expectSize(viewport::volumeOf(lens, 2), 48, 24);
}

TEST(CameraVolume, ScaleOverscanAndSqueezeWidenIt)
{
    Lens lens = millimetreLens();
    lens.scale = 2;
    expectSize(viewport::volumeOf(lens, 1.5), 72, 48);
    lens.overscan = 1.5;
    expectSize(viewport::volumeOf(lens, 1.5), 108, 72);
    lens = millimetreLens();
    lens.squeeze = 2;
    expectSize(viewport::volumeOf(lens, 3), 72, 24);
}

TEST(CameraVolume, MovesWithTheFilmOffset)
{
    Lens lens = millimetreLens();
    lens.horizontalOffset = 10 / 25.4;
    lens.verticalOffset = -5 / 25.4;
    const Volume volume = viewport::volumeOf(lens, 1.5);
    EXPECT_NEAR(volume.left, -8, 1e-9);
    EXPECT_NEAR(volume.right, 28, 1e-9);
    EXPECT_NEAR(volume.bottom, -17, 1e-9);
    EXPECT_NEAR(volume.top, 7, 1e-9);
}

TEST(CameraVolume, OfAnOrthographicCameraIsItsWidthAcross)
{
    Lens lens;
    lens.orthographic = true;
    lens.orthographicWidth = 30;
    expectSize(viewport::volumeOf(lens, 1.5), 30, 20);
    expectSize(viewport::volumeOf(lens, 0.5), 30, 60);
    lens.overscan = 2;
    expectSize(viewport::volumeOf(lens, 1.5), 60, 40);
}

TEST(CameraProjection, PutsTheNearAndFarPlaneAtTheEndsOfDepth)
{
    EXPECT_NEAR(projected(millimetreLens(), 1.5, {0, 0, -50}).z, -1, 1e-9);
    EXPECT_NEAR(projected(millimetreLens(), 1.5, {0, 0, -150}).z, 1, 1e-9);
    Lens lens;
    lens.orthographic = true;
    lens.nearClip = 2;
    lens.farClip = 10;
    EXPECT_NEAR(projected(lens, 1.5, {0, 0, -2}).z, -1, 1e-9);
    EXPECT_NEAR(projected(lens, 1.5, {0, 0, -10}).z, 1, 1e-9);
}

TEST(CameraProjection, PutsTheGatesCornersAtThePicturesCorners)
{
    // Twice as far away as the near plane the gate is seen twice as large.
    const Vec3d corner = projected(millimetreLens(), 1.5, {36, -24, -100});
    EXPECT_NEAR(corner.x, 1, 1e-9);
    EXPECT_NEAR(corner.y, -1, 1e-9);
    Lens lens = millimetreLens();
    lens.horizontalOffset = 10 / 25.4;
    EXPECT_NEAR(projected(lens, 1.5, {28, 0, -50}).x, 1, 1e-9);
    lens.verticalOffset = -5 / 25.4;
    EXPECT_NEAR(projected(lens, 1.5, {28, 7, -50}).y, 1, 1e-9);
}

TEST(CameraProjection, KeepsDistanceOutOfAnOrthographicPicture)
{
    Lens lens;
    lens.orthographic = true;
    lens.orthographicWidth = 20;
    EXPECT_NEAR(projected(lens, 1, {5, -10, -1}).x, 0.5, 1e-9);
    EXPECT_NEAR(projected(lens, 1, {5, -10, -9000}).x, 0.5, 1e-9);
    EXPECT_NEAR(projected(lens, 1, {5, -10, -9000}).y, -1, 1e-9);
}

TEST(CameraView, LooksDownItsOwnNegativeZ)
{
    // Turned a quarter about y, a camera at (10, 0, 0) looks along -x.
    Matrix world;
    world.rotate(Vec3d(0, std::acos(-1.0) / 2, 0));
    world[3][0] = 10;
    Vec3d eye;
    viewport::viewMatrix(world).multVecMatrix(Vec3d(4, 1, 2), eye);
    EXPECT_NEAR(eye.x, -2, 1e-9);
    EXPECT_NEAR(eye.y, 1, 1e-9);
    EXPECT_NEAR(eye.z, -6, 1e-9);
}

TEST(CameraView, DoesNotCareForTheCamerasScale)
{
    Matrix world;
    world.scale(Vec3d(3, 0.5, 2));
    world[3][2] = 5;
    Vec3d eye;
    viewport::viewMatrix(world).multVecMatrix(Vec3d(1, 1, 0), eye);
    EXPECT_NEAR(eye.x, 1, 1e-9);
    EXPECT_NEAR(eye.y, 1, 1e-9);
    EXPECT_NEAR(eye.z, -5, 1e-9);
}

TEST(CameraView, OfACameraThatIsScaledToNothingIsStillAMatrix)
{
    Matrix world(0.0);
    world[3][0] = 7;
    world[3][3] = 1;
    Vec3d eye;
    viewport::viewMatrix(world).multVecMatrix(Vec3d(7, 0, -1), eye);
    EXPECT_EQ(eye, Vec3d(0, 0, -1));
}

TEST(FindCamera, IsPerspWhenNoneIsNamed)
{
    engine::Scene scene;
    scene.newScene();
    const auto camera = viewport::findCamera(scene, "");
    ASSERT_TRUE(camera) << camera.outcome.text;
    EXPECT_EQ(camera.value.fullName(), "|persp|perspShape");
}

TEST(FindCamera, TakesACameraOrItsTransform)
{
    engine::Scene scene;
    scene.newScene();
    for (const char* name : {"front", "frontShape", "|front", "|front|frontShape"}) {
        const auto camera = viewport::findCamera(scene, name);
        ASSERT_TRUE(camera) << camera.outcome.text;
        EXPECT_EQ(camera.value.fullName(), "|front|frontShape");
    }
}

TEST(FindCamera, IsTheScenesFirstWhenPerspIsNotInItsPlace)
{
    engine::Scene scene;
    scene.newScene();
    ASSERT_TRUE(scene.createNode("transform", "rig"));
    const auto dagNamed = [&](const char* name) { return scene.findNode(name).value->asDag(); };
    ASSERT_TRUE(scene.reparent(*dagNamed("persp"), nullptr, dagNamed("rig")));
    const auto camera = viewport::findCamera(scene, "");
    ASSERT_TRUE(camera) << camera.outcome.text;
    EXPECT_EQ(camera.value.fullName(), "|rig|persp|perspShape");
}

TEST(FindCamera, SaysWhatIsWrong)
{
    engine::Scene scene;
    scene.newScene();
    EXPECT_EQ(viewport::findCamera(scene, "time1").outcome.text, "\"time1\" is not a camera");
    ASSERT_TRUE(scene.createNode("transform", "empty"));
    EXPECT_EQ(viewport::findCamera(scene, "empty").outcome.text, "\"empty\" is not a camera");
    const auto nobody = viewport::findCamera(scene, "nobody");
    EXPECT_EQ(nobody.outcome.reason, engine::Reason::doesNotExist);
    EXPECT_EQ(nobody.outcome.text, "camera \"nobody\": No object matches name: nobody");
    for (const char* name : {"persp", "top", "front", "side"}) {
        engine::Node& camera = *scene.findNode(name).value;
        engine::setStartupCamera(*camera.asDag(), false);
        ASSERT_TRUE(scene.deleteNode(camera)) << name;
    }
    EXPECT_EQ(viewport::findCamera(scene, "").outcome.text, "the scene has no camera");
}

TEST(CameraLens, ComesFromTheNodesAttributes)
{
    engine::Scene scene;
    scene.newScene();
    engine::DagNode& node = *viewport::findCamera(scene, "side").value.node();
    const auto set = [&node](const char* name, double value) {
        const auto outcome = engine::writeNumber(node.findPlug(name).value, engine::Number(value));
        ASSERT_TRUE(outcome) << name << ": " << outcome.text;
    };
    set("orthographicWidth", 42);
    set("focalLength", 85);
    set("nearClipPlane", 0.5);
    set("farClipPlane", 500);
    set("filmFit", 3);
    set("horizontalFilmAperture", 1.2);
    set("verticalFilmAperture", 0.8);
    set("horizontalFilmOffset", 0.1);
    set("verticalFilmOffset", -0.2);
    set("lensSqueezeRatio", 2);
    set("cameraScale", 3);
    set("overscan", 1.3);
    const Lens lens = viewport::lensOf(node);
    EXPECT_TRUE(lens.orthographic);
    EXPECT_EQ(lens.orthographicWidth, 42);
    EXPECT_EQ(lens.focalLength, 85);
    EXPECT_EQ(lens.nearClip, 0.5);
    EXPECT_EQ(lens.farClip, 500);
    EXPECT_EQ(lens.fit, FilmFit::overscan);
    EXPECT_EQ(lens.horizontalAperture, 1.2);
    EXPECT_EQ(lens.verticalAperture, 0.8);
    EXPECT_EQ(lens.horizontalOffset, 0.1);
    EXPECT_EQ(lens.verticalOffset, -0.2);
    EXPECT_EQ(lens.squeeze, 2);
    EXPECT_EQ(lens.scale, 3);
    EXPECT_EQ(lens.overscan, 1.3);
}

TEST(CameraLens, IsOneThatSeesSomethingWhateverTheAttributesAre)
{
    engine::Scene scene;
    scene.newScene();
    engine::DagNode& node = *viewport::findCamera(scene, "side").value.node();
    for (const char* name : {"lensSqueezeRatio", "overscan"})
        ASSERT_TRUE(engine::writeNumber(node.findPlug(name).value, engine::Number(0.0))) << name;
    ASSERT_TRUE(engine::writeNumber(node.findPlug("nearClipPlane").value, engine::Number(100.0)));
    ASSERT_TRUE(engine::writeNumber(node.findPlug("farClipPlane").value, engine::Number(10.0)));
    const Lens lens = viewport::lensOf(node);
    EXPECT_EQ(lens.squeeze, 1);
    EXPECT_EQ(lens.overscan, 1);
    EXPECT_GT(lens.farClip, lens.nearClip);
}

} // namespace
