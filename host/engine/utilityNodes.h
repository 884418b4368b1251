// Utility nodes: what they compute with numbers and matrices.
#pragma once

#include "nodeType.h"

namespace tvxhost::engine {

/// Gives the nodes that calculate with numbers their outputs: sums, products, ranges, blends, conditions.
void addUtilityComputes(TypeTable& types);

/// Gives angleBetween and vectorProduct their outputs.
void addVectorComputes(TypeTable& types);

/// Gives multMatrix, decomposeMatrix and distanceBetween their outputs.
void addMatrixComputes(TypeTable& types);

} // namespace tvxhost::engine
