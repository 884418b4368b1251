// Members of sets: what is connected to a set's member attributes.
#pragma once

#include "scene.h"

#include <vector>

namespace tvxhost::engine {

/// An objectSet or something that stands on one (a shading group is one).
bool isSet(const Node& node);

using Members = std::vector<SelectionItem>;

/// The members of a set in the order of their elements; components as one item per run of them.
Members setMembers(Node& set);

/// How much of an object, or of its components, is in a set.
enum class Membership
{
    none,
    partly, ///< some components of it
    wholly
};
Membership membershipOf(Node& set, const SelectionItem& item);

/// Adds a member; success when it was one already. A whole object takes the place of its components.
/// wrongKind for what no set can have, and for components that the shape does not have.
Outcome addSetMember(Node& set, const SelectionItem& member);
/// Takes a member out; notFound when it is none. With a whole object its components go; of a whole member the
/// other components stay.
Outcome removeSetMember(Node& set, const SelectionItem& member);

} // namespace tvxhost::engine
