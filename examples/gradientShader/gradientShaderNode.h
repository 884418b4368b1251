// The shading node gradientShader.
#pragma once

#include "rampAttribute.h"

#include <maya/MPxNode.h>
#include <maya/MString.h>
#include <maya/MTypeId.h>

namespace gradientShader {

/// Looks a colour and an alpha up in two ramps, at one coordinate.
class GradientShaderNode : public MPxNode
{
public:
    static const MString typeName;
    static const MTypeId id;
    static const MString classification;

    static MObject coordinate;
    static RampAttribute colorRamp;
    static RampAttribute alphaRamp;
    static MObject outColor;
    static MObject outAlpha;

    static void* creator();
    static MStatus initialize();

    MStatus compute(const MPlug& plug, MDataBlock& block) override;
};

} // namespace gradientShader
