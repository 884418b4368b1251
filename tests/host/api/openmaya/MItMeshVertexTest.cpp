// MItMeshVertex: going through the vertices of a mesh.
#include "../meshFixture.h"

#include <maya/MItMeshVertex.h>
#include <maya/MVectorArray.h>

namespace tvxhost::api::test {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;

class MItMeshVertexTest : public MeshFixture
{
protected:
    static void goTo(MItMeshVertex& vertices, int vertex)
    {
        int previous = 0;
        EXPECT_EQ(vertices.setIndex(vertex, previous), MS::kSuccess);
    }
};

TEST_F(MItMeshVertexTest, VerticesComeByAscendingNumber)
{
    addQuad();
    std::vector<int> all;
    MItMeshVertex vertices(path("quadShape"));
    EXPECT_EQ(vertices.count(), 4);
    for (; !vertices.isDone(); vertices.next())
        all.push_back(vertices.index());
    EXPECT_THAT(all, ElementsAre(0, 1, 2, 3));
    EXPECT_EQ(vertices.next(), MS::kFailure);
    EXPECT_EQ(vertices.reset(), MS::kSuccess);
    EXPECT_EQ(vertices.index(), 0);
}

TEST_F(MItMeshVertexTest, PositionsAreThoseOfTheSpace)
{
    addQuad();
    set("quad.translate", {0, 4, 0});
    MItMeshVertex vertices(path("quad"));
    goTo(vertices, 1);
    EXPECT_THAT(xyz(vertices.position()), ElementsAre(1, 0, 1));
    EXPECT_THAT(xyz(vertices.position(MSpace::kWorld)), ElementsAre(1, 4, 1));
    MObject shape = object("quadShape");
    MStatus status;
    MItMeshVertex nowhere(shape, &status);
    EXPECT_EQ(status, MS::kSuccess);
    nowhere.position(MSpace::kWorld, &status);
    EXPECT_EQ(status, MS::kFailure);
}

TEST_F(MItMeshVertexTest, TheWorldIsAskedAgainAfterAReset)
{
    addQuad();
    MItMeshVertex vertices(path("quadShape"));
    EXPECT_THAT(xyz(vertices.position(MSpace::kWorld)), ElementsAre(-1, 0, 1));
    set("quad.translate", {0, 4, 0});
    vertices.reset();
    EXPECT_THAT(xyz(vertices.position(MSpace::kWorld)), ElementsAre(-1, 4, 1));
}

TEST_F(MItMeshVertexTest, VerticesCanBeMoved)
{
    addQuad();
    set("quad.scale", {2, 2, 2});
    MItMeshVertex vertices(path("quadShape"));
    EXPECT_EQ(vertices.setPosition(MPoint(3, 4, 5)), MS::kSuccess);
    EXPECT_THAT(xyz(vertices.position()), ElementsAre(3, 4, 5));
    EXPECT_EQ(vertices.translateBy(MVector(1, 0, 0)), MS::kSuccess);
    EXPECT_THAT(xyz(vertices.position()), ElementsAre(4, 4, 5));
    EXPECT_EQ(vertices.translateBy(MVector(2, 0, 0), MSpace::kWorld), MS::kSuccess);
    EXPECT_THAT(xyz(vertices.position()), ElementsAre(5, 4, 5));
    EXPECT_EQ(vertices.setPosition(MPoint(0, 0, 8), MSpace::kWorld), MS::kSuccess);
    EXPECT_THAT(xyz(vertices.position()), ElementsAre(0, 0, 4));
}

TEST_F(MItMeshVertexTest, NeighboursComeByAscendingNumber)
{
    addGrid();
    MItMeshVertex vertices(path("gridShape"));
    goTo(vertices, 5);
    MIntArray found;
    EXPECT_EQ(vertices.getConnectedFaces(found), MS::kSuccess);
    EXPECT_THAT(numbers(found), ElementsAre(0, 1, 3, 4));
    EXPECT_EQ(vertices.getConnectedEdges(found), MS::kSuccess);
    EXPECT_THAT(numbers(found), ElementsAre(3, 7, 9, 10));
    EXPECT_EQ(vertices.getConnectedVertices(found), MS::kSuccess);
    EXPECT_THAT(numbers(found), ElementsAre(1, 4, 6, 9));
    int count = 0;
    EXPECT_EQ(vertices.numConnectedFaces(count), MS::kSuccess);
    EXPECT_EQ(count, 4);
    EXPECT_EQ(vertices.numConnectedEdges(count), MS::kSuccess);
    EXPECT_EQ(count, 4);
    EXPECT_TRUE(vertices.connectedToFace(3));
    EXPECT_FALSE(vertices.connectedToFace(2));
    EXPECT_TRUE(vertices.connectedToEdge(9));
    MStatus status;
    EXPECT_FALSE(vertices.connectedToEdge(99, &status));
    EXPECT_EQ(status, MS::kInvalidParameter);
    int opposite = -1;
    EXPECT_EQ(vertices.getOppositeVertex(opposite, 9), MS::kSuccess);
    EXPECT_EQ(opposite, 6);
    EXPECT_EQ(vertices.getOppositeVertex(opposite, 0), MS::kInvalidParameter);
}

TEST_F(MItMeshVertexTest, AVertexIsOnTheBoundaryWithOneOfItsEdges)
{
    addGrid();
    MItMeshVertex vertices(path("gridShape"));
    EXPECT_TRUE(vertices.onBoundary());
    goTo(vertices, 5);
    EXPECT_FALSE(vertices.onBoundary());
}

TEST_F(MItMeshVertexTest, NormalsAreThoseOfTheFaces)
{
    addMesh("cube", engine::makeCube({}));
    MItMeshVertex vertices(path("cubeShape"));
    goTo(vertices, 3);
    MVector normal;
    EXPECT_EQ(vertices.getNormal(normal), MS::kSuccess);
    const double diagonal = 0.57735026918962573;
    EXPECT_THAT(xyz(normal), ElementsAre(DoubleNear(diagonal, 1e-6), DoubleNear(diagonal, 1e-6),
                                         DoubleNear(diagonal, 1e-6)));
    EXPECT_EQ(vertices.getNormal(normal, 1), MS::kSuccess);
    EXPECT_THAT(xyz(normal), ElementsAre(0, 1, 0)) << "edges of a cube are hard";
    EXPECT_EQ(vertices.getNormal(normal, 3), MS::kInvalidParameter);
    MVectorArray normals;
    EXPECT_EQ(vertices.getNormals(normals), MS::kSuccess);
    ASSERT_EQ(normals.length(), 3u);
    EXPECT_THAT(xyz(normals[0]), ElementsAre(0, 0, 1));
    EXPECT_THAT(xyz(normals[2]), ElementsAre(1, 0, 0));
    MIntArray indices;
    EXPECT_EQ(vertices.getNormalIndices(indices), MS::kSuccess);
    EXPECT_EQ(indices.length(), 3u);
}

} // namespace
} // namespace tvxhost::api::test
