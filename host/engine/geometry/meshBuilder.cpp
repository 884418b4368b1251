// Meshes from polygons: see meshBuilder.h.
#include "meshBuilder.h"

#include "edgeIndex.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

constexpr int kLeastCorners = 3;

Outcome checkLists(const std::vector<int>& counts, const std::vector<int>& vertices)
{
    std::size_t corners = 0;
    for (const int count : counts) {
        if (count < kLeastCorners)
            return {Reason::badIndex, "a polygon has less than three corners"};
        corners += static_cast<std::size_t>(count);
    }
    if (corners != vertices.size())
        return {Reason::badIndex, "the polygons have " + std::to_string(corners) + " corners and not " +
                                      std::to_string(vertices.size())};
    return {};
}

bool hasRepeats(const int* corners, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        if (corners[i] == corners[(i + 1) % count])
            return true;
    return false;
}

} // namespace

Expected<Ref<MeshData>> buildMesh(std::vector<Vec3f> points, const std::vector<int>& counts,
                                  const std::vector<int>& vertices, bool refuseRepeats)
{
    if (const Outcome checked = checkLists(counts, vertices); !checked)
        return checked;
    const Ref<MeshData> mesh(new MeshData);
    mesh->points = std::move(points);
    if (!std::all_of(vertices.begin(), vertices.end(), [&](int vertex) { return mesh->hasVertex(vertex); }))
        return {Reason::badIndex, "a polygon has a vertex that is not there"};
    mesh->faces.reserve(counts.size(), vertices.size());
    EdgeIndex index(mesh->edges);
    const int* corners = vertices.data();
    for (const int signedCount : counts) {
        const auto count = static_cast<std::size_t>(signedCount);
        if (refuseRepeats && hasRepeats(corners, count))
            return {Reason::badIndex, "a polygon has the same vertex twice in a row"};
        mesh->faces.addFace();
        mesh->faces.addLoop();
        for (std::size_t i = 0; i < count; ++i)
            mesh->faces.addCorner(index.corner(corners[i], corners[(i + 1) % count]));
        corners += count;
    }
    return mesh;
}

} // namespace tvxhost::engine
