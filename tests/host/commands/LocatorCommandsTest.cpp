// spaceLocator.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;

class LocatorCommandsTest : public CommandFixture
{
};

TEST_F(LocatorCommandsTest, aLocatorHasAPositionBelowItsTransform)
{
    EXPECT_THAT(strings("spaceLocator -p 1 2 3"), ElementsAre("locator1"));
    EXPECT_EQ(run("nodeType locatorShape1"), "locator");
    EXPECT_THAT(numbers("getAttr locatorShape1.localPosition"), ElementsAre(1.0, 2.0, 3.0));
    EXPECT_THAT(numbers("getAttr locator1.translate"), ElementsAre(0.0, 0.0, 0.0));
    EXPECT_THAT(strings("ls -sl"), ElementsAre("locator1"));
}

TEST_F(LocatorCommandsTest, positionsAreEditedAndTold)
{
    run("spaceLocator -n \"mark\"; spaceLocator -e -p 4 5 6 mark");
    EXPECT_THAT(numbers("spaceLocator -q -position markShape"), ElementsAre(4.0, 5.0, 6.0));
    EXPECT_EQ(failure("spaceLocator -q -p persp"), "'persp' is not a locator");
}

} // namespace tvxhost::mel
