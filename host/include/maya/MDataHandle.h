// MDataHandle: one value in a data block.
#pragma once

#include <maya/MAngle.h>
#include <maya/MDistance.h>
#include <maya/MFnData.h>
#include <maya/MFnNumericData.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTime.h>
#include <maya/MTypeId.h>
#include <maya/MTypes.h>

#include <cstring>

class MFloatMatrix;
class MFloatVector;
class MMatrix;
class MPlug;
class MPxData;
class MString;
class MUintArray;
class MVector;

/// Access to one value of a data block, valid as long as the block. The kind of value that is asked for is
/// the caller's responsibility; a handle without a value reads as zero. References reach into the stored
/// value.
class OPENMAYA_EXPORT MDataHandle
{
public:
    /// A handle without a value.
    MDataHandle();
    MDataHandle(const MDataHandle& other) { std::memcpy(storage, other.storage, sizeof(storage)); }

    MDataHandle& operator=(const MDataHandle& other)
    {
        std::memcpy(storage, other.storage, sizeof(storage));
        return *this;
    }

    /// Whether it is a number or a group of numbers.
    bool isNumeric() const;

    /// Whether it belongs to a generic attribute; then also whether it holds a number, or nothing.
    bool isGeneric(bool& isNumeric, bool& isNull) const;

    /// The kinds of value; kInvalid when it is of the other sort.
    MFnNumericData::Type numericType() const;
    MFnData::Type type() const;

    /// The type of a plug-in's own data; 0 for all else.
    MTypeId typeId() const;

    /// The plug-ins' types that a generic attribute takes.
    MStatus acceptedTypeIds(MUintArray&) const;

    /// The value as a data object; a null object when it is none.
    MObject data();

    /// Takes over the value of the other handle; kFailure when the kinds differ.
    MStatus copy(const MDataHandle& src);

    /// Marks the value as computed. Does not reach children of array elements.
    void setClean();

    /// The stored number.
    bool& asBool() const;
    char& asChar() const;
    unsigned char& asUChar() const;
    short& asShort() const;
    int& asLong() const;
    int& asInt() const;
    MInt64& asInt64() const;
    void*& asAddr() const;
    float& asFloat() const;
    double& asDouble() const;

    /// The stored number as a quantity.
    MDistance asDistance() const;
    MAngle asAngle() const;
    MTime asTime() const;

    /// The stored group of numbers.
    short2& asShort2() const;
    long2& asLong2() const;
    int2& asInt2() const;
    float2& asFloat2() const;
    double2& asDouble2() const;
    short3& asShort3() const;
    long3& asLong3() const;
    int3& asInt3() const;
    float3& asFloat3() const;
    double3& asDouble3() const;

    /// The stored group of three numbers under another type.
    MVector& asVector() const;
    MFloatVector& asFloatVector() const;

    /// The stored matrix.
    MMatrix& asMatrix() const;
    MFloatMatrix& asFloatMatrix() const;

    /// The stored text; empty when the attribute was never set.
    MString& asString() const;

    /// The stored geometry as an object, as it is or in world space.
    MObject asNurbsCurve() const;
    MObject asNurbsSurface() const;
    MObject asMesh() const;
    MObject asSubdSurface() const;
    MObject asNurbsCurveTransformed() const;
    MObject asNurbsSurfaceTransformed() const;
    MObject asMeshTransformed() const;
    MObject asSubdSurfaceTransformed() const;

    /// The matrix that places the geometry in the world.
    const MMatrix& geometryTransformMatrix() const;

    /// Stores a value. Does not mark it as computed.
    void set(bool value);
    void set(char value);
    void set(short value);
    void set(int value);
    void set(MInt64 value);
    void set(float value);
    void set(double value);
    void set(const MMatrix& value);
    void set(const MFloatMatrix& value);
    void set(const MVector& value);
    void set(const MFloatVector& value);
    void set(const MDistance& value);
    void set(const MAngle& value);
    void set(const MTime& value);
    void set(short, short);
    void set(int, int);
    void set(float, float);
    void set(double, double);
    void set(short, short, short);
    void set(int, int, int);
    void set(float, float, float);
    void set(double, double, double);
    void set(const MString& value);

    /// Stores a data object; kFailure when it is of the wrong type.
    MStatus set(const MObject& data);

    /// Stores a plug-in's own data, as it is and not as a copy: that of an MFnPluginData, or one made with
    /// `new`, which the value owns from then on. kFailure when it is of a type that the value does not take.
    MStatus set(MPxData* data);
    MStatus setMPxData(MPxData* data);

    /// The stored data of a plug-in; null when there is none.
    MPxData* asPluginData() const;

    /// As set, by name.
    void setBool(bool value);
    void setChar(char value);
    void setShort(short value);
    void setInt(int value);
    void setInt64(MInt64 value);
    void setFloat(float value);
    void setDouble(double value);
    void setMMatrix(const MMatrix& value);
    void setMFloatMatrix(const MFloatMatrix& value);
    void setMVector(const MVector& value);
    void setMFloatVector(const MFloatVector& value);
    void setMDistance(const MDistance& value);
    void setMAngle(const MAngle& value);
    void setMTime(const MTime& value);
    void set2Short(short, short);
    void set2Int(int, int);
    void set2Float(float, float);
    void set2Double(double, double);
    void set3Short(short, short, short);
    void set3Int(int, int, int);
    void set3Float(float, float, float);
    void set3Double(double, double, double);
    void setString(const MString& value);

    MStatus setMObject(const MObject& data);

    /// The number in a generic attribute.
    bool asGenericBool() const;
    unsigned char asGenericChar() const;
    double asGenericDouble() const;
    float asGenericFloat() const;
    short asGenericShort() const;
    int asGenericInt() const;
    MInt64 asGenericInt64() const;

    /// Stores a number in a generic attribute; with `force` also when it held something else.
    void setGenericBool(bool value, bool force);
    void setGenericChar(unsigned char value, bool force);
    void setGenericDouble(double value, bool force);
    void setGenericFloat(float value, bool force);
    void setGenericShort(short value, bool force);
    void setGenericInt(int value, bool force);
    void setGenericInt64(MInt64 value, bool force);

    /// A child of a compound.
    MDataHandle child(const MPlug& plug);
    MDataHandle child(const MObject& attribute);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    /// Plain words: handles are copied bit by bit and have no destructor, so nothing here is owned.
    char storage[32];
};
