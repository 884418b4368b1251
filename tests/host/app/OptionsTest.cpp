// The command line: what each option means.
#include "app/options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost::app;
using testing::ElementsAre;
using testing::HasSubstr;

CommandLine parse(std::vector<const char*> words)
{
    words.insert(words.begin(), "tvxhost");
    return parseCommandLine(static_cast<int>(words.size()), words.data());
}

Options optionsOf(std::vector<const char*> words)
{
    const CommandLine line = parse(std::move(words));
    EXPECT_TRUE(line.options) << line.error;
    return line.options.value_or(Options());
}

TEST(CommandLineOptions, AreAllOffByThemselves)
{
    const Options options = optionsOf({});
    EXPECT_EQ(options.scene, "");
    EXPECT_TRUE(options.plugins.empty());
    EXPECT_TRUE(options.commands.empty());
    EXPECT_EQ(options.size.width, 1280);
    EXPECT_EQ(options.size.height, 720);
    EXPECT_FALSE(options.summary);
    EXPECT_FALSE(options.listNodes);
    EXPECT_FALSE(options.interactive);
}

TEST(CommandLineOptions, TakeTheLoneWordAsTheScene)
{
    EXPECT_EQ(optionsOf({"a b.ma"}).scene, "a b.ma");
    EXPECT_EQ(optionsOf({"--plugin", "p.so", "s.ma", "--plugin", "q.so"}).scene, "s.ma");
}

TEST(CommandLineOptions, KeepRepeatedOnesInOrder)
{
    const Options options = optionsOf({"--plugin", "p", "-e", "print 1", "--plugin", "q", "-e", "-1 + 2"});
    EXPECT_THAT(options.plugins, ElementsAre("p", "q"));
    EXPECT_THAT(options.commands, ElementsAre("print 1", "-1 + 2"));
}

TEST(CommandLineOptions, AnswerDialogsInOrder)
{
    const Options options = optionsOf({"--dialog-answer", "a.ma", "s.ma", "--dialog-answer", "scenes"});
    EXPECT_THAT(options.dialogAnswers, ElementsAre("a.ma", "scenes"));
    EXPECT_EQ(options.scene, "s.ma");
    EXPECT_FALSE(options.qt);
}

TEST(CommandLineOptions, MakeASessionWithQtInteractive)
{
    EXPECT_TRUE(optionsOf({"--qt"}).qt);
    EXPECT_TRUE(optionsOf({"--qt"}).interactive);
}

TEST(CommandLineOptions, GiveReportsAsTextUnlessJsonIsAskedFor)
{
    EXPECT_EQ(optionsOf({"--summary", "s.ma"}).summary, ReportFormat::text);
    EXPECT_EQ(optionsOf({"--summary=json", "s.ma"}).summary, ReportFormat::json);
    EXPECT_EQ(optionsOf({"--check", "f.mel"}).checkFormat, ReportFormat::text);
    EXPECT_EQ(optionsOf({"--check=json", "f.mel"}).checkFormat, ReportFormat::json);
}

TEST(CommandLineOptions, TakeTheFileOfACheckAsAScript)
{
    const Options options = optionsOf({"--check", "f.mel"});
    EXPECT_EQ(options.check, "f.mel");
    EXPECT_EQ(options.scene, "");
}

TEST(CommandLineOptions, TakeTheLoneWordAsTheTypeToDescribe)
{
    const Options options = optionsOf({"--describe", "transform", "--plugin", "p"});
    EXPECT_EQ(options.describe, "transform");
    EXPECT_EQ(options.describeFormat, ReportFormat::text);
    EXPECT_EQ(options.scene, "");
    EXPECT_EQ(optionsOf({"--describe=json", "transform"}).describeFormat, ReportFormat::json);
    EXPECT_EQ(optionsOf({"transform", "--describe"}).describe, "transform");
}

TEST(CommandLineOptions, AreRefusedWithASentence)
{
    EXPECT_THAT(parse({"--describe"}).error, HasSubstr("no node type is named"));
    EXPECT_THAT(parse({"--describe", "--check", "f.mel"}).error, HasSubstr("excludes"));
    EXPECT_THAT(parse({"--check"}).error, HasSubstr("no MEL file is named"));
    EXPECT_THAT(parse({"--size", "640"}).error, HasSubstr("\"640\" is not a size such as 1280x720"));
    EXPECT_THAT(parse({"--fail", "A::b:x"}).error, HasSubstr("\"A::b:x\" is not of the form"));
    EXPECT_THAT(parse({"a.ma", "b.ma"}).error, HasSubstr("b.ma"));
    EXPECT_THAT(parse({"--summary=xml", "a.ma"}).error, HasSubstr("xml"));
    EXPECT_EQ(parse({"--bogus"}).exitCode, 2);
}

TEST(CommandLineOptions, AnswerHelpAndVersionWithoutError)
{
    EXPECT_EQ(parse({"--version"}).output, "tvxhost 2.5.0.1\n");
    EXPECT_EQ(parse({"--help"}).exitCode, 0);
    EXPECT_FALSE(parse({"--help"}).options);
}

TEST(PictureSizes, AreTwoNumbersAndAnX)
{
    const auto size = parseSize("1920x1080");
    ASSERT_TRUE(size);
    EXPECT_EQ(size->width, 1920);
    EXPECT_EQ(size->height, 1080);
    for (const char* text :
         {"", "x", "10", "10x", "x10", "0x10", "10x-1", "10x10x10", "10 x 10", "1e3x10", "99999999999x1"})
        EXPECT_FALSE(parseSize(text)) << text;
}

} // namespace
