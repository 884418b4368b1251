// MItMeshVertex: what the host cannot do; each answers kNotImplemented and says so once.
#include <maya/MItMeshVertex.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"

using tvxhost::api::notImplemented;

MStatus MItMeshVertex::numUVs(int&, const MString*)
{
    TVX_API_CALL("MItMeshVertex::numUVs");
    return notImplemented("MItMeshVertex::numUVs");
}

MStatus MItMeshVertex::setUV(float2&, const MString*)
{
    TVX_API_CALL("MItMeshVertex::setUV");
    return notImplemented("MItMeshVertex::setUV");
}

MStatus MItMeshVertex::getUV(float2&, const MString*)
{
    TVX_API_CALL("MItMeshVertex::getUV");
    return notImplemented("MItMeshVertex::getUV");
}

MStatus MItMeshVertex::setUV(int, float2&, const MString*)
{
    TVX_API_CALL("MItMeshVertex::setUV");
    return notImplemented("MItMeshVertex::setUV");
}

MStatus MItMeshVertex::getUV(int, float2&, const MString*) const
{
    TVX_API_CALL("MItMeshVertex::getUV");
    return notImplemented("MItMeshVertex::getUV");
}

MStatus MItMeshVertex::setUVs(MFloatArray&, MFloatArray&, MIntArray&, const MString*)
{
    TVX_API_CALL("MItMeshVertex::setUVs");
    return notImplemented("MItMeshVertex::setUVs");
}

MStatus MItMeshVertex::getUVs(MFloatArray&, MFloatArray&, MIntArray&, const MString*) const
{
    TVX_API_CALL("MItMeshVertex::getUVs");
    return notImplemented("MItMeshVertex::getUVs");
}

MStatus MItMeshVertex::getUVIndices(MIntArray&, const MString*) const
{
    TVX_API_CALL("MItMeshVertex::getUVIndices");
    return notImplemented("MItMeshVertex::getUVIndices");
}

bool MItMeshVertex::hasColor(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshVertex::hasColor", ReturnStatus, false);
    notImplemented("MItMeshVertex::hasColor", ReturnStatus);
    return false;
}

bool MItMeshVertex::hasColor(int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshVertex::hasColor", ReturnStatus, false);
    notImplemented("MItMeshVertex::hasColor", ReturnStatus);
    return false;
}

MStatus MItMeshVertex::getColor(MColor&, int, const MString*) const
{
    TVX_API_CALL("MItMeshVertex::getColor");
    return notImplemented("MItMeshVertex::getColor");
}

MStatus MItMeshVertex::getColor(MColor&, const MString*) const
{
    TVX_API_CALL("MItMeshVertex::getColor");
    return notImplemented("MItMeshVertex::getColor");
}

MStatus MItMeshVertex::getColors(MColorArray&, const MString*) const
{
    TVX_API_CALL("MItMeshVertex::getColors");
    return notImplemented("MItMeshVertex::getColors");
}

MStatus MItMeshVertex::getColorIndices(MIntArray&, const MString*) const
{
    TVX_API_CALL("MItMeshVertex::getColorIndices");
    return notImplemented("MItMeshVertex::getColorIndices");
}

bool MItMeshVertex::getUVSetIndex(const MString*, int&) const
{
    notImplemented("MItMeshVertex::getUVSetIndex");
    return false;
}

bool MItMeshVertex::updateColorSet(const MString*, int&) const
{
    notImplemented("MItMeshVertex::updateColorSet");
    return false;
}

void MItMeshVertex::resetColorSetToPrevious(const MString*, int) const
{
    notImplemented("MItMeshVertex::resetColorSetToPrevious");
}
