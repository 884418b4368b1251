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

TEST_F(ScriptJobCommandTest, aChangeOfTheProjectsRulesIsAnEvent)
{
    run(std::string("scriptJob -event WorkspaceChanged ") + kCount);
    run("workspace -fr \"scene\" \"scenes\"");
    EXPECT_EQ(runsWhenIdle(), 1);
    run("workspace -fre \"scene\"; workspace -rfr \"nothing\"");
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
    EXPECT_EQ(failure("scriptJob -conditionTrue raining \"print 1\""),
              "scriptJob: there is no condition 'raining'");
    EXPECT_EQ(failure("scriptJob"), "scriptJob: nothing says what the script waits for");
}

TEST_F(ScriptJobCommandTest, aConditionThatChangesRunsItsScripts)
{
    run("createNode transform -n t; select -cl; global int $gTrue; global int $gFalse");
    run("scriptJob -conditionTrue SomethingSelected \"global int $gTrue; $gTrue++\";"
        "scriptJob -conditionFalse SomethingSelected \"global int $gFalse; $gFalse++\";" +
        std::string("scriptJob -conditionChange SomethingSelected ") + kCount);
    EXPECT_EQ(runsWhenIdle(), 0);
    run("select t");
    EXPECT_EQ(runsWhenIdle(), 1);
    EXPECT_EQ(runsWhenIdle(), 0) << "it still is true";
    run("select -cl");
    EXPECT_EQ(runsWhenIdle(), 1);
    EXPECT_EQ(run("global int $gTrue; global int $gFalse; $gTrue * 10 + $gFalse"), "11");
}

TEST_F(ScriptJobCommandTest, conditionsAreListedAndAsked)
{
    EXPECT_THAT(strings("scriptJob -listConditions"), Contains("UndoAvailable"));
    EXPECT_EQ(run("isTrue BaseMayaExists"), "1");
    EXPECT_EQ(run("isTrue readingFile"), "0");
    tell(engine::Happening::readBegun);
    EXPECT_EQ(run("isTrue readingFile"), "1");
    tell(engine::Happening::readDone);
    EXPECT_EQ(run("isTrue readingFile"), "0");
    EXPECT_EQ(failure("isTrue raining"), "isTrue: there is no condition 'raining'");
}

TEST_F(ScriptJobCommandTest, aScriptMakesConditionsOfItsOwn)
{
    run("condition -state true raining");
    EXPECT_EQ(run("isTrue raining"), "1");
    run("condition -e -state off raining");
    EXPECT_EQ(run("condition -q -state raining"), "0");
    EXPECT_THAT(strings("scriptJob -lc"), Contains("raining"));
    run(std::string("scriptJob -conditionTrue raining ") + kCount + "; condition -e -st 1 raining");
    EXPECT_EQ(runsWhenIdle(), 1);
    run("condition -delete raining");
    EXPECT_EQ(failure("condition -delete raining"), "condition: there is no condition 'raining'");
    EXPECT_EQ(failure("condition -state 1 busy"), "condition: 'busy' is one of the host's");
}

TEST_F(ScriptJobCommandTest, aConditionIsToldAnewWhenOneThatItDependsOnChanges)
{
    run("createNode transform -n a; createNode transform -n b; select -cl");
    run("condition -dependency SomethingSelected -script \"size(`ls -sl`) == 2\" twoSelected");
    EXPECT_EQ(run("select a b; isTrue twoSelected"), "1");
    EXPECT_EQ(run("select a; isTrue twoSelected"), "1") << "something is selected as before";
    EXPECT_EQ(run("select -cl; isTrue twoSelected"), "0");
    EXPECT_EQ(run("condition -initialize -script \"1\" -d twoSelected late; isTrue late"), "1");
}

TEST_F(ScriptJobCommandTest, jobsGoWithTheirNode)
{
    run("createNode transform -n t");
    run(std::string("scriptJob -attributeChange t.tx ") + kCount + "; scriptJob -nodeDeleted t " + kCount);
    run("delete t");
    EXPECT_THAT(strings("scriptJob -lj"),
                ElementsAre("2: \"-nodeDeleted\" \"t\" \"global int $gRuns; $gRuns++\""));
    EXPECT_EQ(runsWhenIdle(), 1);
}

TEST_F(ScriptJobCommandTest, jobsGoWithTheirPartOfTheInterface)
{
    run("window panel");
    run(std::string("scriptJob -parent panel -idleEvent ") + kCount + "; scriptJob -uiDeleted panel " +
        kCount);
    EXPECT_EQ(runsWhenIdle(), 1);
    run("deleteUI panel");
    EXPECT_EQ(runsWhenIdle(), 1) << "the one that waited for that";
    EXPECT_THAT(strings("scriptJob -lj"), IsEmpty());
}

TEST_F(ScriptJobCommandTest, allElementsAreWatchedWhenTheIndexIsDisregarded)
{
    run("createNode transform -n t; addAttr -ln list -m t; setAttr t.list[0] 1; setAttr t.list[5] 1");
    run(std::string("scriptJob -attributeChange \"t.list[0]\" ") + kCount);
    const engine::Plug other = scene.findPlug("t.list[5]").value;
    tell(engine::Happening::valueSet, other.node(), &other);
    EXPECT_EQ(runsWhenIdle(), 0);
    run(std::string("scriptJob -disregardIndex -attributeChange \"t.list[0]\" ") + kCount);
    tell(engine::Happening::valueSet, other.node(), &other);
    EXPECT_EQ(runsWhenIdle(), 1);
}

TEST_F(ScriptJobCommandTest, severalJobsAreKilledAtOnce)
{
    run("scriptJob -ie \"1\"; scriptJob -ie \"2\"; scriptJob -ie \"3\"; scriptJob -kill 1 -kill 3");
    EXPECT_THAT(strings("scriptJob -lj"), ElementsAre("2: \"-idleEvent\" \"2\""));
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
