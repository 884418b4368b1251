// MTransformationMatrix: a transformation in its parts.
#include <maya/MTransformationMatrix.h>

#include "support/rotationOrder.h"
#include "support/status.h"
#include "support/transformation.h"

using namespace tvxhost::api;

namespace {

MStatus invalidArgument()
{
    return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
}

/// Whether the space exists; says so to the caller.
bool accept(MSpace::Space space, MStatus* status)
{
    give(status, isSpace(space) ? MStatus() : invalidArgument());
    return isSpace(space);
}

MStatus getParts(const MVector& part, double target[3], MSpace::Space space)
{
    if (!isSpace(space))
        return invalidArgument();
    return part.get(target);
}

MStatus setPart(MVector& part, const MVector& value, MSpace::Space space)
{
    if (!isSpace(space))
        return invalidArgument();
    part = value;
    return MS::kSuccess;
}

MVector product(const MVector& a, const MVector& b)
{
    return MVector(a.x * b.x, a.y * b.y, a.z * b.z);
}

/// A pivot as seen from a space: behind the transformation it is where the transformation takes it.
MPoint pivotIn(const MVector& pivot, const Transformation& t, MSpace::Space space)
{
    return isBehind(space) ? MPoint(pivot) * t.matrix() : MPoint(pivot);
}

MVector pivotFrom(const MPoint& point, const Transformation& t, MSpace::Space space)
{
    return MVector(isBehind(space) ? point * t.matrix().inverse() : point);
}

MVector anglesOf(const double rotation[3])
{
    return MVector(rotation[0], rotation[1], rotation[2]);
}

} // namespace

const MTransformationMatrix MTransformationMatrix::identity;

MTransformationMatrix::MTransformationMatrix() : transformation(new Transformation) {}

MTransformationMatrix::MTransformationMatrix(const MTransformationMatrix& src)
    : transformation(new Transformation(*src.transformation))
{
}

MTransformationMatrix::MTransformationMatrix(const MMatrix& src) : MTransformationMatrix()
{
    *this = src;
}

MTransformationMatrix::~MTransformationMatrix()
{
    delete transformation;
}

MTransformationMatrix& MTransformationMatrix::operator=(const MTransformationMatrix& src)
{
    *transformation = *src.transformation;
    return *this;
}

MTransformationMatrix& MTransformationMatrix::operator=(const MMatrix& src)
{
    transformation->decompose(src);
    return *this;
}

MMatrix MTransformationMatrix::asMatrix() const
{
    return transformation->matrix();
}

MMatrix MTransformationMatrix::asMatrix(double percent) const
{
    return transformation->partial(percent).matrix();
}

MMatrix MTransformationMatrix::asMatrixInverse() const
{
    return asMatrix().inverse();
}

MMatrix MTransformationMatrix::asScaleMatrix() const
{
    Transformation scaleOnly;
    scaleOnly.scale = transformation->scale;
    return scaleOnly.matrix();
}

MMatrix MTransformationMatrix::asRotateMatrix() const
{
    return transformation->rotationMatrix();
}

MStatus MTransformationMatrix::getScale(double scale[3], MSpace::Space space) const
{
    return getParts(transformation->scale, scale, space);
}

MStatus MTransformationMatrix::setScale(const double scale[3], MSpace::Space space)
{
    return setPart(transformation->scale, MVector(scale), space);
}

MStatus MTransformationMatrix::addScale(const double scale[3], MSpace::Space space)
{
    return setPart(transformation->scale, product(transformation->scale, MVector(scale)), space);
}

MQuaternion MTransformationMatrix::rotation() const
{
    return transformation->rotation.asQuaternion();
}

MTransformationMatrix& MTransformationMatrix::rotateTo(const MQuaternion& q)
{
    transformation->rotation = q;
    return *this;
}

MTransformationMatrix& MTransformationMatrix::rotateTo(const MEulerRotation& e)
{
    transformation->rotation = e;
    return *this;
}

MTransformationMatrix& MTransformationMatrix::rotateBy(const MQuaternion& q, MSpace::Space space,
                                                       MStatus* ReturnStatus)
{
    if (accept(space, ReturnStatus))
        transformation->rotateBy(q, space);
    return *this;
}

MTransformationMatrix& MTransformationMatrix::rotateBy(const MEulerRotation& e, MSpace::Space space,
                                                       MStatus* ReturnStatus)
{
    return rotateBy(e.asQuaternion(), space, ReturnStatus);
}

MEulerRotation MTransformationMatrix::eulerRotation() const
{
    return transformation->rotation;
}

MStatus MTransformationMatrix::getRotationQuaternion(double& x, double& y, double& z, double& w) const
{
    const MQuaternion q = rotation();
    x = q.x;
    y = q.y;
    z = q.z;
    w = q.w;
    return MS::kSuccess;
}

MStatus MTransformationMatrix::getRotationQuaternion(double& x, double& y, double& z, double& w,
                                                     MSpace::Space space) const
{
    if (!isSpace(space))
        return invalidArgument();
    return getRotationQuaternion(x, y, z, w);
}

MStatus MTransformationMatrix::setRotationQuaternion(double x, double y, double z, double w)
{
    rotateTo(MQuaternion(x, y, z, w));
    return MS::kSuccess;
}

MStatus MTransformationMatrix::setRotationQuaternion(double x, double y, double z, double w,
                                                     MSpace::Space space)
{
    if (!isSpace(space))
        return invalidArgument();
    return setRotationQuaternion(x, y, z, w);
}

MStatus MTransformationMatrix::addRotationQuaternion(double x, double y, double z, double w,
                                                     MSpace::Space space)
{
    MStatus status;
    rotateBy(MQuaternion(x, y, z, w), space, &status);
    return status;
}

