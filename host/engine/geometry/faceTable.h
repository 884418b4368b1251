// FaceTable: the faces of a mesh as loops of edges.
#pragma once

#include "incidence.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tvxhost::engine {

/// One face by itself. Edge k >= 0 runs from its first to its second vertex, a negative one is edge -k-1 the
/// other way round.
struct MeshFace
{
    std::vector<std::int32_t> edges;
    std::vector<std::vector<std::int32_t>> holes;
};

/// The edge that a corner of a face names, whichever way it runs.
inline std::int32_t edgeOf(std::int32_t corner)
{
    return corner >= 0 ? corner : -corner - 1;
}

/// All faces side by side: each is a row of loops, its outline first and then its holes; each loop is a row
/// of corners, that is of edges with the way they run (see MeshFace). Appended to, never changed.
class FaceTable
{
public:
    std::size_t size() const { return m_faceEnds.size(); }
    bool empty() const { return m_faceEnds.empty(); }
    /// Corners of all loops of all faces.
    std::size_t cornerCount() const { return m_corners.size(); }

    /// 0 for a face that has no edges, 1 for a plain one, more with holes.
    std::size_t loopCount(std::size_t face) const { return m_faceEnds[face] - firstLoop(face); }
    IndexSpan loop(std::size_t face, std::size_t i) const
    {
        const std::size_t loop = firstLoop(face) + i;
        return span(firstCornerOfLoop(loop), m_loopEnds[loop]);
    }
    /// The first loop; empty for a face without edges.
    IndexSpan outline(std::size_t face) const { return loopCount(face) == 0 ? IndexSpan() : loop(face, 0); }
    /// The corners of all loops of a face, one loop after the other.
    IndexSpan corners(std::size_t face) const
    {
        return span(firstCorner(face), firstCornerOfLoop(m_faceEnds[face]));
    }
    /// The corners of all faces before this one: where its own begin in lists of all corners.
    std::size_t firstCorner(std::size_t face) const { return firstCornerOfLoop(firstLoop(face)); }

    void reserve(std::size_t faces, std::size_t corners);
    /// Begins a face without loops.
    void addFace() { m_faceEnds.push_back(static_cast<std::uint32_t>(m_loopEnds.size())); }
    /// Begins a loop of the last face.
    void addLoop();
    /// Adds a corner to the last loop.
    void addCorner(std::int32_t corner)
    {
        m_corners.push_back(corner);
        ++m_loopEnds.back();
    }
    void add(const MeshFace& face);

private:
    std::size_t firstLoop(std::size_t face) const { return face == 0 ? 0 : m_faceEnds[face - 1]; }
    std::size_t firstCornerOfLoop(std::size_t loop) const { return loop == 0 ? 0 : m_loopEnds[loop - 1]; }
    IndexSpan span(std::size_t begin, std::size_t end) const
    {
        return {m_corners.data() + begin, m_corners.data() + end};
    }

    std::vector<std::int32_t> m_corners;
    std::vector<std::uint32_t> m_loopEnds; ///< by loop: past its last corner
    std::vector<std::uint32_t> m_faceEnds; ///< by face: past its last loop
};

} // namespace tvxhost::engine
