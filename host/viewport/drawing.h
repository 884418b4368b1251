// Drawing of what the viewport shows by itself; each function draws with the matrices and colour that are
// set.
#pragma once

#include "colors.h"
#include "engine/geometry/meshData.h"

#include <vector>

namespace tvxhost::viewport {

/// Fills the picture with the background and clears its depth.
void clearPicture();

/// The ground grid of Maya's defaults: 12 units to each side, a line every unit, the two axes darker. World
/// space.
void drawGrid();

/// The view's axes in the lower left corner, red x, green y, blue z, turned as the camera sees the world.
/// Sets matrices of its own and leaves them set.
void drawViewAxes(const engine::Matrix& view, int width, int height);

/// A mesh's edges, from index pairs made by wireIndices.
void drawWire(const engine::MeshData& mesh, const std::vector<unsigned>& indices);

/// Pairs of point indices, one pair per edge; edges that name points which do not exist are left out.
std::vector<unsigned> wireIndices(const engine::MeshData& mesh);

/// Maya's locator: three lines of `scale` to each side through `position`. Local space.
void drawLocatorCross(const engine::Vec3d& position, const engine::Vec3d& scale);

void setColor(const MColor& color);

} // namespace tvxhost::viewport
