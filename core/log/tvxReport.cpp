// The report convention.
#include "core/log/tvxReport.h"

#include <tvxCore/Exception.h>

#include <iostream>
#include <sstream>

namespace tarvox::crowd {

void trace(int severity, const char* file, int line, const char* function,
           const std::function<void(std::ostream&)>& buildText)
{
    try {
        std::ostringstream text;
        buildText(text);
        coreLog().trace(severity, file, line, function, text.str().c_str());
    } catch (core::Exception& exception) {
        reportException(severity, file, line, function, exception.what());
    }
}

void report(int severity, const char* file, int line, const char* function,
            const std::function<void(std::ostream&)>& buildText)
{
    trace(severity, file, line, function, [&](std::ostream& text) {
        text << "At line " << line << " in file " << file << ": ";
        buildText(text);
    });
}

void reportException(int severity, const char* file, int line, const char* function, const char* text)
{
    try {
        coreLog().trace(severity, file, line, function, text);
    } catch (core::Exception&) {
        // The log itself is broken: there is nowhere left to tell it, and a report never throws.
    }
}

void checkStatus(const MStatus& status, const char* file, int line)
{
    if (status == MStatus::kSuccess)
        return;
    std::cerr << "\nAPI error detected in " << file << " at line " << line << std::endl;
    status.perror("");
}

} // namespace tarvox::crowd
