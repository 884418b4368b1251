// shadingNode.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::Contains;
using testing::ElementsAre;

class ShadingCommandsTest : public CommandFixture
{
};

TEST_F(ShadingCommandsTest, nodesJoinTheListOfTheirClass)
{
    EXPECT_EQ(run("shadingNode -asShader blinn"), "blinn1");
    EXPECT_EQ(run("shadingNode -asTexture -n \"board\" checker"), "board");
    EXPECT_EQ(run("shadingNode -asUtility multiplyDivide"), "multiplyDivide1");
    EXPECT_THAT(strings("listConnections defaultShaderList1.shaders"), Contains("blinn1"));
    EXPECT_THAT(strings("listConnections defaultTextureList1.textures"), ElementsAre("board"));
    EXPECT_THAT(strings("listConnections defaultRenderUtilityList1.utilities"),
                ElementsAre("multiplyDivide1"));
    EXPECT_THAT(strings("ls -sl"), ElementsAre("multiplyDivide1"));
}

TEST_F(ShadingCommandsTest, aLightIsToldByItsTransform)
{
    EXPECT_EQ(run("shadingNode -asLight pointLight"), "pointLight1");
    EXPECT_EQ(run("nodeType pointLight1"), "transform");
    EXPECT_THAT(strings("listConnections -shapes true defaultLightList1.lights"),
                ElementsAre("pointLightShape1"));
}

TEST_F(ShadingCommandsTest, sharedNodesAreMadeOnce)
{
    EXPECT_EQ(run("shadingNode -asUtility -shared -n \"one\" reverse"), "one");
    EXPECT_EQ(run("shadingNode -asUtility -shared -n \"one\" reverse"), "");
    EXPECT_THAT(strings("ls -type reverse"), ElementsAre("one"));
}

TEST_F(ShadingCommandsTest, exactlyOneClassIsSaid)
{
    const char* const text = "shadingNode needs exactly one of the flags that say what the node is used as";
    EXPECT_EQ(failure("shadingNode blinn"), text);
    EXPECT_EQ(failure("shadingNode -asShader -asTexture blinn"), text);
    EXPECT_EQ(failure("shadingNode -asShader nothing"), "Unknown object type: nothing");
}

} // namespace tvxhost::mel
