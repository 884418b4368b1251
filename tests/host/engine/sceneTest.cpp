// A scene: default nodes, nodes made, named and deleted, namespaces, types that go away.
#include "fixtures.h"

#include "engine/observers.h"

#include <gmock/gmock.h>

#include <regex>

namespace tvxhost::engine {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> warningsOf(const Scene& scene)
{
    std::vector<std::string> texts;
    for (const Message& message : const_cast<Scene&>(scene).scriptEditor().history())
        if (message.kind == MessageKind::warning)
            texts.push_back(message.text);
    return texts;
}

} // namespace

TEST_F(SceneTest, BeginsWithTheDefaultNodesAndCameras)
{
    for (const char* name : {"time1", "initialShadingGroup", "lambert1", "persp", "perspShape", "sideShape"})
        EXPECT_TRUE(scene.findNode(name)) << name;
    EXPECT_FALSE(scene.isModified);
    EXPECT_EQ(sourceOf(plug("initialShadingGroup.ss")).name(), "lambert1.outColor");
    EXPECT_DOUBLE_EQ(number("persp.ty"), 21.0);
    EXPECT_EQ(number("top.v"), 0.0);
    EXPECT_EQ(readString(plug("frontShape.imn")).value, "front");
    EXPECT_TRUE(scene.findNode("time1").value->isDefaultNode);
    EXPECT_TRUE(scene.findNode("persp").value->isShared);
}

TEST_F(SceneTest, NewSceneForgetsNodesNamespacesAndUnits)
{
    make("transform", "ns:a");
    scene.units().linear = LinearUnit::metres;
    scene.setTime(2.0);
    scene.newScene();
    EXPECT_FALSE(scene.findNode("ns:a"));
    EXPECT_THAT(scene.namespaces(), IsEmpty());
    EXPECT_EQ(scene.units().linear, LinearUnit::centimetres);
    EXPECT_EQ(scene.time(), 0.0);
    EXPECT_TRUE(scene.findNode("persp"));
    EXPECT_FALSE(scene.isModified);
}

TEST_F(SceneTest, UnnamedNodesAreCalledByTheirTypeAndANumber)
{
    EXPECT_EQ(make("transform").name(), "transform1");
    EXPECT_EQ(make("transform").name(), "transform2");
    EXPECT_EQ(make("lambert").name(), "lambert2");
}

TEST_F(SceneTest, ShapesWithoutAParentGetATransform)
{
    const auto transformOf = [](Node& node) { return node.asDag()->parents().front()->name(); };
    Node& mesh = make("mesh");
    EXPECT_EQ(mesh.name(), "polySurfaceShape1");
    EXPECT_EQ(transformOf(mesh), "polySurface1");
    Node& locator = make("locator");
    EXPECT_EQ(locator.name(), "locatorShape1");
    EXPECT_EQ(transformOf(locator), "locator1");
    EXPECT_EQ(transformOf(make("camera", "shotShape")), "shot");
    EXPECT_EQ(transformOf(make("camera", "shotShape7")), "shot7");
    EXPECT_EQ(transformOf(make("camera", "view")), "camera1");
}

TEST_F(SceneTest, NewShapesDoNotOfferTheirVisibilityForKeys)
{
    for (const char* type : {"mesh", "locator", "camera", "directionalLight", "particle"}) {
        const PlugState state = stateOf(plug(make(type).name() + ".visibility"));
        EXPECT_EQ(state.keyable, false) << type;
        EXPECT_FALSE(state.locked) << type;
        EXPECT_FALSE(state.channelBox) << type;
    }
    EXPECT_EQ(stateOf(plug("perspShape.visibility")).keyable, false);
    EXPECT_FALSE(stateOf(plug("persp.visibility")).keyable);
    EXPECT_FALSE(stateOf(plug(make("transform").name() + ".visibility")).keyable);
}

