// listRelatives, parent, group, ungroup, instance.
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

TEST_F(DagCommandsTest, instancesAreNamedByTheirOwnPlace)
{
    EXPECT_THAT(strings("parent -s -add s c"), ElementsAre("c|s"));
    EXPECT_THAT(strings("parent -add b c"), ElementsAre("c|b"));
    EXPECT_THAT(strings("ls -ap -l s"), ElementsAre("|a|b|s", "|c|b|s", "|c|s"));
    EXPECT_THAT(strings("listRelatives -ap b"), ElementsAre("a", "c"));
}

TEST_F(DagCommandsTest, instancesStandWhereTheirParentDoes)
{
    run("setAttr a.t 1 0 0; setAttr b.t 0 2 0; setAttr c.t 0 0 5; parent -add b c");
    EXPECT_THAT(numbers("xform -q -ws -t \"a|b\""), ElementsAre(1, 2, 0));
    EXPECT_THAT(numbers("xform -q -ws -t \"c|b\""), ElementsAre(0, 2, 5));
    run("move -ws 7 7 7 \"c|b\"");
    EXPECT_THAT(numbers("getAttr b.t"), ElementsAre(7, 7, 2));
}

TEST_F(DagCommandsTest, aShapeThatWouldLeaveItsPlaceGetsATransform)
{
    run("setAttr c.t 10 0 0");
    EXPECT_THAT(strings("parent -s s c"), ElementsAre("s"));
    EXPECT_THAT(strings("ls -l s"), ElementsAre("|c|transform1|s"));
    EXPECT_THAT(numbers("getAttr transform1.t"), ElementsAre(-10, 0, 0));
}

TEST_F(DagCommandsTest, aShapeGetsATransformBelowTheWorld)
{
    run("setAttr a.t 1 2 3");
    EXPECT_THAT(strings("parent -r -s -w s"), ElementsAre("s"));
    EXPECT_THAT(strings("ls -l s"), ElementsAre("|transform1|s"));
    EXPECT_THAT(numbers("getAttr transform1.t"), ElementsAre(0, 0, 0));
    run("parent -s -r s b; parent -s -w s");
    EXPECT_THAT(strings("ls -l s"), ElementsAre("|transform2|s"));
    EXPECT_THAT(numbers("getAttr transform2.t"), ElementsAre(1, 2, 3));
}

TEST_F(DagCommandsTest, parentNeedsSomethingToMove)
{
    EXPECT_EQ(failure("parent -w"), "Nothing is selected to parent.");
    EXPECT_EQ(failure("parent b"), "'parent' needs objects and the parent they go under");
    EXPECT_EQ(failure("parent b s"), "'s' cannot be a parent");
    run("createNode objectSet -n \"set\"");
    EXPECT_EQ(failure("parent set c"), "'set' is not a DAG node");
}

TEST_F(DagCommandsTest, instancesOfGroupsShareWhatIsBelow)
{
    run("setAttr a.t 1 2 3; setAttr a.rp 4 5 6");
    EXPECT_THAT(strings("instance -n \"copy\" a"), ElementsAre("copy"));
    EXPECT_THAT(strings("ls -ap -l b"), ElementsAre("|a|b", "|copy|b"));
    EXPECT_THAT(numbers("getAttr copy.t"), ElementsAre(1, 2, 3));
    EXPECT_THAT(numbers("getAttr copy.rp"), ElementsAre(4, 5, 6));
    EXPECT_THAT(strings("ls -sl"), ElementsAre("copy"));
}

TEST_F(DagCommandsTest, instancesOfLeavesShareShapesOnly)
{
    EXPECT_THAT(strings("instance -leaf a"), ElementsAre("a1"));
    EXPECT_THAT(strings("ls -ap -l s"), ElementsAre("|a|b|s", "|a1|b|s"));
    EXPECT_THAT(strings("listRelatives -ap -f \"|a|b\""), ElementsAre("|a"));
}

TEST_F(DagCommandsTest, instancesOfAShapeAreTransforms)
{
    EXPECT_THAT(strings("instance s"), ElementsAre("b1"));
    EXPECT_EQ(failure("select -cl; instance"), "Nothing is selected to instance.");
}

