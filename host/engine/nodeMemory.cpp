// Memory of nodes: see nodeMemory.h.
#include "nodeMemory.h"

#include <memory_resource>

namespace tvxhost::engine {

namespace {

constexpr std::size_t kCacheLine = 64;

std::pmr::memory_resource& nodeMemory()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    // A sanitizer is to see each node come and go.
    return *std::pmr::new_delete_resource();
#else
    constexpr std::size_t kNodesPerBlock = 4096;
    constexpr std::size_t kLargestNode = 1024;
    // Never destroyed: a handle may release the last node when everything else has ended.
    static auto* const pool =
        new std::pmr::synchronized_pool_resource(std::pmr::pool_options{kNodesPerBlock, kLargestNode});
    return *pool;
#endif
}

} // namespace

void* takeNodeMemory(std::size_t size)
{
    return nodeMemory().allocate(size, kCacheLine);
}

void giveBackNodeMemory(void* memory, std::size_t size) noexcept
{
    nodeMemory().deallocate(memory, size, kCacheLine);
}

} // namespace tvxhost::engine
