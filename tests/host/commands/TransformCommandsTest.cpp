// move, rotate, scale, xform, currentTime, currentUnit, playbackOptions.
#include "CommandFixture.h"

namespace tvxhost::mel {

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
    expectNear("getAttr b.t", {1, -5, 0});
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
    expectNear("getAttr a.r", {0, 45, 0});
    EXPECT_THAT(numbers("getAttr a.s"), ElementsAre(2, 6, 2));
}

TEST_F(TransformCommandsTest, xformSetsAndTellsMatrices)
{
    run("xform -m 0 1 0 0 -1 0 0 0 0 0 1 0 5 6 7 1 a");
    EXPECT_THAT(numbers("getAttr a.t"), ElementsAre(5, 6, 7));
    expectNear("getAttr a.r", {0, 0, 90});
    run("setAttr b.t 1 0 0");
    expectNear("xform -q -ws -m b", {0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 5, 7, 7, 1});
}

TEST_F(TransformCommandsTest, xformKeepsPivotsWhereTheyAre)
{
    run("setAttr a.rp 1 0 0; setAttr a.sp 1 0 0; xform -m 0 1 0 0 -1 0 0 0 0 0 1 0 5 6 7 1 a");
    expectNear("xform -q -m a", {0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 5, 6, 7, 1});
}

TEST_F(TransformCommandsTest, xformTranslatesInTheWorld)
{
    run("setAttr a.t 10 0 0; xform -ws -t 1 2 3 b");
    EXPECT_THAT(numbers("getAttr b.t"), ElementsAre(-9, 2, 3));
    EXPECT_THAT(numbers("xform -q -ws -t b"), ElementsAre(1, 2, 3));
}

TEST_F(TransformCommandsTest, moveTakesTheTranslationUnlessAPivotIsAskedFor)
{
    run("setAttr a.rp 5 0 0; setAttr a.sp 0 7 0; move 1 2 3 a");
    expectNear("getAttr a.t", {1, 2, 3});
    run("move -rpr 1 2 3 a");
    expectNear("xform -q -ws -rp a", {1, 2, 3});
    expectNear("getAttr a.t", {-4, 2, 3});
    run("move -a -spr 1 2 3 a");
    expectNear("xform -q -ws -sp a", {1, 2, 3});
    expectNear("getAttr a.t", {1, -5, 3});
}

TEST_F(TransformCommandsTest, movePutsPivotsWhereTheObjectStays)
{
    // A quarter turn about z at x = 10: the object's (3, 0, 0) is (10, 3, 0) in the world.
    run("setAttr a.t 10 0 0; setAttr a.r 0 0 90; move 10 3 0 a.rotatePivot a.scalePivot");
    expectNear("getAttr a.rp", {3, 0, 0});
    expectNear("getAttr a.sp", {3, 0, 0});
    expectNear("xform -q -ws -rp a", {10, 3, 0});
    expectNear("xform -q -ws -m a", {0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 10, 0, 0, 1});
    // A world's y is the object's x.
    run("move -r 0 2 0 a.rotatePivot");
    expectNear("getAttr a.rp", {5, 0, 0});
    run("move -os -x 1 a.rotatePivot");
    expectNear("getAttr a.rp", {1, 0, 0});
    expectNear("xform -q -ws -m a", {0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 10, 0, 0, 1});
    EXPECT_EQ(failure("move 1 2 3 a.translate"), "'move' is of objects, not of attributes: a.translate");
}

TEST_F(TransformCommandsTest, moveAlongTheObjectsAxesIsScaledWithIt)
{
    run("setAttr a.r 0 0 90; setAttr a.s 2 1 1; move -r -os 3 0 0 a");
    expectNear("getAttr a.t", {0, 6, 0});
    run("setAttr a.t 0 0 0; move -r -os -wd 3 0 0 a");
    expectNear("getAttr a.t", {0, 3, 0});
    run("move -os 9 8 7 a");
    expectNear("getAttr a.t", {9, 8, 7});
}

