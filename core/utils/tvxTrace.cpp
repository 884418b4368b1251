// Texts traced as they stand.
#include "core/utils/tvxTrace.h"

#include <tvxCore/Exception.h>

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

} // namespace tarvox::crowd
