// The recorded user interface: made, asked about, changed and deleted by name; refused in batch mode.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;

class InterfaceCommandsTest : public CommandFixture
{
protected:
    InterfaceCommandsTest() : CommandFixture(false) {}
};

TEST_F(InterfaceCommandsTest, menusGoIntoTheMainWindow)
{
    EXPECT_EQ(run("global string $gMainWindow; menu -l \"Crowd Render\" -p $gMainWindow \"crowdMenu\""),
              "MayaWindow|crowdMenu");
    EXPECT_EQ(run("menuItem -l \"Proxy\" -c \"createNode transform\" \"proxyItem\""),
              "MayaWindow|crowdMenu|proxyItem");
    EXPECT_EQ(run("menu -q -l crowdMenu"), "Crowd Render");
    EXPECT_THAT(strings("menu -q -ia crowdMenu"), ElementsAre("proxyItem"));
    EXPECT_EQ(run("menuItem -q -c proxyItem"), "createNode transform");
    EXPECT_EQ(run("menu -ex crowdMenu"), "1");
    run("deleteUI -m crowdMenu");
    EXPECT_EQ(run("menu -ex crowdMenu"), "0");
    EXPECT_EQ(run("menuItem -ex proxyItem"), "0");
}

TEST_F(InterfaceCommandsTest, subMenusHoldItemsUntilTheyAreLeft)
{
    run("global string $gMainWindow; menu -p $gMainWindow \"m\"; menuItem -sm 1 \"sub\"; menuItem \"inner\";"
        "setParent -menu ..; menuItem \"outer\"");
    EXPECT_THAT(strings("menu -q -ia m"), ElementsAre("sub", "outer"));
    EXPECT_THAT(strings("menuItem -q -ia sub"), ElementsAre("inner"));
}

TEST_F(InterfaceCommandsTest, windowsHoldLayoutsAndControls)
{
    run("window -t \"Prefs\" -wh 300 200 \"prefs\"; columnLayout; button -l \"OK\" \"ok\"; showWindow prefs");
    EXPECT_EQ(run("window -q -t prefs"), "Prefs");
    EXPECT_THAT(value("window -q -wh prefs").integers(), ElementsAre(300, 200));
    EXPECT_EQ(run("button -q -l ok"), "OK");
    run("window -e -t \"Preferences\" prefs");
    EXPECT_EQ(run("window -q -t prefs"), "Preferences");
    EXPECT_TRUE(session.interface().find("prefs")->isShown);
    run("deleteUI -window prefs");
    EXPECT_EQ(run("button -ex ok"), "0");
}

TEST_F(InterfaceCommandsTest, namesAreUniqueAndMissingOnesAreNamed)
{
    run("window \"w\"");
    EXPECT_EQ(failure("window \"w\""), "window: Object's name 'w' is not unique.");
    EXPECT_EQ(failure("deleteUI nobody"), "Object 'nobody' not found.");
    EXPECT_EQ(failure("deleteUI MayaWindow"), "deleteUI: the main window cannot be deleted");
}

class BatchInterfaceTest : public CommandFixture
{
};

TEST_F(BatchInterfaceTest, nothingIsMadeButQuestionsAreAnswered)
{
    EXPECT_EQ(run("window -ex \"w\""), "0");
    EXPECT_EQ(failure("window \"w\""), "'window' is not available in batch mode: there is no user interface");
    EXPECT_EQ(run("about -batch"), "1");
    EXPECT_EQ(run("global string $gMainWindow; $gMainWindow"), "");
}

} // namespace tvxhost::mel
