// UUIDs of nodes.
#pragma once

#include <string>

namespace tvxhost::engine {

/// A random UUID (version 4) in capitals: "01234567-89AB-4CDE-8F01-23456789ABCD".
std::string makeUuid();

} // namespace tvxhost::engine
