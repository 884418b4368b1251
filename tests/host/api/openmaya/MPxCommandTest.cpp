// MPxCommand, MSyntax and their registration.
#include "../nodeFixture.h"

#include <maya/MArgList.h>
#include <maya/MDGModifier.h>
#include <maya/MDoubleArray.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MGlobal.h>
#include <maya/MIntArray.h>
#include <maya/MPlug.h>
#include <maya/MPxCommand.h>
#include <maya/MStringArray.h>
#include <maya/MSyntax.h>

using namespace tvxhost::api;
using namespace tvxhost::api::test;
using tvxhost::engine::ScriptRunner;

namespace {

using Result = ScriptRunner::Result;

/// Gives back what its first word asks for.
class Echo : public MPxCommand
{
public:
    static void* create() { return new Echo; }
    MStatus doIt(const MArgList& args) override
    {
        const std::string what = tvxAccess::text(args.asString(0));
        if (what == "int")
            setResult(42);
        if (what == "text")
            setResult("forty-two");
        if (what == "texts") {
            appendToResult("a");
            appendToResult("b");
        }
        if (what == "name")
            setResult(commandString());
        if (what == "say no") {
            displayError("No.");
            return MS::kFailure;
        }
        return what == "fail" ? MS::kFailure : MS::kSuccess;
    }
};

/// Adds one to a plug, as the guides have it: doIt prepares, redoIt does, undoIt takes back.
class Raise : public MPxCommand
{
public:
    static int alive;

    static void* create() { return new Raise; }
    Raise() { ++alive; }
    ~Raise() override { --alive; }
    bool isUndoable() const override { return m_isUndoable; }
    MStatus doIt(const MArgList& args) override
    {
        const auto found = tvxhost::engine::Scene::current().findPlug(tvxAccess::text(args.asString(0)));
        m_plug = tvxAccess::plug(found.value);
        m_isUndoable = args.length() == 1;
        return redoIt();
    }
    MStatus redoIt() override { return m_plug.setDouble(m_plug.asDouble() + 1.0); }
    MStatus undoIt() override { return m_plug.setDouble(m_plug.asDouble() - 1.0); }

private:
    MPlug m_plug;
    bool m_isUndoable = true;
};

int Raise::alive = 0;

class PxCommands : public NodeFixture
{
protected:
    PxCommands() { EXPECT_TRUE(MFnPlugin(pluginObject).registerCommand("echo", Echo::create)); }

    bool run(const std::string& word, Result& result)
    {
        Result argument;
        argument.kind = Result::Kind::string;
        argument.strings = {word};
        return scene.pluginCommands.at("echo").run({argument}, result);
    }
};

} // namespace

TEST_F(PxCommands, ACommandIsKnownToTheSceneByName)
{
    EXPECT_EQ("testPlugin", scene.pluginCommands.at("echo").plugin);
    EXPECT_EQ(std::vector<std::string>{"echo"}, plugin->commands);
    EXPECT_EQ("(kFailure): Unexpected Internal Failure",
              text(MFnPlugin(pluginObject).registerCommand("echo", Echo::create)));
    EXPECT_TRUE(MFnPlugin(pluginObject).deregisterCommand("echo"));
    EXPECT_TRUE(scene.pluginCommands.empty());
    EXPECT_EQ(MS::kInvalidParameter, MFnPlugin(pluginObject).deregisterCommand("echo").statusCode());
}

TEST_F(PxCommands, ResultsHaveTheirTypes)
{
    Result result;
    ASSERT_TRUE(run("int", result));
    EXPECT_EQ(Result::Kind::integer, result.kind);
    EXPECT_EQ(std::vector<int>{42}, result.integers);
    EXPECT_FALSE(result.isArray);
    ASSERT_TRUE(run("text", result));
    EXPECT_EQ(std::vector<std::string>{"forty-two"}, result.strings);
    ASSERT_TRUE(run("texts", result));
    EXPECT_TRUE(result.isArray);
    EXPECT_EQ((std::vector<std::string>{"a", "b"}), result.strings);
    ASSERT_TRUE(run("nothing", result));
    EXPECT_EQ(Result::Kind::none, result.kind);
    ASSERT_TRUE(run("name", result));
    EXPECT_EQ(std::vector<std::string>{"echo"}, result.strings);
}

TEST_F(PxCommands, AFailureIsShownOnce)
{
    Result result;
    EXPECT_FALSE(run("say no", result));
    EXPECT_EQ(std::vector<std::string>{"No."}, shown(scene, tvxhost::engine::MessageKind::error));
    EXPECT_FALSE(run("fail", result));
    EXPECT_EQ((std::vector<std::string>{"No.", "(kFailure): Unexpected Internal Failure"}),
              shown(scene, tvxhost::engine::MessageKind::error));
}

