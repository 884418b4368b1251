// The wires of meshes, as index pairs.
#include "viewport/drawing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tvxhost::engine::MeshData;
using tvxhost::viewport::wireIndices;

TEST(WireIndices, AreTheEndsOfEachEdge)
{
    MeshData mesh;
    mesh.points.resize(3);
    mesh.edges = {{0, 1, 0}, {1, 2, 1}, {2, 0, 0}};
    EXPECT_THAT(wireIndices(mesh), ElementsAre(0, 1, 1, 2, 2, 0));
}

TEST(WireIndices, LeaveOutEdgesWhosePointsDoNotExist)
{
    MeshData mesh;
    mesh.points.resize(2);
    mesh.edges = {{0, 2, 0}, {-1, 1, 0}, {0, 1, 0}};
    EXPECT_THAT(wireIndices(mesh), ElementsAre(0, 1));
    EXPECT_THAT(wireIndices(MeshData()), IsEmpty());
}

} // namespace
