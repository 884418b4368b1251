// The inline arithmetic of points, vectors, colours and matrices.
#include <maya/MColor.h>
#include <maya/MFloatMatrix.h>
#include <maya/MFloatPoint.h>
#include <maya/MFloatVector.h>
#include <maya/MMatrix.h>
#include <maya/MPoint.h>
#include <maya/MVector.h>

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// The vector and point types of one precision.
struct Double
{
    using Number = double;
    using Other = float;
    using Vector = MVector;
    using OtherVector = MFloatVector;
    using Point = MPoint;
    using OtherPoint = MFloatPoint;
};

struct Single
{
    using Number = float;
    using Other = double;
    using Vector = MFloatVector;
    using OtherVector = MVector;
    using Point = MFloatPoint;
    using OtherPoint = MPoint;
};

template <class Precision>
class Values : public testing::Test
{
};

using Precisions = testing::Types<Double, Single>;
TYPED_TEST_SUITE(Values, Precisions);

TYPED_TEST(Values, VectorsAreMadeOfNumbersArraysAndEachOther)
{
    using Vector = typename TypeParam::Vector;
    const typename TypeParam::Number same[3] = {1, 2, 3};
    const typename TypeParam::Other other[3] = {1, 2, 3};
    const Vector vector(1, 2, 3);
    EXPECT_TRUE(Vector() == Vector(0, 0, 0));
    EXPECT_TRUE(Vector(1, 2) == Vector(1, 2, 0));
    EXPECT_TRUE(Vector(same) == vector);
    EXPECT_TRUE(Vector(other) == vector);
    EXPECT_TRUE(Vector(typename TypeParam::OtherVector(1, 2, 3)) == vector);
    EXPECT_TRUE(Vector(typename TypeParam::Point(1, 2, 3, 4)) == vector);
    EXPECT_TRUE(Vector(typename TypeParam::OtherPoint(1, 2, 3, 4)) == vector);
}

TYPED_TEST(Values, VectorArithmetic)
{
    using Vector = typename TypeParam::Vector;
    using Number = typename TypeParam::Number;
    const Vector a(1, 2, 3);
    const Vector b(4, -5, 6);
    EXPECT_TRUE(a + b == Vector(5, -3, 9));
    EXPECT_TRUE(a - b == Vector(-3, 7, -3));
    EXPECT_TRUE(-a == Vector(-1, -2, -3));
    EXPECT_TRUE(a * Number(2) == Vector(2, 4, 6));
    EXPECT_TRUE(a / Number(2) == Vector(Number(0.5), 1, Number(1.5)));
    EXPECT_EQ(a * b, Number(4 - 10 + 18));
    EXPECT_TRUE((a ^ b) == Vector(2 * 6 - 3 * -5, 3 * 4 - 1 * 6, 1 * -5 - 2 * 4));

    Vector c(a);
    EXPECT_TRUE((c += b) == Vector(5, -3, 9));
    EXPECT_TRUE((c -= b) == a);
    EXPECT_TRUE((c *= Number(4)) == Vector(4, 8, 12));
    EXPECT_TRUE((c /= Number(4)) == a);
}

TYPED_TEST(Values, NumbersOfEveryKindScaleAVectorFromTheLeft)
{
    using Vector = typename TypeParam::Vector;
    const Vector vector(1, 2, 3);
    const Vector twice(2, 4, 6);
    const short shortTwo = 2;
    const unsigned short unsignedShortTwo = 2;
    EXPECT_TRUE(2.0 * vector == twice);
    EXPECT_TRUE(2.0f * vector == twice);
    EXPECT_TRUE(2 * vector == twice);
    EXPECT_TRUE(2u * vector == twice);
    EXPECT_TRUE(shortTwo * vector == twice);
    EXPECT_TRUE(unsignedShortTwo * vector == twice);
}

TYPED_TEST(Values, ComponentsByIndex)
{
    typename TypeParam::Vector vector(1, 2, 3);
    typename TypeParam::Point point(1, 2, 3, 4);
    for (unsigned int i = 0; i < 3; ++i) {
        EXPECT_EQ(vector[i], i + 1);
        EXPECT_EQ(vector(i), i + 1);
        vector[i] = 7;
    }
    for (unsigned int i = 0; i < 4; ++i) {
        EXPECT_EQ(point[i], i + 1);
        EXPECT_EQ(point(i), i + 1);
        point(i) = 7;
    }
    EXPECT_TRUE(vector == typename TypeParam::Vector(7, 7, 7));
    EXPECT_TRUE(point == typename TypeParam::Point(7, 7, 7, 7));
}

TYPED_TEST(Values, LengthAndDirection)
{
    using Vector = typename TypeParam::Vector;
    const Vector vector(2, 3, 6);
    EXPECT_EQ(vector.length(), 7);
    EXPECT_TRUE(vector.normal().isEquivalent(vector / typename TypeParam::Number(7)));

    Vector none;
    EXPECT_TRUE(none.normalize());
    EXPECT_TRUE(none == Vector(0, 0, 0));
}

TYPED_TEST(Values, EquivalenceHasATolerancePerComponent)
{
    using Point = typename TypeParam::Point;
    using Number = typename TypeParam::Number;
    const Number half = Number(0.5);
    EXPECT_TRUE(Point(1, 2, 3).isEquivalent(Point(Number(1.5), Number(1.5), Number(3.5)), half));
    EXPECT_FALSE(Point(1, 2, 3).isEquivalent(Point(1, 2, Number(3.75)), half));
    EXPECT_FALSE(Point(1, 2, 3, 1).isEquivalent(Point(1, 2, 3, 2), half));
}

