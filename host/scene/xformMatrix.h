// Matrices written as the parts of a transform: `-type "matrix" "xform" …`.
#pragma once

#include "words.h"

#include "engine/data.h"

namespace tvxhost::scene {

/// The word that stands before the parts.
inline constexpr std::string_view kXformWord = "xform";

/// Takes the 37 words behind "xform" and multiplies the parts together.
engine::Matrix parseXformMatrix(Words& words);

} // namespace tvxhost::scene
