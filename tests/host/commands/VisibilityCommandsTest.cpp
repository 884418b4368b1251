// hide, showHidden: which objects are seen.
#include "undoFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::IsEmpty;

class VisibilityCommandsTest : public UndoFixture
{
protected:
    VisibilityCommandsTest()
    {
        run("createNode transform -n \"head\"; createNode transform -n \"middle\" -p head;"
            "createNode locator -n \"end\" -p middle; createNode transform -n \"other\"; select -cl");
    }
    /// Of the four objects those that say that they are visible.
    Value::Strings visible()
    {
        return strings("string $seen[]; clear $seen; for ($n in {\"head\", \"middle\", \"end\", \"other\"}) "
                       "if (`getAttr ($n + \".v\")`) $seen[size($seen)] = $n; $seen");
    }
};

TEST_F(VisibilityCommandsTest, whatIsNamedOrSelectedIsHidden)
{
    EXPECT_EQ(run("hide middle end"), "");
    EXPECT_THAT(visible(), ElementsAre("head", "other"));
    run("select other; hide -clearSelection");
    EXPECT_THAT(visible(), ElementsAre("head"));
    EXPECT_THAT(strings("ls -sl"), IsEmpty());
    EXPECT_THAT(strings("hide -returnHidden head middle"), ElementsAre("head"));
    EXPECT_EQ(failure("hide"), "Nothing is selected to hide.");
    EXPECT_EQ(failure("hide -invertComponents head"),
              "Flag '-invertComponents' of hide is refused: components cannot be hidden here");
}

TEST_F(VisibilityCommandsTest, theStateIsToldWithoutAChange)
{
    EXPECT_EQ(run("hide -testVisibility end"), "2");
    run("hide head");
    EXPECT_EQ(run("hide -tv end"), "1") << "what is above hides it";
    EXPECT_EQ(run("hide -tv end other"), "3");
    EXPECT_THAT(visible(), ElementsAre("middle", "end", "other"));
}

TEST_F(VisibilityCommandsTest, hiddenObjectsAreShownWithWhatIsAboveOrBelow)
{
    run("hide head middle end; showHidden middle");
    EXPECT_THAT(visible(), ElementsAre("middle", "other"));
    run("showHidden -above middle");
    EXPECT_THAT(visible(), ElementsAre("head", "middle", "other"));
    run("hide head middle; showHidden -below head");
    EXPECT_THAT(visible(), ElementsAre("head", "middle", "end", "other"));
}

TEST_F(VisibilityCommandsTest, allObjectsAreHiddenAndShown)
{
    run("hide -all");
    EXPECT_THAT(visible(), ElementsAre("middle", "end"));
    run("showHidden -all");
    EXPECT_THAT(visible(), ElementsAre("head", "middle", "end", "other"));
}

TEST_F(VisibilityCommandsTest, whatWasHiddenLastIsShown)
{
    run("hide other; hide head end; showHidden -lastHidden");
    EXPECT_THAT(visible(), ElementsAre("head", "middle", "end"));
    run("hide head; delete head; showHidden -lh");
    EXPECT_EQ(run("getAttr other.v"), "0");
}

TEST_F(VisibilityCommandsTest, bothAreUndone)
{
    expectUndoable("hide head end");
    expectUndoable("showHidden -below head");
}

} // namespace tvxhost::mel
