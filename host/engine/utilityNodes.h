// Utility nodes: what they compute with numbers.
#pragma once

#include "nodeType.h"

namespace tvxhost::engine {

/// Gives plusMinusAverage its outputs.
void addUtilityComputes(TypeTable& types);

} // namespace tvxhost::engine
