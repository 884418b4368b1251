// The walk along an open border of a mesh.
#include "core/utils/tvxBorderWalk.h"

#include "core/utils/tvxGroundPoint.h"

#include <maya/MSpace.h>

#include <algorithm>

namespace tarvox::crowd {

BorderWalk::BorderWalk(MItMeshEdge& edge, std::vector<core::Vector2<float>>& outline)
    : m_edge(edge), m_outline(outline), m_visited(static_cast<std::size_t>(std::max(edge.count(), 0)))
{
    markVisited(edge.index());
}

MStatus BorderWalk::run()
{
    MStatus status;
    for (bool goesOn = true; goesOn && status;) {
        status = appendPoint();
        if (status)
            status = step(goesOn);
    }
    return status;
}

// The edge's first vertex, or the second where the first is the end of the edge before.
MStatus BorderWalk::appendPoint()
{
    MStatus status;
    core::Vector2<float> point = groundPoint(m_edge.point(0, MSpace::kTransform, &status));
    if (status && !m_outline.empty() && point == m_outline.back())
        point = groundPoint(m_edge.point(1, MSpace::kTransform, &status));
    if (status)
        m_outline.push_back(point);
    return status;
}

// Moves on to the first connected border edge that was not visited; an edge counts as visited when it is
// left.
MStatus BorderWalk::step(bool& goesOn)
{
    goesOn = false;
    MStatus status;
    const int current = m_edge.index();
    m_edge.getConnectedEdges(m_connected, &status);
    if (!status)
        return status;
    for (unsigned int i = 0; i < m_connected.length(); ++i) {
        if (isVisited(m_connected[i]))
            continue;
        int previous = 0;
        status = m_edge.setIndex(m_connected[i], previous);
        if (!status)
            return status;
        if (m_edge.onBoundary()) {
            markVisited(current);
            goesOn = true;
            return status;
        }
    }
    return status;
}

bool BorderWalk::isVisited(int edge) const
{
    const auto place = static_cast<std::size_t>(edge);
    return place < m_visited.size() && m_visited[place];
}

void BorderWalk::markVisited(int edge)
{
    const auto place = static_cast<std::size_t>(edge);
    if (place >= m_visited.size())
        m_visited.resize(place + 1);
    m_visited[place] = true;
}

} // namespace tarvox::crowd
