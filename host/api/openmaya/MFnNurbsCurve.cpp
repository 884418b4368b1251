// MFnNurbsCurve: NURBS curves. What the host does not do is in MFnNurbsCurveUnsupported.cpp.
#include <maya/MFnNurbsCurve.h>

#include "support/attributeMembers.h"
#include "support/nurbsShape.h"
#include "support/shapePlaces.h"
#include "support/shapeSet.h"

#include <maya/MDoubleArray.h>
#include <maya/MPointArray.h>

#include <cmath>
#include <optional>

using namespace tvxhost;
using api::badValue;
using api::changeShape;
using api::give;
using api::matrixTo;
using api::noElement;
using api::placed;
using api::readShape;
using api::storeShape;
using api::taken;
using api::turned;
using api::withShape;
using engine::NurbsCurve;

namespace {

bool isOn(const NurbsCurve& curve, double parameter)
{
    return parameter >= curve.begin() && parameter <= curve.end();
}

std::optional<NurbsCurve> curveOf(const MPointArray& points, const MDoubleArray& knots, unsigned int degree,
                                  MFnNurbsCurve::Form form, bool isFlat, bool isRational)
{
    if (degree > 99 || form < MFnNurbsCurve::kOpen || form > MFnNurbsCurve::kPeriodic)
        return std::nullopt;
    NurbsCurve curve;
    curve.degree = static_cast<int>(degree);
    curve.form = static_cast<NurbsCurve::Form>(form - MFnNurbsCurve::kOpen);
    curve.isRational = isRational;
    curve.dimensions = isFlat ? 2 : 3;
    for (unsigned int i = 0; i < knots.length(); ++i)
        curve.knots.push_back(knots[i]);
    for (unsigned int i = 0; i < points.length(); ++i)
        curve.points.push_back(
            {{points[i].x, points[i].y, isFlat ? 0.0 : points[i].z}, isRational ? points[i].w : 1.0});
    return curve.isValid() ? std::optional<NurbsCurve>(curve) : std::nullopt;
}

} // namespace

TVX_SHAPE_SET(MFnNurbsCurve, MFn::kNurbsCurve)

bool MFnNurbsCurve::objectChanged(MFn::Type type, MStatus* status)
{
    return MFnDagNode::objectChanged(type, status);
}

MObject MFnNurbsCurve::create(const MPointArray& controlVertices, const MDoubleArray& knotSequences,
                              unsigned int degree, Form agForm, bool create2D, bool createRational,
                              MObject& parentOrOwner, MStatus* ReturnStatus)
{
    const auto curve = curveOf(controlVertices, knotSequences, degree, agForm, create2D, createRational);
    if (!curve) {
        TVX_API_CALL_OR("MFnNurbsCurve::create", ReturnStatus, MObject());
        give(ReturnStatus, badValue());
        return MObject();
    }
    MStatus status;
    const MObject made =
        api::makeShape(*this, "MFnNurbsCurve::create", "nurbsCurve", parentOrOwner, false, &status);
    if (status)
        status = storeShape(*api::nodeOf(*this), *curve);
    give(ReturnStatus, status);
    return made;
}

MStatus MFnNurbsCurve::getCV(unsigned int index, MPoint& pt, MSpace::Space space) const
{
    TVX_API_CALL("MFnNurbsCurve::getCV");
    return withShape<NurbsCurve>(*this, [&](const NurbsCurve& curve) -> MStatus {
        if (index >= curve.points.size())
            return noElement();
        pt = placed(curve.points[index].place, matrixTo(*this, space));
        pt.w = curve.points[index].weight;
        return MS::kSuccess;
    });
}

MStatus MFnNurbsCurve::setCV(unsigned int index, const MPoint& pt, MSpace::Space space)
{
    TVX_API_CALL("MFnNurbsCurve::setCV");
    return changeShape<NurbsCurve>(*this, [&](NurbsCurve& curve) -> MStatus {
        if (index >= curve.points.size())
            return noElement();
        curve.points[index].place = taken(pt, matrixTo(*this, space).inverse());
        return MS::kSuccess;
    });
}

