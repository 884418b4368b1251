// Which texture coordinates and colours the faces of a mesh use, as their words in files tell.
#pragma once

#include "faceText.h"
#include "meshData.h"

namespace tvxhost::engine {

/// Gives the corners of a face what its words say, in the sets with those slots; the rest of the words names
/// sets that are not there.
void giveMaps(MeshData& mesh, std::size_t face, const FaceMaps& maps);
/// What the corners of a face have in all sets.
FaceMaps mapsOf(const MeshData& mesh, std::size_t face);

/// Takes from corners the numbers of values that are not there.
void dropUnknownValues(MeshData& mesh);

} // namespace tvxhost::engine
