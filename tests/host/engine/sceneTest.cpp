// A scene from the start: default nodes, nodes made, named and deleted, namespaces.
#include "fixtures.h"

namespace tvxhost::engine {

TEST_F(SceneTest, BeginsWithTheDefaultNodesAndCameras)
{
    for (const char* name : {"time1", "initialShadingGroup", "lambert1", "persp", "perspShape", "sideShape"})
        EXPECT_TRUE(scene.findNode(name)) << name;
    EXPECT_FALSE(scene.isModified);
    EXPECT_EQ(sourceOf(plug("initialShadingGroup.ss")).name(), "lambert1.outColor");
}

} // namespace tvxhost::engine
