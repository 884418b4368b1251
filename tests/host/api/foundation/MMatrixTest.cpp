// MMatrix and MFloatMatrix: row vectors, translation in row 3.
#include <maya/MFloatMatrix.h>
#include <maya/MMatrix.h>
#include <maya/MPoint.h>
#include <maya/MVector.h>

#include <gtest/gtest.h>

#include <sstream>

namespace {

// det3 of the upper left part: 2 (1·2 − 0·1) − 1 (0·2 − 0·1) + 0 = 4.
const double kNumbers[4][4] = {{2, 1, 0, 0}, {0, 1, 0, 0}, {0, 1, 2, 0}, {5, 6, 7, 1}};

TEST(MMatrix, IsTheIdentityByDefault)
{
    const MMatrix m;
    for (unsigned int row = 0; row < 4; ++row)
        for (unsigned int column = 0; column < 4; ++column)
            EXPECT_EQ(m(row, column), row == column ? 1.0 : 0.0);
    EXPECT_EQ(m, MMatrix::identity);
}

TEST(MMatrix, MovesPointsAndNotVectorsByItsLastRow)
{
    const MMatrix m(kNumbers);
    EXPECT_EQ(MPoint(1, 1, 1) * m, MPoint(7, 9, 9));
    EXPECT_EQ(MVector(1, 1, 1) * m, MVector(2, 3, 2));
}

TEST(MMatrix, AppliesTheLeftSideOfAProductFirst)
{
    const MMatrix a(kNumbers);
    MMatrix b;
    b[0][1] = 3;
    b[3][2] = -1;
    const MPoint p(1, 2, 3);
    EXPECT_EQ(p * (a * b), (p * a) * b);
    MMatrix c(a);
    c *= b;
    EXPECT_EQ(c, a * b);
    c = a;
    c.setToProduct(c, c);
    EXPECT_EQ(c, a * a);
}

TEST(MMatrix, HasDeterminantsAndAnInverse)
{
    const MMatrix m(kNumbers);
    EXPECT_DOUBLE_EQ(m.det3x3(), 4.0);
    EXPECT_DOUBLE_EQ(m.det4x4(), 4.0);
    EXPECT_FALSE(m.isSingular());
    EXPECT_TRUE((m * m.inverse()).isEquivalent(MMatrix::identity));
    EXPECT_TRUE((m.adjoint() * 0.25).isEquivalent(m.inverse()));
}

TEST(MMatrix, IsSingularWhenItFlattensAndNotWhenItIsSmall)
{
    MMatrix flat;
    flat[1][1] = 0.0;
    EXPECT_TRUE(flat.isSingular());
    EXPECT_EQ(flat.inverse(), MMatrix::identity);
    MMatrix small = MMatrix() * 1.0e-6;
    EXPECT_FALSE(small.isSingular());
}

TEST(MMatrix, TransposesAddsAndScales)
{
    const MMatrix m(kNumbers);
    EXPECT_EQ(m.transpose()(0, 3), 5.0);
    EXPECT_EQ(m.transpose().transpose(), m);
    EXPECT_EQ((m + m), m * 2.0);
    EXPECT_EQ(2.0 * m, m * 2.0);
    EXPECT_EQ((m - m)(3, 3), 0.0);
}

TEST(MMatrix, HomogenizesItsAxes)
{
    const double numbers[4][4] = {{3, 4, 0, 9}, {0, 2, 0, 9}, {0, 0, 0, 9}, {5, 6, 7, 9}};
    const double expected[4][4] = {{0.6, 0.8, 0, 0}, {0, 1, 0, 0}, {0, 0, 0, 0}, {5, 6, 7, 1}};
    EXPECT_TRUE(MMatrix(numbers).homogenize().isEquivalent(MMatrix(expected)));
}

TEST(MMatrix, ComparesWithinATolerance)
{
    MMatrix m;
    m[2][2] += 1.0e-11;
    EXPECT_NE(m, MMatrix::identity);
    EXPECT_TRUE(m.isEquivalent(MMatrix::identity));
    EXPECT_FALSE(m.isEquivalent(MMatrix::identity, 1.0e-12));
}

TEST(MMatrix, CopiesItsElementsOut)
{
    double doubles[4][4];
    float floats[4][4];
    EXPECT_EQ(MMatrix(kNumbers).get(doubles), MS::kSuccess);
    EXPECT_EQ(MMatrix(kNumbers).get(floats), MS::kSuccess);
    EXPECT_EQ(doubles[3][1], 6.0);
    EXPECT_EQ(floats[3][2], 7.0f);
    EXPECT_EQ(MMatrix(floats), MMatrix(kNumbers));
}

TEST(MMatrix, IsWrittenRowByRow)
{
    std::ostringstream out;
    out << MMatrix(kNumbers);
    EXPECT_EQ(out.str(), "[[2, 1, 0, 0], [0, 1, 0, 0], [0, 1, 2, 0], [5, 6, 7, 1]]");
}

TEST(MFloatMatrix, DoesTheSameInSinglePrecision)
{
    const MFloatMatrix m(kNumbers);
    EXPECT_FLOAT_EQ(m.det4x4(), 4.0f);
    EXPECT_TRUE((m * m.inverse()).isEquivalent(MFloatMatrix()));
    EXPECT_TRUE((0.25f * m.adjoint()).isEquivalent(m.inverse()));
    EXPECT_EQ(MFloatPoint(1, 1, 1) * m, MFloatPoint(7, 9, 9));
    EXPECT_EQ(MFloatVector(1, 1, 1) * m, MFloatVector(2, 3, 2));
}

} // namespace
