// MFnDependencyNode: nodes, their names, attributes and plugs.
#include "../nodeFixture.h"

#include <maya/MDGModifier.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MObjectArray.h>
#include <maya/MPlug.h>
#include <maya/MPlugArray.h>
#include <maya/MStringArray.h>
#include <maya/MUuid.h>

using namespace tvxhost::api::test;

namespace {

class DependencyNodes : public NodeFixture
{
protected:
    MObject node = make("transform", "thing");
    MFnDependencyNode set{node, nullptr};
};

} // namespace

TEST_F(DependencyNodes, ANodeTellsItsTypeAndName)
{
    EXPECT_EQ("thing", text(set.name()));
    EXPECT_EQ("transform", text(set.typeName()));
    EXPECT_EQ(0x5846524du, set.typeId().id()); // "XFRM"
    EXPECT_EQ("", text(set.pluginName()));
    EXPECT_FALSE(set.isDefaultNode());
    EXPECT_TRUE(set.hasUniqueName());
}

TEST_F(DependencyNodes, AnUnattachedSetFails)
{
    MStatus status;
    const MFnDependencyNode none(MObject::kNullObj, &status);
    EXPECT_EQ("(kInvalidParameter): Argument is a NULL pointer", text(status));
    EXPECT_EQ("", text(none.name(&status)));
    EXPECT_EQ("(kFailure): Object does not exist", text(status));
    EXPECT_TRUE(none.findPlug("tx", true, &status).isNull());
    EXPECT_EQ("(kFailure): Object does not exist", text(status));
    const MFnDependencyNode wrong(set.attribute("tx"), &status);
    EXPECT_EQ("(kInvalidParameter): Object is incompatible with this method", text(status));
}

TEST_F(DependencyNodes, ASetOnADeletedNodeFails)
{
    ASSERT_TRUE(scene.deleteNode(*scene.findNode("thing").value));
    MStatus status;
    EXPECT_EQ("", text(set.name(&status)));
    EXPECT_EQ("(kFailure): Object does not exist", text(status));
}

TEST_F(DependencyNodes, TakenNamesGetANumber)
{
    make("lambert", "skin");
    MFnDependencyNode other(make("lambert", "wool"), nullptr);
    EXPECT_EQ("skin1", text(other.setName("skin")));
    EXPECT_EQ("skin1", text(other.name()));
}

TEST_F(DependencyNodes, PlugsAreFoundByLongAndShortNameAndAttribute)
{
    MStatus status;
    EXPECT_EQ("thing.translateX", text(set.findPlug("translateX", true, &status).name()));
    EXPECT_TRUE(status);
    EXPECT_EQ("thing.translateX", text(set.findPlug("tx", false).name()));
    EXPECT_EQ("thing.translateX", text(set.findPlug("tx").name()));
    EXPECT_EQ("thing.translateX", text(set.findPlug(set.attribute("tx"), true).name()));
}

TEST_F(DependencyNodes, AMissingNameIsAnInvalidParameter)
{
    MStatus status;
    EXPECT_TRUE(set.findPlug("nothing", true, &status).isNull());
    EXPECT_EQ("(kInvalidParameter): Cannot find item of required type", text(status));
    EXPECT_TRUE(set.attribute("nothing", &status).isNull());
    EXPECT_EQ("(kInvalidParameter): Cannot find item of required type", text(status));
    EXPECT_TRUE(set.findPlug("iog[0]", true, &status).isNull());
    EXPECT_FALSE(status);
    const MObject stranger = MFnNumericAttribute().create("stranger", "st", MFnNumericData::kInt);
    EXPECT_TRUE(set.findPlug(stranger, true, &status).isNull());
    EXPECT_FALSE(status);
}

TEST_F(DependencyNodes, AttributesAreListedWithTheirChildrenBehindThem)
{
    const unsigned int count = set.attributeCount();
    std::vector<std::string> names;
    for (unsigned int i = 0; i < count; ++i)
        names.push_back(text(MFnAttribute(set.attribute(i), nullptr).name()));
    const auto translate = std::find(names.begin(), names.end(), "translate");
    ASSERT_NE(names.end(), translate);
    EXPECT_EQ("translateX", *(translate + 1));
    EXPECT_EQ("message", names.front());
    MStatus status;
    EXPECT_TRUE(set.attribute(count, &status).isNull());
    EXPECT_FALSE(status);
}

