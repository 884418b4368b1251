// A plug-in that owns one of the ids of the plug-in under test.
#include <maya/MFnPlugin.h>
#include <maya/MPxNode.h>
#include <maya/MTypeId.h>

namespace {

class Owner : public MPxNode
{
public:
    static void* creator() { return new Owner; }
    static MStatus initialize() { return MStatus::kSuccess; }
};

} // namespace

PLUGIN_EXPORT MStatus initializePlugin(MObject object)
{
    MFnPlugin plugin(object, "Somebody else", "1.0");
    return plugin.registerNode("OwnerOfTheId", MTypeId(TVX_OWNED_ID), Owner::creator, Owner::initialize);
}

PLUGIN_EXPORT MStatus uninitializePlugin(MObject object)
{
    MFnPlugin plugin(object);
    return plugin.deregisterNode(MTypeId(TVX_OWNED_ID));
}
