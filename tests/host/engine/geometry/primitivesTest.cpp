// Primitives: counts and layout as Maya has them; the expected numbers are those of files that Maya wrote.
#include "engine/geometry/primitives.h"

#include "engine/geometry/meshTopology.h"

#include <gmock/gmock.h>

#include <string>

namespace tvxhost::engine {

namespace {

std::string edgesOf(const MeshData& mesh)
{
    std::string text;
    for (const MeshData::Edge& edge : mesh.edges)
        text += std::to_string(edge.from) + ' ' + std::to_string(edge.to) + ' ' +
                std::to_string(edge.smooth) + ' ';
    return text;
}

std::string facesOf(const MeshData& mesh)
{
    std::string text;
    for (std::size_t face = 0; face < mesh.faces.size(); ++face) {
        text += face == 0 ? "" : "| ";
        for (const std::int32_t corner : mesh.faces.outline(face))
            text += std::to_string(corner) + ' ';
    }
    return text;
}

/// Whether each face's corners are a closed way.
bool areFacesClosed(const MeshData& mesh)
{
    for (std::size_t face = 0; face < mesh.faces.size(); ++face) {
        const IndexSpan corners = mesh.faces.outline(face);
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const std::int32_t next = corners[(i + 1) % corners.size()];
            if (mesh.startOf(-corners[i] - 1) != mesh.startOf(next))
                return false;
        }
    }
    return true;
}

/// Six times the volume that the faces enclose: positive when they look outwards.
double volumeOf(const MeshData& mesh)
{
    double volume = 0;
    for (std::size_t face = 0; face < mesh.faces.size(); ++face) {
        const IndexSpan corners = mesh.faces.outline(face);
        const auto point = [&](std::size_t i) {
            return Vec3d(mesh.points[static_cast<std::size_t>(mesh.startOf(corners[i]))]);
        };
        for (std::size_t i = 2; i < corners.size(); ++i)
            volume += point(0).dot(point(i - 1).cross(point(i)));
    }
    return volume;
}

struct Expected
{
    const char* name;
    Ref<MeshData> mesh;
    std::size_t vertices, edges, faces, borders;
};

TEST(PrimitivesTest, HaveMayasCounts)
{
    const Expected expected[] = {
        {"plane", makePlane({}), 121, 220, 100, 40},
        {"plane 3 by 3", makePlane({1, 1, 3, 3}), 16, 24, 9, 12},
        {"one quad", makePlane({1, 1, 1, 1}), 4, 4, 1, 4},
        {"cube", makeCube({}), 8, 12, 6, 0},
        {"cube 2 by 2 by 2", makeCube({1, 1, 1, 2, 2, 2}), 26, 48, 24, 0},
        {"cube 3 by 3 by 3", makeCube({1, 1, 1, 3, 3, 3}), 56, 108, 54, 0},
        {"sphere", makeSphere({}), 382, 780, 400, 0},
        {"cylinder", makeCylinder({1, 2, 20, 1, 1}), 42, 100, 60, 0},
        {"cylinder without middles", makeCylinder({}), 40, 60, 22, 0},
        {"cone", makeCone({}), 21, 40, 21, 0},
        {"cone with a middle", makeCone({1, 1, 20, 1, 1}), 22, 60, 40, 0},
        {"torus", makeTorus({}), 400, 800, 400, 0},
    };
    for (const Expected& row : expected) {
        EXPECT_EQ(row.mesh->points.size(), row.vertices) << row.name;
        EXPECT_EQ(row.mesh->edges.size(), row.edges) << row.name;
        EXPECT_EQ(row.mesh->faces.size(), row.faces) << row.name;
        EXPECT_EQ(row.mesh->topology().borderCount(), row.borders) << row.name;
        EXPECT_TRUE(isSound(*row.mesh)) << row.name;
        EXPECT_TRUE(areFacesClosed(*row.mesh)) << row.name;
    }
}

TEST(PrimitivesTest, BodiesLookOutwards)
{
    EXPECT_DOUBLE_EQ(volumeOf(*makeCube({2, 3, 4, 1, 1, 1})), 6 * 24.0);
    EXPECT_DOUBLE_EQ(volumeOf(*makeCube({1, 1, 1, 4, 2, 5})), 6.0);
    const double pi = 3.14159265358979323846;
    EXPECT_NEAR(volumeOf(*makeSphere({1, 200, 200})), 8 * pi, 0.02);
    EXPECT_NEAR(volumeOf(*makeCylinder({1, 2, 400, 3, 3})), 12 * pi, 0.02);
    EXPECT_NEAR(volumeOf(*makeCylinder({1, 2, 400, 1, 0})), 12 * pi, 0.02);
    EXPECT_NEAR(volumeOf(*makeCone({1, 2, 400, 3, 2})), 4 * pi, 0.02);
    EXPECT_NEAR(volumeOf(*makeTorus({1, 0.5, 0, 400, 400})), 6 * pi * pi * 0.5, 0.02);
}

TEST(PrimitivesTest, ThePlaneIsLaidOutRowByRowFromTheFront)
{
    const Ref<MeshData> plane = makePlane({1, 1, 3, 3});
    EXPECT_EQ(plane->points[0], Vec3f(-0.5F, 0, 0.5F));
    EXPECT_EQ(plane->points[3], Vec3f(0.5F, 0, 0.5F));
    EXPECT_EQ(plane->points[12], Vec3f(-0.5F, 0, -0.5F));
    EXPECT_EQ(edgesOf(*plane),
              "0 1 0 0 4 0 1 2 0 1 5 1 2 3 0 2 6 1 3 7 0 4 5 1 4 8 0 5 6 1 5 9 1 6 7 1 6 10 1 "
              "7 11 0 8 9 1 8 12 0 9 10 1 9 13 1 10 11 1 10 14 1 11 15 0 12 13 0 13 14 0 14 15 0 ");
    EXPECT_EQ(facesOf(*plane), "0 3 -8 -2 | 2 5 -10 -4 | 4 6 -12 -6 | 7 10 -15 -9 | 9 12 -17 -11 | "
                               "11 13 -19 -13 | 14 17 -22 -16 | 16 19 -23 -18 | 18 20 -24 -20 ");
}

TEST(PrimitivesTest, TheCubeIsABeltWithTwoSides)
{
    const Ref<MeshData> cube = makeCube({});
    EXPECT_EQ(edgesOf(*cube), "0 1 0 2 3 0 4 5 0 6 7 0 0 2 0 1 3 0 2 4 0 3 5 0 4 6 0 5 7 0 6 0 0 7 1 0 ");
    EXPECT_EQ(facesOf(*cube), "0 5 -2 -5 | 1 7 -3 -7 | 2 9 -4 -9 | 3 11 -1 -11 | -12 -10 -8 -6 | 10 4 6 8 ");
}

TEST(PrimitivesTest, TheSidesOfADividedCubeFollowItsBelt)
{
    const Ref<MeshData> cube = makeCube({1, 1, 1, 3, 3, 3});
    EXPECT_EQ(cube->points[47], Vec3f(0.5F, -0.5F, static_cast<float>(0.5 - 1 / 3.0)));
    EXPECT_FLOAT_EQ(cube->points[49].z, static_cast<float>(1 / 6.0));
    EXPECT_FLOAT_EQ(cube->points[50].y, static_cast<float>(1 / 6.0));
    EXPECT_EQ(
        edgesOf(*cube),
        "0 1 0 1 2 0 2 3 0 4 5 1 5 6 1 6 7 1 8 9 1 9 10 1 10 11 1 12 13 0 13 14 0 14 15 0 16 17 1 17 18 1 "
        "18 19 1 20 21 1 21 22 1 22 23 1 24 25 0 25 26 0 26 27 0 28 29 1 29 30 1 30 31 1 32 33 1 33 34 1 "
        "34 35 1 36 37 0 37 38 0 38 39 0 40 41 1 41 42 1 42 43 1 44 45 1 45 46 1 46 47 1 0 4 0 1 5 1 2 6 1 "
        "3 7 0 4 8 0 5 9 1 6 10 1 7 11 0 8 12 0 9 13 1 10 14 1 11 15 0 12 16 0 13 17 1 14 18 1 15 19 0 "
        "16 20 0 17 21 1 18 22 1 19 23 0 20 24 0 21 25 1 22 26 1 23 27 0 24 28 0 25 29 1 26 30 1 27 31 0 "
        "28 32 0 29 33 1 30 34 1 31 35 0 32 36 0 33 37 1 34 38 1 35 39 0 36 40 0 37 41 1 38 42 1 39 43 0 "
        "40 44 0 41 45 1 42 46 1 43 47 0 44 0 0 45 1 1 46 2 1 47 3 0 35 48 1 48 49 1 49 7 1 31 50 1 50 51 1 "
        "51 11 1 43 48 1 47 49 1 48 50 1 49 51 1 50 23 1 51 19 1 32 52 1 52 53 1 53 4 1 28 54 1 54 55 1 "
        "55 8 1 40 52 1 44 53 1 52 54 1 53 55 1 54 20 1 55 16 1 ");
    const std::string faces = facesOf(*cube);
    const std::string sides =
        "-76 -72 84 -91 | -80 90 85 -92 | -84 91 86 -40 | -85 -68 87 -93 | -86 92 88 -94 | "
        "-87 93 89 -44 | -88 -64 -60 -95 | -89 94 -56 -96 | -90 95 -52 -48 | "
        "72 102 -97 68 | 76 103 -98 -103 | 80 36 -99 -104 | 96 104 -100 64 | "
        "97 105 -101 -105 | 98 40 -102 -106 | 99 106 56 60 | 100 107 52 -107 | "
        "101 44 48 -108 ";
    ASSERT_GT(faces.size(), sides.size());
    EXPECT_EQ(faces.substr(faces.size() - sides.size()), sides);
    EXPECT_EQ(faces.substr(0, 36), "0 37 -4 -37 | 1 38 -5 -38 | 2 39 -6 ");
}

TEST(PrimitivesTest, TheSphereStandsOnItsPole)
{
    const Ref<MeshData> sphere = makeSphere({});
    EXPECT_NEAR(sphere->points[0].x, 0.14877812, 1e-6);
    EXPECT_NEAR(sphere->points[0].y, -0.98768836, 1e-6);
    EXPECT_NEAR(sphere->points[0].z, -0.048340943, 1e-6);
    EXPECT_EQ(sphere->points[380], Vec3f(0, -1, 0));
    EXPECT_EQ(sphere->points[381], Vec3f(0, 1, 0));
    const auto edge = [&](std::size_t i) {
        return std::to_string(sphere->edges[i].from) + ' ' + std::to_string(sphere->edges[i].to);
    };
    EXPECT_EQ(edge(19), "19 0");
    EXPECT_EQ(edge(380), "0 20");
    EXPECT_EQ(edge(740), "380 0");
    EXPECT_EQ(edge(760), "360 381");
    EXPECT_THAT(sphere->faces.outline(0), testing::ElementsAre(0, 381, -21, -381));
    EXPECT_THAT(sphere->faces.outline(19), testing::ElementsAre(19, 380, -40, -400));
    EXPECT_THAT(sphere->faces.outline(360), testing::ElementsAre(-1, -741, 741));
    EXPECT_THAT(sphere->faces.outline(379), testing::ElementsAre(-20, -760, 740));
    EXPECT_THAT(sphere->faces.outline(399), testing::ElementsAre(379, 760, -780));
}

TEST(PrimitivesTest, TheCylinderHasItsCapsLast)
{
    const Ref<MeshData> cylinder = makeCylinder({1, 2, 4, 1, 1});
    EXPECT_EQ(edgesOf(*cylinder), "0 1 0 1 2 0 2 3 0 3 0 0 4 5 0 5 6 0 6 7 0 7 4 0 0 4 1 1 5 1 2 6 1 3 7 1 "
                                  "8 0 1 8 1 1 8 2 1 8 3 1 4 9 1 5 9 1 6 9 1 7 9 1 ");
    EXPECT_EQ(facesOf(*cylinder),
              "0 9 -5 -9 | 1 10 -6 -10 | 2 11 -7 -11 | 3 8 -8 -12 | -1 -13 13 | -2 -14 14 | "
              "-3 -15 15 | -4 -16 12 | 4 17 -17 | 5 18 -18 | 6 19 -19 | 7 16 -20 ");
}

TEST(PrimitivesTest, TheConesCapIsAPolygonOrAFan)
{
    EXPECT_EQ(facesOf(*makeCone({1, 2, 4, 1, 0})), "-4 -3 -2 -1 | 0 5 -5 | 1 6 -6 | 2 7 -7 | 3 4 -8 ");
    EXPECT_EQ(facesOf(*makeCone({1, 2, 4, 1, 1})),
              "-1 -5 5 | -2 -6 6 | -3 -7 7 | -4 -8 4 | 0 9 -9 | 1 10 -10 | 2 11 -11 | 3 8 -12 ");
}

TEST(PrimitivesTest, TheTorusBeginsInside)
{
    const Ref<MeshData> torus = makeTorus({});
    EXPECT_NEAR(torus->points[0].x, 0.47552857, 1e-6);
    EXPECT_NEAR(torus->points[0].z, -0.15450859, 1e-6);
    EXPECT_NEAR(torus->points[20].y, 0.1545085, 1e-6);
    EXPECT_NEAR(torus->points[20].x, 0.4988026, 1e-6);
    EXPECT_THAT(torus->faces.outline(0), testing::ElementsAre(-1, 400, 20, -402));
    EXPECT_THAT(torus->faces.outline(19), testing::ElementsAre(-20, 419, 39, -401));
}

TEST(PrimitivesTest, SubdivisionsAreRaisedToTheLeastThatMakesABody)
{
    EXPECT_EQ(makePlane({1, 1, 0, -3})->faces.size(), 1u);
    EXPECT_EQ(makeCube({1, 1, 1, 0, 0, 0})->faces.size(), 6u);
    EXPECT_EQ(makeCylinder({1, 1, 0, 0, -2})->faces.size(), 5u);
    EXPECT_EQ(makeTorus({1, 0.5, 0, 1, 1})->faces.size(), 9u);
}

TEST(PrimitivesTest, APrimitiveCanStandAlongAnyAxis)
{
    const Ref<MeshData> cone = makeCone({1, 2, 4, 1, 0});
    turnToAxis(*cone, {3, 0, 0});
    EXPECT_NEAR(cone->points[4].x, 1, 1e-6);
    EXPECT_NEAR(cone->points[4].y, 0, 1e-6);
    const Vec3f before = cone->points[4];
    turnToAxis(*cone, {0, 0, 0});
    EXPECT_EQ(cone->points[4], before);
}

} // namespace

} // namespace tvxhost::engine
