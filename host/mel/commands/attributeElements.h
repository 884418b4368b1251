// What a name means to getAttr: a plug, or some elements of an array.
#pragma once

#include "commandSupport.h"

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

} // namespace tvxhost::mel
