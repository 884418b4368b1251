// Attributes that have values in common.
#pragma once

#include "attribute.h"

namespace tvxhost::engine {

/// Whether one is the other or is below it.
inline bool areRelated(const Attribute& a, const Attribute& b)
{
    return a.isAtOrBelow(b) || b.isAtOrBelow(a);
}

} // namespace tvxhost::engine
