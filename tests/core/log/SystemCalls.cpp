// The wrapped system calls.
#include "SystemCalls.h"

#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <optional>
#include <unistd.h>

namespace tarvox::crowd::test {

namespace {

SystemCalls* current = nullptr;

std::optional<Outcome> take(std::deque<Outcome>& outcomes)
{
    if (outcomes.empty())
        return std::nullopt;
    const Outcome outcome = outcomes.front();
    outcomes.pop_front();
    return outcome;
}

} // namespace

SystemCalls::SystemCalls()
{
    current = this;
}

SystemCalls::~SystemCalls()
{
    current = nullptr;
}

extern "C" {

ssize_t __real_write(int file, const void* data, size_t size);
ssize_t __wrap_write(int file, const void* data, size_t size);
int __real_open(const char* path, int flags, ...);
int __wrap_open(const char* path, int flags, mode_t mode);
int __real_close(int file);
int __wrap_close(int file);
std::time_t __real_time(std::time_t* result);
std::time_t __wrap_time(std::time_t* result);

ssize_t __wrap_write(int file, const void* data, size_t size)
{
    if (!current)
        return __real_write(file, data, size);
    ++current->writeCount;
    const std::optional<Outcome> outcome = take(current->writes);
    if (outcome && outcome->error != 0) {
        errno = outcome->error;
        return -1;
    }
    const size_t taken = outcome ? outcome->taken : size;
    current->written.emplace_back(static_cast<const char*>(data), taken);
    return taken == 0 ? 0 : __real_write(file, data, taken);
}

int __wrap_open(const char* path, int flags, mode_t mode)
{
    if (current)
        current->opened.emplace_back(path);
    const std::optional<Outcome> outcome = current ? take(current->opens) : std::nullopt;
    if (!outcome || outcome->error == 0)
        return __real_open(path, flags, mode);
    errno = outcome->error;
    return -1;
}

int __wrap_close(int file)
{
    const int result = __real_close(file);
    const std::optional<Outcome> outcome = current ? take(current->closes) : std::nullopt;
    if (!outcome || outcome->error == 0)
        return result;
    errno = outcome->error;
    return -1;
}

std::time_t __wrap_time(std::time_t* result)
{
    return current && current->clock != 0 ? current->clock : __real_time(result);
}

} // extern "C"

} // namespace tarvox::crowd::test
