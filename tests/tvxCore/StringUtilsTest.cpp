// Lower-casing.
#include <tvxCore/StringUtils.h>

#include <gtest/gtest.h>

#include <string>

namespace tarvox::core {
namespace {

TEST(ToLower, MakesLettersSmall)
{
    EXPECT_EQ(toLower("WaRNing"), "warning");
}

TEST(ToLower, KeepsEverythingBetweenTheAlphabets)
{
    EXPECT_EQ(toLower("@AZ[`az{ 09_"), "@az[`az{ 09_");
}

TEST(ToLower, KeepsBytesOutsideAscii)
{
    EXPECT_EQ(toLower("\xC3\x84-\xFFX"), "\xC3\x84-\xFFx");
}

TEST(ToLower, KeepsTheEmptyText)
{
    EXPECT_EQ(toLower(""), "");
}

TEST(ToLower, KeepsZeroBytes)
{
    EXPECT_EQ(toLower(std::string("A\0B", 3)), std::string("a\0b", 3));
}

} // namespace
} // namespace tarvox::core
