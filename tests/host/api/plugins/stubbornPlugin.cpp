// A plug-in that cannot be uninitialised.
#include <maya/MFnPlugin.h>

PLUGIN_EXPORT MStatus initializePlugin(MObject object)
{
    MFnPlugin plugin(object);
    return plugin.setName("stubborn");
}

PLUGIN_EXPORT MStatus uninitializePlugin(MObject)
{
    return MS::kFailure;
}
