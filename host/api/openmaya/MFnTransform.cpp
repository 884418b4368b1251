// MFnTransform: transforms.
#include <maya/MFnTransform.h>

#include "engine/scene.h"
#include "support/dagSet.h"
#include "support/rotationOrder.h"
#include "support/transformNode.h"
#include "support/transformSpaces.h"

#include <optional>

using namespace tvxhost;
using api::failure;
using api::Parents;
using api::rotationIn;
using api::setRotationIn;
using api::StatusText;
using api::toSpace;
using api::Transformation;
using api::translationIn;
using api::turn;

namespace {

/// The parents that a space takes into account; null, and why, when it needs a path and there is none.
std::optional<Parents> parentsFor(const MFnDagNode& set, MSpace::Space space, MStatus& status)
{
    if (!api::isSpace(space)) {
        status = failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
        return std::nullopt;
    }
    if (space != MSpace::kWorld)
        return Parents();
    const engine::DagPath* path = api::ownPathOf(set);
    if (!path) {
        status = failure(StatusText::unexpectedFailure);
        return std::nullopt;
    }
    return api::parentsOf(*path);
}

/// Reads all parts and gives them and the parents to `use`, which returns a status.
template <class Use>
MStatus withParts(const MFnDagNode& set, MSpace::Space space, Use use)
{
    engine::DagNode* node = api::dagNodeOf(set);
    if (!node)
        return api::notAttached();
    MStatus status;
    const auto parents = parentsFor(set, space, status);
    if (!parents)
        return status;
    auto parts = api::readTransformation(*node);
    return parts ? use(parts.value, *parents) : api::toStatus(parts.outcome);
}

/// Reads all parts, has them changed and writes those that differ.
template <class Change>
MStatus changeParts(const MFnDagNode& set, MSpace::Space space, Change change)
{
    return withParts(set, space, [&](Transformation& parts, const Parents& parents) {
        change(parts, parents);
        return api::toStatus(api::writeTransformation(*api::dagNodeOf(set), parts));
    });
}

/// A value read from the parts; neutral when that fails.
template <class Value, class Read>
Value readParts(const MFnDagNode& set, MSpace::Space space, MStatus* returnStatus, Read read)
{
    Value value{};
    api::give(returnStatus, withParts(set, space, [&](const Transformation& parts, const Parents& parents) {
                  value = read(parts, parents);
                  return MStatus();
              }));
    return value;
}

/// One part into three numbers of the caller.
MStatus getPart(const MFnDagNode& set, MVector Transformation::*partOf, double target[3])
{
    return withParts(set, MSpace::kTransform, [&](const Transformation& parts, const Parents&) {
        return (parts.*partOf).get(target);
    });
}

MVector product(const MVector& a, const double b[3])
{
    return MVector(a.x * b[0], a.y * b[1], a.z * b[2]);
}

} // namespace

TVX_FUNCTION_SET(MFnTransform, MFn::kTransform)

MFnTransform::MFnTransform() {}

MFnTransform::MFnTransform(const MDagPath& object, MStatus* ret)
{
    TVX_API_CONSTRUCTION("MFnTransform::MFnTransform", ret);
    api::give(ret, api::attachTo(*this, object));
}

bool MFnTransform::objectChanged(MFn::Type type, MStatus* ReturnStatus)
{
    return MFnDagNode::objectChanged(type, ReturnStatus);
}

MObject MFnTransform::create(MObject parent, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnTransform::create", ReturnStatus, MObject());
    engine::DagNode* above = api::dagNodeOf(parent);
    if (!parent.isNull() && !above) {
        api::give(ReturnStatus, failure(StatusText::objectIsIncompatible));
        return MObject();
    }
    const auto made = engine::Scene::current().createNode("transform", {}, above);
    api::give(ReturnStatus, api::toStatus(made.outcome));
    if (!made)
        return MObject();
    const MObject handle = tvxAccess::handle(made.value);
    static_cast<void>(api::attachTo(*this, handle));
    return handle;
}

MTransformationMatrix MFnTransform::transformation(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnTransform::transformation", ReturnStatus, MTransformationMatrix());
    MTransformationMatrix result;
    tvxAccess::parts(result) =
        readParts<Transformation>(*this, MSpace::kTransform, ReturnStatus,
                                  [](const Transformation& parts, const Parents&) { return parts; });
    return result;
}

