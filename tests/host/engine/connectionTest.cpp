// Connections: what may be connected, what flows, what stays when they go.
#include "fixtures.h"

#include <gmock/gmock.h>

#include <cmath>

namespace tvxhost::engine {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> namesOf(const std::vector<Plug>& plugs)
{
    std::vector<std::string> names;
    for (const Plug& plug : plugs)
        names.push_back(plug.name());
    return names;
}

/// Writes down what a node is told of its connections, and may refuse them.
class ListeningBehaviour final : public NodeBehaviour
{
public:
    ListeningBehaviour(std::vector<std::string>& heard, bool refuses) : m_heard(heard), m_refuses(refuses) {}
    Computed compute(const Plug&) override { return Computed::unknown; }
    std::optional<bool> legalConnection(const Plug&, const Plug&, bool) override
    {
        return m_refuses ? std::optional(false) : std::nullopt;
    }
    void connectionMade(const Plug& plug, const Plug& other, bool asSource) override
    {
        m_heard.push_back("made " + plug.name() + (asSource ? " > " : " < ") + other.name());
    }
    void connectionBroken(const Plug& plug, const Plug& other, bool asSource) override
    {
        m_heard.push_back("broken " + plug.name() + (asSource ? " > " : " < ") + other.name());
    }

private:
    std::vector<std::string>& m_heard;
    bool m_refuses;
};

} // namespace

class ConnectionTest : public SceneTest
{
protected:
    ConnectionTest()
    {
        makeTransform("a");
        makeTransform("b");
        makeTransform("c");
    }
};

TEST_F(ConnectionTest, AValueFlowsFromSourceToDestination)
{
    set("a.tx", 3.0);
    ASSERT_TRUE(connect("a.tx", "b.ty"));
    EXPECT_EQ(number("b.ty"), 3.0);
    set("a.tx", 4.0);
    EXPECT_EQ(number("b.ty"), 4.0);
    EXPECT_EQ(sourceOf(plug("b.ty")), plug("a.tx"));
    EXPECT_THAT(namesOf(destinationsOf(plug("a.tx"))), ElementsAre("b.translateY"));
    EXPECT_TRUE(isConnected(plug("a.tx")));
    EXPECT_FALSE(isConnected(plug("a.t"))) << "connections of children are not their parent's";
    EXPECT_TRUE(isFedAnywhere(plug("b.t")));
    EXPECT_FALSE(isFedAnywhere(plug("a.t")));
}

TEST_F(ConnectionTest, ADestinationHasOneSource)
{
    ASSERT_TRUE(connect("a.tx", "b.tx"));
    const Outcome taken = connect("c.tx", "b.tx");
    EXPECT_EQ(taken.reason, Reason::alreadyConnected);
    EXPECT_EQ(taken.text, "'b.translateX' already has an incoming connection from 'a.translateX'.");
    EXPECT_EQ(connect("a.tx", "b.tx").reason, Reason::sameConnection);
    EXPECT_TRUE(connect("c.tx", "b.tx", true));
    EXPECT_EQ(sourceOf(plug("b.tx")), plug("c.tx"));
    EXPECT_THAT(destinationsOf(plug("a.tx")), IsEmpty());
}

TEST_F(ConnectionTest, AGroupAndItsChildrenAreNotFedAtOnce)
{
    ASSERT_TRUE(connect("a.tx", "b.tx"));
    EXPECT_EQ(connect("a.t", "b.t").reason, Reason::alreadyConnected);
    ASSERT_TRUE(connect("a.t", "b.t", true));
    EXPECT_TRUE(sourceOf(plug("b.tx")).isNull());
    EXPECT_EQ(connect("c.ty", "b.ty").reason, Reason::alreadyConnected);
}

TEST_F(ConnectionTest, AGroupFlowsWholeAndByItsChildren)
{
    ASSERT_TRUE(connect("a.t", "b.s"));
    set("a.ty", 5.0);
    EXPECT_EQ(number("b.sy"), 5.0);
    ASSERT_TRUE(connect("b.sz", "c.tz"));
    set("a.tz", 6.0);
    EXPECT_EQ(number("c.tz"), 6.0);
}

TEST_F(ConnectionTest, NumbersConvertOnTheWay)
{
    Node& node = *scene.findNode("a").value;
    addNumber(node, "whole", NumberKind::integer);
    addNumber(node, "flag", NumberKind::boolean);
    ASSERT_TRUE(connect("b.tx", "a.whole"));
    ASSERT_TRUE(connect("a.whole", "a.flag"));
    set("b.tx", -2.75);
    EXPECT_EQ(number("a.whole"), -2.0);
    EXPECT_EQ(number("a.flag"), 1.0);
}

