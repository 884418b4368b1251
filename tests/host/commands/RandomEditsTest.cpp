// A thousand random edits of all kinds, taken back one by one and done again one by one.
#include "undoFixture.h"

#include <functional>
#include <random>

namespace tvxhost::mel {

namespace {

/// Makes up commands that edit what there is. The same seed gives the same commands.
class EditMaker
{
public:
    EditMaker(engine::Scene& scene, unsigned seed)
        : m_scene(scene), m_enough(scene.nodeCount() + 60), m_random(seed)
    {
    }

    std::string next()
    {
        // There is to be enough to edit, and not so much that looking at all of it takes long.
        if (m_scene.nodeCount() > m_enough)
            return (below(4) == 0 ? "lockNode -l off " : "delete ") + node();
        const auto& kinds = EditMaker::kinds();
        return kinds[below(kinds.size())](*this);
    }

private:
    using Kind = std::function<std::string(EditMaker&)>;

    std::size_t below(std::size_t count)
    {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(m_random);
    }
    std::string number()
    {
        return std::to_string(static_cast<int>(below(200)) - 100) + "." + std::to_string(below(10));
    }
    std::string three() { return number() + " " + number() + " " + number(); }
    template <std::size_t kSize>
    std::string oneOf(const char* const (&words)[kSize])
    {
        return words[below(kSize)];
    }
    std::string word()
    {
        return oneOf({"ant", "bee", "cat", "dog", "elk", "fox", "rig:gnu", "rig:arm:hen"}) +
               (below(3) == 0 ? std::to_string(below(5)) : std::string());
    }
    std::string channel() { return oneOf({"tx", "ty", "tz", "rx", "ry", "rz", "sx", "sy", "sz", "v"}); }

    /// A node of a type (empty: of any), of those that are not of every scene.
    std::string node(const std::string& type = {})
    {
        std::vector<engine::Node*> all;
        for (engine::Node* each : m_scene.nodes())
            if ((type.empty() || each->type().isA(type)) && !each->isDefaultNode && !each->isShared &&
                !each->type().isA("camera") && !hasCamera(*each))
                all.push_back(each);
        return all.empty() ? "none" : m_scene.shortestName(*all[below(all.size())]);
    }
    static bool hasCamera(engine::Node& each)
    {
        const engine::DagNode* dag = each.asDag();
        return dag && std::any_of(dag->children().begin(), dag->children().end(),
                                  [](const engine::DagNode* child) { return child->type().isA("camera"); });
    }
    std::string transform() { return node("transform"); }

