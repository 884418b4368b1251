// The core exception tells the text it was made with.
#include <tvxCore/Exception.h>

#include <gtest/gtest.h>

#include <exception>
#include <string>

namespace tarvox::core {
namespace {

TEST(Exception, TellsItsText)
{
    EXPECT_STREQ(Exception("no such crowd").what(), "no such crowd");
}

TEST(Exception, MayHaveNoText)
{
    EXPECT_STREQ(Exception("").what(), "");
}

TEST(Exception, KeepsATextOfItsOwn)
{
    std::string text = "first";
    const Exception exception(text);
    text = "second";
    EXPECT_STREQ(exception.what(), "first");
}

TEST(Exception, IsCaughtByReferenceAcrossTheLibrary)
{
    try {
        throw Exception("thrown");
    } catch (const std::exception& caught) {
        EXPECT_STREQ(caught.what(), "thrown");
        EXPECT_NE(dynamic_cast<const Exception*>(&caught), nullptr);
    }
}

TEST(Exception, TellsTheTextOfADerivedException)
{
    class Derived : public Exception
    {
    public:
        Derived() : Exception("base text") {}
        const char* what() const noexcept override { return "derived text"; }
    };
    try {
        throw Derived();
    } catch (const Exception& caught) {
        EXPECT_STREQ(caught.what(), "derived text");
    }
}

TEST(Exception, CopiesItsText)
{
    const Exception first("one");
    Exception second("two");
    second = first;
    EXPECT_STREQ(second.what(), "one");
    EXPECT_STREQ(Exception(first).what(), "one");
}

} // namespace
} // namespace tarvox::core
