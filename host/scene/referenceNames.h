// How the edits of references name nodes, plugs and connections.
#pragma once

#include "engine/scene.h"

#include <string>

namespace tvxhost::scene {

/// The whole path of a DAG node, the name of another.
std::string editName(engine::Node& node);
/// A plug: long names, world-space arrays without an index.
std::string editName(const engine::Plug& plug);

/// A connection, the same text for the same ends as long as their nodes live.
std::string connectionKey(const engine::Plug& source, const engine::Plug& destination);

/// The name of the transform that stands in a file for parents that the reference's file holds.
std::string fosterName(const engine::Reference& reference);

} // namespace tvxhost::scene
