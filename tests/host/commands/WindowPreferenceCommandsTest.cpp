// windowPref: where the user left the windows, in the session and in the file of preferences.
#include "../support/temporaryFolder.h"
#include "CommandFixture.h"

#include <filesystem>

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::StartsWith;

class WindowPreferenceCommandsTest : public CommandFixture
{
protected:
    WindowPreferenceCommandsTest() { session.preferencesFolder = m_folder.path(); }

    std::filesystem::path file() const { return m_folder / "windowPrefs.mel"; }
    std::string text() const { return m_folder.read("windowPrefs.mel"); }
    Value::Integers integers(const std::string& script) { return value(script).integers(); }

    test::TemporaryFolder m_folder;
};

TEST_F(WindowPreferenceCommandsTest, topComesBeforeLeft)
{
    EXPECT_EQ(run("windowPref -exists w"), "0");
    EXPECT_EQ(run("windowPref -tlc 10 20 -wh 300 200 w"), "w");
    EXPECT_EQ(run("windowPref -exists w"), "1");
    EXPECT_THAT(integers("windowPref -q -tlc w"), ElementsAre(10, 20));
    EXPECT_THAT(integers("windowPref -q -wh w"), ElementsAre(300, 200));
    const std::pair<const char*, const char*> answers[] = {
        {"topEdge", "10"}, {"leftEdge", "20"}, {"width", "300"}, {"height", "200"}, {"maximized", "0"}};
    for (const auto& [question, answer] : answers)
        EXPECT_EQ(run(std::string("windowPref -q -") + question + " w"), answer) << question;
}

TEST_F(WindowPreferenceCommandsTest, aScriptMakesAndEditsIt)
{
    run("if(!`windowPref -exists crowdWindow`) windowPref crowdWindow;\n"
        "windowPref -edit -topLeftCorner 40 30 -widthHeight 640 480 crowdWindow");
    EXPECT_THAT(integers("windowPref -q -tlc crowdWindow"), ElementsAre(40, 30));
    run("windowPref -edit -width 700 -max on crowdWindow");
    EXPECT_THAT(integers("windowPref -q -wh crowdWindow"), ElementsAre(700, 480));
    EXPECT_EQ(run("windowPref -q -max crowdWindow"), "1");
}

TEST_F(WindowPreferenceCommandsTest, whatWasNeverStoredIsNotFound)
{
    for (const char* words : {"-q -topEdge", "-e -topEdge 3", "-r"})
        EXPECT_EQ(failure(std::string("windowPref ") + words + " w"), "windowPref: Object 'w' not found.");
    EXPECT_EQ(run("windowPref -exists w"), "0");
    EXPECT_EQ(failure("windowPref -te 3"), "windowPref needs the name of a window");
}

TEST_F(WindowPreferenceCommandsTest, oneOrAllAreForgotten)
{
    run("windowPref a; windowPref b; windowPref c; windowPref -remove a");
    EXPECT_EQ(run("windowPref -exists a"), "0");
    EXPECT_EQ(run("windowPref -exists b"), "1");
    run("windowPref -removeAll");
    EXPECT_EQ(run("windowPref -exists b"), "0");
    EXPECT_EQ(run("windowPref -exists c"), "0");
}

TEST_F(WindowPreferenceCommandsTest, saveAllWritesThemAtOnce)
{
    run("windowPref -tlc 1 2 -wh 3 4 b; windowPref -te -5 -max on a; windowPref -saveAll ;");
    EXPECT_EQ(text(), "//Maya Preference file\n//\n//\n\n"
                      "windowPref -topLeftCorner -5 0 -widthHeight 0 0 -maximized true a;\n"
                      "windowPref -topLeftCorner 1 2 -widthHeight 3 4 -maximized false b;\n");
    EXPECT_FALSE(session.windows.isChanged());
    run("windowPref -ra; windowPref -loadAll");
    EXPECT_THAT(integers("windowPref -q -tlc b"), ElementsAre(1, 2));
    EXPECT_EQ(run("windowPref -q -max a"), "1");
}

TEST_F(WindowPreferenceCommandsTest, preferencesOfTheSessionHoldThem)
{
    run("windowPref -tlc 1 2 w; optionVar -iv \"n\" 3; savePrefs");
    engine::Scene other;
    SceneSession next(other);
    Interpreter nextInterpreter(table, other.scriptEditor(), &next);
    next.preferencesFolder = m_folder.path();
    EXPECT_TRUE(next.loadPreferences(nextInterpreter));
    EXPECT_EQ(nextInterpreter.execute("windowPref -q -leftEdge w").toInteger(), 2);
    EXPECT_EQ(nextInterpreter.execute("optionVar -q \"n\"").toInteger(), 3);
    EXPECT_FALSE(next.windows.isChanged());
}

TEST_F(WindowPreferenceCommandsTest, onlyWhatHasChangedIsWritten)
{
    EXPECT_TRUE(session.savePreferences(true));
    EXPECT_FALSE(std::filesystem::exists(file()));
    run("windowPref w");
    EXPECT_TRUE(session.savePreferences(true));
    EXPECT_TRUE(std::filesystem::exists(file()));
    EXPECT_FALSE(std::filesystem::exists(m_folder / "userPrefs.mel"));
}

TEST_F(WindowPreferenceCommandsTest, aFileThatIsNotUnderstoodIsSetAside)
{
    m_folder.write("windowPrefs.mel", "windowPref -tlc 1 2 w;\nwindowPref -te (;\n");
    const engine::Outcome loaded = session.loadPreferences(interpreter);
    EXPECT_EQ(loaded.text, "'" + file().string() + "' cannot be understood in line 2; it was set aside as '" +
                               file().string() + ".broken'");
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(WindowPreferenceCommandsTest, withoutAFolderNothingIsWritten)
{
    session.preferencesFolder.clear();
    run("windowPref w; windowPref -saveAll");
    EXPECT_TRUE(session.windows.isChanged());
}

TEST_F(WindowPreferenceCommandsTest, comingBackCanBeTurnedOff)
{
    EXPECT_EQ(run("windowPref -q -enableAll"), "1");
    run("windowPref -enableAll off");
    EXPECT_EQ(run("windowPref -q -enableAll"), "0");
}

} // namespace tvxhost::mel
