// What elements of the user interface hold besides properties: lists, choices, forms, tabs, groups.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::IsEmpty;

class InterfacePartsTest : public CommandFixture
{
protected:
    InterfacePartsTest() : CommandFixture(false) { run("window \"w\"; columnLayout \"column\""); }
};

TEST_F(InterfacePartsTest, linesAreAddedSelectedAndTakenAway)
{
    run("textScrollList -append \"one\" -append \"two\" -append \"three\" -selectItem \"two\" \"list\"");
    EXPECT_THAT(strings("textScrollList -q -allItems list"), ElementsAre("one", "two", "three"));
    EXPECT_THAT(strings("textScrollList -q -selectItem list"), ElementsAre("two"));
    EXPECT_THAT(value("textScrollList -q -sii list").integers(), ElementsAre(2));
    run("textScrollList -e -removeItem \"two\" -appendPosition 1 \"zero\" list");
    EXPECT_THAT(strings("textScrollList -q -ai list"), ElementsAre("zero", "one", "three"));
    EXPECT_EQ(run("textScrollList -q -numberOfSelectedItems list"), "0");
    run("textScrollList -e -sii 3 list; textScrollList -e -deselectAll list");
    EXPECT_THAT(strings("textScrollList -q -si list"), IsEmpty());
    EXPECT_EQ(failure("textScrollList -e -si \"four\" list"), "textScrollList: there is no item 'four'");
    EXPECT_EQ(failure("textScrollList -e -sii 4 list"), "textScrollList: there is no item number 4");
}

TEST_F(InterfacePartsTest, severalLinesAreSelectedWhereThatIsAllowed)
{
    run("textScrollList -a \"one\" -a \"two\" -si \"one\" -si \"two\" \"single\";"
        "textScrollList -ams true -a \"one\" -a \"two\" -si \"one\" -si \"two\" \"several\"");
    EXPECT_THAT(strings("textScrollList -q -si single"), ElementsAre("two"));
    EXPECT_THAT(strings("textScrollList -q -si several"), ElementsAre("one", "two"));
}

TEST_F(InterfacePartsTest, anOptionMenuChoosesAnItem)
{
    run("optionMenu -label \"Colour\" \"choice\"; menuItem -label \"Red\" \"r\"; menuItem -label \"Blue\" "
        "\"b\"");
    EXPECT_EQ(run("optionMenu -q -value choice"), "Red");
    run("optionMenu -e -value \"Blue\" choice");
    EXPECT_EQ(run("optionMenu -q -select choice"), "2");
    run("optionMenu -e -select 1 choice");
    EXPECT_EQ(run("optionMenu -q -v choice"), "Red");
    EXPECT_THAT(strings("optionMenu -q -itemListLong choice"),
                ElementsAre("w|column|choice|r", "w|column|choice|b"));
    EXPECT_EQ(run("optionMenu -q -numberOfItems choice"), "2");
    EXPECT_EQ(failure("optionMenu -e -value \"Green\" choice"), "optionMenu: there is no item 'Green'");
}

TEST_F(InterfacePartsTest, edgesHangOnAFormAndOnEachOther)
{
    run("formLayout -numberOfDivisions 50 \"form\"; button \"ok\"; button \"no\";"
        "formLayout -e -attachForm ok left 5 -attachPosition ok right 2 25 -attachControl no left 3 ok form");
    const auto& attachments = session.interface().find("form")->attachments;
    ASSERT_EQ(attachments.size(), 3u);
    EXPECT_EQ(attachments[0].flag, "attachForm");
    EXPECT_EQ(attachments[0].edge, "left");
    EXPECT_EQ(attachments[0].offset, 5);
    EXPECT_EQ(attachments[1].position, 25);
    EXPECT_EQ(attachments[2].other, "ok");
    run("formLayout -e -attachNone ok left form");
    EXPECT_EQ(session.interface().find("form")->attachments.size(), 2u);
    EXPECT_EQ(failure("formLayout -e -attachForm ok middle 5 form"),
              "formLayout: 'middle' is no edge: top, left, bottom or right");
    EXPECT_EQ(failure("formLayout -e -attachForm nobody left 5 form"),
              "formLayout: 'nobody' is not in 'form'");
}

