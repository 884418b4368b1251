// Where nodes lie in memory.
#pragma once

#include <cstddef>

namespace tvxhost::engine {

/// Memory for one node, aligned to a line of the processor's cache. Nodes lie side by side, away from what
/// they hold, so that a walk through many of them stays on few pages. May be called on any thread.
/// @throw std::bad_alloc when there is none left.
void* takeNodeMemory(std::size_t size);
/// `size` as it was taken.
void giveBackNodeMemory(void* memory, std::size_t size) noexcept;

} // namespace tvxhost::engine
