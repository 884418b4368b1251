// Shells: what hangs together.
#include "engine/geometry/shells.h"

#include "engine/geometry/primitiveUvs.h"

#include <gmock/gmock.h>

namespace tvxhost::engine {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ShellsTest, ItemsAreByThemselvesUntilTheyAreJoined)
{
    Shells shells(6);
    EXPECT_EQ(shells.count(), 6u);
    shells.join(4, 1);
    shells.join(1, 3);
    shells.join(3, 4);
    shells.join(5, 2);
    EXPECT_EQ(shells.count(), 3u);
    EXPECT_THAT(shells.numbers(), ElementsAre(0, 1, 2, 1, 1, 2));
    EXPECT_THAT(Shells(0).numbers(), IsEmpty());
}

TEST(ShellsTest, VerticesHangTogetherByEdges)
{
    MeshData mesh;
    mesh.points.resize(5);
    mesh.edges = {{0, 1, 0}, {1, 3, 0}};
    EXPECT_EQ(vertexShells(mesh).count(), 3u);
}

TEST(ShellsTest, TextureCoordinatesHangTogetherByFaces)
{
    const CubeShape shape;
    const Ref<MeshData> cube = makeCube(shape);
    mapCube(*cube, shape);
    UvSet set = cube->uvSets.front();
    EXPECT_EQ(uvShells(*cube, set).count(), 1u);
    // The right side gets corners of its own where it meets the front.
    set.values.emplace_back(1.0F, 0.0F);
    set.values.emplace_back(1.0F, 0.25F);
    set.used[16] = 14;
    set.used[19] = 15;
    EXPECT_EQ(uvShells(*cube, set).count(), 2u);
    EXPECT_THAT(uvShells(*cube, set).numbers(), ElementsAre(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 0, 0, 1, 1));
    set.values.emplace_back(0.5F, 0.5F);
    EXPECT_EQ(uvShells(*cube, set).count(), 3u);
}

} // namespace

} // namespace tvxhost::engine
