// Meshes: geometry from the attributes of a shape.
#include "engine/mesh.h"

#include "engine/duplicate.h"
#include "engine/geometry/primitives.h"

#include "fixtures.h"

#include <gmock/gmock.h>

#include <sstream>

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
    ASSERT_EQ(mesh->faces.loopCount(0), 1u);
    EXPECT_THAT(mesh->faces.outline(0), ElementsAre(0, 2, -4, -2));
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

TEST_F(MeshTest, AMeshThatNamesWhatIsNotThereIsNotUsed)
{
    makeQuad();
    const double lost[] = {0, 9, 0};
    EXPECT_TRUE(writeElements(plug("planeShape.ed"), 0, lost, 3));
    std::ostringstream errors;
    scene.scriptEditor().setStreams(nullptr, &errors);
    EXPECT_EQ(meshOf(shape), nullptr);
    EXPECT_EQ(errors.str(), "Warning: The geometry of 'planeShape' names points or edges that are not there; "
                            "it is not used.\n");
}

TEST_F(MeshTest, MissingFacesAreEmpty)
{
    makeQuad();
    EXPECT_TRUE(writeData(plug("planeShape.fc[2]"), KeptData("polyFaces", "f 4 0 2 -4 -2")));
    const MeshData* mesh = meshOf(shape);
    ASSERT_EQ(mesh->faces.size(), 3u);
    EXPECT_EQ(mesh->faces.loopCount(1), 0u);
    EXPECT_THAT(mesh->faces.outline(2), ElementsAre(0, 2, -4, -2));
}

TEST_F(MeshTest, HistoryCountsBeforeTheAttributesAndIsTweaked)
{
    makeQuad();
    make("polyCube", "polyCube1");
    ASSERT_TRUE(connect("polyCube1.out", "planeShape.i"));
    EXPECT_TRUE(hasHistory(shape));
    EXPECT_EQ(meshOf(shape)->points.size(), 8u);
    EXPECT_TRUE(writeNumbers(plug("planeShape.pt[0]"), {0, 0, 1}));
    EXPECT_EQ(meshOf(shape)->points[0], Vec3f(-0.5F, -0.5F, 1.5F));
    set("polyCube1.w", 4);
    EXPECT_EQ(meshOf(shape)->points[0], Vec3f(-2, -0.5F, 1.5F));
}

TEST_F(MeshTest, WhatHistoryMadeStaysWhenTheHistoryGoes)
{
    Node& cube = make("polyCube", "polyCube1");
    ASSERT_TRUE(connect("polyCube1.out", "planeShape.i"));
    EXPECT_EQ(meshOf(shape)->points.size(), 8u);
    EXPECT_TRUE(scene.deleteNode(cube));
    EXPECT_FALSE(hasHistory(shape));
    ASSERT_NE(meshOf(shape), nullptr);
    EXPECT_EQ(meshOf(shape)->points.size(), 8u);
}

TEST_F(MeshTest, SettlingWritesWhatOnlyTheInputHeld)
{
    storeMesh(shape, makePlane({2, 2, 1, 1}));
    EXPECT_THAT(existingElements(plug("planeShape.vt")), IsEmpty());
    settleMesh(shape);
    EXPECT_THAT(readNumbers(plug("planeShape.vt[1]")).value, ElementsAre(1, 0, 1));
    EXPECT_THAT(readNumbers(plug("planeShape.ed[2]")).value, ElementsAre(1, 3, 0));
    const Ref<Data> face = readData(plug("planeShape.fc[0]")).value;
    ASSERT_TRUE(face);
    EXPECT_EQ(static_cast<const KeptData&>(*face).text, "f 4 0 2 -4 -2");
    ASSERT_NE(meshOf(shape), nullptr);
    EXPECT_THAT(meshOf(shape)->faces.outline(0), ElementsAre(0, 2, -4, -2));
}

TEST_F(MeshTest, SettlingLeavesHistoryAndAttributesAlone)
{
    makeQuad();
    settleMesh(shape);
    EXPECT_EQ(static_cast<const KeptData&>(*readData(plug("planeShape.fc[0]")).value).text,
              "f 4 0 2 -4 -2 mu 0 4 0 1 3 2");
    make("polyCube", "polyCube1");
    ASSERT_TRUE(connect("polyCube1.out", "planeShape.i"));
    settleMesh(shape);
    EXPECT_EQ(existingElements(plug("planeShape.vt")).size(), 4u);
}

TEST_F(MeshTest, MovedPointsOfAttributesAreWrittenThereAndKeepTheFaces)
{
    makeQuad();
    EXPECT_TRUE(writeNumbers(plug("planeShape.pt[1]"), {0, 2, 0}));
    EXPECT_TRUE(movePoints(shape, {{1, Vec3f(7, 8, 9)}}));
    EXPECT_EQ(meshOf(shape)->points[1], Vec3f(7, 8, 9));
    EXPECT_THAT(readNumbers(plug("planeShape.vt[1]")).value, ElementsAre(7, 8, 9));
    EXPECT_THAT(existingElements(plug("planeShape.pt")), IsEmpty());
    EXPECT_EQ(static_cast<const KeptData&>(*readData(plug("planeShape.fc[0]")).value).text,
              "f 4 0 2 -4 -2 mu 0 4 0 1 3 2");
}

