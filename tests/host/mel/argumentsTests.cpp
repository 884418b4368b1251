// Argument lists: tokens, values, escapes.
#include "mel/arguments.h"

#include <gtest/gtest.h>

namespace tvxhost::mel {
namespace {

TEST(Arguments, ArraysAddOneArgumentPerElement)
{
    ArgumentList list;
    list.addValue(Value::Strings{"a", "b"});
    list.addValue(Value::Numbers{0.1});
    ASSERT_EQ(list.size(), 3u);
    EXPECT_EQ(list[1].text, "b");
    EXPECT_EQ(list[1].kind, ArgumentKind::string);
    EXPECT_EQ(list[2].kind, ArgumentKind::number);
    EXPECT_EQ(list[2].number().value, 0.1);
}

TEST(Arguments, EvaluatedNumbersKeepAllTheirDigits)
{
    ArgumentList list;
    list.addValue(1.0 / 3.0);
    EXPECT_EQ(list[0].text, "0.3333333333");
    EXPECT_EQ(list[0].number().value, 1.0 / 3.0);
}

TEST(Arguments, FlagsMayBeQuoted)
{
    ArgumentList list;
    list.addQuoted("-name");
    list.addToken(ArgumentKind::flag, "-n");
    list.addToken(ArgumentKind::number, "-5");
    list.addQuoted("-5");
    list.addQuoted("-");
    EXPECT_TRUE(list[0].looksLikeFlag());
    EXPECT_TRUE(list[1].looksLikeFlag());
    EXPECT_FALSE(list[2].looksLikeFlag());
    EXPECT_FALSE(list[3].looksLikeFlag());
    EXPECT_FALSE(list[4].looksLikeFlag());
}

TEST(Arguments, TokensBecomeValues)
{
    ArgumentList list;
    list.addToken(ArgumentKind::word, "yes");
    list.addToken(ArgumentKind::word, "persp");
    list.addToken(ArgumentKind::integer, "7");
    list.addToken(ArgumentKind::number, "7.0");
    list.addQuoted("yes");
    EXPECT_EQ(list[0].asValue().type(), Type::integer);
    EXPECT_EQ(list[1].asValue().string(), "persp");
    EXPECT_EQ(list[2].asValue().integer(), 7);
    EXPECT_EQ(list[3].asValue().type(), Type::number);
    EXPECT_EQ(list[4].asValue().string(), "yes");
}

TEST(Arguments, EscapesAreResolvedAndMade)
{
    EXPECT_EQ(unescaped("a\\tb\\\\c\\\"d\\qe\\n"), "a\tb\\c\"dqe\n");
    EXPECT_EQ(unescaped("one \\\r\ntwo"), "one two");
    EXPECT_EQ(unescaped("end\\"), "end\\");
    EXPECT_EQ(quoted("a\tb\\c\"d\n\r"), "\"a\\tb\\\\c\\\"d\\n\\r\"");
}

TEST(Arguments, TextsStayWhenTheListMoves)
{
    ArgumentList list;
    list.addQuoted("a\\nb");
    list.addValue(5);
    const ArgumentList moved = std::move(list);
    EXPECT_EQ(moved[0].text, "a\nb");
    EXPECT_EQ(moved[1].asValue().integer(), 5);
}

} // namespace
} // namespace tvxhost::mel
