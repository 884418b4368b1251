// Faces as the words of a scene file.
#pragma once

#include "faceTable.h"

#include <string>
#include <string_view>
#include <vector>

namespace tvxhost::engine {

/// What the corners of one loop of a face have in one set: the numbers of texture coordinates or colours.
struct LoopMap
{
    std::size_t firstCorner = 0; ///< of the loop, among the corners of the face
    std::int32_t slot = 0;       ///< of the set
    std::vector<std::int32_t> used;
};

/// Loop by loop, and there set by set.
struct FaceMaps
{
    std::vector<LoopMap> uvs, colors;
};

/// Reads one face from its words ("f 4 0 5 -2 -5 mu 0 4 0 1 3 2"), and for who wants it what its corners
/// have; faces by vertices and colours without a set are skipped. False when the words are not those of a
/// face.
bool readFace(std::string_view words, MeshFace& face, FaceMaps* maps = nullptr);

/// The words of a face as files have them: each loop on a line of its own, and behind it what it has in sets.
std::string faceText(const FaceTable& faces, std::size_t face, const FaceMaps& maps = {});

} // namespace tvxhost::engine
