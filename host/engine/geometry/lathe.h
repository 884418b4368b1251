// Lathe: bodies of revolution, ring by ring.
#pragma once

#include "meshData.h"

#include <optional>
#include <vector>

namespace tvxhost::engine {

/// A ring of vertices around the y axis.
struct LatheRing
{
    double radius = 0, y = 0;
    bool isHard = false; ///< whether its edges are hard
};

/// A profile from the bottom to the top. At an open end that has a pole, triangles meet in it; without one
/// the end is a polygon.
struct LatheProfile
{
    int sides = 3;
    std::vector<LatheRing> rings;
    std::optional<double> bottomPole, topPole; ///< their heights
    bool isClosed = false;                     ///< the last ring is joined to the first: no ends
};

/// The body: vertices ring by ring, the first one a step from +x towards -z, then the poles; the edges of the
/// rings, those between rings, those to the bottom pole and to the top pole; faces between rings, then those
/// of the bottom and of the top.
Ref<MeshData> turnOnLathe(const LatheProfile& profile);

} // namespace tvxhost::engine
