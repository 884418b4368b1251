// A plug-in whose entry points have C linkage, and which forgets to clean up after itself.
#include <maya/MFnPlugin.h>
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

extern "C" PLUGIN_EXPORT MStatus initializePlugin(MObject object)
{
    MFnPlugin plugin(object);
    return plugin.registerNode("leftBehind", MTypeId(0x3200), create, noAttributes);
}

extern "C" PLUGIN_EXPORT MStatus uninitializePlugin(MObject)
{
    return MS::kSuccess;
}
