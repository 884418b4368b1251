// MFnNumericData: a group of two to four numbers as an object.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnData.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

/// Function set for data objects that hold a group of two to four numbers.
class OPENMAYA_EXPORT MFnNumericData : public MFnData
{
public:
    /// The types of numbers and groups of numbers. kLong is another name of kInt.
    enum Type
    {
        kInvalid = 0,
        kBoolean = 1,
        kByte = 2,
        kChar = 3,
        kShort = 4,
        k2Short = 5,
        k3Short = 6,
        kLong = 7,
        kInt = 7,
        k2Long = 8,
        k2Int = 8,
        k3Long = 9,
        k3Int = 9,
        kInt64 = 10,
        kFloat = 11,
        k2Float = 12,
        k3Float = 13,
        kDouble = 14,
        k2Double = 15,
        k3Double = 16,
        k4Double = 17,
        kAddr = 18,
        kLast = 19,
    };

    /// Attached to nothing.
    MFnNumericData() {}

    /// Attached to numeric data.
    MFnNumericData(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnNumericData(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnNumericData() override;

    MFn::Type type() const override;

    /// Makes an object for a group of this type, all zero, and attaches to it.
    MObject create(Type dataType, MStatus* ReturnStatus = nullptr);

    /// The type of the group.
    Type numericType(MStatus* ReturnStatus = nullptr);

    /// The numbers; kFailure when the group is of another type.
    MStatus getData(short& val1, short& val2);
    MStatus getData(int& val1, int& val2);
    MStatus getData(float& val1, float& val2);
    MStatus getData(double& val1, double& val2);
    MStatus getData(short& val1, short& val2, short& val3);
    MStatus getData(int& val1, int& val2, int& val3);
    MStatus getData(float& val1, float& val2, float& val3);
    MStatus getData(double& val1, double& val2, double& val3);
    MStatus getData(double& val1, double& val2, double& val3, double& val4);

    /// Sets the numbers; kFailure when the group is of another type.
    MStatus setData(short val1, short val2);
    MStatus setData(int val1, int val2);
    MStatus setData(float val1, float val2);
    MStatus setData(double val1, double val2);
    MStatus setData(short val1, short val2, short val3);
    MStatus setData(int val1, int val2, int val3);
    MStatus setData(float val1, float val2, float val3);
    MStatus setData(double val1, double val2, double val3);
    MStatus setData(double val1, double val2, double val3, double val4);

    /// As getData and setData, by name.
    MStatus getData2Short(short& val1, short& val2);
    MStatus getData2Int(int& val1, int& val2);
    MStatus getData2Float(float& val1, float& val2);
    MStatus getData2Double(double& val1, double& val2);
    MStatus getData3Short(short& val1, short& val2, short& val3);
    MStatus getData3Int(int& val1, int& val2, int& val3);
    MStatus getData3Float(float& val1, float& val2, float& val3);
    MStatus getData3Double(double& val1, double& val2, double& val3);
    MStatus getData4Double(double& val1, double& val2, double& val3, double& val4);
    MStatus setData2Short(short val1, short val2);
    MStatus setData2Int(int val1, int val2);
    MStatus setData2Float(float val1, float val2);
    MStatus setData2Double(double val1, double val2);
    MStatus setData3Short(short val1, short val2, short val3);
    MStatus setData3Int(int val1, int val2, int val3);
    MStatus setData3Float(float val1, float val2, float val3);
    MStatus setData3Double(double val1, double val2, double val3);
    MStatus setData4Double(double val1, double val2, double val3, double val4);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
