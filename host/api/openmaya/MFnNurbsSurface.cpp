// MFnNurbsSurface: NURBS surfaces. What the host does not do is in MFnNurbsSurfaceUnsupported.cpp.
#include <maya/MFnNurbsSurface.h>

#include "support/attributeMembers.h"
#include "support/nurbsShape.h"
#include "support/shapePlaces.h"
#include "support/shapeSet.h"

#include <maya/MDoubleArray.h>
#include <maya/MPointArray.h>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace tvxhost;
using api::badValue;
using api::changeShape;
using api::give;
using api::matrixTo;
using api::noElement;
using api::placed;
using api::storeShape;
using api::taken;
using api::turned;
using api::withShape;
using engine::NurbsSurface;
using Direction = NurbsSurface::Direction;

namespace {

/// What `read(surface)` gives.
template <class Value, class Read>
Value readSurface(const char* name, const MFnBase& set, MStatus* returnStatus, Value value, Read read)
{
    TVX_API_CALL_OR(name, returnStatus, value);
    return api::readShape<NurbsSurface>(set, returnStatus, value, read);
}

bool isOn(const NurbsSurface& surface, double u, double v)
{
    return surface.u.contains(u) && surface.v.contains(v);
}

/// Runs `use(jet, matrix)` at two parameters.
template <class Use>
MStatus withJet(const MFnDagNode& set, double u, double v, MSpace::Space space, Use use)
{
    return withShape<NurbsSurface>(set, [&](const NurbsSurface& surface) -> MStatus {
        if (!isOn(surface, u, v))
            return badValue();
        use(surface.jetAt({u, v}), matrixTo(set, space));
        return MS::kSuccess;
    });
}

/// What is nearest to a point in a space.
struct Nearest
{
    NurbsSurface::Parameters where;
    MPoint place;
    double distance = 0.0;
};

MStatus findNearest(const MFnDagNode& set, const MPoint& point, MSpace::Space space, Nearest& nearest)
{
    return withShape<NurbsSurface>(set, [&](const NurbsSurface& surface) {
        const engine::Matrix matrix = matrixTo(set, space);
        nearest.where = surface.nearestTo(taken(point, matrix.inverse()));
        nearest.place = placed(surface.at(nearest.where), matrix);
        nearest.distance = nearest.place.distanceTo(point);
        return MStatus();
    });
}

/// The parameters at a point that is no farther away than the tolerance.
MStatus findParameters(const MFnDagNode& set, const MPoint& point, MSpace::Space space, double tolerance,
                       double& u, double& v)
{
    Nearest nearest;
    if (const MStatus found = findNearest(set, point, space, nearest); !found)
        return found;
    if (nearest.distance > tolerance)
        return badValue();
    u = nearest.where.u;
    v = nearest.where.v;
    return MS::kSuccess;
}

/// Which direction of a surface a member is about.
using Way = Direction NurbsSurface::*;

MFnNurbsSurface::Form formOf(const Direction& direction)
{
    return static_cast<MFnNurbsSurface::Form>(static_cast<int>(direction.form) + MFnNurbsSurface::kOpen);
}

bool isKnot(const Direction& direction, double parameter)
{
    return std::find(direction.knots.begin(), direction.knots.end(), parameter) != direction.knots.end();
}

/// One span that ends with all its knots.
bool isBezierIn(const Direction& direction)
{
    return direction.spanCount() == 1 && direction.knots.front() == direction.begin() &&
           direction.knots.back() == direction.end();
}

bool isUniformIn(const Direction& direction)
{
    const auto degree = static_cast<std::size_t>(direction.degree);
    const double width = (direction.end() - direction.begin()) / direction.spanCount();
    for (std::size_t i = degree - 1; i + degree < direction.knots.size(); ++i)
        if (std::abs(direction.knots[i + 1] - direction.knots[i] - width) > 1e-9 * width)
            return false;
    return true;
}

MStatus copyKnots(const char* name, const MFnBase& set, Way way, MDoubleArray& array)
{
    TVX_API_CALL(name);
    return withShape<NurbsSurface>(set, [&](const NurbsSurface& surface) {
        tvxAccess::elements(array) = (surface.*way).knots;
        return MStatus();
    });
}

MStatus setKnots(const char* name, const MFnBase& set, Way way, const std::vector<double>& knots,
                 std::size_t first, std::size_t last)
{
    TVX_API_CALL(name);
    return changeShape<NurbsSurface>(set, [&](NurbsSurface& surface) -> MStatus {
        std::vector<double>& all = (surface.*way).knots;
        if (first > last || last >= all.size())
            return noElement();
        if (knots.size() != last - first + 1)
            return badValue();
        std::copy(knots.begin(), knots.end(), all.begin() + static_cast<std::ptrdiff_t>(first));
        return MS::kSuccess;
    });
}

double knotAt(const char* name, const MFnBase& set, Way way, unsigned int index, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, 0.0);
    double found = 0.0;
    give(returnStatus, withShape<NurbsSurface>(set, [&](const NurbsSurface& surface) -> MStatus {
             const std::vector<double>& knots = (surface.*way).knots;
             if (index >= knots.size())
                 return noElement();
             found = knots[index];
             return MS::kSuccess;
         }));
    return found;
}

