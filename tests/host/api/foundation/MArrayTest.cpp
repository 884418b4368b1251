// The arrays of values.
#include <maya/MColorArray.h>
#include <maya/MDoubleArray.h>
#include <maya/MFloatArray.h>
#include <maya/MFloatPointArray.h>
#include <maya/MFloatVectorArray.h>
#include <maya/MInt64Array.h>
#include <maya/MIntArray.h>
#include <maya/MMatrixArray.h>
#include <maya/MPointArray.h>
#include <maya/MStringArray.h>
#include <maya/MTimeArray.h>
#include <maya/MUint64Array.h>
#include <maya/MUintArray.h>
#include <maya/MVectorArray.h>

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

/// Two different elements of each array's kind.
template <class Array>
struct Samples;

#define TVX_SAMPLES(Array, Element, one, two)                                                                \
    template <>                                                                                              \
    struct Samples<Array>                                                                                    \
    {                                                                                                        \
        static Element first() { return one; }                                                               \
        static Element second() { return two; }                                                              \
    }

TVX_SAMPLES(MIntArray, int, 1, -2);
TVX_SAMPLES(MUintArray, unsigned int, 1u, 4000000000u);
TVX_SAMPLES(MInt64Array, MInt64, 1, -9000000000);
TVX_SAMPLES(MUint64Array, MUint64, 1, 9000000000u);
TVX_SAMPLES(MFloatArray, float, 1.5f, -2.5f);
TVX_SAMPLES(MDoubleArray, double, 1.5, -2.5);
TVX_SAMPLES(MStringArray, MString, MString("one"), MString("two"));
TVX_SAMPLES(MVectorArray, MVector, MVector(1, 2, 3), MVector(4, 5, 6));
TVX_SAMPLES(MFloatVectorArray, MFloatVector, MFloatVector(1, 2, 3), MFloatVector(4, 5, 6));
TVX_SAMPLES(MPointArray, MPoint, MPoint(1, 2, 3), MPoint(4, 5, 6, 0.5));
TVX_SAMPLES(MFloatPointArray, MFloatPoint, MFloatPoint(1, 2, 3), MFloatPoint(4, 5, 6, 0.5f));
TVX_SAMPLES(MColorArray, MColor, MColor(1, 0, 0), MColor(0, 1, 0, 0.5f));
TVX_SAMPLES(MTimeArray, MTime, MTime(1, MTime::kFilm), MTime(2, MTime::kSeconds));
TVX_SAMPLES(MMatrixArray, MMatrix, MMatrix(), MMatrix() * 2.0);

template <class Array>
class AnArray : public testing::Test
{
};

using Arrays = testing::Types<MIntArray, MUintArray, MInt64Array, MUint64Array, MFloatArray, MDoubleArray,
                              MStringArray, MVectorArray, MFloatVectorArray, MPointArray, MFloatPointArray,
                              MColorArray, MTimeArray, MMatrixArray>;
TYPED_TEST_SUITE(AnArray, Arrays);

TYPED_TEST(AnArray, BeginsEmpty)
{
    TypeParam array;
    EXPECT_EQ(array.length(), 0u);
    EXPECT_EQ(array.clear(), MS::kSuccess);
    EXPECT_EQ(array.remove(0), MS::kInvalidParameter);
    EXPECT_EQ(array.set(Samples<TypeParam>::first(), 0), MS::kInvalidParameter);
}

TYPED_TEST(AnArray, KeepsWhatIsAppendedInOrder)
{
    TypeParam array;
    EXPECT_EQ(array.append(Samples<TypeParam>::first()), MS::kSuccess);
    EXPECT_EQ(array.append(Samples<TypeParam>::second()), MS::kSuccess);
    ASSERT_EQ(array.length(), 2u);
    EXPECT_TRUE(array[0] == Samples<TypeParam>::first());
    EXPECT_TRUE(array[1] == Samples<TypeParam>::second());
}

