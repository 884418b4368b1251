// The allocator: the whole process allocates through TBB's proxy, because the program itself links it.
#include "program.h"

#include <gtest/gtest.h>

#include <regex>

namespace {

using namespace tvxhost::test;

TEST(Allocator, MallocIsTheScalableOneInEveryLibrary)
{
    // The dynamic linker tells which library each symbol is bound to; the proxy itself looks for the malloc
    // that it replaces.
    const ProgramResult result = runHost({"--version"}, {{"LD_DEBUG", "bindings"}, {"LD_BIND_NOW", "1"}});
    ASSERT_EQ(result.exitCode, 0);
    std::vector<std::string> bindings = linesWith(result.errors, "normal symbol `malloc'");
    EXPECT_FALSE(bindings.empty());
    for (const std::string& binding : bindings) {
        const bool isOfTheProxy = std::regex_search(binding, std::regex("binding file [^ ]*libtbbmalloc"));
        EXPECT_TRUE(isOfTheProxy || std::regex_search(binding, std::regex(" to [^ ]*libtbbmalloc_proxy")))
            << binding;
    }
}

} // namespace
