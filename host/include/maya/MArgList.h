// MArgList: the arguments of a command.
#pragma once

#include <maya/MAngle.h>
#include <maya/MDistance.h>
#include <maya/MDoubleArray.h>
#include <maya/MIntArray.h>
#include <maya/MMatrix.h>
#include <maya/MPoint.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>
#include <maya/MTime.h>
#include <maya/MTypes.h>
#include <maya/MVector.h>
#include <maya/tvxEngine.h>

/// The arguments of a command, flags included, in the order in which they were written. Readers give a
/// neutral value and a failure when the argument is missing or of another kind.
class OPENMAYA_EXPORT MArgList
{
public:
    /// No arguments.
    MArgList();
    MArgList(const MArgList& other);
    ~MArgList();

    MArgList& operator=(const MArgList& other);

    /// Number of arguments.
    unsigned int length(MStatus* ReturnStatus = nullptr) const;

    /// The argument at an index. Numbers convert.
    bool asBool(unsigned int index, MStatus* ret = nullptr) const;
    int asInt(unsigned int index, MStatus* ret = nullptr) const;
    double asDouble(unsigned int index, MStatus* ret = nullptr) const;
    MString asString(unsigned int index, MStatus* ret = nullptr) const;
    MDistance asDistance(unsigned int index, MStatus* ret = nullptr) const;
    MAngle asAngle(unsigned int index, MStatus* ret = nullptr) const;
    MTime asTime(unsigned int index, MStatus* ret = nullptr) const;

    /// So many numbers from the index on. On success the index ends on the last one read, on failure on the
    /// argument that is at fault.
    MVector asVector(unsigned int& index, unsigned int numElements = 3,
                     MStatus* ReturnStatus = nullptr) const;
    MPoint asPoint(unsigned int& index, unsigned int numElements = 3, MStatus* ReturnStatus = nullptr) const;

    /// Sixteen numbers from the index on; the index ends on the last one.
    MMatrix asMatrix(unsigned int& index, MStatus* ret = nullptr) const;

    /// An array: the argument at the index is the number of elements, which follow. The index ends on the
    /// last one.
    MIntArray asIntArray(unsigned int& index, MStatus* ReturnStatus = nullptr) const;
    MDoubleArray asDoubleArray(unsigned int& index, MStatus* ReturnStatus = nullptr) const;
    const MStringArray asStringArray(unsigned int& index, MStatus* ReturnStatus = nullptr) const;

    /// The position of a flag, by its short or long name with or without the dash; kInvalidArgIndex when it
    /// is not there.
    unsigned int flagIndex(const char* shortFlag, const char* longFlag = nullptr) const;

    /// Adds an argument at the end.
    MStatus addArg(bool arg);
    MStatus addArg(int arg);
    MStatus addArg(double arg);
    MStatus addArg(const MString& arg);
    MStatus addArg(const MDistance& arg);
    MStatus addArg(const MAngle& arg);
    MStatus addArg(const MTime& arg);
    MStatus addArg(const MVector& arg);
    MStatus addArg(const MPoint& arg);

    /// As the readers above, with the value in `ret`.
    MStatus get(unsigned int index, bool& ret) const;
    MStatus get(unsigned int index, int& ret) const;
    MStatus get(unsigned int index, double& ret) const;
    MStatus get(unsigned int index, MString& ret) const;
    MStatus get(unsigned int index, MDistance& ret) const;
    MStatus get(unsigned int index, MAngle& ret) const;
    MStatus get(unsigned int index, MTime& ret) const;
    MStatus get(unsigned int& index, MVector& ret, unsigned int numElements = 3) const;
    MStatus get(unsigned int& index, MPoint& ret, unsigned int numElements = 3) const;
    MStatus get(unsigned int& index, MMatrix& ret) const;
    MStatus get(unsigned int& index, MIntArray& ret) const;
    MStatus get(unsigned int& index, MDoubleArray& ret) const;
    MStatus get(unsigned int& index, MStringArray& ret) const;

    /// The name of this class.
    static const char* className();

    static const unsigned int kInvalidArgIndex; ///< no such argument

private:
    friend class tvxAccess;

    tvxhost::api::Arguments* arguments; ///< owned
    void* reserved;
};
