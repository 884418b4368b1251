// Faces of a mesh in scene files: `f 4 e e e e mu 0 4 i i i i`, one piece of data per face.
#pragma once

#include "plugTarget.h"
#include "words.h"

#include <string_view>

namespace tvxhost::scene {

inline constexpr std::string_view kPolyFacesType = "polyFaces";

/// Stores the faces that the words hold into the elements of the target, one each. typeMismatch when there
/// are more or fewer faces than elements, or a face is not well formed.
engine::Outcome storePolyFaces(const PlugTarget& target, Words words);

} // namespace tvxhost::scene