std::optional<Direction> directionOf(const MDoubleArray& knots, unsigned int degree,
                                     MFnNurbsSurface::Form form)
{
    if (degree > 99 || form < MFnNurbsSurface::kOpen || form > MFnNurbsSurface::kPeriodic)
        return std::nullopt;
    Direction direction{static_cast<int>(degree),
                        static_cast<engine::NurbsCurve::Form>(form - MFnNurbsSurface::kOpen),
                        tvxAccess::elements(knots)};
    return direction.isValid() ? std::optional<Direction>(direction) : std::nullopt;
}

/// The index of a control point; none when there is no such point.
std::optional<std::size_t> pointIndex(const NurbsSurface& surface, unsigned int inU, unsigned int inV)
{
    if (inU >= static_cast<unsigned int>(surface.u.pointCount()) ||
        inV >= static_cast<unsigned int>(surface.v.pointCount()))
        return std::nullopt;
    return surface.indexOf(inU, inV);
}

MPoint pointOf(const engine::NurbsCurve::Point& point, const engine::Matrix& matrix)
{
    MPoint there = placed(point.place, matrix);
    there.w = point.weight;
    return there;
}

/// The surface that was made below a parent, or the failure to make it.
MObject makeSurface(MFnNurbsSurface& set, const char* name, const std::optional<NurbsSurface>& surface,
                    const MObject& parent, MStatus* returnStatus)
{
    if (!surface || !surface->isValid()) {
        TVX_API_CALL_OR(name, returnStatus, MObject());
        give(returnStatus, badValue());
        return MObject();
    }
    MStatus status;
    const MObject made = api::makeShape(set, name, "nurbsSurface", parent, false, &status);
    if (status)
        status = storeShape(*api::nodeOf(set), *surface);
    give(returnStatus, status);
    return made;
}

} // namespace

TVX_SHAPE_SET(MFnNurbsSurface, MFn::kNurbsSurface)

bool MFnNurbsSurface::objectChanged(MFn::Type type, MStatus* status)
{
    return MFnDagNode::objectChanged(type, status);
}

// Making surfaces

