// What a name means to getAttr and setAttr: a plug, some elements of an array, or points of a shape.
#pragma once

#include "commandSupport.h"

#include <optional>
#include <string>
#include <vector>

namespace tvxhost::mel {

struct AskedPlugs
{
    engine::Plug plug; ///< for elements the array
    bool isRange = false;
    std::vector<engine::Plug> elements; ///< of the array, when it is a range
    Value points;                       ///< the values themselves, where no plug holds them
};

/// "a.tx", "a.list", "a.list[0:3]", "a.list[*]", or the points of a shape as components: vertices by how far
/// they were moved, control points by their places unless history makes these. Stops the script when there is
/// no such thing.
AskedPlugs plugsAsked(const CommandContext& context, const std::string& name);

/// The elements that a name means to setAttr, a transform standing for its shape: "a.list[0:3]", "a.vtx[2]",
/// "a.vtx[0:3].pntx". Empty for a name that means something else.
std::vector<scene::PlugTarget> elementsNamed(const CommandContext& context, const std::string& name);

/// Control points that are named for their places: all three numbers of each, or one.
struct NamedPlaces
{
    engine::SelectionItem points;
    std::optional<unsigned> axis;
};
/// None for a name that means something else, and where history makes the points.
std::optional<NamedPlaces> placesNamed(const CommandContext& context, const std::string& name);

} // namespace tvxhost::mel