TEST_F(SceneTest, AbstractAndUnknownTypesCannotBeCreated)
{
    EXPECT_EQ(scene.createNode("shape").outcome.reason, Reason::wrongKind);
    EXPECT_EQ(scene.createNode("world").outcome.reason, Reason::wrongKind);
    const Expected<Node*> unknown = scene.createNode("noSuchType");
    EXPECT_EQ(unknown.outcome.reason, Reason::doesNotExist);
    EXPECT_EQ(unknown.outcome.text, "Unknown object type: noSuchType");
}

TEST_F(SceneTest, NothingIsCreatedBelowAShape)
{
    Node& shape = make("locator");
    EXPECT_EQ(scene.createNode("transform", "a", shape.asDag()).outcome.reason, Reason::wrongKind);
    EXPECT_EQ(scene.createNode("lambert", "a", &scene.world()).outcome.reason, Reason::wrongKind);
}

TEST_F(SceneTest, EveryNodeHasItsOwnRandomUuid)
{
    const std::regex form("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}");
    const std::string a = make("transform").uuid();
    const std::string b = make("transform").uuid();
    EXPECT_TRUE(std::regex_match(a, form)) << a;
    EXPECT_NE(a, b);
}

// Names
// --------------------------------------------------------------------------------------------------------

TEST_F(SceneTest, ATakenNameGetsANumberOrAHigherOne)
{
    EXPECT_EQ(make("lambert", "red").name(), "red");
    EXPECT_EQ(make("lambert", "red").name(), "red1");
    EXPECT_EQ(make("lambert", "red").name(), "red2");
    EXPECT_EQ(make("lambert", "red1").name(), "red3");
    EXPECT_EQ(make("lambert", "blue07").name(), "blue07");
    EXPECT_EQ(make("lambert", "blue07").name(), "blue08");
}

TEST_F(SceneTest, DagNodesShareANameUnderDifferentParents)
{
    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b");
    EXPECT_EQ(makeTransform("leaf", &a).name(), "leaf");
    EXPECT_EQ(makeTransform("leaf", &b).name(), "leaf");
    EXPECT_EQ(makeTransform("leaf", &b).name(), "leaf1");
    EXPECT_EQ(make("lambert", "leaf").name(), "leaf2");
}

TEST_F(SceneTest, NamesTheHostChoosesAvoidAllOthers)
{
    DagNode& a = makeTransform("a");
    makeTransform("transform1", &a);
    EXPECT_EQ(make("transform").name(), "transform2");
}

TEST_F(SceneTest, IllegalCharactersBecomeUnderlinesWithAWarning)
{
    EXPECT_EQ(make("transform", "a b-c").name(), "a_b_c");
    EXPECT_EQ(make("transform", "1st").name(), "_st");
    const std::string warning =
        "New name contains invalid characters. Illegal characters were converted to \"_\".";
    EXPECT_THAT(warningsOf(scene), ElementsAre(warning, warning));
}

TEST_F(SceneTest, RenamingMakesNamesUniqueAmongSiblings)
{
    makeTransform("a");
    DagNode& b = makeTransform("b");
    EXPECT_EQ(scene.rename(b, "a").value, "a1");
    EXPECT_EQ(scene.rename(b, "a1").value, "a1");
    DagNode& child = makeTransform("child", &b);
    EXPECT_EQ(scene.rename(child, "a").value, "a");
    EXPECT_EQ(scene.findNode("a1|a").value, &child);
    EXPECT_FALSE(scene.findNode("b"));
}

TEST_F(SceneTest, ATrailingHashIsTheSmallestFreeNumber)
{
    Node& node = make("lambert", "x");
    make("lambert", "paint1");
    make("lambert", "paint3");
    EXPECT_EQ(scene.rename(node, "paint#").value, "paint2");
}

TEST_F(SceneTest, DefaultSharedAndLockedNodesAreNotRenamed)
{
    Node& locked = make("transform", "locked");
    locked.isLockedNode = true;
    for (const char* name : {"time1", "persp", "locked"})
        EXPECT_EQ(scene.rename(*scene.findNode(name).value, "other").outcome.reason, Reason::readOnly)
            << name;
}