MObject MFnNurbsSurface::create(const MPointArray& controlVertices, const MDoubleArray& uKnotSequences,
                                const MDoubleArray& vKnotSequences, unsigned int degreeInU,
                                unsigned int degreeInV, Form formU, Form formV, bool createRational,
                                MObject parentOrOwner, MStatus* ReturnStatus)
{
    const auto u = directionOf(uKnotSequences, degreeInU, formU);
    const auto v = directionOf(vKnotSequences, degreeInV, formV);
    std::optional<NurbsSurface> surface;
    if (u && v) {
        surface = NurbsSurface{*u, *v, createRational, {}};
        for (unsigned int i = 0; i < controlVertices.length(); ++i) {
            const MPoint& point = controlVertices[i];
            surface->points.push_back({{point.x, point.y, point.z}, createRational ? point.w : 1.0});
        }
    }
    return makeSurface(*this, "MFnNurbsSurface::create", surface, parentOrOwner, ReturnStatus);
}

MObject MFnNurbsSurface::copy(const MObject& source, MObject parentOrOwner, MStatus* ReturnStatus)
{
    engine::Node* node = api::nodeOf(source);
    return makeSurface(*this, "MFnNurbsSurface::copy",
                       node ? engine::surfaceOf(*node) : std::optional<NurbsSurface>(), parentOrOwner,
                       ReturnStatus);
}

MObject MFnNurbsSurface::getDataObject() const
{
    engine::Node* node = api::nodeOf(*this);
    const engine::Plug plug = node ? engine::surfacePlugOf(*node) : engine::Plug();
    return plug.isNull() ? MObject() : tvxAccess::handle(engine::readData(plug).value.get());
}

MStatus MFnNurbsSurface::updateSurface()
{
    TVX_API_CALL("MFnNurbsSurface::updateSurface");
    return api::nodeOf(*this) ? MStatus() : api::notAttached();
}

// Control points

MStatus MFnNurbsSurface::getCVs(MPointArray& array, MSpace::Space space) const
{
    TVX_API_CALL("MFnNurbsSurface::getCVs");
    return withShape<NurbsSurface>(*this, [&](const NurbsSurface& surface) {
        const engine::Matrix matrix = matrixTo(*this, space);
        array.clear();
        for (const auto& point : surface.points)
            array.append(pointOf(point, matrix));
        return MStatus();
    });
}

MStatus MFnNurbsSurface::setCVs(const MPointArray& array, MSpace::Space space)
{
    TVX_API_CALL("MFnNurbsSurface::setCVs");
    return changeShape<NurbsSurface>(*this, [&](NurbsSurface& surface) -> MStatus {
        if (array.length() != surface.points.size())
            return badValue();
        const engine::Matrix inverse = matrixTo(*this, space).inverse();
        for (unsigned int i = 0; i < array.length(); ++i)
            surface.points[i].place = taken(array[i], inverse);
        return MS::kSuccess;
    });
}

MStatus MFnNurbsSurface::getCV(unsigned int indexU, unsigned int indexV, MPoint& pnt,
                               MSpace::Space space) const
{
    TVX_API_CALL("MFnNurbsSurface::getCV");
    return withShape<NurbsSurface>(*this, [&](const NurbsSurface& surface) -> MStatus {
        const auto index = pointIndex(surface, indexU, indexV);
        if (!index)
            return noElement();
        pnt = pointOf(surface.points[*index], matrixTo(*this, space));
        return MS::kSuccess;
    });
}

MStatus MFnNurbsSurface::setCV(unsigned int indexU, unsigned int indexV, MPoint& pnt,
                               MSpace::Space space) const
{
    TVX_API_CALL("MFnNurbsSurface::setCV");
    return changeShape<NurbsSurface>(*this, [&](NurbsSurface& surface) -> MStatus {
        const auto index = pointIndex(surface, indexU, indexV);
        if (!index)
            return noElement();
        surface.points[*index].place = taken(pnt, matrixTo(*this, space).inverse());
        return MS::kSuccess;
    });
}

// What the surface is like

