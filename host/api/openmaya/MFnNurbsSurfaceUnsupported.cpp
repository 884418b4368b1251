// MFnNurbsSurface: what the host does not do: kNotImplemented, said once.
#include <maya/MFnNurbsSurface.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"

#include <maya/MDoubleArray.h>
#include <maya/MFloatArray.h>
#include <maya/MIntArray.h>
#include <maya/MPointArray.h>

using tvxhost::api::notImplemented;

MObject MFnNurbsSurface::cv(unsigned int, unsigned int, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsSurface::cv", ReturnStatus, MObject());
    notImplemented("MFnNurbsSurface::cv", ReturnStatus);
    return MObject();
}

MObject MFnNurbsSurface::cvsInU(unsigned int, unsigned int, unsigned int, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsSurface::cvsInU", ReturnStatus, MObject());
    notImplemented("MFnNurbsSurface::cvsInU", ReturnStatus);
    return MObject();
}

MObject MFnNurbsSurface::cvsInV(unsigned int, unsigned int, unsigned int, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsSurface::cvsInV", ReturnStatus, MObject());
    notImplemented("MFnNurbsSurface::cvsInV", ReturnStatus);
    return MObject();
}

MStatus MFnNurbsSurface::removeKnotInU(double, bool)
{
    TVX_API_CALL("MFnNurbsSurface::removeKnotInU");
    return notImplemented("MFnNurbsSurface::removeKnotInU");
}

MStatus MFnNurbsSurface::removeKnotInV(double, bool)
{
    TVX_API_CALL("MFnNurbsSurface::removeKnotInV");
    return notImplemented("MFnNurbsSurface::removeKnotInV");
}

MStatus MFnNurbsSurface::removeOneKnotInU(double)
{
    TVX_API_CALL("MFnNurbsSurface::removeOneKnotInU");
    return notImplemented("MFnNurbsSurface::removeOneKnotInU");
}

MStatus MFnNurbsSurface::removeOneKnotInV(double)
{
    TVX_API_CALL("MFnNurbsSurface::removeOneKnotInV");
    return notImplemented("MFnNurbsSurface::removeOneKnotInV");
}

bool MFnNurbsSurface::isFoldedOnBispan() const
{
    notImplemented("MFnNurbsSurface::isFoldedOnBispan");
    return false;
}

MObject MFnNurbsSurface::tesselate(MTesselationParams&, MObject, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsSurface::tesselate", ReturnStatus, MObject());
    notImplemented("MFnNurbsSurface::tesselate", ReturnStatus);
    return MObject();
}

MObject MFnNurbsSurface::tesselate(MTesselationParams&, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsSurface::tesselate", ReturnStatus, MObject());
    notImplemented("MFnNurbsSurface::tesselate", ReturnStatus);
    return MObject();
}

bool MFnNurbsSurface::intersect(const MPoint&, const MVector&, double&, double&, MPoint&, double,
                                MSpace::Space, bool, double*, bool, bool*, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsSurface::intersect", ReturnStatus, false);
    notImplemented("MFnNurbsSurface::intersect", ReturnStatus);
    return false;
}

bool MFnNurbsSurface::intersect(const MPoint&, const MVector&, MDoubleArray&, MDoubleArray&, MPointArray&,
                                double, MSpace::Space, bool, MDoubleArray*, bool, bool*,
                                MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsSurface::intersect", ReturnStatus, false);
    notImplemented("MFnNurbsSurface::intersect", ReturnStatus);
    return false;
}

unsigned int MFnNurbsSurface::numRegions(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsSurface::numRegions", ReturnStatus, 0);
    notImplemented("MFnNurbsSurface::numRegions", ReturnStatus);
    return 0;
}

bool MFnNurbsSurface::isFlipNorm(unsigned int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsSurface::isFlipNorm", ReturnStatus, false);
    notImplemented("MFnNurbsSurface::isFlipNorm", ReturnStatus);
    return false;
}

unsigned int MFnNurbsSurface::numBoundaries(unsigned int, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsSurface::numBoundaries", ReturnStatus, 0);
    notImplemented("MFnNurbsSurface::numBoundaries", ReturnStatus);
    return 0;
}

MFnNurbsSurface::BoundaryType MFnNurbsSurface::boundaryType(unsigned int, unsigned int, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsSurface::boundaryType", ReturnStatus, kInvalidBoundary);
    notImplemented("MFnNurbsSurface::boundaryType", ReturnStatus);
    return kInvalidBoundary;
}

unsigned int MFnNurbsSurface::numEdges(unsigned int, unsigned int, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsSurface::numEdges", ReturnStatus, 0);
    notImplemented("MFnNurbsSurface::numEdges", ReturnStatus);
    return 0;
}

MObjectArray MFnNurbsSurface::edge(unsigned int, unsigned int, unsigned int, bool, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsSurface::edge", ReturnStatus, MObjectArray());
    notImplemented("MFnNurbsSurface::edge", ReturnStatus);
    return MObjectArray();
}

