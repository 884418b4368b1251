// The grammar and the tree made from it.
#include "mel/parser.h"

#include "mel/grammar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tao/pegtl/contrib/analyze.hpp>

namespace tvxhost::mel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(Grammar, HasNoEndlessLoops)
{
    EXPECT_EQ(tao::pegtl::analyze<grammar::whole_script>(1), 0u);
    EXPECT_EQ(tao::pegtl::analyze<grammar::plain_statement>(1), 0u);
}

/// The only statement of a text.
const ast::Statement& only(const std::shared_ptr<const ast::Script>& script)
{
    EXPECT_EQ(script->statements.size(), 1u);
    return *script->statements.front();
}

const ast::Command& commandOf(const std::shared_ptr<const ast::Script>& script)
{
    const auto& statement = std::get<ast::ExpressionStatement>(only(script).node);
    return std::get<ast::Command>(statement.expression->node);
}

std::vector<ArgumentKind> kindsOf(const ast::Command& command)
{
    std::vector<ArgumentKind> kinds;
    for (const auto& argument : command.arguments) {
        kinds.push_back(argument.kind);
    }
    return kinds;
}

TEST(Parser, TellsTheKindsOfArguments)
{
    const auto script = parseScript("move -r 1 -2.5 \"a b\" |grp|ns:obj.tx[0:3] -abc 5cm 1e3 -.5;");
    const ast::Command& command = commandOf(script);
    EXPECT_EQ(command.name, "move");
    EXPECT_THAT(kindsOf(command),
                ElementsAre(ArgumentKind::flag, ArgumentKind::integer, ArgumentKind::number,
                            ArgumentKind::string, ArgumentKind::word, ArgumentKind::flag, ArgumentKind::word,
                            ArgumentKind::number, ArgumentKind::number));
    EXPECT_EQ(command.arguments[3].text, "a b");
    EXPECT_EQ(command.arguments[4].text, "|grp|ns:obj.tx[0:3]");
    EXPECT_EQ(command.arguments[6].text, "5cm");
}

TEST(Parser, NamesWithKeywordsInThemAreOneWord)
{
    const auto script = parseScript("setAttr n.default 1 default in .input .. * ./a/b.ma;");
    std::vector<std::string> texts;
    for (const auto& argument : commandOf(script).arguments) {
        texts.push_back(argument.text);
    }
    EXPECT_THAT(texts, ElementsAre("n.default", "1", "default", "in", ".input", "..", "*", "./a/b.ma"));
}

TEST(Parser, ParenthesesMakeAFunctionCallOnlyAlone)
{
    EXPECT_EQ(commandOf(parseScript("setAttr ($n + \".tx\") 5;")).arguments.size(), 2u);
    const auto call = parseScript("setAttr ($n + \".tx\", 5);");
    const auto& statement = std::get<ast::ExpressionStatement>(only(call).node);
    EXPECT_EQ(std::get<ast::FunctionCall>(statement.expression->node).arguments.size(), 2u);
    EXPECT_THROW(parseScript("setAttr ($n, 1) 5;"), SyntaxError);
}

TEST(Parser, KeepsLinesAndColumns)
{
    const auto script = parseScript("int $a;\r\n\r\n  $a = 1 +\n 2;\r{ print 5; }", "f.mel");
    ASSERT_EQ(script->statements.size(), 3u);
    EXPECT_EQ(script->name, "f.mel");
    EXPECT_EQ(script->statements[0]->at.line, 1);
    EXPECT_EQ(script->statements[1]->at.line, 3);
    EXPECT_EQ(script->statements[1]->at.column, 3);
    EXPECT_EQ(script->statements[2]->at.line, 5);
}

TEST(Parser, LongSumsAreOneFlatNode)
{
    std::string text = "$s = (\"a\"";
    for (int i = 0; i < 20000; ++i) {
        text += "\n\t+ \"line\\n\"";
    }
    const auto script = parseScript(text + ");");
    const auto& statement = std::get<ast::ExpressionStatement>(only(script).node);
    const auto& assignment = std::get<ast::Assignment>(statement.expression->node);
    EXPECT_EQ(std::get<ast::Chain>(assignment.value->node).links.size(), 20000u);
}

