// MFnMatrixAttribute: matrices.
#pragma once

#include <maya/MFloatMatrix.h>
#include <maya/MFn.h>
#include <maya/MFnAttribute.h>
#include <maya/MMatrix.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

/// Function set for attributes that hold a 4 x 4 matrix. The default is the identity.
class OPENMAYA_EXPORT MFnMatrixAttribute : public MFnAttribute
{
public:
    enum Type
    {
        kFloat = 0,
        kDouble = 1,
    };

    /// Attached to nothing.
    MFnMatrixAttribute() {}

    /// Attached to a matrix attribute.
    MFnMatrixAttribute(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnMatrixAttribute(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnMatrixAttribute() override;

    MFn::Type type() const override;

    /// Makes an attribute of the given precision and attaches to it.
    MObject create(const MString& fullName, const MString& briefName, Type matrixType = kDouble,
                   MStatus* ReturnStatus = nullptr);

    /// The default value; kFailure for the other precision.
    MStatus getDefault(MMatrix& def);
    MStatus getDefault(MFloatMatrix& def);

    MStatus setDefault(const MMatrix& def);
    MStatus setDefault(const MFloatMatrix& def);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
