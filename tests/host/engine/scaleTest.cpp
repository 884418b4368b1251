// Scenes of a hundred thousand nodes: what would take minutes with a look-up that goes through all of them
// ends well within the limit of a test.
#include "fixtures.h"

namespace tvxhost::engine {

namespace {

constexpr int kMany = 100000;

} // namespace

class ScaleTest : public SceneTest
{
};

TEST_F(ScaleTest, UnnamedAndTakenNamesStayFast)
{
    for (int i = 0; i < kMany; ++i)
        make("lambert", "paint");
    EXPECT_EQ(scene.findNode("paint99999").value->name(), "paint99999");
    for (int i = 0; i < kMany; ++i)
        make("lambert", "paint5");
    EXPECT_TRUE(scene.findNode("paint199998"));
}

TEST_F(ScaleTest, ChildrenOfOneNameUnderManyParents)
{
    for (int i = 0; i < kMany; ++i)
        makeTransform("body", &makeTransform("figure"));
    const Node& last = *scene.findNode("figure99999|body").value;
    for (int i = 0; i < kMany; ++i)
        ASSERT_EQ(scene.shortestName(last), "figure99999|body");
}

TEST_F(ScaleTest, PathsAreCountedHoweverDeepTheyAre)
{
    DagNode& top = makeTransform("top");
    DagNode* end = &top;
    for (int i = 0; i < kMany; ++i)
        end = &makeTransform("level", end);
    EXPECT_EQ(DagPath::countTo(*end), 1u);
    ASSERT_TRUE(scene.addParent(top, makeTransform("other")));
    EXPECT_EQ(DagPath::countTo(*end), 2u);
}

TEST_F(ScaleTest, ManyMembersOfOneSetComeAndGo)
{
    make("objectSet", "crowd");
    const Plug members = plug("crowd.dnsm");
    std::vector<Node*> nodes;
    for (int i = 0; i < kMany; ++i) {
        Node& node = make("lambert");
        nodes.push_back(&node);
        ASSERT_TRUE(scene.connect(Plug(node, *node.findAttribute("msg")), scene.nextAvailable(members)));
    }
    EXPECT_EQ(existingElements(members).size(), static_cast<std::size_t>(kMany));
    for (Node* node : nodes)
        ASSERT_TRUE(scene.deleteNode(*node));
    EXPECT_TRUE(existingElements(members).empty());
}

TEST_F(ScaleTest, OneSourceFeedsManyAndIsTakenFromAll)
{
    Node& driver = make("transform", "driver");
    const Plug source(driver, *driver.findAttribute("tx"));
    std::vector<Plug> fed;
    for (int i = 0; i < kMany; ++i) {
        DagNode& node = makeTransform("figure");
        fed.emplace_back(node, *node.findAttribute("ty"));
        ASSERT_TRUE(scene.connect(source, fed.back()));
    }
    for (const Plug& destination : fed)
        ASSERT_TRUE(scene.disconnect(source, destination));
    EXPECT_FALSE(isConnected(source));
}

TEST_F(ScaleTest, ManyItemsAreSelectedAndLargeScenesEmptied)
{
    SelectionList list;
    for (int i = 0; i < kMany; ++i)
        list.add(scene.findItem(makeTransform("figure").name()).value);
    scene.setSelection(list);
    EXPECT_EQ(scene.selection().items().size(), static_cast<std::size_t>(kMany));
    list.clear();
    scene.newScene();
    EXPECT_FALSE(scene.findNode("figure"));
    EXPECT_TRUE(scene.selection().empty());
}

TEST_F(ScaleTest, AMillionPointsAreSetAndRead)
{
    constexpr int kPoints = 1000000;
    make("mesh", "bigShape");
    std::vector<double> values(3 * kPoints, 1.5);
    ASSERT_TRUE(writeElements(plug("bigShape.vt"), 0, values.data(), values.size()));
    EXPECT_EQ(existingElements(plug("bigShape.vt")).size(), static_cast<std::size_t>(kPoints));
    EXPECT_EQ(number("bigShape.vt[999999].vy"), 1.5);
}

} // namespace tvxhost::engine
