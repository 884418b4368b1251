// Stands in for OpenGL and writes down what is called.
#pragma once

#include <cmath>
#include <limits>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

namespace tarvox::crowd::test {

/// An argument as a recorder writes it: numbers with all the digits that tell them apart, every NaN as "nan".
template <class Argument>
std::string glArgument(const Argument& argument)
{
    std::ostringstream text;
    if constexpr (std::is_floating_point_v<Argument>) {
        if (std::isnan(argument))
            return "nan";
        text.precision(std::numeric_limits<Argument>::max_digits10);
    }
    text << argument;
    return text.str();
}

/// A call as a recorder writes it, for example "glVertex3f(1, 0.5, 0)".
template <class... Arguments>
std::string glCall(const std::string& function, const Arguments&... arguments)
{
    std::string list;
    ((list += (list.empty() ? "" : ", ") + glArgument(arguments)), ...);
    return function + "(" + list + ")";
}

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
