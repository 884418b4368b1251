// The syntax of a plug-in's command; see pluginSyntax.h.
#include "pluginSyntax.h"

#include "access.h"
#include "commandState.h"

#include <array>

namespace tvxhost::api {

namespace {

using Argument = engine::PluginSyntax::Argument;

/// In the order of MSyntax::MArgType; the first two are no arguments.
constexpr std::array<Argument, MSyntax::kLastArgType> kArguments = {
    Argument::string, Argument::string, Argument::boolean, Argument::integer,
    Argument::number, Argument::string, Argument::integer, Argument::length,
    Argument::angle,  Argument::time,   Argument::name};

std::vector<Argument> described(const std::vector<MSyntax::MArgType>& types)
{
    std::vector<Argument> arguments;
    for (const MSyntax::MArgType type : types)
        arguments.push_back(kArguments.at(type));
    return arguments;
}

} // namespace

engine::PluginSyntax describeSyntax(const MSyntax& syntax)
{
    const SyntaxTable& table = tvxAccess::syntax(syntax);
    engine::PluginSyntax description;
    for (const SyntaxTable::Flag& flag : table.flags)
        description.flags.push_back(
            {flag.shortName, flag.longName, described(flag.arguments), flag.isMultiUse});
    description.arguments = described(table.arguments);
    if (table.objectFormat != MSyntax::kNone) {
        description.leastObjects = table.minimumObjects;
        description.mostObjects =
            table.maximumObjects ? *table.maximumObjects : engine::PluginSyntax::kAnyNumber;
    }
    description.isQueried = table.canQuery;
    description.isEdited = table.canEdit;
    return description;
}

} // namespace tvxhost::api
