// MItMeshPolygon: what the host cannot do; each answers kNotImplemented and says so once.
#include <maya/MItMeshPolygon.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"

using tvxhost::api::notImplemented;

unsigned int MItMeshPolygon::tangentIndex(int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshPolygon::tangentIndex", ReturnStatus, 0);
    notImplemented("MItMeshPolygon::tangentIndex", ReturnStatus);
    return 0;
}

MStatus MItMeshPolygon::getPointAtUV(MPoint&, float2&, MSpace::Space, const MString*, float)
{
    TVX_API_CALL("MItMeshPolygon::getPointAtUV");
    return notImplemented("MItMeshPolygon::getPointAtUV");
}

MStatus MItMeshPolygon::getAxisAtUV(MVector&, MVector&, MVector&, float2&, MSpace::Space, const MString*,
                                    float)
{
    TVX_API_CALL("MItMeshPolygon::getAxisAtUV");
    return notImplemented("MItMeshPolygon::getAxisAtUV");
}

MStatus MItMeshPolygon::getUVAtPoint(MPoint&, float2&, MSpace::Space, const MString*)
{
    TVX_API_CALL("MItMeshPolygon::getUVAtPoint");
    return notImplemented("MItMeshPolygon::getUVAtPoint");
}

bool MItMeshPolygon::hasColor(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshPolygon::hasColor", ReturnStatus, false);
    notImplemented("MItMeshPolygon::hasColor", ReturnStatus);
    return false;
}

bool MItMeshPolygon::hasColor(int, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::hasColor", ReturnStatus, false);
    notImplemented("MItMeshPolygon::hasColor", ReturnStatus);
    return false;
}

MStatus MItMeshPolygon::getColor(MColor&, const MString*)
{
    TVX_API_CALL("MItMeshPolygon::getColor");
    return notImplemented("MItMeshPolygon::getColor");
}

MStatus MItMeshPolygon::getColor(MColor&, int)
{
    TVX_API_CALL("MItMeshPolygon::getColor");
    return notImplemented("MItMeshPolygon::getColor");
}

MStatus MItMeshPolygon::getColors(MColorArray&, const MString*)
{
    TVX_API_CALL("MItMeshPolygon::getColors");
    return notImplemented("MItMeshPolygon::getColors");
}

MStatus MItMeshPolygon::numColors(int&, const MString*)
{
    TVX_API_CALL("MItMeshPolygon::numColors");
    return notImplemented("MItMeshPolygon::numColors");
}

MStatus MItMeshPolygon::getColorIndex(int, int&, const MString*)
{
    TVX_API_CALL("MItMeshPolygon::getColorIndex");
    return notImplemented("MItMeshPolygon::getColorIndex");
}

MStatus MItMeshPolygon::getColorIndices(MIntArray&, const MString*)
{
    TVX_API_CALL("MItMeshPolygon::getColorIndices");
    return notImplemented("MItMeshPolygon::getColorIndices");
}

bool MItMeshPolygon::updateColorSet(const MString*, int&)
{
    notImplemented("MItMeshPolygon::updateColorSet");
    return false;
}

void MItMeshPolygon::resetColorSetToPrevious(const MString*, int)
{
    notImplemented("MItMeshPolygon::resetColorSetToPrevious");
}
