// MCommandResult: the value of a MEL command.
#pragma once

#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MDoubleArray;
class MInt64Array;
class MIntArray;
class MStringArray;
class MVector;
class MVectorArray;

/// The value of a MEL command, of whatever type it is. Reading as another type fails with kFailure and
/// changes nothing; whole numbers and floating-point numbers convert.
class OPENMAYA_EXPORT MCommandResult
{
public:
    enum Type
    {
        kInvalid = 0,
        kInt = 1,
        kInt64 = 2,
        kIntArray = 3,
        kInt64Array = 4,
        kDouble = 5,
        kDoubleArray = 6,
        kString = 7,
        kStringArray = 8,
        kVector = 9,
        kVectorArray = 10,
        kMatrix = 11,
        kMatrixArray = 12,
    };

    /// No value.
    MCommandResult(MStatus* ReturnStatus = nullptr);

    virtual ~MCommandResult();

    /// The type; kInvalid when there is no value. Boolean values are integers.
    Type resultType(MStatus* ReturnStatus = nullptr) const;

    /// The value.
    MStatus getResult(int& result) const;
    MStatus getResult(MInt64& result) const;
    MStatus getResult(MIntArray& result) const;
    MStatus getResult(MInt64Array& result) const;
    MStatus getResult(double& result) const;
    MStatus getResult(MDoubleArray& result) const;
    MStatus getResult(MString& result) const;
    MStatus getResult(MStringArray& result) const;
    MStatus getResult(MVector& result) const;
    MStatus getResult(MVectorArray& result) const;

    /// A matrix, row by row.
    MStatus getResult(MDoubleArray& result, int& numRows, int& numColumns) const;

    /// The value when it is text.
    MString stringResult(MStatus* ReturnResult = nullptr) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    MCommandResult(const MCommandResult&) = delete;
    MCommandResult& operator=(const MCommandResult&) = delete;

    tvxhost::api::CommandValue* value; ///< owned
};