TEST_F(InterfacePartsTest, tabsHaveLabelsAndOneIsInFront)
{
    run("tabLayout \"tabs\"; columnLayout \"first\"; setParent tabs; columnLayout \"second\";"
        "tabLayout -e -tabLabel second \"More\" -selectTab second tabs");
    EXPECT_THAT(strings("tabLayout -q -tabLabel tabs"), ElementsAre("first", "More"));
    EXPECT_EQ(run("tabLayout -q -selectTabIndex tabs"), "2");
    run("tabLayout -e -selectTabIndex 1 tabs");
    EXPECT_EQ(run("tabLayout -q -selectTab tabs"), "first");
}

TEST_F(InterfacePartsTest, radioButtonsBelongToTheirCollection)
{
    run("radioCollection \"group\"; radioButton \"yes\"; radioButton \"no\"; radioCollection -e -select no "
        "group");
    EXPECT_THAT(strings("radioCollection -q -collectionItemArray group"), ElementsAre("yes", "no"));
    EXPECT_EQ(run("radioCollection -q -select group"), "no");
}

TEST_F(InterfacePartsTest, aProgressBarGoesOnUpToItsEnd)
{
    run("progressBar -maxValue 10 \"bar\"; progressBar -e -step 4 bar; progressBar -e -step 4 bar");
    EXPECT_EQ(run("progressBar -q -progress bar"), "8");
    run("progressBar -e -step 4 bar");
    EXPECT_EQ(run("progressBar -q -progress bar"), "10");
}

TEST_F(InterfacePartsTest, elementsHaveTheirDefaultsUntilTheyAreSet)
{
    run("intSliderGrp -label \"Count\" -field true -min 1 -max 9 -value 3 \"count\"; floatField \"amount\"");
    EXPECT_EQ(run("intSliderGrp -q -value count"), "3");
    EXPECT_EQ(run("floatField -q -precision amount"), "3");
    EXPECT_EQ(run("floatField -q -enable amount"), "1");
    run("control -e -enable false -backgroundColor 1 0.5 0 amount");
    EXPECT_EQ(run("floatField -q -en amount"), "0");
    EXPECT_THAT(numbers("control -q -bgc amount"), ElementsAre(1.0, 0.5, 0.0));
}

TEST_F(InterfacePartsTest, questionsAreAskedOfTheRightKind)
{
    run("button \"b\"");
    EXPECT_EQ(run("button -exists b"), "1");
    EXPECT_EQ(run("control -exists b"), "1");
    EXPECT_EQ(run("layout -exists b"), "0");
    EXPECT_EQ(run("layout -exists column"), "1");
    EXPECT_EQ(run("window -exists b"), "0");
    EXPECT_THAT(strings("layout -q -childArray column"), ElementsAre("b"));
    EXPECT_EQ(run("control -q -parent b"), "w|column");
    EXPECT_EQ(failure("window -q -title b"), "Object 'b' is no window.");
    EXPECT_EQ(failure("control \"x\""), "'control' makes nothing; it edits and tells what is there");
}

TEST_F(InterfacePartsTest, windowsAreShownAndHidden)
{
    EXPECT_EQ(run("window -q -visible w"), "0");
    run("showWindow w");
    EXPECT_EQ(run("window -q -visible w"), "1");
    EXPECT_EQ(run("control -q -isObscured column"), "0");
    run("window -e -visible false w");
    EXPECT_EQ(run("control -q -io column"), "1");
}

TEST_F(InterfacePartsTest, theTreeIsListedByKind)
{
    run("button \"b\"; setParent w; menu \"m\"; menuItem \"i\"");
    EXPECT_THAT(strings("lsUI -windows"), ElementsAre("MayaWindow", "w"));
    EXPECT_THAT(strings("lsUI -long -type button -type menuItem"), ElementsAre("w|column|b", "w|m|i"));
    EXPECT_THAT(strings("lsUI -controls -menus"), ElementsAre("b", "m"));
    EXPECT_EQ(run("lsUI -controlLayouts -numWidgets"), "1");
    EXPECT_EQ(failure("deleteUI -window b"), "Object 'b' is not a window.");
}

} // namespace tvxhost::mel
