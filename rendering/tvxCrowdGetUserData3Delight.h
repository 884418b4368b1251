// The 3Delight user-data node.
#pragma once

#include "rendering/tvxShadingCode3Delight.h"

#include <maya/MString.h>
#include <maya/MTypeId.h>

namespace tarvox::crowd {

/// Stands in a shading network for a value that 3Delight supplies per entity. The code that fetches it is in
/// its strings.
class CrowdGetUserData3Delight : public ShadingCode3Delight<CrowdGetUserData3Delight>
{
public:
    static const MTypeId id;
    static const MString classification;

    /// Declares the attributes.
    /// @return MS::kFailure at the first failure, which is reported
    static MStatus initialize();
};

} // namespace tarvox::crowd
