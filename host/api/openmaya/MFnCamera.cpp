// MFnCamera: cameras. What the host does not do is in MFnCameraUnsupported.cpp.
#include <maya/MFnCamera.h>

#include "support/attributeMembers.h"
#include "support/shapeSet.h"

#include <cmath>
#include <optional>

using namespace tvxhost;
using api::failure;
using api::give;
using api::readMember;
using api::StatusText;
using api::writeMember;

namespace {

constexpr double kMillimetresPerInch = 25.4;

/// What a camera looks along in its own space.
const Imath::V3d kView(0.0, 0.0, -1.0);
const Imath::V3d kUp(0.0, 1.0, 0.0);
const Imath::V3d kRight(1.0, 0.0, 0.0);

/// From the camera's own space to the one that is asked for; null, and why, when that cannot be told.
std::optional<engine::Matrix> matrixTo(const MFnDagNode& set, MSpace::Space space, MStatus* returnStatus)
{
    engine::DagNode* node = api::dagNodeOf(set);
    if (!api::requireAttached(node, returnStatus))
        return std::nullopt;
    return space == MSpace::kWorld ? api::pathOf(set, *node).inclusiveMatrix() : engine::Matrix();
}

MVector direction(const MFnDagNode& set, const char* name, const Imath::V3d& own, MSpace::Space space,
                  MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, MVector());
    const auto matrix = matrixTo(set, space, returnStatus);
    if (!matrix)
        return MVector();
    Imath::V3d result;
    matrix->multDirMatrix(own, result);
    result.normalize();
    return MVector(result.x, result.y, result.z);
}

/// A point on the line of sight, at a distance from the eye.
MPoint pointAhead(const MFnDagNode& set, const char* name, double distance, MSpace::Space space,
                  MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, MPoint());
    const auto matrix = matrixTo(set, space, returnStatus);
    if (!matrix)
        return MPoint();
    Imath::V3d result;
    matrix->multVecMatrix(kView * distance, result);
    return MPoint(result.x, result.y, result.z);
}

/// The angle that a length of film in inches sees through the lens.
double fieldOfView(double aperture, double focalLength)
{
    return 2.0 * std::atan(aperture * kMillimetresPerInch / 2.0 / focalLength);
}

double focalLengthFor(double aperture, double angle)
{
    return aperture * kMillimetresPerInch / 2.0 / std::tan(angle / 2.0);
}

/// The number of an attribute on behalf of a call that was recorded already.
engine::Expected<engine::Number> numberOf(const MFnBase& set, const char* attribute)
{
    const auto plug = api::memberPlug(set, attribute);
    return plug ? engine::readNumber(plug.value) : engine::Expected<engine::Number>(plug.outcome);
}

double seen(const MFnBase& set, const char* name, const char* aperture, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, 0.0);
    const auto film = numberOf(set, aperture);
    const auto focal = numberOf(set, "focalLength");
    const auto scale = numberOf(set, "cameraScale");
    give(returnStatus, api::toStatus(film.outcome));
    return film ? fieldOfView(film.value.asReal() * scale.value.asReal(), focal.value.asReal()) : 0.0;
}

MStatus see(MFnBase& set, const char* name, const char* aperture, double angle)
{
    constexpr double kPi = 3.14159265358979323846;
    TVX_API_CALL(name);
    const auto film = numberOf(set, aperture);
    const auto scale = numberOf(set, "cameraScale");
    if (!film)
        return api::toStatus(film.outcome);
    if (!(angle > 0.0 && angle < kPi))
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    return api::toStatus(
        engine::writeNumber(api::memberPlug(set, "focalLength").value,
                            focalLengthFor(film.value.asReal() * scale.value.asReal(), angle)));
}

} // namespace

TVX_SHAPE_SET(MFnCamera, MFn::kCamera)

MObject MFnCamera::create(MStatus* ReturnStatus)
{
    return api::makeShape(*this, "MFnCamera::create", "camera", MObject(), false, ReturnStatus);
}

MObject MFnCamera::create(MObject& parent, MStatus* ReturnStatus)
{
    return api::makeShape(*this, "MFnCamera::create", "camera", parent, false, ReturnStatus);
}

MPoint MFnCamera::eyePoint(MSpace::Space space, MStatus* ReturnStatus) const
{
    return pointAhead(*this, "MFnCamera::eyePoint", 0.0, space, ReturnStatus);
}

MVector MFnCamera::viewDirection(MSpace::Space space, MStatus* ReturnStatus) const
{
    return direction(*this, "MFnCamera::viewDirection", kView, space, ReturnStatus);
}

MVector MFnCamera::upDirection(MSpace::Space space, MStatus* ReturnStatus) const
{
    return direction(*this, "MFnCamera::upDirection", kUp, space, ReturnStatus);
}

MVector MFnCamera::rightDirection(MSpace::Space space, MStatus* ReturnStatus) const
{
    return direction(*this, "MFnCamera::rightDirection", kRight, space, ReturnStatus);
}

