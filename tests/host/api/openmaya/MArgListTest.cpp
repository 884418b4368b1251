// MArgList: the arguments of a command.
#include "../sceneFixture.h"

#include "api/support/arguments.h"

#include <maya/MArgList.h>
#include <maya/MDoubleArray.h>
#include <maya/MIntArray.h>
#include <maya/MMatrix.h>

namespace tvxhost::api::test {
namespace {

class MArgListTest : public SceneFixture
{
};

TEST_F(MArgListTest, ReadsArgumentsByTheirIndex)
{
    MArgList list;
    list.addArg(3);
    list.addArg(2.75);
    list.addArg(MString("crowd"));
    list.addArg(true);
    EXPECT_EQ(list.length(), 4u);
    MStatus status = MS::kFailure;
    EXPECT_EQ(list.asInt(0, &status), 3);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(list.asDouble(0), 3.0);
    EXPECT_EQ(list.asInt(1), 2) << "towards zero";
    EXPECT_TRUE(list.asBool(1));
    EXPECT_EQ(text(list.asString(2)), "crowd");
    EXPECT_EQ(text(list.asString(0)), "3");
    EXPECT_EQ(text(list.asString(1)), "2.75");
    EXPECT_EQ(list.asInt(3), 1);
}

TEST_F(MArgListTest, FailsForWhatIsMissingOrOfAnotherKind)
{
    MArgList list;
    list.addArg(MString("crowd"));
    MStatus status;
    EXPECT_EQ(list.asInt(0, &status), 0);
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_EQ(list.asDouble(7, &status), 0.0);
    EXPECT_EQ(text(status), "(kInvalidParameter): No element at given index");
    EXPECT_EQ(text(list.asString(1, &status)), "");
    int kept = 5;
    EXPECT_EQ(list.get(0, kept), MS::kInvalidParameter);
    EXPECT_EQ(kept, 5);
}

TEST_F(MArgListTest, LeavesTheIndexOnTheLastElementOfAPoint)
{
    MArgList list;
    list.addArg(MString("-p"));
    list.addArg(MVector(1, 2, 3));
    list.addArg(MString("end"));
    unsigned int index = 1;
    MStatus status = MS::kFailure;
    EXPECT_EQ(list.asPoint(index, 3, &status), MPoint(1, 2, 3, 1));
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(index, 3u);
    index = 2;
    EXPECT_EQ(list.asVector(index, 2), MVector(2, 3, 0));
    EXPECT_EQ(index, 3u);
}

TEST_F(MArgListTest, LeavesTheIndexOnTheArgumentAtFault)
{
    MArgList list;
    list.addArg(1.0);
    list.addArg(2.0);
    list.addArg(MString("end"));
    unsigned int index = 0;
    MStatus status;
    EXPECT_EQ(list.asPoint(index, 3, &status), MPoint::origin);
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_EQ(index, 2u);
    index = 0;
    list.asVector(index, 4, &status);
    EXPECT_EQ(status, MS::kInvalidParameter) << "a vector has three at most";
    EXPECT_EQ(index, 0u);
}

TEST_F(MArgListTest, ReadsAnArrayBehindItsCount)
{
    MArgList list;
    list.addArg(2);
    list.addArg(10);
    list.addArg(20);
    list.addArg(0);
    list.addArg(1);
    list.addArg(MString("name"));
    unsigned int index = 0;
    const MIntArray numbers = list.asIntArray(index);
    ASSERT_EQ(numbers.length(), 2u);
    EXPECT_EQ(numbers[1], 20);
    EXPECT_EQ(index, 2u);
    index = 3;
    EXPECT_EQ(list.asDoubleArray(index).length(), 0u);
    EXPECT_EQ(index, 3u);
    index = 4;
    EXPECT_EQ(texts(list.asStringArray(index)), (Texts{"name"}));
    EXPECT_EQ(index, 5u);
    MStatus status;
    index = 1;
    EXPECT_EQ(list.asIntArray(index, &status).length(), 0u) << "ten are announced";
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MArgListTest, ReadsAMatrixOfSixteenNumbers)
{
    MArgList list;
    for (int i = 0; i < 16; ++i)
        list.addArg(i);
    unsigned int index = 0;
    EXPECT_EQ(list.asMatrix(index)(1, 2), 6.0);
    EXPECT_EQ(index, 15u);
}

TEST_F(MArgListTest, FindsFlagsByEitherName)
{
    MArgList list;
    list.addArg(MString("node"));
    list.addArg(MString("-name"));
    list.addArg(-1);
    EXPECT_EQ(list.flagIndex("n", "name"), 1u);
    EXPECT_EQ(list.flagIndex("-n", "-name"), 1u);
    EXPECT_EQ(list.flagIndex("n"), MArgList::kInvalidArgIndex);
    EXPECT_EQ(list.flagIndex("node"), MArgList::kInvalidArgIndex) << "no dash, no flag";
}

TEST_F(MArgListTest, ReadsLengthsAnglesAndTimesInTheUnitsOfTheUserInterface)
{
    MDistance::setUIUnit(MDistance::kMeters);
    MArgList list;
    list.addArg(2.0);
    EXPECT_EQ(list.asDistance(0).asCentimeters(), 200.0);
    EXPECT_EQ(list.asAngle(0).unit(), MAngle::kDegrees);
    EXPECT_EQ(list.asTime(0), MTime(2, MTime::kFilm));
    list.addArg(MDistance(250.0));
    EXPECT_EQ(list.asDouble(1), 2.5);
}

TEST_F(MArgListTest, CopiesAreIndependent)
{
    MArgList one;
    one.addArg(1);
    MArgList two(one);
    two.addArg(2);
    EXPECT_EQ(one.length(), 1u);
    one = two;
    EXPECT_EQ(one.length(), 2u);
}

TEST_F(MArgListTest, TakesTheLanguagesValuesApart)
{
    using Result = engine::ScriptRunner::Result;
    Result word, vector, array;
    word.kind = Result::Kind::string;
    word.strings = {"-v"};
    vector.kind = Result::Kind::vector;
    vector.reals = {1, 2, 3};
    array.kind = Result::Kind::integer;
    array.isArray = true;
    array.integers = {7, 8};
    MArgList list;
    tvxAccess::arguments(list) = argumentsOf({word, vector, array});
    EXPECT_EQ(list.length(), 7u);
    unsigned int index = 1;
    EXPECT_EQ(list.asVector(index), MVector(1, 2, 3));
    index = 4;
    EXPECT_EQ(list.asIntArray(index)[1], 8);
}

} // namespace
} // namespace tvxhost::api::test
