// particle, nParticle.
#include "../support/temporaryFolder.h"
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class ParticleCommandsTest : public CommandFixture
{
};

TEST_F(ParticleCommandsTest, pointsBecomeAnObject)
{
    EXPECT_THAT(strings("particle -p 1 2 3 -p 4 5 6"), ElementsAre("particle1", "particleShape1"));
    EXPECT_EQ(run("particle -q -count particleShape1"), "2");
    EXPECT_EQ(run("particle -q -ct particle1"), "2");
    EXPECT_THAT(numbers("particle -q -at position -or 1 particleShape1"), ElementsAre(4, 5, 6));
    EXPECT_THAT(strings("ls -sl"), ElementsAre("particle1"));
    EXPECT_THAT(strings("listConnections -p on particleShape1.cti"), ElementsAre("time1.outTime"));
    EXPECT_EQ(run("nodeType particleShape1"), "particle");
    EXPECT_THAT(strings("particle"), ElementsAre("particle2", "particleShape2"));
    EXPECT_EQ(run("particle -q -ct particle2"), "0");
}

TEST_F(ParticleCommandsTest, namesCanBeChosen)
{
    EXPECT_THAT(strings("particle -n \"dust\" -p 0 0 0"), ElementsAre("dust", "dustShape"));
    EXPECT_THAT(strings("nParticle -n \"sand7\" -sn \"grains\" -p 0 0 0"), ElementsAre("sand7", "grains"));
    EXPECT_EQ(run("nodeType grains"), "nParticle");
}

TEST_F(ParticleCommandsTest, lengthsAreInTheUnitOfTheUser)
{
    run("currentUnit -l m; particle -p 1 0 0 -p 5cm 0 0");
    EXPECT_THAT(numbers("particle -q -at position -or 0 particle1"), ElementsAre(100, 0, 0));
    EXPECT_THAT(numbers("particle -q -at position -or 1 particle1"), ElementsAre(5, 0, 0));
}

TEST_F(ParticleCommandsTest, gridsReachFromCornerToCorner)
{
    run("particle -ll 0 0 0 -ur 2 0 1 -grs 1");
    EXPECT_EQ(run("particle -q -ct particle1"), "6");
    EXPECT_THAT(numbers("particle -q -at position -or 1 particle1"), ElementsAre(1, 0, 0));
    EXPECT_THAT(numbers("particle -q -at position -or 5 particle1"), ElementsAre(2, 0, 1));
    EXPECT_EQ(failure("particle -ll 0 0 0"), "particle: each lower left corner needs an upper right one");
    EXPECT_EQ(failure("particle -ll 0 0 0 -ur 1 1 1 -grs 0"),
              "particle: the spacing of a grid must be greater than 0");
}

TEST_F(ParticleCommandsTest, jitteredParticlesStayInTheirBall)
{
    run("particle -jbp 10 0 0 -jr 2 -nj 50");
    EXPECT_EQ(run("particle -q -ct particle1"), "50");
    for (int i = 0; i < 50; ++i) {
        const auto at = numbers("particle -q -at position -or " + std::to_string(i) + " particle1");
        EXPECT_LE((at[0] - 10) * (at[0] - 10) + at[1] * at[1] + at[2] * at[2], 4.0) << i;
    }
}

TEST_F(ParticleCommandsTest, singleValuesAreToldAndChanged)
{
    run("particle -p 0 0 0 -p 1 0 0 -p 2 0 0");
    run("particle -e -at \"mass\" -or 1 -fv 7 particle1");
    EXPECT_THAT(numbers("particle -q -at mass -or 1 particle1"), ElementsAre(7));
    EXPECT_THAT(numbers("particle -q -at mass -or 0 particle1"), ElementsAre(1));
    run("particle -e -at \"velocity\" -id 2 -vv 1 2 3 particle1");
    EXPECT_THAT(numbers("particle -q -at velocity -id 2 particle1"), ElementsAre(1, 2, 3));
    EXPECT_EQ(failure("particle -q -at nothing -or 0 particle1"),
              "'particleShape1' has no per particle attribute 'nothing'.");
    EXPECT_EQ(failure("particle -q -at mass -or 3 particle1"), "'particleShape1' has no particle number 3.");
    EXPECT_EQ(failure("particle -q -at mass -id 9 particle1"),
              "'particleShape1' has no particle with the id 9.");
    EXPECT_EQ(failure("particle -e -at mass -or 0 -vv 1 2 3 particle1"),
              "particle: 'mass' takes a -floatValue");
}

