// The next free number among nodes of a type.
#include "HolderFixture.h"

namespace tarvox::crowd::test {
namespace {

class FreeIndex : public HolderFixture
{
protected:
    /// The free index of `holder` beside others with these numbers.
    int beside(const std::vector<int>& numbers)
    {
        for (const int number : numbers) {
            const MObject other = make("holderNode");
            MPlug(other, attribute("intValue")).setInt(number);
        }
        return MayaUtils::findFreeIndex(holder, attribute("intValue"), MTypeId(0x70001));
    }
};

TEST_F(FreeIndex, IsOneWithoutOthers)
{
    plug("intValue").setInt(7);
    EXPECT_EQ(beside({}), 1);
}
TEST_F(FreeIndex, IsBelowTheSmallestWhenThereIsRoom)
{
    EXPECT_EQ(beside({3, 5}), 2);
    EXPECT_EQ(beside({2}), 1); // beside 3, 5 and 2
}
TEST_F(FreeIndex, IsAboveTheLargestOtherwise)
{
    EXPECT_EQ(beside({1, 5}), 6);
}
TEST_F(FreeIndex, LooksAtTheLastNumberAndNotAtTheSmallest)
{
    EXPECT_EQ(beside({5, 0}), 1);
}
TEST_F(FreeIndex, GoesByTheSmallestWhenTheLastIsGood)
{
    EXPECT_EQ(beside({0, 5}), 6);
}
TEST_F(FreeIndex, TakesTheFirstNumberForSmallestAndLargest)
{
    EXPECT_EQ(beside({-5}), 1);
    EXPECT_EQ(beside({4}), 5); // beside -5 and 4
}
TEST_F(FreeIndex, DoesNotCountNodesOfOtherTypes)
{
    make("transform", "other");
    EXPECT_EQ(beside({}), 1);
}
TEST_F(FreeIndex, CountsAllWhenNoneIsExcluded)
{
    plug("intValue").setInt(4);
    EXPECT_EQ(MayaUtils::findFreeIndex(MObject::kNullObj, attribute("intValue"), MTypeId(0x70001)), 3);
}
TEST_F(FreeIndex, GoesByTheNodesThatCouldBeListed)
{
    beside({4, 2});
    const MObject intValue = attribute("intValue");
    faults::failCall("MItDependencyNodes::MItDependencyNodes", 1, MStatus(MStatus::kFailure));
    EXPECT_EQ(MayaUtils::findFreeIndex(holder, intValue, MTypeId(0x70001)), 1);
    EXPECT_THAT(recorder.take(), testing::IsEmpty());
}
TEST_F(FreeIndex, ReadsWithoutALookUp)
{
    const MObject intValue = attribute("intValue");
    plug("intValue").setInt(4);
    faults::record(true);
    EXPECT_EQ(MayaUtils::findFreeIndex(MObject::kNullObj, intValue, MTypeId(0x70001)), 3);
    EXPECT_EQ(faults::countOf("MFnDependencyNode::findPlug"), 0u);
}

} // namespace
} // namespace tarvox::crowd::test
