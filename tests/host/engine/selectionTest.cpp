// Selections: order, uniqueness, names.
#include "fixtures.h"

#include <gmock/gmock.h>

namespace tvxhost::engine {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> namesOf(const SelectionList& list)
{
    std::vector<std::string> names;
    for (const SelectionItem& item : list.items())
        names.push_back(item.name());
    return names;
}

} // namespace

class SelectionTest : public SceneTest
{
protected:
    SelectionTest()
    {
        for (const char* name : {"a", "b", "c"})
            makeTransform(name);
    }
    SelectionItem item(const std::string& name) { return scene.findItem(name).value; }

    SelectionList list;
};

TEST_F(SelectionTest, ItemsKeepTheOrderInWhichTheyWereAdded)
{
    for (const char* name : {"c", "a", "b"})
        list.add(item(name));
    EXPECT_THAT(namesOf(list), ElementsAre("c", "a", "b"));
}

TEST_F(SelectionTest, AnItemIsAddedOnceAndStaysWhereItIs)
{
    for (const char* name : {"c", "a", "c", "a.tx", "a.translateX"})
        list.add(item(name));
    EXPECT_THAT(namesOf(list), ElementsAre("c", "a", "a.translateX"));
    EXPECT_TRUE(list.contains(item("a")));
    EXPECT_FALSE(list.contains(item("a.ty")));
}

TEST_F(SelectionTest, ItemsAreTakenOutWithoutMovingTheRest)
{
    for (const char* name : {"a", "b", "c"})
        list.add(item(name));
    list.remove(item("b"));
    EXPECT_THAT(namesOf(list), ElementsAre("a", "c"));
    list.removeAt(0);
    EXPECT_THAT(namesOf(list), ElementsAre("c"));
    list.remove(item("b"));
    list.add(item("a"));
    EXPECT_THAT(namesOf(list), ElementsAre("c", "a"));
    list.clear();
    EXPECT_TRUE(list.empty());
    list.add(item("a"));
    EXPECT_THAT(namesOf(list), ElementsAre("a"));
}

TEST_F(SelectionTest, EveryInstanceIsAnItemOfItsOwn)
{
    Node& shape = make("locator", "s", scene.findNode("a").value->asDag());
    ASSERT_TRUE(scene.addParent(*shape.asDag(), *scene.findNode("b").value->asDag()));
    list.add(item("a|s"));
    list.add(item("b|s"));
    EXPECT_THAT(namesOf(list), ElementsAre("a|s", "b|s"));
    EXPECT_EQ(item("b|s").path.instanceNumber(), 1);
}

TEST_F(SelectionTest, FullNamesShowThePath)
{
    makeTransform("leaf", scene.findNode("a").value->asDag());
    EXPECT_EQ(item("leaf").name(true), "|a|leaf");
    EXPECT_EQ(item("leaf.tx").name(true), "|a|leaf.translateX");
    EXPECT_EQ(item("time1").name(true), "time1");
}

TEST_F(SelectionTest, ADeletedNodeLeavesTheSelection)
{
    for (const char* name : {"a", "b", "b.tx"})
        list.add(item(name));
    scene.setSelection(list);
    EXPECT_TRUE(scene.deleteNode(*scene.findNode("b").value));
    EXPECT_THAT(namesOf(scene.selection()), ElementsAre("a"));
}

} // namespace tvxhost::engine
