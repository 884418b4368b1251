// The plug that one name of a `connectAttr` means.
#pragma once

#include "engine/scene.h"

#include <string>

namespace tvxhost::scene {

/// The plug of that name. A world-space array without an index ("|a|bShape.iog") is the element of the
/// instance that the path names.
engine::Expected<engine::Plug> connectionEnd(engine::Scene& scene, const std::string& name);

/// How a file names that plug: short names, the colon before default nodes, world-space elements by the path
/// of their instance; without the index when `nextAvailable`.
std::string connectionName(const engine::Plug& plug, bool nextAvailable);

/// Whether an attribute's elements are one per instance of the node, told apart by path and not by index.
bool isPerInstance(const engine::Attribute& attribute);

/// A node's name as files write it: the whole path of nodes that share their name and of instances.
std::string fileName(const engine::Node& node);
/// The same as files refer to it: nodes that every scene has with a leading colon.
std::string referenceName(const engine::Node& node);

} // namespace tvxhost::scene
