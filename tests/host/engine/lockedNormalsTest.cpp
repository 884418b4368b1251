// Normals that were set, in a shape's attributes and on the way through history.
#include "engine/mesh.h"

#include "engine/geometry/meshNormals.h"
#include "engine/geometry/primitives.h"

#include "fixtures.h"

#include <gmock/gmock.h>

namespace tvxhost::engine {

using testing::ElementsAre;
using testing::IsEmpty;

class LockedNormalsTest : public SceneTest
{
protected:
    LockedNormalsTest() : shape(*make("mesh", "planeShape").asDag()) {}

    /// Two squares side by side in attributes; they share the vertices 1 and 4.
    void makeSquares(int middleIsSmooth)
    {
        storeMesh(shape, makePlane({2, 1, 2, 1}));
        settleMesh(shape);
        EXPECT_TRUE(smoothEdge(shape, 3, middleIsSmooth != 0));
    }
    void setList(const std::vector<double>& numbers)
    {
        EXPECT_TRUE(writeElements(plug("planeShape.n"), 0, numbers.data(), numbers.size()));
    }
    std::vector<double> list()
    {
        std::vector<double> numbers;
        for (const int i : existingElements(plug("planeShape.n")))
            for (const double number : readNumbers(plug("planeShape.n").element(i)).value)
                numbers.push_back(number);
        return numbers;
    }
    Vec3f normalAt(std::size_t corner)
    {
        const NormalTable& table = meshOf(shape)->normals();
        return table.normals[static_cast<std::size_t>(table.used[corner])];
    }

