// setAttr, getAttr, addAttr, deleteAttr, attributeQuery, listAttr, aliasAttr.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;

class AttributeCommandsTest : public CommandFixture
{
protected:
    AttributeCommandsTest() { run("createNode transform -n \"n\""); }
};

TEST_F(AttributeCommandsTest, valuesAreInTheUnitsOfTheUser)
{
    run("currentUnit -l m; setAttr n.tx 2; setAttr n.ry 90");
    EXPECT_DOUBLE_EQ(engine::readNumber(scene.findPlug("n.tx").value).value.asReal(), 200);
    EXPECT_EQ(run("getAttr n.tx"), "2");
    EXPECT_EQ(run("getAttr n.ry"), "90");
    run("currentUnit -a rad");
    EXPECT_NEAR(value("getAttr n.ry").number(), 1.5707963267948966, 1e-15);
}

TEST_F(AttributeCommandsTest, compoundsTakeAllTheirNumbersWithAndWithoutAType)
{
    run("setAttr n.t 1 2 3");
    EXPECT_THAT(numbers("getAttr n.t"), ElementsAre(1, 2, 3));
    run("setAttr n.t -type double3 4 5 6");
    EXPECT_THAT(numbers("getAttr n.t"), ElementsAre(4, 5, 6));
    EXPECT_EQ(failure("setAttr n.t 1 2"), "setAttr: Error reading the values of 'n.translate'");
}

TEST_F(AttributeCommandsTest, lockedAndFedAttributesAreRefused)
{
    run("setAttr -l on n.tx");
    EXPECT_EQ(failure("setAttr n.tx 1"),
              "setAttr: The attribute 'n.translateX' is locked or connected and cannot be modified.");
    EXPECT_EQ(run("getAttr -l n.tx"), "1");
    run("createNode transform -n \"s\"; connectAttr s.ty n.ty");
    EXPECT_EQ(failure("setAttr n.ty 1"),
              "setAttr: The attribute 'n.translateY' is locked or connected and cannot be modified.");
    EXPECT_EQ(run("getAttr -se n.ty"), "0");
    EXPECT_EQ(run("getAttr -se n.tz"), "1");
}

TEST_F(AttributeCommandsTest, hardLimitsAreHeldUnlessClamped)
{
    run("addAttr -ln \"h\" -at double -min -1 -max 1 n");
    EXPECT_EQ(failure("setAttr n.h 2"),
              "setAttr: Cannot set the attribute 'n.h' past its maximum value of 1.");
    EXPECT_EQ(failure("setAttr n.h -3"),
              "setAttr: Cannot set the attribute 'n.h' past its minimum value of -1.");
    run("setAttr -c n.h 2");
    EXPECT_EQ(run("getAttr n.h"), "1");
}

TEST_F(AttributeCommandsTest, limitsAreToldInTheUnitsOfTheUser)
{
    run("addAttr -ln \"reach\" -at doubleLinear -max 200 n; currentUnit -l m");
    EXPECT_EQ(failure("setAttr n.reach 3"),
              "setAttr: Cannot set the attribute 'n.reach' past its maximum value of 2.");
}

TEST_F(AttributeCommandsTest, theChildOfACompoundThatIsPastItsLimitIsNamed)
{
    run("addAttr -ln \"tint\" -at float3 n; addAttr -ln \"tintR\" -at \"float\" -max 1 -p tint n;"
        "addAttr -ln \"tintG\" -at \"float\" -max 1 -p tint n;"
        "addAttr -ln \"tintB\" -at \"float\" -max 1 -p tint n");
    EXPECT_EQ(failure("setAttr n.tint 0.5 2 0.5"),
              "setAttr: Cannot set the attribute 'n.tintG' past its maximum value of 1.");
    EXPECT_THAT(numbers("getAttr n.tint"), ElementsAre(0, 0, 0));
    run("setAttr -clamp n.tint 0.5 2 0.5");
    EXPECT_THAT(numbers("getAttr n.tint"), ElementsAre(0.5, 1, 0.5));
}

