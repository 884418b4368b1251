// Replaces the global operators new and delete. Apart from their callers, or the compiler takes them for a
// mismatch of operator new and free.
#include "FailingAllocation.h"

#include <cstdlib>
#include <new>

namespace {

bool isFailing = false;

void* allocation(std::size_t size)
{
    return isFailing ? nullptr : std::malloc(size);
}

} // namespace

tarvox::crowd::test::FailingAllocation::FailingAllocation()
{
    isFailing = true;
}

tarvox::crowd::test::FailingAllocation::~FailingAllocation()
{
    isFailing = false;
}

void* operator new(std::size_t size)
{
    if (void* memory = allocation(size))
        return memory;
    throw std::bad_alloc();
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return allocation(size);
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}
