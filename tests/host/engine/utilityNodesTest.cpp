// Utility nodes: what they compute with numbers.
#include "fixtures.h"

#include <gmock/gmock.h>

namespace tvxhost::engine {
namespace {

using testing::ElementsAre;

class PlusMinusAverage : public SceneTest
{
protected:
    PlusMinusAverage() { make("plusMinusAverage", "sum"); }

    double withOperation(int operation)
    {
        set("sum.operation", operation);
        return number("sum.output1D");
    }
};

TEST_F(PlusMinusAverage, IsZeroWithoutInputs)
{
    for (const int operation : {0, 1, 2, 3})
        EXPECT_EQ(withOperation(operation), 0.0);
}

TEST_F(PlusMinusAverage, CombinesWhatThereIsInTheOrderOfIndices)
{
    set("sum.input1D[7]", 2);
    set("sum.input1D[3]", 10);
    set("sum.input1D[9]", 3);
    EXPECT_EQ(withOperation(0), 10.0);
    EXPECT_EQ(withOperation(1), 15.0);
    EXPECT_EQ(withOperation(2), 5.0);
    EXPECT_EQ(withOperation(3), 5.0);
}

TEST_F(PlusMinusAverage, CombinesGroupsComponentByComponent)
{
    set("sum.input2D[0].input2Dx", 1);
    set("sum.input2D[0].input2Dy", 2);
    set("sum.input2D[1].input2Dx", 10);
    set("sum.input3D[0].input3Dz", 4);
    set("sum.input3D[1].input3Dz", 0.5);
    EXPECT_THAT(readNumbers(plug("sum.output2D")).value, ElementsAre(11, 2));
    EXPECT_THAT(readNumbers(plug("sum.output3D")).value, ElementsAre(0, 0, 4.5));
    EXPECT_EQ(number("sum.output3Dz"), 4.5);
    EXPECT_EQ(number("sum.output1D"), 0.0);
}

TEST_F(PlusMinusAverage, FollowsItsInputs)
{
    makeTransform("leader");
    makeTransform("follower");
    EXPECT_TRUE(connect("leader.translateX", "sum.input1D[0]"));
    EXPECT_TRUE(connect("sum.output1D", "follower.translateX"));
    set("sum.input1D[1]", 2);
    EXPECT_EQ(number("follower.translateX"), 2.0);
    set("leader.translateX", 10);
    EXPECT_EQ(number("follower.translateX"), 12.0);
    set("sum.operation", 2);
    EXPECT_EQ(number("follower.translateX"), 8.0);
}

} // namespace
} // namespace tvxhost::engine