TEST(Parser, LongElseIfChainsAreNoNesting)
{
    std::string text = "if (0) print 0;";
    for (int i = 0; i < 5000; ++i) {
        text += "\nelse if (" + std::to_string(i) + ") print 1;";
    }
    const auto script = parseScript(text);
    EXPECT_EQ(std::get<ast::If>(only(script).node).branches.size(), 5001u);
}

TEST(Parser, ReadsProcedures)
{
    const auto script =
        parseScript("global proc string[] f(string $a, int $b[], matrix $m[2][2]) { return {}; }");
    const auto& procedure = *std::get<ast::ProcedureDefinition>(only(script).node).procedure;
    EXPECT_EQ(procedure.name, "f");
    EXPECT_TRUE(procedure.isGlobal);
    EXPECT_EQ(procedure.result, Type::stringArray);
    ASSERT_EQ(procedure.parameters.size(), 3u);
    EXPECT_EQ(procedure.parameters[1].type, Type::integerArray);
    EXPECT_EQ(procedure.parameters[1].name, "b");
    EXPECT_EQ(procedure.parameters[2].type, Type::matrix);
    EXPECT_EQ(procedure.body.size(), 1u);
}

TEST(Parser, BodiesMayBeEmptyStatements)
{
    EXPECT_EQ(
        parseScript("if (1); else; while (0); for (;;); do ; while (0); for ($a in $b);")->statements.size(),
        5u);
    const auto script = parseScript("if (1); else if (2); else { print 3; }");
    EXPECT_EQ(std::get<ast::If>(only(script).node).branches.size(), 2u);
}

struct Broken
{
    const char* text;
    int line;
    int column;
    const char* reason;
};

class BrokenText : public testing::TestWithParam<Broken>
{
};

TEST_P(BrokenText, IsOneErrorWithItsPlace)
{
    const Broken& broken = GetParam();
    try {
        parseScript(broken.text, "f.mel");
        FAIL() << broken.text;
    } catch (const SyntaxError& error) {
        EXPECT_EQ(error.reason(), broken.reason) << broken.text;
        EXPECT_EQ(error.place().file, "f.mel");
        EXPECT_EQ(error.place().line, broken.line) << broken.text;
        EXPECT_EQ(error.column(), broken.column) << broken.text;
        EXPECT_THAT(error.what(), HasSubstr("^"));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Parser, BrokenText,
    testing::Values(
        Broken{"int $x = ;", 1, 10, "Syntax error"}, Broken{"\n\nprint (1;\n", 3, 9, "Syntax error"},
        Broken{"print \"a", 1, 9, "Unterminated string."},
        Broken{"print \"a\n\";", 1, 9, "Unterminated string."},
        Broken{"/* a\nb", 2, 2, "Unterminated comment."}, Broken{"foo.bar;", 1, 1, "Syntax error"},
        Broken{"foo = 3;", 1, 5, "Syntax error"}, Broken{"proc (int $a) {}", 1, 6, "Syntax error"},
        Broken{"proc f(int a) {}", 1, 12, "Syntax error"}, Broken{"case 1: print 2;", 1, 1, "Syntax error"},
        Broken{"$a + ;", 1, 6, "Syntax error"}, Broken{"$a[1;", 1, 5, "Syntax error"},
        Broken{"setAttr $obj.tx 2;", 1, 9, "Syntax error"}, Broken{"3++;", 1, 2, "Syntax error"},
        Broken{"for ($i = 0) print 1;", 1, 12, "Syntax error"}, Broken{"\x01", 1, 1, "Syntax error"}));

TEST(Parser, ShowsTheLineWithACaret)
{
    try {
        parseScript("\tint $x = ;");
        FAIL();
    } catch (const SyntaxError& error) {
        EXPECT_STREQ(error.what(), "Syntax error\n\tint $x = ;\n\t         ^");
    }
}

TEST(Parser, NestingHasALimit)
{
    for (const char* opening : {"(", "{", "!", "if (1) ", "$a = ", "1 ? 2 : "}) {
        std::string text;
        for (int i = 0; i < 10000; ++i) {
            text += opening;
        }
        EXPECT_THROW(parseScript(text), SyntaxError) << opening;
    }
    EXPECT_NO_THROW(parseScript("$a = " + std::string(100, '(') + "1" + std::string(100, ')') + ";"));
}

} // namespace
} // namespace tvxhost::mel
