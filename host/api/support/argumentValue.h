// Reading one argument of a command as a type of the API.
#pragma once

#include "arguments.h"
#include "status.h"

#include <maya/MAngle.h>
#include <maya/MDistance.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTime.h>

namespace tvxhost::api {

// One overload per type that an argument is read as; false when it is of another kind, the value is neutral
// then. Numbers convert, towards zero and clamped to what fits. Lengths, angles and times are in the units of
// the user interface unless a unit follows the number ("2.5m").
OPENMAYA_EXPORT bool take(const Argument& argument, bool& value);
OPENMAYA_EXPORT bool take(const Argument& argument, int& value);
OPENMAYA_EXPORT bool take(const Argument& argument, unsigned int& value);
OPENMAYA_EXPORT bool take(const Argument& argument, double& value);
OPENMAYA_EXPORT bool take(const Argument& argument, MString& value);
OPENMAYA_EXPORT bool take(const Argument& argument, MDistance& value);
OPENMAYA_EXPORT bool take(const Argument& argument, MAngle& value);
OPENMAYA_EXPORT bool take(const Argument& argument, MTime& value);

/// Reads the argument at an index; what it cannot be read as leaves the value as it was.
template <class Value>
MStatus readArgument(const std::vector<Argument>& arguments, unsigned int index, Value& target)
{
    if (index >= arguments.size())
        return failure(StatusText::noElementAtIndex);
    Value value{};
    if (!take(arguments[index], value))
        return failure(MS::kInvalidParameter, StatusText::objectIsIncompatible);
    target = value;
    return MS::kSuccess;
}

} // namespace tvxhost::api
