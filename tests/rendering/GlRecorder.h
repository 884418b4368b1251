// Stands in for OpenGL and writes down what is called.
#pragma once

#include <string>
#include <vector>

namespace tarvox::crowd::test {

/// While one lives, the GL functions that the plug-in draws with only write themselves down, as they would be
/// written in C. Calls of the host's API that were recorded meanwhile stand between them.
class GlRecorder
{
public:
    GlRecorder();
    ~GlRecorder();
    GlRecorder(const GlRecorder&) = delete;
    GlRecorder& operator=(const GlRecorder&) = delete;

    /// All calls so far, in order.
    const std::vector<std::string>& calls();

    void add(const std::string& call);

private:
    void addApiCalls();

    std::vector<std::string> m_calls;
    std::size_t m_apiCalls = 0;
};

} // namespace tarvox::crowd::test
