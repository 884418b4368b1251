// The meshes of a scene, counted.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tvxhost::engine {
class Scene;
}

namespace tvxhost::scene {

struct MeshSummary
{
    std::string name; ///< as short as it is unique
    std::size_t vertices = 0;
    std::size_t edges = 0;
    std::size_t faces = 0;
    std::size_t borderEdges = 0; ///< edges that exactly one face uses
};

/// Every mesh shape of the scene in order of creation, with what its history makes. A mesh without geometry
/// has zeros.
std::vector<MeshSummary> summarizeMeshes(engine::Scene& scene);

} // namespace tvxhost::scene
