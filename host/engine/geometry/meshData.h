// MeshData: polygons as a piece of data.
#pragma once

#include "../data.h"
#include "faceTable.h"
#include "mapSets.h"

#include <memory>
#include <vector>

namespace tvxhost::engine {

class MeshTopology;
class MeshTriangles;
class TriangleTree;
struct NormalTable;

/// Polygons: points, edges and faces, numbered as in scene files.
class MeshData final : public Data
{
public:
    struct Edge
    {
        std::int32_t from = 0, to = 0, smooth = 0;
    };

    MeshData();
    ~MeshData() override;
    Ref<Data> clone() const override;
    /// Becomes like another mesh.
    void assign(const MeshData& other);

    std::vector<Vec3f> points; ///< centimetres, object space
    std::vector<Edge> edges;
    FaceTable faces;
    /// The normals that were set, by corner (see FaceTable::firstCorner), of length one; kNoNormal in all
    /// three numbers where none was. Empty when there are none.
    std::vector<Vec3f> lockedNormals;
    std::vector<UvSet> uvSets; ///< at least one
    std::vector<ColorSet> colorSets;
    /// The names of the sets that are meant when none is named, where no shape says it; none of them: the
    /// first one.
    std::string currentUvSet, currentColorSet;

    /// The vertex where a corner of a face begins.
    std::int32_t startOf(std::int32_t corner) const
    {
        const Edge& edge = edges[static_cast<std::size_t>(edgeOf(corner))];
        return corner >= 0 ? edge.from : edge.to;
    }
    bool hasVertex(std::int64_t i) const { return i >= 0 && i < static_cast<std::int64_t>(points.size()); }
    bool hasEdge(std::int64_t i) const { return i >= 0 && i < static_cast<std::int64_t>(edges.size()); }
    bool hasFace(std::int64_t i) const { return i >= 0 && i < static_cast<std::int64_t>(faces.size()); }

    /// What is next to what; made when it is first asked for and kept. Edges and faces must not change after
    /// that; points may. The mesh has to be sound.
    const MeshTopology& topology() const;
    /// The normals at corners, the triangles of faces and the tree to search them with: made when they are
    /// first asked for and kept until they are forgotten, which whoever changes points or the smoothness of
    /// edges has to see to.
    const NormalTable& normals() const;
    const MeshTriangles& triangles() const;
    const TriangleTree& tree() const;
    /// The tree of the points as a matrix moves them; kept until one of another matrix is asked for.
    const TriangleTree& tree(const Matrix& matrix) const;
    void forgetDerived();

    /// The trees that are kept now.
    std::vector<const TriangleTree*> keptTrees() const;
    void forgetTrees();

private:
    mutable std::unique_ptr<MeshTopology> m_topology;
    mutable std::unique_ptr<NormalTable> m_normals;
    mutable std::unique_ptr<MeshTriangles> m_triangles;
    mutable std::unique_ptr<TriangleTree> m_tree;
    mutable std::unique_ptr<TriangleTree> m_placedTree;
};

/// Whether every edge names points that exist and every face edges that exist.
bool isSound(const MeshData& mesh);

} // namespace tvxhost::engine
