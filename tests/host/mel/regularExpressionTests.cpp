// MEL's regular expressions as POSIX ones.
#include "mel/regularExpression.h"

#include "mel/value.h"

#include <gtest/gtest.h>

namespace tvxhost::mel {
namespace {

std::string matched(const std::string& pattern, const std::string& text)
{
    const auto found = RegularExpression(pattern).find(text);
    return found ? text.substr(found->start, found->length) : "(none)";
}

TEST(RegularExpression, IsTranslated)
{
    EXPECT_EQ(RegularExpression::translated("^a.b*c+d?(e)$"), "^a.b*c+d?(e)$");
    EXPECT_EQ(RegularExpression::translated("a|b{2}"), "a\\|b\\{2\\}");
    EXPECT_EQ(RegularExpression::translated("\\.\\w"), "\\.w");
    EXPECT_EQ(RegularExpression::translated("[a-c]"), "[abc]");
    EXPECT_EQ(RegularExpression::translated("[^\\]-]"), "[^]-]");
    EXPECT_EQ(RegularExpression::translated("[\\^]"), "\\^");
    EXPECT_EQ(RegularExpression::translated("[^^]"), "[^^]");
    EXPECT_EQ(RegularExpression::translated("[\\^a-]"), "[a^-]");
}

TEST(RegularExpression, SetsTakeEveryCharacter)
{
    EXPECT_EQ(matched("[.*]+", "a.*b"), ".*");
    EXPECT_EQ(matched("[a\\]]+", "x]a]y"), "]a]");
    EXPECT_EQ(matched("[-x]+", "a-x-b"), "-x-");
    EXPECT_EQ(matched("[[:]+", "a[:b"), "[:");
    EXPECT_EQ(matched("[\\^[]+", "a^[b"), "^[");
}

TEST(RegularExpression, IsGreedyAndFindsTheFirst)
{
    EXPECT_EQ(matched("a.*b", "xaabbx"), "aabb");
    EXPECT_EQ(matched("[0-9]+", "a12b345"), "12");
    EXPECT_EQ(matched("z", "abc"), "(none)");
    EXPECT_EQ(matched("a*", "bbb"), "");
}

TEST(RegularExpression, LongTextsDoNotOverflowTheStack)
{
    const std::string text(1000000, 'a');
    EXPECT_EQ(matched("(ab)*a*", text).size(), text.size());
    EXPECT_EQ(matched("a*", text).size(), text.size());
}

TEST(RegularExpression, BrokenPatternsAreRefused)
{
    EXPECT_THROW(RegularExpression("[a"), ValueError);
    EXPECT_THROW(RegularExpression("[]"), ValueError);
    EXPECT_THROW(RegularExpression("(a"), ValueError);
}

} // namespace
} // namespace tvxhost::mel
