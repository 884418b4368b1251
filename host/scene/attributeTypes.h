// The names that `addAttr -attributeType` knows, and what each stands for.
#pragma once

#include "engine/attribute.h"

#include <string>
#include <string_view>

namespace tvxhost::scene {

struct AttributeTypeRow
{
    std::string_view name;
    engine::AttributeKind kind;
    engine::NumberKind number = engine::NumberKind::none;
    engine::UnitKind unit = engine::UnitKind::none;
    int children = 0; ///< of a group of numbers
    bool singleMatrix = false;
};

/// Null for a name that addAttr does not know.
const AttributeTypeRow* attributeTypeNamed(std::string_view name);
/// The `-attributeType` name of an attribute; empty for a typed one, which has a data type.
std::string attributeTypeName(const engine::Attribute& attribute);

} // namespace tvxhost::scene
