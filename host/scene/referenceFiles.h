// The files that reference nodes name: which one a reference is read from, and which ones it was before.
#pragma once

#include "referenceEditText.h"
#include "references.h"

#include <string>

namespace tvxhost::scene {

/// Gives a reference another file, for the next time that it is loaded. Its node lists it first, and the
/// earlier ones behind it; for a reference within another one that is an edit of the scene.
/// doesNotExist when it has no node.
engine::Outcome nameFile(engine::Scene& scene, engine::Reference& reference, const std::string& file);

/// Notes the files that edits give to references, which they name within the current namespace. What is known
/// already stays.
void noteFiles(const engine::Scene& scene, const EditList& edits, ReferenceStates& states);

} // namespace tvxhost::scene
