// MeshData: see meshData.h.
#include "meshData.h"

#include "meshNormals.h"
#include "meshTopology.h"
#include "meshTriangles.h"
#include "triangleTree.h"

#include <algorithm>

namespace tvxhost::engine {

MeshData::MeshData() : Data(DataType::mesh), uvSets(1)
{
    uvSets.front().name = kFirstUvSetName;
}

MeshData::~MeshData() = default;

Ref<Data> MeshData::clone() const
{
    const Ref<MeshData> copy(new MeshData);
    copy->assign(*this);
    return copy;
}

void MeshData::assign(const MeshData& other)
{
    points = other.points;
    edges = other.edges;
    faces = other.faces;
    lockedNormals = other.lockedNormals;
    uvSets = other.uvSets;
    colorSets = other.colorSets;
    currentUvSet = other.currentUvSet;
    currentColorSet = other.currentColorSet;
    m_topology.reset();
    forgetDerived();
}

const MeshTopology& MeshData::topology() const
{
    if (!m_topology)
        m_topology = std::make_unique<MeshTopology>(*this);
    return *m_topology;
}

const NormalTable& MeshData::normals() const
{
    if (!m_normals)
        m_normals = std::make_unique<NormalTable>(normalsOf(*this));
    return *m_normals;
}

const MeshTriangles& MeshData::triangles() const
{
    if (!m_triangles)
        m_triangles = std::make_unique<MeshTriangles>(*this);
    return *m_triangles;
}

const TriangleTree& MeshData::tree() const
{
    if (!m_tree)
        m_tree = std::make_unique<TriangleTree>(*this);
    return *m_tree;
}

const TriangleTree& MeshData::tree(const Matrix& matrix) const
{
    if (matrix == Matrix())
        return tree();
    if (!m_placedTree || m_placedTree->matrix() != matrix)
        m_placedTree = std::make_unique<TriangleTree>(*this, matrix);
    return *m_placedTree;
}

void MeshData::forgetDerived()
{
    m_normals.reset();
    m_triangles.reset();
    forgetTrees();
}

std::vector<const TriangleTree*> MeshData::keptTrees() const
{
    std::vector<const TriangleTree*> kept;
    for (const auto* tree : {&m_tree, &m_placedTree})
        if (*tree)
            kept.push_back(tree->get());
    return kept;
}

void MeshData::forgetTrees()
{
    m_tree.reset();
    m_placedTree.reset();
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