#define TVX_IN_BOTH(member, Type, neutral, call)                                                             \
    Type MFnNurbsSurface::member##U(MStatus* ReturnStatus) const                                             \
    {                                                                                                        \
        return readSurface("MFnNurbsSurface::" #member "U", *this, ReturnStatus, static_cast<Type>(neutral), \
                           [](const NurbsSurface& surface) { return static_cast<Type>(call(surface.u)); });  \
    }                                                                                                        \
    Type MFnNurbsSurface::member##V(MStatus* ReturnStatus) const                                             \
    {                                                                                                        \
        return readSurface("MFnNurbsSurface::" #member "V", *this, ReturnStatus, static_cast<Type>(neutral), \
                           [](const NurbsSurface& surface) { return static_cast<Type>(call(surface.v)); });  \
    }

namespace {

int degreeOf(const Direction& direction)
{
    return direction.degree;
}

int spansOf(const Direction& direction)
{
    return direction.spanCount();
}

int nonZeroSpansOf(const Direction& direction)
{
    return direction.nonZeroSpanCount();
}

int pointsOf(const Direction& direction)
{
    return direction.pointCount();
}

int knotsOf(const Direction& direction)
{
    return static_cast<int>(direction.knots.size());
}

} // namespace

TVX_IN_BOTH(formIn, MFnNurbsSurface::Form, kInvalid, formOf)
TVX_IN_BOTH(degree, int, 0, degreeOf)
TVX_IN_BOTH(numSpansIn, int, 0, spansOf)
TVX_IN_BOTH(numNonZeroSpansIn, int, 0, nonZeroSpansOf)
TVX_IN_BOTH(numCVsIn, int, 0, pointsOf)
TVX_IN_BOTH(numKnotsIn, int, 0, knotsOf)
TVX_IN_BOTH(numPatchesIn, unsigned int, 0, nonZeroSpansOf)

#undef TVX_IN_BOTH

unsigned int MFnNurbsSurface::numPatches(MStatus* ReturnStatus) const
{
    return readSurface(
        "MFnNurbsSurface::numPatches", *this, ReturnStatus, 0u, [](const NurbsSurface& surface) {
            return static_cast<unsigned int>(surface.u.nonZeroSpanCount() * surface.v.nonZeroSpanCount());
        });
}

bool MFnNurbsSurface::isBezier(MStatus* ReturnStatus) const
{
    return readSurface(
        "MFnNurbsSurface::isBezier", *this, ReturnStatus, false,
        [](const NurbsSurface& surface) { return isBezierIn(surface.u) && isBezierIn(surface.v); });
}

bool MFnNurbsSurface::isUniform(MStatus* ReturnStatus) const
{
    return readSurface(
        "MFnNurbsSurface::isUniform", *this, ReturnStatus, false,
        [](const NurbsSurface& surface) { return isUniformIn(surface.u) && isUniformIn(surface.v); });
}

bool MFnNurbsSurface::isKnotU(double param, MStatus* ReturnStatus) const
{
    return readSurface("MFnNurbsSurface::isKnotU", *this, ReturnStatus, false,
                       [param](const NurbsSurface& surface) { return isKnot(surface.u, param); });
}

bool MFnNurbsSurface::isKnotV(double param, MStatus* ReturnStatus) const
{
    return readSurface("MFnNurbsSurface::isKnotV", *this, ReturnStatus, false,
                       [param](const NurbsSurface& surface) { return isKnot(surface.v, param); });
}

bool MFnNurbsSurface::isParamOnSurface(double paramU, double paramV, MStatus* ReturnStatus) const
{
    return readSurface("MFnNurbsSurface::isParamOnSurface", *this, ReturnStatus, false,
                       [=](const NurbsSurface& surface) { return isOn(surface, paramU, paramV); });
}

MStatus MFnNurbsSurface::getKnotDomain(double& startU, double& endU, double& startV, double& endV) const
{
    TVX_API_CALL("MFnNurbsSurface::getKnotDomain");
    return withShape<NurbsSurface>(*this, [&](const NurbsSurface& surface) {
        startU = surface.u.begin();
        endU = surface.u.end();
        startV = surface.v.begin();
        endV = surface.v.end();
        return MStatus();
    });
}