TYPED_TEST(AnArray, InsertsUpToItsEndAndNoFurther)
{
    TypeParam array;
    EXPECT_EQ(array.insert(Samples<TypeParam>::second(), 1), MS::kInvalidParameter);
    EXPECT_EQ(array.insert(Samples<TypeParam>::second(), 0), MS::kSuccess);
    EXPECT_EQ(array.insert(Samples<TypeParam>::first(), 0), MS::kSuccess);
    EXPECT_EQ(array.insert(Samples<TypeParam>::first(), 2), MS::kSuccess);
    ASSERT_EQ(array.length(), 3u);
    EXPECT_TRUE(array[0] == Samples<TypeParam>::first());
    EXPECT_TRUE(array[1] == Samples<TypeParam>::second());
    EXPECT_TRUE(array[2] == Samples<TypeParam>::first());
}

TYPED_TEST(AnArray, InsertsACopyOfOneOfItsOwnElements)
{
    TypeParam array;
    array.append(Samples<TypeParam>::first());
    array.append(Samples<TypeParam>::second());
    array.insert(array[1], 0);
    EXPECT_TRUE(array[0] == Samples<TypeParam>::second());
}

TYPED_TEST(AnArray, ClosesTheGapWhenAnElementIsRemoved)
{
    TypeParam array;
    array.append(Samples<TypeParam>::first());
    array.append(Samples<TypeParam>::second());
    EXPECT_EQ(array.remove(2), MS::kInvalidParameter);
    EXPECT_EQ(array.remove(0), MS::kSuccess);
    ASSERT_EQ(array.length(), 1u);
    EXPECT_TRUE(array[0] == Samples<TypeParam>::second());
}

TYPED_TEST(AnArray, ReplacesElementsThatExist)
{
    TypeParam array;
    array.append(Samples<TypeParam>::first());
    EXPECT_EQ(array.set(Samples<TypeParam>::second(), 0), MS::kSuccess);
    EXPECT_EQ(array.set(Samples<TypeParam>::second(), 1), MS::kInvalidParameter);
    EXPECT_TRUE(array[0] == Samples<TypeParam>::second());
    array[0] = Samples<TypeParam>::first();
    EXPECT_TRUE(array[0] == Samples<TypeParam>::first());
}

TYPED_TEST(AnArray, IsShortenedAndLengthened)
{
    TypeParam array;
    array.append(Samples<TypeParam>::first());
    EXPECT_EQ(array.setLength(3), MS::kSuccess);
    EXPECT_EQ(array.length(), 3u);
    EXPECT_TRUE(array[0] == Samples<TypeParam>::first());
    EXPECT_EQ(array.setLength(1), MS::kSuccess);
    EXPECT_EQ(array.length(), 1u);
}

TYPED_TEST(AnArray, CopiesAreIndependent)
{
    TypeParam one;
    one.append(Samples<TypeParam>::first());
    TypeParam two(one);
    two[0] = Samples<TypeParam>::second();
    EXPECT_TRUE(one[0] == Samples<TypeParam>::first());
    two = one;
    EXPECT_TRUE(two[0] == Samples<TypeParam>::first());
    two = TypeParam();
    EXPECT_EQ(two.length(), 0u);
    EXPECT_EQ(one.length(), 1u);
}

TYPED_TEST(AnArray, SurvivesAssignmentToItself)
{
    TypeParam array;
    array.append(Samples<TypeParam>::first());
    const TypeParam& same = array;
    array = same;
    ASSERT_EQ(array.length(), 1u);
    EXPECT_TRUE(array[0] == Samples<TypeParam>::first());
}

TEST(MIntArray, TakesAndGivesPlainNumbers)
{
    const int numbers[] = {3, 1, 4};
    const MIntArray array(numbers, 3);
    int copy[3] = {};
    EXPECT_EQ(array.get(copy), MS::kSuccess);
    EXPECT_EQ(copy[0], 3);
    EXPECT_EQ(copy[2], 4);
    EXPECT_EQ(MIntArray(2, 7)[1], 7);
    EXPECT_EQ(MIntArray(2)[1], 0);
    MIntArray other;
    EXPECT_EQ(other.copy(array), MS::kSuccess);
    EXPECT_EQ(other[1], 1);
}

