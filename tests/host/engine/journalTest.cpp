// Undo of every kind of edit: taken back it leaves the scene as it was, done again as it was after, the same
// objects included.
#include "fixtures.h"

#include "engine/duplicate.h"

#include "../support/sceneState.h"

#include <functional>
#include <string>
#include <vector>

namespace tvxhost::engine {

namespace {

class JournalTest : public SceneTest
{
protected:
    JournalTest() { scene.journal().setOn(true); }

    std::string state() { return test::SceneState::of(scene); }

    /// Makes an edit as one command does.
    template <class Edit>
    void asCommand(const Edit& edit, const std::string& name = "edit")
    {
        const Journal::Command command(scene.journal(), name);
        edit();
    }

    /// One command, taken back and done again twice.
    template <class Edit>
    void expectUndoable(const Edit& edit)
    {
        const std::string before = state();
        asCommand(edit);
        const std::string after = state();
        EXPECT_NE(before, after);
        for (int round = 0; round < 2; ++round) {
            EXPECT_TRUE(scene.journal().undo());
            EXPECT_EQ(before, state());
            EXPECT_TRUE(scene.journal().redo());
            EXPECT_EQ(after, state());
        }
    }

    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b");
    DagNode& c = makeTransform("c", &a);
};

/// An array of numbers whose elements go when they are disconnected.
Ref<Attribute> fleetingArray(const std::string& name)
{
    Ref<Attribute> attribute = makeNumber(name, name, NumberKind::real, 0.0);
    attribute->flags.array = true;
    attribute->disconnectBehaviour = 0;
    return attribute;
}

} // namespace

// Nodes

TEST_F(JournalTest, aNodeIsMade)
{
    expectUndoable([&] { make("lambert", "shader"); });
    expectUndoable([&] { make("locator"); });
    expectUndoable([&] { make("transform", "below", &c); });
}

TEST_F(JournalTest, aNodeIsDeletedWithAllBelowIt)
{
    set("c.translateX", 3.0);
    ASSERT_TRUE(connect("c.translateX", "b.translateY"));
    ASSERT_TRUE(connect("b.rotate", "c.rotate"));
    expectUndoable([&] { ASSERT_TRUE(scene.deleteNode(a)); });
}

TEST_F(JournalTest, aDeletedNodeKeepsItsPlaceAmongTheOthers)
{
    makeTransform("d", &a);
    const auto children = [&] {
        std::string names;
        for (const DagNode* child : a.children())
            names += child->name() + " ";
        return names;
    };
    asCommand([&] { ASSERT_TRUE(scene.deleteNode(c)); });
    EXPECT_EQ("d ", children());
    scene.journal().undo();
    EXPECT_EQ("c d ", children());
    EXPECT_TRUE(c.isAlive());
}

TEST_F(JournalTest, aPathIsValidWhileAllItsNodesAreThere)
{
    const DagPath path = DagPath::firstTo(c);
    const DagPath elsewhere = DagPath::firstTo(b);
    EXPECT_TRUE(path.isValid());
    asCommand([&] { ASSERT_TRUE(scene.deleteNode(a)); });
    EXPECT_FALSE(path.isValid());
    EXPECT_TRUE(elsewhere.isValid());
    scene.journal().undo();
    EXPECT_TRUE(path.isValid());
    scene.journal().redo();
    EXPECT_FALSE(path.isValid());
}

TEST_F(JournalTest, aNodeThatWasTakenBackIsTheSameWhenItIsMadeAgain)
{
    Ref<Node> made;
    asCommand([&] { made = Ref<Node>(&make("transform", "made")); });
    scene.journal().undo();
    EXPECT_FALSE(made->isAlive());
    EXPECT_FALSE(scene.findNode("made"));
    scene.journal().redo();
    EXPECT_TRUE(made->isAlive());
    EXPECT_EQ(made.get(), scene.findNode("made").value);
}

TEST_F(JournalTest, whatIsSetOnANewNodeComesBackWithIt)
{
    expectUndoable([&] {
        Node& node = make("transform", "full");
        set("full.translateX", 5.0);
        addNumber(node, "extra");
        set("full.extra", 2.0);
        PlugState locked;
        locked.locked = true;
        setState(plug("full.extra"), locked);
        EXPECT_TRUE(connect("full.translateX", "a.translateX"));
        EXPECT_TRUE(connect("a.translateY", "full.translateY"));
    });
}

TEST_F(JournalTest, aNodeIsRenamed)
{
    expectUndoable([&] { ASSERT_TRUE(scene.rename(a, "other:name")); });
    expectUndoable([&] { a.setUuid("01234567-89AB-4CDE-8F01-23456789ABCD"); });
    expectUndoable([&] { a.setLocked(true); });
}

TEST_F(JournalTest, siblingsThatExchangeTheirNamesGetThemBack)
{
    expectUndoable([&] {
        ASSERT_TRUE(scene.rename(a, "between"));
        ASSERT_TRUE(scene.rename(b, "a"));
        ASSERT_TRUE(scene.rename(a, "b"));
    });
}

// Hierarchy

TEST_F(JournalTest, parentsChange)
{
    expectUndoable([&] { ASSERT_TRUE(scene.reparent(c, &a, &b)); });
    expectUndoable([&] { ASSERT_TRUE(scene.reparent(a, nullptr, &b)); });
}

TEST_F(JournalTest, aNodeThatIsRenamedBecauseOfItsNewSiblingsGetsItsNameBack)
{
    makeTransform("c", &b);
    expectUndoable([&] { ASSERT_TRUE(scene.reparent(c, &a, &b)); });
}

TEST_F(JournalTest, instancesComeAndGo)
{
    expectUndoable([&] { ASSERT_TRUE(scene.addParent(c, b)); });
    expectUndoable([&] { ASSERT_TRUE(scene.removeParent(c, a)); });
    expectUndoable([&] { ASSERT_TRUE(scene.deleteNode(b)); });
}

TEST_F(JournalTest, duplicates)
{
    set("c.translateX", 3.0);
    make("locator", "shape", &c);
    expectUndoable([&] { ASSERT_TRUE(duplicate(a, scene.world())); });
}

// Values

TEST_F(JournalTest, numbersAreSet)
{
    expectUndoable([&] { set("a.translateX", 3.0); });
    expectUndoable([&] { set("a.translateX", 4.0); });
    expectUndoable([&] { ASSERT_TRUE(writeNumbers(plug("a.scale"), {1.0, 2.0, 3.0})); });
}

TEST_F(JournalTest, aValueThatWasNeverSetIsNotSetAfterwards)
{
    asCommand([&] { set("a.translateX", 3.0); });
    scene.journal().undo();
    EXPECT_FALSE(hasOwnValue(plug("a.translateX")));
    EXPECT_EQ(0.0, number("a.translateX"));
}

TEST_F(JournalTest, whatHangsOnAValueFollowsItBack)
{
    ASSERT_TRUE(connect("a.translateX", "b.translateX"));
    asCommand([&] { set("a.translateX", 3.0); });
    EXPECT_EQ(3.0, number("b.translateX"));
    scene.journal().undo();
    EXPECT_EQ(0.0, number("b.translateX"));
    scene.journal().redo();
    EXPECT_EQ(3.0, number("b.translateX"));
}

TEST_F(JournalTest, dataIsSet)
{
    make("file", "picture");
    expectUndoable([&] { ASSERT_TRUE(writeString(plug("picture.fileTextureName"), "a.png")); });
    expectUndoable([&] { ASSERT_TRUE(writeString(plug("picture.fileTextureName"), "b.png")); });
}

TEST_F(JournalTest, elementsComeAndGoWithTheirValues)
{
    addNumber(a, "list", NumberKind::real, [](Attribute& attribute) { attribute.flags.array = true; });
    expectUndoable([&] { set("a.list[4]", 1.0); });
    expectUndoable([&] { set("a.list[2]", 2.0); });
    expectUndoable([&] { ASSERT_TRUE(removeElement(plug("a.list"), 4)); });
    const double many[] = {1.0, 2.0, 3.0};
    expectUndoable([&] { ASSERT_TRUE(writeElements(plug("a.list"), 3, many, 3)); });
}

TEST_F(JournalTest, elementsOfCompoundsComeAndGo)
{
    Ref<Attribute> rows(new Attribute(AttributeKind::compound, "rows", "rows"));
    rows->flags.array = true;
    Ref<Attribute> cells = makeNumber("cells", "cells", NumberKind::real, 0.0);
    cells->flags.array = true;
    rows->addChild(cells);
    rows->addChild(makeNumber("width", "width", NumberKind::real, 1.0));
    ASSERT_TRUE(a.addDynamicAttribute(rows));
    expectUndoable([&] { set("a.rows[1].cells[7]", 1.0); });
    expectUndoable([&] { set("a.rows[1].width", 2.0); });
    expectUndoable([&] { ASSERT_TRUE(removeElement(plug("a.rows"), 1)); });
}

TEST_F(JournalTest, statesOfPlugsChange)
{
    PlugState state;
    state.locked = true;
    state.keyable = false;
    expectUndoable([&] { setState(plug("a.translateX"), state); });
    expectUndoable([&] { setState(plug("a.translateX"), PlugState()); });
}

// Connections

TEST_F(JournalTest, aConnectionIsMadeAndTheOwnValueComesBackWithoutIt)
{
    set("b.translateX", 5.0);
    set("a.translateX", 7.0);
    asCommand([&] { ASSERT_TRUE(connect("a.translateX", "b.translateX")); });
    EXPECT_EQ(7.0, number("b.translateX"));
    scene.journal().undo();
    EXPECT_EQ(5.0, number("b.translateX"));
    scene.journal().redo();
    EXPECT_EQ(7.0, number("b.translateX"));
}

TEST_F(JournalTest, aConnectionIsBrokenAndTheLastValueStaysEachTime)
{
    set("a.translateX", 7.0);
    ASSERT_TRUE(connect("a.translateX", "b.translateX"));
    EXPECT_EQ(7.0, number("b.translateX"));
    expectUndoable([&] { ASSERT_TRUE(scene.disconnect(plug("a.translateX"), plug("b.translateX"))); });
}

TEST_F(JournalTest, aConnectionIsReplaced)
{
    ASSERT_TRUE(connect("a.translateX", "b.translateX"));
    expectUndoable([&] { ASSERT_TRUE(connect("c.translateX", "b.translateX", true)); });
    expectUndoable([&] { ASSERT_TRUE(connect("a.translate", "b.translate", true)); });
}

TEST_F(JournalTest, theOrderOfDestinationsComesBack)
{
    for (const char* destination : {"b.translateX", "b.translateY", "b.translateZ", "c.translateX"})
        ASSERT_TRUE(connect("a.translateX", destination));
    expectUndoable([&] { ASSERT_TRUE(scene.disconnect(plug("a.translateX"), plug("b.translateY"))); });
    expectUndoable([&] { ASSERT_TRUE(scene.disconnect(plug("a.translateX"), plug("b.translateX"))); });
    scene.journal().undo();
    scene.journal().undo();
    expectUndoable([&] { ASSERT_TRUE(scene.deleteNode(b)); });
}

TEST_F(JournalTest, elementsGoWithTheirConnections)
{
    ASSERT_TRUE(a.addDynamicAttribute(fleetingArray("list")));
    expectUndoable([&] { ASSERT_TRUE(connect("b.translateX", "a.list[3]")); });
    expectUndoable([&] { ASSERT_TRUE(scene.disconnect(plug("b.translateX"), plug("a.list[3]"))); });
    scene.journal().undo();
    expectUndoable([&] { ASSERT_TRUE(connect("b.translateY", "a.list[3]", true)); });
    expectUndoable([&] { ASSERT_TRUE(scene.deleteNode(b)); });
}

TEST_F(JournalTest, aConversionComesAndGoesWithItsConnection)
{
    expectUndoable([&] { ASSERT_TRUE(connect("a.translateX", "b.rotateX")); });
}

// Attributes

TEST_F(JournalTest, attributesAreAddedAndRemoved)
{
    expectUndoable([&] { addNumber(a, "extra"); });
    set("a.extra", 4.0);
    addNumber(a, "second");
    ASSERT_TRUE(connect("a.extra", "b.translateX"));
    expectUndoable([&] { ASSERT_TRUE(a.removeDynamicAttribute(*a.findAttribute("extra"))); });
}

TEST_F(JournalTest, declarationsChange)
{
    addNumber(a, "extra");
    expectUndoable([&] {
        Attribute& extra = *a.findAttribute("extra");
        a.keepDeclaration(extra);
        extra.longName = "renamed";
        extra.minimum = -1.0;
        extra.defaultNumber = 2.0;
    });
}

TEST_F(JournalTest, aliasesAreGivenAndTaken)
{
    expectUndoable([&] { ASSERT_TRUE(a.setAlias(plug("a.translateX"), "along")); });
    expectUndoable([&] { ASSERT_TRUE(a.setAlias(plug("a.translateX"), {})); });
}

// The scene

TEST_F(JournalTest, theSelectionChanges)
{
    SelectionList both;
    both.add(scene.findItem("b").value);
    both.add(scene.findItem("c").value);
    expectUndoable([&] { scene.setSelection(both); });
    expectUndoable([&] { scene.setHilite(both); });
    expectUndoable([&] { ASSERT_TRUE(scene.deleteNode(b)); });
}

TEST_F(JournalTest, timeAndNamespacesChange)
{
    expectUndoable([&] { scene.setTime(2.0); });
    EXPECT_EQ(2.0, number("time1.outTime"));
    scene.journal().undo();
    EXPECT_EQ(0.0, number("time1.outTime"));
    expectUndoable([&] {
        ASSERT_TRUE(scene.addNamespace("one:two"));
        ASSERT_TRUE(scene.setCurrentNamespace("one"));
    });
    expectUndoable([&] { ASSERT_TRUE(scene.rename(*scene.findNode("a").value, ":one:two:a")); });
    expectUndoable([&] { ASSERT_TRUE(scene.renameNamespace("one:two", "three")); });
    expectUndoable([&] { ASSERT_TRUE(scene.moveNamespace("three", "one")); });
    expectUndoable([&] { ASSERT_TRUE(scene.removeNamespace("three")); });
    expectUndoable([&] { scene.setRelativeNames(true); });
}

TEST_F(JournalTest, variablesThatAreKeptChange)
{
    expectUndoable([&] {
        scene.journal().keep(scene.units());
        scene.units().linear = LinearUnit::metres;
    });
    expectUndoable([&] {
        scene.journal().keep(scene.playback());
        scene.playback().setMaximum(9.0);
    });
}

// Steps

TEST_F(JournalTest, nothingIsRecordedOutsideOfCommands)
{
    set("a.translateX", 3.0);
    EXPECT_TRUE(scene.journal().undoable().empty());
    EXPECT_FALSE(scene.journal().undo());
}

TEST_F(JournalTest, aCommandThatChangesNothingIsNoStep)
{
    asCommand([&] { number("a.translateX"); });
    EXPECT_TRUE(scene.journal().undoable().empty());
}

TEST_F(JournalTest, whatIsComputedIsNotRecorded)
{
    ASSERT_TRUE(connect("a.translateX", "b.translateX"));
    set("a.translateX", 3.0);
    asCommand([&] {
        EXPECT_EQ(3.0, number("b.translateX"));
        b.localMatrix();
        EXPECT_TRUE(readNumbers(plug("b.worldMatrix[0]")));
    });
    EXPECT_TRUE(scene.journal().undoable().empty());
}

TEST_F(JournalTest, commandsWithinACommandBelongToIt)
{
    asCommand(
        [&] {
            set("a.translateX", 1.0);
            asCommand([&] { set("a.translateX", 2.0); }, "inner");
            set("a.translateX", 3.0);
        },
        "outer");
    ASSERT_EQ(1u, scene.journal().undoable().size());
    EXPECT_EQ("outer", scene.journal().undoable().back().name);
    scene.journal().undo();
    EXPECT_EQ(0.0, number("a.translateX"));
}

TEST_F(JournalTest, aChunkIsOneStep)
{
    scene.journal().openChunk("chunk");
    asCommand([&] { set("a.translateX", 1.0); });
    scene.journal().openChunk("inner");
    asCommand([&] { set("a.translateX", 2.0); });
    scene.journal().closeChunk();
    EXPECT_TRUE(scene.journal().undoable().empty());
    scene.journal().closeChunk();
    scene.journal().closeChunk();
    ASSERT_EQ(1u, scene.journal().undoable().size());
    EXPECT_EQ("chunk", scene.journal().undoable().back().name);
    scene.journal().undo();
    EXPECT_EQ(0.0, number("a.translateX"));
}

TEST_F(JournalTest, aGroupMakesOneStepOfThoseWithinIt)
{
    asCommand([&] { set("a.translateX", 1.0); });
    {
        const Journal::Group group(scene.journal());
        for (int i = 2; i < 100; ++i)
            asCommand([&] { set("a.translateX", i); });
        EXPECT_EQ(99u, scene.journal().undoable().size());
    }
    EXPECT_EQ(2u, scene.journal().undoable().size());
    scene.journal().undo();
    EXPECT_EQ(1.0, number("a.translateX"));
}

TEST_F(JournalTest, undoWithinAGroupTakesBackTheLastCommand)
{
    asCommand([&] { set("a.translateX", 1.0); });
    {
        const Journal::Group group(scene.journal());
        asCommand([&] { set("a.translateX", 2.0); });
        asCommand([&] { scene.journal().undo(); });
        EXPECT_EQ(1.0, number("a.translateX"));
        asCommand([&] { scene.journal().undo(); });
        EXPECT_EQ(0.0, number("a.translateX"));
        asCommand([&] { set("a.translateY", 5.0); });
    }
    EXPECT_EQ(1u, scene.journal().undoable().size());
    scene.journal().undo();
    EXPECT_EQ(0.0, number("a.translateY"));
}

TEST_F(JournalTest, aNewEditForgetsWhatCouldBeDoneAgain)
{
    asCommand([&] { make("transform", "gone"); });
    const Ref<Node> gone(scene.findNode("gone").value);
    NodeType& type = *scene.types().find("transform");
    scene.journal().undo();
    EXPECT_EQ(1, type.waitingNodes);
    asCommand([&] { set("a.translateX", 1.0); });
    EXPECT_TRUE(scene.journal().redoable().empty());
    EXPECT_EQ(0, type.waitingNodes);
    EXPECT_FALSE(gone->isAlive());
}

TEST_F(JournalTest, onlySoManyStepsAreKept)
{
    scene.journal().setLength(3);
    for (int i = 1; i <= 5; ++i)
        asCommand([&] { set("a.translateX", i); });
    EXPECT_EQ(3u, scene.journal().undoable().size());
    scene.journal().setLength(1);
    EXPECT_EQ(1u, scene.journal().undoable().size());
    scene.journal().isInfinite = true;
    for (int i = 1; i <= 100; ++i)
        asCommand([&] { set("a.translateX", 10.0 + i); });
    EXPECT_EQ(101u, scene.journal().undoable().size());
}

TEST_F(JournalTest, switchedOffItRemembersNothing)
{
    asCommand([&] { set("a.translateX", 1.0); });
    scene.journal().setOn(false);
    asCommand([&] { set("a.translateX", 2.0); });
    scene.journal().setOn(true);
    EXPECT_EQ(1u, scene.journal().undoable().size());
}

TEST_F(JournalTest, itIsOffInBatchModeAndOnOtherwise)
{
    EXPECT_FALSE(Scene(true).journal().isOn());
    EXPECT_TRUE(Scene(false).journal().isOn());
}

TEST_F(JournalTest, aNewSceneForgetsAllSteps)
{
    asCommand([&] { ASSERT_TRUE(scene.deleteNode(b)); });
    asCommand([&] { scene.newScene(); });
    EXPECT_TRUE(scene.journal().undoable().empty());
    EXPECT_EQ(0, scene.types().find("transform")->waitingNodes);
}

TEST_F(JournalTest, editsThatGoElsewhereAreNotInTheStep)
{
    Step own;
    asCommand([&] {
        {
            const Journal::Into into(scene.journal(), &own);
            set("a.translateX", 1.0);
            const Journal::Into nothing(scene.journal(), nullptr);
            set("a.translateY", 1.0);
        }
        set("a.translateZ", 1.0);
    });
    scene.journal().undo();
    EXPECT_EQ(1.0, number("a.translateX"));
    EXPECT_EQ(1.0, number("a.translateY"));
    EXPECT_EQ(0.0, number("a.translateZ"));
    own.undo();
    EXPECT_EQ(0.0, number("a.translateX"));
}

// Edits that are not recorded, in between

TEST_F(JournalTest, whatWasDeletedUnrecordedIsLeftAlone)
{
    asCommand([&] { set("b.translateX", 1.0); });
    asCommand([&] { ASSERT_TRUE(connect("a.translateX", "b.translateY")); });
    ASSERT_TRUE(scene.deleteNode(b));
    EXPECT_TRUE(scene.journal().undo());
    EXPECT_TRUE(scene.journal().undo());
    EXPECT_TRUE(scene.journal().redo());
    EXPECT_TRUE(scene.journal().redo());
    EXPECT_FALSE(scene.findNode("b"));
}

TEST_F(JournalTest, aNodeWhoseNameWasTakenComesBackUnderAnother)
{
    asCommand([&] { ASSERT_TRUE(scene.deleteNode(b)); });
    makeTransform("b");
    scene.journal().undo();
    EXPECT_TRUE(b.isAlive());
    EXPECT_EQ("b1", b.name());
}

TEST_F(JournalTest, whatWasPutBelowANewNodeUnrecordedGoesAndComesWithIt)
{
    DagNode* parent = nullptr;
    asCommand([&] { parent = &makeTransform("parent"); });
    const Ref<Node> child(&makeTransform("child", parent));
    set("child.translateX", 2.0);
    ASSERT_TRUE(connect("child.translateX", "a.translateX"));
    const std::string after = state();
    scene.journal().undo();
    EXPECT_FALSE(child->isAlive());
    scene.journal().redo();
    EXPECT_EQ(after, state());
}

TEST_F(JournalTest, manyConnectionsOfOneSourceAreTakenBack)
{
    constexpr int kCount = 4000;
    ASSERT_TRUE(b.addDynamicAttribute(fleetingArray("list")));
    for (int i = 0; i < kCount; ++i)
        ASSERT_TRUE(scene.connect(plug("a.translateX"), plug("b.list").element(i)));
    const auto destinations = destinationsOf(plug("a.translateX"));
    asCommand([&] { ASSERT_TRUE(scene.deleteNode(a)); });
    EXPECT_TRUE(existingElements(plug("b.list")).empty());
    scene.journal().undo();
    EXPECT_EQ(destinations, destinationsOf(plug("a.translateX")));
}

} // namespace tvxhost::engine
