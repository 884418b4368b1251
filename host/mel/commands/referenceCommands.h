// What `file` does with references.
#pragma once

#include "../commandTable.h"

namespace tvxhost::mel {

class CommandContext;
class ParsedCommand;

/// The flags of `file` that are about references.
std::vector<FlagSpec> referenceFlags();
/// Whether one of the actions of those flags is asked for.
bool isAboutReferences(const ParsedCommand& call);
/// Does it. Call only when isAboutReferences().
Value changeReferences(CommandContext& context, const ParsedCommand& call);
/// Answers `file -query` about references.
Value queryReferences(CommandContext& context, const ParsedCommand& call);

} // namespace tvxhost::mel