bool MFnNurbsSurface::isPointInTrimmedRegion(double, double, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsSurface::isPointInTrimmedRegion", ReturnStatus, false);
    notImplemented("MFnNurbsSurface::isPointInTrimmedRegion", ReturnStatus);
    return false;
}

MStatus MFnNurbsSurface::getTrimBoundaries(MTrimBoundaryArray&, unsigned int, bool)
{
    TVX_API_CALL("MFnNurbsSurface::getTrimBoundaries");
    return notImplemented("MFnNurbsSurface::getTrimBoundaries");
}

MStatus MFnNurbsSurface::trimWithBoundaries(const MTrimBoundaryArray&, bool, double, double, bool)
{
    TVX_API_CALL("MFnNurbsSurface::trimWithBoundaries");
    return notImplemented("MFnNurbsSurface::trimWithBoundaries");
}

MStatus MFnNurbsSurface::projectCurve(const MDagPath&, const MVector*, bool)
{
    TVX_API_CALL("MFnNurbsSurface::projectCurve");
    return notImplemented("MFnNurbsSurface::projectCurve");
}

MStatus MFnNurbsSurface::trim(const MDoubleArray&, const MDoubleArray&, bool)
{
    TVX_API_CALL("MFnNurbsSurface::trim");
    return notImplemented("MFnNurbsSurface::trim");
}

int MFnNurbsSurface::numUVs(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsSurface::numUVs", ReturnStatus, 0);
    notImplemented("MFnNurbsSurface::numUVs", ReturnStatus);
    return 0;
}

MStatus MFnNurbsSurface::setUVs(const MFloatArray&, const MFloatArray&)
{
    TVX_API_CALL("MFnNurbsSurface::setUVs");
    return notImplemented("MFnNurbsSurface::setUVs");
}

MStatus MFnNurbsSurface::getUVs(MFloatArray&, MFloatArray&) const
{
    TVX_API_CALL("MFnNurbsSurface::getUVs");
    return notImplemented("MFnNurbsSurface::getUVs");
}

MStatus MFnNurbsSurface::setUV(int, float, float)
{
    TVX_API_CALL("MFnNurbsSurface::setUV");
    return notImplemented("MFnNurbsSurface::setUV");
}

MStatus MFnNurbsSurface::getUV(int, float&, float&) const
{
    TVX_API_CALL("MFnNurbsSurface::getUV");
    return notImplemented("MFnNurbsSurface::getUV");
}

MStatus MFnNurbsSurface::getPatchUV(int, int, float&, float&) const
{
    TVX_API_CALL("MFnNurbsSurface::getPatchUV");
    return notImplemented("MFnNurbsSurface::getPatchUV");
}

MStatus MFnNurbsSurface::getPatchUVs(int, MFloatArray&, MFloatArray&) const
{
    TVX_API_CALL("MFnNurbsSurface::getPatchUVs");
    return notImplemented("MFnNurbsSurface::getPatchUVs");
}

MStatus MFnNurbsSurface::getPatchUVid(int, int, int&) const
{
    TVX_API_CALL("MFnNurbsSurface::getPatchUVid");
    return notImplemented("MFnNurbsSurface::getPatchUVid");
}

MStatus MFnNurbsSurface::assignUV(int, int, int)
{
    TVX_API_CALL("MFnNurbsSurface::assignUV");
    return notImplemented("MFnNurbsSurface::assignUV");
}

MStatus MFnNurbsSurface::assignUVs(const MIntArray&, const MIntArray&)
{
    TVX_API_CALL("MFnNurbsSurface::assignUVs");
    return notImplemented("MFnNurbsSurface::assignUVs");
}

MStatus MFnNurbsSurface::clearUVs()
{
    TVX_API_CALL("MFnNurbsSurface::clearUVs");
    return notImplemented("MFnNurbsSurface::clearUVs");
}

MStatus MFnNurbsSurface::getAssignedUVs(MIntArray&, MIntArray&) const
{
    TVX_API_CALL("MFnNurbsSurface::getAssignedUVs");
    return notImplemented("MFnNurbsSurface::getAssignedUVs");
}

MStatus MFnNurbsSurface::getConnectedShaders(unsigned int, MObjectArray&, MIntArray&) const
{
    TVX_API_CALL("MFnNurbsSurface::getConnectedShaders");
    return notImplemented("MFnNurbsSurface::getConnectedShaders");
}

bool MFnNurbsSurface::getUVSetIndex(const MString*, int&) const
{
    notImplemented("MFnNurbsSurface::getUVSetIndex");
    return false;
}

bool MFnNurbsSurface::curveToMObjects(ag_curve*, MObjectArray&, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsSurface::curveToMObjects", ReturnStatus, false);
    notImplemented("MFnNurbsSurface::curveToMObjects", ReturnStatus);
    return false;
}

bool MFnNurbsSurface::trimWithBoundariesInHistory(const TnurbsCurvePtrArray&, bool, double, double, bool,
                                                  MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsSurface::trimWithBoundariesInHistory", ReturnStatus, false);
    notImplemented("MFnNurbsSurface::trimWithBoundariesInHistory", ReturnStatus);
    return false;
}