TEST_F(PxCommands, OutsideACommandThereIsNoResult)
{
    MPxCommand::setResult(3);
    EXPECT_EQ(MPxCommand::kNoArg, MPxCommand::currentResultType());
    MStatus status;
    EXPECT_EQ(0, MPxCommand::currentIntResult(&status));
    EXPECT_FALSE(status);
}

namespace {

class UndoneCommands : public PxCommands
{
protected:
    UndoneCommands()
    {
        EXPECT_TRUE(MFnPlugin(pluginObject).registerCommand("raise", Raise::create));
        scene.journal().setOn(true);
    }

    void raise(bool undoably)
    {
        const tvxhost::engine::Journal::Command step(scene.journal(), "raise");
        std::vector<Result> arguments(undoably ? 1 : 2);
        for (Result& argument : arguments) {
            argument.kind = Result::Kind::string;
            argument.strings = {"a.translateX"};
        }
        Result ignored;
        EXPECT_TRUE(scene.pluginCommands.at("raise").run(arguments, ignored));
    }
    double value() { return MFnDependencyNode(a, nullptr).findPlug("tx", true).asDouble(); }

    MObject a = make("transform", "a");
};

} // namespace

TEST_F(UndoneCommands, TakeBackAndDoAgainThemselves)
{
    raise(true);
    raise(true);
    EXPECT_EQ(2.0, value());
    ASSERT_TRUE(scene.journal().undo());
    EXPECT_EQ(1.0, value());
    ASSERT_TRUE(scene.journal().undo());
    EXPECT_EQ(0.0, value());
    ASSERT_TRUE(scene.journal().redo());
    EXPECT_EQ(1.0, value());
}

TEST_F(UndoneCommands, LiveAsLongAsUndoCanComeBackToThem)
{
    raise(true);
    EXPECT_EQ(1, Raise::alive);
    scene.journal().flush();
    EXPECT_EQ(0, Raise::alive);
}

TEST_F(UndoneCommands, AreGoneAtOnceWhenTheyCannotBeUndone)
{
    raise(false);
    EXPECT_EQ(1.0, value());
    EXPECT_EQ(0, Raise::alive);
    EXPECT_TRUE(scene.journal().undoable().empty());
}

TEST_F(UndoneCommands, AreGoneAtOnceWhileUndoIsOff)
{
    scene.journal().setOn(false);
    raise(true);
    EXPECT_EQ(0, Raise::alive);
}

TEST_F(UndoneCommands, GoWithTheirPlugin)
{
    raise(true);
    scene.journal().flushCodeOf("anotherPlugin");
    EXPECT_EQ(1, Raise::alive);
    scene.journal().flushCodeOf("testPlugin");
    EXPECT_EQ(0, Raise::alive);
    EXPECT_TRUE(scene.journal().undoable().empty());
}

TEST_F(UndoneCommands, SayThatTheyFailedToTakeBack)
{
    raise(true);
    MPlug(MFnDependencyNode(a, nullptr).findPlug("tx", true)).setLocked(true);
    ASSERT_TRUE(scene.journal().undo());
    EXPECT_EQ(1u, shown(scene, tvxhost::engine::MessageKind::error).size());
    EXPECT_EQ(1.0, value());
}

TEST(Syntax, FlagsAreDeclaredOnce)
{
    MSyntax syntax;
    EXPECT_TRUE(syntax.addFlag("-n", "-name", MSyntax::kString));
    EXPECT_TRUE(syntax.addFlag("s", "size", MSyntax::kDouble, MSyntax::kDouble));
    EXPECT_FALSE(syntax.addFlag("-n", "-number", MSyntax::kLong));
    EXPECT_FALSE(syntax.addFlag("", "-empty"));
    EXPECT_TRUE(syntax.makeFlagMultiUse("-name"));
    EXPECT_FALSE(syntax.makeFlagMultiUse("-unknown"));
    EXPECT_TRUE(syntax.addArg(MSyntax::kLong));
    EXPECT_FALSE(syntax.addArg(MSyntax::kInvalidArgType));
}

TEST(Syntax, CopiesAreIndependent)
{
    MSyntax syntax;
    syntax.enableQuery();
    EXPECT_TRUE(syntax.setObjectType(MSyntax::kSelectionList, 1, 3));
    MSyntax copy(syntax);
    syntax.enableQuery(false);
    syntax.setMaxObjects(9);
    EXPECT_TRUE(copy.canQuery());
    EXPECT_FALSE(copy.canEdit());
    EXPECT_EQ(1u, copy.minObjects());
    EXPECT_EQ(3u, copy.maxObjects());
    EXPECT_EQ(9u, syntax.maxObjects());
}
