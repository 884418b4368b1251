// Lists of members: what two have in common, what is left, runs of components joined.
#pragma once

#include "engine/components.h"
#include "engine/selection.h"

#include <cstddef>
#include <vector>

namespace tvxhost::mel {

class CommandContext;

using Members = std::vector<engine::SelectionItem>;

/// Each object once, its components of a kind together where the first of them is: one item per run.
Members merged(const Members& items);
/// What of the items is among others, component by component. An object has its components, not the other
/// way.
Members common(const Members& items, const Members& others);
Members without(const Members& items, const Members& others);

/// Components of one kind of one object.
struct ObjectComponents
{
    engine::SelectionItem item; ///< the first that named some of them
    engine::Components numbers;
};
/// All components that the items name, in the order of the first ones; whole objects are left out.
std::vector<ObjectComponents> componentsByObject(const Members& items);

/// One item per component.
/// Fails when there are too many of them.
Members flattened(const CommandContext& context, const Members& items);
/// How many items that would be.
std::size_t countFlattened(const Members& items);

} // namespace tvxhost::mel
