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

TEST_F(AttributeCommandsTest, enumsAnswerNumbersAndFields)
{
    run("addAttr -ln \"mode\" -at \"enum\" -en \"off:on low=5:high\" n; setAttr n.mode 5");
    EXPECT_EQ(run("getAttr n.mode"), "5");
    EXPECT_EQ(run("getAttr -as n.mode"), "on low");
    EXPECT_THAT(strings("attributeQuery -n n -le \"mode\""), ElementsAre("off:on low:high"));
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

} // namespace tvxhost::mel
