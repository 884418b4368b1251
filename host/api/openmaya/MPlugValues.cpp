// MPlug: reading and writing values.
#include <maya/MAngle.h>
#include <maya/MDGContext.h>
#include <maya/MDataHandle.h>
#include <maya/MDistance.h>
#include <maya/MPlug.h>
#include <maya/MTime.h>

#include "support/dataBlockState.h"
#include "support/handleState.h"
#include "support/handleValues.h"
#include "support/notImplemented.h"
#include "support/plugCall.h"
#include "support/plugUnits.h"
#include "support/pxData.h"

#include <cmath>
#include <memory>

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::Data;
using tvxhost::engine::Number;
using tvxhost::engine::NumberKind;
using tvxhost::engine::Plug;
using tvxhost::engine::Ref;
using tvxhost::engine::UnitKind;

namespace {

/// What asMObject gives for an array as a whole: an object that no function set of data fits.
class WholeArray final : public Data
{
public:
    WholeArray() : Data(tvxhost::engine::DataType::none) {}
    Ref<Data> clone() const override { return Ref<Data>(new WholeArray); }
};

/// Values are kept for the current time only. A context at that time is as good as the normal one.
MStatus requireNow(const MDGContext& context, const char* name)
{
    const DGContext* time = tvxAccess::context(context);
    if (!time || std::abs(time->seconds - tvxhost::engine::Scene::current().time()) < 1e-9)
        return MS::kSuccess;
    return notImplemented((std::string(name) + " at another time").c_str());
}

// What a number of a plug is to the caller.
void convert(const Plug& plug, const Number& stored, double& value)
{
    value = toCaller(plug, stored).asReal();
}
void convert(const Plug& plug, const Number& stored, float& value)
{
    value = static_cast<float>(toCaller(plug, stored).asReal());
}
void convert(const Plug& plug, const Number& stored, bool& value)
{
    const Number number = toCaller(plug, stored);
    value = number.isWhole ? number.whole != 0 : number.real != 0.0;
}
template <class Whole>
void convert(const Plug& plug, const Number& stored, Whole& value)
{
    value = static_cast<Whole>(toCaller(plug, stored).asWhole());
}
void convert(const Plug&, const Number& stored, MAngle& value)
{
    value = fromInternal<MAngle>(stored.asReal());
}
void convert(const Plug&, const Number& stored, MDistance& value)
{
    value = fromInternal<MDistance>(stored.asReal());
}
void convert(const Plug& plug, const Number& stored, MTime& value)
{
    value = fromInternal<MTime>(isTime(plug) ? stored.asReal() : secondsOf(stored.asReal()));
}

MStatus readValue(const Plug& plug, std::string& text)
{
    auto read = tvxhost::engine::readString(plug);
    if (read)
        text = std::move(read.value);
    return plugStatus(read.outcome);
}

MStatus readValue(const Plug& plug, MString& text)
{
    std::string read;
    const MStatus status = readValue(plug, read);
    if (status)
        text = tvxAccess::string(std::move(read));
    return status;
}

MStatus readValue(const Plug& plug, MObject& object)
{
    if (plug.isArray()) {
        tvxAccess::setObject(object, new WholeArray);
        return MS::kSuccess;
    }
    const auto read = tvxhost::engine::readData(plug);
    tvxAccess::setObject(object, read ? read.value.get() : nullptr);
    return plugStatus(read.outcome);
}

/// Copies what the plug holds now into a value of the handle's own.
MStatus readValue(const Plug& plug, MDataHandle& handle)
{
    auto detached = std::make_unique<DetachedValue>();
    detached->plug = plug;
    if (plug.attribute()->number != NumberKind::none) {
        const auto slot = tvxhost::engine::inputSlot(plug);
        if (!slot || !slot.value.bytes)
            return slot ? failure(StatusText::unexpectedFailure) : plugStatus(slot.outcome);
        std::memcpy(detached->bytes, slot.value.bytes, tvxhost::engine::numberBytes(*plug.attribute()));
    } else {
        const auto read = tvxhost::engine::readData(plug);
        if (!read && read.outcome.reason != tvxhost::engine::Reason::noData)
            return plugStatus(read.outcome);
        detached->data = read.value;
    }
    HandleState::of(*detached.release()).write(handle);
    return MS::kSuccess;
}

template <class T>
MStatus readValue(const Plug& plug, T& value)
{
    const auto number = tvxhost::engine::readNumber(plug);
    if (number)
        convert(plug, number.value, value);
    return plugStatus(number.outcome);
}

/// Reads a value of any of these types; on failure `value` stays as it is.
template <class T>
MStatus get(const MPlug& plug, const char* name, const MDGContext& context, T& value)
{
    TVX_API_CALL(name);
    const Plug& p = tvxAccess::plug(plug);
    MStatus status;
    if (!requirePlug(p, &status))
        return status;
    status = requireNow(context, name);
    return status ? readValue(p, value) : status;
}

MStatus set(const MPlug& plug, const char* name, const Number& given)
{
    TVX_API_CALL(name);
    const Plug& p = tvxAccess::plug(plug);
    MStatus status;
    if (!requirePlug(p, &status))
        return status;
    return plugStatus(tvxhost::engine::writeNumber(p, toStored(p, given)));
}

/// Stores a number that is in internal units already.
MStatus setInternal(const MPlug& plug, const char* name, double internal)
{
    TVX_API_CALL(name);
    const Plug& p = tvxAccess::plug(plug);
    MStatus status;
    if (!requirePlug(p, &status))
        return status;
    return plugStatus(tvxhost::engine::writeNumber(p, Number(internal)));
}

MStatus set(const MPlug& plug, const char* name, const MTime& time)
{
    return setInternal(plug, name, toStored(tvxAccess::plug(plug), time).asReal());
}

MStatus set(const MPlug& plug, const char* name, const std::string& text)
{
    TVX_API_CALL(name);
    const Plug& p = tvxAccess::plug(plug);
    MStatus status;
    if (!requirePlug(p, &status))
        return status;
    return plugStatus(tvxhost::engine::writeString(p, text));
}

MStatus set(const MPlug& plug, const char* name, const MObject& object)
{
    TVX_API_CALL(name);
    const Plug& p = tvxAccess::plug(plug);
    MStatus status;
    if (!requirePlug(p, &status))
        return status;
    const Data* data = dataOf(object);
    if (!data)
        return failure(object.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
    return plugStatus(tvxhost::engine::writeData(p, *data));
}

MStatus set(const MPlug& plug, const char* name, MPxData* object)
{
    TVX_API_CALL(name);
    const Plug& p = tvxAccess::plug(plug);
    MStatus status;
    if (!requirePlug(p, &status))
        return status;
    if (!object)
        return failure(StatusText::nullArgument);
    const Ref<PxData> holder = holderOf(object);
    return holder ? plugStatus(tvxhost::engine::writeData(p, *holder))
                  : failure(StatusText::objectIsIncompatible);
}

MStatus set(const MPlug& plug, const char* name, const MDataHandle& handle)
{
    TVX_API_CALL(name);
    const Plug& p = tvxAccess::plug(plug);
    MStatus status;
    if (!requirePlug(p, &status))
        return status;
    const HandleState state = HandleState::read(handle);
    if (const Ref<Data>* data = state.data())
        return *data ? plugStatus(tvxhost::engine::writeData(p, **data))
                     : failure(StatusText::unexpectedFailure);
    const auto* bytes = static_cast<const std::uint8_t*>(state.bytes());
    if (!bytes)
        return failure(StatusText::unexpectedFailure);
    std::vector<double> numbers;
    const NumberKind kind = state.attribute()->number;
    for (std::size_t i = 0; i < state.numberCount(); ++i)
        numbers.push_back(
            tvxhost::engine::loadNumber(kind, bytes + i * tvxhost::engine::sizeOf(kind)).asReal());
    return plugStatus(tvxhost::engine::writeNumbers(p, numbers));
}

} // namespace

// Reading: the value, or (failing) a neutral one
#define TVX_AS(function, Type)                                                                               \
    Type MPlug::function(MDGContext& ctx, MStatus* ReturnStatus) const                                       \
    {                                                                                                        \
        Type value{};                                                                                        \
        give(ReturnStatus, get(*this, "MPlug::" #function, ctx, value));                                     \
        return value;                                                                                        \
    }

TVX_AS(asDouble, double)
TVX_AS(asFloat, float)
TVX_AS(asInt64, MInt64)
TVX_AS(asInt, int)
TVX_AS(asShort, short)
TVX_AS(asBool, bool)
TVX_AS(asMDistance, MDistance)
TVX_AS(asMAngle, MAngle)
TVX_AS(asMTime, MTime)
TVX_AS(asChar, char)
TVX_AS(asString, MString)
TVX_AS(asMObject, MObject)
TVX_AS(asMDataHandle, MDataHandle)

#undef TVX_AS

#define TVX_GET_VALUE(Type)                                                                                  \
    MStatus MPlug::getValue(Type& value, MDGContext& ctx) const                                              \
    {                                                                                                        \
        return get(*this, "MPlug::getValue", ctx, value);                                                    \
    }

TVX_GET_VALUE(double)
TVX_GET_VALUE(float)
TVX_GET_VALUE(MInt64)
TVX_GET_VALUE(int)
TVX_GET_VALUE(short)
TVX_GET_VALUE(bool)
TVX_GET_VALUE(MDistance)
TVX_GET_VALUE(MAngle)
TVX_GET_VALUE(MTime)
TVX_GET_VALUE(char)
TVX_GET_VALUE(MString)
TVX_GET_VALUE(MObject)
TVX_GET_VALUE(MDataHandle)

#undef TVX_GET_VALUE

// Writing: each kind under its own name and as setValue
#define TVX_SET(setter, Parameter, write, given)                                                             \
    MStatus MPlug::setter(Parameter value)                                                                   \
    {                                                                                                        \
        return write(*this, "MPlug::" #setter, given);                                                       \
    }                                                                                                        \
    MStatus MPlug::setValue(Parameter value)                                                                 \
    {                                                                                                        \
        return write(*this, "MPlug::setValue", given);                                                       \
    }

TVX_SET(setDouble, double, set, numberFrom(value))
TVX_SET(setFloat, float, set, numberFrom(value))
TVX_SET(setInt64, MInt64, set, numberFrom(value))
TVX_SET(setInt, int, set, numberFrom(value))
TVX_SET(setShort, short, set, numberFrom(value))
TVX_SET(setBool, bool, set, numberFrom(value))
TVX_SET(setChar, char, set, numberFrom(value))
TVX_SET(setMDistance, MDistance&, setInternal, internalValue(value))
TVX_SET(setMAngle, MAngle&, setInternal, internalValue(value))
TVX_SET(setMTime, MTime&, set, value)
TVX_SET(setString, const MString&, set, tvxAccess::text(value))
TVX_SET(setMObject, MObject&, set, value)
TVX_SET(setMDataHandle, MDataHandle&, set, value)
TVX_SET(setMPxData, MPxData*, set, value)

#undef TVX_SET

MStatus MPlug::setValue(const char* value)
{
    return set(*this, "MPlug::setValue", std::string(value ? value : ""));
}

// Handles outside a data block

MDataHandle MPlug::constructHandle(MDataBlock&) const
{
    MDataHandle handle;
    const Plug& p = tvxAccess::plug(*this);
    if (p.isNull() || !p.isValid())
        return handle;
    auto detached = std::make_unique<DetachedValue>();
    detached->plug = p;
    if (p.attribute()->number != NumberKind::none)
        tvxhost::engine::storeDefault(*p.attribute(), detached->bytes);
    HandleState::of(*detached.release()).write(handle);
    return handle;
}

void MPlug::destructHandle(MDataHandle& handle) const
{
    delete HandleState::read(handle).detached();
    HandleState().write(handle);
}
