// Components of meshes turned into those of another kind; see meshConversion.h.
#include "meshConversion.h"

#include "engine/geometry/meshTopology.h"

#include <vector>

namespace tvxhost::mel {

using engine::Components;
using engine::MeshData;

namespace {

using Numbers = std::vector<std::int32_t>;

Numbers listOf(const engine::IndexSpan& span)
{
    return {span.begin(), span.end()};
}

Numbers verticesOfFace(const MeshData& mesh, std::int32_t face)
{
    Numbers vertices;
    for (const std::int32_t corner : mesh.faces.corners(static_cast<std::size_t>(face)))
        vertices.push_back(mesh.startOf(corner));
    return vertices;
}

Numbers edgesOfFace(const MeshData& mesh, std::int32_t face)
{
    Numbers edges;
    for (const std::int32_t corner : mesh.faces.corners(static_cast<std::size_t>(face)))
        edges.push_back(engine::edgeOf(corner));
    return edges;
}

Numbers verticesOfEdge(const MeshData& mesh, std::int32_t edge)
{
    const MeshData::Edge& ends = mesh.edges[static_cast<std::size_t>(edge)];
    return {ends.from, ends.to};
}

/// What components of one kind touch of another.
struct TouchRow
{
    const char* kind;
    const char* other;
    Numbers (*touched)(const MeshData& mesh, std::int32_t number);
};

constexpr TouchRow kTouches[] = {
    {"vtx", "e",
     [](const MeshData& mesh, std::int32_t i) { return listOf(mesh.topology().edgesOfVertex(i)); }},
    {"vtx", "f",
     [](const MeshData& mesh, std::int32_t i) { return listOf(mesh.topology().facesOfVertex(i)); }},
    {"e", "vtx", verticesOfEdge},
    {"e", "f", [](const MeshData& mesh, std::int32_t i) { return listOf(mesh.topology().facesOfEdge(i)); }},
    {"f", "vtx", verticesOfFace},
    {"f", "e", edgesOfFace},
};

const TouchRow* touchRow(const std::string& kind, const std::string& other)
{
    for (const TouchRow& row : kTouches)
        if (row.kind == kind && row.other == other)
            return &row;
    return nullptr;
}

std::size_t countOf(const MeshData& mesh, const std::string& kind)
{
    return kind == "vtx" ? mesh.points.size() : kind == "e" ? mesh.edges.size() : mesh.faces.size();
}

/// Whether an edge, or an edge of a vertex, is where the faces of the mesh end.
bool isAtBorder(const MeshData& mesh, const std::string& kind, std::int32_t number)
{
    const engine::MeshTopology& topology = mesh.topology();
    if (kind == "e")
        return topology.isBorder(number);
    if (kind == "vtx")
        for (const std::int32_t edge : topology.edgesOfVertex(number))
            if (topology.isBorder(edge))
                return true;
    return false;
}

bool isMeant(Related which, std::size_t touched, std::size_t others, bool isAtBorder)
{
    switch (which) {
    case Related::all:
        return touched > 0;
    case Related::internal:
        return touched > 0 && others == 0;
    case Related::border:
        return touched > 0 && (others > 0 || isAtBorder);
    }
    return false;
}

} // namespace

Components converted(const MeshData& mesh, const Components& from, const std::string& kind, Related which)
{
    if (kind == from.kind())
        return from;
    const TouchRow* row = touchRow(kind, from.kind());
    Components result(kind);
    if (!row)
        return result;
    std::vector<bool> isGiven(countOf(mesh, from.kind()));
    for (const Components::Run& run : from.runs())
        for (int i = run.first; i <= run.last; ++i)
            isGiven[static_cast<std::size_t>(i)] = true;
    const auto count = static_cast<std::int32_t>(countOf(mesh, kind));
    for (std::int32_t i = 0; i < count; ++i) {
        const Numbers neighbours = row->touched(mesh, i);
        std::size_t touched = 0;
        for (const std::int32_t neighbour : neighbours)
            touched += isGiven[static_cast<std::size_t>(neighbour)] ? 1 : 0;
        if (isMeant(which, touched, neighbours.size() - touched, isAtBorder(mesh, kind, i)))
            result.add({i, i});
    }
    return result;
}

} // namespace tvxhost::mel
