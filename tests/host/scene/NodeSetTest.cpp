// Which nodes have been met: those from before and those made since, told apart by their serials.
#include "scene/nodeSet.h"

#include "engine/scene.h"

#include <gtest/gtest.h>

#include <vector>

namespace tvxhost::scene {
namespace {

TEST(NodeSet, HoldsWhatWasPutInAndNothingElse)
{
    engine::Scene scene;
    const auto make = [&scene] { return scene.createNode("transform", "node").value; };
    std::vector<engine::Node*> nodes;
    for (int i = 0; i < 100; ++i)
        nodes.push_back(make());
    NodeSet met(nodes.back()->serial());
    for (int i = 0; i < 200; ++i)
        nodes.push_back(make());
    for (std::size_t i = 0; i < nodes.size(); i += 3)
        met.insert(*nodes[i]);
    for (std::size_t i = 0; i < nodes.size(); ++i)
        EXPECT_EQ(met.contains(*nodes[i]), i % 3 == 0) << i;
    EXPECT_FALSE(met.contains(*make()));
}

TEST(NodeSet, ANodeThatTookAnothersPlaceInMemoryIsNotMet)
{
    engine::Scene scene;
    NodeSet met(scene.nodes().back()->serial());
    for (int i = 0; i < 100; ++i) {
        engine::Node* const node = scene.createNode("transform").value;
        ASSERT_FALSE(met.contains(*node));
        met.insert(*node);
        ASSERT_TRUE(scene.deleteNode(*node));
        scene.journal().flush();
    }
}

} // namespace
} // namespace tvxhost::scene
