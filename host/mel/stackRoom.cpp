// The stack of the current thread.
#include "stackRoom.h"

#include <cstddef>
#include <cstdint>
#ifdef __linux__
#include <pthread.h>
#endif

namespace tvxhost::mel {

namespace {

/// The lowest address that a call may still begin at; 0 when it is not known.
std::uintptr_t lowestAddress()
{
    std::uintptr_t lowest = 0;
#ifdef __linux__
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) == 0) {
        void* start = nullptr;
        std::size_t size = 0;
        if (pthread_attr_getstack(&attributes, &start, &size) == 0) {
            lowest = reinterpret_cast<std::uintptr_t>(start) + size / 4;
        }
        pthread_attr_destroy(&attributes);
    }
#endif
    return lowest;
}

} // namespace

bool stackHasRoom()
{
    thread_local const std::uintptr_t lowest = lowestAddress();
    return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)) > lowest;
}

} // namespace tvxhost::mel
