// Units between what the user types and what attributes store.
#pragma once

#include "engine/attribute.h"
#include "engine/units.h"

namespace tvxhost::scene {

/// How many internal units (centimetres, radians, seconds) one UI unit of the attribute is; 1 for plain
/// numbers.
double internalPerUi(const engine::Attribute& leaf, const engine::Units& units);

/// The attributes of all leaf numbers below (or at) an attribute, depth first; those of a matrix are no
/// leaves. Empty when something else than numbers is below it.
std::vector<engine::Attribute*> numberLeaves(engine::Attribute& attribute);

} // namespace tvxhost::scene
