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
    EXPECT_THAT(strings("ls -undeletable shiny time1 persp"), ElementsAre("time1", "persp"));
}

TEST_F(ListCommandsTest, namesAreWrittenAsAsked)
{
    run("namespace -add \"crew\"; createNode transform -n \"crew:low\"");
    EXPECT_THAT(strings("ls -absoluteName shiny"), ElementsAre(":shiny"));
    EXPECT_THAT(strings("ls -recursive true \"lo*\""), ElementsAre("low", "crew:low"));
    EXPECT_THAT(strings("ls -showNamespace \"crew:low\" shiny"),
                ElementsAre("crew:low", "crew", "shiny", ":"));
    run("select -r top.tx");
    EXPECT_THAT(strings("ls -sl -objectsOnly"), ElementsAre("top"));
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
