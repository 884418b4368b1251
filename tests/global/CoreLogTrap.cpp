// Defines Log::trace in the test program, which the loader prefers to the core library's for every library.
#include "CoreLogTrap.h"

#include <tvxCore/Exception.h>
#include <tvxCore/Log.h>

#include <dlfcn.h>
#include <utility>

namespace tarvox {

namespace {

int broken = 0;
std::vector<crowd::test::Trace> traces;

} // namespace

std::vector<crowd::test::Trace> crowd::test::takeTraces()
{
    return std::exchange(traces, {});
}

void crowd::test::breakCoreLog(int count)
{
    broken = count;
}

namespace core {

void Log::trace(int severity, const char* file, int line, const char* function, const char* message)
{
    traces.push_back({severity, file, line, function, message});
    if (severity <= getSeverityFilter() && broken > 0) {
        --broken;
        throw Exception("the log is broken");
    }
    using Trace = void (*)(Log*, int, const char*, int, const char*, const char*);
    static const auto real =
        reinterpret_cast<Trace>(dlsym(RTLD_NEXT, "_ZN6tarvox4core3Log5traceEiPKciS3_S3_"));
    real(this, severity, file, line, function, message);
}

} // namespace core
} // namespace tarvox
