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

MStatus MItMeshPolygon::getAxisAtUV(MVector&, MVector&, MVector&, float2&, MSpace::Space, const MString*,
                                    float)
{
    TVX_API_CALL("MItMeshPolygon::getAxisAtUV");
    return notImplemented("MItMeshPolygon::getAxisAtUV");
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
