// The keys of animation curves as scene files hold them, which differs from other arrays of numbers.
#pragma once

#include "engine/node.h"

#include <string>
#include <vector>

namespace tvxhost::scene {

/// The static attributes of a node in the order in which a file sets them: that of their declaration, but for
/// the keys of a curve, which stand before what is said of each.
std::vector<engine::Attribute*> inFileOrder(const engine::Node& node);

/// Whether the elements of an array belong to the keys of a curve, one for each.
bool isKeyArray(const engine::Plug& plug);

/// The statements, from behind `setAttr` to the semicolon, that set what an array holds for the keys. The
/// first says how many keys there are, unless it is one.
std::vector<std::string> keyStatements(const engine::Plug& array);

} // namespace tvxhost::scene
