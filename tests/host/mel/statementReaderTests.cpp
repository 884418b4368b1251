// Reading a text statement by statement.
#include "mel/parser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tvxhost::mel {
namespace {

using testing::ElementsAre;

std::vector<std::string> textsOf(const PlainCommand& command)
{
    std::vector<std::string> texts;
    for (const Argument& argument : command.arguments) {
        texts.emplace_back(argument.text);
    }
    return texts;
}

TEST(StatementReader, DeliversPlainCommandsAsTokens)
{
    StatementReader reader("//Maya ASCII 2016 scene\n"
                           "createNode transform -s -n \"persp\";\n"
                           "\tsetAttr \".v\" no;\n"
                           "\tsetAttr -s 2 \".vt[0:1]\"  0 -1.5 1e-05\n\t\t2 3 4;\n",
                           "scene.ma");
    ASSERT_TRUE(reader.next());
    ASSERT_NE(reader.plain(), nullptr);
    EXPECT_EQ(reader.plain()->name, "createNode");
    EXPECT_EQ(reader.line(), 2);
    EXPECT_THAT(textsOf(*reader.plain()), ElementsAre("transform", "-s", "-n", "persp"));
    EXPECT_EQ(reader.source(), "createNode transform -s -n \"persp\";");
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.line(), 3);
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.plain()->line, 4);
    EXPECT_THAT(textsOf(*reader.plain()),
                ElementsAre("-s", "2", ".vt[0:1]", "0", "-1.5", "1e-05", "2", "3", "4"));
    EXPECT_EQ(reader.plain()->arguments[4].kind, ArgumentKind::number);
    EXPECT_FALSE(reader.next());
}

TEST(StatementReader, JoinsTheLiteralsOfASum)
{
    StatementReader reader("setAttr \".b\" -type \"string\" (\"a\"\n+ \"b\\n\" + \"c\");", "");
    ASSERT_TRUE(reader.next());
    ASSERT_NE(reader.plain(), nullptr);
    ASSERT_EQ(reader.plain()->arguments.size(), 4u);
    EXPECT_EQ(reader.plain()->arguments[3].kind, ArgumentKind::string);
    EXPECT_EQ(reader.plain()->arguments[3].text, "ab\nc");
    EXPECT_FALSE(reader.next());
}

TEST(StatementReader, DeliversEverythingElseAsTrees)
{
    StatementReader reader("setAttr \".b\" -type \"string\" (\"a\"\n+ $b);\nif (1) print 2;;\nprint 3;", "");
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.plain(), nullptr);
    ASSERT_NE(reader.statement(), nullptr);
    EXPECT_EQ(reader.line(), 1);
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.statement()->at.line, 3);
    EXPECT_TRUE(std::holds_alternative<ast::If>(reader.statement()->node));
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.plain()->name, "print");
    EXPECT_EQ(reader.line(), 4);
    EXPECT_FALSE(reader.next());
}

TEST(StatementReader, ResolvesEscapes)
{
    StatementReader reader("fileInfo \"a\\\"b\" \"c\\n\";", "");
    ASSERT_TRUE(reader.next());
    EXPECT_THAT(textsOf(*reader.plain()), ElementsAre("a\"b", "c\n"));
}

TEST(StatementReader, CountsAllKindsOfLineEnds)
{
    StatementReader reader("print 1;\r\nprint 2;\rprint 3;\n\r\nprint 4;", "");
    std::vector<int> lines;
    while (reader.next()) {
        lines.push_back(reader.line());
    }
    EXPECT_THAT(lines, ElementsAre(1, 2, 3, 5));
}

TEST(StatementReader, SkipsAByteOrderMark)
{
    StatementReader reader("\xef\xbb\xbfprint 1;", "");
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.plain()->name, "print");
    EXPECT_FALSE(reader.next());
}

TEST(StatementReader, GoesOnBehindABrokenStatement)
{
    StatementReader reader("print 1;\nsetAttr \"a\" = 5\n  7;\nprint 2;\nprint \"open;\nprint 3;\n", "s.ma");
    ASSERT_TRUE(reader.next());
    try {
        reader.next();
        FAIL();
    } catch (const SyntaxError& error) {
        EXPECT_EQ(error.place().file, "s.ma");
        EXPECT_EQ(error.place().line, 2);
        EXPECT_EQ(error.column(), 13);
    }
    reader.skipBroken();
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.line(), 4);
    try {
        reader.next();
        FAIL();
    } catch (const SyntaxError& error) {
        EXPECT_EQ(error.reason(), "Unterminated string.");
        EXPECT_EQ(error.place().line, 5);
    }
    reader.skipBroken();
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.line(), 6);
    EXPECT_FALSE(reader.next());
}

TEST(StatementReader, EndsAfterSkippingTheRest)
{
    StatementReader reader("print (", "");
    EXPECT_THROW(reader.next(), SyntaxError);
    reader.skipBroken();
    EXPECT_FALSE(reader.next());
}

TEST(StatementReader, NamesTheLineOfAnOpenComment)
{
    StatementReader reader("print 1;\n\n/* open\n\n", "");
    ASSERT_TRUE(reader.next());
    try {
        reader.next();
        FAIL();
    } catch (const SyntaxError& error) {
        EXPECT_EQ(error.reason(), "Unterminated comment.");
        EXPECT_EQ(error.place().line, 5);
    }
    reader.skipBroken();
    EXPECT_FALSE(reader.next());
}

TEST(StatementReader, ReadsAHugeStatementWithoutATree)
{
    std::string text = "setAttr \".vt[0:99999]\"";
    for (int i = 0; i < 300000; ++i) {
        text += " 0.25";
    }
    StatementReader reader(text += ';', "");
    ASSERT_TRUE(reader.next());
    ASSERT_NE(reader.plain(), nullptr);
    EXPECT_EQ(reader.plain()->arguments.size(), 300001u);
    EXPECT_EQ(reader.offset(), text.size());
}

} // namespace
} // namespace tvxhost::mel
