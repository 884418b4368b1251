// What the transform commands share: finding transforms, reading and changing their parts.
#pragma once

#include "commandSupport.h"

#include "api/support/transformSpaces.h"

#include <Imath/ImathBox.h>

#include <functional>
#include <vector>

namespace tvxhost::mel {

/// The paths of the named transforms, or of those that are selected; a shape stands for the transform above
/// it. Stops the script when there is none.
std::vector<engine::DagPath> transformsOf(const CommandContext& context,
                                          const std::vector<std::string>& names);

std::vector<engine::DagPath> transformsOf(const CommandContext& context,
                                          const std::vector<engine::SelectionItem>& items);

/// All parts of the transform at the end of a path, evaluated.
api::Transformation partsOf(const CommandContext& context, const engine::DagPath& path);

// Why flags of these commands are refused.
constexpr const char* kNoSymmetry = "nothing is mirrored here";
/// Those that the commands share, which are about components.
std::vector<FlagSpec> componentFlags();

using PartsChange = std::function<void(api::Transformation& parts, const api::Parents& parents)>;
/// Has the parts changed and writes those that differ; stops the script when one of them is refused.
void changeParts(const CommandContext& context, const engine::DagPath& path, const PartsChange& change);

/// Takes a local matrix apart into scale, shear, rotation and translation. Pivots and the axes and order of
/// the rotation stay, the translation makes up for them.
void takeMatrix(api::Transformation& parts, const MMatrix& local);
engine::Outcome setLocalMatrix(engine::DagNode& transform, const engine::Matrix& local);

/// The box of an object and all below it, in its parent's space or the world; a point when it is empty.
Imath::Box3d boxOf(const engine::DagPath& path, bool inWorld);

/// Internal units of one of the user's: 1 for plain numbers.
double unitOf(const CommandContext& context, ArgumentType type);
/// A number of a call in internal units.
double internalNumber(const CommandContext& context, const Value& value, ArgumentType type);

} // namespace tvxhost::mel
