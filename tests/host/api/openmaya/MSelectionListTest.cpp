// MSelectionList: a list of nodes, components and plugs.
#include "../sceneFixture.h"

#include "api/support/component.h"

#include <maya/MUuid.h>

namespace tvxhost::api::test {
namespace {

class MSelectionListTest : public SceneFixture
{
protected:
    MSelectionListTest()
    {
        make("transform", "a");
        make("transform", "b");
        make("lambert", "skin");
    }
};

TEST_F(MSelectionListTest, KeepsTheOrderOfAdding)
{
    MSelectionList list;
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(list.add(object("b")), MS::kSuccess);
    EXPECT_EQ(list.add(path("a")), MS::kSuccess);
    EXPECT_EQ(list.add(plug("skin.color")), MS::kSuccess);
    EXPECT_EQ(list.add("skin"), MS::kSuccess);
    EXPECT_EQ(list.length(), 4u);
    EXPECT_EQ(names(list), (Texts{"b", "a", "skin.color", "skin"}));
}

TEST_F(MSelectionListTest, HoldsAThingOnce)
{
    MSelectionList list;
    list.add(object("a"));
    list.add("a");
    list.add(path("|a"));
    EXPECT_EQ(names(list), (Texts{"a"}));
}

TEST_F(MSelectionListTest, RefusesNamesThatTheSceneDoesNotHave)
{
    MSelectionList list;
    EXPECT_EQ(text(list.add("nobody")), "(kInvalidParameter): Object does not exist");
    EXPECT_EQ(text(list.add("nobody*")), "(kInvalidParameter): Object does not exist");
    EXPECT_EQ(list.add(MObject()), MS::kInvalidParameter);
    EXPECT_EQ(list.add(MDagPath()), MS::kInvalidParameter);
    EXPECT_EQ(list.add(MPlug()), MS::kInvalidParameter);
    EXPECT_TRUE(list.isEmpty());
}

TEST_F(MSelectionListTest, AddsAllThatMatchWildcards)
{
    make("transform", "figure1");
    make("transform", "figure2");
    MSelectionList list;
    EXPECT_EQ(list.add("figure*"), MS::kSuccess);
    EXPECT_EQ(names(list), (Texts{"figure1", "figure2"}));
    MSelectionList one;
    EXPECT_EQ(one.add("figure?"), MS::kSuccess);
    EXPECT_EQ(one.length(), 2u);
}

TEST_F(MSelectionListTest, FindsANodeByItsIdentity)
{
    MSelectionList list;
    EXPECT_EQ(list.add(MUuid(MString(node("b").uuid().c_str()))), MS::kSuccess);
    EXPECT_EQ(names(list), (Texts{"b"}));
    EXPECT_EQ(list.add(MUuid()), MS::kInvalidParameter);
}

TEST_F(MSelectionListTest, GivesWhatAnItemIs)
{
    MSelectionList list;
    list.add("a");
    list.add("skin");
    list.add(plug("skin.color"));
    MDagPath way;
    MObject thing;
    MPlug part;
    EXPECT_EQ(list.getDagPath(0, way), MS::kSuccess);
    EXPECT_EQ(text(way.fullPathName()), "|a");
    EXPECT_EQ(list.getDependNode(0, thing), MS::kSuccess);
    EXPECT_TRUE(thing == object("a"));
    EXPECT_EQ(list.getDependNode(2, thing), MS::kSuccess);
    EXPECT_TRUE(thing == object("skin"));
    EXPECT_EQ(list.getPlug(2, part), MS::kSuccess);
    EXPECT_EQ(text(part.name()), "skin.color");
}

TEST_F(MSelectionListTest, TellsAMissingItemFromOneOfAnotherKind)
{
    MSelectionList list;
    list.add("skin");
    MDagPath way = path("b");
    EXPECT_EQ(list.getDagPath(0, way), MS::kFailure);
    EXPECT_EQ(list.getDagPath(1, way), MS::kInvalidParameter);
    EXPECT_EQ(text(way.fullPathName()), "|b") << "untouched";
    MPlug part;
    EXPECT_EQ(list.getPlug(0, part), MS::kFailure);
    MObject thing;
    EXPECT_EQ(text(list.getDependNode(1, thing)), "(kInvalidParameter): No element at given index");
}

TEST_F(MSelectionListTest, KeepsComponentsWithTheirPath)
{
    MSelectionList list;
    list.add(path("a"), componentHandle("vtx[0:3]"));
    MDagPath way;
    MObject component;
    EXPECT_EQ(list.getDagPath(0, way, component), MS::kSuccess);
    EXPECT_EQ(componentsOf(component), "vtx[0:3]");
    EXPECT_EQ(list.getDagPath(0, way), MS::kSuccess);
    EXPECT_TRUE(MObject::kNullObj.isNull()) << "the shared null object stays null";
    EXPECT_FALSE(list.hasItem(path("a")));
    EXPECT_TRUE(list.hasItemPartly(path("a"), MObject::kNullObj));
    EXPECT_TRUE(list.hasItem(path("a"), component));
}

TEST_F(MSelectionListTest, TheWholeObjectTakesThePlaceOfItsComponents)
{
    MSelectionList list;
    list.add(path("a"), componentHandle("vtx[0]"));
    list.add(path("a"), MObject::kNullObj, true);
    EXPECT_EQ(names(list), (Texts{"a"}));
}

TEST_F(MSelectionListTest, RemovesAndReplacesInPlace)
{
    MSelectionList list;
    list.add("a");
    list.add("b");
    EXPECT_EQ(list.replace(0, object("skin")), MS::kSuccess);
    EXPECT_EQ(names(list), (Texts{"skin", "b"}));
    EXPECT_EQ(list.replace(1, plug("a.translate")), MS::kSuccess);
    EXPECT_EQ(list.replace(2, object("a")), MS::kInvalidParameter);
    EXPECT_EQ(list.remove(0), MS::kSuccess);
    EXPECT_EQ(list.remove(1), MS::kInvalidParameter);
    EXPECT_EQ(names(list), (Texts{"a.translate"}));
    EXPECT_EQ(list.clear(), MS::kSuccess);
    EXPECT_TRUE(list.isEmpty());
}

TEST_F(MSelectionListTest, KnowsWhatItHolds)
{
    MSelectionList list;
    list.add("a");
    list.add(plug("skin.color"));
    EXPECT_TRUE(list.hasItem(object("a")));
    EXPECT_TRUE(list.hasItem(path("a")));
    EXPECT_TRUE(list.hasItem(plug("skin.color")));
    EXPECT_FALSE(list.hasItem(object("skin"))) << "only its plug is there";
    EXPECT_FALSE(list.hasItem(plug("skin.transparency")));
    MStatus status;
    EXPECT_FALSE(list.hasItem(MObject(), &status));
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MSelectionListTest, TogglesAndMerges)
{
    MSelectionList list, other;
    list.add("a");
    EXPECT_EQ(list.toggle(path("b")), MS::kSuccess);
    EXPECT_EQ(list.toggle(path("a")), MS::kSuccess);
    EXPECT_EQ(names(list), (Texts{"b"}));
    other.add("a");
    other.add("b");
    EXPECT_EQ(list.merge(other), MS::kSuccess);
    EXPECT_EQ(names(list), (Texts{"b", "a"}));
    EXPECT_EQ(list.merge(path("b"), MObject::kNullObj, MSelectionList::kRemoveFromList), MS::kSuccess);
    EXPECT_EQ(names(list), (Texts{"a"}));
    EXPECT_EQ(list.merge(other, MSelectionList::kXORWithList), MS::kSuccess);
    EXPECT_EQ(names(list), (Texts{"b"}));
    EXPECT_EQ(list.merge(list, MSelectionList::kRemoveFromList), MS::kSuccess);
    EXPECT_TRUE(list.isEmpty());
}

TEST_F(MSelectionListTest, CopiesAreIndependent)
{
    MSelectionList list;
    list.add("a");
    MSelectionList copy(list);
    copy.add("b");
    EXPECT_EQ(list.length(), 1u);
    list = copy;
    EXPECT_EQ(list.length(), 2u);
    MStringArray one;
    EXPECT_EQ(list.getSelectionStrings(1, one), MS::kSuccess);
    EXPECT_EQ(texts(one), (Texts{"b"}));
    EXPECT_EQ(list.getSelectionStrings(2, one), MS::kInvalidParameter);
}

} // namespace
} // namespace tvxhost::api::test
