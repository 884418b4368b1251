// listRelatives, parent, group, instance.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;

class DagCommandsTest : public CommandFixture
{
protected:
    DagCommandsTest()
    {
        run("createNode transform -n \"a\"; createNode transform -n \"b\" -p \"a\";"
            "createNode mesh -n \"s\" -p \"b\"; createNode transform -n \"c\"; select -cl");
    }
};

TEST_F(DagCommandsTest, listRelativesGoesUpAndDown)
{
    EXPECT_THAT(strings("listRelatives a"), ElementsAre("b"));
    EXPECT_THAT(strings("listRelatives -ad a"), ElementsAre("s", "b"));
    EXPECT_THAT(strings("listRelatives -s -f b"), ElementsAre("|a|b|s"));
    EXPECT_THAT(strings("listRelatives -p s"), ElementsAre("b"));
    EXPECT_THAT(strings("listRelatives -p -f s"), ElementsAre("|a|b"));
}

TEST_F(DagCommandsTest, parentKeepsThePlaceInTheWorld)
{
    run("setAttr c.t 10 0 0; setAttr a.t 1 2 3; parent b c");
    EXPECT_THAT(strings("ls -l b"), ElementsAre("|c|b"));
    EXPECT_THAT(numbers("xform -q -ws -t b"), ElementsAre(1, 2, 3));
    EXPECT_THAT(numbers("getAttr b.t"), ElementsAre(-9, 2, 3));
}

TEST_F(DagCommandsTest, parentRelativeKeepsTheNumbers)
{
    run("setAttr a.t 1 2 3; setAttr b.t 4 5 6; parent -r -w b");
    EXPECT_THAT(strings("ls -l b"), ElementsAre("|b"));
    EXPECT_THAT(numbers("getAttr b.t"), ElementsAre(4, 5, 6));
}

TEST_F(DagCommandsTest, shapesNeedTheirFlag)
{
    EXPECT_EQ(failure("parent s c"),
              "'parent' command only operates on transform nodes. To parent shapes, use the -s/shape flag.");
    run("parent -s -r s c");
    EXPECT_THAT(strings("ls -l s"), ElementsAre("|c|s"));
}

TEST_F(DagCommandsTest, parentAddMakesInstances)
{
    run("parent -s -add s c");
    EXPECT_THAT(strings("ls -ap -l s"), ElementsAre("|a|b|s", "|c|s"));
    EXPECT_THAT(strings("listRelatives -ap s"), ElementsAre("b", "c"));
    run("parent -s -rm \"|c|s\"");
    EXPECT_THAT(strings("ls -ap -l s"), ElementsAre("|a|b|s"));
}

TEST_F(DagCommandsTest, nothingBecomesItsOwnAncestor)
{
    EXPECT_FALSE(failure("parent a b").empty());
    EXPECT_THAT(strings("ls -l b"), ElementsAre("|a|b"));
}

TEST_F(DagCommandsTest, groupsStandWhereTheirFirstMemberStood)
{
    EXPECT_EQ(run("group -n \"crowd\" b"), "crowd");
    EXPECT_THAT(strings("ls -l b"), ElementsAre("|a|crowd|b"));
    EXPECT_EQ(run("group -em"), "group1");
}

TEST_F(DagCommandsTest, instancesShareTheShape)
{
    EXPECT_THAT(strings("instance b"), ElementsAre("b1"));
    EXPECT_THAT(strings("ls -ap -l s"), ElementsAre("|a|b|s", "|a|b1|s"));
}

} // namespace tvxhost::mel
