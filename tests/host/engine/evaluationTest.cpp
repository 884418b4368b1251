// Evaluation: what is computed, when, how often, and what stops it.
#include "fixtures.h"

#include "engine/dataBlock.h"

#include <gmock/gmock.h>

#include <cstring>

namespace tvxhost::engine {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What a test wants its nodes to do.
struct Script
{
    std::function<Computed(Node&, const Plug&)> compute;
    std::function<void(const Plug&, std::vector<Plug>&)> setDependentsDirty;
    std::vector<std::string> asked;
};

class ScriptedBehaviour final : public NodeBehaviour
{
public:
    ScriptedBehaviour(Node& node, Script& script) : m_node(node), m_script(script) {}
    Computed compute(const Plug& plug) override
    {
        m_script.asked.push_back(plug.name());
        return m_script.compute(m_node, plug);
    }
    void setDependentsDirty(const Plug& plug, std::vector<Plug>& further) override
    {
        if (m_script.setDependentsDirty)
            m_script.setDependentsDirty(plug, further);
    }

private:
    Node& m_node;
    Script& m_script;
};

} // namespace

/// A type "doubler": output = 2 * input, for numbers and for colours; "spare" affects nothing, "lonely" is
/// affected by nothing, "outputs" is an array affected by the array "inputs".
class EvaluationTest : public SceneTest
{
protected:
    EvaluationTest() : type(*scene.types().add("doubler", 0x70000, *scene.types().find("THdependNode")).value)
    {
        input = add(makeNumber("input", "in", NumberKind::real, 1.0));
        output = add(makeNumber("output", "out", NumberKind::real, 0.0));
        color = add(makeColor("color", "c"));
        outColor = add(makeColor("outColor", "oc"));
        add(makeNumber("spare", "sp", NumberKind::real, 0.0));
        add(makeNumber("lonely", "lo", NumberKind::real, 5.0));
        inputs = add(array("inputs", "ins"));
        outputs = add(array("outputs", "outs"));
        EXPECT_TRUE(type.addAffects(*input, *output));
        EXPECT_TRUE(type.addAffects(*color, *outColor));
        EXPECT_TRUE(type.addAffects(*inputs, *outputs));
        type.behaviour = [this](Node& node) { return std::make_unique<ScriptedBehaviour>(node, script); };
        script.compute = [this](Node& node, const Plug& plug) { return doubled(node, plug); };
    }

    Attribute* add(const Ref<Attribute>& attribute)
    {
        EXPECT_TRUE(type.addAttribute(attribute));
        return attribute.get();
    }
    static Ref<Attribute> array(const char* longName, const char* shortName)
    {
        Ref<Attribute> attribute = makeNumber(longName, shortName, NumberKind::real, 0.0);
        attribute->flags.array = true;
        return attribute;
    }

    Computed doubled(Node& node, const Plug& plug)
    {
        if (plug.attribute() == output)
            return pass(Plug(node, *input), Plug(node, *output));
        if (plug.isAtOrBelow(Plug(node, *outColor))) {
            for (std::size_t i = 0; i < 3; ++i)
                (void)pass(Plug(node, *color).child(i), Plug(node, *outColor).child(i));
            setClean(Plug(node, *outColor));
            return Computed::done;
        }
        if (plug.attribute() == outputs)
            return pass(Plug(node, *inputs).element(plug.logicalIndex()), plug);
        return Computed::unknown;
    }
    static Computed pass(const Plug& from, const Plug& to)
    {
        const Slot source = inputSlot(from).value;
        const Slot target = outputSlot(to).value;
        if (target.attribute->number == NumberKind::real)
            *static_cast<double*>(target.bytes) = 2.0 * *static_cast<double*>(source.bytes);
        else
            *static_cast<float*>(target.bytes) = 2.0F * *static_cast<float*>(source.bytes);
        setClean(to);
        return Computed::done;
    }
    std::vector<std::string> takeAsked() { return std::exchange(script.asked, {}); }

    Script script;
    NodeType& type;
    Attribute *input, *output, *color, *outColor, *inputs, *outputs;
};

TEST_F(EvaluationTest, NothingIsComputedUntilSomeoneAsks)
{
    make("doubler", "n");
    set("n.input", 4.0);
    EXPECT_THAT(takeAsked(), IsEmpty());
    EXPECT_EQ(number("n.output"), 8.0);
    EXPECT_THAT(takeAsked(), ElementsAre("n.output"));
}

TEST_F(EvaluationTest, ACleanOutputIsNotComputedAgain)
{
    make("doubler", "n");
    EXPECT_EQ(number("n.output"), 2.0);
    EXPECT_EQ(number("n.output"), 2.0);
    EXPECT_THAT(takeAsked(), ElementsAre("n.output"));
    set("n.input", 5.0);
    EXPECT_TRUE(isDirty(plug("n.output")));
    EXPECT_EQ(number("n.output"), 10.0);
    EXPECT_FALSE(isDirty(plug("n.output")));
}

