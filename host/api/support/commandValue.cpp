// CommandValue: reading a script's result as a type of the API.
#include "commandValue.h"

#include "access.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace tvxhost::api {

namespace {

using Result = engine::ScriptRunner::Result;
using Kind = Result::Kind;

bool isScalar(const Result& result, Kind kind)
{
    return result.kind == kind && !result.isArray;
}

bool isArray(const Result& result, Kind kind)
{
    return result.kind == kind && result.isArray;
}

/// C's conversion towards zero; what does not fit is clamped.
template <class Integer>
Integer truncated(double number)
{
    constexpr auto kLowest = std::numeric_limits<Integer>::lowest();
    constexpr auto kHighest = std::numeric_limits<Integer>::max();
    if (std::isnan(number))
        return 0;
    if (number <= static_cast<double>(kLowest))
        return kLowest;
    return number >= static_cast<double>(kHighest) ? kHighest : static_cast<Integer>(number);
}

template <class Integer>
bool takeInteger(const Result& result, Integer& value)
{
    if (isScalar(result, Kind::integer) && !result.integers.empty())
        value = result.integers.front();
    else if (isScalar(result, Kind::real) && !result.reals.empty())
        value = truncated<Integer>(result.reals.front());
    else
        return false;
    return true;
}

template <class Integer, class Array>
bool takeIntegers(const Result& result, Array& value)
{
    std::vector<Integer> numbers;
    if (isArray(result, Kind::integer))
        numbers.assign(result.integers.begin(), result.integers.end());
    else if (isArray(result, Kind::real))
        std::transform(result.reals.begin(), result.reals.end(), std::back_inserter(numbers),
                       truncated<Integer>);
    else
        return false;
    tvxAccess::elements(value) = std::move(numbers);
    return true;
}

struct TypePair
{
    MCommandResult::Type scalar, array;
};

TypePair typesOf(Kind kind)
{
    switch (kind) {
    case Kind::none:
        break;
    case Kind::integer:
        return {MCommandResult::kInt, MCommandResult::kIntArray};
    case Kind::real:
        return {MCommandResult::kDouble, MCommandResult::kDoubleArray};
    case Kind::string:
        return {MCommandResult::kString, MCommandResult::kStringArray};
    case Kind::vector:
        return {MCommandResult::kVector, MCommandResult::kVectorArray};
    case Kind::matrix:
        return {MCommandResult::kMatrix, MCommandResult::kMatrixArray};
    }
    return {MCommandResult::kInvalid, MCommandResult::kInvalid};
}

} // namespace

MCommandResult::Type typeOf(const Result& result)
{
    const TypePair types = typesOf(result.kind);
    return result.isArray ? types.array : types.scalar;
}

bool take(const Result& result, int& value)
{
    return takeInteger(result, value);
}

bool take(const Result& result, MInt64& value)
{
    return takeInteger(result, value);
}

bool take(const Result& result, double& value)
{
    if (isScalar(result, Kind::real) && !result.reals.empty())
        value = result.reals.front();
    else if (isScalar(result, Kind::integer) && !result.integers.empty())
        value = result.integers.front();
    else
        return false;
    return true;
}

bool take(const Result& result, MString& value)
{
    if (!isScalar(result, Kind::string) || result.strings.empty())
        return false;
    value = tvxAccess::string(result.strings.front());
    return true;
}

bool take(const Result& result, MVector& value)
{
    if (!isScalar(result, Kind::vector) || result.reals.size() < 3)
        return false;
    value = MVector(result.reals.data());
    return true;
}

bool take(const Result& result, MIntArray& value)
{
    return takeIntegers<int>(result, value);
}

bool take(const Result& result, MInt64Array& value)
{
    return takeIntegers<MInt64>(result, value);
}

bool take(const Result& result, MDoubleArray& value)
{
    if (isArray(result, Kind::real))
        tvxAccess::elements(value) = result.reals;
    else if (isArray(result, Kind::integer))
        tvxAccess::elements(value).assign(result.integers.begin(), result.integers.end());
    else
        return false;
    return true;
}

bool take(const Result& result, MStringArray& value)
{
    if (!isArray(result, Kind::string))
        return false;
    value.clear();
    for (const std::string& text : result.strings)
        value.append(tvxAccess::string(text));
    return true;
}

bool take(const Result& result, MVectorArray& value)
{
    if (!isArray(result, Kind::vector))
        return false;
    value.clear();
    for (std::size_t i = 0; i + 3 <= result.reals.size(); i += 3)
        value.append(MVector(&result.reals[i]));
    return true;
}

} // namespace tvxhost::api