TEST_F(TransformCommandsTest, moveInLocalSpaceIsScaledWithTheParent)
{
    run("setAttr a.s 2 2 2; move -r -ls 3 0 0 b");
    expectNear("getAttr b.t", {3, 0, 0});
    run("move -r -ls -wd 3 0 0 b");
    expectNear("getAttr b.t", {4.5, 0, 0});
    expectNear("xform -q -ws -t b", {9, 0, 0});
}

TEST_F(TransformCommandsTest, whatInheritsNoTransformStandsInTheWorldAsItIs)
{
    run("setAttr a.t 10 0 0; setAttr b.it 0; move 1 2 3 b");
    expectNear("getAttr b.t", {1, 2, 3});
    expectNear("xform -q -ws -t b", {1, 2, 3});
    run("createNode transform -n \"c\"; setAttr c.t 0 50 0; parent b c");
    expectNear("getAttr b.t", {1, 2, 3});
}

TEST_F(TransformCommandsTest, moveOfAShapeMovesItsTransform)
{
    run("createNode locator -n \"s\" -p \"b\"; move -r 1 0 0 s");
    expectNear("getAttr b.t", {1, 0, 0});
}

TEST_F(TransformCommandsTest, componentsAreNotTakenForTheirObject)
{
    run("createNode mesh -n \"s\" -p \"b\"; setAttr -s 2 s.vt[0:1] 0 0 0 1 0 0");
    run("rotate 1 2 3 s.vtx[0]; scale 2 2 2 s.vtx[1]; move 1 2 3 s.vtx[0]");
    expectNear("getAttr b.r", {0, 0, 0});
    expectNear("getAttr b.t", {0, 0, 0});
}

TEST_F(TransformCommandsTest, lockedChannelsRefuseEveryMove)
{
    run("setAttr -l on a.tx");
    EXPECT_EQ(failure("move 1 2 3 a"),
              "The attribute 'a.translateX' is locked or connected and cannot be modified.");
    expectNear("getAttr a.t", {0, 0, 0});
    run("move -y 4 a");
    expectNear("getAttr a.t", {0, 4, 0});
}

TEST_F(TransformCommandsTest, rotateIsInTheWorldUnlessToldOtherwise)
{
    run("setAttr a.r 0 0 90; rotate 0 0 90 b");
    expectNear("getAttr b.r", {0, 0, 0});
    run("rotate -os 0 0 30 b");
    expectNear("getAttr b.r", {0, 0, 30});
    run("setAttr b.r 0 0 0; rotate -r 90 0 0 b");
    // About the world's x, which is the parent's -y.
    expectNear("getAttr b.r", {0, -90, 0});
    run("setAttr b.r 0 0 0; rotate -r -os 90 0 0 b");
    expectNear("getAttr b.r", {90, 0, 0});
}

TEST_F(TransformCommandsTest, rotateAddsAnglesWhenTheyAreMeant)
{
    run("setAttr a.r 90 20 10; rotate -r -eu 10 20 30 a");
    expectNear("getAttr a.r", {100, 40, 40});
    run("rotate -y 5 a");
    expectNear("getAttr a.r", {100, 5, 40});
}

TEST_F(TransformCommandsTest, rotateAndScaleLeaveAPivotInPlace)
{
    run("rotate -r -p 1 0 0 0 0 90 a");
    expectNear("getAttr a.t", {1, -1, 0});
    expectNear("getAttr a.r", {0, 0, 90});
    run("setAttr b.t 0 0 0; setAttr a.t 0 0 0; setAttr a.r 0 0 0; scale -p 1 0 0 3 3 3 a");
    expectNear("getAttr a.t", {-2, 0, 0});
}

