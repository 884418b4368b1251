// What the scene commands share: declaring them, finding what they name, and failing.
#pragma once

#include "sceneSession.h"

#include "../commandTable.h"

#include "engine/scene.h"
#include "scene/plugTarget.h"

#include <string>
#include <vector>

namespace tvxhost::mel {

/// A command whose arguments the table parses. `modes` says whether it has -query and -edit.
CommandSpec makeCommand(std::string name, std::string summary, std::vector<FlagSpec> flags,
                        PositionalRule positional, ParsedHandler handler, unsigned modes = kCreate);
/// A flag without arguments.
FlagSpec switchFlag(std::string shortName, std::string longName, std::string help, unsigned modes = kCreate);
/// A flag with one argument.
FlagSpec valueFlag(std::string shortName, std::string longName, ArgumentType type, std::string help,
                   unsigned modes = kCreate);
/// A flag of Maya's that has no meaning here: its use is an error that says why.
FlagSpec refusedFlag(std::string shortName, std::string longName, std::string why);
/// Any number of names, at least `least`.
PositionalRule names(std::size_t least = 0, std::size_t most = PositionalRule::kAny);
PositionalRule noArguments();

SceneSession& sessionOf(const CommandContext& context);
engine::Scene& sceneOf(const CommandContext& context);

/// Stops the script unless the outcome is a success.
void require(const CommandContext& context, const engine::Outcome& outcome);
template <class T>
T valueOf(const CommandContext& context, engine::Expected<T> expected)
{
    require(context, expected.outcome);
    return std::move(expected.value);
}

// What a name means; each stops the script when there is no such thing or more than one.
engine::Node& nodeNamed(const CommandContext& context, const std::string& name);
engine::DagNode& dagNodeNamed(const CommandContext& context, const std::string& name);
engine::SelectionItem itemNamed(const CommandContext& context, const std::string& name);
engine::Plug plugNamed(const CommandContext& context, const std::string& name);

/// The items of the names, wildcards expanded; those of the selection when there are none.
std::vector<engine::SelectionItem> itemsOrSelection(const CommandContext& context,
                                                    const std::vector<std::string>& names);
/// The items that one name or pattern means.
std::vector<engine::SelectionItem> itemsOf(const CommandContext& context, const std::string& pattern);
bool hasWildcard(const std::string& name);

/// Keeps the first or last names of a list, as -head and -tail say.
void keepEnd(Value::Strings& list, const ParsedCommand& call);

/// The name of the shape below a transform: "pCube1" gives "pCubeShape1", "house" "houseShape".
std::string shapeNameFor(const std::string& transform);

/// Makes a node the selection.
void selectOnly(engine::Scene& scene, engine::Node& node);

/// A number in the current unit, or in the one written behind it ("5cm"), in internal units.
double toInternal(const CommandContext& context, const Value& value, ArgumentType type);

} // namespace tvxhost::mel