bool MFnNurbsSurface::hasHistoryOnCreate(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsSurface::hasHistoryOnCreate", ReturnStatus, false);
    engine::Node* node = api::nodeOf(*this);
    return api::requireAttached(node, ReturnStatus) && engine::hasSurfaceHistory(*node);
}

// Those that can be read here are not trimmed.
bool MFnNurbsSurface::isTrimmedSurface(MStatus* ReturnStatus) const
{
    return readSurface("MFnNurbsSurface::isTrimmedSurface", *this, ReturnStatus, false,
                       [](const NurbsSurface&) { return false; });
}

// Knots

MStatus MFnNurbsSurface::getKnotsInU(MDoubleArray& array) const
{
    return copyKnots("MFnNurbsSurface::getKnotsInU", *this, &NurbsSurface::u, array);
}

MStatus MFnNurbsSurface::getKnotsInV(MDoubleArray& array) const
{
    return copyKnots("MFnNurbsSurface::getKnotsInV", *this, &NurbsSurface::v, array);
}

MStatus MFnNurbsSurface::setKnotsInU(const MDoubleArray& array, unsigned int startIndex,
                                     unsigned int endIndex)
{
    return setKnots("MFnNurbsSurface::setKnotsInU", *this, &NurbsSurface::u, tvxAccess::elements(array),
                    startIndex, endIndex);
}

MStatus MFnNurbsSurface::setKnotsInV(const MDoubleArray& array, unsigned int startIndex,
                                     unsigned int endIndex)
{
    return setKnots("MFnNurbsSurface::setKnotsInV", *this, &NurbsSurface::v, tvxAccess::elements(array),
                    startIndex, endIndex);
}

double MFnNurbsSurface::knotInU(unsigned int index, MStatus* ReturnStatus) const
{
    return knotAt("MFnNurbsSurface::knotInU", *this, &NurbsSurface::u, index, ReturnStatus);
}

double MFnNurbsSurface::knotInV(unsigned int index, MStatus* ReturnStatus) const
{
    return knotAt("MFnNurbsSurface::knotInV", *this, &NurbsSurface::v, index, ReturnStatus);
}

MStatus MFnNurbsSurface::setKnotInU(unsigned int index, double param)
{
    return setKnots("MFnNurbsSurface::setKnotInU", *this, &NurbsSurface::u, {param}, index, index);
}

MStatus MFnNurbsSurface::setKnotInV(unsigned int index, double param)
{
    return setKnots("MFnNurbsSurface::setKnotInV", *this, &NurbsSurface::v, {param}, index, index);
}

// Places

MStatus MFnNurbsSurface::getPointAtParam(double paramU, double paramV, MPoint& point,
                                         MSpace::Space space) const
{
    TVX_API_CALL("MFnNurbsSurface::getPointAtParam");
    return withJet(*this, paramU, paramV, space,
                   [&](const NurbsSurface::Jet& jet, const engine::Matrix& matrix) {
                       point = placed(jet.place, matrix);
                   });
}

MVector MFnNurbsSurface::normal(double paramInU, double paramInV, MSpace::Space space,
                                MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsSurface::normal", ReturnStatus, MVector());
    MVector found;
    give(ReturnStatus, withJet(*this, paramInU, paramInV, space,
                               [&](const NurbsSurface::Jet& jet, const engine::Matrix& matrix) {
                                   found = (turned(jet.du, matrix) ^ turned(jet.dv, matrix)).normal();
                               }));
    return found;
}

MStatus MFnNurbsSurface::getTangents(double paramInU, double paramInV, MVector& vectorInU, MVector& vectorInV,
                                     MSpace::Space space) const
{
    TVX_API_CALL("MFnNurbsSurface::getTangents");
    return withJet(*this, paramInU, paramInV, space,
                   [&](const NurbsSurface::Jet& jet, const engine::Matrix& matrix) {
                       vectorInU = turned(jet.du, matrix).normal();
                       vectorInV = turned(jet.dv, matrix).normal();
                   });
}

