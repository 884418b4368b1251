// The plug-in rulerLocator: one locator.
#include "rulerLocatorNode.h"

#include <maya/MFnPlugin.h>

using rulerLocator::RulerLocatorNode;

PLUGIN_EXPORT MStatus initializePlugin(MObject object)
{
    MFnPlugin plugin(object, "Tarvox", "1.0");
    return plugin.registerNode(RulerLocatorNode::typeName, RulerLocatorNode::id, RulerLocatorNode::creator,
                               RulerLocatorNode::initialize, MPxNode::kLocatorNode);
}

PLUGIN_EXPORT MStatus uninitializePlugin(MObject object)
{
    MFnPlugin plugin(object);
    return plugin.deregisterNode(RulerLocatorNode::id);
}
