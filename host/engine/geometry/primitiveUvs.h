// Texture coordinates of primitives, laid out and numbered as Maya does.
#pragma once

#include "primitives.h"

namespace tvxhost::engine {

// Each maps a mesh of that shape in its first set. Proportions are kept: what is longest goes from 0 to 1.

/// From the lower left corner of the texture.
void mapPlane(MeshData& mesh, const PlaneShape& shape);

/// A cross that stands in the middle: the belt of front, top, back and bottom upwards, the sides left and
/// right of the front. Not for cubes more than twice as wide as high, whose cross would be wider than high:
/// where Maya has it then is not known, they stay without.
void mapCube(MeshData& mesh, const CubeShape& shape);

/// Once around and from pole to pole; each face at a pole has a coordinate of its own there.
void mapSphere(MeshData& mesh, const SphereShape& shape);

} // namespace tvxhost::engine
