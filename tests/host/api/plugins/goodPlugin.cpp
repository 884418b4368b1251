// A plug-in that does what plug-ins do: a node type, a locator, a command, an interface.
#include <maya/MArgList.h>
#include <maya/MDataBlock.h>
#include <maya/MDataHandle.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnPlugin.h>
#include <maya/MGlobal.h>
#include <maya/MPxCommand.h>
#include <maya/MPxLocatorNode.h>
#include <maya/MPxNode.h>

namespace {

class Doubler : public MPxNode
{
public:
    static void* create() { return new Doubler; }
    static MStatus initialize()
    {
        MFnNumericAttribute set;
        input = set.create("input", "in", MFnNumericData::kDouble);
        output = set.create("output", "out", MFnNumericData::kDouble);
        addAttribute(input);
        addAttribute(output);
        return attributeAffects(input, output);
    }
    MStatus compute(const MPlug& plug, MDataBlock& block) override
    {
        if (plug != output)
            return MS::kUnknownParameter;
        block.outputValue(output).setDouble(2.0 * block.inputValue(input).asDouble());
        return block.setClean(plug);
    }

private:
    static MObject input, output;
};

MObject Doubler::input;
MObject Doubler::output;

class Pin : public MPxLocatorNode
{
public:
    static void* create() { return new Pin; }
};

MStatus noAttributes()
{
    return MS::kSuccess;
}

class Greet : public MPxCommand
{
public:
    static void* create() { return new Greet; }
    MStatus doIt(const MArgList&) override
    {
        setResult("hello");
        return MS::kSuccess;
    }
};

const MTypeId kDoublerId(0x3000);
const MTypeId kPinId(0x3001);

} // namespace

PLUGIN_EXPORT MStatus initializePlugin(MObject object)
{
    MGlobal::displayInfo("good plug-in: initialize");
    MFnPlugin plugin(object, "Good Vendor", "2.5", "Any");
    plugin.registerNode("doubler", kDoublerId, Doubler::create, Doubler::initialize);
    plugin.registerNode("pinLocator", kPinId, Pin::create, noAttributes, MPxNode::kLocatorNode);
    plugin.registerCommand("greet", Greet::create);
    return plugin.registerUI("goodCreate", "goodDelete", "goodBatchCreate", "");
}

PLUGIN_EXPORT MStatus uninitializePlugin(MObject object)
{
    MGlobal::displayInfo("good plug-in: uninitialize");
    MFnPlugin plugin(object);
    plugin.deregisterCommand("greet");
    plugin.deregisterNode(kPinId);
    return plugin.deregisterNode(kDoublerId);
}