TEST_F(AttributeCommandsTest, whatIsNotWritableIsRefused)
{
    run("addAttr -ln \"level\" -at double -dv 4 -w false n");
    EXPECT_EQ(failure("setAttr n.level 1"), "setAttr: The attribute 'n.level' cannot be set");
    EXPECT_EQ(failure("setAttr -clamp n.level 1"), "setAttr: The attribute 'n.level' cannot be set");
    EXPECT_EQ(run("getAttr n.level"), "4");
    EXPECT_EQ(run("getAttr -settable n.level"), "0");
    EXPECT_EQ(failure("connectAttr n.tx n.level"),
              "Connection not made: 'n.translateX' -> 'n.level'.  Destination attribute must be writable.");
}

TEST_F(AttributeCommandsTest, childrenOfColoursAreSetAndConnectedOneByOne)
{
    run("createNode lambert -n \"l\"; createNode lambert -n \"m\"; setAttr l.colorG 0.25; setAttr l.cb 0.75");
    EXPECT_EQ(run("getAttr l.colorG"), "0.25");
    EXPECT_EQ(run("getAttr l.cg"), "0.25");
    run("connectAttr l.colorG m.colorR");
    EXPECT_EQ(run("getAttr m.colorR"), "0.25");
    EXPECT_EQ(failure("setAttr m.colorR 1"),
              "setAttr: The attribute 'm.colorR' is locked or connected and cannot be modified.");
    EXPECT_EQ(run("getAttr -settable m.color"), "0");
    EXPECT_EQ(run("getAttr -settable m.colorG"), "1");
    EXPECT_EQ(run("connectionInfo -sfd m.colorR"), "l.colorG");
}

TEST_F(AttributeCommandsTest, namesThatNothingMatchesAreNamed)
{
    EXPECT_EQ(failure("setAttr n.nope 1"), "No object matches name: n.nope");
    EXPECT_EQ(failure("getAttr m.tx"), "No object matches name: m.tx");
}

TEST_F(AttributeCommandsTest, stringsAndArraysHaveTheirTypes)
{
    run("addAttr -ln \"note\" -dt \"string\" n; addAttr -ln \"counts\" -dt \"Int32Array\" n;"
        "addAttr -ln \"weights\" -dt \"doubleArray\" n; addAttr -ln \"words\" -dt \"stringArray\" n");
    EXPECT_TRUE(value("getAttr n.note").isNone());
    run("setAttr n.note -type \"string\" \"-hello\"");
    EXPECT_EQ(run("getAttr n.note"), "-hello");
    run("setAttr n.counts -type \"Int32Array\" 3 1 2 3; setAttr n.weights -type \"doubleArray\" 2 0.5 1.5;"
        "setAttr n.words -type \"stringArray\" 2 \"a\" \"b c\"");
    EXPECT_THAT(value("getAttr n.counts").integers(), ElementsAre(1, 2, 3));
    EXPECT_THAT(numbers("getAttr n.weights"), ElementsAre(0.5, 1.5));
    EXPECT_THAT(strings("getAttr n.words"), ElementsAre("a", "b c"));
    EXPECT_EQ(run("getAttr -type n.note"), "string");
    EXPECT_EQ(run("getAttr -type n.t"), "double3");
    EXPECT_EQ(run("getAttr -type n.v"), "bool");
}

TEST_F(AttributeCommandsTest, aStringThatWasNeverSetLeavesAVariableEmpty)
{
    run("addAttr -ln \"note\" -dt \"string\" n");
    EXPECT_EQ(run("string $s = `getAttr n.note`; size($s)"), "0");
    EXPECT_EQ(run("string $s = \"old\"; $s = `getAttr n.note`; \"<\" + $s + \">\""), "<>");
    EXPECT_EQ(run("string $list[] = {\"old\"}; $list[0] = getAttr(\"n.note\"); \"<\" + $list[0] + \">\""),
              "<>");
    EXPECT_EQ(run("proc string note() { return `getAttr n.note`; } \"<\" + note() + \">\""), "<>");
}

