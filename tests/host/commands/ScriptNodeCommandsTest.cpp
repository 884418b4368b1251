// scriptNode.
#include "CommandFixture.h"

namespace tvxhost::mel {

class ScriptNodeCommandsTest : public CommandFixture
{
};

TEST_F(ScriptNodeCommandsTest, scriptsAreKeptAndTold)
{
    EXPECT_EQ(run("scriptNode -scriptType 2 -beforeScript \"print 1\" -n \"greeting\""), "greeting");
    EXPECT_EQ(run("getAttr greeting.before"), "print 1");
    EXPECT_EQ(run("scriptNode -q -scriptType greeting"), "2");
    EXPECT_EQ(run("scriptNode -q -sourceType greeting"), "mel");
    run("scriptNode -e -as \"print 2\" greeting");
    EXPECT_EQ(run("scriptNode -q -afterScript greeting"), "print 2");
}

TEST_F(ScriptNodeCommandsTest, scriptsRunOnDemand)
{
    run("scriptNode -bs \"createNode transform -n made\" -n \"maker\"");
    EXPECT_EQ(run("objExists made"), "0");
    run("scriptNode -executeBefore maker");
    EXPECT_EQ(run("objExists made"), "1");
}

TEST_F(ScriptNodeCommandsTest, onlyMelIsRun)
{
    run("scriptNode -stp python -bs \"pass\" -n \"snake\"");
    EXPECT_EQ(failure("scriptNode -eb snake"), "scriptNode: 'snake' is no MEL, and nothing else is run here");
    EXPECT_EQ(failure("scriptNode -q -bs persp"), "'persp' is not a script node");
}

} // namespace tvxhost::mel
