// scriptJob: scripts that run at idle moments, when something has happened.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class ScriptJobCommandTest : public CommandFixture
{
protected:
    ScriptJobCommandTest() : CommandFixture(false) { run("global int $gRuns"); }

    /// How often the jobs ran at an idle moment.
    int runsWhenIdle()
    {
        run("global int $gRuns; $gRuns = 0");
        EXPECT_EQ(interpreter.runDeferred(), 0);
        return value("global int $gRuns; $gRuns").integer();
    }

    /// What an observer of the scene is told.
    void tell(engine::Happening what, engine::Node* node = nullptr, const engine::Plug* plug = nullptr)
    {
        engine::Event event{what};
        event.node = node;
        event.plug = plug;
        scene.observers().tell(event);
    }
};

constexpr const char* kCount = "\"global int $gRuns; $gRuns++\"";

TEST_F(ScriptJobCommandTest, anEventRunsItsScriptOnceAtTheNextIdleMoment)
{
    EXPECT_EQ(run(std::string("scriptJob -event SelectionChanged ") + kCount), "1");
    EXPECT_EQ(runsWhenIdle(), 0);
    tell(engine::Happening::selectionChanged);
    tell(engine::Happening::selectionChanged);
    EXPECT_EQ(runsWhenIdle(), 1);
    EXPECT_EQ(runsWhenIdle(), 0);
}

TEST_F(ScriptJobCommandTest, anIdleScriptRunsWheneverThereIsNothingElse)
{
    run(std::string("scriptJob -idleEvent ") + kCount);
    EXPECT_EQ(runsWhenIdle(), 1);
    EXPECT_EQ(runsWhenIdle(), 1);
}

TEST_F(ScriptJobCommandTest, anAttributeIsWatched)
{
    run("createNode transform -n \"t\"");
    run(std::string("scriptJob -attributeChange t.tx ") + kCount);
    const engine::Plug x = scene.findPlug("t.tx").value;
    const engine::Plug y = scene.findPlug("t.ty").value;
    tell(engine::Happening::valueSet, y.node(), &y);
    EXPECT_EQ(runsWhenIdle(), 0);
    tell(engine::Happening::valueSet, x.node(), &x);
    EXPECT_EQ(runsWhenIdle(), 1);
}

TEST_F(ScriptJobCommandTest, partsOfAnAttributeAreWatchedWhenItIsWished)
{
    run("createNode transform -n \"t\"");
    run(std::string("scriptJob -attributeChange t.t ") + kCount);
    run(std::string("scriptJob -allChildren -attributeChange t.t ") + kCount);
    const engine::Plug x = scene.findPlug("t.tx").value;
    tell(engine::Happening::valueSet, x.node(), &x);
    EXPECT_EQ(runsWhenIdle(), 1);
}

TEST_F(ScriptJobCommandTest, jobsAreListedAndKilled)
{
    run("scriptJob -protected -event timeChanged \"print 1\"; scriptJob -timeChange \"print 2\"");
    EXPECT_THAT(strings("scriptJob -listJobs"),
                ElementsAre("1: \"-protected\" \"-event\" \"timeChanged\" \"print 1\"",
                            "2: \"-timeChange\" \"print 2\""));
    EXPECT_EQ(run("scriptJob -exists 1"), "1");
    EXPECT_EQ(failure("scriptJob -kill 1"), "scriptJob: job 1 is protected");
    run("scriptJob -kill 2; scriptJob -kill 1 -force");
    EXPECT_THAT(strings("scriptJob -lj"), IsEmpty());
}

TEST_F(ScriptJobCommandTest, someJobsRunOnceAndSomeAreReplaced)
{
    run(std::string("scriptJob -runOnce true -idleEvent ") + kCount);
    EXPECT_EQ(runsWhenIdle(), 1);
    EXPECT_EQ(runsWhenIdle(), 0);
    run(std::string("scriptJob -idleEvent ") + kCount + "; scriptJob -replacePrevious -idleEvent " + kCount);
    EXPECT_EQ(runsWhenIdle(), 1);
}

TEST_F(ScriptJobCommandTest, jobsOfASceneGoWithIt)
{
    run("scriptJob -killWithScene -idleEvent \"print 1\"; scriptJob -idleEvent \"print 2\"");
    tell(engine::Happening::newBegun);
    EXPECT_THAT(strings("scriptJob -lj"), ElementsAre("2: \"-idleEvent\" \"print 2\""));
}

TEST_F(ScriptJobCommandTest, eventsAreListedAndOthersRefused)
{
    EXPECT_THAT(strings("scriptJob -listEvents"), Contains("SceneOpened"));
    EXPECT_EQ(failure("scriptJob -event Eclipse \"print 1\""), "scriptJob: there is no event 'Eclipse'");
    EXPECT_EQ(failure("scriptJob -conditionTrue playingBack \"print 1\""),
              "Flag '-conditionTrue' of scriptJob is refused: the host has no conditions");
    EXPECT_EQ(failure("scriptJob"), "scriptJob: nothing says what the script waits for");
}

class BatchScriptJobTest : public CommandFixture
{
};

TEST_F(BatchScriptJobTest, nothingIsDoneWithoutAUserInterface)
{
    run("scriptJob -idleEvent \"print 1\"");
    EXPECT_THAT(strings("scriptJob -listJobs"), IsEmpty());
}

} // namespace tvxhost::mel
