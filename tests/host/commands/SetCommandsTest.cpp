// sets: members, partitions, and operations on sets.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::IsEmpty;

class SetCommandsTest : public CommandFixture
{
protected:
    SetCommandsTest()
    {
        run("for ($n in {\"a\", \"b\", \"c\"}) createNode transform -n $n;"
            "sets -n \"left\" a b; sets -n \"right\" b c");
    }
};

TEST_F(SetCommandsTest, setsAreJoinedCutAndSubtracted)
{
    EXPECT_THAT(strings("sets -union left right"), ElementsAre("a", "b", "c"));
    EXPECT_THAT(strings("sets -intersection left right"), ElementsAre("b"));
    EXPECT_THAT(strings("sets -subtract left right"), ElementsAre("a"));
    EXPECT_THAT(strings("sets -subtract left a"), ElementsAre("b"));
    EXPECT_EQ(run("sets -isIntersecting left right"), "1");
    EXPECT_EQ(run("sets -isIntersecting left c"), "0");
}

TEST_F(SetCommandsTest, aCopyHasTheMembersOfTheOther)
{
    run("sets -n \"twin\" -copy left -text \"both\"");
    EXPECT_THAT(strings("sets -q twin"), ElementsAre("a", "b"));
    EXPECT_EQ(run("sets -q -text twin"), "both");
    EXPECT_EQ(run("sets -q -renderable twin"), "0");
}

TEST_F(SetCommandsTest, anObjectIsInOneShadingGroupOnly)
{
    run("polyCube; sets -renderable true -em -n \"red\"");
    EXPECT_EQ(run("sets -q -r red"), "1");
    EXPECT_EQ(failure("sets -addElement red pCubeShape1"),
              "'pCubeShape1' is in 'initialShadingGroup' and cannot be in 'red' of the same partition");
    run("sets -include red pCubeShape1");
    EXPECT_THAT(strings("sets -q red"), IsEmpty());
    run("sets -e -forceElement red pCubeShape1");
    EXPECT_THAT(strings("sets -q red"), ElementsAre("pCubeShape1"));
    EXPECT_EQ(run("sets -isMember initialShadingGroup pCubeShape1"), "0");
}

TEST_F(SetCommandsTest, whatSetsDoNotHoldIsRefused)
{
    EXPECT_EQ(failure("sets -vertices -n \"points\""),
              "Flag '-vertices' of sets is refused: sets hold whole objects here");
}

} // namespace tvxhost::mel
