// Report about a node type: what it is and which attributes it declares.
#pragma once

#include "engine/nodeType.h"
#include "engine/units.h"

#include <string>

namespace tvxhost::app {

/// A type for people: what it is, then a table of the attributes that it adds to those it inherits, children
/// indented below their compound. Numbers are in the given units.
std::string describeAsText(const engine::NodeType& type, const engine::Units& units);
/// The same as one JSON object on one line; defaults and limits that there are none of are null.
std::string describeAsJson(const engine::NodeType& type, const engine::Units& units);

} // namespace tvxhost::app
