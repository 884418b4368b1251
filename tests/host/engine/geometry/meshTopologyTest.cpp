// What is next to what.
#include "engine/geometry/meshTopology.h"

#include "engine/geometry/edgeIndex.h"
#include "engine/geometry/primitives.h"

#include <gmock/gmock.h>

#include <map>
#include <random>

namespace tvxhost::engine {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(MeshTopologyTest, AnEdgeKnowsItsFaces)
{
    const Ref<MeshData> mesh = makePlane({2, 1, 2, 1});
    // 0-1-2 above 3-4-5; edges 0: 01, 1: 03, 2: 12, 3: 14, 4: 25, 5: 34, 6: 45.
    const MeshTopology& topology = mesh->topology();
    EXPECT_THAT(topology.facesOfEdge(3), ElementsAre(0, 1));
    EXPECT_THAT(topology.facesOfEdge(0), ElementsAre(0));
    EXPECT_FALSE(topology.isBorder(3));
    EXPECT_TRUE(topology.isBorder(0));
    EXPECT_EQ(topology.borderCount(), 6u);
}

TEST(MeshTopologyTest, AVertexKnowsItsEdgesAndFacesByAscendingNumber)
{
    const Ref<MeshData> mesh = makePlane({2, 1, 2, 1});
    EXPECT_THAT(mesh->topology().edgesOfVertex(1), ElementsAre(0, 2, 3));
    EXPECT_THAT(mesh->topology().facesOfVertex(1), ElementsAre(0, 1));
    EXPECT_THAT(mesh->topology().facesOfVertex(5), ElementsAre(1));
}

TEST(MeshTopologyTest, WhatIsNotThereHasNoNeighbours)
{
    const Ref<MeshData> mesh = makePlane({});
    for (const int i : {-1, 1000}) {
        EXPECT_THAT(mesh->topology().facesOfEdge(i), IsEmpty());
        EXPECT_THAT(mesh->topology().edgesOfVertex(i), IsEmpty());
        EXPECT_THAT(mesh->topology().facesOfVertex(i), IsEmpty());
        EXPECT_FALSE(mesh->topology().isBorder(i));
    }
}

TEST(MeshTopologyTest, AWireAndASeamAreNoBorders)
{
    const Ref<MeshData> mesh(new MeshData);
    mesh->points.resize(4);
    mesh->edges = {{0, 1, 0}, {1, 2, 0}, {2, 0, 0}, {0, 3, 0}, {1, 3, 0}};
    // Edge 3 is gone along both ways by the same face, nothing uses edge 4.
    mesh->faces.add({{3, -4, 0, 1, 2}, {}});
    const MeshTopology& topology = mesh->topology();
    EXPECT_THAT(topology.facesOfEdge(3), ElementsAre(0, 0));
    EXPECT_FALSE(topology.isBorder(3));
    EXPECT_FALSE(topology.isBorder(4));
    EXPECT_EQ(topology.borderCount(), 3u);
}

TEST(MeshTopologyTest, AHoleHasBordersOfItsOwn)
{
    const Ref<MeshData> mesh(new MeshData);
    mesh->points.resize(6);
    mesh->edges = {{0, 1, 0}, {1, 2, 0}, {2, 0, 0}, {3, 4, 0}, {4, 5, 0}, {5, 3, 0}};
    mesh->faces.add({{0, 1, 2}, {{-6, -5, -4}}});
    EXPECT_EQ(mesh->topology().borderCount(), 6u);
    EXPECT_THAT(mesh->topology().facesOfVertex(4), ElementsAre(0));
}

TEST(EdgeIndexTest, EdgesAreNumberedAsTheyAreFirstUsed)
{
    std::vector<MeshData::Edge> edges;
    EdgeIndex index(edges);
    EXPECT_EQ(index.corner(4, 2), 0);
    EXPECT_EQ(index.corner(2, 7), 1);
    EXPECT_EQ(index.corner(2, 4), -1);
    EXPECT_EQ(index.corner(4, 2), 0);
    ASSERT_EQ(edges.size(), 2u);
    EXPECT_EQ(edges[0].from, 4);
    EXPECT_EQ(edges[0].to, 2);
}

TEST(EdgeIndexTest, ManyEdgesAreFoundAgain)
{
    std::vector<MeshData::Edge> edges;
    EdgeIndex index(edges);
    std::map<std::pair<int, int>, int> expected;
    std::mt19937 random(7);
    for (int i = 0; i < 20000; ++i) {
        const int a = static_cast<int>(random() % 150), b = static_cast<int>(random() % 150);
        const auto found = expected.find({b, a});
        const auto [own, isNew] = expected.try_emplace({a, b}, static_cast<int>(edges.size()));
        const int corner = found != expected.end() && isNew ? -found->second - 1 : own->second;
        if (found != expected.end() && isNew)
            own->second = corner;
        EXPECT_EQ(index.corner(a, b), corner) << a << ' ' << b;
    }
}

} // namespace

} // namespace tvxhost::engine
