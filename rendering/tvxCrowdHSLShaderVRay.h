// The V-Ray HSL shader node.
#pragma once

#include <maya/MPxNode.h>
#include <maya/MString.h>
#include <maya/MTypeId.h>

namespace tarvox::crowd {

/// Holds the offsets of hue, saturation and lightness that V-Ray's shader applies to a colour. Inside Maya
/// the output is the colour as it comes in, for the viewport and the swatch.
class CrowdHSLShaderVRay : public MPxNode
{
public:
    static const MTypeId id;
    static const MString classification;

    static MObject output;
    static MObject h;
    static MObject s;
    static MObject l;
    static MObject input;

    /// @return a new instance, which Maya owns; null when there is no memory for it
    static void* creator();
    /// Declares the attributes and what they affect.
    /// @return MS::kFailure at the first failure, which is reported
    static MStatus initialize();

    /// Copies "input" to "output" when asked for the output or one of its children; for any other plug
    /// MS::kUnknownParameter.
    MStatus compute(const MPlug& plug, MDataBlock& dataBlock) override;
};

} // namespace tarvox::crowd
