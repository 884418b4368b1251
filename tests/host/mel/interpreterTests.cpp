// The interpreter as a program uses it.
#include "mel/interpreter.h"

#include "../support/temporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

namespace tvxhost::mel {
namespace {

using testing::ElementsAre;

struct Counter : Session
{
    int calls = 0;
};

class InterpreterTest : public testing::Test
{
protected:
    InterpreterTest() : m_interpreter(m_commands, m_editor, &m_session)
    {
        m_editor.setStreams(&m_out, &m_err);
        registerLanguageCommands(m_commands);
        CommandSpec words;
        words.name = "words";
        words.handler = RawHandler([](CommandContext& context, const ArgumentList& arguments) {
            context.session<Counter>().calls += 1;
            Value::Strings texts;
            for (const Argument& argument : arguments) {
                texts.emplace_back(argument.text);
            }
            return Value(texts);
        });
        m_commands.add(words);
    }

    Counter m_session;
    std::ostringstream m_out;
    std::ostringstream m_err;
    engine::ScriptEditor m_editor;
    CommandTable m_commands;
    Interpreter m_interpreter;
};

TEST_F(InterpreterTest, GivesTheValueOfTheLastStatementThatHasOne)
{
    EXPECT_EQ(m_interpreter.execute("1 + 2; print \"\";").integer(), 3);
    EXPECT_EQ(m_interpreter.execute("string $s = \"a\";").string(), "a");
    EXPECT_TRUE(m_interpreter.execute("print \"\";").isNone());
}

TEST_F(InterpreterTest, KeepsTopLevelVariablesAndProcedures)
{
    m_interpreter.execute("int $kept = 4; proc int twice(int $x) { return $x * 2; }");
    EXPECT_EQ(m_interpreter.execute("twice($kept)").integer(), 8);
    EXPECT_EQ(m_interpreter.globals().at("kept")->value.integer(), 4);
}

TEST_F(InterpreterTest, RunShowsTheErrorAndTellsOfIt)
{
    EXPECT_FALSE(m_interpreter.run("print \"a\";\nnothing;", "f.mel").has_value());
    EXPECT_EQ(m_out.str(), "a");
    EXPECT_EQ(m_err.str(), "Error: file: f.mel line 2: Cannot find procedure \"nothing\".\n");
    EXPECT_EQ(m_editor.errors(), 1);
    EXPECT_TRUE(m_interpreter.run("print \"b\";").has_value());
}

TEST_F(InterpreterTest, ExecuteShowsNothing)
{
    EXPECT_THROW(m_interpreter.execute("nothing;"), ScriptError);
    EXPECT_EQ(m_err.str(), "");
}

TEST_F(InterpreterTest, RawCommandsGetArraysElementByElement)
{
    const Value result = m_interpreter.execute("string $a[] = {\"x\", \"y\"}; words -f $a 1.50 (1 + 1) on;");
    EXPECT_THAT(result.strings(), ElementsAre("-f", "x", "y", "1.50", "2", "on"));
    EXPECT_EQ(m_session.calls, 1);
}

TEST_F(InterpreterTest, CommandsNeedTheirSession)
{
    Interpreter other(m_commands, m_editor);
    try {
        other.execute("words 1;");
        FAIL();
    } catch (const ScriptError& error) {
        EXPECT_STREQ(error.what(), "'words' needs a scene");
    }
}

TEST_F(InterpreterTest, ProceduresComeBeforeCommandsOfTheSameName)
{
    EXPECT_EQ(m_interpreter.execute("proc string words() { return \"mine\"; } words();").string(), "mine");
    EXPECT_EQ(m_session.calls, 0);
}

TEST_F(InterpreterTest, CallsByNameWithValues)
{
    m_interpreter.execute("global proc string joined(string $a, int $b) { return $a + $b; }");
    EXPECT_EQ(m_interpreter.call("joined", {"a", 5.9}).string(), "a5");
    EXPECT_THAT(m_interpreter.call("words", {"-x", 1}).strings(), ElementsAre("-x", "1"));
    EXPECT_THROW(m_interpreter.call("nothing", {}), ScriptError);
}

TEST_F(InterpreterTest, RunsStatementsOfAReader)
{
    StatementReader reader(
        "words a -b 2;\nint $fromScene = 3;\nproc go() { print \"gone\"; }\ngo;\nnothing 1;", "s.ma");
    for (int i = 0; i < 4; ++i) {
        ASSERT_TRUE(reader.next());
        m_interpreter.executeStatement(reader, "s.ma");
    }
    EXPECT_EQ(m_session.calls, 1);
    EXPECT_EQ(m_out.str(), "gone");
    ASSERT_TRUE(reader.next());
    try {
        m_interpreter.executeStatement(reader, "s.ma");
        FAIL();
    } catch (const ScriptError& error) {
        EXPECT_EQ(error.place().file, "s.ma");
        EXPECT_EQ(error.place().line, 5);
    }
}

TEST_F(InterpreterTest, RemovedCommandsAreUnknown)
{
    m_interpreter.execute("words 1;");
    m_commands.remove("words");
    EXPECT_THROW(m_interpreter.execute("words 1;"), ScriptError);
}

TEST_F(InterpreterTest, SystemRunsWhereItIsAllowed)
{
    m_interpreter.allowSystem(true);
    EXPECT_EQ(m_interpreter.execute("system(\"echo hello\")").string(), "hello\n");
}

TEST_F(InterpreterTest, DeferredTextsRunLaterAndCountFailures)
{
    m_interpreter.execute("evalDeferred \"print 1; evalDeferred \\\"print 2;\\\"; nothing;\"; print 0;");
    EXPECT_TRUE(m_interpreter.hasDeferred());
    EXPECT_EQ(m_interpreter.runDeferred(), 1);
    EXPECT_EQ(m_out.str(), "012");
    EXPECT_FALSE(m_interpreter.hasDeferred());
}

TEST_F(InterpreterTest, FilesThatCannotBeReadAreErrors)
{
    EXPECT_THROW(m_interpreter.sourceFile("/no/such/file.mel"), ScriptError);
    EXPECT_THROW(m_interpreter.sourceFile("/"), ScriptError);
}

TEST_F(InterpreterTest, AnErrorInAFileOnThePathNamesTheFile)
{
    const test::TemporaryFolder folder;
    folder.write("broken.mel", "\n\nglobal proc broken( {}\n");
    m_interpreter.scriptPath().append(folder.path());
    try {
        m_interpreter.execute("broken;");
        FAIL();
    } catch (const ScriptError& error) {
        EXPECT_EQ(error.place().file, folder.path("broken.mel"));
        EXPECT_EQ(error.place().line, 3);
    }
}

TEST_F(InterpreterTest, ScriptPathOfTheEnvironment)
{
    ::setenv("MAYA_SCRIPT_PATH", "/first::/second", 1);
    EXPECT_THAT(ScriptPath::fromEnvironment().folders(), ElementsAre("/first", "/second"));
    ::unsetenv("MAYA_SCRIPT_PATH");
    EXPECT_TRUE(ScriptPath::fromEnvironment().folders().empty());
}

} // namespace
} // namespace tvxhost::mel
