// MNodeClass: what is known of a type of node without any node of it.
#include "../nodeFixture.h"

#include <maya/MFnNumericAttribute.h>
#include <maya/MNodeClass.h>
#include <maya/MObjectArray.h>

using namespace tvxhost::api;
using namespace tvxhost::api::test;

namespace {

using MNodeClassTest = NodeFixture;

class Tinted : public MPxNode
{
public:
    static void* create() { return new Tinted; }
    static MStatus initialize()
    {
        MFnNumericAttribute numeric;
        return addAttribute(numeric.createColor("tint", "tn"));
    }
};

} // namespace

TEST_F(MNodeClassTest, NamesATypeByNameOrNumber)
{
    const MNodeClass transform("transform");
    EXPECT_EQ("transform", text(transform.typeName()));
    EXPECT_EQ(0x5846524du, transform.typeId().id()); // "XFRM"
    EXPECT_EQ("transform", text(MNodeClass(transform.typeId()).typeName()));
    MStatus status(MS::kFailure);
    EXPECT_EQ("", text(transform.pluginName(&status)));
    EXPECT_EQ(MS::kSuccess, status);
}

TEST_F(MNodeClassTest, AnUnknownTypeFails)
{
    MNodeClass none("noSuchType");
    EXPECT_EQ("", text(none.typeName()));
    EXPECT_EQ("", text(none.classification()));
    MStatus status;
    EXPECT_EQ(0u, none.attributeCount(&status));
    EXPECT_EQ("(kFailure): Object does not exist", text(status));
    EXPECT_EQ(MS::kFailure, none.addToClassification("utility"));
    MObjectArray attributes;
    EXPECT_EQ(MS::kFailure, none.getAttributes(attributes));
}

TEST_F(MNodeClassTest, ListsTheAttributesOfAPluginsType)
{
    EXPECT_EQ(MS::kSuccess, registerType("tinted", 0x80012, &Tinted::create, &Tinted::initialize));
    const MNodeClass tinted("tinted");
    EXPECT_EQ("testPlugin", text(tinted.pluginName()));
    const MNodeClass plain("THdependNode");
    EXPECT_EQ(plain.attributeCount() + 4, tinted.attributeCount()) << "a colour and its three numbers";
    MObjectArray attributes;
    EXPECT_EQ(MS::kSuccess, tinted.getAttributes(attributes));
    ASSERT_EQ(tinted.attributeCount(), attributes.length());
    const unsigned int last = attributes.length() - 1;
    EXPECT_EQ("tintB", text(MFnAttribute(attributes[last], nullptr).name()));
    EXPECT_TRUE(attributes[last] == tinted.attribute(last));
    EXPECT_TRUE(tinted.attribute("tintB") == tinted.attribute("tnb"));
    EXPECT_TRUE(tinted.hasAttribute("tint"));
    EXPECT_FALSE(tinted.hasAttribute("hue"));
    MStatus status;
    EXPECT_TRUE(tinted.attribute("hue", &status).isNull());
    EXPECT_EQ("(kInvalidParameter): Cannot find item of required type", text(status));
    EXPECT_TRUE(tinted.attribute(last + 1, &status).isNull());
    EXPECT_EQ("(kInvalidParameter): No element at given index", text(status));
}

TEST_F(MNodeClassTest, WordsOfTheClassificationComeAndGo)
{
    EXPECT_EQ(MS::kSuccess, registerType("tinted", 0x80012, &Tinted::create, &Tinted::initialize));
    MNodeClass tinted("tinted");
    EXPECT_EQ(MS::kSuccess, tinted.addToClassification("utility/general"));
    EXPECT_EQ(MS::kSuccess, tinted.addToClassification("drawdb/geometry"));
    EXPECT_EQ("utility/general:drawdb/geometry", text(tinted.classification()));
    EXPECT_EQ("utility/general:drawdb/geometry", text(MFnDependencyNode::classification("tinted")));
    EXPECT_EQ(MS::kFailure, tinted.removeFromClassification("utility"));
    EXPECT_EQ(MS::kSuccess, tinted.removeFromClassification("utility/general"));
    EXPECT_EQ("drawdb/geometry", text(tinted.classification()));
    EXPECT_EQ(MS::kSuccess, tinted.removeFromClassification("drawdb/geometry"));
    EXPECT_EQ("", text(tinted.classification()));
}

TEST_F(MNodeClassTest, AttributesOfAllNodesOfATypeAreNotDone)
{
    const MNodeClass transform("transform");
    EXPECT_EQ(MS::kNotImplemented, transform.addExtensionAttribute(MObject()));
    EXPECT_EQ(MS::kNotImplemented, transform.addExtensionAttribute(MObject()));
    EXPECT_EQ((std::vector<std::string>{"Not implemented: MNodeClass::addExtensionAttribute"}),
              shown(scene, tvxhost::engine::MessageKind::error));
}
