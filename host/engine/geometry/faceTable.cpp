// FaceTable: see faceTable.h.
#include "faceTable.h"

namespace tvxhost::engine {

void FaceTable::reserve(std::size_t faces, std::size_t corners)
{
    m_faceEnds.reserve(faces);
    m_loopEnds.reserve(faces);
    m_corners.reserve(corners);
}

void FaceTable::addLoop()
{
    m_loopEnds.push_back(static_cast<std::uint32_t>(m_corners.size()));
    ++m_faceEnds.back();
}

void FaceTable::add(const MeshFace& face)
{
    const auto addAll = [this](const std::vector<std::int32_t>& corners) {
        addLoop();
        for (const std::int32_t corner : corners)
            addCorner(corner);
    };
    addFace();
    if (face.edges.empty())
        return;
    addAll(face.edges);
    for (const std::vector<std::int32_t>& hole : face.holes)
        addAll(hole);
}

} // namespace tvxhost::engine
