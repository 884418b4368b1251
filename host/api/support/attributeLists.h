// Attributes in a row, those inside compounds included.
#pragma once

#include "engine/attribute.h"

#include <vector>

namespace tvxhost::api {

/// Adds an attribute and all that are below it.
inline void appendWithChildren(engine::Attribute* attribute, std::vector<engine::Attribute*>& all)
{
    all.push_back(attribute);
    for (const auto& child : attribute->children)
        appendWithChildren(child.get(), all);
}

/// Every attribute of a node or of a type, each followed by its children.
template <class HasAttributes>
std::vector<engine::Attribute*> allAttributes(const HasAttributes& owner)
{
    std::vector<engine::Attribute*> all;
    for (const auto& attribute : owner.attributes())
        appendWithChildren(&*attribute, all);
    return all;
}

} // namespace tvxhost::api
