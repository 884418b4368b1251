// What a node type declares, as text.
#pragma once

#include "engine/nodeType.h"

#include <string>
#include <vector>

namespace tarvox::crowd::test {

/// The whole of what the type adds to what it inherits: its id, kind and classification; then one line for
/// each attribute in order; then one line "input -> output" for each dependency in order.
///
/// An attribute: long name, short name, type, default, fields of an enumeration, limits, flags. A flag that
/// is off is "-": keyable K, readable R, writable W, hidden H, array A, index matters I, storable S. Other
/// flags are named where they differ from those of a new attribute.
std::vector<std::string> contractOf(const tvxhost::engine::NodeType& type);

} // namespace tarvox::crowd::test