TEST_F(ConnectionTest, KindsHaveToFit)
{
    for (const auto& [source, destination] :
         {std::pair("a.msg", "b.tx"), std::pair("a.tx", "b.t"), std::pair("a.wm[0]", "b.tx"),
          std::pair("a.t", "b.xm"), std::pair("a.msg", "b.xm"), std::pair("a.wm", "b.xm")}) {
        const Outcome outcome = connect(source, destination);
        EXPECT_EQ(outcome.reason, Reason::typeMismatch) << source << " " << destination;
    }
    EXPECT_EQ(connect("a.tx", "b.t").text,
              "Connection not made: 'a.translateX' -> 'b.translate'.  Data types "
              "of source and destination are not compatible.");
    EXPECT_TRUE(connect("a.msg", "b.hl"));
    EXPECT_TRUE(connect("a.wm[0]", "b.xm"));
    EXPECT_EQ(connect("a.tx", "a.tx").reason, Reason::cycle);
}

TEST_F(ConnectionTest, FlagsOfTheEndsAreHeld)
{
    EXPECT_EQ(connect("a.bnm", "b.bnm").reason, Reason::notConnectable);
    EXPECT_EQ(connect("a.tx", "b.bbnx").reason, Reason::notWritable);
    make("objectSet", "set");
    EXPECT_EQ(connect("set.dnsm[0]", "b.hl").reason, Reason::notReadable);
    PlugState locked;
    locked.locked = true;
    setState(plug("b.t"), locked);
    EXPECT_EQ(connect("a.tx", "b.tx").reason, Reason::lockedOrConnected);
    EXPECT_EQ(scene.connect(Plug(), plug("b.tx")).reason, Reason::nullArgument);
}

TEST_F(ConnectionTest, AfterDisconnectingTheLastValueStays)
{
    set("a.tx", 3.0);
    ASSERT_TRUE(connect("a.tx", "b.tx"));
    EXPECT_EQ(number("b.tx"), 3.0);
    ASSERT_TRUE(scene.disconnect(plug("a.tx"), plug("b.tx")));
    set("a.tx", 9.0);
    EXPECT_EQ(number("b.tx"), 3.0);
    const Outcome again = scene.disconnect(plug("a.tx"), plug("b.tx"));
    EXPECT_EQ(again.reason, Reason::notConnected);
    EXPECT_EQ(again.text, "There is no connection from 'a.translateX' to 'b.translateX' to disconnect");
}

TEST_F(ConnectionTest, TheDisconnectBehaviourIsTheAttributes)
{
    Node& node = *scene.findNode("b").value;
    const auto array = [](int behaviour) {
        return [behaviour](Attribute& attribute) {
            attribute.flags.array = true;
            attribute.disconnectBehaviour = behaviour;
            attribute.defaultNumber = 7.0;
        };
    };
    addNumber(node, "gone", NumberKind::real, array(0));
    addNumber(node, "reset", NumberKind::real, array(1));
    addNumber(node, "kept", NumberKind::real, array(2));
    set("a.tx", 3.0);
    for (const char* name : {"b.gone[2]", "b.reset[2]", "b.kept[2]"}) {
        ASSERT_TRUE(connect("a.tx", name));
        EXPECT_EQ(number(name), 3.0);
        ASSERT_TRUE(scene.disconnect(plug("a.tx"), plug(name)));
    }
    EXPECT_THAT(existingElements(plug("b.gone")), IsEmpty());
    EXPECT_EQ(number("b.reset[2]"), 7.0);
    EXPECT_EQ(number("b.kept[2]"), 3.0);
}

TEST_F(ConnectionTest, DestinationsKeepTheOrderOfConnecting)
{
    for (const char* destination : {"c.tx", "b.tz", "b.tx", "c.ty"})
        ASSERT_TRUE(connect("a.tx", destination));
    ASSERT_TRUE(scene.disconnect(plug("a.tx"), plug("b.tz")));
    EXPECT_THAT(namesOf(destinationsOf(plug("a.tx"))),
                ElementsAre("c.translateX", "b.translateX", "c.translateY"));
}

TEST_F(ConnectionTest, ANodesConnectedPlugsComeInTheOrderOfItsAttributes)
{
    addNumber(*scene.findNode("a").value, "extra");
    ASSERT_TRUE(connect("b.tx", "a.extra"));
    ASSERT_TRUE(connect("a.tz", "c.tx"));
    ASSERT_TRUE(connect("b.ty", "a.ty"));
    ASSERT_TRUE(connect("a.msg", "c.hl"));
    EXPECT_THAT(namesOf(connectedPlugs(*scene.findNode("a").value)),
                ElementsAre("a.message", "a.translateY", "a.translateZ", "a.extra"));
    EXPECT_THAT(connectedPlugs(*scene.findNode("persp").value), IsEmpty());
}

