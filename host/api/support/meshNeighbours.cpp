// What is next to a face: see meshNeighbours.h.
#include "meshNeighbours.h"

#include "engine/geometry/meshMeasures.h"
#include "engine/geometry/meshTopology.h"

#include <algorithm>
#include <set>

namespace tvxhost::api {

namespace {

engine::IndexSpan cornersOf(const engine::MeshData& mesh, std::int32_t face)
{
    return mesh.faces.corners(static_cast<std::size_t>(face));
}

std::vector<std::int32_t> asList(const std::set<std::int32_t>& numbers)
{
    return {numbers.begin(), numbers.end()};
}

std::set<std::int32_t> verticesOf(const engine::MeshData& mesh, std::int32_t face)
{
    const std::vector<std::int32_t> all = engine::cornerVertices(mesh, static_cast<std::size_t>(face));
    return {all.begin(), all.end()};
}

} // namespace

std::vector<std::int32_t> unique(engine::IndexSpan span)
{
    std::vector<std::int32_t> numbers(span.begin(), span.end());
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

std::vector<std::int32_t> facesBeside(const engine::MeshData& mesh, std::int32_t face)
{
    std::set<std::int32_t> faces;
    for (const std::int32_t corner : cornersOf(mesh, face))
        for (const std::int32_t other : mesh.topology().facesOfEdge(engine::edgeOf(corner)))
            if (other != face)
                faces.insert(other);
    return asList(faces);
}

std::vector<std::int32_t> edgesBeside(const engine::MeshData& mesh, std::int32_t face)
{
    std::set<std::int32_t> edges;
    for (const std::int32_t vertex : verticesOf(mesh, face))
        for (const std::int32_t edge : mesh.topology().edgesOfVertex(vertex))
            edges.insert(edge);
    for (const std::int32_t corner : cornersOf(mesh, face))
        edges.erase(engine::edgeOf(corner));
    return asList(edges);
}

std::vector<std::int32_t> verticesBeside(const engine::MeshData& mesh, std::int32_t face)
{
    const std::set<std::int32_t> own = verticesOf(mesh, face);
    std::set<std::int32_t> vertices;
    for (const std::int32_t edge : edgesBeside(mesh, face)) {
        const auto& ends = mesh.edges[static_cast<std::size_t>(edge)];
        for (const std::int32_t end : {ends.from, ends.to})
            if (own.count(end) == 0)
                vertices.insert(end);
    }
    return asList(vertices);
}

bool isOnBorder(const engine::MeshData& mesh, std::int32_t face)
{
    const engine::IndexSpan corners = cornersOf(mesh, face);
    return std::any_of(corners.begin(), corners.end(),
                       [&](std::int32_t corner) { return mesh.topology().isBorder(engine::edgeOf(corner)); });
}

std::int32_t normalAt(const engine::MeshData& mesh, std::int32_t face, std::int32_t vertex)
{
    const engine::NormalTable& table = mesh.normals();
    std::size_t place = mesh.faces.firstCorner(static_cast<std::size_t>(face));
    for (const std::int32_t corner : cornersOf(mesh, face)) {
        if (mesh.startOf(corner) == vertex)
            return table.used[place];
        ++place;
    }
    return -1;
}

std::vector<std::int32_t> normalsOfFace(const engine::MeshData& mesh, std::int32_t face)
{
    const engine::NormalTable& table = mesh.normals();
    const auto first = table.used.begin() +
                       static_cast<std::ptrdiff_t>(mesh.faces.firstCorner(static_cast<std::size_t>(face)));
    return {first, first + static_cast<std::ptrdiff_t>(cornersOf(mesh, face).size())};
}

engine::Vec3d normalNumbered(const engine::MeshData& mesh, std::int32_t number)
{
    return engine::Vec3d(mesh.normals().normals[static_cast<std::size_t>(number)]);
}

} // namespace tvxhost::api
