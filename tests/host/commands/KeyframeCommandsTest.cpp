// setKeyframe, keyframe, keyTangent, cutKey, setInfinity, findKeyframe, and time that moves what they made.
#include "../support/savedText.h"
#include "CommandFixture.h"

namespace tvxhost::mel {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;

class KeyframeCommandsTest : public CommandFixture
{
protected:
    KeyframeCommandsTest() { run("createNode transform -n ball"); }

    /// Straight from 0 at frame 1 to 10 at frame 11.
    void keyRamp() { key({{1, 0}, {11, 10}}, "-itt linear -ott linear"); }

    /// Keys at frames with values.
    void key(const std::vector<std::pair<int, int>>& keys, const std::string& flags = "")
    {
        for (const auto& [frame, value] : keys)
            run("setKeyframe -t " + std::to_string(frame) + " -v " + std::to_string(value) + " " + flags +
                " ball.tx");
    }

    void expectTimes(const Value::Numbers& expected) { expectNear("keyframe -q ball.tx", expected); }
    void expectValues(const Value::Numbers& expected) { expectNear("keyframe -q -vc ball.tx", expected); }
};

TEST_F(KeyframeCommandsTest, SetKeyframeMakesTheCurveAndTimeMovesTheAttribute)
{
    keyRamp();
    EXPECT_EQ(run("nodeType ball_translateX"), "animCurveTL");
    EXPECT_EQ(strings("listConnections -p true ball.tx"), Value::Strings{"ball_translateX.output"});
    run("currentTime 6");
    EXPECT_EQ(run("getAttr ball.tx"), "5");
    run("currentTime 20");
    EXPECT_EQ(run("getAttr ball.tx"), "10");
    EXPECT_EQ(run("getAttr -t 3 ball.tx"), "2");
}

TEST_F(KeyframeCommandsTest, KeysAllKeyableAttributesAtTheCurrentTime)
{
    run("currentTime 5; setAttr ball.ry 90; select ball");
    EXPECT_EQ(run("setKeyframe"), "10") << "three of each, and the visibility";
    EXPECT_EQ(run("keyframe -q -keyframeCount ball"), "10");
    EXPECT_EQ(run("nodeType ball_rotateY"), "animCurveTA");
    expectNear("keyframe -q -vc ball.ry", {90.0});
    EXPECT_THAT(numbers("keyframe -q -tc ball.ry"), ElementsAre(5.0));
    EXPECT_EQ(strings("keyTangent -q -itt -ott ball.v"), (Value::Strings{"spline", "step"}));
}

TEST_F(KeyframeCommandsTest, TakesAttributesTimesAndValues)
{
    EXPECT_EQ(run("setKeyframe -at tx -at rotateZ -t 1 -t \"1sec\" -v 45 ball"), "4");
    expectTimes({1.0, 24.0});
    expectNear("keyframe -q -vc -t 24 ball.rz", {45.0});
    EXPECT_EQ(run("setKeyframe -animated true ball"), "2") << "only what is animated";
    EXPECT_EQ(run("setKeyframe -t 1 -v 7 ball.tx"), "1");
    EXPECT_THAT(numbers("keyframe -q -vc -t 1 ball.tx"), ElementsAre(7.0)) << "a key is replaced";
}

TEST_F(KeyframeCommandsTest, SkipsWhatIsLockedOrFedByOthers)
{
    run("createNode transform -n other; connectAttr other.tx ball.tx; setAttr -l on ball.ty");
    EXPECT_EQ(run("setKeyframe -at translate ball"), "1");
    EXPECT_EQ(run("setKeyframe ball.tx"), "0");
}

TEST_F(KeyframeCommandsTest, InsertedKeysKeepTheShape)
{
    key({{0, 0}, {10, 8}, {20, 2}});
    const std::string shape = "keyframe -q -ev -t 3 -t 6 -t 8 ball.tx";
    const Value::Numbers before = numbers(shape);
    EXPECT_EQ(run("setKeyframe -insert -t 5 ball.tx"), "1");
    EXPECT_EQ(run("keyframe -q -kc ball.tx"), "4");
    expectNear(shape, before);
    EXPECT_EQ(run("setKeyframe -insert -t 5 ball.ty"), "0") << "there is no curve";
}

TEST_F(KeyframeCommandsTest, BreakdownsAreSetAndFound)
{
    keyRamp();
    run("setKeyframe -breakdown true -t 6 ball.tx");
    EXPECT_THAT(numbers("keyframe -q -bd ball.tx"), ElementsAre(6.0));
    EXPECT_EQ(run("keyframe -e -bd false -t 6 ball.tx"), "1");
    EXPECT_EQ(run("size(`keyframe -q -bd ball.tx`)"), "0");
}

TEST_F(KeyframeCommandsTest, RangesChooseKeys)
{
    key({{0, 0}, {10, 1}, {20, 2}, {30, 3}, {40, 4}});
    EXPECT_THAT(numbers("keyframe -q -t \"10:30\" ball.tx"), ElementsAre(10.0, 20.0, 30.0));
    EXPECT_THAT(numbers("keyframe -q -iub false -t \"10:30\" ball.tx"), ElementsAre(10.0, 20.0));
    EXPECT_THAT(numbers("keyframe -q -t \"25:\" ball.tx"), ElementsAre(30.0, 40.0));
    EXPECT_THAT(numbers("keyframe -q -t \":15\" ball.tx"), ElementsAre(0.0, 10.0));
    EXPECT_THAT(numbers("keyframe -q -index \"1:2\" ball.tx"), ElementsAre(10.0, 20.0));
    EXPECT_THAT(numbers("keyframe -q -t 0 -index 4 ball.tx"), ElementsAre(0.0, 40.0));
    EXPECT_EQ(run("keyframe -q -t \"10:30\" -iv ball.tx"), "1 2 3");
    EXPECT_EQ(strings("keyframe -q -n ball"), Value::Strings{"ball_translateX"});
    EXPECT_EQ(run("keyframe -q -kc ball_translateX"), "5") << "the curve itself";
}

TEST_F(KeyframeCommandsTest, KeysAreMovedAndChanged)
{
    keyRamp();
    EXPECT_EQ(run("keyframe -e -r -tc 5 -vc 1 ball.tx"), "1");
    expectTimes({6.0, 16.0});
    expectValues({1.0, 11.0});
    EXPECT_EQ(run("keyframe -a -t 6 -tc 2 -vc 3 ball.tx"), "1");
    expectTimes({2.0, 16.0});
    EXPECT_THAT(numbers("keyframe -q -vc -t 2 ball.tx"), ElementsAre(3.0));
    EXPECT_EQ(run("keyframe -e -t 99 -vc 3 ball.tx"), "0");
}

TEST_F(KeyframeCommandsTest, KeysThatMovePassOthersAsTheyAreTold)
{
    const auto keyThree = [&] {
        run("cutKey ball.tx");
        key({{0, 1}, {10, 2}, {20, 3}});
    };
    keyThree();
    run("keyframe -e -option over -t 0 -tc 15 ball.tx");
    expectValues({2.0, 1.0, 3.0});
    keyThree();
    run("keyframe -e -option insert -t 10 -r -tc 5 ball.tx");
    expectTimes({0.0, 15.0, 25.0});
    run("keyframe -e -o insert -t 15 -r -tc -20 ball.tx");
    expectTimes({-20.0, -5.0, 25.0});
    EXPECT_EQ(failure("keyframe -e -option move -t -5 -tc 25 ball.tx"),
              "keyframe: a key of 'ball_translateX' would pass another one");
    run("keyframe -e -option move -t -5 -tc 24 ball.tx");
    expectTimes({-20.0, 24.0, 25.0});
    EXPECT_EQ(failure("keyframe -e -option segmentOver -tc 1 ball.tx"),
              "keyframe: -option is over, insert or move here, not 'segmentOver'");
}

TEST_F(KeyframeCommandsTest, TheHierarchyIsReachedWhenAsked)
{
    run("createNode transform -n top; parent ball top; createNode transform -n leaf -p ball;"
        "createNode locator -n leafShape -p leaf; setKeyframe top.tx; setKeyframe ball.tx; setKeyframe "
        "leaf.tx;"
        "setKeyframe leafShape.lpx");
    EXPECT_THAT(strings("keyframe -q -n ball"), ElementsAre("ball_translateX"));
    EXPECT_THAT(strings("keyframe -q -n -hierarchy above ball"),
                ElementsAre("ball_translateX", "top_translateX"));
    EXPECT_THAT(strings("keyframe -q -n -hi below ball"),
                ElementsAre("ball_translateX", "leaf_translateX", "leafShape_localPositionX"));
    EXPECT_THAT(strings("keyframe -q -n -hi below -shape off ball"),
                ElementsAre("ball_translateX", "leaf_translateX"));
    EXPECT_EQ(run("keyframe -q -kc -hi both ball"), "4");
    EXPECT_EQ(run("cutKey -hi below -at tx ball"), "2");
    EXPECT_EQ(run("setKeyframe -hi both -at ty ball"), "3");
    EXPECT_EQ(failure("keyframe -q -hi sideways ball"), "Invalid value 'sideways' of -hierarchy");
}

TEST_F(KeyframeCommandsTest, PointsCountOnlyWhenAsked)
{
    run("createNode mesh -n net -p ball; setAttr net.pt[0] 1 0 0; setKeyframe \"net.pt[0].px\"");
    EXPECT_EQ(run("keyframe -q -kc ball"), "0");
    EXPECT_EQ(run("keyframe -q -kc -controlPoints true ball"), "1");
}

TEST_F(KeyframeCommandsTest, AttributesThatAreNotKeyableAreKeyedUnlessTheyAreRespected)
{
    EXPECT_EQ(run("setKeyframe -at rotateAxisX -respectKeyable true ball"), "0");
    EXPECT_EQ(run("setKeyframe -at rotateAxisX ball"), "1");
    EXPECT_EQ(failure("keyframe -q -animation keys ball"), "-animation keys: no keys are selected");
    EXPECT_EQ(run("keyframe -q -kc -animation objects ball"), "1");
}

TEST_F(KeyframeCommandsTest, TangentsAreSetAndToldByKindAngleAndWeight)
{
    keyRamp();
    EXPECT_EQ(strings("keyTangent -q -itt -ott -t 1 ball.tx"), (Value::Strings{"linear", "linear"}));
    EXPECT_THAT(numbers("keyTangent -q -oa -t 1 ball.tx"), ElementsAre(DoubleNear(45.0, 1e-9)))
        << "a centimetre in each frame";
    EXPECT_EQ(run("keyTangent -e -itt flat -ott flat ball.tx"), "1");
    run("currentTime 3.5");
    // A quarter of the way: 10 (3/16 - 2/64).
    EXPECT_NEAR(value("getAttr ball.tx").toNumber(), 1.5625, 1e-9);
    run("keyTangent -e -t 1 -oa 45 ball.tx");
    EXPECT_EQ(strings("keyTangent -q -itt -ott -t 1 ball.tx"), (Value::Strings{"fixed", "fixed"}));
    EXPECT_THAT(numbers("keyTangent -q -ia -t 1 ball.tx"), ElementsAre(DoubleNear(45.0, 1e-9)))
        << "locked tangents turn together";
    run("keyTangent -e -t 11 -lock false ball.tx; keyTangent -e -t 11 -ia 30 ball.tx");
    EXPECT_EQ(strings("keyTangent -q -ott -t 11 ball.tx"), Value::Strings{"flat"});
    run("keyTangent -e -r -t 11 -ia 15 ball.tx");
    expectNear("keyTangent -q -ia -t 11 ball.tx", {45.0});
    EXPECT_EQ(run("keyTangent -q -lock ball.tx"), "1 0");
    EXPECT_EQ(run("keyTangent -q -wt ball.tx"), "0");
    run("keyTangent -e -wt true ball.tx; keyTangent -e -itt flat -ott flat ball.tx");
    EXPECT_EQ(run("keyTangent -q -wt ball.tx"), "1");
    expectNear("keyTangent -q -ow -t 1 ball.tx", {10.0 / 3.0});
    run("keyTangent -e -t 1 -ow 5 ball.tx");
    expectNear("keyTangent -q -ox -t 1 ball.tx", {15.0 / 24.0});
    EXPECT_THAT(failure("keyTangent -e -itt bent ball.tx"), HasSubstr("bent"));
}

TEST_F(KeyframeCommandsTest, CuttingTheLastKeyTakesTheCurveAway)
{
    keyRamp();
    run("currentTime 11; getAttr ball.tx");
    EXPECT_EQ(run("cutKey -t 1 ball.tx"), "1");
    EXPECT_EQ(run("keyframe -q -kc ball.tx"), "1");
    EXPECT_EQ(run("cutKey -clear ball"), "1");
    EXPECT_EQ(run("objExists ball_translateX"), "0");
    EXPECT_EQ(run("getAttr ball.tx"), "10") << "the attribute keeps its value";
    EXPECT_EQ(run("cutKey ball"), "0");
}

TEST_F(KeyframeCommandsTest, InfinitiesGoOn)
{
    keyRamp();
    EXPECT_EQ(run("setInfinity -pri cycle -poi cycleRelative ball.tx"), "1");
    EXPECT_EQ(strings("setInfinity -q -pri -poi ball.tx"), (Value::Strings{"cycle", "cycleRelative"}));
    run("currentTime 16");
    EXPECT_NEAR(value("getAttr ball.tx").toNumber(), 15.0, 1e-9);
    run("currentTime -3");
    EXPECT_NEAR(value("getAttr ball.tx").toNumber(), 6.0, 1e-9);
    EXPECT_THAT(failure("setInfinity -poi never ball.tx"), HasSubstr("never"));
}

TEST_F(KeyframeCommandsTest, FindsKeysAroundTheCurrentTime)
{
    run("setKeyframe -t 2 -t 8 -t 20 ball.tx; setKeyframe -t 5 ball.ty; currentTime 5");
    EXPECT_EQ(run("findKeyframe ball"), "8");
    EXPECT_EQ(run("findKeyframe -which previous ball"), "2");
    EXPECT_EQ(run("findKeyframe -which first ball"), "2");
    EXPECT_EQ(run("findKeyframe -which last ball"), "20");
    EXPECT_EQ(run("findKeyframe -which next -t 20 ball"), "2") << "the first follows the last";
    EXPECT_EQ(run("findKeyframe -at ty -which next ball"), "5");
    EXPECT_EQ(run("findKeyframe -c ball"), "ball_translateX ball_translateY");
    EXPECT_EQ(run("createNode transform -n still; findKeyframe still"), "5") << "nothing there: now";
}

TEST_F(KeyframeCommandsTest, DrivenCurvesTakeNumbers)
{
    run("createNode animCurveUL -n driven; connectAttr driven.o ball.ty");
    EXPECT_EQ(run("setKeyframe -f 0 -f 2 -v 3 -itt linear -ott linear ball.ty"), "2");
    EXPECT_EQ(run("keyframe -e -f 2 -vc 7 driven"), "1");
    run("setAttr driven.i 1");
    EXPECT_EQ(run("getAttr ball.ty"), "5");
    EXPECT_EQ(run("keyframe -e -r -f \"1:\" -fc 2 driven"), "1");
    EXPECT_THAT(numbers("keyframe -q -fc driven"), ElementsAre(0.0, 4.0));
}

TEST_F(KeyframeCommandsTest, FilesHoldWhatWasKeyed)
{
    keyRamp();
    run("setKeyframe -t 5 -v 3 ball.rz; setKeyframe -t 1 -v 1 ball.v; setKeyframe -t 9 -v 0 ball.v;"
        "setInfinity -poi cycle ball.tx; keyTangent -e -t 11 -itt fixed -ott fixed ball.tx");
    std::string text = test::savedText(scene);
    for (const char* name : {"ball_translateX", "ball_rotateZ", "ball_visibility"}) {
        const std::string line = "\trename -uid \"" + scene.findNode(name).value->uuid() + "\";\n";
        text.erase(text.find(line), line.size());
    }
    EXPECT_THAT(text, HasSubstr("createNode animCurveTL -n \"ball_translateX\";\n"
                                "\tsetAttr \".tan\" 2;\n"
                                "\tsetAttr \".wgt\" no;\n"
                                "\tsetAttr -s 2 \".ktv[0:1]\"  1 0 11 10;\n"
                                "\tsetAttr -s 2 \".kit[1]\"  1;\n"
                                "\tsetAttr -s 2 \".kot[1]\"  1;\n"));
    EXPECT_THAT(text, HasSubstr("\tsetAttr \".pst\" 3;\n"));
    EXPECT_THAT(text, HasSubstr("createNode animCurveTA -n \"ball_rotateZ\";\n"
                                "\tsetAttr \".tan\" 18;\n"
                                "\tsetAttr \".wgt\" no;\n"
                                "\tsetAttr \".ktv[0]\"  5 3;\n"
                                "createNode"));
    EXPECT_THAT(text, HasSubstr("createNode animCurveTU -n \"ball_visibility\";\n"
                                "\tsetAttr \".tan\" 9;\n"
                                "\tsetAttr \".wgt\" no;\n"
                                "\tsetAttr -s 2 \".ktv[0:1]\"  1 1 9 0;\n"
                                "\tsetAttr -s 2 \".kot[0:1]\"  5 5;\n"));
    EXPECT_THAT(text, HasSubstr("connectAttr \"ball_translateX.o\" \"ball.tx\";\n"));
}

} // namespace
} // namespace tvxhost::mel