TEST_F(SceneTest, SomeNamesAreRefused)
{
    Node& node = make("transform", "a");
    for (const char* name : {"", ":", "ns:"})
        EXPECT_EQ(scene.rename(node, name).outcome.reason, Reason::invalidName) << name;
}

TEST_F(SceneTest, AFreedNameCanBeTakenAgain)
{
    Node& node = make("transform", "a");
    EXPECT_TRUE(scene.deleteNode(node));
    EXPECT_EQ(make("transform", "a").name(), "a");
}

// Finding
// -------------------------------------------------------------------------------------------------------

TEST_F(SceneTest, NodesAreFoundByNameAndPath)
{
    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b", &a);
    DagNode& leaf = makeTransform("leaf", &b);
    DagNode& other = makeTransform("leaf", &a);
    EXPECT_EQ(scene.findNode("|a|b|leaf").value, &leaf);
    EXPECT_EQ(scene.findNode("b|leaf").value, &leaf);
    EXPECT_EQ(scene.findNode("a|leaf").value, &other);
    EXPECT_FALSE(scene.findNode("|b"));
    EXPECT_FALSE(scene.findNode("|"));
    EXPECT_FALSE(scene.findNode(""));

    const Expected<Node*> many = scene.findNode("leaf");
    EXPECT_EQ(many.outcome.reason, Reason::ambiguous);
    EXPECT_EQ(many.outcome.text, "More than one object matches name: leaf");
    const Expected<Node*> none = scene.findNode("a|nothing");
    EXPECT_EQ(none.outcome.reason, Reason::doesNotExist);
    EXPECT_EQ(none.outcome.text, "No object matches name: a|nothing");
}

TEST_F(SceneTest, ShortestNamesHaveNoMoreAncestorsThanNeeded)
{
    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b");
    DagNode& mid = makeTransform("mid", &a);
    DagNode& leaf = makeTransform("leaf", &mid);
    EXPECT_EQ(scene.shortestName(leaf), "leaf");
    makeTransform("leaf", &b);
    EXPECT_EQ(scene.shortestName(leaf), "mid|leaf");
    makeTransform("leaf", &makeTransform("mid", &b));
    EXPECT_EQ(scene.shortestName(leaf), "a|mid|leaf");
}

TEST_F(SceneTest, ATopLevelNodeWithANamesakeBelowIsNamedFromTheRoot)
{
    DagNode& a = makeTransform("a");
    makeTransform("a", &a);
    EXPECT_EQ(scene.shortestName(a), "|a");
}

TEST_F(SceneTest, PlugsAreFoundWithTheirNode)
{
    make("transform", "a");
    EXPECT_EQ(plug("a.tx").name(), "a.translateX");
    EXPECT_EQ(plug("|a.t.ty").name(), "a.translateY");
    EXPECT_EQ(scene.findPlug("a.noSuch").outcome.reason, Reason::doesNotExist);
    EXPECT_EQ(scene.findPlug("a").outcome.reason, Reason::doesNotExist);
}

TEST_F(SceneTest, ComponentsBelongToTheShape)
{
    Node& mesh = make("mesh", "boxShape");
    const Expected<SelectionItem> item = scene.findItem("box.vtx[0:3]");
    ASSERT_TRUE(item) << item.outcome.text;
    EXPECT_EQ(item.value.node.get(), &mesh);
    EXPECT_EQ(item.value.components, "vtx[0:3]");
    EXPECT_EQ(item.value.name(), "box.vtx[0:3]");
    EXPECT_EQ(item.value.path.fullName(), "|box|boxShape");
}

TEST_F(SceneTest, ATransformStandsForItsShapesAttributes)
{
    make("camera", "shotShape");
    EXPECT_EQ(plug("shot.focalLength").name(), "shotShape.focalLength");
}

