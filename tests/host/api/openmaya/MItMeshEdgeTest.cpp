// MItMeshEdge: going through the edges of a mesh.
#include "../meshFixture.h"

#include <maya/MItMeshEdge.h>

#include <cmath>

namespace tvxhost::api::test {
namespace {

using testing::ElementsAre;

class MItMeshEdgeTest : public MeshFixture
{
protected:
    static std::vector<int> connectedEdges(MItMeshEdge& edges)
    {
        MIntArray found;
        MStatus status;
        const int returned = edges.getConnectedEdges(found, &status);
        EXPECT_EQ(status, MS::kSuccess);
        EXPECT_EQ(returned, static_cast<int>(found.length()));
        int count = -1;
        EXPECT_EQ(edges.numConnectedEdges(count), MS::kSuccess);
        EXPECT_EQ(count, static_cast<int>(found.length()));
        return numbers(found);
    }
    static std::vector<int> connectedFaces(MItMeshEdge& edges)
    {
        MIntArray found;
        const int returned = edges.getConnectedFaces(found);
        EXPECT_EQ(returned, static_cast<int>(found.length()));
        int count = -1;
        EXPECT_EQ(edges.numConnectedFaces(count), MS::kSuccess);
        EXPECT_EQ(count, static_cast<int>(found.length()));
        return numbers(found);
    }
    static std::vector<int> rest(MItMeshEdge& edges)
    {
        std::vector<int> all;
        for (; !edges.isDone(); edges.next())
            all.push_back(edges.index());
        return all;
    }
    static void goTo(MItMeshEdge& edges, int edge)
    {
        int previous = 0;
        EXPECT_EQ(edges.setIndex(edge, previous), MS::kSuccess);
    }
};

TEST_F(MItMeshEdgeTest, EdgesComeByAscendingNumber)
{
    addQuad();
    MStatus status;
    MItMeshEdge edges(path("quadShape"), MObject::kNullObj, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(edges.count(), 4);
    EXPECT_THAT(rest(edges), ElementsAre(0, 1, 2, 3));
    EXPECT_EQ(edges.reset(), MS::kSuccess);
    EXPECT_THAT(rest(edges), ElementsAre(0, 1, 2, 3));
}

TEST_F(MItMeshEdgeTest, ATransformStandsForTheMeshBelow)
{
    addQuad();
    MStatus status;
    MItMeshEdge edges(path("quad"), MObject::kNullObj, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(edges.count(), 4);
}

TEST_F(MItMeshEdgeTest, AnObjectWillDoWithoutWorldSpace)
{
    addQuad();
    MObject shape = object("quadShape");
    MStatus status;
    MItMeshEdge edges(shape, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_THAT(xyz(edges.point(0)), ElementsAre(-1, 0, 1));
    edges.point(0, MSpace::kWorld, &status);
    EXPECT_EQ(status, MS::kFailure);
}

TEST_F(MItMeshEdgeTest, WithoutAMeshThereIsNothingToGoThrough)
{
    make("transform", "empty");
    make("mesh", "noGeometry");
    MStatus status;
    for (const MDagPath& nowhere : {path("empty"), path("noGeometry"), MDagPath()}) {
        MItMeshEdge edges(nowhere, MObject::kNullObj, &status);
        EXPECT_EQ(text(status), "(kInvalidParameter): Object is incompatible with this method");
        EXPECT_TRUE(edges.isDone());
        EXPECT_EQ(edges.count(&status), 0);
        EXPECT_EQ(status, MS::kInvalidParameter);
        EXPECT_EQ(edges.index(&status), -1);
        EXPECT_EQ(status, MS::kFailure);
        EXPECT_FALSE(edges.onBoundary(&status));
        EXPECT_EQ(status, MS::kFailure);
        EXPECT_EQ(edges.next(), MS::kFailure);
    }
}

TEST_F(MItMeshEdgeTest, AComponentNarrowsTheIteration)
{
    addGrid();
    MSelectionList list;
    list.add("gridShape.e[2:4]");
    MDagPath where;
    MObject component;
    ASSERT_EQ(list.getDagPath(0, where, component), MS::kSuccess);
    MStatus status;
    MItMeshEdge edges(where, component, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(edges.count(), 3);
    EXPECT_THAT(rest(edges), ElementsAre(2, 3, 4));
    int previous = 0;
    edges.reset();
    EXPECT_EQ(edges.setIndex(9, previous), MS::kSuccess);
    EXPECT_EQ(edges.index(), 9);
    edges.next();
    EXPECT_EQ(edges.index(), 3) << "on from where the iteration was";
}

TEST_F(MItMeshEdgeTest, AComponentOfAnotherKindIsRefused)
{
    addGrid();
    MSelectionList list;
    list.add("gridShape.vtx[2:4]");
    MDagPath where;
    MObject component;
    ASSERT_EQ(list.getDagPath(0, where, component), MS::kSuccess);
    MStatus status;
    MItMeshEdge edges(where, component, &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_TRUE(edges.isDone());
}

TEST_F(MItMeshEdgeTest, ThePresentEdgeIsAComponentThatAnIteratorTakes)
{
    addGrid();
    MItMeshEdge edges(path("gridShape"));
    goTo(edges, 5);
    MObject component = edges.currentItem();
    MItMeshEdge one(path("gridShape"), component);
    EXPECT_THAT(rest(one), ElementsAre(5));
    EXPECT_FALSE(edges.edge().isNull());
}

TEST_F(MItMeshEdgeTest, AnEdgeHasTwoEnds)
{
    addQuad();
    MItMeshEdge edges(path("quadShape"));
    goTo(edges, 2);
    MStatus status;
    EXPECT_EQ(edges.index(0, &status), 1);
    EXPECT_EQ(edges.index(1, &status), 3);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_THAT(xyz(edges.point(0)), ElementsAre(1, 0, 1));
    EXPECT_THAT(xyz(edges.point(1)), ElementsAre(1, 0, -1));
    EXPECT_THAT(xyz(edges.center()), ElementsAre(1, 0, 0));
    for (const int end : {-1, 2}) {
        EXPECT_EQ(edges.index(end, &status), -1);
        EXPECT_EQ(status, MS::kInvalidParameter);
        edges.point(end, MSpace::kObject, &status);
        EXPECT_EQ(status, MS::kInvalidParameter);
    }
}

TEST_F(MItMeshEdgeTest, OnlyTheWorldIsAnotherSpaceThanTheObjects)
{
    addQuad();
    set("quad.translate", {10, 20, 30});
    set("quad.scale", {2, 2, 2});
    MItMeshEdge edges(path("quadShape"));
    for (const MSpace::Space space : {MSpace::kTransform, MSpace::kPreTransform, MSpace::kPostTransform})
        EXPECT_THAT(xyz(edges.point(0, space)), ElementsAre(-1, 0, 1));
    EXPECT_THAT(xyz(edges.point(0, MSpace::kWorld)), ElementsAre(8, 20, 32));
    double length = 0;
    EXPECT_EQ(edges.getLength(length), MS::kSuccess);
    EXPECT_DOUBLE_EQ(length, 2);
    EXPECT_EQ(edges.getLength(length, MSpace::kWorld), MS::kSuccess);
    EXPECT_DOUBLE_EQ(length, 4);
    MStatus status;
    edges.point(0, MSpace::kInvalid, &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MItMeshEdgeTest, AnInstanceIsWhereItsPathLeads)
{
    addQuad();
    make("transform", "other");
    instance("quadShape", "other");
    set("other.translate", {0, 5, 0});
    MItMeshEdge edges(path("other|quadShape"));
    EXPECT_THAT(xyz(edges.point(0, MSpace::kWorld)), ElementsAre(-1, 5, 1));
}

TEST_F(MItMeshEdgeTest, NeighboursStandAroundTheFirstVertexThenAroundTheSecond)
{
    addQuad();
    MItMeshEdge edges(path("quadShape"));
    EXPECT_THAT(connectedEdges(edges), ElementsAre(1, 2));
    goTo(edges, 3);
    EXPECT_THAT(connectedEdges(edges), ElementsAre(1, 2));
    goTo(edges, 1);
    EXPECT_THAT(connectedEdges(edges), ElementsAre(0, 3));
}

TEST_F(MItMeshEdgeTest, AnInnerEdgeHasTwoFacesAndABorderOne)
{
    addGrid();
    MItMeshEdge edges(path("gridShape"));
    EXPECT_TRUE(edges.onBoundary());
    EXPECT_THAT(connectedFaces(edges), ElementsAre(0));
    goTo(edges, 3);
    EXPECT_EQ(edges.index(0), 1);
    EXPECT_EQ(edges.index(1), 5);
    EXPECT_FALSE(edges.onBoundary());
    EXPECT_THAT(connectedFaces(edges), ElementsAre(0, 1));
}

TEST_F(MItMeshEdgeTest, ConnectionsCanBeAskedForByNumber)
{
    addQuad();
    MItMeshEdge edges(path("quadShape"));
    MStatus status;
    EXPECT_TRUE(edges.connectedToEdge(1));
    EXPECT_FALSE(edges.connectedToEdge(3));
    EXPECT_FALSE(edges.connectedToEdge(0)) << "not to itself";
    EXPECT_TRUE(edges.connectedToFace(0));
    EXPECT_FALSE(edges.connectedToFace(1, &status));
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_FALSE(edges.connectedToEdge(4, &status));
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MItMeshEdgeTest, AClosedMeshHasNoBorder)
{
    addMesh("cube", engine::makeCube({}));
    for (MItMeshEdge edges(path("cubeShape")); !edges.isDone(); edges.next())
        EXPECT_FALSE(edges.onBoundary()) << edges.index();
}

TEST_F(MItMeshEdgeTest, SetIndexGivesTheNumberItLeavesAndStaysWhenThereIsNoSuchEdge)
{
    addQuad();
    MItMeshEdge edges(path("quadShape"));
    edges.next();
    int previous = -7;
    EXPECT_EQ(edges.setIndex(3, previous), MS::kSuccess);
    EXPECT_EQ(previous, 1);
    EXPECT_EQ(edges.index(), 3);
    for (const int nowhere : {-1, 4}) {
        EXPECT_EQ(edges.setIndex(nowhere, previous), MS::kInvalidParameter);
        EXPECT_EQ(edges.index(), 3);
        EXPECT_EQ(previous, 1);
    }
    EXPECT_EQ(edges.next(), MS::kSuccess);
    EXPECT_TRUE(edges.isDone());
    EXPECT_EQ(edges.setIndex(0, previous), MS::kSuccess);
    EXPECT_FALSE(edges.isDone());
    EXPECT_THAT(rest(edges), ElementsAre(0, 1, 2, 3));
}

TEST_F(MItMeshEdgeTest, MovedEndsAreSeenAtOnce)
{
    addQuad();
    set("quad.translate", {10, 0, 0});
    MItMeshEdge edges(path("quadShape"));
    EXPECT_EQ(edges.setPoint(MPoint(5, 6, 7), 1), MS::kSuccess);
    EXPECT_THAT(xyz(edges.point(1)), ElementsAre(5, 6, 7));
    EXPECT_EQ(edges.setPoint(MPoint(5, 6, 7), 0, MSpace::kWorld), MS::kSuccess);
    EXPECT_THAT(xyz(edges.point(0)), ElementsAre(-5, 6, 7));
    EXPECT_EQ(edges.setPoint(MPoint(), 2), MS::kInvalidParameter);
    EXPECT_EQ(edges.updateSurface(), MS::kSuccess);
    EXPECT_EQ(edges.geomChanged(), MS::kSuccess);
}

TEST_F(MItMeshEdgeTest, EdgesCanBeMadeSmoothUnlessHistoryMakesThem)
{
    addQuad();
    MItMeshEdge edges(path("quadShape"));
    EXPECT_FALSE(edges.isSmooth());
    EXPECT_EQ(edges.setSmoothing(true), MS::kSuccess);
    EXPECT_TRUE(edges.isSmooth());
    EXPECT_EQ(edges.cleanupSmoothing(), MS::kSuccess);
    make("polyCube", "polyCube1");
    ASSERT_TRUE(scene.connect(scene.findPlug("polyCube1.out").value, scene.findPlug("quadShape.i").value));
    MItMeshEdge made(path("quadShape"));
    EXPECT_EQ(made.count(), 12);
    EXPECT_EQ(made.setSmoothing(true), MS::kFailure);
    EXPECT_FALSE(made.isSmooth());
}

TEST_F(MItMeshEdgeTest, AnotherMeshCanBeGoneThroughWithTheSameIterator)
{
    addQuad();
    addGrid();
    MItMeshEdge edges(path("quadShape"));
    EXPECT_EQ(edges.reset(path("gridShape")), MS::kSuccess);
    EXPECT_EQ(edges.count(), 17);
    MObject quad = object("quadShape");
    EXPECT_EQ(edges.reset(quad), MS::kSuccess);
    EXPECT_EQ(edges.count(), 4);
}

TEST_F(MItMeshEdgeTest, EveryCallCanBeMadeToFail)
{
    addQuad();
    MItMeshEdge edges(path("quadShape"));
    faults::failCall("MItMeshEdge::onBoundary", 1, MStatus(MS::kFailure));
    MStatus status;
    EXPECT_FALSE(edges.onBoundary(&status));
    EXPECT_EQ(status, MS::kFailure);
    EXPECT_TRUE(edges.onBoundary(&status));
    faults::failCall("MItMeshEdge::MItMeshEdge", 1, MStatus(MS::kFailure));
    MItMeshEdge broken(path("quadShape"), MObject::kNullObj, &status);
    EXPECT_EQ(status, MS::kFailure);
    EXPECT_TRUE(broken.isDone());
}

} // namespace
} // namespace tvxhost::api::test
