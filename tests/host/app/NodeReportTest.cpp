// Reports about nodes: what is listed, and what the nodes of plug-ins evaluate to.
#include "app/nodeReport.h"

#include "engine/dataBlock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost;
using engine::AttributeKind;
using engine::NumberKind;
using engine::Plug;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

/// Doubles its input, or fails when the input is negative.
class Doubling final : public engine::NodeBehaviour
{
public:
    explicit Doubling(engine::Node& node) : m_node(node) {}
    engine::Computed compute(const Plug& plug) override
    {
        const auto input = engine::readNumber(m_node.findPlug("input").value);
        if (input.value.asReal() < 0)
            return engine::Computed::failed;
        const auto slot = engine::outputSlot(plug);
        *static_cast<double*>(slot.value.bytes) = 2 * input.value.asReal();
        engine::setClean(plug);
        return engine::Computed::done;
    }

private:
    engine::Node& m_node;
};

class NodeReportTest : public testing::Test
{
protected:
    NodeReportTest() { m_scene.newScene(); }

    engine::NodeType& addType(const std::string& name, std::uint32_t id)
    {
        const auto type = m_scene.types().add(name, id, *m_scene.types().find("THdependNode"));
        EXPECT_TRUE(type) << type.outcome.text;
        type.value->plugin = "testPlugin";
        return *type.value;
    }
    void addDoubling()
    {
        engine::NodeType& type = addType("doubling", 0x7f101);
        const auto input = engine::makeNumber("input", "in", NumberKind::real, 1.5);
        const auto output = engine::makeNumber("output", "out", NumberKind::real, 0);
        output->flags.writable = false;
        output->flags.storable = false;
        ASSERT_TRUE(type.addAttribute(input));
        ASSERT_TRUE(type.addAttribute(output));
        ASSERT_TRUE(type.addAffects(*input, *output));
        type.behaviour = [](engine::Node& node) { return std::make_unique<Doubling>(node); };
    }
    engine::Node& create(const std::string& type, const std::string& name)
    {
        const auto node = m_scene.createNode(type, name);
        EXPECT_TRUE(node) << node.outcome.text;
        return *node.value;
    }

    engine::Scene m_scene;
};

TEST_F(NodeReportTest, ListsDagNodesByPathAndOthersByName)
{
    create("transform", "group");
    create("lambert", "skin");
    const std::vector<std::string> lines = app::listNodes(m_scene);
    EXPECT_THAT(lines, Contains("transform |group"));
    EXPECT_THAT(lines, Contains("lambert skin"));
    EXPECT_THAT(lines, Contains("camera |persp|perspShape"));
    EXPECT_THAT(lines, Not(Contains(testing::HasSubstr("world"))));
}

TEST_F(NodeReportTest, ListsUnknownNodesUnderTheirOwnType)
{
    ASSERT_TRUE(m_scene.createUnknown("somebodysType", "mystery", nullptr, false));
    EXPECT_THAT(app::listNodes(m_scene), Contains("somebodysType mystery"));
}

TEST_F(NodeReportTest, EvaluatesTheOutputsOfAPluginsNodes)
{
    addDoubling();
    create("doubling", "twice");
    const app::Evaluation evaluation = app::evaluatePluginNodes(m_scene);
    EXPECT_THAT(evaluation.lines, ElementsAre("twice.output = 3"));
    EXPECT_THAT(evaluation.failures, IsEmpty());
}

TEST_F(NodeReportTest, ShowsAllAttributesOfATypeWithoutOutputs)
{
    engine::NodeType& type = addType("label", 0x7f102);
    auto text = engine::Ref<engine::Attribute>(new engine::Attribute(AttributeKind::typed, "text", "tx"));
    text->dataType = engine::DataType::string;
    ASSERT_TRUE(type.addAttribute(text));
    ASSERT_TRUE(type.addAttribute(engine::makeColor("tint", "ti")));
    engine::Node& node = create("label", "sign");
    ASSERT_TRUE(engine::writeString(node.findPlug("text").value, "to the \"exit\"\n"));
    ASSERT_TRUE(engine::writeNumbers(node.findPlug("tint").value, {1, 0.5, 0.25}));
    EXPECT_THAT(app::evaluatePluginNodes(m_scene).lines,
                ElementsAre("sign.text = \"to the \\\"exit\\\"\\n\"", "sign.tint = 1 0.5 0.25"));
}

TEST_F(NodeReportTest, SaysThatANodeHasNoAttributesOfItsOwn)
{
    addType("bare", 0x7f103);
    create("bare", "mark");
    EXPECT_THAT(app::evaluatePluginNodes(m_scene).lines, ElementsAre("mark: no attributes of its own"));
}

TEST_F(NodeReportTest, NamesWhatCannotBeEvaluated)
{
    addDoubling();
    engine::Node& node = create("doubling", "twice");
    ASSERT_TRUE(engine::writeNumber(node.findPlug("input").value, engine::Number(-1.0)));
    const app::Evaluation evaluation = app::evaluatePluginNodes(m_scene);
    EXPECT_THAT(evaluation.lines, IsEmpty());
    EXPECT_THAT(evaluation.failures, ElementsAre(testing::StartsWith("twice.output: ")));
}

TEST_F(NodeReportTest, HasNothingToSayOfTheHostsOwnNodes)
{
    EXPECT_THAT(app::evaluatePluginNodes(m_scene).lines, IsEmpty());
}

} // namespace
