// The V-Ray shader switch node.
#pragma once

#include <maya/MPxNode.h>
#include <maya/MString.h>
#include <maya/MTypeId.h>

namespace tarvox::crowd {

/// Holds what V-Ray's shader needs to pick one of ten shading inputs per entity. The choice is the
/// renderer's: inside Maya the output is always the first input, for the viewport and the swatch.
class CrowdSwitchShaderVRay : public MPxNode
{
public:
    static constexpr int kShaderCount = 10;

    static const MTypeId id;
    static const MString classification;

    static MObject output;
    static MObject selector;
    static MObject startOffset;
    static MObject defaultShader;
    static MObject shaders[kShaderCount];

    /// @return a new instance, which Maya owns; null when there is no memory for it
    static void* creator();
    /// Declares the attributes and what they affect.
    /// @return MS::kFailure at the first failure, which is reported
    static MStatus initialize();

    /// Copies "shader0" to "output" when asked for the output or one of its children; for any other plug
    /// MS::kUnknownParameter.
    MStatus compute(const MPlug& plug, MDataBlock& dataBlock) override;
};

} // namespace tarvox::crowd
