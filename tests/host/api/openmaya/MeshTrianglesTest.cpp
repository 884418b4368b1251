// MFnMesh and MItMeshPolygon: the triangles of faces.
#include "../meshFixture.h"

#include <maya/MFnMesh.h>
#include <maya/MItMeshPolygon.h>
#include <maya/MPointArray.h>

namespace tvxhost::api::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

class MeshTrianglesTest : public MeshFixture
{
protected:
    /// A triangle, and a square with a square hole.
    void addHoled()
    {
        const engine::Ref<engine::MeshData> mesh(new engine::MeshData);
        for (const auto& [x, z] : {std::pair(0, 0), {0, 9}, {9, 9}, {9, 0}, {2, 2}, {4, 2}, {4, 4}, {2, 4}})
            mesh->points.emplace_back(static_cast<float>(x), 0.0F, static_cast<float>(z));
        mesh->edges = {{0, 1, 1}, {1, 2, 1}, {2, 3, 1}, {3, 0, 1}, {4, 5, 1},
                       {5, 6, 1}, {6, 7, 1}, {7, 4, 1}, {2, 0, 1}};
        mesh->faces.add({{0, 1, 8}, {}});
        mesh->faces.add({{0, 1, 2, 3}, {{4, 5, 6, 7}}});
        addMesh("holed", mesh);
    }
};

double areaOf(const MPointArray& points, unsigned int triangle)
{
    const MVector one = points[3 * triangle + 1] - points[3 * triangle];
    const MVector other = points[3 * triangle + 2] - points[3 * triangle];
    return (one ^ other).length() / 2;
}

TEST_F(MeshTrianglesTest, QuadsAreSplitFromTheirFirstCorner)
{
    addMesh("plane", engine::makePlane({2, 1, 2, 1}));
    // 0-1-2 in front of 3-4-5; the faces are 0 1 4 3 and 1 2 5 4.
    MFnMesh mesh(path("planeShape"), nullptr);
    MIntArray counts, found;
    EXPECT_EQ(mesh.getTriangles(counts, found), MS::kSuccess);
    EXPECT_THAT(numbers(counts), ElementsAre(2, 2));
    EXPECT_THAT(numbers(found), ElementsAre(0, 1, 4, 0, 4, 3, 1, 2, 5, 1, 5, 4));
    EXPECT_EQ(mesh.getTriangleOffsets(counts, found), MS::kSuccess);
    EXPECT_THAT(numbers(counts), ElementsAre(2, 2));
    EXPECT_THAT(numbers(found), ElementsAre(0, 1, 2, 0, 2, 3, 4, 5, 6, 4, 6, 7));
    int vertices[3] = {-1, -1, -1};
    EXPECT_EQ(mesh.getPolygonTriangleVertices(1, 1, vertices), MS::kSuccess);
    EXPECT_THAT(vertices, ElementsAre(1, 5, 4));
    EXPECT_EQ(mesh.getPolygonTriangleVertices(1, 2, vertices), MS::kInvalidParameter);
    EXPECT_EQ(mesh.getPolygonTriangleVertices(1, -1, vertices), MS::kInvalidParameter);
    EXPECT_EQ(mesh.getPolygonTriangleVertices(2, 0, vertices), MS::kInvalidParameter);
    EXPECT_EQ(MFnMesh().getTriangles(counts, found), MS::kInvalidParameter);
}

TEST_F(MeshTrianglesTest, OffsetsLeadToTheVerticesInTheListOfAllCorners)
{
    addHoled();
    MFnMesh mesh(path("holedShape"), nullptr);
    MIntArray counts, vertices, offsets, cornerCounts, corners;
    mesh.getTriangles(counts, vertices);
    mesh.getTriangleOffsets(counts, offsets);
    mesh.getVertices(cornerCounts, corners);
    EXPECT_THAT(numbers(counts), ElementsAre(1, 8)) << "eight corners, and two for the hole, less two";
    ASSERT_EQ(offsets.length(), 27u);
    std::vector<int> throughOffsets;
    for (unsigned int i = 0; i < offsets.length(); ++i)
        throughOffsets.push_back(corners[static_cast<unsigned int>(offsets[i])]);
    EXPECT_THAT(numbers(vertices), ElementsAreArray(throughOffsets));
}

TEST_F(MeshTrianglesTest, TheTrianglesOfAFaceWithAHoleLeaveItOpen)
{
    addHoled();
    set("holed.scale", {2, 1, 1});
    MItMeshPolygon faces(path("holedShape"));
    int count = 0;
    EXPECT_EQ(faces.numTriangles(count), MS::kSuccess);
    EXPECT_EQ(count, 1);
    faces.next();
    EXPECT_TRUE(faces.hasValidTriangulation());
    EXPECT_EQ(faces.numTriangles(count), MS::kSuccess);
    EXPECT_EQ(count, 8);
    MPointArray points;
    MIntArray vertices;
    EXPECT_EQ(faces.getTriangles(points, vertices), MS::kSuccess);
    ASSERT_EQ(points.length(), 24u);
    double area = 0;
    for (unsigned int i = 0; i < 8; ++i)
        area += areaOf(points, i);
    EXPECT_NEAR(area, 81 - 4, 1e-9);
    EXPECT_EQ(faces.getTriangles(points, vertices, MSpace::kWorld), MS::kSuccess);
    area = 0;
    for (unsigned int i = 0; i < 8; ++i)
        area += areaOf(points, i);
    EXPECT_NEAR(area, 2 * (81 - 4), 1e-9);
}

TEST_F(MeshTrianglesTest, ATriangleIsToldByItsNumberInTheFace)
{
    addQuad();
    MItMeshPolygon faces(path("quadShape"));
    MPointArray points;
    MIntArray vertices;
    EXPECT_EQ(faces.getTriangle(1, points, vertices), MS::kSuccess);
    EXPECT_THAT(numbers(vertices), ElementsAre(0, 3, 2));
    ASSERT_EQ(points.length(), 3u);
    EXPECT_THAT(xyz(points[0]), ElementsAre(-1, 0, 1));
    EXPECT_THAT(xyz(points[1]), ElementsAre(1, 0, -1));
    EXPECT_THAT(xyz(points[2]), ElementsAre(-1, 0, -1));
    EXPECT_EQ(faces.getTriangle(2, points, vertices), MS::kInvalidParameter);
    EXPECT_EQ(faces.getTriangle(-1, points, vertices), MS::kInvalidParameter);
    EXPECT_EQ(points.length(), 3u) << "as it was";
}

TEST_F(MeshTrianglesTest, AFaceThatIsALineHasNoValidTriangles)
{
    addQuad();
    MFnMesh mesh(path("quadShape"), nullptr);
    for (int i = 0; i < 4; ++i)
        mesh.setPoint(i, MPoint(i, 0, 0));
    MItMeshPolygon faces(path("quadShape"));
    MStatus status;
    EXPECT_FALSE(faces.hasValidTriangulation(&status));
    EXPECT_EQ(status, MS::kSuccess);
    faces.next();
    EXPECT_FALSE(faces.hasValidTriangulation(&status));
    EXPECT_EQ(status, MS::kFailure) << "there is no face any more";
}

} // namespace
} // namespace tvxhost::api::test
