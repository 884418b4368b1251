// optionVar, savePrefs, about, help.
#include "../support/temporaryFolder.h"
#include "CommandFixture.h"

#include <set>

namespace tvxhost::mel {

using testing::ElementsAre;

using PreferenceCommandsTest = CommandFixture;

TEST_F(PreferenceCommandsTest, variablesHaveTheTypeOfTheirLastValue)
{
    run("optionVar -iv \"n\" 3 -fv \"x\" 1.5 -sv \"s\" \"hello\"");
    EXPECT_EQ(run("optionVar -q \"n\""), "3");
    EXPECT_EQ(run("optionVar -q \"x\""), "1.5");
    EXPECT_EQ(run("optionVar -q \"s\""), "hello");
    run("optionVar -sv \"n\" \"three\"");
    EXPECT_EQ(run("optionVar -q \"n\""), "three");
    EXPECT_EQ(run("optionVar -ex \"n\""), "1");
    run("optionVar -rm \"n\"");
    EXPECT_EQ(run("optionVar -ex \"n\""), "0");
    EXPECT_EQ(run("optionVar -q \"n\""), "0");
}

TEST_F(PreferenceCommandsTest, arraysGrowAndShrink)
{
    run("optionVar -iva \"a\" 1 -iva \"a\" 2 -iva \"a\" 3");
    EXPECT_THAT(value("optionVar -q \"a\"").integers(), ElementsAre(1, 2, 3));
    run("optionVar -rfa \"a\" 1");
    EXPECT_THAT(value("optionVar -q \"a\"").integers(), ElementsAre(1, 3));
    EXPECT_EQ(run("optionVar -as \"a\""), "2");
    run("optionVar -ca \"a\"");
    EXPECT_EQ(run("optionVar -as \"a\""), "0");
    EXPECT_EQ(run("optionVar -ex \"a\""), "1");
}

TEST_F(PreferenceCommandsTest, whatIsNoArrayCountsAsOneAndStaysAsItIs)
{
    run("optionVar -sv \"s\" \"hello\" -iv \"n\" 3");
    EXPECT_EQ(run("optionVar -arraySize \"s\""), "1");
    EXPECT_EQ(run("optionVar -arraySize \"n\""), "1");
    EXPECT_EQ(run("optionVar -arraySize \"none\""), "0");
    run("optionVar -clearArray \"s\" -clearArray \"none\" -rfa \"n\" 0");
    EXPECT_EQ(run("optionVar -q \"s\""), "hello");
    EXPECT_EQ(run("optionVar -q \"n\""), "3");
    EXPECT_EQ(run("optionVar -ex \"none\""), "0");
}

TEST_F(PreferenceCommandsTest, variablesGoBeforeOthersAreSet)
{
    run("optionVar -iva \"a\" 1; optionVar -iva \"a\" 2 -remove \"a\" -iva \"a\" 3");
    EXPECT_THAT(value("optionVar -q \"a\"").integers(), ElementsAre(2, 3));
    run("optionVar -version 2");
    EXPECT_THAT(strings("optionVar -list"), ElementsAre("a"));
}

TEST_F(PreferenceCommandsTest, savePrefsWritesTheFolderOfTheSession)
{
    const test::TemporaryFolder folder;
    session.preferencesFolder = folder.path();
    run("optionVar -iv \"n\" 3; savePrefs");
    engine::OptionVars read;
    EXPECT_TRUE(read.load(folder.path()));
    EXPECT_EQ(read.asInt("n"), 3);
}

TEST_F(PreferenceCommandsTest, aboutTellsTheVersion)
{
    EXPECT_EQ(run("about"), "Maya 2016");
    EXPECT_EQ(run("about -v"), "2016");
    EXPECT_EQ(run("about -preferences"), "");
    EXPECT_EQ(run("about -api"), "201602");
    EXPECT_EQ(run("about -batch"), "1");
}

TEST_F(PreferenceCommandsTest, aboutTellsTheSystem)
{
    EXPECT_EQ(run("about -is64"), "1");
    EXPECT_EQ(run("about -windows"), "0");
    EXPECT_EQ(run("about -codeset"), "UTF-8");
    EXPECT_THAT(run("about -operatingSystemVersion"), testing::StartsWith("Linux "));
    EXPECT_THAT(run("about -currentDate"), testing::MatchesRegex("[0-9]+/[0-9]+/[0-9]+"));
}

TEST_F(PreferenceCommandsTest, theFoldersOfTheUserAreBelowThePreferences)
{
    session.preferencesFolder = "/home/someone/maya";
    EXPECT_EQ(run("internalVar -userPrefDir"), "/home/someone/maya/");
    EXPECT_EQ(run("internalVar -userShelfDir"), "/home/someone/maya/shelves/");
    EXPECT_EQ(failure("internalVar"), "internalVar: nothing was asked");
}

TEST_F(PreferenceCommandsTest, everyCommandOfTheSceneHasHelp)
{
    for (const std::string& name : table.names()) {
        const auto spec = table.find(name);
        EXPECT_FALSE(spec->summary.empty()) << name;
        for (const FlagSpec& flag : spec->flags) {
            EXPECT_FALSE(flag.longName.empty()) << name;
            EXPECT_FALSE(flag.shortName.empty()) << name << " -" << flag.longName;
        }
    }
}

TEST_F(PreferenceCommandsTest, noFlagHasTheNameOfAnotherOfItsCommand)
{
    for (const std::string& name : table.names()) {
        std::set<std::string> seen;
        for (const FlagSpec& flag : table.find(name)->flags) {
            EXPECT_TRUE(seen.insert(flag.longName).second) << name << " -" << flag.longName;
            if (flag.shortName != flag.longName) {
                EXPECT_TRUE(seen.insert(flag.shortName).second) << name << " -" << flag.shortName;
            }
        }
    }
}

} // namespace tvxhost::mel
