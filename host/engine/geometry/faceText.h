// Faces as the words of a scene file.
#pragma once

#include "faceTable.h"

#include <string>
#include <string_view>

namespace tvxhost::engine {

/// Reads one face from its words ("f 4 0 5 -2 -5 mu 0 4 0 1 3 2"); what is not about edges and holes is
/// skipped. False when the words are not those of a face.
bool readFace(std::string_view words, MeshFace& face);

/// The words of a face, each loop on a line of its own as files have it.
std::string faceText(const FaceTable& faces, std::size_t face);

} // namespace tvxhost::engine
