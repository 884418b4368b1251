// What may be listed one by one.
#pragma once

#include "mel/commandTable.h"

#include <cstddef>
#include <string>

namespace tvxhost::mel {

/// Beyond this nobody means each one: a run such as [0:999999999] was written for "all of them".
inline constexpr std::size_t kMostListed = 10'000'000;

/// Fails when things named so are too many to be listed one by one.
inline void requireListable(const CommandContext& context, std::size_t count, const std::string& name)
{
    if (count > kMostListed)
        context.fail("'" + name + "' is " + std::to_string(count) + " elements: at most " +
                     std::to_string(kMostListed) + " can be listed one by one");
}

} // namespace tvxhost::mel
