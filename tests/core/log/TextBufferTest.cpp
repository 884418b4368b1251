// Text in reused storage.
#include "core/log/tvxTextBuffer.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace tarvox::crowd {
namespace {

TEST(TextBuffer, StartsEmpty)
{
    TextBuffer text;
    EXPECT_EQ(text.size(), 0u);
    EXPECT_STREQ(text.c_str(), "");
}

TEST(TextBuffer, AppendsEveryKindOfPiece)
{
    TextBuffer text;
    text.append('a');
    text.append("bc");
    text.append("defg", 2);
    std::memcpy(text.room(10), "xyz", 3);
    text.advance(2);
    EXPECT_STREQ(text.c_str(), "abcdexy");
    EXPECT_EQ(text.size(), 7u);
}

TEST(TextBuffer, GrowsBeyondAnySize)
{
    TextBuffer text;
    std::string expected;
    for (std::size_t size = 0; size < 2000; size += 37) {
        text.append(std::string(size, 'x'));
        text.append("|");
        expected += std::string(size, 'x') + "|";
    }
    EXPECT_EQ(text.c_str(), expected);
}

TEST(TextBuffer, KeepsItsStorageWhenCleared)
{
    TextBuffer text;
    text.append(std::string(1000, 'x'));
    const char* storage = text.data();
    text.clear();
    text.append(std::string(1000, 'y'));
    EXPECT_EQ(text.data(), storage);
    EXPECT_EQ(text.c_str(), std::string(1000, 'y'));
}

TEST(BorrowedText, ReusesTheStorageOfItsHome)
{
    TextBuffer home;
    home.append("before");
    const char* storage = home.data();
    {
        const BorrowedText borrowed(home);
        EXPECT_EQ(borrowed.text.size(), 0u);
        EXPECT_EQ(borrowed.text.data(), storage);
    }
    EXPECT_EQ(home.data(), storage);
}

TEST(BorrowedText, LeavesTheOuterBorrowersTextAlone)
{
    TextBuffer home;
    BorrowedText outer(home);
    outer.text.append("outer");
    {
        BorrowedText inner(home);
        inner.text.append("inner, which is longer than the outer text");
    }
    EXPECT_STREQ(outer.text.c_str(), "outer");
}

} // namespace
} // namespace tarvox::crowd