MStatus MFnNurbsCurve::getCVs(MPointArray& array, MSpace::Space space) const
{
    TVX_API_CALL("MFnNurbsCurve::getCVs");
    return withShape<NurbsCurve>(*this, [&](const NurbsCurve& curve) {
        const engine::Matrix matrix = matrixTo(*this, space);
        array.clear();
        for (const NurbsCurve::Point& point : curve.points) {
            MPoint there = placed(point.place, matrix);
            there.w = point.weight;
            array.append(there);
        }
        return MStatus();
    });
}

MStatus MFnNurbsCurve::setCVs(const MPointArray& array, MSpace::Space space)
{
    TVX_API_CALL("MFnNurbsCurve::setCVs");
    return changeShape<NurbsCurve>(*this, [&](NurbsCurve& curve) -> MStatus {
        if (array.length() != curve.points.size())
            return badValue();
        const engine::Matrix inverse = matrixTo(*this, space).inverse();
        for (unsigned int i = 0; i < array.length(); ++i)
            curve.points[i].place = taken(array[i], inverse);
        return MS::kSuccess;
    });
}

int MFnNurbsCurve::numCVs(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::numCVs", ReturnStatus, 0);
    return readShape<NurbsCurve>(*this, ReturnStatus, 0, [](const NurbsCurve& curve) {
        return static_cast<int>(curve.points.size());
    });
}

MFnNurbsCurve::Form MFnNurbsCurve::form(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::form", ReturnStatus, kInvalid);
    return readShape<NurbsCurve>(*this, ReturnStatus, kInvalid, [](const NurbsCurve& curve) {
        return static_cast<Form>(static_cast<int>(curve.form) + kOpen);
    });
}

int MFnNurbsCurve::degree(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::degree", ReturnStatus, 0);
    return readShape<NurbsCurve>(*this, ReturnStatus, 0,
                                 [](const NurbsCurve& curve) { return curve.degree; });
}

int MFnNurbsCurve::numSpans(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::numSpans", ReturnStatus, 0);
    return readShape<NurbsCurve>(*this, ReturnStatus, 0,
                                 [](const NurbsCurve& curve) { return curve.spanCount(); });
}

bool MFnNurbsCurve::hasHistoryOnCreate(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::hasHistoryOnCreate", ReturnStatus, false);
    engine::Node* node = api::nodeOf(*this);
    return api::requireAttached(node, ReturnStatus) && engine::hasCurveHistory(*node);
}

int MFnNurbsCurve::numKnots(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::numKnots", ReturnStatus, 0);
    return readShape<NurbsCurve>(
        *this, ReturnStatus, 0, [](const NurbsCurve& curve) { return static_cast<int>(curve.knots.size()); });
}

MStatus MFnNurbsCurve::getKnotDomain(double& start, double& end) const
{
    TVX_API_CALL("MFnNurbsCurve::getKnotDomain");
    return withShape<NurbsCurve>(*this, [&](const NurbsCurve& curve) {
        start = curve.begin();
        end = curve.end();
        return MStatus();
    });
}

MStatus MFnNurbsCurve::getKnots(MDoubleArray& array) const
{
    TVX_API_CALL("MFnNurbsCurve::getKnots");
    return withShape<NurbsCurve>(*this, [&](const NurbsCurve& curve) {
        array.clear();
        for (const double knot : curve.knots)
            array.append(knot);
        return MStatus();
    });
}

MStatus MFnNurbsCurve::setKnots(const MDoubleArray& array, unsigned int startIndex, unsigned int endIndex)
{
    TVX_API_CALL("MFnNurbsCurve::setKnots");
    return changeShape<NurbsCurve>(*this, [&](NurbsCurve& curve) -> MStatus {
        if (startIndex > endIndex || endIndex >= curve.knots.size())
            return noElement();
        if (array.length() != endIndex - startIndex + 1)
            return badValue();
        for (unsigned int i = startIndex; i <= endIndex; ++i)
            curve.knots[i] = array[i - startIndex];
        return MS::kSuccess;
    });
}

