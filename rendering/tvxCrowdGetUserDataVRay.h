// The V-Ray user-data node.
#pragma once

#include <maya/MPxNode.h>
#include <maya/MString.h>
#include <maya/MTypeId.h>

namespace tarvox::crowd {

/// Stands in a shading network for a number that V-Ray supplies per entity. Inside Maya the output keeps its
/// default, 0.
class CrowdGetUserDataVRay : public MPxNode
{
public:
    static const MTypeId id;
    static const MString classification;

    static MObject output;
    static MObject paramType;
    static MObject defaultValue;

    /// @return a new instance, which Maya owns; null when there is no memory for it
    static void* creator();
    /// Declares the attributes and what they affect.
    /// @return MS::kFailure at the first failure, which is reported
    static MStatus initialize();

    /// Marks "output" clean, as it is, when asked for it; for any other plug MS::kUnknownParameter.
    MStatus compute(const MPlug& plug, MDataBlock& dataBlock) override;
};

} // namespace tarvox::crowd
