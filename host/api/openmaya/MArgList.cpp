// MArgList: the arguments of a command.
#include <maya/MArgList.h>
#include <maya/MDoubleArray.h>
#include <maya/MIntArray.h>
#include <maya/MStringArray.h>

#include "support/access.h"
#include "support/apiCall.h"
#include "support/argumentValue.h"

#include <algorithm>

using namespace tvxhost;
using api::Argument;
using api::Arguments;
using api::failure;
using api::readArgument;
using api::StatusText;

namespace {

/// Reads so many arguments; the index ends on the last one, or on the one at fault.
template <class Value>
MStatus readMany(const Arguments& arguments, unsigned int& index, unsigned int count,
                 std::vector<Value>& values)
{
    for (unsigned int i = 0; i < count; ++i) {
        Value value{};
        if (const MStatus status = readArgument(arguments.items, index + i, value); !status) {
            index += i;
            return status;
        }
        values.push_back(value);
    }
    index += count > 0 ? count - 1 : 0;
    return MS::kSuccess;
}

/// Reads a point or vector with at most `most` components; those that are not read keep their value.
template <class Place>
MStatus readPlace(const Arguments& arguments, unsigned int& index, Place& target, unsigned int count,
                  unsigned int most)
{
    if (count == 0 || count > most)
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    std::vector<double> numbers;
    const MStatus status = readMany(arguments, index, count, numbers);
    if (status) {
        target = Place();
        for (unsigned int i = 0; i < count; ++i)
            target[i] = numbers[i];
    }
    return status;
}

MStatus readMatrix(const Arguments& arguments, unsigned int& index, MMatrix& target)
{
    std::vector<double> numbers;
    const MStatus status = readMany(arguments, index, 16, numbers);
    if (status)
        std::copy(numbers.begin(), numbers.end(), &target.matrix[0][0]);
    return status;
}

/// Reads a count and so many elements; the index ends on the last one.
template <class Element, class Array>
MStatus readArray(const Arguments& arguments, unsigned int& index, Array& target)
{
    int count = 0;
    if (const MStatus status = readArgument(arguments.items, index, count); !status)
        return status;
    if (count < 0)
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    std::vector<Element> elements;
    unsigned int last = index + 1;
    const MStatus status = readMany(arguments, last, static_cast<unsigned int>(count), elements);
    index = count == 0 ? index : last;
    if (status)
        tvxAccess::elements(target) = std::move(elements);
    return status;
}

/// The value that a reader gives, and the status for a caller that wants it.
template <class Value, class Read>
Value valueOf(MStatus* returnStatus, Read readInto)
{
    Value value{};
    api::give(returnStatus, readInto(value));
    return value;
}

MStatus add(Arguments& arguments, Argument argument)
{
    arguments.items.push_back(std::move(argument));
    return MS::kSuccess;
}

Argument toArgument(bool value)
{
    return static_cast<int>(value);
}

Argument toArgument(int value)
{
    return value;
}

Argument toArgument(double value)
{
    return value;
}

Argument toArgument(const MString& value)
{
    return tvxAccess::text(value);
}

/// A distance, an angle or a time goes as a plain number in the user's units.
template <class Quantity>
Argument toArgument(const Quantity& value)
{
    return value.as(Quantity::uiUnit());
}

bool isFlag(const Argument& argument, const char* flag)
{
    const auto* text = std::get_if<std::string>(&argument);
    if (!text || !flag || text->size() < 2 || text->front() != '-')
        return false;
    return text->compare(1, std::string::npos, *flag == '-' ? flag + 1 : flag) == 0;
}

} // namespace

const unsigned int MArgList::kInvalidArgIndex = ~0u;

MArgList::MArgList() : arguments(new Arguments), reserved(nullptr) {}

MArgList::MArgList(const MArgList& other) : arguments(new Arguments(*other.arguments)), reserved(nullptr) {}

MArgList::~MArgList()
{
    delete arguments;
}

MArgList& MArgList::operator=(const MArgList& other)
{
    *arguments = *other.arguments;
    return *this;
}

unsigned int MArgList::length(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MArgList::length", ReturnStatus, 0);
    api::giveSuccess(ReturnStatus);
    return static_cast<unsigned int>(arguments->items.size());
}

