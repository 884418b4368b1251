// MDataHandle: one value in a data block. Reading and writing through references is here, whole objects are
// in MDataHandleObjects.cpp.
#include <maya/MDataHandle.h>
#include <maya/MFloatMatrix.h>
#include <maya/MFloatVector.h>
#include <maya/MMatrix.h>
#include <maya/MVector.h>

#include "support/handleState.h"
#include "support/handleValues.h"
#include "support/unitValues.h"

using namespace tvxhost::api;
using tvxhost::engine::Data;
using tvxhost::engine::MatrixData;
using tvxhost::engine::NumberKind;
using tvxhost::engine::Ref;
using tvxhost::engine::StringData;
using tvxhost::engine::Text;

namespace {

static_assert(sizeof(MFloatVector) == 3 * sizeof(float) && sizeof(MVector) == 3 * sizeof(double));
static_assert(sizeof(MMatrix) == sizeof(tvxhost::engine::Matrix));

/// The data object of a handle as a given class: the one that is there, or for a handle that writes a new
/// one. Null for a value of another type.
template <class D>
D* dataAs(const MDataHandle& handle, tvxhost::engine::DataType type)
{
    const HandleState state = HandleState::read(handle);
    Ref<Data>* data = state.data();
    if (!data || !holds(*state.attribute(), type))
        return nullptr;
    if (!*data && state.isForWriting())
        *data = Ref<Data>(new D);
    return *data && (*data)->type() == type ? static_cast<D*>(data->get()) : nullptr;
}

MatrixData* matrixOf(const MDataHandle& handle)
{
    return dataAs<MatrixData>(handle, tvxhost::engine::DataType::matrix);
}

} // namespace

MDataHandle::MDataHandle() : storage() {}

const char* MDataHandle::className()
{
    return "MDataHandle";
}

void MDataHandle::setClean()
{
    if (const HandleState state = HandleState::read(*this); !state.isNull() && !state.detached())
        tvxhost::engine::setClean(state.plug());
}

#define TVX_NUMBER(function, Type, kind)                                                                     \
    Type& MDataHandle::function() const                                                                      \
    {                                                                                                        \
        return numbersAt<Type, 1>(*this, NumberKind::kind)[0];                                               \
    }

TVX_NUMBER(asBool, bool, boolean)
TVX_NUMBER(asChar, char, character)
TVX_NUMBER(asUChar, unsigned char, byte)
TVX_NUMBER(asShort, short, shortInteger)
TVX_NUMBER(asLong, int, integer)
TVX_NUMBER(asInt, int, integer)
TVX_NUMBER(asInt64, MInt64, int64)
TVX_NUMBER(asFloat, float, single)
TVX_NUMBER(asDouble, double, real)

#undef TVX_NUMBER

#define TVX_NUMBERS(function, Group, Type, count, kind)                                                      \
    Group& MDataHandle::function() const                                                                     \
    {                                                                                                        \
        return reinterpret_cast<Group&>(*numbersAt<Type, count>(*this, NumberKind::kind));                   \
    }

TVX_NUMBERS(asShort2, short2, short, 2, shortInteger)
TVX_NUMBERS(asLong2, long2, int, 2, integer)
TVX_NUMBERS(asInt2, int2, int, 2, integer)
TVX_NUMBERS(asFloat2, float2, float, 2, single)
TVX_NUMBERS(asDouble2, double2, double, 2, real)
TVX_NUMBERS(asShort3, short3, short, 3, shortInteger)
TVX_NUMBERS(asLong3, long3, int, 3, integer)
TVX_NUMBERS(asInt3, int3, int, 3, integer)
TVX_NUMBERS(asFloat3, float3, float, 3, single)
TVX_NUMBERS(asDouble3, double3, double, 3, real)
TVX_NUMBERS(asVector, MVector, double, 3, real)
TVX_NUMBERS(asFloatVector, MFloatVector, float, 3, single)

#undef TVX_NUMBERS

MDistance MDataHandle::asDistance() const
{
    return fromInternal<MDistance>(asDouble());
}

MAngle MDataHandle::asAngle() const
{
    return fromInternal<MAngle>(asDouble());
}

MTime MDataHandle::asTime() const
{
    return fromInternal<MTime>(asDouble());
}

MMatrix& MDataHandle::asMatrix() const
{
    if (MatrixData* data = matrixOf(*this))
        return reinterpret_cast<MMatrix&>(data->value);
    static thread_local MMatrix none;
    return none = MMatrix();
}

