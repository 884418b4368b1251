// Defines Log::trace in the test program, which the loader prefers to the core library's for every library.
#include "CoreLogFault.h"

#include <tvxCore/Exception.h>
#include <tvxCore/Log.h>

#include <dlfcn.h>

namespace tarvox {

namespace {

int broken = 0;

} // namespace

void crowd::test::breakCoreLog(int count)
{
    broken = count;
}

namespace core {

void Log::trace(int severity, const char* file, int line, const char* function, const char* message)
{
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