TEST_F(AttributeCommandsTest, enumsAnswerNumbersAndFields)
{
    run("addAttr -ln \"mode\" -at \"enum\" -en \"off:on low=5:high\" n; setAttr n.mode 5");
    EXPECT_EQ(run("getAttr n.mode"), "5");
    EXPECT_EQ(run("getAttr -as n.mode"), "on low");
    EXPECT_THAT(strings("attributeQuery -n n -le \"mode\""), ElementsAre("off:on low=5:high"));
    EXPECT_EQ(run("addAttr -q -en n.mode"), "off:on low=5:high");
    EXPECT_EQ(run("getAttr -type n.mode"), "enum");
}

TEST_F(AttributeCommandsTest, enumsHoldTheRangeOfTheirFields)
{
    run("addAttr -ln \"mode\" -at \"enum\" -en \"low=2:mid:high=7\" -dv 2 n");
    EXPECT_EQ(failure("setAttr n.mode 8"),
              "setAttr: Cannot set the attribute 'n.mode' past its maximum value of 7.");
    EXPECT_EQ(failure("setAttr n.mode 1"),
              "setAttr: Cannot set the attribute 'n.mode' past its minimum value of 2.");
    EXPECT_EQ(run("getAttr -asString n.mode"), "low");
    run("setAttr -clamp n.mode 100");
    EXPECT_EQ(run("getAttr -asString n.mode"), "high");
    // A number between two fields is legal and has no name.
    run("setAttr n.mode 5");
    EXPECT_EQ(run("getAttr n.mode"), "5");
    EXPECT_EQ(run("getAttr -asString n.mode"), "");
    failure("setAttr n.mode \"mid\"");
    EXPECT_EQ(run("getAttr n.mode"), "5");
}

TEST_F(AttributeCommandsTest, addAttrEditsWhatWasAdded)
{
    run("addAttr -ln \"mode\" -at \"enum\" -en \"off:on\" n; addAttr -ln \"weight\" -max 1 n");
    run("addAttr -e -en \"off:on:auto\" n.mode; setAttr n.mode 2");
    EXPECT_EQ(run("getAttr -as n.mode"), "auto");
    run("addAttr -e -max 3 -dv 0.5 -nn \"Mass\" n.weight; setAttr n.weight 2");
    EXPECT_EQ(run("addAttr -q -max n.weight"), "3");
    EXPECT_EQ(run("addAttr -q -dv n.weight"), "0.5");
    EXPECT_EQ(run("addAttr -q -nn n.weight"), "Mass");
    EXPECT_EQ(failure("addAttr -e -dv 1 n.tx"), "addAttr: Static attributes cannot be edited: translateX");
}

TEST_F(AttributeCommandsTest, arraysKnowTheirElements)
{
    run("addAttr -ln \"xs\" -at double -m n; setAttr \"n.xs[3]\" 7; setAttr \"n.xs[5:6]\" 1 2");
    EXPECT_EQ(run("getAttr -s n.xs"), "3");
    EXPECT_THAT(value("getAttr -mi n.xs").integers(), ElementsAre(3, 5, 6));
    EXPECT_EQ(run("getAttr \"n.xs[6]\""), "2");
}

TEST_F(AttributeCommandsTest, compoundsExistOnceTheirChildrenDo)
{
    run("addAttr -ln \"tint\" -uac -at float3 n");
    EXPECT_EQ(run("objExists n.tint"), "0");
    run("addAttr -ln \"tintR\" -at \"float\" -p tint n; addAttr -ln \"tintG\" -at \"float\" -p tint n;"
        "addAttr -ln \"tintB\" -at \"float\" -p tint n");
    run("setAttr n.tint 1 0.5 0.25");
    EXPECT_THAT(numbers("getAttr n.tint"), ElementsAre(1, 0.5, 0.25));
    EXPECT_THAT(strings("attributeQuery -n n -lc tint"), ElementsAre("tintR", "tintG", "tintB"));
    EXPECT_EQ(run("attributeQuery -n n -uac tint"), "1");
}