MStatus MTransformationMatrix::getRotation(double angles[3], RotationOrder& order) const
{
    order = rotationOrder();
    return transformation->rotation.asVector().get(angles);
}

MStatus MTransformationMatrix::getRotation(double angles[3], RotationOrder& order, MSpace::Space space) const
{
    if (!isSpace(space))
        return invalidArgument();
    return getRotation(angles, order);
}

MStatus MTransformationMatrix::setRotation(const double angles[3], RotationOrder order)
{
    if (!isRotationOrder(order))
        return invalidArgument();
    transformation->rotation = MEulerRotation(anglesOf(angles), eulerOrder(order));
    return MS::kSuccess;
}

MStatus MTransformationMatrix::setRotation(const double angles[3], RotationOrder order, MSpace::Space space)
{
    if (!isSpace(space))
        return invalidArgument();
    return setRotation(angles, order);
}

MStatus MTransformationMatrix::addRotation(const double angles[3], RotationOrder order, MSpace::Space space)
{
    if (!isRotationOrder(order))
        return invalidArgument();
    MStatus status;
    rotateBy(MEulerRotation(anglesOf(angles), eulerOrder(order)), space, &status);
    return status;
}

MTransformationMatrix::RotationOrder MTransformationMatrix::rotationOrder(MStatus* ReturnStatus) const
{
    giveSuccess(ReturnStatus);
    return transformOrder(transformation->rotation.order);
}

MStatus MTransformationMatrix::reorderRotation(const RotationOrder& order)
{
    if (!isRotationOrder(order))
        return invalidArgument();
    transformation->rotation.reorderIt(eulerOrder(order));
    return MS::kSuccess;
}

MStatus MTransformationMatrix::setToRotationAxis(const MVector& axis, double angle)
{
    rotateTo(MQuaternion(angle, axis));
    return MS::kSuccess;
}

MQuaternion MTransformationMatrix::rotationOrientation() const
{
    return transformation->orientation;
}

MTransformationMatrix& MTransformationMatrix::setRotationOrientation(const MQuaternion& q)
{
    transformation->orientation = q;
    return *this;
}

MVector MTransformationMatrix::getTranslation(MSpace::Space space, MStatus* ReturnStatus) const
{
    return accept(space, ReturnStatus) ? transformation->translation : MVector();
}

MStatus MTransformationMatrix::setTranslation(const MVector& vector, MSpace::Space space)
{
    return setPart(transformation->translation, vector, space);
}

MStatus MTransformationMatrix::addTranslation(const MVector& vector, MSpace::Space space)
{
    if (!isSpace(space))
        return invalidArgument();
    transformation->translateBy(vector, space);
    return MS::kSuccess;
}

MStatus MTransformationMatrix::setShear(const double shear[3], MSpace::Space space)
{
    return setPart(transformation->shear, MVector(shear), space);
}

MStatus MTransformationMatrix::getShear(double shear[3], MSpace::Space space) const
{
    return getParts(transformation->shear, shear, space);
}

MStatus MTransformationMatrix::addShear(const double shear[3], MSpace::Space space)
{
    return setPart(transformation->shear, transformation->shear + MVector(shear), space);
}

MPoint MTransformationMatrix::scalePivot(MSpace::Space space, MStatus* ReturnStatus) const
{
    return accept(space, ReturnStatus) ? pivotIn(transformation->scalePivot, *transformation, space)
                                       : MPoint();
}

MStatus MTransformationMatrix::setScalePivot(const MPoint& point, MSpace::Space space, bool balance)
{
    if (!isSpace(space))
        return invalidArgument();
    transformation->setScalePivot(pivotFrom(point, *transformation, space), balance);
    return MS::kSuccess;
}

MVector MTransformationMatrix::scalePivotTranslation(MSpace::Space space, MStatus* ReturnStatus) const
{
    return accept(space, ReturnStatus) ? transformation->scalePivotTranslation : MVector();
}

MStatus MTransformationMatrix::setScalePivotTranslation(const MVector& vector, MSpace::Space space)
{
    return setPart(transformation->scalePivotTranslation, vector, space);
}

MPoint MTransformationMatrix::rotatePivot(MSpace::Space space, MStatus* ReturnStatus) const
{
    return accept(space, ReturnStatus) ? pivotIn(transformation->rotatePivot, *transformation, space)
                                       : MPoint();
}

MStatus MTransformationMatrix::setRotatePivot(const MPoint& point, MSpace::Space space, bool balance)
{
    if (!isSpace(space))
        return invalidArgument();
    transformation->setRotatePivot(pivotFrom(point, *transformation, space), balance);
    return MS::kSuccess;
}

MVector MTransformationMatrix::rotatePivotTranslation(MSpace::Space space, MStatus* ReturnStatus) const
{
    return accept(space, ReturnStatus) ? transformation->rotatePivotTranslation : MVector();
}

MStatus MTransformationMatrix::setRotatePivotTranslation(const MVector& vector, MSpace::Space space)
{
    return setPart(transformation->rotatePivotTranslation, vector, space);
}

bool MTransformationMatrix::isEquivalent(const MTransformationMatrix& other, double tolerance) const
{
    return asMatrix().isEquivalent(other.asMatrix(), tolerance);
}

bool MTransformationMatrix::operator==(const MTransformationMatrix& other) const
{
    return asMatrix() == other.asMatrix();
}

bool MTransformationMatrix::operator!=(const MTransformationMatrix& other) const
{
    return !(*this == other);
}

MVector MTransformationMatrix::translation(MSpace::Space space, MStatus* ReturnStatus) const
{
    return getTranslation(space, ReturnStatus);
}

const char* MTransformationMatrix::className()
{
    return "MTransformationMatrix";
}
