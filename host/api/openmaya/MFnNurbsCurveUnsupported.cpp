// MFnNurbsCurve: what the host does not do: kNotImplemented, said once.
#include <maya/MFnNurbsCurve.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"

#include <maya/MDoubleArray.h>
#include <maya/MObjectArray.h>
#include <maya/MPointArray.h>

using tvxhost::api::notImplemented;

MObject MFnNurbsCurve::createWithEditPoints(const MPointArray&, unsigned int, Form, bool, bool, bool,
                                            MObject&, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsCurve::createWithEditPoints", ReturnStatus, MObject());
    notImplemented("MFnNurbsCurve::createWithEditPoints", ReturnStatus);
    return MObject();
}

MObject MFnNurbsCurve::create(const MObjectArray&, MObject&, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsCurve::create", ReturnStatus, MObject());
    notImplemented("MFnNurbsCurve::create", ReturnStatus);
    return MObject();
}

MObject MFnNurbsCurve::copy(const MObject&, MObject&, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsCurve::copy", ReturnStatus, MObject());
    notImplemented("MFnNurbsCurve::copy", ReturnStatus);
    return MObject();
}

MStatus MFnNurbsCurve::reverse(bool)
{
    TVX_API_CALL("MFnNurbsCurve::reverse");
    return notImplemented("MFnNurbsCurve::reverse");
}

MStatus MFnNurbsCurve::makeMultipleEndKnots()
{
    TVX_API_CALL("MFnNurbsCurve::makeMultipleEndKnots");
    return notImplemented("MFnNurbsCurve::makeMultipleEndKnots");
}

MStatus MFnNurbsCurve::removeKnot(double, bool)
{
    TVX_API_CALL("MFnNurbsCurve::removeKnot");
    return notImplemented("MFnNurbsCurve::removeKnot");
}

MObject MFnNurbsCurve::cv(unsigned int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::cv", ReturnStatus, MObject());
    notImplemented("MFnNurbsCurve::cv", ReturnStatus);
    return MObject();
}

MObject MFnNurbsCurve::cvs(unsigned int, unsigned int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::cvs", ReturnStatus, MObject());
    notImplemented("MFnNurbsCurve::cvs", ReturnStatus);
    return MObject();
}

bool MFnNurbsCurve::isPointOnCurve(const MPoint&, double, MSpace::Space, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::isPointOnCurve", ReturnStatus, false);
    notImplemented("MFnNurbsCurve::isPointOnCurve", ReturnStatus);
    return false;
}

MStatus MFnNurbsCurve::getParamAtPoint(const MPoint&, double&, MSpace::Space) const
{
    TVX_API_CALL("MFnNurbsCurve::getParamAtPoint");
    return notImplemented("MFnNurbsCurve::getParamAtPoint");
}

MStatus MFnNurbsCurve::getParamAtPoint(const MPoint&, double&, double, MSpace::Space) const
{
    TVX_API_CALL("MFnNurbsCurve::getParamAtPoint");
    return notImplemented("MFnNurbsCurve::getParamAtPoint");
}

MPoint MFnNurbsCurve::closestPoint(const MPoint&, double*, double, MSpace::Space, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::closestPoint", ReturnStatus, MPoint());
    notImplemented("MFnNurbsCurve::closestPoint", ReturnStatus);
    return MPoint();
}

MPoint MFnNurbsCurve::closestPoint(const MPoint&, bool, double*, double, MSpace::Space,
                                   MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::closestPoint", ReturnStatus, MPoint());
    notImplemented("MFnNurbsCurve::closestPoint", ReturnStatus);
    return MPoint();
}

double MFnNurbsCurve::distanceToPoint(const MPoint&, MSpace::Space, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::distanceToPoint", ReturnStatus, 0.0);
    notImplemented("MFnNurbsCurve::distanceToPoint", ReturnStatus);
    return 0.0;
}

MVector MFnNurbsCurve::normal(double, MSpace::Space, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::normal", ReturnStatus, MVector());
    notImplemented("MFnNurbsCurve::normal", ReturnStatus);
    return MVector();
}

bool MFnNurbsCurve::isPlanar(MVector*, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::isPlanar", ReturnStatus, false);
    notImplemented("MFnNurbsCurve::isPlanar", ReturnStatus);
    return false;
}

double MFnNurbsCurve::area(double, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::area", ReturnStatus, 0.0);
    notImplemented("MFnNurbsCurve::area", ReturnStatus);
    return 0.0;
}

MObject MFnNurbsCurve::createMObject(MObject&, TnurbsCurve*, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNurbsCurve::createMObject", ReturnStatus, MObject());
    notImplemented("MFnNurbsCurve::createMObject", ReturnStatus);
    return MObject();
}
