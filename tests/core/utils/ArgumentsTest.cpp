// The values that follow a command's flags.
#include "core/utils/tvxMayaUtils.h"

#include "api/support/faults.h"

#include <maya/MArgList.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>

namespace tarvox::crowd {
namespace {

/// "-flag" and what follows it.
MArgList flagAnd(std::initializer_list<double> numbers)
{
    MArgList arguments;
    arguments.addArg(MString("-flag"));
    for (const double number : numbers)
        arguments.addArg(number);
    return arguments;
}

/// An array of so many elements.
MArgList flagAndArray(std::initializer_list<double> numbers)
{
    MArgList arguments;
    arguments.addArg(MString("-flag"));
    arguments.addArg(static_cast<int>(numbers.size()));
    for (const double number : numbers)
        arguments.addArg(number);
    return arguments;
}

TEST(Arguments, AStringFollowsItsFlag)
{
    MArgList arguments = flagAnd({});
    arguments.addArg(MString("value"));
    unsigned int index = 0;
    MString value;
    EXPECT_TRUE(MayaUtils::readArgument(arguments, index, value));
    EXPECT_EQ(value, MString("value"));
    EXPECT_EQ(index, 1u);
}

TEST(Arguments, NumbersFollowTheirFlags)
{
    const MArgList arguments = flagAnd({2.5, 0.1, 7, 1});
    unsigned int index = 0;
    double real = 0;
    EXPECT_TRUE(MayaUtils::readArgument(arguments, index, real));
    EXPECT_EQ(real, 2.5);
    float narrow = 0;
    EXPECT_TRUE(MayaUtils::readArgument(arguments, index, narrow));
    EXPECT_EQ(narrow, 0.1f);
    int whole = 0;
    EXPECT_TRUE(MayaUtils::readArgument(arguments, index, whole));
    EXPECT_EQ(whole, 7);
    bool flag = false;
    EXPECT_TRUE(MayaUtils::readArgument(arguments, index, flag));
    EXPECT_TRUE(flag);
    EXPECT_EQ(index, 4u);
}

TEST(Arguments, APointIsThreeNumbersAndLeavesTheIndexOnItsLast)
{
    const MArgList arguments = flagAnd({1.5, -2, 3, 4});
    unsigned int index = 0;
    MPoint point;
    EXPECT_TRUE(MayaUtils::readArgument(arguments, index, point));
    EXPECT_EQ(point, MPoint(1.5, -2, 3, 1));
    EXPECT_EQ(index, 3u);
}

TEST(Arguments, ArraysLeaveTheIndexOnTheirLastElement)
{
    unsigned int index = 0;
    MIntArray integers;
    EXPECT_TRUE(MayaUtils::readArgument(flagAndArray({4, 5, 6}), index, integers));
    ASSERT_EQ(integers.length(), 3u);
    EXPECT_EQ(integers[0], 4);
    EXPECT_EQ(integers[2], 6);
    EXPECT_EQ(index, 4u);

    MArgList texts = flagAnd({});
    texts.addArg(2);
    texts.addArg(MString("a"));
    texts.addArg(MString("b"));
    index = 0;
    MStringArray strings;
    EXPECT_TRUE(MayaUtils::readArgument(texts, index, strings));
    ASSERT_EQ(strings.length(), 2u);
    EXPECT_EQ(strings[1], MString("b"));
    EXPECT_EQ(index, 3u);
}

TEST(Arguments, VectorsAreThreeDoublesEachAndAppended)
{
    unsigned int index = 0;
    MVectorArray vectors;
    vectors.append(MVector(9, 9, 9));
    EXPECT_TRUE(MayaUtils::readArgument(flagAndArray({1, 2, 3, 4, 5, 6, 7, 8}), index, vectors));
    ASSERT_EQ(vectors.length(), 3u);
    EXPECT_EQ(vectors[0], MVector(9, 9, 9));
    EXPECT_EQ(vectors[1], MVector(1, 2, 3));
    EXPECT_EQ(vectors[2], MVector(4, 5, 6));
    EXPECT_EQ(index, 9u);
}

template <class Value>
void expectNothingBehindTheLast(const char* what)
{
    SCOPED_TRACE(what);
    const MArgList arguments = flagAnd({});
    unsigned int index = 0;
    Value value{};
    EXPECT_FALSE(MayaUtils::readArgument(arguments, index, value));
    EXPECT_GE(index, 1u);
}

TEST(Arguments, NothingFollowsTheLast)
{
    expectNothingBehindTheLast<MString>("string");
    expectNothingBehindTheLast<double>("double");
    expectNothingBehindTheLast<float>("float");
    expectNothingBehindTheLast<int>("int");
    expectNothingBehindTheLast<bool>("bool");
    expectNothingBehindTheLast<MPoint>("point");
    expectNothingBehindTheLast<MIntArray>("int array");
    expectNothingBehindTheLast<MStringArray>("string array");
    expectNothingBehindTheLast<MVectorArray>("vector array");
}

TEST(Arguments, AnIndexBehindTheListChangesNothing)
{
    const MArgList arguments = flagAnd({2.5});
    for (const unsigned int behind : {2u, 3u, 4000000000u, MArgList::kInvalidArgIndex}) {
        unsigned int index = behind;
        double real = 7;
        EXPECT_FALSE(MayaUtils::readArgument(arguments, index, real));
        EXPECT_EQ(real, 7);
        MString text("unchanged");
        EXPECT_FALSE(MayaUtils::readArgument(arguments, index, text));
        EXPECT_EQ(text, MString("unchanged"));
        MPoint point(1, 2, 3);
        EXPECT_FALSE(MayaUtils::readArgument(arguments, index, point));
        EXPECT_EQ(point, MPoint(1, 2, 3));
        EXPECT_EQ(index, behind);
    }
}

/// A call that fails makes the reader say so, with the index on the value.
template <class Value>
void expectFailureOf(const char* call)
{
    namespace faults = tvxhost::api::faults;
    SCOPED_TRACE(call);
    const MArgList arguments = flagAndArray({1, 2, 3});
    unsigned int index = 0;
    Value value{};
    faults::failCall(call, 1, MStatus(MStatus::kFailure));
    EXPECT_FALSE(MayaUtils::readArgument(arguments, index, value));
    EXPECT_EQ(index, 1u);
    faults::clear();
    index = 0;
    EXPECT_TRUE(MayaUtils::readArgument(arguments, index, value));
}

TEST(Arguments, AReadingThatFailsIsNoValue)
{
    expectFailureOf<MString>("MArgList::asString");
    expectFailureOf<double>("MArgList::asDouble");
    expectFailureOf<float>("MArgList::asDouble");
    expectFailureOf<int>("MArgList::asInt");
    expectFailureOf<bool>("MArgList::asBool");
    expectFailureOf<MPoint>("MArgList::asPoint");
    expectFailureOf<MIntArray>("MArgList::asIntArray");
    expectFailureOf<MStringArray>("MArgList::asStringArray");
    expectFailureOf<MVectorArray>("MArgList::asDoubleArray");
}

TEST(Arguments, AListWithoutALengthHasNoValues)
{
    namespace faults = tvxhost::api::faults;
    unsigned int index = 0;
    int value = 7;
    faults::failCall("MArgList::length", 1, MStatus(MStatus::kFailure));
    EXPECT_FALSE(MayaUtils::readArgument(flagAnd({1}), index, value));
    EXPECT_EQ(value, 7);
    EXPECT_EQ(index, 0u);
    faults::clear();
}

TEST(Arguments, AValueOfAnotherKindIsNone)
{
    MArgList arguments = flagAnd({});
    arguments.addArg(MString("text"));
    unsigned int index = 0;
    double real = 7;
    EXPECT_FALSE(MayaUtils::readArgument(arguments, index, real));
    EXPECT_EQ(index, 1u);
    index = 0;
    MPoint point;
    EXPECT_FALSE(MayaUtils::readArgument(arguments, index, point));
    index = 0;
    MIntArray integers;
    EXPECT_FALSE(MayaUtils::readArgument(arguments, index, integers));
}

} // namespace
} // namespace tarvox::crowd
