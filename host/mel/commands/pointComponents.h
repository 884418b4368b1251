// Points of shapes that components name: vertices of meshes, control points of curves.
#pragma once

#include "commandSupport.h"

#include "engine/data.h"

#include <functional>
#include <utility>
#include <vector>

namespace tvxhost::mel {

/// Points by number, in the space of their shape. Edges and faces stand for their vertices.
using NumberedPoints = std::vector<std::pair<int, engine::Vec3d>>;

/// The points that an item names. Stops the script when it names none that can be told.
NumberedPoints pointsOf(const CommandContext& context, const engine::SelectionItem& item);

using PointChange = std::function<engine::Vec3d(const engine::Vec3d& point)>;
/// Moves each of the points that an item names; what it is given and gives is in the world or in the space of
/// the shape.
void changePoints(const CommandContext& context, const engine::SelectionItem& item, bool isInWorld,
                  const PointChange& change);

/// One item for each shape, with all of its points that the items name: what several of them name, such as
/// the vertices between faces, is there once. Edit points, which cannot be changed, stay as they are.
std::vector<engine::SelectionItem> pointsOnce(const CommandContext& context,
                                              const std::vector<engine::SelectionItem>& items);

/// Takes the items that name components out of a list.
std::vector<engine::SelectionItem> takeComponents(std::vector<engine::SelectionItem>& items);

} // namespace tvxhost::mel
