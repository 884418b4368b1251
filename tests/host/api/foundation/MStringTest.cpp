// MString: text in UTF-8.
#include <maya/MString.h>
#include <maya/MStringArray.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::string text(const MString& string)
{
    return string.asChar();
}

std::vector<std::string> texts(const MStringArray& array)
{
    std::vector<std::string> all;
    for (unsigned int i = 0; i < array.length(); ++i)
        all.push_back(array[i].asChar());
    return all;
}

using Texts = std::vector<std::string>;

TEST(MString, IsEmptyFromNothingAndFromANullPointer)
{
    EXPECT_EQ(text(MString()), "");
    EXPECT_EQ(text(MString(static_cast<const char*>(nullptr))), "");
    EXPECT_EQ(text(MString(static_cast<const wchar_t*>(nullptr))), "");
    EXPECT_EQ(MString().length(), 0u);
    EXPECT_EQ(MString(), MString(""));
}

TEST(MString, TakesSoManyBytesButNoFurtherThanTheEnd)
{
    EXPECT_EQ(text(MString("crowd", 3)), "cro");
    EXPECT_EQ(text(MString("crowd", 99)), "crowd");
    EXPECT_EQ(text(MString("crowd", 0)), "");
    EXPECT_EQ(text(MString("crowd", -1)), "");
}

TEST(MString, CopiesAreIndependent)
{
    MString one("one");
    MString two(one);
    two += "!";
    EXPECT_EQ(text(one), "one");
    EXPECT_EQ(text(two), "one!");
    two = one;
    EXPECT_EQ(text(two), "one");
    two = MString();
    EXPECT_EQ(text(two), "");
}

TEST(MString, AppendsItself)
{
    MString string("ab");
    string += string;
    EXPECT_EQ(text(string), "abab");
}

TEST(MString, AppendsNumbersWithSixSignificantDigits)
{
    MString string;
    string += 1.0;
    string += MString(" ");
    string += 0.1f;
    string += " ";
    string += 123456789.0;
    string += " ";
    string += -7;
    string += " ";
    string += 4000000000u;
    EXPECT_EQ(text(string), "1 0.1 1.23457e+08 -7 4000000000");
    EXPECT_EQ(text(MString("x") + 2.5), "x2.5");
    EXPECT_EQ(text("a" + MString("b") + "c"), "abc");
}

TEST(MString, TakesANumberWithSoManyDecimals)
{
    MString string;
    EXPECT_EQ(string.set(3.14159, 2), MS::kSuccess);
    EXPECT_EQ(text(string), "3.14");
    string.set(2.0, 3);
    EXPECT_EQ(text(string), "2.000");
    string = 0.5;
    EXPECT_EQ(text(string), "0.5");
}

TEST(MString, ComparesByteByByte)
{
    EXPECT_TRUE(MString("a") == "a");
    EXPECT_TRUE(MString("a") != "A");
    EXPECT_TRUE(MString("a") != MString("ab"));
    EXPECT_TRUE(MString() == static_cast<const char*>(nullptr));
}

TEST(MString, CountsBytesAndCharacters)
{
    // Zürich 東 and a character outside the basic plane: 2, 3 and 4 bytes.
    const MString string("Z\xC3\xBCrich \xE6\x9D\xB1\xF0\x9F\x8E\xAC");
    EXPECT_EQ(string.length(), 15u);
    EXPECT_EQ(string.numChars(), 9u);
    EXPECT_EQ(std::wstring(string.asWChar()), L"Z\u00fcrich \u6771\U0001F3AC");
    EXPECT_EQ(MString(string.asWChar()), string);
    EXPECT_EQ(text(MString(L"\u6771\u00fc", 1)), "\xE6\x9D\xB1");
}

TEST(MString, ReplacesWhatIsNotUtf8)
{
    EXPECT_EQ(std::wstring(MString("a\xFF\xC3").asWChar()), L"a\uFFFD\uFFFD");
    EXPECT_EQ(std::wstring(MString("\xC0\x80").asWChar()), L"\uFFFD\uFFFD") << "an overlong form";
    EXPECT_EQ(std::wstring(MString("\xED\xA0\x80").asWChar()).front(), L'\uFFFD') << "a surrogate";
}

TEST(MString, FindsCharactersFromBothEnds)
{
    const MString path("a/b/c");
    EXPECT_EQ(path.index('/'), 1);
    EXPECT_EQ(path.rindex('/'), 3);
    EXPECT_EQ(path.index('x'), -1);
    EXPECT_EQ(path.rindex('x'), -1);
    const MString wide("\xC3\xBC/\xC3\xBC");
    EXPECT_EQ(wide.index('/'), 2) << "bytes";
    EXPECT_EQ(wide.indexW('/'), 1) << "characters";
    EXPECT_EQ(wide.rindexW(L'\u00fc'), 2);
    EXPECT_EQ(wide.indexW(MString("\xC3\xBC")), 0);
    EXPECT_EQ(wide.rindexW(MString("/\xC3\xBC")), 1);
    EXPECT_EQ(wide.indexW(MString("x")), -1);
}

TEST(MString, CutsFromStartToEndInclusive)
{
    const MString string("crowd");
    EXPECT_EQ(text(string.substring(1, 3)), "row");
    EXPECT_EQ(text(string.substring(0, 0)), "c");
    EXPECT_EQ(text(string.substring(3, 99)), "wd");
    EXPECT_EQ(text(string.substring(3, 2)), "");
    EXPECT_EQ(text(string.substring(-1, 2)), "");
    EXPECT_EQ(text(string.substring(5, 5)), "");
    EXPECT_EQ(text(MString("a\xC3\xBC\x62").substringW(1, 1)), "\xC3\xBC");
}

