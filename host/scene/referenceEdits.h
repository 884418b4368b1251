// The edits that a scene makes to the nodes of its references: applied to them, and found out from them.
#pragma once

#include "engine/reference.h"
#include "engine/scene.h"

#include <string>
#include <string_view>
#include <vector>

namespace tvxhost::scene {

/// Notes how the nodes of a reference are now.
void takeBaseline(engine::Scene& scene, engine::Reference& reference);

/// Applies the edits that its reference node keeps, and empties the node of them. What cannot be applied is
/// kept with the reference.
void applyEdits(engine::Scene& scene, engine::Reference& reference);

/// What a scene file says of a loaded reference.
struct ReferenceText
{
    std::string edits;            ///< the value of `.ed`
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

/// The name of the transform that stands in a file for the parents of fosterChildren.
std::string fosterName(const engine::Reference& reference);

} // namespace tvxhost::scene
