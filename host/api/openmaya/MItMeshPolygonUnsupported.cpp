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

bool MItMeshPolygon::hasUVs(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshPolygon::hasUVs", ReturnStatus, false);
    notImplemented("MItMeshPolygon::hasUVs", ReturnStatus);
    return false;
}

bool MItMeshPolygon::hasUVs(const MString&, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshPolygon::hasUVs", ReturnStatus, false);
    notImplemented("MItMeshPolygon::hasUVs", ReturnStatus);
    return false;
}

MStatus MItMeshPolygon::setUV(int, float2&, const MString*)
{
    TVX_API_CALL("MItMeshPolygon::setUV");
    return notImplemented("MItMeshPolygon::setUV");
}

MStatus MItMeshPolygon::getUV(int, float2&, const MString*) const
{
    TVX_API_CALL("MItMeshPolygon::getUV");
    return notImplemented("MItMeshPolygon::getUV");
}

MStatus MItMeshPolygon::setUVs(MFloatArray&, MFloatArray&, const MString*)
{
    TVX_API_CALL("MItMeshPolygon::setUVs");
    return notImplemented("MItMeshPolygon::setUVs");
}

MStatus MItMeshPolygon::getUVs(MFloatArray&, MFloatArray&, const MString*) const
{
    TVX_API_CALL("MItMeshPolygon::getUVs");
    return notImplemented("MItMeshPolygon::getUVs");
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

MStatus MItMeshPolygon::getUVIndex(int, int&, const MString*)
{
    TVX_API_CALL("MItMeshPolygon::getUVIndex");
    return notImplemented("MItMeshPolygon::getUVIndex");
}

MStatus MItMeshPolygon::getUVIndex(int, int&, float&, float&, const MString*)
{
    TVX_API_CALL("MItMeshPolygon::getUVIndex");
    return notImplemented("MItMeshPolygon::getUVIndex");
}

MStatus MItMeshPolygon::getUVSetNames(MStringArray&) const
{
    TVX_API_CALL("MItMeshPolygon::getUVSetNames");
    return notImplemented("MItMeshPolygon::getUVSetNames");
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

MStatus MItMeshPolygon::getUVArea(double&, const MString*)
{
    TVX_API_CALL("MItMeshPolygon::getUVArea");
    return notImplemented("MItMeshPolygon::getUVArea");
}

bool MItMeshPolygon::zeroUVArea(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::zeroUVArea", ReturnStatus, false);
    notImplemented("MItMeshPolygon::zeroUVArea", ReturnStatus);
    return false;
}

bool MItMeshPolygon::zeroUVArea(const MString&, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::zeroUVArea", ReturnStatus, false);
    notImplemented("MItMeshPolygon::zeroUVArea", ReturnStatus);
    return false;
}

bool MItMeshPolygon::getUVSetIndex(const MString*, int&) const
{
    notImplemented("MItMeshPolygon::getUVSetIndex");
    return false;
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