TEST_F(ConnectionTest, TheNextAvailableElementIsTheFirstWithoutAConnection)
{
    make("objectSet", "set");
    const Plug members = plug("set.dnsm");
    const auto next = [&] { return scene.nextAvailable(members).logicalIndex(); };
    ASSERT_TRUE(scene.connect(plug("a.msg"), scene.nextAvailable(members)));
    ASSERT_TRUE(scene.connect(plug("b.msg"), scene.nextAvailable(members)));
    ASSERT_TRUE(scene.connect(plug("c.msg"), scene.nextAvailable(members)));
    EXPECT_THAT(existingElements(members), ElementsAre(0, 1, 2));
    EXPECT_EQ(next(), 3);
    ASSERT_TRUE(scene.disconnect(plug("b.msg"), members.element(1)));
    EXPECT_EQ(next(), 1);
    EXPECT_TRUE(scene.nextAvailable(plug("a.tx")).isNull());
}

TEST_F(ConnectionTest, NodesHearOfTheirConnections)
{
    std::vector<std::string> heard;
    NodeType& type = *scene.types().add("listener", 0x70000, *scene.types().find("THdependNode")).value;
    ASSERT_TRUE(type.addAttribute(makeNumber("x", "x", NumberKind::real, 0.0)));
    bool refuses = false;
    type.behaviour = [&](Node&) { return std::make_unique<ListeningBehaviour>(heard, refuses); };
    make("listener", "n");
    ASSERT_TRUE(connect("a.sx", "n.x"));
    ASSERT_TRUE(connect("n.x", "b.sx"));
    ASSERT_TRUE(scene.disconnect(plug("a.sx"), plug("n.x")));
    EXPECT_THAT(heard, ElementsAre("made n.x < a.scaleX", "made n.x > b.scaleX", "broken n.x < a.scaleX"));

    refuses = true;
    make("listener", "m");
    EXPECT_EQ(connect("a.sx", "m.x").reason, Reason::failed);
    EXPECT_FALSE(isConnected(plug("m.x")));
}

// Units
// ---------------------------------------------------------------------------------------------------------

TEST_F(ConnectionTest, AnAngleMeetsANumberThroughAConversionToUiUnits)
{
    addNumber(*scene.findNode("b").value, "plain");
    ASSERT_TRUE(connect("a.rx", "b.plain"));
    EXPECT_EQ(sourceOf(plug("b.plain")).name(), "unitConversion1.output");
    EXPECT_EQ(sourceOf(plug("unitConversion1.input")).name(), "a.rotateX");
    EXPECT_DOUBLE_EQ(number("unitConversion1.cf"), 57.29577951308232);
    set("a.rx", 3.14159265358979323846 / 2);
    EXPECT_DOUBLE_EQ(number("b.plain"), 90.0);
    set("a.rx", 0.0);
    EXPECT_DOUBLE_EQ(number("b.plain"), 0.0);
}

TEST_F(ConnectionTest, ANumberDrivesAnAngleInDegrees)
{
    addNumber(*scene.findNode("a").value, "plain");
    ASSERT_TRUE(connect("a.plain", "b.rz"));
    set("a.plain", 180.0);
    EXPECT_DOUBLE_EQ(number("b.rz"), 3.14159265358979323846);
}

TEST_F(ConnectionTest, AGroupOfAnglesHasOneConversion)
{
    ASSERT_TRUE(connect("a.s", "b.r"));
    ASSERT_TRUE(writeNumbers(plug("a.s"), {90, 180, 270}));
    EXPECT_DOUBLE_EQ(number("b.ry"), 3.14159265358979323846);
    EXPECT_FALSE(scene.findNode("unitConversion2"));
}

TEST_F(ConnectionTest, DistancesAreConvertedOnlyInOtherUnitsThanCentimetres)
{
    addNumber(*scene.findNode("b").value, "plain");
    addNumber(*scene.findNode("b").value, "inMetres");
    ASSERT_TRUE(connect("a.tx", "b.plain"));
    EXPECT_EQ(sourceOf(plug("b.plain")), plug("a.tx"));
    scene.units().linear = LinearUnit::metres;
    ASSERT_TRUE(connect("a.tx", "b.inMetres"));
    set("a.tx", 250.0);
    EXPECT_DOUBLE_EQ(number("b.inMetres"), 2.5);
}

TEST_F(ConnectionTest, ATimeMeetsANumberInFrames)
{
    addNumber(*scene.findNode("b").value, "frame");
    ASSERT_TRUE(connect("time1.o", "b.frame"));
    EXPECT_EQ(sourceOf(plug("b.frame")).name(), "timeToUnitConversion1.output");
    EXPECT_DOUBLE_EQ(number("timeToUnitConversion1.cf"), 0.004);
    scene.setTime(2.0);
    EXPECT_DOUBLE_EQ(number("b.frame"), 48.0);
}

TEST_F(ConnectionTest, ARefusedConversionLeavesNothingBehind)
{
    addNumber(*scene.findNode("a").value, "plain");
    ASSERT_TRUE(connect("c.rx", "b.rx"));
    EXPECT_EQ(connect("a.plain", "b.rx").reason, Reason::alreadyConnected);
    EXPECT_FALSE(scene.findNode("unitConversion1"));
    EXPECT_FALSE(isConnected(plug("a.plain")));
}

} // namespace tvxhost::engine
