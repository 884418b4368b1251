// connectAttr, disconnectAttr, listConnections and their like.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::IsEmpty;

class ConnectionCommandsTest : public CommandFixture
{
protected:
    ConnectionCommandsTest()
    {
        run("createNode transform -n \"a\"; createNode transform -n \"b\"; createNode transform -n \"c\"");
    }
};

TEST_F(ConnectionCommandsTest, valuesFollowConnections)
{
    run("connectAttr a.tx b.tx; setAttr a.tx 4");
    EXPECT_EQ(run("getAttr b.tx"), "4");
    EXPECT_EQ(run("isConnected a.tx b.tx"), "1");
    run("disconnectAttr a.tx b.tx; setAttr a.tx 5");
    EXPECT_EQ(run("getAttr b.tx"), "4");
}

TEST_F(ConnectionCommandsTest, aTakenDestinationIsRefusedUnlessForced)
{
    run("connectAttr a.tx b.tx");
    EXPECT_EQ(failure("connectAttr c.tx b.tx"),
              "'b.translateX' already has an incoming connection from 'a.translateX'.");
    run("connectAttr -f c.tx b.tx");
    EXPECT_EQ(run("connectionInfo -sfd b.tx"), "c.translateX");
}

TEST_F(ConnectionCommandsTest, aDestinationIsLockedAfterwardsAndUnlockedBefore)
{
    run("connectAttr -lock on a.tx b.tx");
    EXPECT_EQ(run("getAttr -lock b.tx"), "1");
    EXPECT_EQ(failure("connectAttr -f c.tx b.tx"),
              "Connection not made: 'c.translateX' -> 'b.translateX'.  Destination is locked.");
    EXPECT_EQ(failure("connectAttr c.tx c.tx"),
              "Connection not made: 'c.translateX' -> 'c.translateX'.  Source and destination are the same.");
    run("connectAttr -f -lock off c.tx b.tx");
    EXPECT_EQ(run("getAttr -lock b.tx"), "0");
    EXPECT_EQ(run("connectionInfo -sfd b.tx"), "c.translateX");
}

TEST_F(ConnectionCommandsTest, theSameConnectionAgainIsAWarning)
{
    run("connectAttr a.tx b.tx; connectAttr a.tx b.tx");
    EXPECT_EQ(scene.scriptEditor().history().back().text,
              "'a.translateX' is already connected to 'b.translateX'.");
}

TEST_F(ConnectionCommandsTest, whatDoesNotFitIsRefusedWithItsReason)
{
    run("createNode script -n \"s\"");
    EXPECT_EQ(
        failure("connectAttr a.tx s.before"),
        "Connection not made: 'a.translateX' -> 's.before'.  Data types of source and destination are not "
        "compatible.");
    EXPECT_EQ(failure("disconnectAttr a.tx b.tx"),
              "There is no connection from 'a.translateX' to 'b.translateX' to disconnect");
}

TEST_F(ConnectionCommandsTest, listConnectionsTellsBothSides)
{
    run("connectAttr a.tx b.tx; connectAttr b.ty c.ty");
    EXPECT_THAT(strings("listConnections b"), ElementsAre("a", "c"));
    EXPECT_THAT(strings("listConnections -s 1 -d 0 b"), ElementsAre("a"));
    EXPECT_THAT(strings("listConnections -d 1 -s 0 -p 1 b"), ElementsAre("c.translateY"));
    EXPECT_THAT(strings("listConnections -c 1 -p 1 b"),
                ElementsAre("b.translateX", "a.translateX", "b.translateY", "c.translateY"));
    EXPECT_THAT(strings("listConnections b.ty"), ElementsAre("c"));
    EXPECT_THAT(strings("listConnections -type script b"), IsEmpty());
}

TEST_F(ConnectionCommandsTest, shapesAreToldByTheirTransform)
{
    run("createNode mesh -n \"ballShape\"; createNode shadingEngine -n \"sg\"; connectAttr -na ballShape.iog "
        "sg.dsm");
    EXPECT_THAT(strings("listConnections -s 1 -d 0 sg.dsm"), ElementsAre("ball"));
    EXPECT_THAT(strings("listConnections -s 1 -d 0 -sh 1 sg.dsm"), ElementsAre("ballShape"));
}

} // namespace tvxhost::mel
