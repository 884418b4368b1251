// Utility nodes: what they compute with numbers.
#include "fixtures.h"

#include <gmock/gmock.h>

namespace tvxhost::engine {
namespace {

using testing::ElementsAre;
using testing::FloatNear;
using testing::Pointwise;

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

TEST_F(SceneTest, GroupIdsAreNumbersOfTheirOwn)
{
    Node& first = make("groupId", "first");
    make("groupId", "second");
    const double one = number("first.groupId");
    const double two = number("second.groupId");
    EXPECT_GT(one, 0.0);
    EXPECT_GT(two, 0.0);
    EXPECT_NE(one, two);
    EXPECT_TRUE(scene.deleteNode(first));
    make("groupId", "third");
    EXPECT_NE(number("third.groupId"), two);
    EXPECT_EQ(number("second.groupId"), two);
}

class Utility : public SceneTest
{
};

TEST_F(Utility, MultiplyDivideWorksComponentByComponent)
{
    make("multiplyDivide", "md");
    setGroup("md.input1", {6, -3, 0.5});
    setGroup("md.input2", {2, 4, 8});
    set("md.operation", 0);
    EXPECT_THAT(group("md.output"), ElementsAre(6, -3, 0.5));
    set("md.operation", 1);
    EXPECT_THAT(group("md.output"), ElementsAre(12, -12, 4));
    set("md.operation", 2);
    EXPECT_THAT(group("md.output"), ElementsAre(3, -0.75, 0.0625));
    set("md.operation", 3);
    EXPECT_THAT(group("md.output"), ElementsAre(36, 81, 0.00390625));
    EXPECT_EQ(number("md.outputY"), 81.0);
}

TEST_F(Utility, LinearNodesAddAndMultiplyTwoNumbers)
{
    make("addDoubleLinear", "sum");
    make("multDoubleLinear", "product");
    for (const std::string node : {"sum", "product"}) {
        set(node + ".input1", 2.5);
        set(node + ".input2", -4);
    }
    EXPECT_EQ(number("sum.output"), -1.5);
    EXPECT_EQ(number("product.output"), -10.0);
}

TEST_F(Utility, ReverseTakesFromOne)
{
    make("reverse", "rev");
    setGroup("rev.input", {0, 0.25, 3});
    EXPECT_THAT(group("rev.output"), ElementsAre(1, 0.75, -2));
}

TEST_F(Utility, ClampHoldsEachChannelBetweenItsEnds)
{
    make("clamp", "cl");
    setGroup("cl.min", {0, 0, -1});
    setGroup("cl.max", {1, 1, 2});
    setGroup("cl.input", {-0.5, 0.5, 7});
    EXPECT_THAT(group("cl.output"), ElementsAre(0, 0.5, 2));
}

TEST_F(Utility, SetRangeMovesFromOneRangeToAnother)
{
    make("setRange", "sr");
    setGroup("sr.oldMin", {0, 0, 0});
    setGroup("sr.oldMax", {10, 10, 10});
    setGroup("sr.min", {100, 1, 0});
    setGroup("sr.max", {200, 0, 1});
    setGroup("sr.value", {2.5, 2.5, 99});
    EXPECT_THAT(group("sr.outValue"), ElementsAre(125, 0.75, 1));
    setGroup("sr.value", {-4, -4, 0});
    EXPECT_THAT(group("sr.outValue"), ElementsAre(100, 1, 0));
}

TEST_F(Utility, ConditionComparesItsTerms)
{
    make("condition", "if");
    setGroup("if.colorIfTrue", {1, 2, 3});
    setGroup("if.colorIfFalse", {4, 5, 6});
    struct Row
    {
        double first, second;
        const char* holds; // y or n for each operation: = != > >= < <=
    };
    for (const Row& row : {Row{1, 1, "ynnyny"}, Row{1, 2, "nynnyy"}, Row{2, 1, "nyyynn"}}) {
        set("if.firstTerm", row.first);
        set("if.secondTerm", row.second);
        for (int operation = 0; operation < 6; ++operation) {
            set("if.operation", operation);
            EXPECT_EQ(number("if.outColorR"), row.holds[operation] == 'y' ? 1.0 : 4.0)
                << row.first << ' ' << operation << ' ' << row.second;
        }
    }
    EXPECT_THAT(group("if.outColor"), ElementsAre(4, 5, 6));
}

TEST_F(Utility, BlendColorsMixesByItsBlender)
{
    make("blendColors", "bc");
    setGroup("bc.color1", {1, 0, 8});
    setGroup("bc.color2", {0, 4, 0});
    set("bc.blender", 0.25);
    EXPECT_THAT(group("bc.output"), ElementsAre(0.25, 3, 2));
    set("bc.blender", 1);
    EXPECT_THAT(group("bc.output"), ElementsAre(1, 0, 8));
}

TEST_F(Utility, BlendsOfNumbersWeighTheirInputs)
{
    make("blendTwoAttr", "two");
    set("two.input[0]", 10);
    set("two.input[1]", 20);
    set("two.attributesBlender", 0.3);
    EXPECT_DOUBLE_EQ(number("two.output"), 13.0);
    make("blendWeighted", "many");
    set("many.input[0]", 2);
    set("many.input[3]", 5);
    EXPECT_EQ(number("many.output"), 7.0) << "weights are 1 unless they are set";
    set("many.weight[3]", 0.5);
    EXPECT_EQ(number("many.output"), 4.5);
}

TEST_F(Utility, GammaAndLuminanceOfColors)
{
    make("gammaCorrect", "gc");
    setGroup("gc.value", {0.25, 1, 0.0625});
    setGroup("gc.gamma", {2, 2.2, 4});
    EXPECT_THAT(group("gc.outValue"), ElementsAre(0.5, 1, 0.5));
    make("luminance", "lum");
    setGroup("lum.value", {1, 0.5, 0.25});
    EXPECT_FLOAT_EQ(static_cast<float>(number("lum.outValue")), 0.3F + 0.295F + 0.0275F);
}

struct ColorRow
{
    std::vector<double> rgb;
    std::vector<double> hsv;
};

TEST_F(Utility, ColorsHaveHueSaturationAndValue)
{
    make("rgbToHsv", "hsv");
    make("hsvToRgb", "rgb");
    for (const ColorRow& row : {ColorRow{{1, 0, 0}, {0, 1, 1}},
                                {{0, 0.5, 0}, {120, 1, 0.5}},
                                {{0, 0, 2}, {240, 1, 2}},
                                {{0.75, 0.75, 0.5}, {60, 1.0 / 3.0, 0.75}},
                                {{1, 0.5, 1}, {300, 0.5, 1}},
                                {{0.25, 0.25, 0.25}, {0, 0, 0.25}}}) {
        setGroup("hsv.inRgb", row.rgb);
        setGroup("rgb.inHsv", row.hsv);
        EXPECT_THAT(group("hsv.outHsv"), Pointwise(FloatNear(1e-4F), row.hsv));
        EXPECT_THAT(group("rgb.outRgb"), Pointwise(FloatNear(1e-4F), row.rgb));
    }
}

TEST_F(Utility, AHueGoesRoundTheCircle)
{
    make("hsvToRgb", "rgb");
    for (const double hue : {-240.0, 120.0, 480.0}) {
        setGroup("rgb.inHsv", {hue, 1, 1});
        EXPECT_THAT(group("rgb.outRgb"), ElementsAre(0, 1, 0)) << hue;
    }
}

TEST_F(Utility, RemapValueWithoutEntriesIsALine)
{
    make("remapValue", "rv");
    set("rv.inputMin", 10);
    set("rv.inputMax", 20);
    set("rv.outputMax", 8);
    set("rv.inputValue", 12.5);
    EXPECT_EQ(number("rv.outValue"), 2.0);
    EXPECT_THAT(group("rv.outColor"), ElementsAre(0.25, 0.25, 0.25));
    set("rv.inputValue", 100);
    EXPECT_EQ(number("rv.outValue"), 8.0) << "what lies outside counts as the end";
}

TEST_F(Utility, RemapValueFollowsItsRamp)
{
    make("remapValue", "rv");
    // Down from 1 to 0 over the first half, then up to 0.5.
    const double entries[3][3] = {{0, 1, 1}, {0.5, 0, 1}, {1, 0.5, 1}};
    for (int i = 0; i < 3; ++i) {
        const std::string entry = "rv.value[" + std::to_string(i) + "]";
        set(entry + ".value_Position", entries[i][0]);
        set(entry + ".value_FloatValue", entries[i][1]);
        set(entry + ".value_Interp", entries[i][2]);
    }
    set("rv.inputValue", 0.125);
    EXPECT_EQ(number("rv.outValue"), 0.75);
    set("rv.inputValue", 0.75);
    EXPECT_EQ(number("rv.outValue"), 0.25);
    set("rv.value[1].value_Interp", 2);
    set("rv.inputValue", 0.625);
    EXPECT_EQ(number("rv.outValue"), 0.5 * (3 * 0.0625 - 2 * 0.015625)) << "smooth: 3 t^2 - 2 t^3";
    set("rv.value[1].value_Interp", 0);
    EXPECT_EQ(number("rv.outValue"), 0.0) << "none: the entry's value holds";
}

TEST_F(Utility, ChoiceHandsOnTheChosenInput)
{
    makeTransform("left");
    makeTransform("right");
    makeTransform("follower");
    make("choice", "pick");
    EXPECT_TRUE(connect("left.translateX", "pick.input[0]"));
    EXPECT_TRUE(connect("right.translateX", "pick.input[1]"));
    EXPECT_TRUE(connect("pick.output", "follower.translateX"));
    set("left.translateX", 3);
    set("right.translateX", -7);
    EXPECT_EQ(number("follower.translateX"), 3.0);
    set("pick.selector", 1);
    EXPECT_EQ(number("follower.translateX"), -7.0);
    set("right.translateX", 1);
    EXPECT_EQ(number("follower.translateX"), 1.0);
}

class PairBlend : public Utility
{
protected:
    PairBlend()
    {
        make("pairBlend", "pair");
        setGroup("pair.inTranslate1", {0, 10, 20});
        setGroup("pair.inTranslate2", {4, 14, 24});
        turn("pair.inRotate1", {0, 0, 170});
        turn("pair.inRotate2", {0, 0, -170});
        set("pair.weight", 0.25);
    }
    void turn(const std::string& name, const std::vector<double>& degrees)
    {
        setGroup(name, {degrees[0] * kDegree, degrees[1] * kDegree, degrees[2] * kDegree});
    }
    void expectTurn(const std::vector<double>& degrees)
    {
        const std::vector<double> angles = group("pair.outRotate");
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_NEAR(angles[i] / kDegree, degrees[i], 1e-9) << i;
    }

