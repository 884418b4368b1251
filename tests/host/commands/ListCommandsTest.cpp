// ls: which objects, and how they are named.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class ListCommandsTest : public CommandFixture
{
protected:
    ListCommandsTest()
    {
        run("createNode transform -n \"top\"; createNode transform -n \"low\" -p top;"
            "createNode blinn -n \"shiny\"; createNode checker -n \"board\"");
    }
};

TEST_F(ListCommandsTest, typesAreTakenAndLeftOut)
{
    EXPECT_THAT(strings("ls -exactType transform -excludeType camera top low"), ElementsAre("top", "low"));
    EXPECT_THAT(strings("ls -excludeType transform top shiny"), ElementsAre("shiny"));
    EXPECT_THAT(strings("ls -materials"), ElementsAre("lambert1", "particleCloud1", "shiny"));
    EXPECT_THAT(strings("ls -textures"), ElementsAre("board"));
    EXPECT_THAT(strings("ls -partitions"), ElementsAre("renderPartition", "characterPartition"));
    EXPECT_THAT(strings("ls -renderResolutions"), ElementsAre("defaultResolution"));
    EXPECT_THAT(strings("ls -nodeTypes"), Contains("multiplyDivide"));
}

TEST_F(ListCommandsTest, statesAreAskedFor)
{
    run("lockNode shiny; setAttr low.template true");
    EXPECT_THAT(strings("ls -lockedNodes"), ElementsAre("shiny"));
    EXPECT_THAT(strings("ls -readOnly"), ElementsAre("shiny"));
    EXPECT_THAT(strings("ls -templated top low"), ElementsAre("low"));
    EXPECT_THAT(strings("ls -untemplated top low"), ElementsAre("top"));
    EXPECT_THAT(strings("ls -leaf top low"), ElementsAre("low"));
    EXPECT_THAT(strings("ls -undeletable shiny time1 persp board"), ElementsAre("shiny", "time1", "persp"));
    EXPECT_EQ(strings("ls -renderSetups"), strings("ls -renderGlobals"));
}

TEST_F(ListCommandsTest, namesAreWrittenAsAsked)
{
    run("namespace -add \"crew\"; createNode transform -n \"crew:low\"");
    EXPECT_THAT(strings("ls -absoluteName shiny"), ElementsAre(":shiny"));
    EXPECT_THAT(strings("ls -recursive true \"lo*\""), ElementsAre("low", "crew:low"));
    EXPECT_THAT(strings("ls -showNamespace \"crew:low\" shiny"),
                ElementsAre("crew:low", "crew", "shiny", ":"));
    EXPECT_THAT(strings("ls -showNamespace -absoluteName \"crew:low\""), ElementsAre("|crew:low", ":crew"));
    run("select -r top.tx");
    EXPECT_THAT(strings("ls -sl -objectsOnly"), ElementsAre("top"));
    EXPECT_THAT(strings("ls -sl"), ElementsAre("top.translateX"));
    EXPECT_THAT(strings("ls -sl -shortNames"), ElementsAre("top.tx"));
}

TEST_F(ListCommandsTest, namespacesAreSearchedToAnyDepth)
{
    run("createNode transform -n \"crew:low\"; createNode transform -n \"crew:red:low\"");
    EXPECT_THAT(strings("ls \"::low\""), ElementsAre("low", "crew:low", "crew:red:low"));
    EXPECT_THAT(strings("ls \"crew::l*\""), ElementsAre("crew:low", "crew:red:low"));
    EXPECT_THAT(strings("ls \"crew:*\""), ElementsAre("crew:low"));
    EXPECT_THAT(strings("ls \"blue::*\""), IsEmpty());
}

TEST_F(ListCommandsTest, nodesAreNamedByTheirUniqueIdentifiersToo)
{
    const std::string uuid = strings("ls -uuid low").at(0);
    EXPECT_THAT(strings("ls \"" + uuid + "\""), ElementsAre("low"));
    EXPECT_THAT(strings("ls \"01234567-89AB-4CDE-8F01-23456789ABCD\""), IsEmpty());
}

TEST_F(ListCommandsTest, whatTheHostCannotTellIsRefused)
{
    EXPECT_EQ(failure("ls -live"), "Flag '-live' of ls is refused: there are no live objects");
}

TEST_F(ListCommandsTest, onlyWhatIsSeenIsSelected)
{
    run("setAttr top.visibility 0; createNode transform -n \"seen\"; select -visible low seen");
    EXPECT_THAT(strings("ls -sl"), ElementsAre("seen"));
}

} // namespace tvxhost::mel
