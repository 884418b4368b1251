// The edits of references: referenceEdit, and what referenceQuery tells about them.
#pragma once

#include "../commandTable.h"

#include <string>
#include <vector>

namespace tvxhost::mel {

class CommandContext;
class ParsedCommand;

CommandSpec referenceEditCommand();

/// `-editCommand`, which means edits of one kind only.
FlagSpec editCommandFlag();
/// Its value; empty when it is not there. Stops the script when there is no such kind.
std::string editCommandOf(CommandContext& context, const ParsedCommand& call);

/// The flags of referenceQuery that are about edits.
std::vector<FlagSpec> editQueryFlags();
/// Whether one of them asks for edits.
bool asksForEdits(const ParsedCommand& call);
Value queryEdits(CommandContext& context, const ParsedCommand& call);

} // namespace tvxhost::mel