    static const std::vector<Kind>& kinds()
    {
        using M = EditMaker&;
        static const std::vector<Kind> all = {
            [](M m) { return "createNode transform -n \"" + m.word() + "\""; },
            [](M m) { return "createNode transform -n \"" + m.word() + "\" -p " + m.transform(); },
            [](M m) {
                return "createNode " + m.oneOf({"lambert", "multiplyDivide", "file", "locator", "mesh"});
            },
            [](M m) { return "createNode network -n \"" + m.word() + "\""; },
            [](M m) {
                return m.oneOf(
                    {"polyCube", "polySphere -sx 4 -sy 4", "polyPlane -sx 2 -sy 2", "spaceLocator"});
            },
            [](M m) { return "delete " + m.transform(); },
            [](M m) { return "delete " + m.node(); },
            [](M m) { return "rename " + m.node() + " \"" + m.word() + "\""; },
            [](M m) { return "parent " + m.transform() + " " + m.transform(); },
            [](M m) { return "parent -w " + m.transform(); },
            [](M m) { return "parent -r " + m.transform() + " " + m.transform(); },
            [](M m) { return "group " + m.transform(); },
            [](M m) { return "instance " + m.transform(); },
            [](M m) { return "duplicate " + m.transform(); },
            [](M m) { return "setAttr " + m.transform() + "." + m.channel() + " " + m.number(); },
            [](M m) { return "setAttr " + m.transform() + ".t " + m.three(); },
            [](M m) {
                return "setAttr -l " + m.oneOf({"on", "off"}) + " " + m.transform() + "." + m.channel();
            },
            [](M m) {
                return "setAttr -k " + m.oneOf({"on", "off"}) + " " + m.transform() + "." + m.channel();
            },
            [](M m) {
                return "setAttr -type \"string\" " + m.node("file") + ".ftn \"" + m.word() + ".png\"";
            },
            [](M m) {
                return "setAttr " + m.node("mesh") + ".pt[" + std::to_string(m.below(8)) + "] " + m.three();
            },
            [](M m) {
                return "addAttr -at double -k 1 -ln extra" + std::to_string(m.below(3)) + " " + m.node();
            },
            [](M m) {
                return "addAttr -at double -m -ln list" + std::to_string(m.below(2)) + " " + m.node();
            },
            [](M m) {
                return "setAttr " + m.node() + ".extra" + std::to_string(m.below(3)) + " " + m.number();
            },
            [](M m) {
                return "setAttr " + m.node() + ".list" + std::to_string(m.below(2)) + "[" +
                       std::to_string(m.below(9)) + "] " + m.number();
            },
            [](M m) { return "deleteAttr -at extra" + std::to_string(m.below(3)) + " " + m.node(); },
            [](M m) {
                return "aliasAttr " + m.oneOf({"near", "far"}) + " " + m.transform() + "." + m.channel();
            },
            [](M m) {
                return "connectAttr " + m.oneOf({"", "-f "}) + m.transform() + "." + m.channel() + " " +
                       m.transform() + "." + m.channel();
            },
            [](M m) {
                return "connectAttr -f " + m.transform() + ".t " + m.transform() + "." +
                       m.oneOf({"t", "s", "r"});
            },
            [](M m) {
                return "{ string $to[] = `listConnections -s off -p on -c on " + m.transform() +
                       "`; if (size($to) > 1) disconnectAttr $to[0] $to[1]; }";
            },
            [](M m) { return "sets -n \"" + m.word() + "\" " + m.transform() + " " + m.transform(); },
            [](M m) { return "sets -add " + m.node("objectSet") + " " + m.transform(); },
            [](M m) { return "sets -rm " + m.node("objectSet") + " " + m.transform(); },
            [](M m) {
                return "move " + m.oneOf({"-r ", ""}) + m.three() + " " + m.transform();
            },
            [](M m) { return "rotate " + m.three() + " " + m.transform(); },
            [](M m) { return "scale " + m.three() + " " + m.transform(); },
            [](M m) { return "xform -ws -t " + m.three() + " " + m.transform(); },
            [](M m) {
                return "setKeyframe -at tx -t " + std::to_string(m.below(20)) + " -v " + m.number() + " " +
                       m.transform();
            },
            [](M m) { return "currentTime " + std::to_string(m.below(50)); },
            [](M m) {
                return "select -" + m.oneOf({"r", "add", "d", "tgl"}) + " " + m.node();
            },
            [](M m) {
                return "lockNode -l " + m.oneOf({"on", "off", "off"}) + " " + m.node();
            },
            [](M m) {
                return "namespace -set \"" + m.oneOf({":", ":rig", ":rig:arm"}) + "\"";
            },
            [](M m) { return "fileInfo \"" + m.word() + "\" \"" + m.number() + "\""; },
            [](M m) { return "playbackOptions -max " + std::to_string(10 + m.below(90)); },
        };
        return all;
    }

    engine::Scene& m_scene;
    std::size_t m_enough;
    std::mt19937 m_random;
};

class RandomEditsTest : public UndoFixture, public testing::WithParamInterface<unsigned>
{
protected:
    /// After how many steps the whole scene is looked at.
    static constexpr std::size_t kLooks = 10;

    std::size_t steps() { return scene.journal().undoable().size(); }

    /// Runs random commands, of which some are refused, until so many have left a step each; gives these
    /// commands, and the scene's text before the first and after every kLooks-th.
    void edit(std::size_t count)
    {
        EditMaker maker(scene, GetParam());
        texts.push_back(text());
        for (std::size_t tries = 0; commands.size() < count; ++tries) {
            ASSERT_LT(tries, 20 * count) << commands.back();
            const std::string command = maker.next();
            const std::size_t before = steps();
            interpreter.run(command);
            if (steps() == before)
                continue;
            commands.push_back(command);
            if (commands.size() % kLooks == 0)
                texts.push_back(text());
        }
    }

    std::vector<std::string> commands;
    std::vector<std::string> texts;
};

} // namespace

TEST_P(RandomEditsTest, areTakenBackStepByStepAndDoneAgain)
{
    constexpr std::size_t kEdits = 1000;
    const std::string before = state();
    edit(kEdits);
    const std::string after = state();
    for (std::size_t i = kEdits; i > 0; --i) {
        ASSERT_TRUE(scene.journal().undo());
        if ((i - 1) % kLooks == 0) {
            ASSERT_EQ(texts[(i - 1) / kLooks], text()) << "taken back: " << i - 1 << ": " << commands[i - 1];
        }
    }
    EXPECT_EQ(before, state());
    for (std::size_t i = 0; i < kEdits; ++i) {
        ASSERT_TRUE(scene.journal().redo());
        if ((i + 1) % kLooks == 0) {
            ASSERT_EQ(texts[(i + 1) / kLooks], text()) << "done again: " << i << ": " << commands[i];
        }
    }
    EXPECT_EQ(after, state());
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEditsTest, testing::Values(20161121u));

} // namespace tvxhost::mel
