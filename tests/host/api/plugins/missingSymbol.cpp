// A plug-in that needs a function which nobody has.
#include <maya/MFnPlugin.h>

int nobodyHasThis();

PLUGIN_EXPORT MStatus initializePlugin(MObject)
{
    return nobodyHasThis() == 0 ? MS::kSuccess : MS::kFailure;
}

PLUGIN_EXPORT MStatus uninitializePlugin(MObject)
{
    return MS::kSuccess;
}
