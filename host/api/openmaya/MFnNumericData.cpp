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

MStatus MFnNumericData::getData(short& val1, short& val2)
{
    return read(*this, val1, val2);
}

MStatus MFnNumericData::setData(short val1, short val2)
{
    return write(*this, val1, val2);
}

MStatus MFnNumericData::getData2Short(short& val1, short& val2)
{
    return getData(val1, val2);
}

MStatus MFnNumericData::setData2Short(short val1, short val2)
{
    return setData(val1, val2);
}

MStatus MFnNumericData::getData(int& val1, int& val2)
{
    return read(*this, val1, val2);
}

MStatus MFnNumericData::setData(int val1, int val2)
{
    return write(*this, val1, val2);
}

MStatus MFnNumericData::getData2Int(int& val1, int& val2)
{
    return getData(val1, val2);
}

MStatus MFnNumericData::setData2Int(int val1, int val2)
{
    return setData(val1, val2);
}

MStatus MFnNumericData::getData(float& val1, float& val2)
{
    return read(*this, val1, val2);
}

MStatus MFnNumericData::setData(float val1, float val2)
{
    return write(*this, val1, val2);
}

MStatus MFnNumericData::getData2Float(float& val1, float& val2)
{
    return getData(val1, val2);
}

MStatus MFnNumericData::setData2Float(float val1, float val2)
{
    return setData(val1, val2);
}

MStatus MFnNumericData::getData(double& val1, double& val2)
{
    return read(*this, val1, val2);
}

MStatus MFnNumericData::setData(double val1, double val2)
{
    return write(*this, val1, val2);
}

MStatus MFnNumericData::getData2Double(double& val1, double& val2)
{
    return getData(val1, val2);
}

MStatus MFnNumericData::setData2Double(double val1, double val2)
{
    return setData(val1, val2);
}

MStatus MFnNumericData::getData(short& val1, short& val2, short& val3)
{
    return read(*this, val1, val2, val3);
}

MStatus MFnNumericData::setData(short val1, short val2, short val3)
{
    return write(*this, val1, val2, val3);
}

MStatus MFnNumericData::getData3Short(short& val1, short& val2, short& val3)
{
    return getData(val1, val2, val3);
}

MStatus MFnNumericData::setData3Short(short val1, short val2, short val3)
{
    return setData(val1, val2, val3);
}

MStatus MFnNumericData::getData(int& val1, int& val2, int& val3)
{
    return read(*this, val1, val2, val3);
}

MStatus MFnNumericData::setData(int val1, int val2, int val3)
{
    return write(*this, val1, val2, val3);
}

MStatus MFnNumericData::getData3Int(int& val1, int& val2, int& val3)
{
    return getData(val1, val2, val3);
}

MStatus MFnNumericData::setData3Int(int val1, int val2, int val3)
{
    return setData(val1, val2, val3);
}

MStatus MFnNumericData::getData(float& val1, float& val2, float& val3)
{
    return read(*this, val1, val2, val3);
}

MStatus MFnNumericData::setData(float val1, float val2, float val3)
{
    return write(*this, val1, val2, val3);
}

MStatus MFnNumericData::getData3Float(float& val1, float& val2, float& val3)
{
    return getData(val1, val2, val3);
}

MStatus MFnNumericData::setData3Float(float val1, float val2, float val3)
{
    return setData(val1, val2, val3);
}

MStatus MFnNumericData::getData(double& val1, double& val2, double& val3)
{
    return read(*this, val1, val2, val3);
}

MStatus MFnNumericData::setData(double val1, double val2, double val3)
{
    return write(*this, val1, val2, val3);
}

MStatus MFnNumericData::getData3Double(double& val1, double& val2, double& val3)
{
    return getData(val1, val2, val3);
}

MStatus MFnNumericData::setData3Double(double val1, double val2, double val3)
{
    return setData(val1, val2, val3);
}

MStatus MFnNumericData::getData(double& val1, double& val2, double& val3, double& val4)
{
    return read(*this, val1, val2, val3, val4);
}

MStatus MFnNumericData::setData(double val1, double val2, double val3, double val4)
{
    return write(*this, val1, val2, val3, val4);
}

MStatus MFnNumericData::getData4Double(double& val1, double& val2, double& val3, double& val4)
{
    return getData(val1, val2, val3, val4);
}

MStatus MFnNumericData::setData4Double(double val1, double val2, double val3, double val4)
{
    return setData(val1, val2, val3, val4);
}
