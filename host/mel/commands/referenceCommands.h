// What `file` does with references.
#pragma once

#include "../commandTable.h"

#include "engine/reference.h"
#include "scene/reader.h"

#include <string>
#include <vector>

namespace tvxhost::mel {

class CommandContext;
class ParsedCommand;

/// The reference of a reference node or file; null when the name is neither.
engine::Reference* findReference(CommandContext& context, const std::string& name);
/// The same, or that of a node; stops the script when there is none.
engine::Reference& referenceNamed(CommandContext& context, const std::string& name);

/// Which references `-loadReferenceDepth` says; as they were saved when it is not there.
scene::ReferenceDepth referenceDepthOf(CommandContext& context, const ParsedCommand& call);

/// The flags of `file` that are about references.
std::vector<FlagSpec> referenceFlags();
/// Whether one of the actions of those flags is asked for.
bool isAboutReferences(const ParsedCommand& call);
/// Does it. Call only when isAboutReferences().
Value changeReferences(CommandContext& context, const ParsedCommand& call);
/// Answers `file -query` about references.
Value queryReferences(CommandContext& context, const ParsedCommand& call);

} // namespace tvxhost::mel