MPoint MFnCamera::centerOfInterestPoint(MSpace::Space space, MStatus* ReturnStatus) const
{
    const double distance = numberOf(*this, "centerOfInterest").value.asReal();
    return pointAhead(*this, "MFnCamera::centerOfInterestPoint", distance, space, ReturnStatus);
}

bool MFnCamera::hasSamePerspective(const MDagPath& otherCamera, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnCamera::hasSamePerspective", ReturnStatus, false);
    const engine::DagPath* otherPath = tvxAccess::dagPath(otherCamera);
    engine::Node* other = otherPath && otherPath->isValid() ? otherPath->node() : nullptr;
    if (!api::requireAttached(api::nodeOf(*this), ReturnStatus))
        return false;
    if (!other || !other->type().isA("camera")) {
        give(ReturnStatus, failure(StatusText::objectIsIncompatible));
        return false;
    }
    for (const char* name : {"focalLength", "horizontalFilmAperture", "verticalFilmAperture", "cameraScale",
                             "orthographic", "orthographicWidth"}) {
        const engine::Plug plug(*other, *other->findAttribute(name));
        if (engine::readNumber(plug).value.asReal() != numberOf(*this, name).value.asReal())
            return false;
    }
    return true;
}

double MFnCamera::aspectRatio(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCamera::aspectRatio", ReturnStatus, 0.0);
    const auto width = numberOf(*this, "horizontalFilmAperture");
    const auto height = numberOf(*this, "verticalFilmAperture");
    give(ReturnStatus, api::toStatus(width.outcome));
    return width && height.value.asReal() != 0.0 ? width.value.asReal() / height.value.asReal() : 0.0;
}

MStatus MFnCamera::setAspectRatio(double aspectRatio)
{
    const double height = numberOf(*this, "verticalFilmAperture").value.asReal();
    return writeMember(*this, "MFnCamera::setAspectRatio", "horizontalFilmAperture", height * aspectRatio);
}

double MFnCamera::horizontalFieldOfView(MStatus* ReturnStatus) const
{
    return seen(*this, "MFnCamera::horizontalFieldOfView", "horizontalFilmAperture", ReturnStatus);
}

MStatus MFnCamera::setHorizontalFieldOfView(double fov)
{
    return see(*this, "MFnCamera::setHorizontalFieldOfView", "horizontalFilmAperture", fov);
}

double MFnCamera::verticalFieldOfView(MStatus* ReturnStatus) const
{
    return seen(*this, "MFnCamera::verticalFieldOfView", "verticalFilmAperture", ReturnStatus);
}

MStatus MFnCamera::setVerticalFieldOfView(double fov)
{
    return see(*this, "MFnCamera::setVerticalFieldOfView", "verticalFilmAperture", fov);
}

// The user's own planes are those that are not fitted to the scene.
bool MFnCamera::isClippingPlanes(MStatus* ReturnStatus) const
{
    MStatus status;
    const bool areFitted =
        readMember(*this, "MFnCamera::isClippingPlanes", "bestFitClippingPlanes", &status) != 0.0;
    give(ReturnStatus, status);
    return status && !areFitted;
}

MStatus MFnCamera::setClippingPlanes(bool ClippingPlanes)
{
    return writeMember(*this, "MFnCamera::setClippingPlanes", "bestFitClippingPlanes",
                       ClippingPlanes ? 0.0 : 1.0);
}

MStatus MFnCamera::setNearFarClippingPlanes(double dNear, double dFar)
{
    if (!(dNear > 0.0 && dNear < dFar)) {
        TVX_API_CALL("MFnCamera::setNearFarClippingPlanes");
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    }
    const MStatus written = writeMember(*this, "MFnCamera::setNearFarClippingPlanes", "nearClipPlane", dNear);
    return written ? writeMember(*this, "MFnCamera::setNearFarClippingPlanes", "farClipPlane", dFar)
                   : written;
}

MStatus MFnCamera::setIsOrtho(bool orthoState)
{
    return writeMember(*this, "MFnCamera::setIsOrtho", "orthographic", orthoState ? 1.0 : 0.0);
}

MStatus MFnCamera::setIsOrtho(bool orthoState, double useDist)
{
    const MStatus written = setIsOrtho(orthoState);
    if (!written)
        return written;
    const double angle = horizontalFieldOfView();
    return writeMember(*this, "MFnCamera::setIsOrtho", "orthographicWidth",
                       2.0 * useDist * std::tan(angle / 2.0));
}

MStatus MFnCamera::setTumblePivot(const MPoint& point)
{
    TVX_API_CALL("MFnCamera::setTumblePivot");
    const auto plug = api::memberPlug(*this, "tumblePivot");
    return api::toStatus(plug ? engine::writeNumbers(plug.value, {point.x, point.y, point.z}) : plug.outcome);
}

MPoint MFnCamera::tumblePivot(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCamera::tumblePivot", ReturnStatus, MPoint());
    const auto plug = api::memberPlug(*this, "tumblePivot");
    const auto numbers = plug ? engine::readNumbers(plug.value) : plug.outcome;
    give(ReturnStatus, api::toStatus(numbers.outcome));
    return numbers ? MPoint(numbers.value[0], numbers.value[1], numbers.value[2]) : MPoint();
}
