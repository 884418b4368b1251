// Components of meshes turned into those of another kind: the vertices of faces, the faces at vertices.
#pragma once

#include "engine/components.h"
#include "engine/mesh.h"

#include <string>

namespace tvxhost::mel {

/// Which of the components that are related to others are meant.
enum class Related
{
    all,      ///< those that touch one of the others
    internal, ///< those that touch nothing but the others
    border,   ///< those that touch something else as well, or the border of the mesh
};

/// The components of a kind ("vtx", "e", "f") that are related to others of the same mesh. `from` names only
/// components that there are.
engine::Components converted(const engine::MeshData& mesh, const engine::Components& from,
                             const std::string& kind, Related which);

} // namespace tvxhost::mel
