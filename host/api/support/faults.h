// Faults: makes chosen calls of the API fail, and lists the calls that were made.
#pragma once

#include <maya/MStatus.h>

#include <atomic>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// Control of what API functions are told to do. A function is named "Class::function"; all its overloads
/// share that name. Usable from any thread.
namespace tvxhost::api::faults {

/// Makes the n-th call of a function from now on fail with `status`; n from 1, 0 means every call. Several
/// failures may be armed for one function.
FND_EXPORT void failCall(const std::string& name, std::size_t n, const MStatus& status);

/// Disarms all failures, stops recording and forgets the calls.
FND_EXPORT void clear();

/// Starts a new list of calls, or stops adding to the present one.
FND_EXPORT void record(bool on);

/// The recorded calls in order, those that were told to fail included.
FND_EXPORT std::vector<std::string> calls();

/// How often a function is among the recorded calls.
FND_EXPORT std::size_t countOf(const std::string& name);

namespace detail {
FND_EXPORT extern std::atomic<bool> active;
FND_EXPORT std::optional<MStatus> noteCall(const char* name);
} // namespace detail

/// To be asked at the top of an API function: the status it was told to fail with, if any.
inline std::optional<MStatus> onCall(const char* name)
{
    if (!detail::active.load(std::memory_order_relaxed))
        return std::nullopt;
    return detail::noteCall(name);
}

} // namespace tvxhost::api::faults