TEST(MIntArray, KeepsItsSizeIncrement)
{
    MIntArray array;
    EXPECT_EQ(array.sizeIncrement(), 1u);
    array.setSizeIncrement(64);
    EXPECT_EQ(array.sizeIncrement(), 64u);
    EXPECT_EQ(MIntArray(array).sizeIncrement(), 1u);
}

TEST(MFloatArray, ConvertsFromAndToDouble)
{
    const double numbers[] = {0.1, 0.5};
    MFloatArray array(numbers, 2);
    EXPECT_EQ(array[0], 0.1f);
    EXPECT_EQ(array.set(0.25, 1), MS::kSuccess);
    double copy[2] = {};
    array.get(copy);
    EXPECT_EQ(copy[1], 0.25);
    float floats[2] = {};
    MDoubleArray(floats, 2).get(floats);
    EXPECT_EQ(floats[0], 0.0f);
}

TEST(MVectorArray, TakesAndGivesRowsOfNumbers)
{
    const float rows[][3] = {{1, 2, 3}, {4, 5, 6}};
    MVectorArray array(rows, 2);
    EXPECT_EQ(array[1], MVector(4, 5, 6));
    double element[3] = {7, 8, 9};
    EXPECT_EQ(array.set(element, 0), MS::kSuccess);
    EXPECT_EQ(array.set(element, 2), MS::kInvalidParameter);
    double copy[2][3] = {};
    EXPECT_EQ(array.get(copy), MS::kSuccess);
    EXPECT_EQ(copy[0][2], 9.0);
    EXPECT_EQ(copy[1][0], 4.0);
    EXPECT_EQ(MVectorArray(1)[0], MVector::zero);
}

TEST(MPointArray, FillsWithOneWhereNoFourthCoordinateIsGiven)
{
    MPointArray array;
    array.append(1, 2);
    EXPECT_EQ(array[0], MPoint(1, 2, 0, 1));
    EXPECT_EQ(array.set(0, 5, 6, 7), MS::kSuccess);
    EXPECT_EQ(array[0], MPoint(5, 6, 7, 1));
    EXPECT_EQ(MPointArray(1)[0], MPoint::origin);
    float rows[1][4] = {};
    array.get(rows);
    EXPECT_EQ(rows[0][3], 1.0f);
}

TEST(MColorArray, OverwritesItsFirstElementsFromRows)
{
    MColorArray array(2);
    double rows[][4] = {{0.25, 0.5, 0.75, 1.0}};
    EXPECT_EQ(array.set(rows, 1), MS::kSuccess);
    EXPECT_EQ(array[0], MColor(0.25f, 0.5f, 0.75f, 1.0f));
    EXPECT_EQ(array[1], MColor::kOpaqueBlack);
    EXPECT_EQ(array.set(rows, 3), MS::kInvalidParameter);
    array.append(1, 1, 1);
    EXPECT_EQ(array[2], MColor(1, 1, 1, 1));
}

TEST(MStringArray, TakesPlainStrings)
{
    const char* names[] = {"a", "b"};
    MStringArray array(names, 2);
    EXPECT_EQ(array[1], MString("b"));
    MString copy[2];
    EXPECT_EQ(array.get(copy), MS::kSuccess);
    EXPECT_EQ(copy[0], MString("a"));
    char room[8] = {};
    char* places[] = {room, room + 4};
    EXPECT_EQ(array.get(places), MS::kSuccess);
    EXPECT_STREQ(room, "a");
    EXPECT_STREQ(room + 4, "b");
}

template <class Array>
std::string written(const Array& array)
{
    std::ostringstream out;
    out << array;
    return out.str();
}

TEST(Arrays, AreWrittenInBrackets)
{
    const int numbers[] = {1, 2};
    EXPECT_EQ(written(MIntArray(numbers, 2)), "[1, 2]");
    EXPECT_EQ(written(MIntArray()), "[]");
    EXPECT_EQ(written(MVectorArray(1, MVector(1, 2, 3))), "[[1, 2, 3]]");
    EXPECT_EQ(written(MStringArray(2, "a")), "[a, a]");
}

} // namespace
