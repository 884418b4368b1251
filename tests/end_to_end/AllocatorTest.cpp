// The allocator: the whole process allocates through TBB's proxy, because the program itself links it.
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost::test;

TEST(Allocator, MallocIsTheScalableOneInEveryLibrary)
{
    // The dynamic linker tells which library each symbol is bound to.
    const ProgramResult result = runHost({"--version"}, {{"LD_DEBUG", "bindings"}, {"LD_BIND_NOW", "1"}});
    ASSERT_EQ(result.exitCode, 0);
    const std::vector<std::string> bindings = linesWith(result.errors, "normal symbol `malloc'");
    ASSERT_FALSE(bindings.empty());
    for (const std::string& binding : bindings) {
        // The proxy itself looks for the malloc that it replaces.
        if (binding.find("binding file") != std::string::npos &&
            binding.find("libtbbmalloc_proxy") == binding.rfind("libtbbmalloc_proxy"))
            EXPECT_THAT(binding, testing::ContainsRegex(" to [^ ]*libtbbmalloc_proxy"));
    }
}

} // namespace
