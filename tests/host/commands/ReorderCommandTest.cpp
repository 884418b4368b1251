// reorder.
#include "undoFixture.h"

namespace tvxhost::mel {

class ReorderCommandTest : public UndoFixture
{
protected:
    ReorderCommandTest()
    {
        run("group -em -n all; int $i; for ($i = 1; $i < 5; $i++) createNode transform -n (\"s\" + $i) -p "
            "all");
    }
    std::string order() { return run("listRelatives -children all"); }
};

TEST_F(ReorderCommandTest, objectsMoveAmongTheirSiblings)
{
    run("reorder -r -1 s2");
    EXPECT_EQ(order(), "s2 s1 s3 s4");
    run("reorder -front s1");
    EXPECT_EQ(order(), "s1 s2 s3 s4");
    // The first step leads to the end, the second to the beginning.
    run("reorder -r 2 s3");
    EXPECT_EQ(order(), "s3 s1 s2 s4");
    run("reorder -back s1; reorder -r -1 s3");
    EXPECT_EQ(order(), "s2 s4 s1 s3");
    run("reorder -r 10 s4");
    EXPECT_EQ(order(), "s2 s1 s3 s4");
}

TEST_F(ReorderCommandTest, severalStayInTheirOrder)
{
    run("reorder -front s2 s4");
    EXPECT_EQ(order(), "s2 s4 s1 s3");
    run("reorder -back s2 s1");
    EXPECT_EQ(order(), "s4 s3 s2 s1");
    run("select s4 s3; reorder -r 1");
    EXPECT_EQ(order(), "s2 s4 s3 s1");
    run("reorder -r -1 s4 s3");
    EXPECT_EQ(order(), "s4 s3 s2 s1");
}

TEST_F(ReorderCommandTest, aShapeAloneStandsForItsTransform)
{
    run("createNode locator -n mark -p s3; reorder -front mark");
    EXPECT_EQ(order(), "s3 s1 s2 s4");
    run("createNode transform -n below -p s3; reorder -back mark");
    EXPECT_EQ(order(), "s3 s1 s2 s4");
    EXPECT_EQ(run("listRelatives -children s3"), "below mark");
}

TEST_F(ReorderCommandTest, anInstanceMovesWhereItIsNamed)
{
    run("group -em -n other; createNode transform -n first -p other; parent -add s4 other; reorder -front "
        "\"|other|s4\"");
    EXPECT_EQ(run("listRelatives -children other"), "s4 first");
    EXPECT_EQ(order(), "s1 s2 s3 s4");
}

TEST_F(ReorderCommandTest, orderIsSavedAndComesBack)
{
    expectUndoable("reorder -front s3");
    expectUndoable("reorder -r -1 s1 s2");
}

TEST_F(ReorderCommandTest, mistakesAreNamed)
{
    EXPECT_EQ(failure("reorder s1"), "reorder: one of -front, -back and -relative is needed");
    EXPECT_EQ(failure("reorder -front -back s1"), "reorder: one of -front, -back and -relative is needed");
    EXPECT_EQ(failure("reorder -front lambert1"), "reorder: 'lambert1' is not a DAG object");
    EXPECT_EQ(failure("select -cl; reorder -front"), "Nothing is selected to reorder.");
}

} // namespace tvxhost::mel
