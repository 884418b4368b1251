// The meshes of a scene: see meshSummary.h.
#include "meshSummary.h"

#include "engine/geometry/meshTopology.h"
#include "engine/mesh.h"
#include "engine/scene.h"

namespace tvxhost::scene {

namespace {

MeshSummary summaryOf(engine::DagNode& shape)
{
    MeshSummary summary;
    summary.name = shape.scene().shortestName(shape);
    if (const engine::MeshData* mesh = engine::meshOf(shape)) {
        summary.vertices = mesh->points.size();
        summary.edges = mesh->edges.size();
        summary.faces = mesh->faces.size();
        summary.borderEdges = mesh->topology().borderCount();
    }
    return summary;
}

} // namespace

std::vector<MeshSummary> summarizeMeshes(engine::Scene& scene)
{
    std::vector<MeshSummary> meshes;
    for (engine::Node* node : scene.nodes())
        if (node->type().isA("mesh"))
            meshes.push_back(summaryOf(*node->asDag()));
    return meshes;
}

} // namespace tvxhost::scene
