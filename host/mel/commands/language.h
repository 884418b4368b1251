// The families of commands that need no scene, and the words their tables are written in.
#pragma once

#include "../commandTable.h"

#include <initializer_list>
#include <string>
#include <utility>

namespace tvxhost::mel {

void addArrayCommands(CommandTable& table);
void addEvaluationCommands(CommandTable& table);
void addFileCommands(CommandTable& table);
void addFileHandleCommands(CommandTable& table);
void addMathCommands(CommandTable& table);
void addMessageCommands(CommandTable& table);
void addNameCommands(CommandTable& table);
void addRandomCommands(CommandTable& table);
void addStringCommands(CommandTable& table);
void addSystemCommands(CommandTable& table);
void addVectorCommands(CommandTable& table);

constexpr Parameter kAny{Parameter::Kind::any, false, false};
constexpr Parameter kInt{Parameter::Kind::integer, false, false};
constexpr Parameter kFloat{Parameter::Kind::number, false, false};
constexpr Parameter kString{Parameter::Kind::string, false, false};
constexpr Parameter kVector{Parameter::Kind::vector, false, false};
constexpr Parameter kIntArray{Parameter::Kind::integerArray, false, false};
constexpr Parameter kFloatArray{Parameter::Kind::numberArray, false, false};
constexpr Parameter kStringArray{Parameter::Kind::stringArray, false, false};
constexpr Parameter kAnyArray{Parameter::Kind::anyArray, false, false};

constexpr Parameter optional(Parameter parameter)
{
    return {parameter.kind, true, false};
}

/// A row of a table of functions.
inline CommandSpec function(std::string name, std::string summary,
                            std::initializer_list<Parameter> parameters, FunctionHandler handler)
{
    CommandSpec spec;
    spec.name = std::move(name);
    spec.summary = std::move(summary);
    spec.parameters = parameters;
    spec.handler = std::move(handler);
    return spec;
}

/// A row of a table of commands with flags.
inline CommandSpec command(std::string name, std::string summary, std::vector<FlagSpec> flags,
                           PositionalRule positional, ParsedHandler handler)
{
    CommandSpec spec;
    spec.name = std::move(name);
    spec.summary = std::move(summary);
    spec.flags = std::move(flags);
    spec.positional = positional;
    spec.handler = std::move(handler);
    return spec;
}

} // namespace tvxhost::mel