#define TVX_SINGLE_VALUE(Type, function)                                                                     \
    Type MArgList::function(unsigned int index, MStatus* ret) const                                          \
    {                                                                                                        \
        TVX_API_CALL_OR("MArgList::" #function, ret, Type());                                                \
        return valueOf<Type>(ret,                                                                            \
                             [&](Type& value) { return readArgument(arguments->items, index, value); });     \
    }                                                                                                        \
    MStatus MArgList::get(unsigned int index, Type& ret) const                                               \
    {                                                                                                        \
        TVX_API_CALL("MArgList::get");                                                                       \
        return readArgument(arguments->items, index, ret);                                                   \
    }

TVX_SINGLE_VALUE(bool, asBool)
TVX_SINGLE_VALUE(int, asInt)
TVX_SINGLE_VALUE(double, asDouble)
TVX_SINGLE_VALUE(MString, asString)
TVX_SINGLE_VALUE(MDistance, asDistance)
TVX_SINGLE_VALUE(MAngle, asAngle)
TVX_SINGLE_VALUE(MTime, asTime)

#undef TVX_SINGLE_VALUE

MVector MArgList::asVector(unsigned int& index, unsigned int numElements, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MArgList::asVector", ReturnStatus, MVector());
    return valueOf<MVector>(
        ReturnStatus, [&](MVector& value) { return readPlace(*arguments, index, value, numElements, 3); });
}

MPoint MArgList::asPoint(unsigned int& index, unsigned int numElements, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MArgList::asPoint", ReturnStatus, MPoint());
    return valueOf<MPoint>(
        ReturnStatus, [&](MPoint& value) { return readPlace(*arguments, index, value, numElements, 4); });
}

MMatrix MArgList::asMatrix(unsigned int& index, MStatus* ret) const
{
    TVX_API_CALL_OR("MArgList::asMatrix", ret, MMatrix());
    return valueOf<MMatrix>(ret, [&](MMatrix& value) { return readMatrix(*arguments, index, value); });
}

#define TVX_ARRAY_VALUE(Result, Array, Element, function)                                                    \
    Result MArgList::function(unsigned int& index, MStatus* ReturnStatus) const                              \
    {                                                                                                        \
        TVX_API_CALL_OR("MArgList::" #function, ReturnStatus, Array());                                      \
        return valueOf<Array>(ReturnStatus,                                                                  \
                              [&](Array& value) { return readArray<Element>(*arguments, index, value); });   \
    }                                                                                                        \
    MStatus MArgList::get(unsigned int& index, Array& ret) const                                             \
    {                                                                                                        \
        TVX_API_CALL("MArgList::get");                                                                       \
        return readArray<Element>(*arguments, index, ret);                                                   \
    }

TVX_ARRAY_VALUE(MIntArray, MIntArray, int, asIntArray)
TVX_ARRAY_VALUE(MDoubleArray, MDoubleArray, double, asDoubleArray)
TVX_ARRAY_VALUE(const MStringArray, MStringArray, MString, asStringArray)

#undef TVX_ARRAY_VALUE

unsigned int MArgList::flagIndex(const char* shortFlag, const char* longFlag) const
{
    const auto& items = arguments->items;
    const auto found = std::find_if(items.begin(), items.end(), [&](const Argument& argument) {
        return isFlag(argument, shortFlag) || isFlag(argument, longFlag);
    });
    return found == items.end() ? kInvalidArgIndex : static_cast<unsigned int>(found - items.begin());
}

#define TVX_ADD_VALUE(Parameter)                                                                             \
    MStatus MArgList::addArg(Parameter arg)                                                                  \
    {                                                                                                        \
        TVX_API_CALL("MArgList::addArg");                                                                    \
        return add(*arguments, toArgument(arg));                                                             \
    }

TVX_ADD_VALUE(bool)
TVX_ADD_VALUE(int)
TVX_ADD_VALUE(double)
TVX_ADD_VALUE(const MString&)
TVX_ADD_VALUE(const MDistance&)
TVX_ADD_VALUE(const MAngle&)
TVX_ADD_VALUE(const MTime&)

#undef TVX_ADD_VALUE

MStatus MArgList::addArg(const MVector& arg)
{
    TVX_API_CALL("MArgList::addArg");
    for (const double component : {arg.x, arg.y, arg.z})
        add(*arguments, component);
    return MS::kSuccess;
}

MStatus MArgList::addArg(const MPoint& arg)
{
    TVX_API_CALL("MArgList::addArg");
    for (const double component : {arg.x, arg.y, arg.z, arg.w})
        add(*arguments, component);
    return MS::kSuccess;
}

MStatus MArgList::get(unsigned int& index, MVector& ret, unsigned int numElements) const
{
    TVX_API_CALL("MArgList::get");
    return readPlace(*arguments, index, ret, numElements, 3);
}

MStatus MArgList::get(unsigned int& index, MPoint& ret, unsigned int numElements) const
{
    TVX_API_CALL("MArgList::get");
    return readPlace(*arguments, index, ret, numElements, 4);
}

MStatus MArgList::get(unsigned int& index, MMatrix& ret) const
{
    TVX_API_CALL("MArgList::get");
    return readMatrix(*arguments, index, ret);
}

const char* MArgList::className()
{
    return "MArgList";
}
