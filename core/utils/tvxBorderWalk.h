// The walk along an open border of a mesh.
#pragma once

#include <tvxCore/Vector2.h>

#include <maya/MIntArray.h>
#include <maya/MItMeshEdge.h>
#include <maya/MStatus.h>

#include <vector>

namespace tarvox::crowd {

/// Follows one border, edge by edge. It takes memory for one bit per edge of the mesh and no depth of calls,
/// so that a border may be of any length.
class BorderWalk
{
public:
    /// @param edge     on the border edge where the walk begins; moved along
    /// @param outline  gets one ground point per edge
    BorderWalk(MItMeshEdge& edge, std::vector<core::Vector2<float>>& outline);

    /// Walks until the border is closed or goes no further. A call that fails ends the walk with its status.
    MStatus run();

private:
    MStatus appendPoint();
    MStatus step(bool& goesOn);
    bool isVisited(int edge) const;
    void markVisited(int edge);

    MItMeshEdge& m_edge;
    std::vector<core::Vector2<float>>& m_outline;
    std::vector<bool> m_visited; ///< by edge
    MIntArray m_connected;       ///< kept for its memory
};

} // namespace tarvox::crowd