TEST_F(MeshTest, MovedPointsOfHistoryAreTweaks)
{
    make("polyCube", "polyCube1");
    ASSERT_TRUE(connect("polyCube1.out", "planeShape.i"));
    EXPECT_TRUE(movePoints(shape, {{0, Vec3f(0, 0, 0)}}));
    EXPECT_THAT(readNumbers(plug("planeShape.pt[0]")).value, ElementsAre(0.5, 0.5, -0.5));
    EXPECT_EQ(meshOf(shape)->points[0], Vec3f(0, 0, 0));
}

TEST_F(MeshTest, MovedPointsOfAHeldMeshDoNotReachOthersThatHaveIt)
{
    make("polyCube", "polyCube1");
    ASSERT_TRUE(connect("polyCube1.out", "planeShape.i"));
    ASSERT_NE(meshOf(shape), nullptr);
    ASSERT_TRUE(scene.disconnect(plug("polyCube1.out"), plug("planeShape.i")));
    EXPECT_TRUE(movePoints(shape, {{0, Vec3f(0, 0, 0)}}));
    EXPECT_EQ(meshOf(shape)->points[0], Vec3f(0, 0, 0));
    const Ref<Data> output = readData(plug("polyCube1.out")).value;
    EXPECT_EQ(static_cast<const MeshData&>(*output).points[0], Vec3f(-0.5F, -0.5F, 0.5F));
}

TEST_F(MeshTest, OnlyVerticesThatThereAreCanBeMoved)
{
    EXPECT_EQ(movePoints(shape, {{0, Vec3f(0, 0, 0)}}).reason, Reason::noData);
    makeQuad();
    EXPECT_EQ(movePoints(shape, {{0, Vec3f(0, 0, 0)}, {4, Vec3f(0, 0, 0)}}).reason, Reason::badIndex);
    EXPECT_EQ(meshOf(shape)->points[0], Vec3f(-1, 0, 1));
}

TEST_F(MeshTest, HistoryGoesThroughNodesThatChangeItOrPassItOn)
{
    make("polyCube", "polyCube1");
    make("groupParts", "groupParts1");
    make("polyTweak", "polyTweak1");
    make("polyTweakUV", "polyTweakUV1");
    make("polyMapCut", "polyMapCut1");
    make("transformGeometry", "move");
    ASSERT_TRUE(connect("polyCube1.out", "groupParts1.ig"));
    ASSERT_TRUE(connect("groupParts1.og", "polyTweak1.ip"));
    ASSERT_TRUE(connect("polyTweak1.out", "polyTweakUV1.ip"));
    ASSERT_TRUE(connect("polyTweakUV1.out", "polyMapCut1.ip"));
    ASSERT_TRUE(connect("polyMapCut1.out", "move.ig"));
    ASSERT_TRUE(connect("move.og", "planeShape.i"));
    EXPECT_TRUE(writeNumbers(plug("polyTweak1.tk[0]"), {0, 0, 1}));
    Matrix away;
    away.setTranslation(Vec3d(10, 0, 0));
    EXPECT_TRUE(writeData(plug("move.txf"), MatrixData(away)));
    ASSERT_NE(meshOf(shape), nullptr);
    EXPECT_EQ(meshOf(shape)->points[0], Vec3f(9.5F, -0.5F, 1.5F));
    EXPECT_EQ(meshOf(shape)->points[1], Vec3f(10.5F, -0.5F, 0.5F));
    set("move.itf", 1);
    EXPECT_EQ(meshOf(shape)->points[1], Vec3f(-9.5F, -0.5F, 0.5F));
    set("polyCube1.w", 3);
    EXPECT_EQ(meshOf(shape)->points[1], Vec3f(-8.5F, -0.5F, 0.5F));
}

TEST_F(MeshTest, ADuplicateHasTheGeometryOfTheHistoryAndNotTheHistory)
{
    make("polyCube", "polyCube1");
    ASSERT_TRUE(connect("polyCube1.out", "planeShape.i"));
    EXPECT_TRUE(writeNumbers(plug("planeShape.pt[0]"), {0, 0, 1}));
    const Expected<DagNode*> copy = duplicate(*shape.parents().front(), scene.world(), {});
    ASSERT_TRUE(copy);
    DagNode& twin = *copy.value->children().front();
    EXPECT_FALSE(hasHistory(twin));
    ASSERT_NE(meshOf(twin), nullptr);
    EXPECT_EQ(meshOf(twin)->points[0], Vec3f(-0.5F, -0.5F, 1.5F));
    EXPECT_TRUE(movePoints(twin, {{1, Vec3f(0, 0, 0)}}));
    EXPECT_EQ(meshOf(shape)->points[1], Vec3f(0.5F, -0.5F, 0.5F));
}

TEST_F(MeshTest, TheBoundingBoxFollowsHistory)
{
    make("polyCube", "polyCube1");
    ASSERT_TRUE(connect("polyCube1.out", "planeShape.i"));
    EXPECT_THAT(readNumbers(plug("planeShape.bbsi")).value, ElementsAre(1, 1, 1));
    set("polyCube1.h", 3);
    EXPECT_THAT(readNumbers(plug("planeShape.bbsi")).value, ElementsAre(1, 3, 1));
}

} // namespace tvxhost::engine
