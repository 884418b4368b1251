// Option variables: values, conversions and their file.
#include "engine/optionVars.h"

#include "../support/temporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tvxhost::engine {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

} // namespace

class OptionVarsTest : public testing::Test
{
protected:
    std::string file() const { return folder.path("userPrefs.mel"); }
    void write(const std::string& text) const { folder.write("userPrefs.mel", text); }
    Outcome load() { return vars.load(folder.path()); }

    test::TemporaryFolder folder;
    OptionVars vars;
};

TEST_F(OptionVarsTest, AVariableHasItsLastType)
{
    vars.set("v", 3);
    vars.set("v", std::string("three"));
    EXPECT_EQ(std::get<std::string>(*vars.find("v")), "three");
    EXPECT_TRUE(vars.remove("v"));
    EXPECT_FALSE(vars.remove("v"));
    EXPECT_FALSE(vars.exists("v"));
    EXPECT_EQ(vars.find("v"), nullptr);
}

TEST_F(OptionVarsTest, GettersConvert)
{
    vars.set("whole", 3);
    vars.set("real", 2.75);
    vars.set("text", std::string("12 apples"));
    vars.set("word", std::string("apples"));
    vars.set("huge", 1e300);
    EXPECT_EQ(vars.asDouble("whole"), 3.0);
    EXPECT_EQ(vars.asInt("real"), 2);
    EXPECT_EQ(vars.asInt("text"), 12);
    EXPECT_EQ(vars.asInt("word"), 0);
    EXPECT_EQ(vars.asInt("huge"), 2147483647);
    EXPECT_EQ(vars.asString("whole"), "3");
    EXPECT_EQ(vars.asString("real"), "2.75");
    EXPECT_FALSE(vars.asInt("none"));
}

TEST_F(OptionVarsTest, NamesAreSorted)
{
    vars.set("b", 1);
    vars.set("a", 1);
    EXPECT_THAT(vars.names(), ElementsAre("a", "b"));
}

TEST_F(OptionVarsTest, TheFileIsOneCommandWithAnEntryPerLine)
{
    vars.set("crowdLevel", 2);
    vars.set("crowdScale", 1.5);
    vars.set("crowdPath", std::string("C:\\shots\n\"x\"\t"));
    vars.set("recent", std::vector<std::string>{"a", "b c"});
    vars.set("sizes", std::vector<int>{4, 8});
    vars.set("weights", std::vector<double>{0.1});
    EXPECT_TRUE(vars.isChanged());
    ASSERT_TRUE(vars.save(folder.path()));
    EXPECT_FALSE(vars.isChanged());
    EXPECT_EQ(folder.read("userPrefs.mel"), "//Maya Preference file\n//\n//\n\n"
                                            "optionVar\n"
                                            " -iv \"crowdLevel\" 2\n"
                                            " -sv \"crowdPath\" \"C:\\\\shots\\n\\\"x\\\"\\t\"\n"
                                            " -fv \"crowdScale\" 1.5\n"
                                            " -ca \"recent\"\n"
                                            " -sva \"recent\" \"a\"\n"
                                            " -sva \"recent\" \"b c\"\n"
                                            " -ca \"sizes\"\n"
                                            " -iva \"sizes\" 4\n"
                                            " -iva \"sizes\" 8\n"
                                            " -ca \"weights\"\n"
                                            " -fva \"weights\" 0.1;\n");

    OptionVars other;
    ASSERT_TRUE(other.load(folder.path()));
    EXPECT_FALSE(other.isChanged());
    for (const std::string& name : vars.names())
        EXPECT_EQ(*other.find(name), *vars.find(name)) << name;
    EXPECT_EQ(other.names(), vars.names());
}

TEST_F(OptionVarsTest, AMissingFileIsAnEmptySet)
{
    for (const fs::path& empty : {folder / "none", folder.path()}) {
        vars.set("old", 1);
        EXPECT_TRUE(vars.load(empty)) << empty;
        EXPECT_THAT(vars.names(), IsEmpty()) << empty;
    }
    write("");
    EXPECT_TRUE(load());
    EXPECT_THAT(vars.names(), IsEmpty());
}

TEST_F(OptionVarsTest, OtherCommandsAndCommentsAreSkipped)
{
    write("// a comment\n/* another;\n one */\nwindowPref -x 1;\n"
          "optionVar -intValue \"a\" 5 -stringValue \"b\" \"x;y\";\noptionVar\n -fv \"c\" 2e-3 ;");
    EXPECT_TRUE(load());
    EXPECT_EQ(vars.asInt("a"), 5);
    EXPECT_EQ(vars.asString("b"), "x;y");
    EXPECT_EQ(vars.asDouble("c"), 0.002);
}

TEST_F(OptionVarsTest, ABrokenFileIsSetAsideAndItsLineNamed)
{
    const std::string text = "optionVar\n -iv \"a\" 1\n -iv \"b\" two;\n";
    write(text);
    const Outcome outcome = load();
    EXPECT_EQ(outcome.reason, Reason::failed);
    EXPECT_EQ(outcome.text,
              "'" + file() + "' cannot be understood in line 3; it was set aside as '" + file() + ".broken'");
    EXPECT_THAT(vars.names(), IsEmpty());
    EXPECT_THAT(folder.names(), ElementsAre("userPrefs.mel.broken"));
    EXPECT_EQ(folder.read("userPrefs.mel.broken"), text);

    write("optionVar -sv \"a\" \"never closed;\n");
    EXPECT_THAT(load().text, HasSubstr("userPrefs.mel.broken1"));
    EXPECT_THAT(folder.names(), ElementsAre("userPrefs.mel.broken", "userPrefs.mel.broken1"));
}

TEST_F(OptionVarsTest, ABinaryFileIsBroken)
{
    write(std::string("optionVar -iv \"a\" \0\1\2;", 22));
    EXPECT_FALSE(load());
    EXPECT_THAT(folder.names(), ElementsAre("userPrefs.mel.broken"));
}

TEST_F(OptionVarsTest, SavingLeavesNoTemporaryFile)
{
    vars.set("a", 1);
    ASSERT_TRUE(vars.save(folder / "deep/er"));
    EXPECT_TRUE(fs::exists(folder / "deep/er/userPrefs.mel"));
    ASSERT_TRUE(vars.save(folder.path()));
    ASSERT_TRUE(vars.save(folder.path()));
    EXPECT_THAT(folder.names(), ElementsAre("deep", "userPrefs.mel"));
}

TEST_F(OptionVarsTest, WhatCannotBeWrittenLeavesTheOldFile)
{
    // A folder in the place of the file cannot be replaced, whoever asks.
    fs::create_directories(folder / "userPrefs.mel/inside");
    vars.set("a", 1);
    const Outcome outcome = vars.save(folder.path());
    EXPECT_EQ(outcome.text, "cannot replace '" + file() + "': it is not a file");
    EXPECT_TRUE(vars.isChanged());
    EXPECT_THAT(folder.names(), ElementsAre("userPrefs.mel"));
}

TEST_F(OptionVarsTest, AFolderThatCannotBeMadeIsNamed)
{
    folder.write("taken", "a file");
    vars.set("a", 1);
    const Outcome outcome = vars.save(folder / "taken/prefs");
    EXPECT_EQ(outcome.reason, Reason::failed);
    EXPECT_THAT(outcome.text, HasSubstr("cannot make the folder '" + folder.path("taken/prefs")));
}

} // namespace tvxhost::engine
