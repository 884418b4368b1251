// Other names for attributes that were added to nodes.
#pragma once

#include "attribute.h"
#include "outcome.h"

#include <string>

namespace tvxhost::engine {

class Node;

enum class AttributeName
{
    longName,
    shortName
};

/// Gives a dynamic attribute another long or short name. readOnly for an attribute of the node's type,
/// invalidName for what is no name, nameTaken when the node has an attribute or an alias of that name.
Outcome renameAttribute(Node& node, Attribute& attribute, const std::string& name,
                        AttributeName which = AttributeName::longName);

} // namespace tvxhost::engine
