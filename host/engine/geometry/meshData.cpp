// MeshData: see meshData.h.
#include "meshData.h"

#include "meshTopology.h"

#include <algorithm>

namespace tvxhost::engine {

MeshData::MeshData() : Data(DataType::mesh) {}

MeshData::~MeshData() = default;

Ref<Data> MeshData::clone() const
{
    auto* copy = new MeshData;
    copy->points = points;
    copy->edges = edges;
    copy->faces = faces;
    return Ref<Data>(copy);
}

const MeshTopology& MeshData::topology() const
{
    if (!m_topology)
        m_topology = std::make_unique<MeshTopology>(*this);
    return *m_topology;
}

bool isSound(const MeshData& mesh)
{
    const auto hasEnds = [&](const MeshData::Edge& edge) {
        return mesh.hasVertex(edge.from) && mesh.hasVertex(edge.to);
    };
    const auto exists = [&](std::int32_t corner) { return mesh.hasEdge(edgeOf(corner)); };
    if (!std::all_of(mesh.edges.begin(), mesh.edges.end(), hasEnds))
        return false;
    for (std::size_t face = 0; face < mesh.faces.size(); ++face) {
        const IndexSpan corners = mesh.faces.corners(face);
        if (!std::all_of(corners.begin(), corners.end(), exists))
            return false;
    }
    return true;
}

} // namespace tvxhost::engine
