// Work for the moment when a library leaves the process.
#pragma once

#if defined(_WIN32)
#include <cstdlib>
#else
extern "C" int __cxa_atexit(void (*function)(void*), void* argument, void* library);
extern __attribute__((visibility("hidden"))) void* __dso_handle; // as the compiler declares it itself
#endif

namespace tarvox::core {

/// Has `function` called when the library that calls this is unloaded, or the program ends, in the reverse
/// order of registration. Inline, so that it is that library and no other.
/// @return whether it could be registered
inline bool callAtUnload(void (*function)())
{
#if defined(_WIN32)
    return std::atexit(function) == 0;
#else
    // What std::atexit comes to, spelt out: the thread sanitizer's std::atexit forgets which library it was.
    const auto call = [](void* registered) { reinterpret_cast<void (*)()>(registered)(); };
    return __cxa_atexit(call, reinterpret_cast<void*>(function), &__dso_handle) == 0;
#endif
}

} // namespace tarvox::core
