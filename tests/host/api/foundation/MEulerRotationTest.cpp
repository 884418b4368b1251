// MEulerRotation: a rotation as three angles.
#include <maya/MEulerRotation.h>
#include <maya/MMatrix.h>
#include <maya/MQuaternion.h>
#include <maya/MVector.h>

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

namespace {

const double kHalfTurn = 3.14159265358979323846;
const double kQuarterTurn = kHalfTurn / 2.0;

/// The rotation about one axis for row vectors, written out.
MMatrix about(int axis, double angle)
{
    const int next = (axis + 1) % 3;
    const int last = (axis + 2) % 3;
    MMatrix m;
    m.matrix[next][next] = m.matrix[last][last] = std::cos(angle);
    m.matrix[next][last] = std::sin(angle);
    m.matrix[last][next] = -std::sin(angle);
    return m;
}

struct OrderCase
{
    MEulerRotation::RotationOrder order;
    int axes[3];
    const char* name;
};

const OrderCase kOrders[] = {
    {MEulerRotation::kXYZ, {0, 1, 2}, "kXYZ"}, {MEulerRotation::kYZX, {1, 2, 0}, "kYZX"},
    {MEulerRotation::kZXY, {2, 0, 1}, "kZXY"}, {MEulerRotation::kXZY, {0, 2, 1}, "kXZY"},
    {MEulerRotation::kYXZ, {1, 0, 2}, "kYXZ"}, {MEulerRotation::kZYX, {2, 1, 0}, "kZYX"},
};

class EveryOrder : public testing::TestWithParam<OrderCase>
{
};

INSTANTIATE_TEST_SUITE_P(MEulerRotation, EveryOrder, testing::ValuesIn(kOrders),
                         [](const auto& each) { return std::string(each.param.name); });

TEST_P(EveryOrder, MultipliesTheAxesRotationsFromLeftToRight)
{
    const double angles[3] = {0.3, -0.5, 1.1};
    MMatrix expected;
    for (const int axis : GetParam().axes)
        expected *= about(axis, angles[axis]);
    const MEulerRotation rotation(angles[0], angles[1], angles[2], GetParam().order);
    EXPECT_TRUE(rotation.asMatrix().isEquivalent(expected));
}

TEST_P(EveryOrder, ComesBackFromItsMatrix)
{
    const MEulerRotation rotation(0.3, -0.5, 1.1, GetParam().order);
    EXPECT_TRUE(MEulerRotation::decompose(rotation.asMatrix(), GetParam().order).isEquivalent(rotation));
}

TEST_P(EveryOrder, IsTakenApartWithTheMiddleAngleAtARightAngle)
{
    for (const double middle : {kQuarterTurn, -kQuarterTurn}) {
        MEulerRotation rotation(0.4, 0.4, 0.4, GetParam().order);
        rotation[static_cast<unsigned int>(GetParam().axes[1])] = middle;
        const auto back = MEulerRotation::decompose(rotation.asMatrix(), GetParam().order);
        EXPECT_TRUE(back.asMatrix().isEquivalent(rotation.asMatrix(), 1.0e-7));
    }
}

TEST_P(EveryOrder, HasAnotherSolution)
{
    const MEulerRotation rotation(0.3, -0.5, 1.1, GetParam().order);
    const MEulerRotation other = rotation.alternateSolution();
    EXPECT_FALSE(other.isEquivalent(rotation, 0.1));
    EXPECT_TRUE(other.asMatrix().isEquivalent(rotation.asMatrix()));
}

TEST_P(EveryOrder, TurnsBackByItsInverse)
{
    const MEulerRotation rotation(0.3, -0.5, 1.1, GetParam().order);
    EXPECT_TRUE((rotation.asMatrix() * rotation.inverse().asMatrix()).isEquivalent(MMatrix::identity));
}

TEST_P(EveryOrder, KeepsTheRotationWhenReordered)
{
    const MEulerRotation rotation(0.3, -0.5, 1.1);
    const MEulerRotation reordered = rotation.reorder(GetParam().order);
    EXPECT_EQ(reordered.order, GetParam().order);
    EXPECT_TRUE(reordered.asMatrix().isEquivalent(rotation.asMatrix()));
}

TEST_P(EveryOrder, IsWrittenWithItsOrder)
{
    std::ostringstream out;
    out << MEulerRotation(1, 2, 3, GetParam().order);
    EXPECT_EQ(out.str(), std::string("[1, 2, 3, ") + GetParam().name + "]");
}

TEST(MEulerRotation, ComposesFromLeftToRight)
{
    const MEulerRotation a(0.3, -0.5, 1.1);
    const MEulerRotation b(-0.2, 0.9, 0.4, MEulerRotation::kZYX);
    EXPECT_TRUE((a * b).asMatrix().isEquivalent(a.asMatrix() * b.asMatrix()));
    EXPECT_EQ((a * b).order, MEulerRotation::kXYZ);
    EXPECT_EQ(a * 2.0, MEulerRotation(0.6, -1.0, 2.2));
}

TEST(MEulerRotation, IsBoundedToHalfATurnEitherWay)
{
    const MEulerRotation bound = MEulerRotation(2.5 * kHalfTurn, -1.5 * kHalfTurn, 0.1).bound();
    EXPECT_TRUE(bound.isEquivalent(MEulerRotation(0.5 * kHalfTurn, 0.5 * kHalfTurn, 0.1)));
}

TEST(MEulerRotation, IsMovedByFullTurnsNextToAnother)
{
    const MEulerRotation near = MEulerRotation(0.1, 0, 0).closestCut(MEulerRotation(4.0 * kHalfTurn, 0, 0));
    EXPECT_NEAR(near.x, 4.0 * kHalfTurn + 0.1, 1.0e-12);
}

TEST(MEulerRotation, TakesTheSolutionNextToAnother)
{
    const MEulerRotation rotation(0.3, -0.5, 1.1);
    const MEulerRotation other = rotation.alternateSolution();
    EXPECT_TRUE(rotation.closestSolution(other).isEquivalent(other));
    EXPECT_TRUE(other.closestSolution(rotation).isEquivalent(rotation));
}

TEST(MEulerRotation, TurnsFurtherWithoutAJump)
{
    MEulerRotation rotation(0, 0, 3.0 * kHalfTurn);
    rotation.incrementalRotateBy(MVector::zAxis, 0.25);
    EXPECT_TRUE(rotation.isEquivalent(MEulerRotation(0, 0, 3.0 * kHalfTurn + 0.25), 1.0e-9));
}

TEST(MEulerRotation, AddsTheOtherInItsOwnOrder)
{
    const MEulerRotation z(0, 0, 0.5, MEulerRotation::kZYX);
    const MEulerRotation sum = MEulerRotation(0.25, 0, 0) + z;
    EXPECT_TRUE(sum.isEquivalent(MEulerRotation(0.25, 0, 0.5)));
    EXPECT_TRUE((sum - z).isEquivalent(MEulerRotation(0.25, 0, 0)));
    EXPECT_TRUE(MEulerRotation().isZero());
    EXPECT_FALSE(sum.isZero());
}

TEST(MEulerRotation, IgnoresScaleAndMirroringOfAMatrix)
{
    const MEulerRotation rotation(0.3, -0.5, 1.1);
    MMatrix scale;
    scale[0][0] = 2.0;
    scale[1][1] = 3.0;
    scale[2][2] = 4.0;
    const auto decompose = [](const MMatrix& m) {
        return MEulerRotation::decompose(m, MEulerRotation::kXYZ);
    };
    EXPECT_TRUE(decompose(scale * rotation.asMatrix()).isEquivalent(rotation));
    EXPECT_TRUE(decompose(scale * -1.0 * rotation.asMatrix()).isEquivalent(rotation));
}

} // namespace
