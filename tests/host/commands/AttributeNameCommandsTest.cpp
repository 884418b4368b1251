// listAttr and attributeName.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;

class AttributeNameCommandsTest : public CommandFixture
{
protected:
    AttributeNameCommandsTest() { run("createNode transform -n \"n\""); }
};

TEST_F(AttributeNameCommandsTest, namesAreNiceLongOrShort)
{
    EXPECT_EQ(run("attributeName n.tx"), "Translate X");
    EXPECT_EQ(run("attributeName -long n.tx"), "translateX");
    EXPECT_EQ(run("attributeName -short n.translateX"), "tx");
    EXPECT_EQ(run("attributeName -long -leaf false n.tx"), "translate.translateX");
    run("addAttr -ln \"how_much\" n; addAttr -ln \"w\" -nn \"The Weight\" n");
    EXPECT_EQ(run("attributeName n.how_much"), "How Much");
    EXPECT_EQ(run("attributeName -nice n.w"), "The Weight");
    EXPECT_EQ(run("attributeQuery -node n -niceName translateX"), "Translate X");
}

TEST_F(AttributeNameCommandsTest, attributesAreListedByWhatTheyAre)
{
    run("addAttr -ln \"list\" -m n; addAttr -ln \"note\" -dt \"string\" -ct \"mine\" n;"
        "setAttr n.list[2] 1; setAttr n.list[4] 1; setAttr -lock true n.note");
    EXPECT_THAT(strings("listAttr -userDefined -array n"), ElementsAre("list"));
    EXPECT_THAT(strings("listAttr -userDefined -multi n"), ElementsAre("list", "list[2]", "list[4]", "note"));
    EXPECT_THAT(strings("listAttr -category \"mine\" n"), ElementsAre("note"));
    EXPECT_THAT(strings("listAttr -locked n"), ElementsAre("note"));
    EXPECT_THAT(strings("listAttr -string \"scale?\" n"), ElementsAre("scaleX", "scaleY", "scaleZ"));
    EXPECT_THAT(strings("listAttr -settable -string \"translate*\" -leaf n"),
                ElementsAre("translateX", "translateY", "translateZ"));
    EXPECT_THAT(strings("listAttr n.rotate"), ElementsAre("rotate", "rotateX", "rotateY", "rotateZ"));
}

TEST_F(AttributeNameCommandsTest, whatIsInAnArrayIsNamedWithIt)
{
    run("addAttr -ln \"row\" -at compound -nc 1 -m n; addAttr -ln \"cell\" -p row n; setAttr n.row[1].cell "
        "2");
    EXPECT_THAT(strings("listAttr -ud n"), ElementsAre("row", "row.cell"));
    EXPECT_THAT(strings("listAttr -ud -multi n"), ElementsAre("row", "row[1]", "row[1].cell"));
}

TEST_F(AttributeNameCommandsTest, declarationsAnswerFurtherQuestions)
{
    run("addAttr -ln \"part\" -min 0 -max 1 n; addAttr -ln \"half\" -min 0 n");
    EXPECT_EQ(run("attributeQuery -node n -rangeExists part"), "1");
    EXPECT_EQ(run("attributeQuery -node n -rangeExists half"), "0");
    EXPECT_EQ(run("attributeQuery -node n -message message"), "1");
    EXPECT_EQ(run("attributeQuery -node n -enum rotateOrder"), "1");
    EXPECT_THAT(strings("attributeQuery -node n -listSiblings translateX"),
                ElementsAre("translateY", "translateZ"));
}

TEST_F(AttributeNameCommandsTest, addedAttributesGetOtherNames)
{
    run("addAttr -ln \"weight\" -sn \"w\" n; setAttr n.weight 3; connectAttr n.weight n.tx");
    EXPECT_EQ(run("renameAttr n.weight \"mass\""), "mass");
    EXPECT_EQ(run("getAttr n.mass"), "3");
    EXPECT_EQ(run("getAttr n.w"), "3");
    EXPECT_EQ(run("connectionInfo -sfd n.tx"), "n.mass");
    run("renameAttr n.w \"kg\"");
    EXPECT_THAT(strings("listAttr -ud -shortNames n"), ElementsAre("kg"));
    EXPECT_EQ(failure("renameAttr n.mass \"translateY\""),
              "renameAttr: 'n' has an attribute named 'translateY'");
    EXPECT_EQ(failure("renameAttr n.mass \"1st\""), "renameAttr: '1st' is not a legal name");
    EXPECT_EQ(failure("renameAttr n.tx \"x\""), "renameAttr: 'translateX' was not added to 'n'");
}

TEST_F(AttributeNameCommandsTest, anAliasGoesWithItsAttribute)
{
    run("addAttr -ln pair -at double2 n; addAttr -ln pairX -at double -p pair n;"
        "addAttr -ln pairY -at double -p pair n; addAttr -ln list -m n; addAttr -ln pai n");
    run("aliasAttr first n.pairX second n.list[3] third n.pai fourth n.tx");
    run("deleteAttr n.pair; deleteAttr n.list");
    EXPECT_THAT(strings("aliasAttr -q n"), ElementsAre("third", "pai", "fourth", "translateX"));
    EXPECT_EQ(failure("aliasAttr -q"), "aliasAttr: whose aliases are asked for?");
    EXPECT_EQ(failure("addAttr -q -keyable"), "addAttr: which attribute is asked for?");
    run("addAttr -ln first n");
}

TEST_F(AttributeNameCommandsTest, anAliasStaysWhenItsAttributeIsRenamed)
{
    run("addAttr -ln row -at compound -nc 1 -m n; addAttr -ln cell -p row n; setAttr n.row[1].cell 2");
    run("aliasAttr best n.row[1].cell; renameAttr n.row line; renameAttr n.cell place");
    EXPECT_EQ(run("getAttr n.best"), "2");
    EXPECT_THAT(strings("aliasAttr -q n"), ElementsAre("best", "line[1].place"));
}

TEST_F(AttributeNameCommandsTest, declarationsAreAskedFor)
{
    run("addAttr -ln \"part\" -min 0 -k true n; addAttr -ln \"note\" -dt \"string\" -h true n");
    EXPECT_EQ(run("addAttr -q -hasMinValue n.part"), "1");
    EXPECT_EQ(run("addAttr -q -hasMaxValue n.part"), "0");
    EXPECT_EQ(run("addAttr -q -hidden n.note"), "1");
    EXPECT_EQ(run("addAttr -q -keyable n.part"), "1");
    EXPECT_THAT(strings("addAttr -q -dataType n.note"), ElementsAre("string"));
    EXPECT_THAT(strings("deleteAttr -q n"), ElementsAre("part", "note"));
    run("deleteAttr -name n -attribute note");
    EXPECT_THAT(strings("listAttr -ud n"), ElementsAre("part"));
}

TEST_F(AttributeNameCommandsTest, objectTypesAreTold)
{
    EXPECT_EQ(run("objectType n"), "transform");
    EXPECT_EQ(run("objectType -isType transform n"), "1");
    EXPECT_EQ(run("objectType -isAType dagNode n"), "1");
    EXPECT_EQ(run("objectType -isType dagNode n"), "0");
    EXPECT_EQ(run("objectType -typeFromTag `objectType -typeTag n`"), "transform");
    EXPECT_EQ(run("nodeType -apiType n"), "kTransform");
    EXPECT_EQ(run("objectType -tagFromType transform"), run("objectType -typeTag n"));
}

} // namespace tvxhost::mel