TEST_F(TransformCommandsTest, xformTellsEveryPart)
{
    run("setAttr a.t 1 2 3; setAttr a.s 4 5 6; setAttr a.sh 7 8 9; setAttr a.ra 10 0 0; setAttr a.rpt 1 1 1;"
        "setAttr a.spt 2 2 2; setAttr a.rp 3 3 3; setAttr a.sp 4 4 4; setAttr a.ro 5");
    expectNear("xform -q -t a", {1, 2, 3});
    expectNear("xform -q -s a", {4, 5, 6});
    expectNear("xform -q -sh a", {7, 8, 9});
    expectNear("xform -q -ra a", {10, 0, 0});
    expectNear("xform -q -rt a", {1, 1, 1});
    expectNear("xform -q -st a", {2, 2, 2});
    expectNear("xform -q -piv a", {3, 3, 3, 4, 4, 4});
    EXPECT_EQ(run("xform -q -roo a"), "zyx");
    EXPECT_EQ(failure("xform -q a"), "xform: nothing was asked");
}

TEST_F(TransformCommandsTest, xformSpeaksTheUnitsOfTheUser)
{
    run("currentUnit -l m -a rad; xform -t 1 2 3 -ro 1 0 0 -s 2 2 2 a");
    expectNear("xform -q -t a", {1, 2, 3});
    expectNear("xform -q -ro a", {1, 0, 0});
    run("currentUnit -l cm -a deg");
    expectNear("xform -q -t a", {100, 200, 300});
    expectNear("xform -q -ro a", {57.295779513082323, 0, 0});
    expectNear("xform -q -s a", {2, 2, 2});
}

TEST_F(TransformCommandsTest, xformTurnsInTheWorld)
{
    run("setAttr a.r 0 0 90; xform -ws -ro 0 0 30 b");
    expectNear("getAttr b.r", {0, 0, -60});
    expectNear("xform -q -ws -ro b", {0, 0, 30});
    run("xform -r -ro 0 0 10 b");
    expectNear("getAttr b.r", {0, 0, -50});
}

TEST_F(TransformCommandsTest, newPivotsLeaveTheObjectWhereItIs)
{
    run("setAttr a.r 0 0 90; setAttr a.s 2 2 2");
    const Value::Numbers before = numbers("xform -q -m a");
    run("xform -piv 1 2 3 a");
    expectNear("xform -q -m a", before);
    expectNear("getAttr a.rp", {1, 2, 3});
    run("xform -ws -rp 5 0 0 a");
    expectNear("xform -q -ws -rp a", {5, 0, 0});
    expectNear("xform -q -m a", before);
    run("xform -ztp a");
    expectNear("xform -q -m a", before);
    expectNear("xform -q -piv a", {0, 0, 0, 0, 0, 0});
    run("xform -p off -rp 1 0 0 a");
    expectNear("getAttr a.rpt", {0, 0, 0});
}

TEST_F(TransformCommandsTest, newAxesAndOrdersLeaveTheObjectWhereItIs)
{
    run("setAttr a.r 10 20 30");
    const Value::Numbers before = numbers("xform -q -m a");
    run("xform -roo \"zyx\" a");
    expectNear("xform -q -m a", before);
    EXPECT_EQ(run("getAttr a.ro"), "5");
    run("xform -ra 0 90 0 a");
    expectNear("xform -q -m a", before);
    expectNear("getAttr a.ra", {0, 90, 0});
    run("xform -roo \"xyz\" a; setAttr a.ra 0 0 0; setAttr a.r 10 20 30; xform -p off -roo \"zyx\" a");
    expectNear("getAttr a.r", {10, 20, 30});
    EXPECT_EQ(failure("xform -roo \"xxx\" a"), "xform: \"xxx\" is no rotation order");
}

TEST_F(TransformCommandsTest, xformTellsBoxesAndCentresPivotsInThem)
{
    run("createNode locator -n \"s\" -p \"b\"; setAttr s.lp 4 0 0; setAttr a.t 10 0 0; setAttr b.t 0 1 0");
    expectNear("xform -q -bb b", {3, 0, -1, 5, 2, 1});
    expectNear("xform -q -ws -bb b", {13, 0, -1, 15, 2, 1});
    run("xform -cp b");
    expectNear("xform -q -piv b", {4, 0, 0, 4, 0, 0});
    expectNear("xform -q -bb b", {3, 0, -1, 5, 2, 1});
}

