// What the loaded plug-in traces into its core log, on its way there.
#pragma once

#include <string>
#include <vector>

namespace tarvox::crowd::test {

/// One call of the log's trace().
struct Trace
{
    int severity;
    std::string file;
    int line;
    std::string function;
    std::string message;
};

/// The calls since the last one of this, those that the log's filter rejected included.
std::vector<Trace> takeTraces();

/// The next `count` traces that pass a log's filter throw core::Exception("the log is broken") instead of
/// reaching the listeners.
void breakCoreLog(int count);

} // namespace tarvox::crowd::test
