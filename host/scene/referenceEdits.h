// The edits that a scene makes to the nodes of its references: applied to them, found out from them, and kept
// by the reference node while they are not there.
#pragma once

#include "referenceEditText.h"

#include "engine/reference.h"
#include "engine/scene.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tvxhost::scene {

/// Notes how the nodes of a reference are now.
void takeBaseline(engine::Scene& scene, engine::Reference& reference);

/// Applies the edits that its reference node keeps. What cannot be applied is kept with the reference whose
/// nodes it concerns. The node of a reference of the scene itself no longer keeps them afterwards.
void applyEdits(engine::Scene& scene, engine::Reference& reference);

/// What a scene file says of a loaded reference.
struct ReferenceText
{
    std::string referenceNode;
    EditList edits;
    std::size_t placeholders = 0; ///< elements of `.phl`, counted from 1
    struct Placeholder
    {
        engine::Plug source;
        engine::Plug destination;
        std::string sourceName;      ///< what stands for the source in a file; empty: its own name
        std::string destinationName; ///< the same of the destination
    };
    std::vector<Placeholder> connections; ///< made by the scene at nodes of the reference
    std::vector<std::pair<engine::DagNode*, std::string>> fosterChildren; ///< the scene's own below its nodes
};
ReferenceText textOf(engine::Scene& scene, engine::Reference& reference);

/// Puts what was found out before the nodes went back to the reference node: the edits and, for connections,
/// its placeholders.
void giveEditsBack(engine::Scene& scene, engine::Reference& reference, const ReferenceText& text);

/// The edits that a reference node keeps; empty when it is not there or keeps something else.
std::optional<EditList> keptEdits(engine::Scene& scene, const engine::Reference& reference);
/// Makes it keep these. Placeholders that none of them names are disconnected.
void keepEdits(engine::Scene& scene, const engine::Reference& reference, const EditList& edits);

/// Whether an edit that a loaded reference keeps beside its nodes is one that could not be applied.
bool hasFailed(const engine::Scene& scene, const engine::ReferenceEdit& edit);

} // namespace tvxhost::scene