TEST_F(EvaluationTest, OnlyDeclaredAffectsMakeAnOutputDirty)
{
    make("doubler", "n");
    number("n.output");
    set("n.spare", 1.0);
    EXPECT_FALSE(isDirty(plug("n.output")));
    EXPECT_EQ(number("n.output"), 2.0);
    EXPECT_EQ(takeAsked().size(), 1u);
}

TEST_F(EvaluationTest, WhatNothingAffectsIsNeverComputed)
{
    make("doubler", "n");
    EXPECT_EQ(number("n.lonely"), 5.0);
    EXPECT_EQ(number("n.spare"), 0.0);
    EXPECT_THAT(takeAsked(), IsEmpty());
}

TEST_F(EvaluationTest, AChildIsComputedByItsOwnPlugAndCleaningTheParentCoversIt)
{
    make("doubler", "n");
    ASSERT_TRUE(writeNumbers(plug("n.color"), {0.5, 0.25, 1.0}));
    EXPECT_EQ(number("n.outColorR"), 1.0);
    EXPECT_THAT(takeAsked(), ElementsAre("n.outColorR"));
    EXPECT_EQ(number("n.outColorG"), 0.5);
    EXPECT_THAT(readNumbers(plug("n.outColor")).value, ElementsAre(1.0, 0.5, 2.0));
    EXPECT_THAT(takeAsked(), IsEmpty());
}

TEST_F(EvaluationTest, ChangingAChildOfAnInputDirtiesTheWholeOutput)
{
    make("doubler", "n");
    (void)readNumbers(plug("n.outColor"));
    set("n.colorG", 0.5);
    EXPECT_TRUE(isDirty(plug("n.outColor")));
    EXPECT_TRUE(isDirty(plug("n.outColorR")));
    EXPECT_EQ(number("n.outColorG"), 1.0);
}

TEST_F(EvaluationTest, OneElementOfAnArrayIsComputedAlone)
{
    make("doubler", "n");
    set("n.inputs[2]", 3.0);
    set("n.inputs[7]", 4.0);
    EXPECT_EQ(number("n.outputs[7]"), 8.0);
    EXPECT_THAT(takeAsked(), ElementsAre("n.outputs[7]"));
    EXPECT_TRUE(isDirty(plug("n.outputs[2]")));
}

TEST_F(EvaluationTest, DirtinessSpreadsAlongConnections)
{
    for (const char* name : {"a", "b", "c"})
        make("doubler", name);
    ASSERT_TRUE(connect("a.output", "b.input"));
    ASSERT_TRUE(connect("b.output", "c.input"));
    EXPECT_EQ(number("c.output"), 8.0);
    EXPECT_THAT(takeAsked(), ElementsAre("c.output", "b.output", "a.output"));
    set("a.input", 3.0);
    EXPECT_TRUE(isDirty(plug("c.output")));
    EXPECT_TRUE(isDirty(plug("b.input")));
    EXPECT_EQ(number("c.output"), 24.0);
    EXPECT_EQ(takeAsked().size(), 3u);
}

TEST_F(EvaluationTest, InputsThatAComputeDoesNotReadStayDirty)
{
    make("doubler", "a");
    make("doubler", "b");
    ASSERT_TRUE(connect("a.output", "b.spare"));
    EXPECT_EQ(number("b.output"), 2.0);
    EXPECT_TRUE(isDirty(plug("b.spare")));
    EXPECT_THAT(takeAsked(), ElementsAre("b.output"));
}

TEST_F(EvaluationTest, AnUnreadInputStillDirtiesWhatItAffects)
{
    make("doubler", "a");
    make("doubler", "b");
    script.compute = [this](Node& node, const Plug& plug) {
        setClean(plug);
        return plug.attribute() == output && node.name() == "a" ? doubled(node, plug) : Computed::done;
    };
    ASSERT_TRUE(connect("a.output", "b.input"));
    number("b.output");
    EXPECT_FALSE(isDirty(plug("b.output")));
    ASSERT_TRUE(scene.disconnect(plug("a.output"), plug("b.input")));
    EXPECT_TRUE(isDirty(plug("b.output")));
}

TEST_F(EvaluationTest, ComputeThatForgetsToCleanIsAskedAgain)
{
    make("doubler", "n");
    script.compute = [](Node&, const Plug&) { return Computed::done; };
    number("n.output");
    number("n.output");
    EXPECT_EQ(takeAsked().size(), 2u);
}

