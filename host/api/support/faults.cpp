// Faults: the armed failures and the recorded calls.
#include "faults.h"

#include <algorithm>
#include <mutex>
#include <unordered_map>

namespace tvxhost::api::faults {

namespace {

struct Fault
{
    std::size_t n = 0;
    MStatus status;
    std::size_t seen = 0;
};

struct State
{
    std::mutex mutex;
    std::unordered_map<std::string, std::vector<Fault>> faults;
    std::vector<std::string> calls;
    bool recording = false;

    void updateActive() { detail::active.store(recording || !faults.empty(), std::memory_order_relaxed); }
};

// Never destroyed: plug-ins may call the API from their own static destructors.
State& state()
{
    static State* const theState = new State;
    return *theState;
}

std::optional<MStatus> firstDue(std::vector<Fault>& faults)
{
    std::optional<MStatus> due;
    for (Fault& fault : faults) {
        ++fault.seen;
        if (!due && (fault.n == 0 || fault.n == fault.seen))
            due.emplace(fault.status);
    }
    return due;
}

} // namespace

namespace detail {

std::atomic<bool> active{false};

std::optional<MStatus> noteCall(const char* name)
{
    State& s = state();
    const std::lock_guard lock(s.mutex);
    if (s.recording)
        s.calls.emplace_back(name);
    const auto armed = s.faults.find(name);
    return armed == s.faults.end() ? std::nullopt : firstDue(armed->second);
}

} // namespace detail

void failCall(const std::string& name, std::size_t n, const MStatus& status)
{
    State& s = state();
    const std::lock_guard lock(s.mutex);
    s.faults[name].push_back(Fault{n, status, 0});
    s.updateActive();
}

void clear()
{
    State& s = state();
    const std::lock_guard lock(s.mutex);
    s.faults.clear();
    s.calls.clear();
    s.recording = false;
    s.updateActive();
}

void record(bool on)
{
    State& s = state();
    const std::lock_guard lock(s.mutex);
    if (on && !s.recording)
        s.calls.clear();
    s.recording = on;
    s.updateActive();
}

std::vector<std::string> calls()
{
    State& s = state();
    const std::lock_guard lock(s.mutex);
    return s.calls;
}

std::size_t countOf(const std::string& name)
{
    State& s = state();
    const std::lock_guard lock(s.mutex);
    return static_cast<std::size_t>(std::count(s.calls.begin(), s.calls.end(), name));
}

} // namespace tvxhost::api::faults