TEST_F(AttributeCommandsTest, aNameIsTakenOnce)
{
    run("addAttr -ln \"w\" n");
    EXPECT_THAT(failure("addAttr -ln \"w\" n"), testing::HasSubstr("'w' on 'n'"));
}

TEST_F(AttributeCommandsTest, deleteAttrTakesOnlyWhatWasAdded)
{
    run("addAttr -ln \"w\" n; deleteAttr n.w");
    EXPECT_EQ(run("objExists n.w"), "0");
    EXPECT_EQ(failure("deleteAttr n.tx"), "deleteAttr: 'translateX' is part of 'translate'");
    EXPECT_EQ(failure("deleteAttr n.v"), "deleteAttr: Static attributes cannot be deleted: n.visibility");
}

TEST_F(AttributeCommandsTest, attributeQueryTellsTheDeclaration)
{
    run("addAttr -ln \"weight\" -sn \"wgt\" -at double -dv 0.5 -min 0 -smx 2 -k true n");
    EXPECT_THAT(numbers("attributeQuery -n n -ld weight"), ElementsAre(0.5));
    EXPECT_THAT(numbers("attributeQuery -n n -min weight"), ElementsAre(0));
    EXPECT_EQ(run("attributeQuery -n n -mne weight"), "1");
    EXPECT_EQ(run("attributeQuery -n n -mxe weight"), "0");
    EXPECT_EQ(run("attributeQuery -n n -sn weight"), "wgt");
    EXPECT_EQ(run("attributeQuery -n n -ln wgt"), "weight");
    EXPECT_EQ(run("attributeQuery -n n -k weight"), "1");
    EXPECT_EQ(run("attributeQuery -n n -at weight"), "double");
    EXPECT_EQ(run("attributeQuery -n n -ex nothing"), "0");
    EXPECT_EQ(run("attributeQuery -typ transform -ex translate"), "1");
}

TEST_F(AttributeCommandsTest, listAttrListsWhatWasAsked)
{
    run("addAttr -ln \"weight\" -k true n; addAttr -ln \"note\" -dt \"string\" n");
    EXPECT_THAT(strings("listAttr -ud n"), ElementsAre("weight", "note"));
    EXPECT_THAT(strings("listAttr -ud -k n"), ElementsAre("weight"));
}

TEST_F(AttributeCommandsTest, aliasesFindAttributes)
{
    run("aliasAttr \"lift\" n.ty; setAttr n.lift 3");
    EXPECT_EQ(run("getAttr n.ty"), "3");
    EXPECT_EQ(run("aliasAttr -q n.ty"), "lift");
}

TEST_F(AttributeCommandsTest, aTransformAnswersForItsShape)
{
    run("createNode camera -n \"camShape\"; setAttr \"cam.focalLength\" 50");
    EXPECT_EQ(run("getAttr \"camShape.focalLength\""), "50");
}

TEST_F(AttributeCommandsTest, aDotAloneMeansTheSelection)
{
    run("select -r n; setAttr .tx 9");
    EXPECT_EQ(run("getAttr n.tx"), "9");
}

TEST_F(AttributeCommandsTest, whatKeysDriveCanBeSet)
{
    run("createNode transform -n t; createNode transform -n u; setKeyframe t.tx; connectAttr u.ty t.ty");
    EXPECT_EQ(run("getAttr -settable t.tx"), "1");
    EXPECT_EQ(run("getAttr -settable t.ty"), "0");
}

TEST_F(AttributeCommandsTest, variablesInTextsAreReplacedWhenItIsAsked)
{
    run("createNode transform -n t; addAttr -ln place -dt \"string\" t; putenv \"TVX_TEST_PLACE\" "
        "\"/pictures\";"
        "setAttr -type \"string\" t.place \"$TVX_TEST_PLACE/sky.png\"");
    EXPECT_EQ(run("getAttr t.place"), "$TVX_TEST_PLACE/sky.png");
    EXPECT_EQ(run("getAttr -expandEnvironmentVariables t.place"), "/pictures/sky.png");
}

} // namespace tvxhost::mel