MStatus MFnTransform::set(const MTransformationMatrix& transform)
{
    TVX_API_CALL("MFnTransform::set");
    return changeParts(*this, MSpace::kTransform,
                       [&](Transformation& parts, const Parents&) { parts = tvxAccess::parts(transform); });
}

MStatus MFnTransform::getScale(double scale[3]) const
{
    TVX_API_CALL("MFnTransform::getScale");
    return getPart(*this, &Transformation::scale, scale);
}

MStatus MFnTransform::setScale(const double scale[3])
{
    TVX_API_CALL("MFnTransform::setScale");
    return changeParts(*this, MSpace::kTransform,
                       [&](Transformation& parts, const Parents&) { parts.scale = MVector(scale); });
}

MStatus MFnTransform::scaleBy(const double scale[3])
{
    TVX_API_CALL("MFnTransform::scaleBy");
    return changeParts(*this, MSpace::kTransform, [&](Transformation& parts, const Parents&) {
        parts.scale = product(parts.scale, scale);
    });
}

MStatus MFnTransform::getShear(double shear[3]) const
{
    TVX_API_CALL("MFnTransform::getShear");
    return getPart(*this, &Transformation::shear, shear);
}

MStatus MFnTransform::setShear(const double shear[3])
{
    TVX_API_CALL("MFnTransform::setShear");
    return changeParts(*this, MSpace::kTransform,
                       [&](Transformation& parts, const Parents&) { parts.shear = MVector(shear); });
}

MStatus MFnTransform::shearBy(const double shear[3])
{
    TVX_API_CALL("MFnTransform::shearBy");
    return changeParts(*this, MSpace::kTransform,
                       [&](Transformation& parts, const Parents&) { parts.shear += MVector(shear); });
}

MStatus MFnTransform::getRotation(MQuaternion& quaternion, MSpace::Space space) const
{
    TVX_API_CALL("MFnTransform::getRotation");
    return withParts(*this, space, [&](const Transformation& parts, const Parents& parents) {
        quaternion = rotationIn(parts, parents, space);
        return MStatus();
    });
}

MStatus MFnTransform::getRotation(MEulerRotation& rotation) const
{
    TVX_API_CALL("MFnTransform::getRotation");
    return withParts(*this, MSpace::kTransform, [&](const Transformation& parts, const Parents&) {
        rotation = parts.rotation;
        return MStatus();
    });
}

MStatus MFnTransform::getRotation(double rotation[3], MTransformationMatrix::RotationOrder& order) const
{
    TVX_API_CALL("MFnTransform::getRotation");
    return withParts(*this, MSpace::kTransform, [&](const Transformation& parts, const Parents&) {
        order = api::transformOrder(parts.rotation.order);
        return parts.rotation.asVector().get(rotation);
    });
}

MStatus MFnTransform::getRotation(double rotation[3], MTransformationMatrix::RotationOrder& order,
                                  MSpace::Space space) const
{
    TVX_API_CALL("MFnTransform::getRotation");
    return withParts(*this, space, [&](const Transformation& parts, const Parents& parents) {
        MEulerRotation seen(parts.rotation);
        if (space == MSpace::kWorld)
            seen = rotationIn(parts, parents, space);
        order = api::transformOrder(seen.order);
        return seen.asVector().get(rotation);
    });
}

MStatus MFnTransform::setRotation(const MQuaternion& quaternion, MSpace::Space space)
{
    TVX_API_CALL("MFnTransform::setRotation");
    return changeParts(*this, space, [&](Transformation& parts, const Parents& parents) {
        setRotationIn(parts, parents, space, quaternion);
    });
}

MStatus MFnTransform::setRotation(const MEulerRotation& rotation)
{
    TVX_API_CALL("MFnTransform::setRotation");
    return changeParts(*this, MSpace::kTransform,
                       [&](Transformation& parts, const Parents&) { parts.rotation = rotation; });
}

MStatus MFnTransform::setRotation(const double rotation[3], MTransformationMatrix::RotationOrder order)
{
    TVX_API_CALL("MFnTransform::setRotation");
    if (!api::isRotationOrder(order))
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    return changeParts(*this, MSpace::kTransform, [&](Transformation& parts, const Parents&) {
        parts.rotation = MEulerRotation(MVector(rotation), api::eulerOrder(order));
    });
}

