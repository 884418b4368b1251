// Flags of a command that stand for attributes of the node that it makes, edits and is asked about.
#pragma once

#include "commandSupport.h"

#include <optional>
#include <string>
#include <vector>

namespace tvxhost::mel {

/// One flag, and the attribute that it sets and tells.
struct AttributeFlag
{
    const char* shortName;
    const char* longName;
    ArgumentType type; ///< a string for texts and for the fields of an enum
    const char* attribute;
    const char* help;
    std::size_t count = 1; ///< arguments: 3 for a point
};

using AttributeFlags = std::vector<AttributeFlag>;

/// The flags as a command declares them, for all three modes.
std::vector<FlagSpec> specsOf(const AttributeFlags& flags);

/// Sets the attributes whose flags the call has; stops the script when one is refused.
void setAttributes(const CommandContext& context, const ParsedCommand& call, const AttributeFlags& flags,
                   engine::Node& node);

/// The attribute that the call asks for, in the current units; empty when it asks for none of these.
std::optional<Value> queriedAttribute(const CommandContext& context, const ParsedCommand& call,
                                      const AttributeFlags& flags, engine::Node& node);

/// A plug of a node; stops the script when there is none.
engine::Plug plugOf(const CommandContext& context, engine::Node& node, const char* attribute);

/// The node of a type that an item means: itself, or the shape below it. Null when there is none.
engine::Node* nodeOfType(const engine::SelectionItem& item, const char* type);

/// The one object that a call edits or asks about: the one that is named, or the selected one.
engine::SelectionItem onlyItem(const CommandContext& context, const ParsedCommand& call);

} // namespace tvxhost::mel