    static constexpr double kDegree = 3.14159265358979323846 / 180.0;
};

TEST_F(PairBlend, GoesFromTheFirstInputToTheSecond)
{
    EXPECT_THAT(group("pair.outTranslate"), ElementsAre(1, 11, 21));
    expectTurn({0, 0, 85});
    set("pair.weight", 1);
    EXPECT_THAT(group("pair.outTranslate"), ElementsAre(4, 14, 24));
    expectTurn({0, 0, -170});
}

TEST_F(PairBlend, EachAxisMayTakeOneInputAlone)
{
    set("pair.translateXMode", 1);
    set("pair.translateZMode", 2);
    EXPECT_THAT(group("pair.outTranslate"), ElementsAre(0, 11, 24));
    set("pair.rotateMode", 1);
    expectTurn({0, 0, 170});
    set("pair.rotateMode", 2);
    expectTurn({0, 0, -170});
}

TEST_F(PairBlend, QuaternionsTakeTheShortWay)
{
    set("pair.rotInterpolation", 1);
    expectTurn({0, 0, 175});
    // The last turn in the order grows, the one before it stays.
    turn("pair.inRotate1", {90, 0, 0});
    turn("pair.inRotate2", {90, 0, 60});
    set("pair.weight", 0.5);
    expectTurn({90, 0, 30});
    set("pair.rotateOrder", 5);
    turn("pair.inRotate1", {0, 0, 90});
    turn("pair.inRotate2", {60, 0, 90});
    expectTurn({30, 0, 90});
}

TEST_F(Utility, AMutedNodeHoldsItsValue)
{
    make("mute", "m");
    set("m.input", 5);
    set("m.hold", 2);
    EXPECT_EQ(number("m.output"), 5.0);
    set("m.mute", 1);
    EXPECT_EQ(number("m.output"), 2.0);
}

TEST_F(Utility, AChainOfNodesFollowsItsInput)
{
    makeTransform("leader");
    makeTransform("follower");
    make("multiplyDivide", "half");
    make("reverse", "rev");
    make("clamp", "cl");
    set("half.input2X", 0.5);
    setGroup("cl.max", {1, 1, 1});
    EXPECT_TRUE(connect("leader.translateX", "half.input1X"));
    EXPECT_TRUE(connect("half.outputX", "rev.inputX"));
    EXPECT_TRUE(connect("rev.outputX", "cl.inputR"));
    EXPECT_TRUE(connect("cl.outputR", "follower.scaleY"));
    EXPECT_EQ(number("follower.scaleY"), 1.0);
    set("leader.translateX", 0.5);
    EXPECT_EQ(number("follower.scaleY"), 0.75);
    set("leader.translateX", 20);
    EXPECT_EQ(number("follower.scaleY"), 0.0);
}

TEST_F(Utility, RemapColorGoesThroughARampForEachChannel)
{
    make("remapColor", "remap");
    setGroup("remap.color", {0.25, 0.5, 2});
    EXPECT_THAT(group("remap.outColor"), Pointwise(FloatNear(1e-6f), {0.25, 0.5, 1.0}));
    // Red falls from 1 to 0, of the others nothing changes.
    set("remap.red[0].red_Position", 0);
    set("remap.red[0].red_FloatValue", 1);
    set("remap.red[0].red_Interp", 1);
    set("remap.red[1].red_Position", 1);
    set("remap.red[1].red_FloatValue", 0);
    set("remap.red[1].red_Interp", 1);
    EXPECT_THAT(group("remap.outColor"), Pointwise(FloatNear(1e-6f), {0.75, 0.5, 1.0}));
    set("remap.inputMax", 2);
    set("remap.outputMin", 1);
    set("remap.outputMax", 5);
    EXPECT_THAT(group("remap.outColor"), Pointwise(FloatNear(1e-6f), {4.5, 2.0, 5.0}));
}

TEST_F(Utility, RemapHsvGoesThroughARampForEachPart)
{
    make("remapHsv", "remap");
    setGroup("remap.color", {0.5, 0, 0});
    EXPECT_THAT(group("remap.outColor"), Pointwise(FloatNear(1e-6f), {0.5, 0.0, 0.0}));
    // Every hue becomes that at a third of the circle, which is green.
    set("remap.hue[0].hue_FloatValue", 1.0 / 3.0);
    EXPECT_THAT(group("remap.outColor"), Pointwise(FloatNear(1e-6f), {0.0, 0.5, 0.0}));
    set("remap.saturation[0].saturation_FloatValue", 0.5);
    set("remap.value[0].value_FloatValue", 0.8);
    EXPECT_THAT(group("remap.outColor"), Pointwise(FloatNear(1e-6f), {0.4, 0.8, 0.4}));
}

TEST_F(Utility, ADimensionMeasuresBetweenLocators)
{
    Node& shape = make("distanceDimShape");
    EXPECT_EQ(shape.name(), "distanceDimensionShape1");
    EXPECT_EQ(number("distanceDimensionShape1.distance"), 0.0);
    for (const std::string name : {"from", "to"})
        make("locator", name + "Spot", &makeTransform(name));
    EXPECT_TRUE(connect("fromSpot.worldPosition[0]", "distanceDimensionShape1.startPoint"));
    EXPECT_TRUE(connect("toSpot.worldPosition[0]", "distanceDimensionShape1.endPoint"));
    setGroup("from.translate", {0, 2, 2});
    setGroup("to.translate", {3, 2, 6});
    EXPECT_EQ(number("distanceDimensionShape1.distance"), 5.0);
}

} // namespace
} // namespace tvxhost::engine