MStatus MFnTransform::setRotation(const double rotation[3], MTransformationMatrix::RotationOrder order,
                                  MSpace::Space space)
{
    TVX_API_CALL("MFnTransform::setRotation");
    if (!api::isRotationOrder(order))
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    const MEulerRotation angles(MVector(rotation), api::eulerOrder(order));
    return changeParts(*this, space, [&](Transformation& parts, const Parents& parents) {
        parts.rotation = angles;
        if (space == MSpace::kWorld)
            setRotationIn(parts, parents, space, angles.asQuaternion());
    });
}

MStatus MFnTransform::rotateBy(const MQuaternion& quaternion, MSpace::Space space)
{
    TVX_API_CALL("MFnTransform::rotateBy");
    return changeParts(*this, space, [&](Transformation& parts, const Parents& parents) {
        turn(parts, parents, space, quaternion);
    });
}

MStatus MFnTransform::rotateBy(const MEulerRotation& rotation, MSpace::Space space)
{
    TVX_API_CALL("MFnTransform::rotateBy");
    return changeParts(*this, space, [&](Transformation& parts, const Parents& parents) {
        turn(parts, parents, space, rotation.asQuaternion());
    });
}

MStatus MFnTransform::rotateBy(const double rotation[3], MTransformationMatrix::RotationOrder order,
                               MSpace::Space space)
{
    TVX_API_CALL("MFnTransform::rotateBy");
    if (!api::isRotationOrder(order))
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    const MEulerRotation angles(MVector(rotation), api::eulerOrder(order));
    return changeParts(*this, space, [&](Transformation& parts, const Parents& parents) {
        turn(parts, parents, space, angles.asQuaternion());
    });
}

MStatus MFnTransform::getRotationQuaternion(double& x, double& y, double& z, double& w,
                                            MSpace::Space space) const
{
    TVX_API_CALL("MFnTransform::getRotationQuaternion");
    return withParts(*this, space, [&](const Transformation& parts, const Parents& parents) {
        const MQuaternion q = rotationIn(parts, parents, space);
        x = q.x;
        y = q.y;
        z = q.z;
        w = q.w;
        return MStatus();
    });
}

MStatus MFnTransform::setRotationQuaternion(double x, double y, double z, double w, MSpace::Space space)
{
    TVX_API_CALL("MFnTransform::setRotationQuaternion");
    return changeParts(*this, space, [&](Transformation& parts, const Parents& parents) {
        setRotationIn(parts, parents, space, MQuaternion(x, y, z, w));
    });
}

MStatus MFnTransform::rotateByQuaternion(double x, double y, double z, double w, MSpace::Space space)
{
    TVX_API_CALL("MFnTransform::rotateByQuaternion");
    return changeParts(*this, space, [&](Transformation& parts, const Parents& parents) {
        turn(parts, parents, space, MQuaternion(x, y, z, w));
    });
}

MVector MFnTransform::getTranslation(MSpace::Space space, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnTransform::getTranslation", ReturnStatus, MVector());
    return readParts<MVector>(*this, space, ReturnStatus, translationIn);
}

MVector MFnTransform::translation(MSpace::Space space, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnTransform::translation", ReturnStatus, MVector());
    return readParts<MVector>(*this, space, ReturnStatus, translationIn);
}

MStatus MFnTransform::setTranslation(const MVector& vec, MSpace::Space space)
{
    TVX_API_CALL("MFnTransform::setTranslation");
    return changeParts(*this, space, [&](Transformation& parts, const Parents& parents) {
        parts.translation = space == MSpace::kWorld ? MVector(MPoint(vec) * parents.matrix.inverse()) : vec;
    });
}

MStatus MFnTransform::translateBy(const MVector& vec, MSpace::Space space)
{
    TVX_API_CALL("MFnTransform::translateBy");
    return changeParts(*this, space, [&](Transformation& parts, const Parents& parents) {
        parts.translateBy(space == MSpace::kWorld ? vec * parents.matrix.inverse() : vec, space);
    });
}

MPoint MFnTransform::scalePivot(MSpace::Space space, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnTransform::scalePivot", ReturnStatus, MPoint());
    return readParts<MPoint>(*this, space, ReturnStatus,
                             [space](const Transformation& parts, const Parents& parents) {
                                 return MPoint(parts.scalePivot) * toSpace(parts, parents, space);
                             });
}

