// Replaces the global operators new and delete. Apart from their callers, or the compiler takes them for a
// mismatch of operator new and free.
#include "AllocationCounter.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> count{0};

void* countedAllocation(std::size_t size)
{
    ++count;
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

} // namespace

std::size_t tarvox::crowd::test::allocations()
{
    return count;
}

void* operator new(std::size_t size)
{
    return countedAllocation(size);
}
void* operator new[](std::size_t size)
{
    return countedAllocation(size);
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}