TEST_F(TransformCommandsTest, whatIsBelowStaysInItsPlaceWhenItIsAsked)
{
    run("setAttr b.t 1 0 0; createNode transform -n c -p a; setAttr c.t 0 5 0");
    run("move -pcp true 10 0 0 a");
    expectNear("getAttr a.t", {10, 0, 0});
    expectNear("xform -q -ws -t b", {1, 0, 0});
    run("rotate -preserveChildPosition true 0 0 90 a; scale -pcp on 2 2 2 a");
    expectNear("xform -q -ws -t c", {0, 5, 0});
    expectNear("xform -q -ws -ro b", {0, 0, 0});
    run("move -r -pcp false 1 0 0 a");
    expectNear("xform -q -ws -t b", {2, 0, 0});
}

TEST_F(TransformCommandsTest, objectsTurnAndGrowAboutTheirCenters)
{
    run("polyCube -n one; polyCube -n two; setAttr one.t 2 0 0; setAttr two.t 6 0 0; rotate -r -cp 0 0 180 "
        "one two");
    expectNear("xform -q -ws -t one", {6, 0, 0});
    expectNear("xform -q -ws -t two", {2, 0, 0});
    run("xform -ws -piv 0 0 0 one; scale -ocp 3 3 3 one");
    expectNear("xform -q -ws -bb one", {4.5, -1.5, -1.5, 7.5, 1.5, 1.5});
}

TEST_F(TransformCommandsTest, whatIsAboutComponentsIsRefused)
{
    EXPECT_EQ(failure("move -reflectionAboutX 1 2 3 a"),
              "Flag '-reflectionAboutX' of move is refused: nothing is mirrored here");
    EXPECT_EQ(failure("xform -reflectionTolerance a"),
              "Flag '-reflectionTolerance' of xform is refused: nothing is mirrored here");
}

TEST_F(TransformCommandsTest, rangesOfPlayingAreInTheUnitsOfTheUser)
{
    EXPECT_EQ(run("playbackOptions -q -min"), "1");
    EXPECT_EQ(run("playbackOptions -q -max"), "24");
    EXPECT_EQ(run("playbackOptions -q -aet"), "48");
    run("playbackOptions -min 5 -max 100 -ast 0 -aet 200 -loop \"once\" -ps 1");
    EXPECT_EQ(run("playbackOptions -q -min"), "5");
    EXPECT_EQ(run("playbackOptions -q -max"), "100");
    EXPECT_EQ(run("playbackOptions -q -ast"), "0");
    EXPECT_EQ(run("playbackOptions -q -aet"), "200");
    EXPECT_EQ(run("playbackOptions -q -loop"), "once");
    EXPECT_EQ(run("playbackOptions -q -fps"), "24");
    run("currentUnit -t sec; playbackOptions -e -max 2");
    EXPECT_EQ(run("playbackOptions -q -max"), "2");
    EXPECT_EQ(failure("playbackOptions -loop \"twice\""), "playbackOptions: \"twice\" is no value of -loop");
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

TEST_F(TransformCommandsTest, theUnitThatWasSetIsAnswered)
{
    EXPECT_EQ(run("currentUnit -linear inch"), "in");
    EXPECT_EQ(run("currentUnit -angle radian"), "rad");
    EXPECT_EQ(run("currentUnit -time ntsc"), "ntsc");
    EXPECT_EQ(run("currentUnit -l m -a deg -t film"), "film");
}

TEST_F(TransformCommandsTest, keysKeepTheirTimesOrTheirFramesWhenTheUnitOfTimeChanges)
{
    run("currentUnit -t film; setKeyframe -t 12 a.tx");
    run("currentUnit -t ntsc");
    expectNear("keyframe -q a.tx", {15});
    run("currentUnit -t film; currentUnit -t ntsc -updateAnimation false");
    expectNear("keyframe -q a.tx", {12});
}

} // namespace tvxhost::mel