TEST_F(EvaluationTest, WhatNobodyKnowsKeepsItsValueAndIsAskedOncePerChange)
{
    make("doubler", "n");
    script.compute = [](Node&, const Plug&) { return Computed::unknown; };
    EXPECT_EQ(number("n.output"), 0.0);
    EXPECT_EQ(number("n.output"), 0.0);
    EXPECT_EQ(takeAsked().size(), 1u);
    set("n.input", 9.0);
    EXPECT_EQ(number("n.output"), 0.0);
    EXPECT_EQ(takeAsked().size(), 1u);
}

TEST_F(EvaluationTest, UnknownGoesOnToTheBuiltInParentType)
{
    NodeType& locator =
        *scene.types().add("ourLocator", 0x70001, *scene.types().find("THlocatorShape")).value;
    locator.behaviour = [this](Node& node) { return std::make_unique<ScriptedBehaviour>(node, script); };
    script.compute = [](Node&, const Plug&) { return Computed::unknown; };
    DagNode& above = makeTransform("above");
    make("ourLocator", "here", &above);
    set("above.tx", 6.0);
    EXPECT_THAT(readNumbers(plug("here.worldPosition[0]")).value, ElementsAre(6.0, 0.0, 0.0));
    EXPECT_EQ(takeAsked().front(), "here.worldPosition[0]");
}

TEST_F(EvaluationTest, AFailureIsToldOnceAndLeavesThePlugDirty)
{
    make("doubler", "n");
    number("n.output");
    script.compute = [](Node&, const Plug&) { return Computed::failed; };
    set("n.input", 50.0);
    const Expected<Number> failed = readNumber(plug("n.output"));
    EXPECT_EQ(failed.outcome.reason, Reason::failed);
    EXPECT_EQ(failed.value.asReal(), 2.0) << "the last value stays";
    EXPECT_FALSE(readNumber(plug("n.output")));
    EXPECT_TRUE(isDirty(plug("n.output")));
    ASSERT_EQ(scene.scriptEditor().history().size(), 1u);
    EXPECT_EQ(scene.scriptEditor().history()[0].text, "Evaluation of 'n.output' failed.");
    EXPECT_EQ(scene.scriptEditor().errors(), 1);
}

TEST_F(EvaluationTest, AFailureUpstreamIsTriedAgainNextTime)
{
    make("doubler", "a");
    make("doubler", "b");
    ASSERT_TRUE(connect("a.output", "b.input"));
    script.compute = [this](Node& node, const Plug& plug) {
        return node.name() == "a" ? Computed::failed : doubled(node, plug);
    };
    EXPECT_EQ(readNumber(plug("b.input")).outcome.reason, Reason::failed);
    script.compute = [this](Node& node, const Plug& plug) { return doubled(node, plug); };
    EXPECT_EQ(number("b.input"), 2.0);
}

TEST_F(EvaluationTest, ACycleIsWarnedOfOnceAndUsesTheLastValue)
{
    make("doubler", "a");
    make("doubler", "b");
    ASSERT_TRUE(connect("a.output", "b.input"));
    ASSERT_TRUE(connect("b.output", "a.input"));
    number("a.output");
    set("a.spare", 1.0);
    number("a.output");
    EXPECT_EQ(scene.scriptEditor().warnings(), 1);
    EXPECT_EQ(scene.scriptEditor().history()[0].text, "Cycle on 'a.output' may not evaluate as expected.");
}

TEST_F(EvaluationTest, APureCycleOfPlainConnectionsEnds)
{
    Node& a = make("transform", "a");
    addNumber(a, "p");
    addNumber(a, "q");
    set("a.p", 3.0);
    ASSERT_TRUE(connect("a.p", "a.q"));
    ASSERT_TRUE(connect("a.q", "a.p"));
    EXPECT_EQ(number("a.p"), 3.0);
    EXPECT_EQ(scene.scriptEditor().warnings(), 1);
}

TEST_F(EvaluationTest, AValueSetOnAnOutputLastsUntilItIsDirtied)
{
    make("doubler", "n");
    set("n.output", 77.0);
    EXPECT_EQ(number("n.output"), 77.0);
    EXPECT_THAT(takeAsked(), IsEmpty());
    set("n.input", 1.0);
    EXPECT_EQ(number("n.output"), 2.0);
}

TEST_F(EvaluationTest, ASlotStoresWithoutCleaningOrSpreading)
{
    make("doubler", "n");
    number("n.output");
    *static_cast<double*>(outputSlot(plug("n.input")).value.bytes) = 21.0;
    EXPECT_FALSE(isDirty(plug("n.output")));
    EXPECT_EQ(number("n.output"), 2.0);
    spreadDirty(plug("n.input"));
    EXPECT_EQ(number("n.output"), 42.0);
}