TEST_F(SceneTest, WildcardsMatchInOrderOfCreation)
{
    DagNode& a = makeTransform("figA");
    makeTransform("figB");
    makeTransform("ns:figC");
    makeTransform("leaf", &a);
    const auto namesOf = [&](const char* pattern) {
        std::vector<std::string> names;
        for (const SelectionItem& item : scene.findItems(pattern))
            names.push_back(item.name());
        return names;
    };
    EXPECT_THAT(namesOf("fig*"), ElementsAre("figA", "figB"));
    EXPECT_THAT(namesOf("*:fig?"), ElementsAre("ns:figC"));
    EXPECT_THAT(namesOf("figA|*"), ElementsAre("leaf"));
    EXPECT_THAT(namesOf("|*|leaf"), ElementsAre("leaf"));
    EXPECT_THAT(namesOf("fig*.tx"), ElementsAre("figA.translateX", "figB.translateX"));
    EXPECT_THAT(namesOf("nothing*"), IsEmpty());
    EXPECT_THAT(namesOf("world"), IsEmpty());
}

// Namespaces
// ---------------------------------------------------------------------------------------------------

TEST_F(SceneTest, ANamespaceInANameIsMade)
{
    make("transform", "fig:arm:hand");
    EXPECT_THAT(scene.namespaces(), ElementsAre("fig", "fig:arm"));
    EXPECT_TRUE(scene.hasNamespace(":fig:arm"));
}

TEST_F(SceneTest, NamesAreMadeInTheCurrentNamespaceAndLookedUpInTheRoot)
{
    Node& outside = make("transform", "a");
    EXPECT_TRUE(scene.addNamespace("fig"));
    EXPECT_TRUE(scene.setCurrentNamespace("fig"));
    Node& inside = make("transform", "a");
    EXPECT_EQ(inside.name(), "fig:a");
    EXPECT_EQ(scene.findNode("a").value, &outside);
    EXPECT_EQ(scene.findNode("fig:a").value, &inside);
    EXPECT_EQ(make("transform", ":b").name(), "b");
    EXPECT_EQ(scene.setCurrentNamespace("none").reason, Reason::doesNotExist);
    EXPECT_EQ(scene.addNamespace(":fig").reason, Reason::nameTaken);
    EXPECT_EQ(scene.addNamespace("a b").reason, Reason::invalidName);
}

TEST_F(SceneTest, RelativeNamesAreLookedUpInTheCurrentNamespaceFirst)
{
    Node& outside = make("transform", "a");
    DagNode& inside = makeTransform("fig:a");
    Node& below = make("transform", "fig:b", &inside);
    EXPECT_TRUE(scene.setCurrentNamespace("fig"));
    {
        const Scene::RelativeNames relative(scene);
        EXPECT_EQ(scene.findNode("a").value, &inside);
        EXPECT_EQ(scene.findNode("|a|b").value, &below);
        EXPECT_EQ(scene.findNode(":a").value, &outside);
        EXPECT_TRUE(scene.findNode("time1"));
    }
    EXPECT_EQ(scene.findNode("a").value, &outside);
}

TEST_F(SceneTest, ANamespaceIsMovedWithAllThatIsInIt)
{
    Node& hand = make("transform", "fig:arm:hand");
    Node& leg = make("transform", "fig:leg");
    ASSERT_TRUE(scene.addNamespace("crew"));
    ASSERT_TRUE(scene.setCurrentNamespace("fig:arm"));
    EXPECT_TRUE(scene.moveNamespace("fig", ":crew"));
    EXPECT_EQ(hand.name(), "crew:arm:hand");
    EXPECT_EQ(leg.name(), "crew:leg");
    EXPECT_THAT(scene.namespaces(), ElementsAre("crew", "crew:arm", "fig"));
    EXPECT_EQ(scene.currentNamespace(), ":crew:arm");
    EXPECT_EQ(scene.moveNamespace("crew", "crew:arm").reason, Reason::cycle);
    EXPECT_EQ(scene.moveNamespace(":", "crew").reason, Reason::readOnly);
    EXPECT_EQ(scene.moveNamespace("fig", "none").reason, Reason::doesNotExist);
}

TEST_F(SceneTest, ATakenNameIsMovedByForceOnly)
{
    make("lambert", "red");
    Node& red = make("lambert", "fig:red");
    EXPECT_EQ(scene.moveNamespace("fig", ":").text, "there is an object named 'red' already");
    EXPECT_EQ(red.name(), "fig:red");
    EXPECT_TRUE(scene.moveNamespace("fig", ":", true));
    EXPECT_EQ(red.name(), "red1");
}

