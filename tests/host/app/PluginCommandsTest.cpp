// Commands of plug-ins, as scripts call them.
#include "api/support/pluginSyntax.h"
#include "app/session.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using namespace tvxhost;
using Result = engine::ScriptRunner::Result;

class PluginCommandsTest : public testing::Test
{
protected:
    PluginCommandsTest() : m_session(app::Session::Mode::batch, m_out, m_err)
    {
        add("shout", [](const std::vector<Result>& arguments, Result& result) {
            result.kind = Result::Kind::string;
            for (const Result& argument : arguments)
                result.strings.push_back(argument.kind == Result::Kind::string
                                             ? argument.strings.front() + "!"
                                             : std::to_string(argument.integers.front()));
            result.isArray = true;
            return true;
        });
    }

    void add(const std::string& name, std::function<bool(const std::vector<Result>&, Result&)> run)
    {
        m_session.scene().pluginCommands[name] = {name, "loud", std::move(run)};
        m_session.commands().pluginsChanged();
    }
    std::string resultOf(const std::string& script)
    {
        const auto value = m_session.interpreter().run(script);
        return value ? mel::resultText(*value) : "failed";
    }

    std::ostringstream m_out;
    std::ostringstream m_err;
    app::Session m_session;
};

TEST_F(PluginCommandsTest, GetTheirWordsAndGiveTheirResult)
{
    EXPECT_EQ(resultOf("shout -very \"two words\" 7"), "-very! two words! 7");
    EXPECT_EQ(resultOf("size(`shout a b`)"), "2");
}

TEST_F(PluginCommandsTest, StopTheScriptWhenTheyFail)
{
    add("refuse", [](const std::vector<Result>&, Result&) { return false; });
    EXPECT_EQ(resultOf("refuse; print \"not reached\""), "failed");
    EXPECT_EQ(m_err.str(), "Error: line 1: 'refuse' failed\n");
    EXPECT_EQ(m_out.str(), "");
}

TEST_F(PluginCommandsTest, AreDescribedByTheirSyntax)
{
    using Argument = engine::PluginSyntax::Argument;
    engine::PluginSyntax syntax;
    syntax.flags = {{"f", "frames", {Argument::time, Argument::integer}, true}, {"c", "clear", {}, false}};
    syntax.arguments = {Argument::string};
    syntax.leastObjects = 1;
    syntax.mostObjects = engine::PluginSyntax::kAnyNumber;
    syntax.isQueried = true;
    m_session.scene().pluginCommands["whisper"] = {"whisper", "quiet", {}, [syntax] { return syntax; }};
    m_session.commands().pluginsChanged();
    EXPECT_EQ(resultOf("help whisper"), "Synopsis: whisper [flags] Any Any [Any...]\n"
                                        "  a command of the plug-in quiet\n"
                                        "Flags:\n"
                                        "    -q -query\n"
                                        "    -f -frames                Time Int (multi-use)\n"
                                        "    -c -clear\n");
}

TEST_F(PluginCommandsTest, TellTheSyntaxThatTheInterfaceHolds)
{
    MSyntax syntax;
    syntax.addFlag("-g", "-gap", MSyntax::kDistance, MSyntax::kUnsigned);
    syntax.makeFlagMultiUse("-g");
    syntax.enableEdit(true);
    syntax.setObjectType(MSyntax::kSelectionList, 1);
    m_session.scene().pluginCommands["march"] = {
        "march", "loud", {}, [syntax] { return api::describeSyntax(syntax); }};
    m_session.commands().pluginsChanged();
    EXPECT_EQ(resultOf("help march"), "Synopsis: march [flags] Name [Name...]\n"
                                      "  a command of the plug-in loud\n"
                                      "Flags:\n"
                                      "    -e -edit\n"
                                      "    -g -gap                   Length Int (multi-use)\n");
    syntax.setObjectType(MSyntax::kStringObjects, 0, 2);
    EXPECT_EQ(api::describeSyntax(syntax).mostObjects, 2u);
    EXPECT_EQ(api::describeSyntax(MSyntax()).mostObjects, 0u);
}

TEST_F(PluginCommandsTest, AreGoneWithTheirPlugin)
{
    m_session.scene().pluginCommands.clear();
    m_session.commands().pluginsChanged();
    EXPECT_EQ(resultOf("shout a"), "failed");
    EXPECT_EQ(m_err.str(), "Error: line 1: Cannot find procedure \"shout\".\n");
}

TEST_F(PluginCommandsTest, DoNotReplaceTheHostsOwn)
{
    add("objExists", [](const std::vector<Result>&, Result&) { return false; });
    EXPECT_EQ(resultOf("objExists persp"), "1");
    m_session.scene().pluginCommands.clear();
    m_session.commands().pluginsChanged();
    EXPECT_EQ(resultOf("objExists persp"), "1");
}

TEST_F(PluginCommandsTest, AreKnownToTheApiAtOnce)
{
    // As a plug-in's interface procedure runs before anybody was told of the plug-in.
    m_session.scene().pluginCommands["late"] = {"late", "loud",
                                                [](const std::vector<Result>&, Result& result) {
                                                    result.kind = Result::Kind::integer;
                                                    result.integers = {42};
                                                    return true;
                                                }};
    Result result;
    ASSERT_TRUE(m_session.scene().scriptRunner->run("late", false, false, result)) << m_err.str();
    EXPECT_EQ(result.integers, std::vector<int>{42});
}

} // namespace
