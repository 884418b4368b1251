// What a file says of enums, limits, outputs and the children of colours.
#include "SceneFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tvxhost::scene {

using testing::ElementsAre;
using testing::IsEmpty;

class AttributeKindsTest : public SceneFixture
{
};

TEST_F(AttributeKindsTest, enumsAreHeldByTheirNumber)
{
    const std::string node =
        "createNode transform -n \"n\";\n"
        "\trename -uid \"11111111-2222-3333-4444-555555555555\";\n"
        "\taddAttr -ci true -sn \"md\" -ln \"mode\" -min 0 -max 4 -en \"off:low=3:high\" "
        "-at \"enum\";\n"
        "\tsetAttr \".md\" 4;\n";
    const ReadResult result = read(node);
    EXPECT_TRUE(result.isClean());
    EXPECT_THAT(numbers("n.mode"), ElementsAre(4));
    EXPECT_EQ(savedSection("createNode transform -n \"n\""), node);
}

TEST_F(AttributeKindsTest, valuesThatWereLegalOnceStay)
{
    const ReadResult result =
        read("createNode transform -n \"n\";\n"
             "\taddAttr -ci true -sn \"md\" -ln \"mode\" -min 0 -max 1 -en \"off:on\" -at \"enum\";\n"
             "\taddAttr -ci true -sn \"w\" -ln \"weight\" -min 0 -max 1 -at \"double\";\n"
             "\tsetAttr \".md\" 7;\n\tsetAttr \".w\" -2;\n");
    EXPECT_TRUE(result.isClean());
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_THAT(numbers("n.mode"), ElementsAre(7));
    EXPECT_THAT(numbers("n.weight"), ElementsAre(-2));
}

TEST_F(AttributeKindsTest, outputsAreRefusedAndTheReadingGoesOn)
{
    read("createNode multiplyDivide -n \"m\";\n\tsetAttr \".o\" -type \"float3\" 1 2 3 ;\n"
         "\tsetAttr \".i1\" -type \"float3\" 4 5 6 ;\n");
    EXPECT_THAT(
        messages(),
        ElementsAre("Error: file: /scenes/test.ma line 3: setAttr: The attribute 'm.output' cannot be set\n",
                    "Error: Errors have occurred while reading this scene that may result in data loss.\n"));
    EXPECT_THAT(numbers("m.input1"), ElementsAre(4, 5, 6));
    EXPECT_THAT(numbers("m.output"), ElementsAre(4, 5, 6)) << "the product with 1, not what the file says";
}

TEST_F(AttributeKindsTest, childrenOfColoursAreSetLockedAndConnected)
{
    const ReadResult result = read("createNode lambert -n \"a\";\n\tsetAttr \".cg\" 0.25;\n"
                                   "createNode lambert -n \"b\";\n\tsetAttr -l on \".cb\" 0.75;\n"
                                   "connectAttr \"a.cg\" \"b.cr\";\n");
    EXPECT_TRUE(result.isClean());
    EXPECT_THAT(numbers("a.color"), ElementsAre(0.5, 0.25, 0.5));
    EXPECT_THAT(numbers("b.color"), ElementsAre(0.25, 0.5, 0.75));
    EXPECT_EQ(source("b.colorR"), "a.colorG");
    EXPECT_EQ(savedStatements("connectAttr \"a."), "connectAttr \"a.cg\" \"b.cr\";\n");
    EXPECT_NE(savedSection("createNode lambert -n \"b\"").find("\tsetAttr -l on \".cb\" 0.75;\n"),
              std::string::npos);
}

TEST_F(AttributeKindsTest, stringsThatWereSetToNothingAreNotUnset)
{
    read("createNode transform -n \"n\";\n\taddAttr -ci true -sn \"a\" -ln \"a\" -dt \"string\";\n"
         "\taddAttr -ci true -sn \"b\" -ln \"b\" -dt \"string\";\n\tsetAttr \".a\" -type \"string\" \"\";\n");
    EXPECT_NE(savedSection("createNode transform -n \"n\"").find("\tsetAttr \".a\" -type \"string\" \"\";\n"),
              std::string::npos);
    EXPECT_EQ(savedSection("createNode transform -n \"n\"").find("setAttr \".b\""), std::string::npos);
}

} // namespace tvxhost::scene
