// A plug-in that throws when it is loaded.
#include <maya/MFnPlugin.h>

#include <stdexcept>

PLUGIN_EXPORT MStatus initializePlugin(MObject)
{
    throw std::runtime_error("not today");
}

PLUGIN_EXPORT MStatus uninitializePlugin(MObject)
{
    return MS::kSuccess;
}
