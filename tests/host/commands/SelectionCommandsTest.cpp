// hilite, and what of the display `ls` can ask for.
#include "CommandFixture.h"

#include "api/support/displayStatus.h"

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::IsEmpty;

class SelectionCommandsTest : public CommandFixture
{
protected:
    SelectionCommandsTest()
    {
        for (const char* name : {"a", "b", "c"})
            run(std::string("createNode transform -n ") + name + "; createNode locator -n " + name +
                "Shape -p " + name);
        run("select -cl");
    }

    M3dView::DisplayStatus status(const std::string& path)
    {
        return api::DisplayStatusRule(scene).statusOf(scene.findItem(path).value.path);
    }
};

TEST_F(SelectionCommandsTest, hiliteAddsAndReplaces)
{
    run("hilite a; hilite b");
    EXPECT_THAT(strings("ls -hilite"), ElementsAre("a", "b"));
    run("hilite -replace c");
    EXPECT_THAT(strings("ls -hl"), ElementsAre("c"));
    run("hilite -r");
    EXPECT_THAT(strings("ls -hl"), IsEmpty());
}

TEST_F(SelectionCommandsTest, hiliteTogglesAndTakesAway)
{
    run("hilite a b; hilite -toggle b c");
    EXPECT_THAT(strings("ls -hl"), ElementsAre("a", "c"));
    run("hilite -unHilite a");
    EXPECT_THAT(strings("ls -hl"), ElementsAre("c"));
}

TEST_F(SelectionCommandsTest, hiliteTakesTheSelectionWithoutNames)
{
    run("select -r b a; hilite");
    EXPECT_THAT(strings("ls -hl"), ElementsAre("b", "a"));
}

TEST_F(SelectionCommandsTest, hiliteLeavesOutWhatIsNoDagObject)
{
    run("hilite time1 a.tx a");
    EXPECT_THAT(strings("ls -hl"), ElementsAre("a"));
}

TEST_F(SelectionCommandsTest, aDeletedObjectIsHilitedNoMore)
{
    run("hilite a b; delete a");
    EXPECT_THAT(strings("ls -hl"), ElementsAre("b"));
}

TEST_F(SelectionCommandsTest, hiliteAndTemplateDecideHowAShapeIsShown)
{
    EXPECT_EQ(status("aShape"), M3dView::kDormant);
    run("hilite a");
    EXPECT_EQ(status("aShape"), M3dView::kHilite);
    run("setAttr b.template 1");
    EXPECT_EQ(status("bShape"), M3dView::kTemplate);
    run("setAttr c.overrideEnabled 1; setAttr c.overrideDisplayType 1");
    EXPECT_EQ(status("cShape"), M3dView::kTemplate);
    run("select -r a b");
    EXPECT_EQ(status("aShape"), M3dView::kActive);
    EXPECT_EQ(status("bShape"), M3dView::kActiveTemplate);
}

TEST_F(SelectionCommandsTest, lsTellsTemplatedVisibleAndHiddenOnes)
{
    run("setAttr a.template 1; setAttr b.v 0");
    EXPECT_THAT(strings("ls -templated -type locator"), ElementsAre("aShape"));
    EXPECT_THAT(strings("ls -visible -type locator"), ElementsAre("aShape", "cShape"));
    EXPECT_THAT(strings("ls -invisible -type locator"), ElementsAre("bShape"));
}

} // namespace tvxhost::mel
