// The type of a node as files and scripts name it.
#pragma once

#include "node.h"

#include <string>

namespace tvxhost::engine {

/// Of a placeholder the type of the node that it stands for.
inline const std::string& typeNameOf(const Node& node)
{
    return node.unknownType.empty() ? node.type().name : node.unknownType;
}

} // namespace tvxhost::engine
