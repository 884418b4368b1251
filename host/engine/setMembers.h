// Members of sets: what is connected to a set's member attributes.
#pragma once

#include "scene.h"

#include <vector>

namespace tvxhost::engine {

/// An objectSet or something that stands on one (a shading group is one).
bool isSet(const Node& node);

/// The members of a set in the order of their elements.
std::vector<SelectionItem> setMembers(Node& set);
/// Adds a member; success when it was one already.
Outcome addSetMember(Node& set, const SelectionItem& member);
/// Takes a member out; notFound when it is none.
Outcome removeSetMember(Node& set, const SelectionItem& member);

} // namespace tvxhost::engine
