// move, rotate, scale, xform, currentTime, currentUnit.
#include "CommandFixture.h"

#include <cmath>

namespace tvxhost::mel {

using testing::DoubleNear;
using testing::ElementsAre;

class TransformCommandsTest : public CommandFixture
{
protected:
    TransformCommandsTest()
    {
        run("createNode transform -n \"a\"; createNode transform -n \"b\" -p \"a\"; select -cl");
    }
};

TEST_F(TransformCommandsTest, moveIsAbsoluteInTheWorld)
{
    run("setAttr a.t 10 0 0; move 1 2 3 b");
    EXPECT_THAT(numbers("getAttr b.t"), ElementsAre(-9, 2, 3));
}

TEST_F(TransformCommandsTest, moveRelativeGoesAlongTheWorldsAxes)
{
    run("setAttr a.r 0 0 90; setAttr b.t 1 0 0; select -r b; move -r 5 0 0");
    // A quarter turn about z: the world's x is the parent's -y.
    EXPECT_THAT(numbers("getAttr b.t"),
                ElementsAre(DoubleNear(1, 1e-12), DoubleNear(-5, 1e-12), DoubleNear(0, 1e-12)));
}

TEST_F(TransformCommandsTest, moveTakesSingleAxesAndUnits)
{
    run("move -y 4 a; move -r -x 1m a");
    EXPECT_THAT(numbers("getAttr a.t"), ElementsAre(100, 4, 0));
    run("currentUnit -l m; move -r 1 0 0 a");
    EXPECT_THAT(numbers("getAttr a.t"), ElementsAre(2, 0.04, 0));
}

TEST_F(TransformCommandsTest, moveInLocalSpaceChangesTheNumbers)
{
    run("setAttr a.t 10 0 0; move -ls 1 2 3 b");
    EXPECT_THAT(numbers("getAttr b.t"), ElementsAre(1, 2, 3));
}

TEST_F(TransformCommandsTest, moveOfNothingSaysSo)
{
    EXPECT_EQ(failure("move 1 2 3"), "Nothing is selected to move.");
    EXPECT_EQ(failure("move 1 2"), "'move' needs a number for each axis");
}

TEST_F(TransformCommandsTest, rotateAndScaleAddOrReplace)
{
    run("rotate 0 30 0 a; rotate -r 0 15 0 a; scale 2 2 2 a; scale -r 1 3 1 a");
    EXPECT_THAT(numbers("getAttr a.r"), ElementsAre(0, DoubleNear(45, 1e-12), 0));
    EXPECT_THAT(numbers("getAttr a.s"), ElementsAre(2, 6, 2));
}

TEST_F(TransformCommandsTest, xformSetsAndTellsMatrices)
{
    run("xform -m 0 1 0 0 -1 0 0 0 0 0 1 0 5 6 7 1 a");
    EXPECT_THAT(numbers("getAttr a.t"), ElementsAre(5, 6, 7));
    EXPECT_THAT(numbers("getAttr a.r"),
                ElementsAre(DoubleNear(0, 1e-12), DoubleNear(0, 1e-12), DoubleNear(90, 1e-9)));
    run("setAttr b.t 1 0 0");
    const Value::Numbers world = numbers("xform -q -ws -m b");
    EXPECT_NEAR(world[12], 5, 1e-12);
    EXPECT_NEAR(world[13], 7, 1e-12);
    EXPECT_NEAR(world[14], 7, 1e-12);
}

TEST_F(TransformCommandsTest, xformKeepsPivotsWhereTheyAre)
{
    run("setAttr a.rp 1 0 0; setAttr a.sp 1 0 0; xform -m 0 1 0 0 -1 0 0 0 0 0 1 0 5 6 7 1 a");
    const Value::Numbers matrix = numbers("xform -q -m a");
    EXPECT_NEAR(matrix[12], 5, 1e-9);
    EXPECT_NEAR(matrix[13], 6, 1e-9);
    EXPECT_NEAR(matrix[0], 0, 1e-9);
    EXPECT_NEAR(matrix[1], 1, 1e-9);
}

TEST_F(TransformCommandsTest, xformTranslatesInTheWorld)
{
    run("setAttr a.t 10 0 0; xform -ws -t 1 2 3 b");
    EXPECT_THAT(numbers("getAttr b.t"), ElementsAre(-9, 2, 3));
    EXPECT_THAT(numbers("xform -q -ws -t b"), ElementsAre(1, 2, 3));
}

TEST_F(TransformCommandsTest, timeIsInTheUnitsOfTheUser)
{
    run("currentUnit -t film; currentTime 48");
    EXPECT_DOUBLE_EQ(scene.time(), 2);
    run("currentUnit -t pal");
    EXPECT_EQ(run("currentTime -q"), "50");
    EXPECT_EQ(run("currentUnit -q -t"), "pal");
    EXPECT_EQ(run("currentUnit -q -l"), "cm");
    EXPECT_EQ(failure("currentUnit -l parsec"), "Invalid unit 'parsec'");
}

} // namespace tvxhost::mel
