// MItMeshVertex: what the host cannot do; each answers kNotImplemented and says so once.
#include <maya/MItMeshVertex.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"

using tvxhost::api::notImplemented;

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

bool MItMeshVertex::updateColorSet(const MString*, int&) const
{
    notImplemented("MItMeshVertex::updateColorSet");
    return false;
}

void MItMeshVertex::resetColorSetToPrevious(const MString*, int) const
{
    notImplemented("MItMeshVertex::resetColorSetToPrevious");
}
