// Which shading groups the faces of a mesh are in.
#pragma once

#include "node.h"

#include <cstdint>
#include <vector>

namespace tvxhost::engine {

/// The shading groups of one instance of a mesh.
struct FaceShading
{
    std::vector<Node*> groups;        ///< that of the whole object first, then as its object groups come
    std::vector<std::int32_t> byFace; ///< which of them a face is in; -1 for none
};

/// Of a shape with so many faces. What is said of a face counts before what is said of the whole object; the
/// later of two object groups counts.
FaceShading shadingOf(DagNode& shape, int instance, std::size_t faces);

} // namespace tvxhost::engine
