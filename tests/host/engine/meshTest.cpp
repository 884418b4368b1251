// Meshes: geometry from the attributes of a shape.
#include "engine/mesh.h"

#include "fixtures.h"

#include <gmock/gmock.h>

namespace tvxhost::engine {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

} // namespace

class MeshTest : public SceneTest
{
protected:
    MeshTest() : shape(*make("mesh", "planeShape").asDag()) {}

    /// One quad as scene files have it.
    void makeQuad()
    {
        const double points[] = {-1, 0, 1, 1, 0, 1, -1, 0, -1, 1, 0, -1};
        const double edges[] = {0, 1, 0, 0, 2, 0, 1, 3, 1, 2, 3, 0};
        EXPECT_TRUE(writeElements(plug("planeShape.vt"), 0, points, 12));
        EXPECT_TRUE(writeElements(plug("planeShape.ed"), 0, edges, 12));
        EXPECT_TRUE(
            writeData(plug("planeShape.fc[0]"), KeptData("polyFaces", "f 4 0 2 -4 -2 mu 0 4 0 1 3 2")));
    }

    DagNode& shape;
};

TEST_F(MeshTest, AMeshWithoutPointsHasNoGeometry)
{
    EXPECT_EQ(meshOf(shape), nullptr);
    EXPECT_EQ(meshOf(makeTransform("t")), nullptr);
}

TEST_F(MeshTest, PointsEdgesAndFacesComeFromTheAttributes)
{
    makeQuad();
    const MeshData* mesh = meshOf(shape);
    ASSERT_NE(mesh, nullptr);
    EXPECT_THAT(mesh->points,
                ElementsAre(Vec3f(-1, 0, 1), Vec3f(1, 0, 1), Vec3f(-1, 0, -1), Vec3f(1, 0, -1)));
    ASSERT_EQ(mesh->edges.size(), 4u);
    EXPECT_EQ(mesh->edges[2].from, 1);
    EXPECT_EQ(mesh->edges[2].to, 3);
    EXPECT_EQ(mesh->edges[2].smooth, 1);
    ASSERT_EQ(mesh->faces.size(), 1u);
    EXPECT_THAT(mesh->faces[0].edges, ElementsAre(0, 2, -4, -2));
    EXPECT_THAT(mesh->faces[0].holes, IsEmpty());
}

TEST_F(MeshTest, TweaksMoveThePoints)
{
    makeQuad();
    EXPECT_TRUE(writeNumbers(plug("planeShape.pt[1]"), {0, 2, 0}));
    EXPECT_EQ(meshOf(shape)->points[1], Vec3f(1, 2, 1));
}

TEST_F(MeshTest, TheGeometryIsKeptUntilTheAttributesChange)
{
    makeQuad();
    const MeshData* first = meshOf(shape);
    EXPECT_EQ(meshOf(shape), first);
    const double moved[] = {5, 5, 5};
    EXPECT_TRUE(writeElements(plug("planeShape.vt"), 0, moved, 3));
    EXPECT_EQ(meshOf(shape)->points[0], Vec3f(5, 5, 5));
}

TEST_F(MeshTest, GeometryFlowsFromMeshToMesh)
{
    makeQuad();
    DagNode& copy = *make("mesh", "copyShape").asDag();
    ASSERT_TRUE(connect("planeShape.o", "copyShape.i"));
    ASSERT_NE(meshOf(copy), nullptr);
    EXPECT_EQ(meshOf(copy)->points.size(), 4u);
    EXPECT_TRUE(writeNumbers(plug("planeShape.pt[0]"), {0, 7, 0}));
    EXPECT_EQ(meshOf(copy)->points[0], Vec3f(-1, 7, 1));
}

TEST_F(MeshTest, TheBoundingBoxHoldsAllPoints)
{
    makeQuad();
    EXPECT_THAT(readNumbers(plug("planeShape.bbmn")).value, ElementsAre(-1, 0, -1));
    EXPECT_THAT(readNumbers(plug("planeShape.bbsi")).value, ElementsAre(2, 0, 2));
}

TEST(FaceTest, HolesAreReadAndTexturesSkipped)
{
    MeshData::Face face;
    ASSERT_TRUE(readFace("f 3 0 1 2 mu 1 3 0 1 2 h 3 -5 -6 -7\n\tmc 0 3 4 5 6", face));
    EXPECT_THAT(face.edges, ElementsAre(0, 1, 2));
    ASSERT_EQ(face.holes.size(), 1u);
    EXPECT_THAT(face.holes[0], ElementsAre(-5, -6, -7));
}

TEST(FaceTest, OtherWordsAreNoFace)
{
    for (const char* words :
         {"", "g 3 0 1 2", "f", "f x", "f 3 0 1", "f -1", "f 3 0 1 2 zz 1 2", "f 3 0 1 2 mu"}) {
        MeshData::Face face;
        EXPECT_FALSE(readFace(words, face)) << words;
    }
}

} // namespace tvxhost::engine
