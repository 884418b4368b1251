// A scene with the plug-in loaded, and the handling of its nodes through the API.
#include "NodeTest.h"

#include <maya/MDGModifier.h>
#include <maya/MDataBlock.h>
#include <maya/MFnDagNode.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MPxNode.h>

namespace tarvox::crowd::test {

void NodeTest::SetUp()
{
    ASSERT_TRUE(session.load());
    session.takeReports();
}

MObject NodeTest::createNode(const char* type)
{
    return MFnDependencyNode().create(type);
}

MObject NodeTest::createShape(const char* type)
{
    const MObject made = MFnDagNode().create(type);
    return made.hasFn(MFn::kTransform) ? MFnDagNode(made, nullptr).child(0) : made;
}

std::string NodeTest::nameOf(const MObject& node)
{
    return MFnDependencyNode(node, nullptr).name().asChar();
}

MPlug NodeTest::plugOf(const MObject& node, const char* attribute)
{
    return MFnDependencyNode(node, nullptr).findPlug(attribute, true);
}

std::vector<MPlug> NodeTest::plugsOf(const MObject& node)
{
    const MFnDependencyNode function(node, nullptr);
    std::vector<MPlug> plugs;
    for (unsigned int i = 0; i < function.attributeCount(); ++i)
        plugs.emplace_back(node, function.attribute(i));
    return plugs;
}

Color NodeTest::colorOf(const MPlug& plug)
{
    return {plug.child(0).asFloat(), plug.child(1).asFloat(), plug.child(2).asFloat()};
}

void NodeTest::setColor(const MPlug& plug, const Color& color)
{
    for (unsigned int i = 0; i < 3; ++i)
        EXPECT_TRUE(plug.child(i).setFloat(color[i]));
}

void NodeTest::connect(const MPlug& source, const MPlug& destination)
{
    MDGModifier modifier;
    EXPECT_TRUE(modifier.connect(source, destination));
    EXPECT_TRUE(modifier.doIt());
}

bool NodeTest::isDirty(const MPlug& plug)
{
    return tvxhost::engine::isDirty(session.scene.findPlug(plug.name().asChar()).value);
}

MStatus NodeTest::compute(const MObject& node, const MPlug& plug)
{
    MPxNode* code = MFnDependencyNode(node, nullptr).userNode();
    MDataBlock block = code->_forceCache();
    return code->compute(plug, block);
}

Lines NodeTest::computedBeside(const MObject& node, const char* output)
{
    Lines names;
    for (const MPlug& plug : plugsOf(node)) {
        const MPlug whole = plug.isChild() ? plug.parent() : plug;
        const bool isOutput = whole.partialName(false, false, false, false, false, true) == output;
        if (!isOutput && compute(node, plug) != MStatus::kUnknownParameter)
            names.push_back(plug.name().asChar());
    }
    return names;
}

} // namespace tarvox::crowd::test
