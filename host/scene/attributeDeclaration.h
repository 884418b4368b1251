// Attribute declarations: `addAttr` flags to an attribute, and an attribute back to its `addAttr` line.
#pragma once

#include "mel/commandTable.h"

#include "engine/attribute.h"
#include "engine/outcome.h"
#include "engine/units.h"

#include <string>
#include <vector>

namespace tvxhost::scene {

/// The flags of `addAttr`, with their help.
std::vector<mel::FlagSpec> addAttrFlags();
/// The whole command without handler: name, summary, flags, rule for its arguments.
mel::CommandSpec addAttrSpec();

/// A new attribute and its place in a compound that is declared piece by piece.
struct AttributeDeclaration
{
    engine::Ref<engine::Attribute> attribute;
    std::string parent; ///< long or short name of the compound; empty at the top
    int childCount = 0; ///< children that are to follow
};

/// The attribute that the flags describe; defaults and limits are in UI units. The outcome's text is the
/// message for the user.
engine::Expected<AttributeDeclaration> declarationFrom(const mel::ParsedCommand& flags,
                                                       const engine::Units& units);

/// What `addAttr -edit` changes of an attribute that was added to a node: fields, default, limits, nice name.
/// readOnly for an attribute of the node's type.
engine::Outcome editDeclaration(const mel::ParsedCommand& flags, const engine::Units& units,
                                engine::Attribute& attribute);

/// The fields of an enum as `-enumName` takes them: "red:green=5:blue".
std::string fieldsText(const std::vector<engine::EnumField>& fields);

/// The `addAttr …;` line of one attribute (its children have lines of their own), without leading tab.
std::string addAttrLine(const engine::Attribute& attribute, const engine::Units& units);

} // namespace tvxhost::scene