TEST_F(DagCommandsTest, duplicatesHaveTheirOwnValues)
{
    run("setAttr b.t 1 2 3; addAttr -ln \"tag\" -dt \"string\" b; setAttr -type \"string\" b.tag \"x\";"
        "setAttr -l on b.ry; sets -n \"crew\" s");
    EXPECT_THAT(strings("duplicate b"), ElementsAre("b1"));
    EXPECT_THAT(strings("ls -l b1"), ElementsAre("|a|b1"));
    EXPECT_THAT(strings("listRelatives -s b1"), ElementsAre("s1"));
    EXPECT_THAT(strings("ls -sl"), ElementsAre("b1"));
    EXPECT_THAT(numbers("getAttr b1.t"), ElementsAre(1, 2, 3));
    EXPECT_EQ(run("getAttr -l b1.ry"), "1");
    run("setAttr b1.tx 9; setAttr -type \"string\" b1.tag \"y\"");
    EXPECT_THAT(numbers("getAttr b.t"), ElementsAre(1, 2, 3));
    EXPECT_EQ(run("getAttr b.tag"), "x");
    EXPECT_EQ(run("sets -im crew s1"), "1");
}

TEST_F(DagCommandsTest, duplicatesAreMadeOfNodesOutsideTheDagToo)
{
    run("createNode lambert -n paint; setAttr paint.color 0.5 0.25 1; connectAttr b.tx paint.diffuse");
    EXPECT_THAT(strings("duplicate paint b"), ElementsAre("paint1", "b1"));
    EXPECT_THAT(strings("ls -sl"), ElementsAre("paint1", "b1"));
    EXPECT_THAT(numbers("getAttr paint1.color"), ElementsAre(0.5, 0.25, 1));
    EXPECT_THAT(strings("listConnections paint1.diffuse"), testing::IsEmpty());
    EXPECT_THAT(strings("duplicate -ic -n glaze paint"), ElementsAre("glaze"));
    EXPECT_THAT(strings("listConnections glaze.diffuse"), ElementsAre("b"));
}

TEST_F(DagCommandsTest, duplicatesOfGroupsKeepTheNamesBelow)
{
    EXPECT_THAT(strings("duplicate -n \"copy\" a"), ElementsAre("copy", "copy|b"));
    EXPECT_THAT(strings("ls -l -dag copy"), ElementsAre("|copy", "|copy|b", "|copy|b|s"));
    EXPECT_THAT(strings("duplicate -rr a"), ElementsAre("a1"));
    EXPECT_THAT(strings("duplicate -po a"), ElementsAre("a2"));
    EXPECT_THAT(strings("listRelatives a2"), testing::IsEmpty());
    EXPECT_EQ(failure("select -cl; duplicate"), "Nothing is selected to duplicate.");
}

TEST_F(DagCommandsTest, ungroupPutsObjectsWhereTheGroupStood)
{
    run("setAttr a.t 1 2 3; setAttr c.t 10 0 0; group -n \"g\" b c; setAttr g.ty 5");
    EXPECT_EQ(run("ungroup g"), "");
    EXPECT_THAT(strings("ls -l b c"), ElementsAre("|a|b", "|a|c"));
    EXPECT_EQ(run("objExists g"), "0");
    EXPECT_THAT(numbers("xform -q -ws -t c"), ElementsAre(10, 5, 0)) << "they stay in their place";
}

TEST_F(DagCommandsTest, ungroupedObjectsCanKeepTheirNumbersAndGoElsewhere)
{
    run("setAttr a.t 1 2 3; setAttr b.t 4 5 6; createNode transform -n \"d\"; setAttr d.t 100 0 0; select a;"
        "ungroup -relative -parent d");
    EXPECT_THAT(strings("ls -l b"), ElementsAre("|d|b"));
    EXPECT_THAT(numbers("getAttr b.t"), ElementsAre(4, 5, 6));
    run("group -n \"outer\" d; ungroup -world d");
    EXPECT_THAT(strings("ls -l b outer"), ElementsAre("|b", "|outer"));
    EXPECT_THAT(numbers("xform -q -ws -t b"), ElementsAre(104, 5, 6));
    EXPECT_EQ(failure("ungroup b"), "'b' is not a group");
    EXPECT_EQ(failure("select -cl; ungroup"), "Nothing is selected to ungroup.");
}

TEST_F(DagCommandsTest, duplicatesCanShareTheShapes)
{
    EXPECT_THAT(strings("duplicate -ilf b"), ElementsAre("b1"));
    EXPECT_THAT(strings("ls -ap -l s"), ElementsAre("|a|b|s", "|a|b1|s"));
}

} // namespace tvxhost::mel
