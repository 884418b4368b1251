// MFnMesh: where rays meet a mesh, and what of it is nearest.
#include "../arrays.h"
#include "../meshFixture.h"

#include <maya/MFloatArray.h>
#include <maya/MFloatPointArray.h>
#include <maya/MFloatVector.h>
#include <maya/MFnMesh.h>
#include <maya/MPointArray.h>

#include <cmath>
#include <random>

namespace tvxhost::api::test {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::FloatNear;
using testing::HasSubstr;
using testing::IsEmpty;

struct Hit
{
    bool isHit = false;
    MFloatPoint point;
    float t = -1, bary1 = -1, bary2 = -1;
    int face = -1, triangle = -1;
    MStatus status;
};

/// What is asked beside the ray.
struct Limits
{
    const MIntArray* faces = nullptr;
    const MIntArray* triangles = nullptr;
    float reach = 100;
    bool bothWays = false;
    MSpace::Space space = MSpace::kObject;
};

class MeshRaysTest : public MeshFixture
{
protected:
    static Hit closest(MFnMesh& mesh, const MFloatPoint& from, const MFloatVector& along,
                       const Limits& limits = {})
    {
        Hit hit;
        hit.isHit = mesh.closestIntersection(
            from, along, limits.faces, limits.triangles, false, limits.space, limits.reach, limits.bothWays,
            nullptr, hit.point, &hit.t, &hit.face, &hit.triangle, &hit.bary1, &hit.bary2, 1e-6F, &hit.status);
        return hit;
    }
};

TEST_F(MeshRaysTest, TheClosestHitIsToldWithItsTriangleAndWeights)
{
    addMesh("cube", engine::makeCube({}));
    MFnMesh mesh(path("cubeShape"), nullptr);
    const Hit hit = closest(mesh, MFloatPoint(0.25F, -0.25F, 3), MFloatVector(0, 0, -2));
    EXPECT_TRUE(hit.isHit);
    EXPECT_EQ(hit.status, MS::kSuccess);
    EXPECT_EQ(hit.face, 0);
    // The front is 0 1 3 2 with 0 at (-0.5, -0.5), 1 at (0.5, -0.5), 3 at (0.5, 0.5); the point lies below
    // the diagonal from 0 to 3: 0.25 of the first corner, 0.5 of the second.
    EXPECT_EQ(hit.triangle, 0);
    EXPECT_FLOAT_EQ(hit.bary1, 0.25F);
    EXPECT_FLOAT_EQ(hit.bary2, 0.5F);
    EXPECT_FLOAT_EQ(hit.t, 1.25F);
    EXPECT_THAT((std::vector<float>{hit.point.x, hit.point.y, hit.point.z}),
                ElementsAre(0.25F, -0.25F, 0.5F));
}

TEST_F(MeshRaysTest, WhatIsNotAskedForIsNotTold)
{
    addQuad();
    MFnMesh mesh(path("quadShape"), nullptr);
    MFloatPoint point;
    EXPECT_TRUE(mesh.closestIntersection(MFloatPoint(0.5F, 7, 0), MFloatVector(0, -1, 0), nullptr, nullptr,
                                         true, MSpace::kObject, 100, false, nullptr, point, nullptr, nullptr,
                                         nullptr, nullptr, nullptr));
    EXPECT_EQ(point.y, 0);
    MFloatPointArray points;
    EXPECT_TRUE(mesh.allIntersections(MFloatPoint(0.5F, 7, 0), MFloatVector(0, -1, 0), nullptr, nullptr, true,
                                      MSpace::kObject, 100, false, nullptr, true, points, nullptr, nullptr,
                                      nullptr, nullptr, nullptr));
    EXPECT_EQ(points.length(), 1u);
}

TEST_F(MeshRaysTest, WithoutAHitNothingIsTold)
{
    addQuad();
    MFnMesh mesh(path("quadShape"), nullptr);
    const Hit miss = closest(mesh, MFloatPoint(3, 1, 0), MFloatVector(0, -1, 0));
    EXPECT_FALSE(miss.isHit);
    EXPECT_EQ(miss.status, MS::kSuccess);
    EXPECT_EQ(miss.face, -1);
    EXPECT_EQ(miss.t, -1);
}

TEST_F(MeshRaysTest, HitsBeyondTheReachOrBehindDoNotCount)
{
    addQuad();
    MFnMesh mesh(path("quadShape"), nullptr);
    const MFloatPoint above(0.5F, 4, 0);
    const MFloatVector down(0, -2, 0), up(0, 2, 0);
    Limits limits;
    limits.reach = 2;
    EXPECT_TRUE(closest(mesh, above, down, limits).isHit) << "at t = 2";
    limits.reach = 1.9F;
    EXPECT_FALSE(closest(mesh, above, down, limits).isHit);
    EXPECT_FALSE(closest(mesh, above, up).isHit);
    limits.bothWays = true;
    EXPECT_FALSE(closest(mesh, above, up, limits).isHit);
    limits.reach = 2;
    EXPECT_FLOAT_EQ(closest(mesh, above, up, limits).t, -2);
}

TEST_F(MeshRaysTest, OfHitsOnBothSidesTheNearerOneIsClosest)
{
    addMesh("cube", engine::makeCube({}));
    MFnMesh mesh(path("cubeShape"), nullptr);
    Limits limits;
    limits.bothWays = true;
    const Hit hit = closest(mesh, MFloatPoint(0.1F, 0.2F, -0.3F), MFloatVector(0, 0, 1), limits);
    EXPECT_FLOAT_EQ(hit.t, -0.2F);
    EXPECT_EQ(hit.face, 2) << "the back";
}

TEST_F(MeshRaysTest, OnlyNamedFacesAndTrianglesAreMet)
{
    addMesh("cube", engine::makeCube({}));
    MFnMesh mesh(path("cubeShape"), nullptr);
    const MFloatPoint from(0.3F, -0.1F, 3);
    const MFloatVector along(0, 0, -1);
    const MIntArray faces = ints({5, 2, 1}), first = ints({0, 1, 0}), second = ints({0, 0, 0}),
                    tooFew = ints({0});
    Limits limits;
    limits.faces = &faces;
    const Hit back = closest(mesh, from, along, limits);
    EXPECT_EQ(back.face, 2);
    limits.triangles = back.triangle == 1 ? &first : &second;
    EXPECT_EQ(closest(mesh, from, along, limits).face, 2);
    limits.triangles = back.triangle == 1 ? &second : &first;
    EXPECT_FALSE(closest(mesh, from, along, limits).isHit);
    limits.triangles = &tooFew;
    EXPECT_EQ(closest(mesh, from, along, limits).status, MS::kInvalidParameter);
    limits = {};
    limits.triangles = &first;
    EXPECT_EQ(closest(mesh, from, along, limits).status, MS::kInvalidParameter);
}

TEST_F(MeshRaysTest, RaysOfTheWorldMeetTheMeshWhereItStands)
{
    addMesh("cube", engine::makeCube({}));
    set("cube.translate", {10, 0, 0});
    set("cube.scale", {4, 1, 1});
    MFnMesh mesh(path("cubeShape"), nullptr);
    Limits world;
    world.space = MSpace::kWorld;
    const Hit hit = closest(mesh, MFloatPoint(0, 0.25F, 0.125F), MFloatVector(2, 0, 0), world);
    EXPECT_FLOAT_EQ(hit.point.x, 8);
    EXPECT_FLOAT_EQ(hit.t, 4);
    EXPECT_FALSE(closest(mesh, MFloatPoint(10, 0.25F, 0.125F), MFloatVector(1, 0, 0)).isHit);
    MObject shape = object("cubeShape");
    MFnMesh nowhere(shape, nullptr);
    EXPECT_EQ(closest(nowhere, MFloatPoint(0, 0, 0), MFloatVector(1, 0, 0), world).status, MS::kFailure);
}

TEST_F(MeshRaysTest, ARayNeedsADirection)
{
    addQuad();
    MFnMesh mesh(path("quadShape"), nullptr);
    EXPECT_EQ(closest(mesh, MFloatPoint(0, 0, 0), MFloatVector(0, 0, 0)).status, MS::kInvalidParameter);
    MPointArray points;
    MStatus status;
    EXPECT_FALSE(mesh.intersect(MPoint(), MVector(), points, &status));
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MeshRaysTest, AllHitsComeSortedOrByFace)
{
    addMesh("cube", engine::makeCube({}));
    MFnMesh mesh(path("cubeShape"), nullptr);
    MFloatPointArray points;
    MFloatArray params, bary1, bary2;
    MIntArray faces, triangles;
    const auto all = [&](bool sorted, bool bothWays) {
        return mesh.allIntersections(MFloatPoint(0.25F, -0.125F, -1), MFloatVector(0, 0, 1), nullptr, nullptr,
                                     false, MSpace::kObject, 10, bothWays, nullptr, sorted, points, &params,
                                     &faces, &triangles, &bary1, &bary2);
    };
    EXPECT_TRUE(all(true, false));
    EXPECT_THAT(numbers(faces), ElementsAre(2, 0));
    EXPECT_THAT(elementsOf(params), ElementsAre(0.5F, 1.5F));
    ASSERT_EQ(points.length(), 2u);
    EXPECT_EQ(points[1].z, 0.5F);
    EXPECT_EQ(triangles.length(), 2u);
    EXPECT_EQ(bary1.length(), 2u);
    // On the front, 0.25 right of the middle and 0.125 below: 0.25 of 0 at the left, 0.375 of 1.
    EXPECT_THAT(bary1[1], FloatNear(0.25F, 1e-6F));
    EXPECT_THAT(bary2[1], FloatNear(0.375F, 1e-6F));
    EXPECT_TRUE(all(false, true));
    EXPECT_THAT(numbers(faces), ElementsAre(0, 2));
    EXPECT_FALSE(mesh.allIntersections(MFloatPoint(5, 5, 5), MFloatVector(0, 0, 1), nullptr, nullptr, false,
                                       MSpace::kObject, 10, true, nullptr, true, points, &params, &faces,
                                       nullptr, nullptr, nullptr));
    EXPECT_EQ(points.length(), 0u) << "those of the last call are gone";
    EXPECT_EQ(faces.length(), 0u);
}

TEST_F(MeshRaysTest, AnyHitIsAHit)
{
    addMesh("ball", engine::makeSphere({}));
    MFnMesh mesh(path("ballShape"), nullptr);
    std::mt19937 random(4);
    std::uniform_real_distribution<float> number(-2, 2);
    int hits = 0;
    for (int round = 0; round < 200; ++round) {
        const MFloatPoint from(number(random), number(random), number(random));
        const MFloatVector along(number(random), number(random), number(random));
        MFloatPoint point;
        const bool any =
            mesh.anyIntersection(from, along, nullptr, nullptr, false, MSpace::kObject, 10, false, nullptr,
                                 point, nullptr, nullptr, nullptr, nullptr, nullptr);
        EXPECT_EQ(any, closest(mesh, from, along, {nullptr, nullptr, 10}).isHit);
        if (any) {
            ++hits;
            EXPECT_NEAR(std::sqrt(point.x * point.x + point.y * point.y + point.z * point.z), 1, 0.02);
        }
    }
    EXPECT_GT(hits, 20);
    EXPECT_LT(hits, 180);
}

TEST_F(MeshRaysTest, PointsAlongARayComeFromNearToFar)
{
    addMesh("cube", engine::makeCube({}));
    set("cube.translate", {0, 0, 5});
    MFnMesh mesh(path("cubeShape"), nullptr);
    MPointArray points;
    MIntArray faces;
    EXPECT_TRUE(mesh.intersect(MPoint(0.1, 0.2, 0), MVector(0, 0, 1), points, kMFnMeshPointTolerance,
                               MSpace::kWorld, &faces));
    ASSERT_EQ(points.length(), 2u);
    EXPECT_THAT(xyz(points[0]),
                ElementsAre(DoubleNear(0.1, 1e-12), DoubleNear(0.2, 1e-12), DoubleNear(4.5, 1e-12)));
    EXPECT_DOUBLE_EQ(points[1].z, 5.5);
    EXPECT_THAT(numbers(faces), ElementsAre(2, 0));
    MPoint source(0, 0, -3);
    MVector direction(0, 0, 1);
    EXPECT_TRUE(mesh.intersect(source, direction, points)) << "through the diagonals of both faces";
    EXPECT_EQ(points.length(), 2u);
    const MVector away(0, 0, -1);
    MStatus status;
    EXPECT_FALSE(mesh.intersect(source, away, points, &status));
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(points.length(), 0u);
}

TEST_F(MeshRaysTest, NumbersOfFacesAndTrianglesAreSortedTogether)
{
    addQuad();
    MFnMesh mesh(path("quadShape"), nullptr);
    MIntArray faces = ints({4, 1, 4, 0}), triangles = ints({1, 7, 0, 3});
    EXPECT_EQ(mesh.sortIntersectionFaceTriIds(&faces, &triangles), MS::kSuccess);
    EXPECT_THAT(numbers(faces), ElementsAre(0, 1, 4, 4));
    EXPECT_THAT(numbers(triangles), ElementsAre(3, 7, 0, 1));
    MIntArray alone = ints({3, 1, 2});
    EXPECT_EQ(mesh.sortIntersectionFaceTriIds(&alone, nullptr), MS::kSuccess);
    EXPECT_THAT(numbers(alone), ElementsAre(1, 2, 3));
    EXPECT_EQ(mesh.sortIntersectionFaceTriIds(nullptr, &triangles), MS::kInvalidParameter);
    EXPECT_EQ(mesh.sortIntersectionFaceTriIds(&alone, &triangles), MS::kInvalidParameter);
}

TEST_F(MeshRaysTest, WhatIsKeptForRaysIsToldAndFreed)
{
    addMesh("cube", engine::makeCube({}));
    MFnMesh mesh(path("cubeShape"), nullptr);
    MStatus status;
    EXPECT_EQ(text(mesh.cachedIntersectionAcceleratorInfo(&status)), "");
    EXPECT_EQ(status, MS::kSuccess);
    MFnMesh::clearGlobalIntersectionAcceleratorInfo();
    closest(mesh, MFloatPoint(0, 0, 3), MFloatVector(0, 0, -1));
    EXPECT_THAT(text(mesh.cachedIntersectionAcceleratorInfo()),
                HasSubstr("tree of 12 triangles, (build time "));
    EXPECT_THAT(text(MFnMesh::globalIntersectionAcceleratorsInfo()),
                HasSubstr("total 1 accelerators created (1 currently active - "));
    EXPECT_EQ(mesh.freeCachedIntersectionAccelerator(), MS::kSuccess);
    EXPECT_EQ(text(mesh.cachedIntersectionAcceleratorInfo()), "");
    EXPECT_THAT(
        text(MFnMesh::globalIntersectionAcceleratorsInfo()),
        HasSubstr("total 1 accelerators created (0 currently active - total current memory = 0.0KB)"));
    EXPECT_EQ(MFnMesh().freeCachedIntersectionAccelerator(), MS::kInvalidParameter);
}

TEST_F(MeshRaysTest, MovedPointsAreMetWhereTheyAre)
{
    addQuad();
    MFnMesh mesh(path("quadShape"), nullptr);
    EXPECT_FLOAT_EQ(closest(mesh, MFloatPoint(0.5F, 7, 0), MFloatVector(0, -1, 0)).t, 7);
    MPointArray points;
    mesh.getPoints(points);
    for (unsigned int i = 0; i < points.length(); ++i)
        points[i].y = 2;
    mesh.setPoints(points);
    EXPECT_FLOAT_EQ(closest(mesh, MFloatPoint(0.5F, 7, 0), MFloatVector(0, -1, 0)).t, 5);
}

TEST_F(MeshRaysTest, TheNearestPointIsToldWithItsFace)
{
    addMesh("cube", engine::makeCube({}));
    MFnMesh mesh(path("cubeShape"), nullptr);
    MPoint nearest;
    int face = -1;
    EXPECT_EQ(mesh.getClosestPoint(MPoint(0.1, 4, -0.2), nearest, MSpace::kObject, &face), MS::kSuccess);
    EXPECT_THAT(xyz(nearest), ElementsAre(DoubleNear(0.1, 1e-12), 0.5, DoubleNear(-0.2, 1e-12)));
    EXPECT_EQ(face, 1);
    EXPECT_EQ(mesh.getClosestPoint(MPoint(2, 3, 4), nearest), MS::kSuccess);
    EXPECT_THAT(xyz(nearest), ElementsAre(0.5, 0.5, 0.5)) << "a corner";
}

TEST_F(MeshRaysTest, NearestIsNearestInTheSpaceThatIsAskedFor)
{
    addMesh("cube", engine::makeCube({}));
    set("cube.scale", {10, 1, 1});
    MFnMesh mesh(path("cubeShape"), nullptr);
    MPoint nearest;
    // In the world the top is 0.5 away, the side 1; in the cube's own space it would be 0.1 to the side.
    EXPECT_EQ(mesh.getClosestPoint(MPoint(4, 1, 0), nearest, MSpace::kWorld), MS::kSuccess);
    EXPECT_THAT(xyz(nearest), ElementsAre(DoubleNear(4, 1e-9), 0.5, 0));
    EXPECT_EQ(mesh.getClosestPoint(MPoint(0.4, 0, 0), nearest), MS::kSuccess);
    EXPECT_DOUBLE_EQ(nearest.x, 0.5);
}

TEST_F(MeshRaysTest, TheNormalAtTheNearestPointIsTheMeanOfItsCorners)
{
    addMesh("cube", engine::makeCube({}));
    addMesh("ball", engine::makeSphere({2, 40, 40}));
    MFnMesh cube(path("cubeShape"), nullptr);
    MVector normal;
    int face = -1;
    EXPECT_EQ(cube.getClosestNormal(MPoint(4, 0.1, 0.2), normal, MSpace::kObject, &face), MS::kSuccess);
    EXPECT_THAT(xyz(normal), ElementsAre(1, 0, 0)) << "edges of a cube are hard";
    EXPECT_EQ(face, 4);
    MFnMesh ball(path("ballShape"), nullptr);
    std::mt19937 random(9);
    std::uniform_real_distribution<double> number(-5, 5);
    for (int round = 0; round < 50; ++round) {
        const MPoint from(number(random), number(random), number(random));
        MPoint nearest;
        EXPECT_EQ(ball.getClosestPointAndNormal(from, nearest, normal), MS::kSuccess);
        EXPECT_NEAR(normal.length(), 1, 1e-9);
        EXPECT_GT(normal * MVector(nearest).normal(), std::cos(0.01)) << "away from the middle";
    }
}

TEST_F(MeshRaysTest, WithoutFacesNothingIsNearest)
{
    const engine::Ref<engine::MeshData> points(new engine::MeshData);
    points->points.resize(3);
    addMesh("points", points);
    MFnMesh mesh(path("pointsShape"), nullptr);
    MPoint nearest(1, 2, 3);
    EXPECT_EQ(mesh.getClosestPoint(MPoint(), nearest), MS::kFailure);
    EXPECT_THAT(xyz(nearest), ElementsAre(1, 2, 3));
    EXPECT_FALSE(closest(mesh, MFloatPoint(0, 0, 0), MFloatVector(1, 0, 0)).isHit);
}

} // namespace
} // namespace tvxhost::api::test
