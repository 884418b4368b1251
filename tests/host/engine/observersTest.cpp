// Observers: being told what happens in a scene.
#include "engine/observers.h"
#include "engine/scene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace tvxhost::engine;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ObserversTest : public testing::Test
{
protected:
    /// A function that writes down its name.
    Observers::Function note(const std::string& name)
    {
        return [this, name](const Event&) { heard.push_back(name); };
    }

    std::vector<std::string> takeHeard() { return std::exchange(heard, {}); }

    Scene scene;
    Observers observers;
    std::vector<std::string> heard;
};

} // namespace

TEST_F(ObserversTest, FunctionsAreCalledInTheOrderOfAdding)
{
    const auto first = observers.add({Happening::idle}, note("first"));
    const auto second = observers.add({Happening::idle, Happening::timeChanged}, note("second"));
    EXPECT_NE(first, second);
    EXPECT_TRUE(observers.want(Happening::idle));
    EXPECT_FALSE(observers.want(Happening::undone));
    observers.tell({Happening::idle});
    EXPECT_THAT(takeHeard(), ElementsAre("first", "second"));
    observers.tell({Happening::timeChanged});
    EXPECT_THAT(takeHeard(), ElementsAre("second"));
    EXPECT_TRUE(observers.remove(second));
    EXPECT_FALSE(observers.remove(second));
    EXPECT_FALSE(observers.want(Happening::timeChanged));
    observers.tell({Happening::timeChanged});
    EXPECT_THAT(takeHeard(), IsEmpty());
}

TEST_F(ObserversTest, AFunctionForANodeHearsOfThatNodeOnly)
{
    Node& a = *scene.createNode("transform", "a").value;
    Node& b = *scene.createNode("transform", "b").value;
    const auto id = observers.add({Happening::nodeRenamed, Happening::parentAdded}, note("a"), &a);
    observers.tell({Happening::nodeRenamed, &b});
    EXPECT_THAT(takeHeard(), IsEmpty());
    observers.tell({Happening::nodeRenamed, &a});
    observers.tell({Happening::parentAdded, &b, &a});
    EXPECT_THAT(takeHeard(), ElementsAre("a", "a"));
    EXPECT_THAT(observers.idsOf(a), ElementsAre(id));
    EXPECT_THAT(observers.idsOf(b), IsEmpty());
    observers.forget(a);
    observers.tell({Happening::nodeRenamed, &a});
    EXPECT_THAT(takeHeard(), IsEmpty());
    EXPECT_FALSE(observers.has(id));
}

TEST_F(ObserversTest, AFunctionMayRemoveItselfAndOthersWhileItIsCalled)
{
    Observers::Id self = 0;
    Observers::Id later = 0;
    self = observers.add({Happening::idle}, [&](const Event&) {
        heard.push_back("self " + std::to_string(observers.currentId() == self));
        observers.remove(self);
        observers.remove(later);
        observers.add({Happening::idle}, note("new"));
    });
    later = observers.add({Happening::idle}, note("later"));
    observers.tell({Happening::idle});
    EXPECT_THAT(takeHeard(), ElementsAre("self 1")) << "those who come are told of the next event";
    observers.tell({Happening::idle});
    EXPECT_THAT(takeHeard(), ElementsAre("new"));
    EXPECT_EQ(0u, observers.currentId());
}

TEST_F(ObserversTest, ACheckIsAllowedUnlessSomebodyForbidsIt)
{
    EXPECT_TRUE(observers.allow(Happening::saveChecked));
    observers.add({Happening::saveChecked},
                  [](const Event& event) { *event.isAllowed = event.text != "/locked.ma"; });
    EXPECT_TRUE(observers.allow(Happening::saveChecked, "/free.ma"));
    EXPECT_FALSE(observers.allow(Happening::saveChecked, "/locked.ma"));
}

TEST_F(ObserversTest, NodesThatWereToComeBackAreDestroyedInTheOrderOfTheirMaking)
{
    std::vector<std::string> names;
    Step own;
    {
        const Journal::Into kept(scene.journal(), &own);
        for (int i = 0; i < 200; ++i) {
            Node& node = *scene.createNode("time", "node" + std::to_string(i)).value;
            names.push_back(node.name());
            scene.observers().add({Happening::nodeDestroyed}, note(node.name()), &node);
            ASSERT_TRUE(scene.deleteNode(node));
        }
    }
    EXPECT_THAT(takeHeard(), IsEmpty());
    scene.newScene();
    EXPECT_EQ(takeHeard(), names);
}

TEST(Happenings, SomeHaveNamesInScripts)
{
    EXPECT_EQ(Happening::selectionChanged, happeningNamed("SelectionChanged"));
    EXPECT_EQ(Happening::timeChanged, happeningNamed("timeChanged"));
    EXPECT_FALSE(happeningNamed("ToolChanged"));
    EXPECT_TRUE(isHappeningName("ToolChanged"));
    EXPECT_FALSE(isHappeningName("selectionchanged"));
    const auto names = happeningNames();
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
    EXPECT_THAT(names, testing::Contains("quitApplication"));
}
