// MTransformationMatrix: a transformation in its parts.
#pragma once

#include <maya/MMatrix.h>
#include <maya/MSpace.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MEulerRotation;
class MPoint;
class MQuaternion;
class MVector;

#define MTransformationMatrix_kTol 1.0e-10

/// A transformation kept in its parts, as a transform node has them. The matrix is, for row vectors, the
/// product of: scale pivot inverse, scale, shear, scale pivot, scale pivot translation, rotate pivot inverse,
/// rotate orientation, rotation, rotate pivot, rotate pivot translation, translation. Lengths are
/// centimetres, angles radians.
class OPENMAYA_EXPORT MTransformationMatrix
{
public:
    /// The axes in the order in which they are applied. One more than the value that MEulerRotation uses.
    enum RotationOrder
    {
        kInvalid = 0,
        kXYZ = 1,
        kYZX = 2,
        kZXY = 3,
        kXZY = 4,
        kYXZ = 5,
        kZYX = 6,
        kLast = 7,
    };

    /// No transformation.
    MTransformationMatrix();
    MTransformationMatrix(const MTransformationMatrix& src);

    /// Takes the matrix apart.
    MTransformationMatrix(const MMatrix& src);
    ~MTransformationMatrix();

    MTransformationMatrix& operator=(const MTransformationMatrix& src);
    MTransformationMatrix& operator=(const MMatrix& src);

    /// The whole as a matrix, or the share `percent` (0 to 1) of the way there from no transformation.
    MMatrix asMatrix() const;
    MMatrix asMatrix(double percent) const;

    MMatrix asMatrixInverse() const;

    /// The scale alone, and the rotation alone.
    MMatrix asScaleMatrix() const;
    MMatrix asRotateMatrix() const;

    /// The scale; adding multiplies what there is.
    MStatus getScale(double scale[3], MSpace::Space space) const;
    MStatus setScale(const double scale[3], MSpace::Space space);
    MStatus addScale(const double scale[3], MSpace::Space space);

    /// The rotation; rotateBy turns further, in the given space.
    MQuaternion rotation() const;
    MTransformationMatrix& rotateTo(const MQuaternion& q);
    MTransformationMatrix& rotateTo(const MEulerRotation& e);
    MTransformationMatrix& rotateBy(const MQuaternion& q, MSpace::Space space,
                                    MStatus* ReturnStatus = nullptr);
    MTransformationMatrix& rotateBy(const MEulerRotation& e, MSpace::Space space,
                                    MStatus* ReturnStatus = nullptr);
    MEulerRotation eulerRotation() const;

    /// The rotation as the four parts of a quaternion.
    MStatus getRotationQuaternion(double& x, double& y, double& z, double& w) const;
    MStatus getRotationQuaternion(double& x, double& y, double& z, double& w, MSpace::Space space) const;
    MStatus setRotationQuaternion(double x, double y, double z, double w);
    MStatus setRotationQuaternion(double x, double y, double z, double w, MSpace::Space space);
    MStatus addRotationQuaternion(double x, double y, double z, double w, MSpace::Space space);

    /// The rotation as angles about x, y and z, with their order.
    MStatus getRotation(double values[3], RotationOrder& order) const;
    MStatus getRotation(double values[3], RotationOrder& order, MSpace::Space space) const;
    MStatus setRotation(const double rotation[3], RotationOrder order);
    MStatus setRotation(const double rotation[3], RotationOrder order, MSpace::Space space);
    MStatus addRotation(const double rotation[3], RotationOrder order, MSpace::Space space);

    /// The order of the angles; kInvalidParameter for an order that does not exist.
    RotationOrder rotationOrder(MStatus* ReturnStatus = nullptr) const;

    /// Changes the order and keeps the rotation.
    MStatus reorderRotation(const RotationOrder& order);

    /// Becomes a rotation by an angle about an axis.
    MStatus setToRotationAxis(const MVector& axis, double rotation);

    /// The rotation of the axes in which the rotation is made.
    MQuaternion rotationOrientation() const;
    MTransformationMatrix& setRotationOrientation(const MQuaternion& q);

    /// The translation in the given space.
    MVector getTranslation(MSpace::Space space, MStatus* ReturnStatus = nullptr) const;
    MStatus setTranslation(const MVector& vector, MSpace::Space space);
    MStatus addTranslation(const MVector& vector, MSpace::Space space);

    /// Shear of x by y, x by z and y by z.
    MStatus setShear(const double shear[3], MSpace::Space space);
    MStatus getShear(double shear[3], MSpace::Space space) const;
    MStatus addShear(const double shear[3], MSpace::Space space);

    /// The point that scaling leaves in place. With `balance` a change leaves the whole as it is, by way of
    /// the pivot's translation.
    MPoint scalePivot(MSpace::Space space, MStatus* ReturnStatus = nullptr) const;
    MStatus setScalePivot(const MPoint&, MSpace::Space space, bool balance);
    MVector scalePivotTranslation(MSpace::Space space, MStatus* ReturnStatus = nullptr) const;
    MStatus setScalePivotTranslation(const MVector& vector, MSpace::Space space);

    /// The point that rotation leaves in place. With `balance` a change leaves the whole as it is, by way of
    /// the pivot's translation.
    MPoint rotatePivot(MSpace::Space space, MStatus* ReturnStatus = nullptr) const;
    MStatus setRotatePivot(const MPoint& point, MSpace::Space space, bool balance);
    MVector rotatePivotTranslation(MSpace::Space space, MStatus* ReturnStatus = nullptr) const;
    MStatus setRotatePivotTranslation(const MVector& vector, MSpace::Space space);

    /// Whether no element of the two matrices differs by more than the tolerance.
    bool isEquivalent(const MTransformationMatrix& other,
                      double tolerance = MTransformationMatrix_kTol) const;

    /// Exact comparison.
    bool operator==(const MTransformationMatrix& other) const;
    bool operator!=(const MTransformationMatrix& other) const;

    /// As getTranslation.
    MVector translation(MSpace::Space space, MStatus* ReturnStatus = nullptr) const;

    /// The name of this class.
    static const char* className();

    static const MTransformationMatrix identity; ///< no transformation

private:
    friend class tvxAccess;

    tvxhost::api::Transformation* transformation; ///< owned
};