TEST_F(DependencyNodes, DynamicAttributesComeAndGo)
{
    const MObject made = MFnNumericAttribute().create("extra", "ex", MFnNumericData::kInt, 4);
    ASSERT_TRUE(set.addAttribute(made));
    EXPECT_TRUE(set.hasAttribute("ex"));
    EXPECT_EQ(4, set.findPlug("extra", true).asInt());
    EXPECT_EQ(MFnDependencyNode::kLocalDynamicAttr, set.attributeClass(made));
    EXPECT_EQ(MFnDependencyNode::kNormalAttr, set.attributeClass(set.attribute("tx")));
    EXPECT_FALSE(set.addAttribute(MFnNumericAttribute().create("another", "extra", MFnNumericData::kInt)));
    EXPECT_TRUE(set.removeAttribute(made));
    EXPECT_FALSE(set.hasAttribute("extra"));
    EXPECT_FALSE(set.removeAttribute(set.attribute("tx")));
}

TEST_F(DependencyNodes, ConnectionsAreTheNodesOwnPlugs)
{
    MPlugArray plugs(1, set.findPlug("tx", true));
    EXPECT_TRUE(set.getConnections(plugs));
    EXPECT_EQ(0u, plugs.length());
    MFnDependencyNode other(make("transform", "other"), nullptr);
    MDGModifier modifier;
    modifier.connect(other.findPlug("ty", true), set.findPlug("tx", true));
    modifier.connect(set.findPlug("rx", true), other.findPlug("rz", true));
    ASSERT_TRUE(modifier.doIt());
    EXPECT_TRUE(set.getConnections(plugs));
    ASSERT_EQ(2u, plugs.length());
    EXPECT_EQ("thing.translateX", text(plugs[0].name()));
    EXPECT_EQ("thing.rotateX", text(plugs[1].name()));
}

TEST_F(DependencyNodes, AliasesFindPlugs)
{
    MStatus status;
    EXPECT_TRUE(set.setAlias("across", "tx", set.findPlug("tx", true), true, &status));
    EXPECT_TRUE(status);
    EXPECT_EQ("thing.translateX", text(set.findPlug("across", true).name()));
    EXPECT_EQ("across", text(set.plugsAlias(set.findPlug("tx", true))));
    MObject attribute;
    EXPECT_TRUE(set.findAlias("across", attribute));
    EXPECT_EQ(set.attribute("tx"), attribute);
    MStringArray list;
    EXPECT_TRUE(set.getAliasList(list));
    ASSERT_EQ(2u, list.length());
    EXPECT_EQ("across", text(list[0]));
    EXPECT_TRUE(set.setAlias("across", "tx", set.findPlug("tx", true), false));
    EXPECT_FALSE(set.getAliasList(list));
}

TEST_F(DependencyNodes, AShapeIsMadeBelowATransformWhichIsTheResult)
{
    MStatus status;
    MFnDependencyNode shapeSet;
    const MObject made = shapeSet.create("locator", &status);
    EXPECT_TRUE(status);
    EXPECT_EQ(MFn::kTransform, made.apiType());
}

TEST_F(DependencyNodes, AnUnknownTypeIsRefused)
{
    MStatus status;
    MFnDependencyNode none;
    EXPECT_TRUE(none.create("noSuchType", &status).isNull());
    EXPECT_EQ(MS::kInvalidParameter, status.statusCode());
    EXPECT_TRUE(none.create(MTypeId(0xdead), &status).isNull());
    EXPECT_FALSE(status);
}

TEST_F(DependencyNodes, TheIdentifierOfANodeCanBeReadAndSet)
{
    const MUuid before = set.uuid();
    EXPECT_TRUE(before.valid());
    const MUuid wish("12345678-9ABC-4DEF-8123-456789ABCDEF");
    MStatus status;
    set.setUuid(wish, &status);
    EXPECT_TRUE(status);
    EXPECT_TRUE(set.uuid() == wish);
}

TEST_F(DependencyNodes, StateIsKept)
{
    EXPECT_TRUE(set.setLocked(true));
    EXPECT_TRUE(set.isLocked());
    MStatus status;
    set.setName("other", false, &status);
    EXPECT_FALSE(status);
    EXPECT_EQ("thing", text(set.name()));
    EXPECT_TRUE(set.setLocked(false));
    EXPECT_TRUE(set.canBeWritten());
    EXPECT_TRUE(set.setDoNotWrite(true));
    EXPECT_FALSE(set.canBeWritten());
}

TEST_F(DependencyNodes, WhatAffectsWhatIsTold)
{
    MObjectArray affected;
    EXPECT_TRUE(set.getAffectedAttributes(set.attribute("tx"), affected));
    bool hasMatrix = false;
    for (unsigned int i = 0; i < affected.length(); ++i)
        hasMatrix = hasMatrix || affected[i] == set.attribute("matrix");
    EXPECT_TRUE(hasMatrix);
    EXPECT_FALSE(set.getAffectedAttributes(MObject::kNullObj, affected));
}