// The engine keeps all matrices in double precision, so this is a copy.
MFloatMatrix& MDataHandle::asFloatMatrix() const
{
    static thread_local MFloatMatrix copy;
    const MatrixData* data = matrixOf(*this);
    return copy = data ? MFloatMatrix(reinterpret_cast<const double(*)[4]>(data->value.x)) : MFloatMatrix();
}

MString& MDataHandle::asString() const
{
    if (auto* data = dataAs<StringData>(*this, tvxhost::engine::DataType::string))
        return tvxAccess::lend(data->value);
    static thread_local Text none;
    none = Text();
    return tvxAccess::lend(none);
}

// Nothing in a data block is given a transformation of its own.
const MMatrix& MDataHandle::geometryTransformMatrix() const
{
    return MMatrix::identity;
}

#define TVX_SET(setter, Type)                                                                                \
    void MDataHandle::setter(Type value)                                                                     \
    {                                                                                                        \
        setNumbers<1>(*this, {value});                                                                       \
    }                                                                                                        \
    void MDataHandle::set(Type value)                                                                        \
    {                                                                                                        \
        setNumbers<1>(*this, {value});                                                                       \
    }

TVX_SET(setBool, bool)
TVX_SET(setChar, char)
TVX_SET(setShort, short)
TVX_SET(setInt, int)
TVX_SET(setInt64, MInt64)
TVX_SET(setFloat, float)
TVX_SET(setDouble, double)

#undef TVX_SET

#define TVX_SET_GROUP(setTwo, setThree, Type)                                                                \
    void MDataHandle::setTwo(Type a, Type b)                                                                 \
    {                                                                                                        \
        setNumbers<2>(*this, {a, b});                                                                        \
    }                                                                                                        \
    void MDataHandle::set(Type a, Type b)                                                                    \
    {                                                                                                        \
        setNumbers<2>(*this, {a, b});                                                                        \
    }                                                                                                        \
    void MDataHandle::setThree(Type a, Type b, Type c)                                                       \
    {                                                                                                        \
        setNumbers<3>(*this, {a, b, c});                                                                     \
    }                                                                                                        \
    void MDataHandle::set(Type a, Type b, Type c)                                                            \
    {                                                                                                        \
        setNumbers<3>(*this, {a, b, c});                                                                     \
    }

TVX_SET_GROUP(set2Short, set3Short, short)
TVX_SET_GROUP(set2Int, set3Int, int)
TVX_SET_GROUP(set2Float, set3Float, float)
TVX_SET_GROUP(set2Double, set3Double, double)

#undef TVX_SET_GROUP

void MDataHandle::setMVector(const MVector& value)
{
    setNumbers<3>(*this, {value.x, value.y, value.z});
}

void MDataHandle::setMFloatVector(const MFloatVector& value)
{
    setNumbers<3>(*this, {value.x, value.y, value.z});
}

void MDataHandle::setMDistance(const MDistance& value)
{
    setNumbers<1>(*this, {internalValue(value)});
}

void MDataHandle::setMAngle(const MAngle& value)
{
    setNumbers<1>(*this, {internalValue(value)});
}

void MDataHandle::setMTime(const MTime& value)
{
    setNumbers<1>(*this, {internalValue(value)});
}

// Data objects are replaced and not changed in place: others may hold them.
void MDataHandle::setMMatrix(const MMatrix& value)
{
    setData(*this, new MatrixData(tvxhost::engine::Matrix(value.matrix)));
}

void MDataHandle::setMFloatMatrix(const MFloatMatrix& value)
{
    setMMatrix(MMatrix(value.matrix));
}

void MDataHandle::setString(const MString& value)
{
    setData(*this, new StringData(tvxAccess::text(value)));
}

#define TVX_SET_AS(setter, Type)                                                                             \
    void MDataHandle::set(const Type& value)                                                                 \
    {                                                                                                        \
        setter(value);                                                                                       \
    }

TVX_SET_AS(setMVector, MVector)
TVX_SET_AS(setMFloatVector, MFloatVector)
TVX_SET_AS(setMDistance, MDistance)
TVX_SET_AS(setMAngle, MAngle)
TVX_SET_AS(setMTime, MTime)
TVX_SET_AS(setMMatrix, MMatrix)
TVX_SET_AS(setMFloatMatrix, MFloatMatrix)
TVX_SET_AS(setString, MString)

#undef TVX_SET_AS
