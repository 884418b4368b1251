// MFnTransform: transforms.
#pragma once

#include <maya/MEulerRotation.h>
#include <maya/MFn.h>
#include <maya/MFnDagNode.h>
#include <maya/MObject.h>
#include <maya/MPoint.h>
#include <maya/MQuaternion.h>
#include <maya/MSpace.h>
#include <maya/MStatus.h>
#include <maya/MTransformationMatrix.h>
#include <maya/MTypes.h>
#include <maya/MVector.h>

class MDagPath;

/// Function set for transform nodes. Lengths are centimetres, angles radians. kTransform is the space of the
/// node's own attributes; kWorld needs a set that was built on a path. Setters refuse when the attributes are
/// locked or connected.
class OPENMAYA_EXPORT MFnTransform : public MFnDagNode
{
public:
    /// The ends of the ranges to which attributes can be limited.
    enum LimitType
    {
        kScaleMinX = 0,
        kScaleMaxX = 1,
        kScaleMinY = 2,
        kScaleMaxY = 3,
        kScaleMinZ = 4,
        kScaleMaxZ = 5,
        kShearMinXY = 6,
        kShearMaxXY = 7,
        kShearMinXZ = 8,
        kShearMaxXZ = 9,
        kShearMinYZ = 10,
        kShearMaxYZ = 11,
        kRotateMinX = 12,
        kRotateMaxX = 13,
        kRotateMinY = 14,
        kRotateMaxY = 15,
        kRotateMinZ = 16,
        kRotateMaxZ = 17,
        kTranslateMinX = 18,
        kTranslateMaxX = 19,
        kTranslateMinY = 20,
        kTranslateMaxY = 21,
        kTranslateMinZ = 22,
        kTranslateMaxZ = 23,
    };

    /// Attached to nothing.
    MFnTransform();

    /// Attached to a transform, or to one instance of it.
    MFnTransform(MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnTransform(const MDagPath& object, MStatus* ret TVX_OPTIONAL_STATUS);

    MFnTransform(const MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    ~MFnTransform() override;

    MFn::Type type() const override;

    /// Makes a transform below the parent, or the world, and attaches to it.
    MObject create(MObject parent = MObject::kNullObj, MStatus* ReturnStatus = nullptr);

    /// All parts of the transformation.
    MTransformationMatrix transformation(MStatus* ReturnStatus = nullptr) const;

    /// Replaces all parts.
    MStatus set(const MTransformationMatrix& transform);

    /// The scale; scaleBy multiplies it.
    MStatus getScale(double scale[3]) const;
    MStatus setScale(const double scale[3]);
    MStatus scaleBy(const double scale[3]);

    /// Shear of x by y, x by z and y by z; shearBy adds to it.
    MStatus getShear(double scale[3]) const;
    MStatus setShear(const double shear[3]);
    MStatus shearBy(const double shear[3]);

    /// The rotation; rotateBy turns further.
    MStatus getRotation(MQuaternion& quaternion, MSpace::Space space = MSpace::kTransform) const;
    MStatus getRotation(MEulerRotation& rotation) const;
    MStatus getRotation(double rotation[3], MTransformationMatrix::RotationOrder& order) const;
    MStatus getRotation(double rotation[3], MTransformationMatrix::RotationOrder& order,
                        MSpace::Space space) const;
    MStatus setRotation(const MQuaternion& quaternion, MSpace::Space space = MSpace::kTransform);
    MStatus setRotation(const MEulerRotation& rotation);
    MStatus setRotation(const double rotation[3], MTransformationMatrix::RotationOrder order);
    MStatus setRotation(const double rotation[3], MTransformationMatrix::RotationOrder order,
                        MSpace::Space space);
    MStatus rotateBy(const MQuaternion& quaternion, MSpace::Space space = MSpace::kTransform);
    MStatus rotateBy(const MEulerRotation& rotation, MSpace::Space space = MSpace::kTransform);
    MStatus rotateBy(const double rotation[3], MTransformationMatrix::RotationOrder order,
                     MSpace::Space space = MSpace::kTransform);

    /// The rotation as the four parts of a quaternion.
    MStatus getRotationQuaternion(double& x, double& y, double& z, double& w,
                                  MSpace::Space space = MSpace::kTransform) const;
    MStatus setRotationQuaternion(double x, double y, double z, double w,
                                  MSpace::Space space = MSpace::kTransform);
    MStatus rotateByQuaternion(double x, double y, double z, double w,
                               MSpace::Space space = MSpace::kTransform);

    /// The translation; translateBy moves relative to where it is.
    MVector getTranslation(MSpace::Space space, MStatus* ReturnStatus = nullptr) const;
    MStatus setTranslation(const MVector& vec, MSpace::Space space);
    MStatus translateBy(const MVector& vec, MSpace::Space space);

    /// The point that scaling leaves in place. With `balance` a change leaves the whole as it is.
    MPoint scalePivot(MSpace::Space space, MStatus* ReturnStatus = nullptr) const;
    MStatus setScalePivot(const MPoint& point, MSpace::Space space, bool balance);
    MVector scalePivotTranslation(MSpace::Space space, MStatus* ReturnStatus = nullptr) const;
    MStatus setScalePivotTranslation(const MVector& vec, MSpace::Space space);

    /// The point that rotation leaves in place. With `balance` a change leaves the whole as it is.
    MPoint rotatePivot(MSpace::Space space, MStatus* ReturnStatus = nullptr) const;
    MStatus setRotatePivot(const MPoint& point, MSpace::Space space, bool balance);
    MVector rotatePivotTranslation(MSpace::Space space, MStatus* ReturnStatus = nullptr) const;
    MStatus setRotatePivotTranslation(const MVector& vec, MSpace::Space space);

    /// The rotation of the axes in which the rotation is made.
    MQuaternion rotateOrientation(MSpace::Space space, MStatus* ReturnStatus = nullptr) const;
    MStatus setRotateOrientation(const MQuaternion& quat, MSpace::Space space, bool balance);

    /// The order of the angles; with `reorder` a change keeps the rotation.
    MTransformationMatrix::RotationOrder rotationOrder(MStatus* ReturnStatus = nullptr) const;
    MStatus setRotationOrder(MTransformationMatrix::RotationOrder order, bool reorder);

    /// The transformation to which inverse kinematics returns.
    MTransformationMatrix restPosition(MStatus* ReturnStatus) const;
    MStatus setRestPosition(const MTransformationMatrix& matrix);
    MStatus resetFromRestPosition();
    MStatus clearRestPosition();

    /// As getTranslation.
    MVector translation(MSpace::Space space, MStatus* ReturnStatus = nullptr) const;

    /// Whether the limit is in force, and its value.
    bool isLimited(LimitType type, MStatus* ReturnStatus = nullptr) const;
    double limitValue(LimitType type, MStatus* ReturnStatus = nullptr) const;
    MStatus setLimit(LimitType type, double value);
    MStatus enableLimit(LimitType type, bool flag);

    /// The name of this class.
    static const char* className();

protected:
    bool objectChanged(MFn::Type type, MStatus* ReturnStatus) override;

private:
    friend class tvxAccess;
};
