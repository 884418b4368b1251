// What stands behind a MArrayDataBuilder: elements are made in the array at once, those that no builder names
// go when it is set.
#pragma once

#include "arrayHandleState.h"

#include <maya/MArrayDataBuilder.h>

namespace tvxhost::api {

/// The state of a builder; null for one that builds nothing.
ArrayBuilding* buildingOf(const MArrayDataBuilder& builder);
/// A builder with a copy of the state.
MArrayDataBuilder makeBuilder(const ArrayBuilding& building);

} // namespace tvxhost::api
