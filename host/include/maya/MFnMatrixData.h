// MFnMatrixData: a matrix as an object.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnData.h>
#include <maya/MMatrix.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTransformationMatrix.h>
#include <maya/MTypes.h>

/// Function set for data objects that hold a matrix, or a transformation in its parts.
class OPENMAYA_EXPORT MFnMatrixData : public MFnData
{
public:
    /// Attached to nothing.
    MFnMatrixData() {}

    /// Attached to matrix data.
    MFnMatrixData(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnMatrixData(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnMatrixData() override;

    MFn::Type type() const override;

    /// Whether the parts of a transformation are held.
    bool isTransformation(MStatus* ReturnStatus = nullptr) const;

    /// The parts.
    MTransformationMatrix transformation(MStatus* ReturnStatus = nullptr) const;

    /// The matrix, by reference: valid as long as the object.
    const MMatrix& matrix(MStatus* ReturnStatus = nullptr) const;

    /// Replaces the matrix.
    MStatus set(const MTransformationMatrix& transformation);
    MStatus set(const MMatrix& matrix);

    /// Makes an object, with the identity or this matrix, and attaches to it.
    MObject create(MStatus* ReturnStatus = nullptr);
    MObject create(const MMatrix&, MStatus* ReturnStatus = nullptr);
    MObject create(const MTransformationMatrix&, MStatus* ReturnStatus = nullptr);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
