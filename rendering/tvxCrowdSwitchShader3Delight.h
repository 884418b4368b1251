// The 3Delight shader switch node.
#pragma once

#include "rendering/tvxShadingCode3Delight.h"

#include <maya/MString.h>
#include <maya/MTypeId.h>

namespace tarvox::crowd {

/// Stands in a shading network where 3Delight picks one of several shading inputs per entity. The code that
/// chooses is in its strings.
class CrowdSwitchShader3Delight : public ShadingCode3Delight<CrowdSwitchShader3Delight>
{
public:
    static const MTypeId id;
    static const MString classification;

    /// Declares the attributes.
    /// @return MS::kFailure at the first failure, which is reported
    static MStatus initialize();
};

} // namespace tarvox::crowd
