// References: files whose nodes are part of a scene: read, changed by the scene's edits, taken out again.
#pragma once

#include "reader.h"

#include "engine/reference.h"
#include "mel/arguments.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tvxhost::scene {

/// What a `file` statement says.
struct ReferenceStatement
{
    engine::Reference reference; ///< with file, node, namespace and words only
    bool isReference = false;    ///< `-reference`
    int depth = 0;               ///< `-referenceDepthInfo`; 0: it has none
};
ReferenceStatement parseReference(const mel::ArgumentList& arguments);

/// How a reference is to be read whatever the file says that makes it.
struct ReferenceState
{
    std::optional<bool> isLoaded;
    std::optional<ReferenceDepth> depth; ///< of the references that its own file names
    std::string file;                    ///< in place of the one that is named there; empty: that one
};
/// These by the name of the reference node: what the scene says overrides what the files say that it refers
/// to.
using ReferenceStates = std::map<std::string, ReferenceState>;

/// Which references are read of a file that another one names, of which those are.
ReferenceDepth depthBelow(ReferenceDepth depth);

/// Reads a reference's file and applies the edits of its reference node. A file that is not there is one
/// warning, and the reference stays as it is. Errors and warnings are counted into `summary`.
void loadReference(engine::Scene& scene, engine::Reference& reference, const ReadOptions& options,
                   ReferenceStates& states, SceneSummary& summary);

/// Takes the nodes of a reference's file out of the scene; the edits go back to its reference node. Only for
/// references of the scene itself.
engine::Outcome unloadReference(engine::Scene& scene, engine::Reference& reference);
/// The same, and the reference with its node is gone for good.
engine::Outcome removeReference(engine::Scene& scene, engine::Reference& reference);
/// Takes a reference and its node out of the scene without its file's nodes.
void dropReference(engine::Scene& scene, const engine::Reference& reference);
/// Loads or unloads a reference within another one. The scene's own reference around it is read again, and
/// with it all references below that, which are other objects afterwards. `options.references` says which of
/// those in the reference itself are loaded.
engine::Outcome setNestedLoaded(engine::Scene& scene, engine::Reference& reference, bool isLoaded,
                                const ReadOptions& options, SceneSummary& summary);
/// Gives a reference within another one another file: an edit of the scene's own reference around it, which
/// is read again as by setNestedLoaded().
engine::Outcome replaceNested(engine::Scene& scene, engine::Reference& reference, const std::string& file,
                              bool isLoaded, const ReadOptions& options, SceneSummary& summary);
/// Makes the nodes of a loaded reference the scene's own, with all edits; references in it become the
/// scene's own ones. The reference is gone.
engine::Outcome importReference(engine::Scene& scene, engine::Reference& reference,
                                const ReadOptions& options, SceneSummary& summary);

/// A reference by its reference node, its file (as named or where it is) or a node of it; null for none.
engine::Reference* findReference(engine::Scene& scene, const std::string& name);
/// The one that holds a node; null for none.
engine::Reference* referenceOf(engine::Scene& scene, const engine::Node& node);
/// The scene's own reference that a reference belongs to.
engine::Reference& topReference(engine::Reference& reference);
/// The namespace of its nodes, without a colon in front.
std::string namespaceOf(const engine::Reference& reference);
/// The nodes of a reference and of those below it, in order of creation.
std::vector<engine::Node*> allNodes(engine::Scene& scene, const engine::Reference& reference);

/// The `file` statements of all references, as they stand at the head of a scene.
std::string referenceStatements(const engine::Scene& scene);

} // namespace tvxhost::scene
