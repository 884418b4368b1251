// MDataHandle: what kind of value it holds, values as objects, values of any kind, children.
#include <maya/MDataHandle.h>
#include <maya/MPlug.h>
#include <maya/MTypeId.h>
#include <maya/MUintArray.h>

#include "support/apiCall.h"
#include "support/handleState.h"
#include "support/handleValues.h"
#include "support/handles.h"
#include "support/notImplemented.h"
#include "support/pxData.h"
#include "support/valueTypes.h"

#include <algorithm>

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::AttributeKind;
using tvxhost::engine::Data;
using tvxhost::engine::NumberKind;
using tvxhost::engine::NumericData;
using tvxhost::engine::Plug;
using tvxhost::engine::PluginData;
using tvxhost::engine::Ref;

namespace {

/// The numbers of a group as an object of their own.
Ref<Data> groupAsObject(const HandleState& state)
{
    const Attribute& attribute = *state.attribute();
    const std::size_t count = state.numberCount();
    auto* data = new NumericData(static_cast<int>(attribute.number), static_cast<int>(count));
    std::memcpy(data->bytes, state.bytes(), count * tvxhost::engine::sizeOf(attribute.number));
    return Ref<Data>(data);
}

/// The value as a data object; null for single numbers and for what has no object.
Ref<Data> objectOf(const HandleState& state)
{
    if (const Ref<Data>* data = state.data())
        return *data;
    return state.bytes() && state.attribute()->isNumberGroup() ? groupAsObject(state) : Ref<Data>();
}

MObject objectOfType(const MDataHandle& handle, tvxhost::engine::DataType type)
{
    const Ref<Data> data = objectOf(HandleState::read(handle));
    return data && data->type() == type ? tvxAccess::handle(data.get()) : MObject();
}

bool isPluginData(const Ref<Data>& data)
{
    return data && data->type() == tvxhost::engine::DataType::registered;
}

/// Copies numbers, each converted; false when there are not as many.
bool copyNumbers(const HandleState& from, const HandleState& to)
{
    const NumberKind kindFrom = from.attribute()->number;
    const NumberKind kindTo = to.attribute()->number;
    if (!from.bytes() || !to.bytes() || from.numberCount() != to.numberCount())
        return false;
    const auto* source = static_cast<const std::uint8_t*>(from.bytes());
    auto* target = static_cast<std::uint8_t*>(to.bytes());
    for (std::size_t i = 0; i < from.numberCount(); ++i)
        tvxhost::engine::storeNumber(
            kindTo, target + i * tvxhost::engine::sizeOf(kindTo),
            tvxhost::engine::loadNumber(kindFrom, source + i * tvxhost::engine::sizeOf(kindFrom)));
    return true;
}

/// A handle on a plug below the one of a handle; null when there is none.
MDataHandle below(const HandleState& state, const Plug& plug)
{
    if (plug.isNull())
        return MDataHandle();
    const auto slot = tvxhost::engine::outputSlot(plug);
    if (!slot)
        return MDataHandle();
    const auto child = HandleState::of(plug, slot.value, state.isForWriting());
    return child ? child->handle() : MDataHandle();
}

MDataHandle childOf(const MDataHandle& handle, const Attribute* attribute)
{
    const HandleState state = HandleState::read(handle);
    if (state.isNull() || state.detached() || !attribute)
        return MDataHandle();
    return below(state, state.plug().child(*attribute));
}

bool copyValue(const MDataHandle& source, MDataHandle& target)
{
    const HandleState from = HandleState::read(source);
    const HandleState to = HandleState::read(target);
    if (from.isNull() || to.isNull())
        return false;
    if (from.data() && to.data())
        return setData(target, *from.data());
    if (copyNumbers(from, to))
        return true;
    const auto& children = from.attribute()->children;
    const auto& targets = to.attribute()->children;
    if (children.empty() || children.size() != targets.size())
        return false;
    for (std::size_t i = 0; i < children.size(); ++i) {
        MDataHandle child = childOf(target, targets[i].get());
        if (!copyValue(childOf(source, children[i].get()), child))
            return false;
    }
    return true;
}

MStatus takeObject(MDataHandle& handle, const MObject& object)
{
    Data* data = dataOf(object);
    if (!data)
        return failure(object.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
    return setData(handle, data) ? MStatus() : failure(StatusText::objectIsIncompatible);
}

MStatus takePluginObject(MDataHandle& handle, MPxData* object)
{
    if (!object)
        return failure(StatusText::nullArgument);
    const Ref<PxData> holder = holderOf(object);
    return holder && setData(handle, holder) ? MStatus() : failure(StatusText::objectIsIncompatible);
}

/// The number in a value of any kind, converted; 0 when it is none.
template <class T>
T genericNumber(const MDataHandle& handle, NumberKind kind)
{
    const Ref<Data> data = objectOf(HandleState::read(handle));
    T converted = T();
    if (data && data->type() == tvxhost::engine::DataType::numeric) {
        const auto& numbers = static_cast<const NumericData&>(*data);
        tvxhost::engine::storeNumber(
            kind, &converted,
            tvxhost::engine::loadNumber(static_cast<NumberKind>(numbers.kind), numbers.bytes));
    }
    return converted;
}

/// Stores a number in a value of any kind. Without `force` a number that is there keeps its kind.
template <class T>
void setGenericNumber(MDataHandle& handle, NumberKind kind, T value, bool force)
{
    const HandleState state = HandleState::read(handle);
    if (!state.data())
        return;
    const auto* old = static_cast<const NumericData*>(objectOf(state).get());
    if (old && old->type() == tvxhost::engine::DataType::numeric && !force)
        kind = static_cast<NumberKind>(old->kind);
    auto* data = new NumericData(static_cast<int>(kind), 1);
    tvxhost::engine::storeNumber(kind, data->bytes, numberFrom(value));
    setData(handle, data);
}

} // namespace

// Kind

bool MDataHandle::isNumeric() const
{
    const HandleState state = HandleState::read(*this);
    return state.bytes() && state.attribute()->kind != AttributeKind::unit;
}

bool MDataHandle::isGeneric(bool& isNumeric, bool& isNull) const
{
    const HandleState state = HandleState::read(*this);
    const bool generic = !state.isNull() && state.attribute()->kind == AttributeKind::generic;
    const Ref<Data> data = generic ? objectOf(state) : Ref<Data>();
    isNull = !data;
    isNumeric = data && data->type() == tvxhost::engine::DataType::numeric;
    return generic;
}

MFnNumericData::Type MDataHandle::numericType() const
{
    const HandleState state = HandleState::read(*this);
    return state.isNull() ? MFnNumericData::kInvalid : numericTypeOf(*state.attribute());
}

MFnData::Type MDataHandle::type() const
{
    const HandleState state = HandleState::read(*this);
    if (state.bytes())
        return MFnData::kNumeric;
    if (const Ref<Data> data = objectOf(state))
        return dataTypeOf(data->type());
    if (!state.data())
        return MFnData::kInvalid;
    const Attribute& attribute = *state.attribute();
    return attribute.kind == AttributeKind::matrix ? MFnData::kMatrix : dataTypeOf(attribute.dataType);
}

// Only data of plug-ins' own types has an id.
MTypeId MDataHandle::typeId() const
{
    const Ref<Data> data = objectOf(HandleState::read(*this));
    return isPluginData(data) ? MTypeId(static_cast<const PluginData&>(*data).dataType().id) : MTypeId();
}

MStatus MDataHandle::acceptedTypeIds(MUintArray& ids) const
{
    TVX_API_CALL("MDataHandle::acceptedTypeIds");
    ids.clear();
    const HandleState state = HandleState::read(*this);
    if (state.isNull())
        return MS::kSuccess;
    for (const std::string& name : state.attribute()->acceptedPluginData)
        if (const auto type = tvxhost::engine::Scene::current().dataTypes().find(name))
            ids.append(type->id);
    return MS::kSuccess;
}

// Objects

MObject MDataHandle::data()
{
    return tvxAccess::handle(objectOf(HandleState::read(*this)).get());
}

MStatus MDataHandle::copy(const MDataHandle& src)
{
    TVX_API_CALL("MDataHandle::copy");
    return copyValue(src, *this) ? MStatus() : failure(StatusText::unexpectedFailure);
}

MStatus MDataHandle::setMObject(const MObject& data)
{
    TVX_API_CALL("MDataHandle::setMObject");
    return takeObject(*this, data);
}

MStatus MDataHandle::set(const MObject& data)
{
    TVX_API_CALL("MDataHandle::set");
    return takeObject(*this, data);
}

MStatus MDataHandle::set(MPxData* data)
{
    TVX_API_CALL("MDataHandle::set");
    return takePluginObject(*this, data);
}

MStatus MDataHandle::setMPxData(MPxData* data)
{
    TVX_API_CALL("MDataHandle::setMPxData");
    return takePluginObject(*this, data);
}

MPxData* MDataHandle::asPluginData() const
{
    const Ref<Data> data = objectOf(HandleState::read(*this));
    const auto* held = isPluginData(data) ? dynamic_cast<const PxData*>(data.get()) : nullptr;
    return held ? held->object() : nullptr;
}

#define TVX_OBJECT(plain, transformed, dataType)                                                             \
    MObject MDataHandle::plain() const                                                                       \
    {                                                                                                        \
        return objectOfType(*this, tvxhost::engine::DataType::dataType);                                     \
    }                                                                                                        \
    MObject MDataHandle::transformed() const                                                                 \
    {                                                                                                        \
        return plain();                                                                                      \
    }

// The transformation of a value is the identity (see geometryTransformMatrix), so both forms are the same.
TVX_OBJECT(asNurbsCurve, asNurbsCurveTransformed, nurbsCurve)
TVX_OBJECT(asNurbsSurface, asNurbsSurfaceTransformed, nurbsSurface)
TVX_OBJECT(asMesh, asMeshTransformed, mesh)

#undef TVX_OBJECT

MObject MDataHandle::asSubdSurface() const
{
    notImplemented("MDataHandle::asSubdSurface");
    return MObject();
}

MObject MDataHandle::asSubdSurfaceTransformed() const
{
    notImplemented("MDataHandle::asSubdSurfaceTransformed");
    return MObject();
}

void*& MDataHandle::asAddr() const
{
    notImplemented("MDataHandle::asAddr");
    static thread_local void* none;
    return none = nullptr;
}

// Values of any kind

#define TVX_GENERIC(getter, setter, Type, kind)                                                              \
    Type MDataHandle::getter() const                                                                         \
    {                                                                                                        \
        return genericNumber<Type>(*this, NumberKind::kind);                                                 \
    }                                                                                                        \
    void MDataHandle::setter(Type value, bool force)                                                         \
    {                                                                                                        \
        setGenericNumber(*this, NumberKind::kind, value, force);                                             \
    }

TVX_GENERIC(asGenericBool, setGenericBool, bool, boolean)
TVX_GENERIC(asGenericChar, setGenericChar, unsigned char, byte)
TVX_GENERIC(asGenericDouble, setGenericDouble, double, real)
TVX_GENERIC(asGenericFloat, setGenericFloat, float, single)
TVX_GENERIC(asGenericShort, setGenericShort, short, shortInteger)
TVX_GENERIC(asGenericInt, setGenericInt, int, integer)
TVX_GENERIC(asGenericInt64, setGenericInt64, MInt64, int64)

#undef TVX_GENERIC

// Children

MDataHandle MDataHandle::child(const MPlug& plug)
{
    return childOf(*this, tvxAccess::plug(plug).attribute());
}

MDataHandle MDataHandle::child(const MObject& attribute)
{
    return childOf(*this, attributeOf(attribute));
}