TYPED_TEST(Values, PointsAreMadeOfNumbersArraysAndEachOther)
{
    using Point = typename TypeParam::Point;
    const typename TypeParam::Number same[4] = {1, 2, 3, 4};
    const typename TypeParam::Other other[4] = {1, 2, 3, 4};
    EXPECT_TRUE(Point() == Point(0, 0, 0, 1));
    EXPECT_TRUE(Point(1, 2) == Point(1, 2, 0, 1));
    EXPECT_TRUE(Point(same) == Point(1, 2, 3, 4));
    EXPECT_TRUE(Point(other) == Point(1, 2, 3, 4));
    EXPECT_TRUE(Point(typename TypeParam::OtherPoint(1, 2, 3, 4)) == Point(1, 2, 3, 4));
    EXPECT_TRUE(Point(typename TypeParam::Vector(1, 2, 3)) == Point(1, 2, 3, 1));
    EXPECT_TRUE(Point(typename TypeParam::OtherVector(1, 2, 3)) == Point(1, 2, 3, 1));
}

TYPED_TEST(Values, PointsMoveByVectorsAndKeepTheirWeight)
{
    using Point = typename TypeParam::Point;
    using Vector = typename TypeParam::Vector;
    using Number = typename TypeParam::Number;
    const Point point(1, 2, 3, 2);
    const Vector step(10, 20, 30);
    EXPECT_TRUE(point + step == Point(11, 22, 33, 2));
    EXPECT_TRUE(point - step == Point(-9, -18, -27, 2));
    EXPECT_TRUE(point * Number(2) == Point(2, 4, 6, 2));
    EXPECT_TRUE(Number(2) * point == Point(2, 4, 6, 2));
    EXPECT_TRUE(point / Number(2) == Point(Number(0.5), 1, Number(1.5), 2));
    EXPECT_TRUE(Point(4, 5, 6) - Point(1, 1, 1) == Vector(3, 4, 5));
    EXPECT_EQ(Point(1, 1, 1).distanceTo(Point(3, 4, 7)), 7);

    Point moved(point);
    EXPECT_TRUE((moved += step) == Point(11, 22, 33, 2));
    EXPECT_TRUE((moved -= step) == point);
}

TYPED_TEST(Values, ComponentsAreCopiedOut)
{
    typename TypeParam::Number three[3] = {};
    EXPECT_TRUE(typename TypeParam::Vector(1, 2, 3).get(three));
    EXPECT_EQ(three[0], 1);
    EXPECT_EQ(three[1], 2);
    EXPECT_EQ(three[2], 3);

    double doubles[4] = {};
    float floats[4] = {};
    const typename TypeParam::Point point(1, 2, 3, 4);
    EXPECT_TRUE(point.get(doubles));
    EXPECT_TRUE(point.get(floats));
    for (unsigned int i = 0; i < 4; ++i) {
        EXPECT_EQ(doubles[i], i + 1);
        EXPECT_EQ(floats[i], static_cast<float>(i + 1));
    }
}

TEST(FloatPoint, TakesOverValuesOfHigherPrecision)
{
    const double four[4] = {0.1, 0.2, 0.3, 0.4};
    MFloatPoint point;
    EXPECT_TRUE(point.setCast(MPoint(0.1, 0.2, 0.3, 0.4)));
    EXPECT_TRUE(point == MFloatPoint(0.1f, 0.2f, 0.3f, 0.4f));
    EXPECT_TRUE(point.setCast(MVector(0.1, 0.2, 0.3)));
    EXPECT_TRUE(point == MFloatPoint(0.1f, 0.2f, 0.3f, 1.0f));
    EXPECT_TRUE(point.setCast(four));
    EXPECT_TRUE(point == MFloatPoint(0.1f, 0.2f, 0.3f, 0.4f));
}

TEST(Color, ComponentsDefaultToOpaqueBlack)
{
    const float rgb[3] = {0.25f, 0.5f, 0.75f};
    EXPECT_TRUE(MColor() == MColor(0, 0, 0, 1));
    EXPECT_TRUE(MColor(0.5f) == MColor(0, 0, 0, 0.5f));
    EXPECT_TRUE(MColor(0.25f, 0.5f) == MColor(0.25f, 0.5f, 0, 1));
    EXPECT_TRUE(MColor(rgb) == MColor(0.25f, 0.5f, 0.75f, 1));
}

TEST(Color, ComponentsByIndexAndCopiedOut)
{
    MColor color(1, 2, 3, 4);
    float rgb[3] = {};
    EXPECT_TRUE(color.get(rgb));
    EXPECT_EQ(rgb[0], 1);
    EXPECT_EQ(rgb[1], 2);
    EXPECT_EQ(rgb[2], 3);
    for (unsigned int i = 0; i < 4; ++i) {
        EXPECT_EQ(color[i], static_cast<float>(i + 1));
        color(i) = 9;
    }
    EXPECT_TRUE(color == MColor(9, 9, 9, 9));
}

TEST(Matrix, ElementsByRowAndColumn)
{
    MMatrix doubles;
    MFloatMatrix floats;
    doubles(3, 1) = 5;
    floats(3, 1) = 5;
    EXPECT_EQ(doubles.matrix[3][1], 5);
    EXPECT_EQ(doubles[3][1], 5);
    EXPECT_EQ(floats.matrix[3][1], 5);
    EXPECT_EQ(floats[3][1], 5);
}

} // namespace