TEST_F(ParticleCommandsTest, addedAttributesCountPerParticle)
{
    run("particle -p 0 0 0 -p 1 0 0; addAttr -ln \"heatPP\" -dt doubleArray particleShape1;"
        "addAttr -ln \"goalPP\" -dt vectorArray particleShape1");
    EXPECT_THAT(strings("particle -q -ppd particle1"), Contains("heatPP"));
    EXPECT_THAT(strings("particle -q -ppd particle1"), Contains("mass"));
    EXPECT_THAT(strings("particle -q -ppd particle1"), Not(Contains("mass0")));
    EXPECT_THAT(strings("particle -q -ppv particle1"), Contains("goalPP"));
    EXPECT_THAT(strings("particle -q -dal particle1"), ElementsAre("heatPP", "goalPP"));
    EXPECT_THAT(numbers("particle -q -at heatPP -or 1 particle1"), ElementsAre(0));
    run("particle -e -at \"heatPP\" -or 1 -fv 4 particle1");
    EXPECT_THAT(numbers("particle -q -at heatPP -or 1 particle1"), ElementsAre(4));
}

TEST_F(ParticleCommandsTest, whatIsNoParticleObjectIsRefused)
{
    run("createNode transform -n \"t\"; select -cl");
    EXPECT_EQ(failure("particle -q -ct t"), "'t' is not a particle object.");
    EXPECT_EQ(failure("particle -q -ct"), "No particle object is selected.");
}

TEST_F(ParticleCommandsTest, thePresentStateIsNotWrittenButTheInitialOneIs)
{
    run("particle -p 1 2 3");
    EXPECT_THAT(numbers("particle -q -at position -or 0 particle1"), ElementsAre(1, 2, 3));
    run("setAttr particleShape1.position0 -type vectorArray 2 0 0 0 9 9 9");
    EXPECT_EQ(run("particle -q -ct particle1"), "2");
}

TEST_F(ParticleCommandsTest, scenesHoldTheInitialState)
{
    const test::TemporaryFolder folder;
    folder.write("dust.ma", "//Maya ASCII 2016 scene\n"
                            "requires maya \"2016\";\n"
                            "createNode transform -n \"dust\";\n"
                            "createNode particle -n \"dustShape\" -p \"dust\";\n"
                            "\taddAttr -ci true -sn \"lifespanPP\" -ln \"lifespanPP\" -dt \"doubleArray\";\n"
                            "\taddAttr -ci true -h true -sn \"lifespanPP0\" -ln \"lifespanPP0\" -dt "
                            "\"doubleArray\";\n"
                            "\tsetAttr \".pos0\" -type \"vectorArray\" 2 1 2 3 4 5 6 ;\n"
                            "\tsetAttr \".mas0\" -type \"doubleArray\" 2 1 7 ;\n"
                            "\tsetAttr \".nid\" 2;\n"
                            "\tsetAttr \".lifespanPP0\" -type \"doubleArray\" 2 0.5 1.5 ;\n"
                            "connectAttr \":time1.o\" \"dustShape.cti\";\n");
    run("file -f -o \"" + folder.path("dust.ma") + "\"");
    EXPECT_EQ(run("particle -q -ct dust"), "2");
    EXPECT_THAT(numbers("particle -q -at position -or 1 dust"), ElementsAre(4, 5, 6));
    EXPECT_THAT(numbers("particle -q -at mass -or 1 dust"), ElementsAre(7));
    EXPECT_THAT(numbers("particle -q -at lifespanPP -or 0 dust"), ElementsAre(0.5));
    run("particle -e -at mass -or 0 -fv 3 dust; file -rename \"" + folder.path("saved.ma") +
        "\"; file -save");
    const std::string saved = folder.read("saved.ma");
    EXPECT_THAT(saved, testing::HasSubstr("setAttr \".mas0\" -type \"doubleArray\" 2 1 7"));
    EXPECT_THAT(saved, testing::HasSubstr("setAttr \".lifespanPP0\" -type \"doubleArray\" 2 0.5 1.5"));
    EXPECT_THAT(saved, Not(testing::HasSubstr("setAttr \".mas\"")));
    EXPECT_THAT(saved, Not(testing::HasSubstr("setAttr \".lifespanPP\"")));
}

TEST_F(ParticleCommandsTest, momentumIsKeptAsTold)
{
    run("particle -p 0 0 0 -c 0.5");
    EXPECT_EQ(run("particle -q -c particle1"), "0.5");
    EXPECT_EQ(run("getAttr particleShape1.conserve"), "0.5");
}

} // namespace tvxhost::mel
