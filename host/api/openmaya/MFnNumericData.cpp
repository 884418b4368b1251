// MFnNumericData: a group of two to four numbers as an object.
#include <maya/MFnNumericData.h>

#include "support/dataSet.h"
#include "support/valueTypes.h"

#include <array>
#include <cstring>

using namespace tvxhost;

namespace {

using engine::NumberKind;

template <class Number>
constexpr NumberKind kindOf()
{
    if constexpr (std::is_same_v<Number, short>)
        return NumberKind::shortInteger;
    else if constexpr (std::is_same_v<Number, int>)
        return NumberKind::integer;
    else if constexpr (std::is_same_v<Number, float>)
        return NumberKind::single;
    else
        return NumberKind::real;
}

/// The numbers of a group, when it is one of just these.
template <class Number, class... Others>
engine::NumericData* groupOf(const MFnBase& set, MStatus& status)
{
    auto* data = api::dataAs<engine::NumericData>(set);
    if (!data) {
        status = api::notAttached();
        return nullptr;
    }
    if (data->kind == static_cast<int>(kindOf<Number>()) && data->size == 1 + sizeof...(Others))
        return data;
    status = api::failure(api::StatusText::unexpectedFailure);
    return nullptr;
}

template <class... Numbers>
MStatus read(const MFnBase& set, Numbers&... targets)
{
    TVX_API_CALL("MFnNumericData::getData");
    MStatus status;
    if (const auto* data = groupOf<Numbers...>(set, status)) {
        const std::uint8_t* bytes = data->bytes;
        const auto take = [&bytes](auto& target) {
            std::memcpy(&target, bytes, sizeof target);
            bytes += sizeof target;
        };
        (take(targets), ...);
    }
    return status;
}

template <class... Numbers>
MStatus write(const MFnBase& set, Numbers... values)
{
    TVX_API_CALL("MFnNumericData::setData");
    MStatus status;
    if (auto* data = groupOf<Numbers...>(set, status)) {
        const std::array numbers{values...};
        std::memcpy(data->bytes, numbers.data(), sizeof numbers);
    }
    return status;
}

} // namespace

TVX_FUNCTION_SET(MFnNumericData, MFn::kNumericData)

MObject MFnNumericData::create(Type dataType, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNumericData::create", ReturnStatus, MObject());
    const api::NumberShape shape = api::numberShapeOf(dataType);
    if (shape.count < 2) {
        api::give(ReturnStatus, api::failure(MS::kInvalidParameter, api::StatusText::unexpectedFailure));
        return MObject();
    }
    const engine::Ref<engine::NumericData> data(
        new engine::NumericData(static_cast<int>(shape.kind), shape.count));
    return api::createData(*this, data, ReturnStatus);
}

MFnNumericData::Type MFnNumericData::numericType(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNumericData::numericType", ReturnStatus, kInvalid);
    const auto* data = api::dataAs<engine::NumericData>(*this);
    if (!api::requireAttached(data, ReturnStatus))
        return kInvalid;
    return api::numericTypeOf(static_cast<NumberKind>(data->kind), static_cast<std::size_t>(data->size));
}

// The interface has each reader and writer twice: overloaded, and under a name that tells the type.
#define TVX_GROUP(Name, Get, Set, Arguments)                                                                 \
    MStatus MFnNumericData::getData Get                                                                      \
    {                                                                                                        \
        return read Arguments;                                                                               \
    }                                                                                                        \
    MStatus MFnNumericData::setData Set                                                                      \
    {                                                                                                        \
        return write Arguments;                                                                              \
    }                                                                                                        \
    MStatus MFnNumericData::getData##Name Get                                                                \
    {                                                                                                        \
        TVX_API_CALL("MFnNumericData::getData" #Name);                                                       \
        return read Arguments;                                                                               \
    }                                                                                                        \
    MStatus MFnNumericData::setData##Name Set                                                                \
    {                                                                                                        \
        TVX_API_CALL("MFnNumericData::setData" #Name);                                                       \
        return write Arguments;                                                                              \
    }

#define TVX_GROUP_OF_2(Name, Number)                                                                         \
    TVX_GROUP(Name, (Number & a, Number & b), (Number a, Number b), (*this, a, b))
#define TVX_GROUP_OF_3(Name, Number)                                                                         \
    TVX_GROUP(Name, (Number & a, Number & b, Number & c), (Number a, Number b, Number c), (*this, a, b, c))
#define TVX_GROUP_OF_4(Name, Number)                                                                         \
    TVX_GROUP(Name, (Number & a, Number & b, Number & c, Number & d),                                        \
              (Number a, Number b, Number c, Number d), (*this, a, b, c, d))

TVX_GROUP_OF_2(2Short, short)
TVX_GROUP_OF_2(2Int, int)
TVX_GROUP_OF_2(2Float, float)
TVX_GROUP_OF_2(2Double, double)
TVX_GROUP_OF_3(3Short, short)
TVX_GROUP_OF_3(3Int, int)
TVX_GROUP_OF_3(3Float, float)
TVX_GROUP_OF_3(3Double, double)
TVX_GROUP_OF_4(4Double, double)