TEST(MString, SplitsWithoutEmptyParts)
{
    MStringArray parts;
    EXPECT_EQ(MString("|a||b|").split('|', parts), MS::kSuccess);
    EXPECT_EQ(texts(parts), (Texts{"a", "b"}));
    EXPECT_EQ(MString("abc").split('|', parts), MS::kSuccess);
    EXPECT_EQ(texts(parts), (Texts{"abc"}));
    EXPECT_EQ(MString("a\xC3\xBC\x62").split(L'\u00fc', parts), MS::kSuccess);
    EXPECT_EQ(texts(parts), (Texts{"a", "b"}));
}

TEST(MString, AnEmptyTextCannotBeSplit)
{
    MStringArray parts;
    parts.append("kept");
    EXPECT_EQ(MString().split('|', parts), MS::kFailure);
    EXPECT_EQ(texts(parts), (Texts{"kept"}));
}

TEST(MString, ChangesTheCaseOfAsciiLettersInPlace)
{
    MString string("aB\xC3\xBC");
    EXPECT_EQ(&string.toUpperCase(), &string);
    EXPECT_EQ(text(string), "AB\xC3\xBC");
    EXPECT_EQ(text(string.toLowerCase()), "ab\xC3\xBC");
    EXPECT_EQ(text(MString().toLowerCase()), "");
}

TEST(MString, TellsWholeNumbersFromOtherText)
{
    EXPECT_TRUE(MString("42").isInt());
    EXPECT_TRUE(MString(" -42 ").isInt());
    EXPECT_TRUE(MString("+7").isInt());
    EXPECT_FALSE(MString("42x").isInt());
    EXPECT_FALSE(MString("4.2").isInt());
    EXPECT_FALSE(MString("").isInt());
    EXPECT_FALSE(MString("99999999999").isInt());
    EXPECT_FALSE(MString("70000").isShort());
    EXPECT_TRUE(MString("4000000000").isUnsigned());
    EXPECT_FALSE(MString("-1").isUnsigned());
    EXPECT_TRUE(MString("1e3").isDouble());
    EXPECT_TRUE(MString("-.5").isFloat());
    EXPECT_FALSE(MString("one").isDouble());
}

TEST(MString, ReadsTheNumberAtTheBeginning)
{
    EXPECT_EQ(MString("42 figures").asInt(), 42);
    EXPECT_EQ(MString("figures").asInt(), 0);
    EXPECT_EQ(MString("-3").asShort(), -3);
    EXPECT_EQ(MString("99999999999").asInt(), 2147483647);
    EXPECT_EQ(MString("3.75cm").asDouble(), 3.75);
    EXPECT_EQ(MString("0.5").asFloat(), 0.5f);
    EXPECT_EQ(MString("4000000000").asUnsigned(), 4000000000u);
}

TEST(MString, FillsPlaceholdersOfAFormat)
{
    MString string;
    EXPECT_EQ(string.format("^1s has ^2s of ^1s, 2^^3, ^x, ^3s", "a", "b"), MS::kSuccess);
    EXPECT_EQ(text(string), "a has b of a, 2^3, ^x, ");
    MStringArray arguments;
    arguments.append("x");
    string.format("[^1s][^2s][^10s]", arguments);
    EXPECT_EQ(text(string), "[x][][]");
    string.format("^10s", "1", "2", "3", "4", "5", "6", "7", "8", "9", "ten");
    EXPECT_EQ(text(string), "ten");
}

TEST(MString, SubstitutesAllOrTheFirst)
{
    MString string("aXbXc");
    EXPECT_EQ(string.substitute("X", "XX"), MS::kSuccess);
    EXPECT_EQ(text(string), "aXXbXXc");
    string.substituteFirst("XX", "-");
    EXPECT_EQ(text(string), "a-bXXc");
    string.substituteFirst("absent", "-");
    EXPECT_EQ(text(string), "a-bXXc");
    EXPECT_EQ(string.substitute("", "-"), MS::kInvalidParameter);
    EXPECT_EQ(text(string), "a-bXXc");
}

TEST(MString, ExpandsVariablesAndTheHomeFolder)
{
    setenv("TVX_STRING_TEST", "value", 1);
    setenv("HOME", "/home/artist", 1);
    EXPECT_EQ(text(MString("$TVX_STRING_TEST/${TVX_STRING_TEST}x").expandEnvironmentVariablesAndTilde()),
              "value/valuex");
    EXPECT_EQ(text(MString("~/scenes").expandEnvironmentVariablesAndTilde()), "/home/artist/scenes");
    EXPECT_EQ(text(MString("~").expandEnvironmentVariablesAndTilde()), "/home/artist");
    EXPECT_EQ(text(MString("a~b $ ${x").expandEnvironmentVariablesAndTilde()), "a~b $ ${x");
    EXPECT_EQ(text(MString("[$TVX_NOT_THERE]").expandEnvironmentVariablesAndTilde()), "[]");
    MStatus status = MS::kFailure;
    EXPECT_EQ(text(MString("~/a/../b").expandFilePath(&status)), "/home/artist/b");
    EXPECT_EQ(status, MS::kSuccess);
}

TEST(MString, IsWrittenAsItIs)
{
    std::ostringstream out;
    out << MString("crowd ") << MString();
    EXPECT_EQ(out.str(), "crowd ");
}

} // namespace