TEST_F(SceneTest, ANamespaceIsRenamedAndSaysSo)
{
    Node& hand = make("transform", "fig:arm:hand");
    std::vector<std::string> told;
    scene.observers().add({Happening::namespaceRenamed}, [&](const Event& event) {
        told = {event.text, event.name};
    });
    ASSERT_TRUE(scene.setCurrentNamespace("fig"));
    EXPECT_TRUE(scene.renameNamespace("fig", ":crew:red"));
    EXPECT_EQ(hand.name(), "crew:red:arm:hand");
    EXPECT_THAT(told, ElementsAre("fig", "crew:red"));
    EXPECT_THAT(scene.namespaces(), ElementsAre("crew", "crew:red", "crew:red:arm"));
    EXPECT_EQ(scene.currentNamespace(), ":crew:red");
    EXPECT_EQ(scene.renameNamespace("crew:red", "crew").reason, Reason::nameTaken);
    EXPECT_EQ(scene.renameNamespace("crew", "crew:blue").reason, Reason::invalidName);
    EXPECT_EQ(scene.renameNamespace("crew", "a b").reason, Reason::invalidName);
}

TEST_F(SceneTest, AnEmptyNamespaceIsTakenAway)
{
    Node& hand = make("transform", "fig:hand");
    EXPECT_EQ(scene.removeNamespace("fig").text, "the namespace 'fig' is not empty");
    ASSERT_TRUE(scene.deleteNode(hand));
    ASSERT_TRUE(scene.setCurrentNamespace("fig"));
    EXPECT_TRUE(scene.removeNamespace("fig"));
    EXPECT_THAT(scene.namespaces(), IsEmpty());
    EXPECT_EQ(scene.currentNamespace(), ":");
    EXPECT_EQ(scene.removeNamespace("fig").reason, Reason::doesNotExist);
    EXPECT_EQ(scene.removeNamespace(":").reason, Reason::readOnly);
}

TEST_F(SceneTest, WhatMayNotBeRenamedHoldsItsNamespace)
{
    Node& hand = make("transform", "fig:hand");
    hand.isLockedNode = true;
    EXPECT_EQ(scene.moveNamespace("fig", ":").text, "'fig:hand' cannot be renamed");
    EXPECT_EQ(scene.renameNamespace("fig", "crew").reason, Reason::readOnly);
}

TEST_F(SceneTest, DependencyNodesMayShareANameAcrossNamespaces)
{
    EXPECT_EQ(make("lambert", "x:red").name(), "x:red");
    EXPECT_EQ(make("lambert", "y:red").name(), "y:red");
    EXPECT_EQ(make("lambert", "x:red").name(), "x:red1");
}

TEST_F(SceneTest, RenamingIntoAMissingNamespaceMayBeForbidden)
{
    Node& node = make("transform", "a");
    EXPECT_EQ(scene.rename(node, "n:a", false).outcome.reason, Reason::doesNotExist);
    EXPECT_EQ(scene.rename(node, "n:a").value, "n:a");
}

// Deleting
// -----------------------------------------------------------------------------------------------------

TEST_F(SceneTest, DeletingTakesWhatHangsBelowAndItsConnections)
{
    DagNode& a = makeTransform("a");
    makeTransform("b", &a);
    make("locator", "cShape", scene.findNode("b").value->asDag());
    make("transform", "other");
    ASSERT_TRUE(connect("b.tx", "other.ty"));
    EXPECT_TRUE(scene.deleteNode(a));
    for (const char* name : {"a", "b", "cShape"})
        EXPECT_FALSE(scene.findNode(name)) << name;
    EXPECT_FALSE(isConnected(plug("other.ty")));
}

TEST_F(SceneTest, AnInstanceElsewhereSurvivesDeletion)
{
    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b");
    Node& shape = make("locator", "s", &a);
    ASSERT_TRUE(scene.addParent(*shape.asDag(), b));
    EXPECT_TRUE(scene.deleteNode(a));
    EXPECT_EQ(scene.findNode("b|s").value, &shape);
    EXPECT_THAT(shape.asDag()->parents(), ElementsAre(&b));
}

