// Arguments: what MArgList holds, and how the arguments of a command become it.
#pragma once

#include "engine/scene.h"

#include <maya/MTypes.h>

#include <string>
#include <variant>
#include <vector>

namespace tvxhost::api {

using Argument = std::variant<int, double, std::string>;

/// The arguments of a command in the order in which they were written, flags as "-x".
struct Arguments
{
    std::vector<Argument> items;
};

/// Values of the language as plain arguments: a vector or matrix becomes its numbers, an array its length and
/// then its elements.
FND_EXPORT Arguments argumentsOf(const std::vector<engine::ScriptRunner::Result>& values);

} // namespace tvxhost::api