MStatus MFnTransform::setScalePivot(const MPoint& point, MSpace::Space space, bool balance)
{
    TVX_API_CALL("MFnTransform::setScalePivot");
    return changeParts(*this, space, [&](Transformation& parts, const Parents& parents) {
        parts.setScalePivot(MVector(point * toSpace(parts, parents, space).inverse()), balance);
    });
}

MVector MFnTransform::scalePivotTranslation(MSpace::Space space, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnTransform::scalePivotTranslation", ReturnStatus, MVector());
    return readParts<MVector>(*this, space, ReturnStatus,
                              [](const Transformation& parts, const Parents& parents) {
                                  return parts.scalePivotTranslation * parents.matrix;
                              });
}

MStatus MFnTransform::setScalePivotTranslation(const MVector& vec, MSpace::Space space)
{
    TVX_API_CALL("MFnTransform::setScalePivotTranslation");
    return changeParts(*this, space, [&](Transformation& parts, const Parents& parents) {
        parts.scalePivotTranslation = vec * parents.matrix.inverse();
    });
}

MPoint MFnTransform::rotatePivot(MSpace::Space space, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnTransform::rotatePivot", ReturnStatus, MPoint());
    return readParts<MPoint>(*this, space, ReturnStatus,
                             [space](const Transformation& parts, const Parents& parents) {
                                 return MPoint(parts.rotatePivot) * toSpace(parts, parents, space);
                             });
}

MStatus MFnTransform::setRotatePivot(const MPoint& point, MSpace::Space space, bool balance)
{
    TVX_API_CALL("MFnTransform::setRotatePivot");
    return changeParts(*this, space, [&](Transformation& parts, const Parents& parents) {
        parts.setRotatePivot(MVector(point * toSpace(parts, parents, space).inverse()), balance);
    });
}

MVector MFnTransform::rotatePivotTranslation(MSpace::Space space, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnTransform::rotatePivotTranslation", ReturnStatus, MVector());
    return readParts<MVector>(*this, space, ReturnStatus,
                              [](const Transformation& parts, const Parents& parents) {
                                  return parts.rotatePivotTranslation * parents.matrix;
                              });
}

MStatus MFnTransform::setRotatePivotTranslation(const MVector& vec, MSpace::Space space)
{
    TVX_API_CALL("MFnTransform::setRotatePivotTranslation");
    return changeParts(*this, space, [&](Transformation& parts, const Parents& parents) {
        parts.rotatePivotTranslation = vec * parents.matrix.inverse();
    });
}

MQuaternion MFnTransform::rotateOrientation(MSpace::Space space, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnTransform::rotateOrientation", ReturnStatus, MQuaternion());
    return readParts<MQuaternion>(
        *this, space, ReturnStatus,
        [](const Transformation& parts, const Parents&) { return parts.orientation; });
}

MStatus MFnTransform::setRotateOrientation(const MQuaternion& quat, MSpace::Space space, bool balance)
{
    TVX_API_CALL("MFnTransform::setRotateOrientation");
    return changeParts(*this, space, [&](Transformation& parts, const Parents&) {
        if (balance)
            parts.rotation = quat.inverse() * parts.orientation * parts.rotation.asQuaternion();
        parts.orientation = quat;
    });
}

MTransformationMatrix::RotationOrder MFnTransform::rotationOrder(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnTransform::rotationOrder", ReturnStatus, MTransformationMatrix::kInvalid);
    return readParts<MTransformationMatrix::RotationOrder>(
        *this, MSpace::kTransform, ReturnStatus, [](const Transformation& parts, const Parents&) {
            return api::transformOrder(parts.rotation.order);
        });
}

MStatus MFnTransform::setRotationOrder(MTransformationMatrix::RotationOrder order, bool reorder)
{
    TVX_API_CALL("MFnTransform::setRotationOrder");
    if (!api::isRotationOrder(order))
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    return changeParts(*this, MSpace::kTransform, [&](Transformation& parts, const Parents&) {
        if (reorder)
            parts.rotation.reorderIt(api::eulerOrder(order));
        parts.rotation.order = api::eulerOrder(order);
    });
}
