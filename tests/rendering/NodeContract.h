// The attributes that a node type declares, as text.
#pragma once

#include "engine/nodeType.h"

#include <string>
#include <vector>

namespace tarvox::crowd::test {

/// One line for each attribute that the type adds to what it inherits, in order: long name, short name, type,
/// default, flags. A flag that is off is "-": keyable K, readable R, writable W, hidden H, array A, index
/// matters I, storable S.
std::vector<std::string> attributesOf(const tvxhost::engine::NodeType& type);

/// "input output" for each declaration, in order.
std::vector<std::string> affectsOf(const tvxhost::engine::NodeType& type);

} // namespace tarvox::crowd::test