TEST_F(SceneTest, DefaultLockedAndReferencedNodesStay)
{
    Node& locked = make("transform", "locked");
    locked.isLockedNode = true;
    Node& referenced = make("transform", "referenced");
    referenced.isReferenced = true;
    for (const char* name : {"time1", "locked", "referenced"})
        EXPECT_EQ(scene.deleteNode(*scene.findNode(name).value).reason, Reason::readOnly) << name;
}

TEST_F(SceneTest, ADeletedNodeIsAnEmptyShellForWhoeverHoldsIt)
{
    Ref<Node> node(&make("transform", "a"));
    const Plug held = plug("a.tx");
    EXPECT_TRUE(scene.deleteNode(*node));
    EXPECT_FALSE(node->isAlive());
    EXPECT_EQ(readNumber(held).outcome.reason, Reason::doesNotExist);
    EXPECT_EQ(writeNumber(held, Number(1.0)).reason, Reason::doesNotExist);
    EXPECT_EQ(scene.deleteNode(*node).reason, Reason::doesNotExist);
}

TEST_F(SceneTest, ListenersHearOfNewNodesAndOfThoseThatGo)
{
    std::vector<std::string> heard;
    scene.observers().add({Happening::nodeAdded},
                          [&](const Event& event) { heard.push_back("+" + event.node->name()); });
    scene.observers().add({Happening::nodeRemoved},
                          [&](const Event& event) { heard.push_back("-" + event.node->name()); });
    Node& shape = make("locator");
    EXPECT_TRUE(scene.deleteNode(*shape.asDag()->parents().front()));
    EXPECT_THAT(heard, ElementsAre("+locatorShape1", "+locator1", "-locator1", "-locatorShape1"));
}

// Types that go away, and types that nobody knows
// ------------------------------------------------------------------------------

TEST_F(SceneTest, UnknownTypesGetAPlaceholder)
{
    DagNode& parent = makeTransform("p");
    EXPECT_EQ(scene.createUnknown("vendorNode", "n", nullptr, false).value->type().name, "unknown");
    EXPECT_EQ(scene.createUnknown("vendorGroup", "g", nullptr, true).value->type().name, "unknownTransform");
    Node& shape = *scene.createUnknown("vendorShape", "s", &parent, true).value;
    EXPECT_EQ(shape.type().name, "unknownDag");
    EXPECT_EQ(shape.unknownType, "vendorShape");
}

TEST_F(SceneTest, APlaceholderThatGetsChildrenIsATransform)
{
    Node& inner = *scene.createUnknown("vendorGroup", "g", &makeTransform("p"), true).value;
    make("transform", "child", inner.asDag());
    EXPECT_EQ(inner.type().name, "unknownTransform");
    EXPECT_EQ(DagPath::firstTo(*scene.findNode("child").value->asDag()).fullName(), "|p|g|child");
}

TEST_F(SceneTest, NodesOfATypeThatGoesKeepTheirValuesAsUnknownNodes)
{
    NodeType& type = *scene.types().add("ours", 0x1234, *scene.types().find("THdependNode")).value;
    type.plugin = "ourPlugin";
    ASSERT_TRUE(type.addAttribute(makeNumber("size", "sz", NumberKind::real, 1.0)));
    Node& node = make("ours", "n");
    set("n.size", 3.0);
    EXPECT_EQ(scene.types().remove(type).reason, Reason::inUse);

    scene.makeUnknown(type);
    EXPECT_TRUE(scene.types().remove(type));
    EXPECT_EQ(scene.types().find("ours"), nullptr);
    EXPECT_EQ(node.type().name, "unknown");
    EXPECT_EQ(node.unknownType, "ours");
    EXPECT_EQ(node.unknownPlugin, "ourPlugin");
    EXPECT_EQ(number("n.sz"), 3.0);
}

} // namespace tvxhost::engine
