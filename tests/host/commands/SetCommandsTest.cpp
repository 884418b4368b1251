// sets: members, partitions, and operations on sets.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class SetCommandsTest : public CommandFixture
{
protected:
    SetCommandsTest()
    {
        run("for ($n in {\"a\", \"b\", \"c\"}) createNode transform -n $n;"
            "sets -n \"left\" a b; sets -n \"right\" b c");
    }
};

TEST_F(SetCommandsTest, whatIsNamedTwiceComesAndGoesOnce)
{
    run("polyCube -n box; sets -n some box box; sets -add some box.f[0] box.f[0:1] box.f[0]; sets -r 1 -em "
        "-n "
        "red; sets -fe red box box boxShape");
    EXPECT_EQ(run("sets -q some"), "box box.f[0:1]");
    EXPECT_EQ(run("sets -q red"), "boxShape");
    run("sets -rm some box.f[0] box box.f[0] box");
    EXPECT_EQ(run("sets -q some"), "box.f[1]");
}

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

TEST_F(SetCommandsTest, aShadingGroupTakesTheShapesOfTransforms)
{
    run("polyCube -n \"one\"; polyCube -n \"two\"; group -n \"both\" one two; sets -r true -nss true -em -n "
        "\"red\"");
    run("sets -e -forceElement red one");
    EXPECT_THAT(strings("sets -q red"), ElementsAre("oneShape"));
    EXPECT_EQ(run("sets -isMember red one"), "1");
    run("sets -e -forceElement red both");
    EXPECT_THAT(strings("sets -q red"), ElementsAre("oneShape", "twoShape"));
    run("sets -rm red two");
    EXPECT_THAT(strings("sets -q red"), ElementsAre("oneShape"));
}

TEST_F(SetCommandsTest, whatCannotBeRenderedIsInNoShadingGroup)
{
    run("sets -r true -em -n \"red\"");
    EXPECT_EQ(failure("sets -add red a"), "'a' cannot be in 'red': it cannot be rendered");
    EXPECT_EQ(failure("sets -forceElement red left"), "'left' cannot be in 'red': it cannot be rendered");
    run("polyCube -n \"one\"; sets -rm initialShadingGroup one; sets -include red a one");
    EXPECT_THAT(strings("sets -q red"), ElementsAre("oneShape"));
}

TEST_F(SetCommandsTest, aShadingGroupHasTheDefaultShaderUnlessItIsToHaveNone)
{
    run("sets -renderable true -empty -n \"red\"; sets -renderable true -noSurfaceShader true -empty -n "
        "\"bare\"");
    EXPECT_THAT(strings("listConnections red.surfaceShader"), ElementsAre("lambert1"));
    EXPECT_THAT(strings("listConnections bare.surfaceShader"), IsEmpty());
    EXPECT_EQ(run("getAttr red.renderableOnlySet"), "1");
    EXPECT_EQ(run("nodeType `sets -renderable false -empty`"), "objectSet");
}

TEST_F(SetCommandsTest, setsOfComponentsSaySoAndTakeNoObjects)
{
    const std::pair<const char*, const char*> rows[] = {
        {"vertices", "vertices"}, {"edges", "edges"}, {"facets", "facets"}, {"editPoints", "edit points"}};
    for (const auto& [flag, what] : rows) {
        const std::string option = std::string("-") + flag;
        run("sets " + option + " true -empty -n \"parts\"");
        EXPECT_EQ(run("sets -q " + option + " parts"), "1");
        EXPECT_EQ(run("sets -q " + option + " left"), "0");
        EXPECT_EQ(failure("sets -add parts a"),
                  std::string("'a' cannot be in 'parts', which holds only ") + what);
        run("delete parts");
    }
    EXPECT_EQ(failure("sets -add left a.tx"),
              "'a.translateX' cannot be in 'left': sets hold objects and components here");
    EXPECT_EQ(failure("sets -layer"), "Flag '-layer' of sets is refused: obsolete");
}

TEST_F(SetCommandsTest, theColourAndTheNoteAreChanged)
{
    EXPECT_EQ(run("sets -q -color left"), "-1");
    run("sets -e -color 3 left; sets -e -text \"west\" left");
    EXPECT_EQ(run("sets -q -co left"), "3");
    EXPECT_EQ(run("sets -q -t left"), "west");
    EXPECT_EQ(run("sets -q -color `sets -em -color 5`"), "5");
    EXPECT_EQ(failure("sets -e -text \"x\""), "'sets' needs one set to edit");
}

TEST_F(SetCommandsTest, aFlatSetHasNoSetsInIt)
{
    run("sets -n \"inner\" left c; sets -n \"outer\" inner a");
    EXPECT_EQ(run("sets -e -flatten outer"), "outer");
    EXPECT_THAT(strings("sets -q outer"), UnorderedElementsAre("a", "b", "c"));
    EXPECT_THAT(strings("sets -q inner"), UnorderedElementsAre("left", "c"));
}

TEST_F(SetCommandsTest, aSplitMovesMembersToANewSet)
{
    EXPECT_EQ(run("sets -split left -n \"rest\" a"), "rest");
    EXPECT_THAT(strings("sets -q left"), ElementsAre("b"));
    EXPECT_THAT(strings("sets -q rest"), ElementsAre("a"));
}

TEST_F(SetCommandsTest, intermediateObjectsAreLeftOutWhenThatIsAsked)
{
    run("createNode mesh -n \"net\" -p a; createNode mesh -n \"old\" -p a; setAttr old.io 1; sets -n "
        "\"nets\" net old");
    EXPECT_THAT(strings("sets -q nets"), ElementsAre("net", "old"));
    EXPECT_THAT(strings("sets -q -noIntermediate nets"), ElementsAre("net"));
    EXPECT_EQ(run("sets -q -size -ni nets"), "1");
    EXPECT_THAT(strings("sets -ni -union nets left"), ElementsAre("net", "a", "b"));
}

TEST_F(SetCommandsTest, warningsOfWhatIsLeftOutCanBeTurnedOff)
{
    run("sets -r true -em -n \"red\"");
    const int before = scene.scriptEditor().warnings();
    run("sets -e -noWarnings -include red a");
    EXPECT_EQ(scene.scriptEditor().warnings(), before);
    run("sets -e -include red a");
    EXPECT_EQ(scene.scriptEditor().warnings(), before + 1);
}

} // namespace tvxhost::mel
