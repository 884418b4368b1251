// MPoint, MVector and their float forms: what is not inline.
#include <maya/MEulerRotation.h>
#include <maya/MFloatMatrix.h>
#include <maya/MFloatPoint.h>
#include <maya/MFloatVector.h>
#include <maya/MMatrix.h>
#include <maya/MPoint.h>
#include <maya/MQuaternion.h>
#include <maya/MVector.h>

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

namespace {

const double kHalfTurn = 3.14159265358979323846;
const double kQuarterTurn = kHalfTurn / 2.0;

TEST(MPoint, GoesBetweenCartesianRationalAndHomogeneous)
{
    EXPECT_EQ(MPoint(2, 4, 6, 2).cartesianize(), MPoint(1, 2, 3, 1));
    EXPECT_EQ(MPoint(2, 4, 6, 2).rationalize(), MPoint(1, 2, 3, 2));
    EXPECT_EQ(MPoint(1, 2, 3, 2).homogenize(), MPoint(2, 4, 6, 2));
    EXPECT_EQ(MPoint(1, 2, 3, 0).cartesianize(), MPoint(1, 2, 3, 0));
    EXPECT_EQ(MFloatPoint(2, 4, 6, 2).cartesianize(), MFloatPoint(1, 2, 3, 1));
}

TEST(MVector, HasTheAngleToAnother)
{
    EXPECT_DOUBLE_EQ(MVector(2, 0, 0).angle(MVector(0, 5, 0)), kQuarterTurn);
    EXPECT_DOUBLE_EQ(MVector(1, 0, 0).angle(MVector(-3, 0, 0)), kHalfTurn);
    EXPECT_DOUBLE_EQ(MVector(1, 0, 0).angle(MVector(1, 1.0e-9, 0)), 1.0e-9);
    EXPECT_NEAR(MFloatVector(2, 0, 0).angle(MFloatVector(0, 5, 0)), kQuarterTurn, 1.0e-6);
}

TEST(MVector, IsParallelToItsOpposite)
{
    EXPECT_TRUE(MVector(1, 2, 3).isParallel(MVector(-2, -4, -6)));
    EXPECT_FALSE(MVector(1, 2, 3).isParallel(MVector(1, 2, 4)));
    EXPECT_TRUE(MFloatVector(1, 2, 3).isParallel(MFloatVector(2, 4, 6)));
}

TEST(MVector, TurnsFromXToYAboutZ)
{
    const MVector y = MVector::yAxis;
    EXPECT_TRUE(MVector::xAxis.rotateBy(MVector::kZaxis, kQuarterTurn).isEquivalent(y));
    EXPECT_TRUE(MVector::xAxis.rotateBy(MEulerRotation(0, 0, kQuarterTurn)).isEquivalent(y));
    EXPECT_TRUE(MVector::xAxis.rotateBy(MQuaternion(kQuarterTurn, MVector::zAxis)).isEquivalent(y));
    const double half = std::sqrt(0.5);
    EXPECT_TRUE(MVector::xAxis.rotateBy(0, 0, half, half).isEquivalent(y));
}

TEST(MVector, TurnsInTheGivenOrder)
{
    const double angles[3] = {kQuarterTurn, 0, kQuarterTurn};
    // x first: y goes to z, and z stays; z first: y goes to −x, and x stays.
    EXPECT_TRUE(MVector::yAxis.rotateBy(angles, MTransformationMatrix::kXYZ).isEquivalent(MVector::zAxis));
    EXPECT_TRUE(MVector::yAxis.rotateBy(angles, MTransformationMatrix::kZYX).isEquivalent(MVector::xNegAxis));
}

TEST(MVector, TurnsToAnotherTheShortestWay)
{
    const MVector from(1, 2, 3);
    const MVector to(-2, 0, 5);
    EXPECT_TRUE(from.rotateBy(from.rotateTo(to)).isParallel(to));
    EXPECT_TRUE(from.rotateBy(from.rotateTo(-from)).isEquivalent(-from));
    EXPECT_EQ(from.rotateTo(from * 2.0), MQuaternion::identity);
}

TEST(MVector, StaysPerpendicularToASurfaceThatIsStretched)
{
    MMatrix stretch;
    stretch[0][0] = 2.0;
    const MVector normal(1, 1, 0);
    const MVector along(1, -1, 0);
    EXPECT_NEAR(normal.transformAsNormal(stretch) * (along * stretch), 0.0, 1.0e-12);
    MFloatMatrix floats;
    floats[0][0] = 2.0f;
    EXPECT_EQ(MFloatVector(1, 1, 0).transformAsNormal(floats), MFloatVector(0.5f, 1, 0));
}

TEST(PointsAndVectors, AreWrittenInBrackets)
{
    std::ostringstream out;
    out << MPoint(1, 2, 3) << MVector(1, 2, 3) << MFloatPoint(1, 2, 3) << MFloatVector(0.5f, 0, 0);
    EXPECT_EQ(out.str(), "[1, 2, 3, 1][1, 2, 3][1, 2, 3, 1][0.5, 0, 0]");
}

} // namespace
