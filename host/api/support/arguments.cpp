// Arguments: how the arguments of a command become what MArgList holds.
#include "arguments.h"

namespace tvxhost::api {

namespace {

using Result = engine::ScriptRunner::Result;

template <class T>
void appendAll(Arguments& arguments, const std::vector<T>& values)
{
    arguments.items.insert(arguments.items.end(), values.begin(), values.end());
}

/// How many elements an array has.
int lengthOf(const Result& value)
{
    switch (value.kind) {
    case Result::Kind::integer:
        return static_cast<int>(value.integers.size());
    case Result::Kind::string:
        return static_cast<int>(value.strings.size());
    case Result::Kind::vector:
        return static_cast<int>(value.reals.size() / 3);
    default:
        return static_cast<int>(value.reals.size());
    }
}

void append(Arguments& arguments, const Result& value)
{
    if (value.isArray)
        arguments.items.emplace_back(lengthOf(value));
    switch (value.kind) {
    case Result::Kind::none:
        break;
    case Result::Kind::integer:
        return appendAll(arguments, value.integers);
    case Result::Kind::string:
        return appendAll(arguments, value.strings);
    case Result::Kind::real:
    case Result::Kind::vector:
    case Result::Kind::matrix:
        return appendAll(arguments, value.reals);
    }
}

} // namespace

Arguments argumentsOf(const std::vector<Result>& values)
{
    Arguments arguments;
    for (const Result& value : values)
        append(arguments, value);
    return arguments;
}

} // namespace tvxhost::api
