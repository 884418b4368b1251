// Values: conversions and texts.
#include "mel/value.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tvxhost::mel {
namespace {

using testing::ElementsAre;

TEST(Value, NumbersConvertToEachOther)
{
    EXPECT_EQ(Value(2.9).toInteger(), 2);
    EXPECT_EQ(Value(-2.9).toInteger(), -2);
    EXPECT_EQ(Value(3).toNumber(), 3.0);
    EXPECT_EQ(Value(1e30).toInteger(), 2147483647);
}

TEST(Value, StringsGiveTheirLeadingNumber)
{
    EXPECT_EQ(Value("12 cats").toInteger(), 12);
    EXPECT_EQ(Value("  -1.5e2x").toNumber(), -150.0);
    EXPECT_EQ(Value("0x1f").toInteger(), 31);
    EXPECT_EQ(Value("cats 12").toNumber(), 0.0);
    EXPECT_EQ(Value("").toNumber(), 0.0);
    EXPECT_EQ(Value("inf").toNumber(), 0.0);
}

TEST(Value, LeadingNumberTellsWhetherThereWasOne)
{
    EXPECT_TRUE(leadingNumber("0").found);
    EXPECT_TRUE(leadingNumber("+.5").found);
    EXPECT_FALSE(leadingNumber("zero").found);
    EXPECT_FALSE(leadingNumber("-").found);
    EXPECT_FALSE(leadingNumber(" ").found);
}

TEST(Value, BooleanWordsAreTrue)
{
    EXPECT_TRUE(Value("on").toBoolean());
    EXPECT_TRUE(Value("yes").toBoolean());
    EXPECT_TRUE(Value("2").toBoolean());
    EXPECT_FALSE(Value("off").toBoolean());
    EXPECT_FALSE(Value(0.0).toBoolean());
}

TEST(Value, FloatsHaveTenSignificantDigits)
{
    EXPECT_EQ(numberText(1.0 / 3.0), "0.3333333333");
    EXPECT_EQ(numberText(2.0), "2");
    EXPECT_EQ(numberText(-0.5), "-0.5");
}

TEST(Value, TextsOfPrint)
{
    EXPECT_EQ(Value(Vector(1, 2.5, 3)).toString(), "1 2.5 3");
    EXPECT_EQ(Value(Value::Strings{"a", "b"}).toString(), "a\nb\n");
    EXPECT_EQ(Value().toString(), "");
}

TEST(Value, TextsOfResults)
{
    EXPECT_EQ(resultText(Value(Vector(2, -7, -6))), "<<2, -7, -6>>");
    EXPECT_EQ(resultText(Value(Value::Strings{"a", "b"})), "a b");
    EXPECT_EQ(resultText(Value(0.5)), "0.5");
    Matrix matrix(2, 2);
    matrix.elements = {1, 2, 3, 4};
    EXPECT_EQ(resultText(Value(matrix)), "<<1, 2; 3, 4>>");
}

TEST(Value, CopiesOfAnArrayShareItsElements)
{
    const Value array(Value::Integers{1});
    const Value copy = array;
    const Value own = array.detached();
    copy.setElement(0, 5);
    EXPECT_THAT(array.integers(), ElementsAre(5));
    EXPECT_THAT(own.integers(), ElementsAre(1));
}

TEST(Value, ArraysGrow)
{
    const Value array = Value::neutral(Type::stringArray);
    array.setElement(2, 7);
    EXPECT_THAT(array.strings(), ElementsAre("", "", "7"));
    EXPECT_EQ(array.element(9).string(), "");
}

TEST(Value, ConversionsThatDoNotExistSaySo)
{
    try {
        Value(Value::Strings{"a"}).to(Type::string);
        FAIL();
    } catch (const ValueError& error) {
        EXPECT_STREQ(error.what(), "Cannot convert data of type string[] to type string.");
    }
    EXPECT_THROW(Value().to(Type::integer), ValueError);
    EXPECT_THROW(Value(1).to(Type::integerArray), ValueError);
}

TEST(Value, NamesOfTypes)
{
    EXPECT_STREQ(typeName(Type::number), "float");
    EXPECT_STREQ(typeName(Type::vectorArray), "vector[]");
    EXPECT_EQ(arrayOf(Type::string), Type::stringArray);
    EXPECT_EQ(arrayOf(Type::matrix), Type::none);
    EXPECT_EQ(elementOf(Type::numberArray), Type::number);
    EXPECT_FALSE(isArray(Type::matrix));
}

} // namespace
} // namespace tvxhost::mel