    DagNode& shape;
    const Vec3f up{0, 1, 0}, side{1, 0, 0};
};

TEST_F(LockedNormalsTest, AListByNormalGoesToTheCornersThatHaveIt)
{
    makeSquares(1);
    // The corners are 0 1 4 3 and 1 2 5 4: six normals in the order of the vertices 0 1 4 3 2 5.
    setList(
        {1e20, 1e20, 1e20, 1, 0, 0, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20});
    EXPECT_EQ(normalAt(0), up);
    EXPECT_EQ(normalAt(1), side);
    EXPECT_EQ(normalAt(4), side) << "the same vertex of the other face";
    EXPECT_EQ(normalAt(2), up);
    const NormalTable& table = meshOf(shape)->normals();
    EXPECT_THAT(table.locked, ElementsAre(false, true, false, false, false, false));
    EXPECT_THAT(table.used, ElementsAre(0, 1, 2, 3, 1, 4, 5, 2));
}

TEST_F(LockedNormalsTest, AListByCornerIsTakenAsItIs)
{
    makeSquares(1);
    std::vector<double> numbers(24, 1e20);
    numbers[12] = 1;
    numbers[13] = numbers[14] = 0;
    setList(numbers);
    EXPECT_EQ(normalAt(1), up);
    EXPECT_EQ(normalAt(4), side);
    EXPECT_THAT(meshOf(shape)->normals().used, ElementsAre(0, 1, 2, 3, 4, 5, 6, 2));
}

TEST_F(LockedNormalsTest, AListOfAnotherLengthOrWithoutNormalsIsNotUsed)
{
    makeSquares(1);
    setList({1, 0, 0, 1, 0, 0});
    EXPECT_THAT(meshOf(shape)->lockedNormals, IsEmpty());
    setList(std::vector<double>(18, 1e20));
    EXPECT_THAT(meshOf(shape)->lockedNormals, IsEmpty());
    EXPECT_EQ(meshOf(shape)->normals().normals.size(), 6u);
}

TEST_F(LockedNormalsTest, EditsAreWrittenByNormalWhereTheyCanBe)
{
    makeSquares(1);
    EXPECT_TRUE(editNormals(shape, [&](MeshData& mesh) {
        mesh.lockedNormals.assign(8, Vec3f(kNoNormal));
        mesh.lockedNormals[1] = mesh.lockedNormals[4] = side;
    }));
    const double none = static_cast<double>(kNoNormal);
    EXPECT_THAT(list(), ElementsAre(none, none, none, 1, 0, 0, none, none, none, none, none, none, none, none,
                                    none, none, none, none));
    EXPECT_TRUE(editNormals(shape, [&](MeshData& mesh) { mesh.lockedNormals[4] = -side; }));
    EXPECT_EQ(list().size(), 24u) << "two at one vertex";
    EXPECT_EQ(normalAt(1), side);
    EXPECT_EQ(normalAt(4), -side);
    EXPECT_TRUE(editNormals(shape, [&](MeshData& mesh) { mesh.lockedNormals.clear(); }));
    EXPECT_THAT(list(), IsEmpty());
    EXPECT_EQ(normalAt(1), up);
}

TEST_F(LockedNormalsTest, AnEdgeThatIsHardenedKeepsThem)
{
    makeSquares(1);
    setList(
        {1e20, 1e20, 1e20, 1, 0, 0, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20});
    EXPECT_TRUE(smoothEdge(shape, 3, false));
    EXPECT_EQ(list().size(), 24u);
    EXPECT_EQ(normalAt(1), side);
    EXPECT_EQ(normalAt(4), side);
    EXPECT_EQ(normalAt(0), up);
}

TEST_F(LockedNormalsTest, EditsCanBeTakenBack)
{
    makeSquares(1);
    scene.journal().setOn(true);
    const auto lockFirst = [&](MeshData& mesh) {
        mesh.lockedNormals.assign(8, Vec3f(kNoNormal));
        mesh.lockedNormals[0] = side;
    };
    {
        const Journal::Command command(scene.journal(), "lock");
        EXPECT_TRUE(editNormals(shape, lockFirst));
    }
    EXPECT_EQ(normalAt(0), side);
    EXPECT_TRUE(scene.journal().undo());
    EXPECT_EQ(normalAt(0), up);
    EXPECT_THAT(list(), IsEmpty());
    EXPECT_TRUE(scene.journal().redo());
    EXPECT_EQ(normalAt(0), side);
}

TEST_F(LockedNormalsTest, WhatOnlyTheInputHoldsKeepsThemWhenItIsSettled)
{
    storeMesh(shape, makePlane({2, 1, 2, 1}));
    EXPECT_TRUE(editNormals(shape, [&](MeshData& mesh) {
        mesh.lockedNormals.assign(8, Vec3f(kNoNormal));
        mesh.lockedNormals[3] = side;
    }));
    EXPECT_EQ(normalAt(3), side);
    EXPECT_TRUE(movePoints(shape, {{0, Vec3f(0, 5, 0)}}));
    EXPECT_EQ(normalAt(3), side) << "points move, locked normals do not";
    settleMesh(shape);
    EXPECT_EQ(normalAt(3), side);
    EXPECT_EQ(list().size() % 3, 0u);
}

TEST_F(LockedNormalsTest, TheyFlowThroughHistoryAndTurnWithTransforms)
{
    makeSquares(1);
    setList(
        {1e20, 1e20, 1e20, 1, 0, 0, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20});
    DagNode& copy = *make("mesh", "copyShape").asDag();
    make("transformGeometry", "turn");
    Matrix matrix;
    matrix.rotate(Vec3d(0, 0, M_PI / 2));
    EXPECT_TRUE(writeData(plug("turn.txf"), MatrixData(matrix)));
    ASSERT_TRUE(connect("planeShape.o", "turn.ig"));
    ASSERT_TRUE(connect("turn.og", "copyShape.i"));
    ASSERT_NE(meshOf(copy), nullptr);
    const NormalTable& table = meshOf(copy)->normals();
    EXPECT_NEAR((table.normals[static_cast<std::size_t>(table.used[1])] - up).length(), 0, 1e-6)
        << "what looked to the side looks up";
    EXPECT_EQ(editNormals(copy, [](MeshData&) {}).reason, Reason::notWritable);
    setList(
        {1e20, 1e20, 1e20, 0, 0, 1, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20, 1e20});
    const NormalTable& changed = meshOf(copy)->normals();
    EXPECT_NEAR(changed.normals[static_cast<std::size_t>(changed.used[1])].z, 1, 1e-6);
}

TEST_F(LockedNormalsTest, WithoutAMeshThereIsNothingToSet)
{
    EXPECT_EQ(editNormals(shape, [](MeshData&) {}).reason, Reason::noData);
}

} // namespace tvxhost::engine
