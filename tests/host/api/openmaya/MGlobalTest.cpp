// MGlobal: the application as a whole.
#include "../sceneFixture.h"

#include <maya/MCommandResult.h>
#include <maya/MDoubleArray.h>
#include <maya/MGlobal.h>
#include <maya/MInt64Array.h>
#include <maya/MIntArray.h>
#include <maya/MObjectArray.h>
#include <maya/MTime.h>
#include <maya/MVectorArray.h>

namespace tvxhost::api::test {
namespace {

using engine::MessageKind;
using Result = engine::ScriptRunner::Result;
using Kind = Result::Kind;

/// Notes what it is told to run and answers what a test wants.
class FakeRunner final : public engine::ScriptRunner
{
public:
    bool run(const std::string& script, bool display, bool undoable, Result& result) override
    {
        ran.push_back(script + (display ? " shown" : "") + (undoable ? " undoable" : ""));
        if (succeeds)
            result = answer;
        return succeeds;
    }
    bool sourceFile(const std::string& path) override
    {
        ran.push_back("source " + path);
        return succeeds;
    }
    void runOnIdle(const std::string& script, bool) override { ran.push_back("idle " + script); }

    bool succeeds = true;
    Result answer;
    Texts ran;
};

class MGlobalTest : public SceneFixture
{
protected:
    MGlobalTest() { scene.scriptRunner = &runner; }

    void answer(int number)
    {
        runner.answer = Result();
        runner.answer.kind = Kind::integer;
        runner.answer.integers = {number};
    }
    void answer(double number)
    {
        runner.answer = Result();
        runner.answer.kind = Kind::real;
        runner.answer.reals = {number};
    }
    void answer(const char* words)
    {
        runner.answer = Result();
        runner.answer.kind = Kind::string;
        runner.answer.strings = {words};
    }
    void answer(const Texts& words)
    {
        runner.answer = Result();
        runner.answer.kind = Kind::string;
        runner.answer.isArray = true;
        runner.answer.strings = words;
    }
    void answerNothing() { runner.answer = Result(); }
    Texts selected() const
    {
        MSelectionList list;
        EXPECT_EQ(MGlobal::getActiveSelectionList(list), MS::kSuccess);
        return names(list);
    }

