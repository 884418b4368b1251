// MQuaternion: a rotation as four numbers, for row vectors.
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

TEST(MQuaternion, IsNoRotationByDefault)
{
    EXPECT_EQ(MQuaternion(), MQuaternion(0, 0, 0, 1));
    EXPECT_EQ(MQuaternion::identity.asMatrix(), MMatrix::identity);
}

TEST(MQuaternion, TurnsByItsAngleAboutItsAxis)
{
    const MQuaternion q(kQuarterTurn, MVector(0, 0, 5));
    const double half = std::sqrt(0.5);
    EXPECT_TRUE(q.isEquivalent(MQuaternion(0, 0, half, half)));
    EXPECT_TRUE((MVector::xAxis * q.asMatrix()).isEquivalent(MVector::yAxis));
}

TEST(MQuaternion, ComposesFromLeftToRightAsMatricesDo)
{
    const MQuaternion x(0.3, MVector(1, 2, 3));
    const MQuaternion y(-0.7, MVector(-2, 1, 0.5));
    EXPECT_TRUE((x * y).asMatrix().isEquivalent(x.asMatrix() * y.asMatrix()));
    EXPECT_FALSE((x * y).isEquivalent(y * x));
    MQuaternion z(x);
    z *= y;
    EXPECT_EQ(z, x * y);
}

TEST(MQuaternion, ComesBackFromItsMatrix)
{
    // One rotation for each component that may be the largest.
    const MQuaternion rotations[] = {
        MQuaternion(0.5, MVector(1, 2, 3)), MQuaternion(3.0, MVector(1, 0.1, 0.2)),
        MQuaternion(3.0, MVector(0.1, 1, 0.2)), MQuaternion(3.0, MVector(0.1, 0.2, 1))};
    for (const MQuaternion& rotation : rotations) {
        MQuaternion back;
        back = rotation.asMatrix();
        EXPECT_TRUE(back.isEquivalent(rotation) || back.isEquivalent(-rotation)) << rotation;
    }
}

TEST(MQuaternion, HasAnAxisAndAnAngle)
{
    MVector axis;
    double angle = 0.0;
    EXPECT_TRUE(MQuaternion(1.25, MVector(0, 2, 0)).getAxisAngle(axis, angle));
    EXPECT_TRUE(axis.isEquivalent(MVector::yAxis));
    EXPECT_DOUBLE_EQ(angle, 1.25);
    EXPECT_FALSE(MQuaternion().getAxisAngle(axis, angle));
    EXPECT_EQ(axis, MVector::xAxis);
    EXPECT_EQ(angle, 0.0);
}

TEST(MQuaternion, TurnsBackByItsInverse)
{
    const MQuaternion q(0.4, MVector(1, -1, 2));
    EXPECT_TRUE((q * q.inverse()).isEquivalent(MQuaternion::identity));
    EXPECT_EQ(q.conjugate(), MQuaternion(-q.x, -q.y, -q.z, q.w));
    MQuaternion doubled(q);
    doubled.scaleIt(2.0);
    EXPECT_TRUE((doubled * doubled.inverse()).isEquivalent(MQuaternion::identity));
    EXPECT_TRUE(doubled.normal().isEquivalent(q));
}

TEST(MQuaternion, HasALogarithmAndItsExponential)
{
    const MQuaternion q(0.8, MVector(1, 2, -2));
    // Half the angle times the unit axis (1, 2, −2) / 3.
    EXPECT_TRUE(q.log().isEquivalent(MQuaternion(0.4 / 3, 0.8 / 3, -0.8 / 3, 0)));
    EXPECT_TRUE(q.log().exp().isEquivalent(q));
}

TEST(MQuaternion, TurnsAShareOfTheWayBetweenTwoDirections)
{
    const MQuaternion half(MVector::xAxis, MVector::yAxis, 0.5);
    EXPECT_TRUE(half.isEquivalent(MQuaternion(kQuarterTurn / 2.0, MVector::zAxis)));
}

TEST(MQuaternion, IsArithmeticByComponent)
{
    const MQuaternion a(1, 2, 3, 4);
    EXPECT_EQ(a + a, 2.0 * a);
    EXPECT_EQ(a - a, MQuaternion(0, 0, 0, 0));
    EXPECT_EQ(a[3], 4.0);
    MQuaternion b(a);
    b.negateIt();
    EXPECT_EQ(b, MQuaternion(-1, -2, -3, -4));
    double parts[4] = {};
    EXPECT_EQ(a.get(parts), MS::kSuccess);
    EXPECT_EQ(parts[1], 2.0);
    std::ostringstream out;
    out << a;
    EXPECT_EQ(out.str(), "[1, 2, 3, 4]");
}

} // namespace