TEST_F(EvaluationTest, AGroupsNumbersLieSideBySide)
{
    make("doubler", "n");
    ASSERT_TRUE(writeNumbers(plug("n.color"), {0.5, 0.25, 1.0}));
    float values[3];
    std::memcpy(values, inputSlot(plug("n.color")).value.bytes, sizeof values);
    EXPECT_THAT(values, ElementsAre(0.5F, 0.25F, 1.0F));
    EXPECT_EQ(inputSlot(plug("n.colorG")).value.bytes,
              static_cast<float*>(inputSlot(plug("n.color")).value.bytes) + 1);
}

TEST_F(EvaluationTest, SlotsOfNoPlugSayWhy)
{
    EXPECT_EQ(inputSlot(Plug()).outcome.reason, Reason::nullArgument);
    Node& node = make("transform", "t");
    EXPECT_EQ(outputSlot(Plug(node, *input)).outcome.reason, Reason::doesNotExist);
    make("doubler", "n");
    EXPECT_EQ(outputSlot(plug("n.inputs[-1]")).value.bytes, nullptr);
}

TEST_F(EvaluationTest, ANodeMayNameFurtherPlugsThatBecomeDirty)
{
    make("doubler", "n");
    number("n.output");
    script.setDependentsDirty = [&](const Plug& changed, std::vector<Plug>& further) {
        if (changed.name() == "n.spare")
            further.push_back(plug("n.output"));
    };
    set("n.spare", 1.0);
    EXPECT_TRUE(isDirty(plug("n.output")));
}

TEST_F(EvaluationTest, TheTimeDirtiesWhatHangsOnIt)
{
    make("doubler", "n");
    addNumber(make("transform", "t"), "clock", NumberKind::real, [](Attribute& attribute) {
        attribute.kind = AttributeKind::unit;
        attribute.unit = UnitKind::time;
    });
    ASSERT_TRUE(connect("time1.outTime", "t.clock"));
    scene.setTime(0.5);
    EXPECT_EQ(number("t.clock"), 0.5);
    scene.setTime(1.5);
    EXPECT_EQ(number("t.clock"), 1.5);
}

TEST_F(EvaluationTest, VeryLongChainsOfConnectionsDoNotExhaustTheStack)
{
    constexpr int kLength = 100000;
    Node& node = make("transform", "chain");
    Ref<Attribute> links = array("links", "links");
    ASSERT_TRUE(node.addDynamicAttribute(links));
    const Plug all(node, *links);
    for (int i = 1; i < kLength; ++i)
        ASSERT_TRUE(scene.connect(all.element(i - 1), all.element(i)));
    set("chain.links[0]", 12.0);
    EXPECT_EQ(readNumber(all.element(kLength - 1)).value.asReal(), 12.0);
    set("chain.links[0]", 13.0);
    EXPECT_TRUE(isDirty(all.element(kLength - 1)));
    EXPECT_EQ(readNumber(all.element(kLength - 1)).value.asReal(), 13.0);
}

// Animation curves
// ---------------------------------------------------------------------------------------------

TEST_F(EvaluationTest, AnAnimationCurveFollowsTheTime)
{
    make("animCurveTU", "curve");
    makeTransform("t");
    ASSERT_TRUE(writeNumbers(plug("curve.ktv[0]"), {1.0, 10.0}));
    ASSERT_TRUE(writeNumbers(plug("curve.ktv[1]"), {3.0, 20.0}));
    ASSERT_TRUE(connect("curve.o", "t.sx"));
    scene.setTime(0.0);
    EXPECT_EQ(number("t.sx"), 10.0);
    scene.setTime(1.5);
    EXPECT_DOUBLE_EQ(number("t.sx"), 12.5) << "tangents are linear unless the curve says otherwise";
    scene.setTime(9.0);
    EXPECT_EQ(number("t.sx"), 20.0);
}

TEST_F(EvaluationTest, SteppedAndFlatTangentsShapeTheCurve)
{
    make("animCurveUU", "curve");
    ASSERT_TRUE(writeNumbers(plug("curve.ktv[0]"), {0.0, 0.0}));
    ASSERT_TRUE(writeNumbers(plug("curve.ktv[1]"), {1.0, 8.0}));
    set("curve.kot[0]", 5);
    set("curve.i", 0.75);
    EXPECT_EQ(number("curve.o"), 0.0);
    set("curve.kot[0]", 3);
    set("curve.kit[1]", 3);
    // Flat at both ends: 3 t^2 - 2 t^3.
    EXPECT_DOUBLE_EQ(number("curve.o"), 8.0 * (3 * 0.5625 - 2 * 0.421875));
}

} // namespace tvxhost::engine
