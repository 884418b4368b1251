// Counts the allocations of the program it is linked into.
#pragma once

#include <cstddef>

namespace tarvox::crowd::test {

/// How often operator new was called since the program began.
std::size_t allocations();

} // namespace tarvox::crowd::test
