// One use of each family of MayaUtils. Each gives a text for the script editor.
#pragma once

#include <maya/MDagPath.h>
#include <maya/MObject.h>

#include <string>

namespace crowdUtilities {

/// Doubles the node's "translateY", and tells where that leaves it.
std::string attributes(const MObject& node);

/// The mass and the position of a particle.
std::string particle(const MObject& shape, unsigned int index);

/// Moves the transform of a shape up by its own height above the ground.
std::string placement(const MObject& shape);

/// Who feeds the node's "translateX"; then nobody does.
std::string connections(const MObject& node);

/// The meshes of the selection, each with a note for the renderer.
std::string meshes();

/// Whether a folder beside the project's scenes can be made, and for which scene.
std::string files();

/// Where the crowd's window opens: where it was put last, or in the corner.
std::string windows();

/// How long a frame is, and a metre in the user's unit.
std::string units();

/// The outline and the footprint of a mesh on the ground.
std::string geometry(const MDagPath& mesh);

} // namespace crowdUtilities