    FakeRunner runner;
};

TEST_F(MGlobalTest, SaysWhatItIs)
{
    EXPECT_EQ(text(MGlobal::mayaVersion()), "2016");
    EXPECT_EQ(MGlobal::apiVersion(), 201602);
    EXPECT_EQ(MGlobal::mayaState(), MGlobal::kBatch);
    scene.setBatch(false);
    EXPECT_EQ(MGlobal::mayaState(), MGlobal::kInteractive);
    EXPECT_TRUE(MGlobal::isYAxisUp());
    EXPECT_FALSE(MGlobal::isZAxisUp());
    EXPECT_EQ(MGlobal::upAxis(), MVector(0, 1, 0));
}

TEST_F(MGlobalTest, ShowsMessagesInTheScriptEditor)
{
    MGlobal::displayInfo("one");
    MGlobal::displayWarning("two");
    MGlobal::displayError("three");
    EXPECT_EQ(messages(MessageKind::info), (Texts{"one"}));
    EXPECT_EQ(messages(MessageKind::warning), (Texts{"two"}));
    EXPECT_EQ(messages(MessageKind::error), (Texts{"three"}));
}

TEST_F(MGlobalTest, RunsCommandsAsTold)
{
    EXPECT_EQ(MGlobal::executeCommand("ls"), MS::kSuccess);
    EXPECT_EQ(MGlobal::executeCommand("ls", true), MS::kSuccess);
    EXPECT_EQ(MGlobal::executeCommand("ls", true, true), MS::kSuccess);
    EXPECT_EQ(MGlobal::sourceFile("menu.mel"), MS::kSuccess);
    EXPECT_EQ(MGlobal::executeCommandOnIdle("later"), MS::kSuccess);
    EXPECT_EQ(runner.ran, (Texts{"ls", "ls shown", "ls shown undoable", "source menu.mel", "idle later"}));
}

TEST_F(MGlobalTest, FailsWhenTheScriptDoes)
{
    runner.succeeds = false;
    int number = 7;
    EXPECT_EQ(text(MGlobal::executeCommand("x", number)), "(kFailure): Unexpected Internal Failure");
    EXPECT_EQ(number, 7);
    MStringArray kept;
    kept.append("kept");
    EXPECT_EQ(MGlobal::executeCommand("x", kept), MS::kFailure);
    EXPECT_EQ(texts(kept), (Texts{"kept"}));
    EXPECT_EQ(MGlobal::sourceFile("x"), MS::kFailure);
    MStatus status;
    EXPECT_EQ(text(MGlobal::executeCommandStringResult("x", false, false, &status)), "");
    EXPECT_EQ(status, MS::kFailure);
}

TEST_F(MGlobalTest, FailsWithoutALanguage)
{
    scene.scriptRunner = nullptr;
    EXPECT_EQ(MGlobal::executeCommand("ls"), MS::kFailure);
    EXPECT_EQ(MGlobal::executeCommandOnIdle("ls"), MS::kFailure);
}

TEST_F(MGlobalTest, GivesResultsInTheTypeAskedFor)
{
    int number = 0;
    double real = 0;
    MString words;
    MStringArray many;
    answer(3);
    EXPECT_EQ(MGlobal::executeCommand("x", number), MS::kSuccess);
    EXPECT_EQ(number, 3);
    EXPECT_EQ(MGlobal::executeCommand("x", real), MS::kSuccess);
    EXPECT_EQ(real, 3.0);
    answer(2.75);
    MGlobal::executeCommand("x", real);
    MGlobal::executeCommand("x", number);
    EXPECT_EQ(real, 2.75);
    EXPECT_EQ(number, 2);
    answer("node1");
    EXPECT_EQ(MGlobal::executeCommand("x", words), MS::kSuccess);
    EXPECT_EQ(text(words), "node1");
    EXPECT_EQ(text(MGlobal::executeCommandStringResult("x")), "node1");
    answer(Texts{"a", "b"});
    EXPECT_EQ(MGlobal::executeCommand("x", many), MS::kSuccess);
    EXPECT_EQ(texts(many), (Texts{"a", "b"}));
}

TEST_F(MGlobalTest, RefusesAResultOfAnotherType)
{
    answer("node1");
    int number = 7;
    MIntArray numbers(1, 7);
    EXPECT_EQ(MGlobal::executeCommand("x", number), MS::kFailure);
    EXPECT_EQ(MGlobal::executeCommand("x", numbers), MS::kFailure);
    EXPECT_EQ(number, 7);
    EXPECT_EQ(numbers[0], 7);
    answer(Texts{"a"});
    MString words("kept");
    EXPECT_EQ(MGlobal::executeCommand("x", words), MS::kFailure);
    EXPECT_EQ(text(words), "kept");
}

TEST_F(MGlobalTest, WithoutAValueEmptiesArraysAndRefusesTheRest)
{
    answerNothing();
    EXPECT_EQ(MGlobal::executeCommand("x"), MS::kSuccess);
    MStringArray many(1, "gone");
    EXPECT_EQ(MGlobal::executeCommand("x", many), MS::kSuccess);
    EXPECT_EQ(many.length(), 0u);
    MDoubleArray reals(1, 1.0);
    EXPECT_EQ(MGlobal::executeCommand("x", reals), MS::kSuccess);
    EXPECT_EQ(reals.length(), 0u);
    int number = 7;
    MString words("kept");
    EXPECT_EQ(MGlobal::executeCommand("x", number), MS::kFailure);
    EXPECT_EQ(MGlobal::executeCommand("x", words), MS::kFailure);
    EXPECT_EQ(number, 7);
    EXPECT_EQ(text(words), "kept");
}

TEST_F(MGlobalTest, GivesACommandResultOfAnyType)
{
    MCommandResult result;
    EXPECT_EQ(result.resultType(), MCommandResult::kInvalid);
    int number = 7;
    EXPECT_EQ(result.getResult(number), MS::kFailure);
    answer(3);
    EXPECT_EQ(MGlobal::executeCommand("x", result), MS::kSuccess);
    EXPECT_EQ(result.resultType(), MCommandResult::kInt);
    MInt64 wide = 0;
    EXPECT_EQ(result.getResult(wide), MS::kSuccess);
    EXPECT_EQ(wide, 3);
    MString words;
    EXPECT_EQ(result.getResult(words), MS::kFailure);
    answer(Texts{"a"});
    MGlobal::executeCommand("x", result);
    EXPECT_EQ(result.resultType(), MCommandResult::kStringArray);
    MStatus status;
    EXPECT_EQ(text(result.stringResult(&status)), "");
    EXPECT_EQ(status, MS::kFailure);
    answer("word");
    MGlobal::executeCommand("x", result);
    EXPECT_EQ(text(result.stringResult(&status)), "word");
    EXPECT_EQ(status, MS::kSuccess);
    answerNothing();
    MGlobal::executeCommand("x", result);
    EXPECT_EQ(result.resultType(), MCommandResult::kInvalid);
}

TEST_F(MGlobalTest, GivesVectorsAndMatrices)
{
    MCommandResult result;
    runner.answer.kind = Kind::vector;
    runner.answer.reals = {1, 2, 3};
    MGlobal::executeCommand("x", result);
    EXPECT_EQ(result.resultType(), MCommandResult::kVector);
    MVector vector;
    EXPECT_EQ(result.getResult(vector), MS::kSuccess);
    EXPECT_EQ(vector, MVector(1, 2, 3));
    runner.answer.isArray = true;
    runner.answer.reals = {1, 2, 3, 4, 5, 6};
    MGlobal::executeCommand("x", result);
    MVectorArray vectors;
    EXPECT_EQ(result.getResult(vectors), MS::kSuccess);
    EXPECT_EQ(vectors[1], MVector(4, 5, 6));
    runner.answer.kind = Kind::matrix;
    runner.answer.isArray = false;
    runner.answer.columns = 2;
    MGlobal::executeCommand("x", result);
    EXPECT_EQ(result.resultType(), MCommandResult::kMatrix);
    MDoubleArray elements;
    int rows = 0, columns = 0;
    EXPECT_EQ(result.getResult(elements, rows, columns), MS::kSuccess);
    EXPECT_EQ(rows, 3);
    EXPECT_EQ(columns, 2);
    EXPECT_EQ(elements[5], 6.0);
}

TEST_F(MGlobalTest, HasNoPython)
{
    EXPECT_EQ(MGlobal::executePythonCommand("pass"), MS::kNotImplemented);
    int number = 7;
    EXPECT_EQ(MGlobal::executePythonCommand("1", number), MS::kNotImplemented);
    EXPECT_EQ(messages(MessageKind::error), (Texts{"Not implemented: MGlobal::executePythonCommand"}))
        << "said once";
}

TEST_F(MGlobalTest, KeepsOptionVariables)
{
    bool exists = true;
    EXPECT_EQ(MGlobal::optionVarIntValue("tvx", &exists), 0);
    EXPECT_FALSE(exists);
    EXPECT_FALSE(MGlobal::optionVarExists("tvx"));
    EXPECT_TRUE(MGlobal::setOptionVarValue("tvx", 3));
    EXPECT_EQ(MGlobal::optionVarIntValue("tvx", &exists), 3);
    EXPECT_TRUE(exists);
    EXPECT_EQ(MGlobal::optionVarDoubleValue("tvx"), 3.0);
    EXPECT_TRUE(MGlobal::setOptionVarValue("tvx", MString("/shot"))) << "another type replaces it";
    EXPECT_EQ(text(MGlobal::optionVarStringValue("tvx")), "/shot");
    MString folder;
    EXPECT_TRUE(MGlobal::getOptionVarValue("tvx", folder));
    EXPECT_EQ(text(folder), "/shot");
    MGlobal::setOptionVarValue("tvx", 2.5);
    double size = 0;
    EXPECT_TRUE(MGlobal::getOptionVarValue("tvx", size));
    EXPECT_EQ(size, 2.5);
    MGlobal::removeOptionVar("tvx");
    EXPECT_FALSE(MGlobal::getOptionVarValue("tvx", size));
    EXPECT_EQ(size, 2.5);
}

TEST_F(MGlobalTest, CombinesWithTheSelection)
{
    make("transform", "a");
    make("transform", "b");
    make("transform", "c");
    MSelectionList list;
    list.add("a");
    list.add("b");
    EXPECT_EQ(MGlobal::setActiveSelectionList(list), MS::kSuccess);
    EXPECT_EQ(selected(), (Texts{"a", "b"}));
    EXPECT_EQ(MGlobal::selectByName("c"), MS::kSuccess);
    EXPECT_EQ(selected(), (Texts{"a", "b", "c"}));
    EXPECT_EQ(MGlobal::setActiveSelectionList(list, MGlobal::kRemoveFromList), MS::kSuccess);
    EXPECT_EQ(selected(), (Texts{"c"}));
    EXPECT_EQ(MGlobal::setActiveSelectionList(list, MGlobal::kAddToHeadOfList), MS::kSuccess);
    EXPECT_EQ(selected(), (Texts{"a", "b", "c"}));
    MSelectionList toggled;
    toggled.add("b");
    EXPECT_EQ(MGlobal::selectCommand(toggled, MGlobal::kXORWithList), MS::kSuccess);
    EXPECT_EQ(selected(), (Texts{"a", "c"}));
    EXPECT_EQ(MGlobal::clearSelectionList(), MS::kSuccess);
    EXPECT_EQ(selected(), Texts{});
}

TEST_F(MGlobalTest, SelectsOneThing)
{
    make("transform", "a");
    make("transform", "b");
    MObject a = object("a"), null;
    EXPECT_EQ(MGlobal::select(a), MS::kSuccess);
    EXPECT_TRUE(MGlobal::isSelected(a));
    EXPECT_EQ(MGlobal::select(path("b"), MObject::kNullObj, MGlobal::kReplaceList), MS::kSuccess);
    EXPECT_EQ(selected(), (Texts{"b"}));
    EXPECT_FALSE(MGlobal::isSelected(a));
    EXPECT_EQ(MGlobal::unselectByName("b"), MS::kSuccess);
    EXPECT_EQ(selected(), Texts{});
    EXPECT_EQ(MGlobal::select(null), MS::kInvalidParameter);
    EXPECT_EQ(text(MGlobal::selectByName("nobody")), "(kInvalidParameter): Object does not exist");
}

TEST_F(MGlobalTest, FindsThingsByName)
{
    make("transform", "figure1");
    make("transform", "figure2");
    MSelectionList list;
    list.add("figure2");
    EXPECT_EQ(MGlobal::getSelectionListByName("figure*", list), MS::kSuccess);
    EXPECT_EQ(names(list), (Texts{"figure1", "figure2"}));
    EXPECT_EQ(text(MGlobal::getSelectionListByName("nobody", list)),
              "(kInvalidParameter): Object does not exist");
    EXPECT_EQ(list.length(), 2u) << "untouched";
}

TEST_F(MGlobalTest, KeepsWhatIsHilited)
{
    make("transform", "a");
    MSelectionList list, hilited;
    list.add("a");
    EXPECT_EQ(MGlobal::setHiliteList(list), MS::kSuccess);
    EXPECT_EQ(MGlobal::getHiliteList(hilited), MS::kSuccess);
    EXPECT_EQ(names(hilited), (Texts{"a"}));
    EXPECT_EQ(MGlobal::getLiveList(hilited), MS::kSuccess);
    EXPECT_TRUE(hilited.isEmpty());
}

TEST_F(MGlobalTest, GoesToATime)
{
    EXPECT_EQ(MGlobal::viewFrame(12.0), MS::kSuccess);
    EXPECT_DOUBLE_EQ(scene.time(), 0.5);
    EXPECT_EQ(MGlobal::viewFrame(MTime(2, MTime::kSeconds)), MS::kSuccess);
    EXPECT_DOUBLE_EQ(scene.time(), 2.0);
}

TEST_F(MGlobalTest, DeletesANode)
{
    make("transform", "a");
    MObject a = object("a");
    EXPECT_EQ(MGlobal::deleteNode(a), MS::kSuccess);
    EXPECT_FALSE(scene.findNode("a"));
    EXPECT_EQ(MGlobal::deleteNode(a), MS::kInvalidParameter);
}

TEST_F(MGlobalTest, DeletesNoCameraOfEveryScene)
{
    MObject persp = object("persp");
    EXPECT_EQ(MGlobal::deleteNode(persp), MS::kFailure);
    EXPECT_TRUE(scene.findNode("perspShape"));
}

TEST_F(MGlobalTest, ListsTheFunctionSetsOfAnObject)
{
    make("transform", "a");
    MStringArray sets;
    EXPECT_EQ(MGlobal::getFunctionSetList(object("a"), sets), MS::kSuccess);
    const Texts all = texts(sets);
    for (const char* name : {"kDependencyNode", "kDagNode", "kTransform"})
        EXPECT_NE(std::find(all.begin(), all.end(), name), all.end()) << name;
    EXPECT_EQ(std::find(all.begin(), all.end(), "kMesh"), all.end());
    EXPECT_EQ(MGlobal::getFunctionSetList(MObject(), sets), MS::kInvalidParameter);
}

TEST_F(MGlobalTest, FindsTheSetsOfAnObject)
{
    make("transform", "a");
    make("objectSet", "crew");
    const auto outcome = scene.connect(scene.findPlug("a.instObjGroups[0]").value,
                                       scene.findPlug("crew.dagSetMembers[0]").value);
    ASSERT_TRUE(outcome) << outcome.text;
    MSelectionList list;
    list.add("a");
    MObjectArray sets;
    EXPECT_EQ(MGlobal::getAssociatedSets(list, sets), MS::kSuccess);
    ASSERT_EQ(sets.length(), 1u);
    EXPECT_TRUE(sets[0] == object("crew"));
}

TEST_F(MGlobalTest, IsRecordedOncePerCall)
{
    faults::record(true);
    MSelectionList list;
    MGlobal::getActiveSelectionList(list);
    MGlobal::executeCommandStringResult("x");
    EXPECT_EQ(faults::calls(),
              (Texts{"MGlobal::getActiveSelectionList", "MGlobal::executeCommandStringResult"}));
}

} // namespace
} // namespace tvxhost::api::test
