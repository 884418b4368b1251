// Members of sets: what is connected to a set's member attributes.
#pragma once

#include "engine/scene.h"

#include <vector>

namespace tvxhost::mel {

/// The members of an objectSet (a shading group is one) in the order of their elements.
std::vector<engine::SelectionItem> setMembers(engine::Node& set);
/// Adds a member; success when it was one already.
engine::Outcome addSetMember(engine::Node& set, const engine::SelectionItem& member);
/// Takes a member out; notFound when it is none.
engine::Outcome removeSetMember(engine::Node& set, const engine::SelectionItem& member);

} // namespace tvxhost::mel
