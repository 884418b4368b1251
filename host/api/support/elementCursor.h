// Walking over the elements of an array plug one by one, without listing them all.
#pragma once

#include "engine/plug.h"

#include <cstddef>
#include <optional>

namespace tvxhost::api {

/// The first existing element past an index (-1: the first of all). Logarithmic in the number of elements.
std::optional<int> elementAfter(const engine::Plug& array, int index);

bool hasElement(const engine::Plug& array, int index);

std::size_t elementCount(const engine::Plug& array);

} // namespace tvxhost::api