MStatus MFnNurbsSurface::getDerivativesAtParm(double paramInU, double paramInV, MPoint& pos, MVector& dU,
                                              MVector& dV, MSpace::Space space, MVector* dUU, MVector* dVV,
                                              MVector* dUV) const
{
    TVX_API_CALL("MFnNurbsSurface::getDerivativesAtParm");
    return withJet(*this, paramInU, paramInV, space,
                   [&](const NurbsSurface::Jet& jet, const engine::Matrix& matrix) {
                       pos = placed(jet.place, matrix);
                       dU = turned(jet.du, matrix);
                       dV = turned(jet.dv, matrix);
                       if (dUU)
                           *dUU = turned(jet.duu, matrix);
                       if (dVV)
                           *dVV = turned(jet.dvv, matrix);
                       if (dUV)
                           *dUV = turned(jet.duv, matrix);
                   });
}

double MFnNurbsSurface::area(double tolerance, MStatus* ReturnStatus) const
{
    return area(MSpace::kObject, tolerance, ReturnStatus);
}

double MFnNurbsSurface::area(MSpace::Space space, double, MStatus* ReturnStatus) const
{
    const engine::Matrix matrix = matrixTo(*this, space);
    return readSurface("MFnNurbsSurface::area", *this, ReturnStatus, 0.0, [&](NurbsSurface surface) {
        for (auto& point : surface.points)
            point.place = point.place * matrix;
        return surface.area();
    });
}

// What is nearest

MPoint MFnNurbsSurface::closestPoint(const MPoint& toThisPoint, double* paramU, double* paramV,
                                     bool ignoreTrimBoundaries, double tolerance, MSpace::Space space,
                                     MStatus* ReturnStatus) const
{
    return closestPoint(toThisPoint, false, paramU, paramV, ignoreTrimBoundaries, tolerance, space,
                        ReturnStatus);
}

// The whole surface is looked at, so there is nothing to start from.
MPoint MFnNurbsSurface::closestPoint(const MPoint& toThisPoint, bool, double* paramU, double* paramV, bool,
                                     double, MSpace::Space space, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsSurface::closestPoint", ReturnStatus, MPoint());
    Nearest nearest;
    const MStatus found = findNearest(*this, toThisPoint, space, nearest);
    give(ReturnStatus, found);
    if (found && paramU)
        *paramU = nearest.where.u;
    if (found && paramV)
        *paramV = nearest.where.v;
    return nearest.place;
}

bool MFnNurbsSurface::isPointOnSurface(const MPoint& point, double tolerance, MSpace::Space space,
                                       MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsSurface::isPointOnSurface", ReturnStatus, false);
    Nearest nearest;
    const MStatus found = findNearest(*this, point, space, nearest);
    give(ReturnStatus, found);
    return found && nearest.distance <= tolerance;
}

MStatus MFnNurbsSurface::getParamAtPoint(const MPoint& atThisPoint, double& paramU, double& paramV, bool,
                                         MSpace::Space space, double tolerance) const
{
    TVX_API_CALL("MFnNurbsSurface::getParamAtPoint");
    return findParameters(*this, atThisPoint, space, tolerance, paramU, paramV);
}

MStatus MFnNurbsSurface::getParamAtPoint(const MPoint& atThisPoint, double& paramU, double& paramV,
                                         MSpace::Space space) const
{
    TVX_API_CALL("MFnNurbsSurface::getParamAtPoint");
    return findParameters(*this, atThisPoint, space, kMFnNurbsEpsilon, paramU, paramV);
}

double MFnNurbsSurface::distanceToPoint(const MPoint& pt, MSpace::Space space, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNurbsSurface::distanceToPoint", ReturnStatus, 0.0);
    Nearest nearest;
    give(ReturnStatus, findNearest(*this, pt, space, nearest));
    return nearest.distance;
}