MStatus MFnNurbsCurve::setKnot(unsigned int index, double param)
{
    TVX_API_CALL("MFnNurbsCurve::setKnot");
    return changeShape<NurbsCurve>(*this, [&](NurbsCurve& curve) -> MStatus {
        if (index >= curve.knots.size())
            return noElement();
        curve.knots[index] = param;
        return MS::kSuccess;
    });
}

double MFnNurbsCurve::knot(unsigned int index, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::knot", ReturnStatus, 0.0);
    double found = 0.0;
    give(ReturnStatus, withShape<NurbsCurve>(*this, [&](const NurbsCurve& curve) -> MStatus {
             if (index >= curve.knots.size())
                 return noElement();
             found = curve.knots[index];
             return MS::kSuccess;
         }));
    return found;
}

MStatus MFnNurbsCurve::getPointAtParam(double param, MPoint& point, MSpace::Space space) const
{
    TVX_API_CALL("MFnNurbsCurve::getPointAtParam");
    return withShape<NurbsCurve>(*this, [&](const NurbsCurve& curve) -> MStatus {
        if (!isOn(curve, param))
            return badValue();
        point = placed(curve.at(param), matrixTo(*this, space));
        return MS::kSuccess;
    });
}

bool MFnNurbsCurve::isParamOnCurve(double param, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::isParamOnCurve", ReturnStatus, false);
    return readShape<NurbsCurve>(*this, ReturnStatus, false,
                                 [&](const NurbsCurve& curve) { return isOn(curve, param); });
}

MVector MFnNurbsCurve::tangent(double param, MSpace::Space space, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::tangent", ReturnStatus, MVector());
    MVector found;
    give(ReturnStatus, withShape<NurbsCurve>(*this, [&](const NurbsCurve& curve) -> MStatus {
             if (!isOn(curve, param))
                 return badValue();
             found = turned(curve.velocityAt(param), matrixTo(*this, space)).normal();
             return MS::kSuccess;
         }));
    return found;
}

MStatus MFnNurbsCurve::getDerivativesAtParm(double param, MPoint& pos, MVector& dU, MSpace::Space space,
                                            MVector* dUU) const
{
    TVX_API_CALL("MFnNurbsCurve::getDerivativesAtParm");
    return withShape<NurbsCurve>(*this, [&](const NurbsCurve& curve) -> MStatus {
        if (!isOn(curve, param))
            return badValue();
        const engine::Matrix matrix = matrixTo(*this, space);
        pos = placed(curve.at(param), matrix);
        dU = turned(curve.velocityAt(param), matrix);
        if (dUU)
            *dUU = turned(curve.accelerationAt(param), matrix);
        return MS::kSuccess;
    });
}

double MFnNurbsCurve::length(double, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::length", ReturnStatus, 0.0);
    return readShape<NurbsCurve>(*this, ReturnStatus, 0.0,
                                 [](const NurbsCurve& curve) { return curve.lengthTo(curve.end()); });
}

double MFnNurbsCurve::findParamFromLength(double partLength, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsCurve::findParamFromLength", ReturnStatus, 0.0);
    return readShape<NurbsCurve>(*this, ReturnStatus, 0.0, [&](const NurbsCurve& curve) {
        double low = curve.begin();
        double high = curve.end();
        constexpr int kHalvings = 50;
        for (int i = 0; i < kHalvings; ++i) {
            const double middle = (low + high) / 2.0;
            (curve.lengthTo(middle) < partLength ? low : high) = middle;
        }
        return (low + high) / 2.0;
    });
}

MStatus MFnNurbsCurve::updateCurve()
{
    TVX_API_CALL("MFnNurbsCurve::updateCurve");
    return api::nodeOf(*this) ? MStatus() : api::notAttached();
}
