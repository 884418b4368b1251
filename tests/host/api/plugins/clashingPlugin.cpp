// A plug-in that owns the id of another one's node type, and gives up when that is taken.
#include <maya/MFnPlugin.h>
#include <maya/MGlobal.h>
#include <maya/MPxNode.h>

namespace {

void* create()
{
    return new MPxNode;
}

MStatus noAttributes()
{
    return MS::kSuccess;
}

} // namespace

PLUGIN_EXPORT MStatus initializePlugin(MObject object)
{
    MFnPlugin plugin(object, "Clashing Vendor", "1.0");
    plugin.registerNode("before", MTypeId(0x3100), create, noAttributes);
    const MStatus status = plugin.registerNode("clashing", MTypeId(0x3000), create, noAttributes);
    if (!status)
        MGlobal::displayError("clashing: " + status.errorString());
    return status;
}

PLUGIN_EXPORT MStatus uninitializePlugin(MObject object)
{
    MFnPlugin plugin(object);
    plugin.deregisterNode(MTypeId(0x3100));
    return plugin.deregisterNode(MTypeId(0x3000));
}
