// MItMeshPolygon: going through the faces of a mesh.
#include "../meshFixture.h"

#include <maya/MItMeshPolygon.h>
#include <maya/MPointArray.h>
#include <maya/MVectorArray.h>

namespace tvxhost::api::test {
namespace {

using testing::ElementsAre;

class MItMeshPolygonTest : public MeshFixture
{
protected:
    static void goTo(MItMeshPolygon& faces, int face)
    {
        int previous = 0;
        EXPECT_EQ(faces.setIndex(face, previous), MS::kSuccess);
    }
    using List = MStatus (MItMeshPolygon::*)(MIntArray&);
    static std::vector<int> list(MItMeshPolygon& faces, List get)
    {
        MIntArray found;
        EXPECT_EQ((faces.*get)(found), MS::kSuccess);
        return numbers(found);
    }
};

TEST_F(MItMeshPolygonTest, FacesComeByAscendingNumber)
{
    addGrid();
    std::vector<unsigned int> all;
    MItMeshPolygon faces(path("gridShape"));
    EXPECT_EQ(faces.count(), 6u);
    for (; !faces.isDone(); faces.next())
        all.push_back(faces.index());
    EXPECT_THAT(all, ElementsAre(0u, 1u, 2u, 3u, 4u, 5u));
}

TEST_F(MItMeshPolygonTest, AFaceHasCorners)
{
    addGrid();
    set("grid.translate", {0, 1, 0});
    MItMeshPolygon faces(path("gridShape"));
    goTo(faces, 4);
    EXPECT_EQ(faces.polygonVertexCount(), 4u);
    EXPECT_THAT(list(faces, &MItMeshPolygon::getVertices), ElementsAre(5, 6, 10, 9));
    EXPECT_THAT(list(faces, &MItMeshPolygon::getEdges), ElementsAre(9, 12, 15, 10));
    EXPECT_EQ(faces.vertexIndex(2), 10u);
    EXPECT_THAT(xyz(faces.point(0)), ElementsAre(-0.5, 0, 0));
    EXPECT_THAT(xyz(faces.center(MSpace::kWorld)), ElementsAre(0, 1, -0.5));
    MPointArray points;
    MStatus status;
    faces.getPoints(points, MSpace::kObject, &status);
    EXPECT_EQ(status, MS::kSuccess);
    ASSERT_EQ(points.length(), 4u);
    EXPECT_THAT(xyz(points[2]), ElementsAre(0.5, 0, -1));
    faces.vertexIndex(4, &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
    faces.point(-1, MSpace::kObject, &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MItMeshPolygonTest, NeighboursShareEdgesOrVertices)
{
    addGrid();
    MItMeshPolygon faces(path("gridShape"));
    EXPECT_THAT(list(faces, &MItMeshPolygon::getConnectedFaces), ElementsAre(1, 3));
    EXPECT_THAT(list(faces, &MItMeshPolygon::getConnectedEdges), ElementsAre(2, 8, 9, 10));
    EXPECT_THAT(list(faces, &MItMeshPolygon::getConnectedVertices), ElementsAre(2, 6, 8, 9));
    EXPECT_TRUE(faces.isConnectedToFace(3));
    EXPECT_FALSE(faces.isConnectedToFace(4));
    EXPECT_TRUE(faces.isConnectedToEdge(8));
    EXPECT_TRUE(faces.isConnectedToVertex(9));
    EXPECT_FALSE(faces.isConnectedToVertex(0));
    int count = 0;
    EXPECT_EQ(faces.numConnectedFaces(count), MS::kSuccess);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(faces.numConnectedEdges(count), MS::kSuccess);
    EXPECT_EQ(count, 4);
    EXPECT_TRUE(faces.onBoundary());
    MStatus status;
    EXPECT_FALSE(faces.isConnectedToFace(6, &status));
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MItMeshPolygonTest, NormalsAndAreasFollowTheSpace)
{
    addQuad();
    set("quad.rotate", {0, 0, 1.5707963267948966});
    set("quad.scale", {1, 1, 3});
    MItMeshPolygon faces(path("quadShape"));
    MVector normal;
    EXPECT_EQ(faces.getNormal(normal), MS::kSuccess);
    EXPECT_THAT(xyz(normal), ElementsAre(0, 1, 0));
    EXPECT_EQ(faces.getNormal(normal, MSpace::kWorld), MS::kSuccess);
    EXPECT_NEAR(normal.x, -1, 1e-9);
    double area = 0;
    EXPECT_EQ(faces.getArea(area), MS::kSuccess);
    EXPECT_DOUBLE_EQ(area, 4);
    EXPECT_EQ(faces.getArea(area, MSpace::kWorld), MS::kSuccess);
    EXPECT_NEAR(area, 12, 1e-9);
    EXPECT_FALSE(faces.zeroArea());
}

TEST_F(MItMeshPolygonTest, CornersHaveNormalsWithNumbers)
{
    addMesh("cube", engine::makeCube({}));
    MItMeshPolygon faces(path("cubeShape"));
    goTo(faces, 1);
    MVector normal;
    EXPECT_EQ(faces.getNormal(2, normal), MS::kSuccess);
    EXPECT_THAT(xyz(normal), ElementsAre(0, 1, 0));
    EXPECT_EQ(faces.normalIndex(0), 4u) << "the four of the first face come before";
    EXPECT_EQ(faces.getNormal(4, normal), MS::kInvalidParameter);
    MVectorArray normals;
    EXPECT_EQ(faces.getNormals(normals), MS::kSuccess);
    EXPECT_EQ(normals.length(), 4u);
}

TEST_F(MItMeshPolygonTest, CornersCanBeMoved)
{
    addQuad();
    MItMeshPolygon faces(path("quadShape"));
    EXPECT_EQ(faces.setPoint(MPoint(1, 5, 1), 1), MS::kSuccess);
    EXPECT_THAT(xyz(faces.point(1)), ElementsAre(1, 5, 1));
    EXPECT_FALSE(faces.isPlanar());
    MPointArray points(4, MPoint(1, 2, 3));
    EXPECT_EQ(faces.setPoints(points), MS::kSuccess);
    EXPECT_TRUE(faces.zeroArea());
    MPointArray three(3, MPoint());
    EXPECT_EQ(faces.setPoints(three), MS::kInvalidParameter);
}

TEST_F(MItMeshPolygonTest, AFaceIsConvexFlatOrHoled)
{
    // An arrow head, and a square with a square hole.
    const engine::Ref<engine::MeshData> mesh(new engine::MeshData);
    for (const auto& [x, z] : {std::pair(0, 0),
                               {2, 1},
                               {0, 2},
                               {1, 1},
                               {10, 0},
                               {10, 9},
                               {19, 9},
                               {19, 0},
                               {12, 2},
                               {14, 2},
                               {14, 4},
                               {12, 4}})
        mesh->points.emplace_back(static_cast<float>(x), 0.0F, static_cast<float>(z));
    mesh->edges = {{0, 1, 0}, {1, 2, 0}, {2, 3, 0}, {3, 0, 0},  {4, 5, 0},   {5, 6, 0},
                   {6, 7, 0}, {7, 4, 0}, {8, 9, 0}, {9, 10, 0}, {10, 11, 0}, {11, 8, 0}};
    mesh->faces.add({{-4, -3, -2, -1}, {}});
    mesh->faces.add({{4, 5, 6, 7}, {{8, 9, 10, 11}}});
    addMesh("faces", mesh);
    MItMeshPolygon faces(path("facesShape"));
    EXPECT_FALSE(faces.isConvex());
    EXPECT_TRUE(faces.isPlanar());
    EXPECT_FALSE(faces.isHoled());
    faces.next();
    EXPECT_TRUE(faces.isHoled());
    EXPECT_FALSE(faces.isConvex());
    EXPECT_EQ(faces.polygonVertexCount(), 8u);
    double area = 0;
    EXPECT_EQ(faces.getArea(area), MS::kSuccess);
    EXPECT_DOUBLE_EQ(area, 77);
    EXPECT_FALSE(faces.isLamina());
}

TEST_F(MItMeshPolygonTest, AFaceIsStarlikeWhenItsMiddleSeesTheOutline)
{
    const auto isStarlike = [this](const std::string& name, const std::vector<std::pair<int, int>>& places) {
        const engine::Ref<engine::MeshData> mesh(new engine::MeshData);
        engine::MeshFace face;
        const auto count = static_cast<int>(places.size());
        for (int i = 0; i < count; ++i) {
            const auto& [x, z] = places[static_cast<std::size_t>(i)];
            mesh->points.emplace_back(static_cast<float>(x), 0.0F, static_cast<float>(z));
            mesh->edges.push_back({i, (i + 1) % count, 1});
            face.edges.push_back(i);
        }
        mesh->faces.add(face);
        addMesh(name, mesh);
        MItMeshPolygon faces(path(name + "Shape"));
        MStatus status;
        const bool answer = faces.isStarlike(&status);
        EXPECT_EQ(status, MS::kSuccess);
        return answer;
    };
    EXPECT_TRUE(isStarlike("square", {{0, 0}, {2, 0}, {2, 2}, {0, 2}}));
    EXPECT_TRUE(isStarlike("dent", {{0, 0}, {4, 0}, {4, 4}, {2, 3}, {0, 4}}));
    EXPECT_FALSE(isStarlike("dart", {{0, 0}, {2, 1}, {0, 2}, {1, 1}})) << "the middle is at 0.75, 1";
}

TEST_F(MItMeshPolygonTest, TwoFacesOnTheSameEdgesAreLaminae)
{
    const engine::Ref<engine::MeshData> mesh = engine::makePlane({1, 1, 1, 1});
    mesh->faces.add({{1, 3, -3, -1}, {}});
    addMesh("twins", mesh);
    MItMeshPolygon faces(path("twinsShape"));
    EXPECT_TRUE(faces.isLamina());
    EXPECT_FALSE(faces.onBoundary());
}

} // namespace
} // namespace tvxhost::api::test
