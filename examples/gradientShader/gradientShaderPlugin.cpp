// The plug-in gradientShader: one shading node.
#include "gradientShaderNode.h"

#include <maya/MFnPlugin.h>

using gradientShader::GradientShaderNode;

PLUGIN_EXPORT MStatus initializePlugin(MObject object)
{
    MFnPlugin plugin(object, "Tarvox", "1.0");
    return plugin.registerNode(GradientShaderNode::typeName, GradientShaderNode::id,
                               GradientShaderNode::creator, GradientShaderNode::initialize,
                               MPxNode::kDependNode, &GradientShaderNode::classification);
}

PLUGIN_EXPORT MStatus uninitializePlugin(MObject object)
{
    MFnPlugin plugin(object);
    return plugin.deregisterNode(GradientShaderNode::id);
}
