// What the built plug-in exports and needs, and whose malloc a program that loads it ends up with.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <dlfcn.h>
#include <set>
#include <sstream>
#include <string>

namespace {

using testing::ElementsAre;
using testing::IsSupersetOf;

std::string outputOf(const std::string& command)
{
    std::string output;
    std::FILE* pipe = popen(command.c_str(), "r");
    std::array<char, 4096> part;
    while (const std::size_t size = std::fread(part.data(), 1, part.size(), pipe))
        output.append(part.data(), size);
    EXPECT_EQ(pclose(pipe), 0) << command;
    return output;
}

// The last word of each line of a command's output that contains a text.
std::set<std::string> lastWords(const std::string& command, const std::string& containing)
{
    std::istringstream lines(outputOf(command));
    std::set<std::string> words;
    std::string line;
    while (std::getline(lines, line))
        if (line.find(containing) != std::string::npos)
            words.insert(line.substr(line.find_last_of(' ') + 1));
    return words;
}

TEST(PluginBinary, ExportsTheEntryPointsAndNothingElse)
{
    EXPECT_THAT(lastWords("nm -D --defined-only " TVX_PLUGIN_FILE, " "),
                ElementsAre("MApiVersion", "_Z16initializePlugin7MObject", "_Z18uninitializePlugin7MObject"));
}

TEST(PluginBinary, NeedsMayasLibrariesAndItsOwnAndNothingOfTheHost)
{
    EXPECT_EQ(lastWords("readelf -d " TVX_PLUGIN_FILE, "(NEEDED)").count("[libTvxHostEngine.so]"), 0u);
    EXPECT_THAT(lastWords("readelf -d " TVX_PLUGIN_FILE, "(NEEDED)"),
                IsSupersetOf({"[libFoundation.so]", "[libOpenMaya.so]", "[libOpenMayaUI.so]",
                              "[libOpenMayaFX.so]", "[libOpenMayaAnim.so]", "[libtvxCore.so.2]"}));
}

#ifdef TVX_HAS_MALLOC_PROXY

TEST(PluginBinary, NeedsTheAllocatorProxy)
{
    EXPECT_EQ(lastWords("readelf -d " TVX_PLUGIN_FILE, "(NEEDED)").count("[libtbbmalloc_proxy.so.2]"), 1u);
}

// The file name of the library whose malloc this program calls.
std::string libraryOfMalloc()
{
    Dl_info info{};
    EXPECT_NE(dladdr(reinterpret_cast<void*>(dlsym(RTLD_DEFAULT, "malloc")), &info), 0);
    const std::string path = info.dli_fname;
    return path.substr(path.find_last_of('/') + 1);
}

TEST(PluginBinary, LeavesMallocToTheCLibraryWhenTheProxyArrivesLate)
{
    EXPECT_EQ(libraryOfMalloc(), "libc.so.6");
    void* plugin = dlopen(TVX_PLUGIN_FILE, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(plugin, nullptr) << dlerror();
    EXPECT_EQ(libraryOfMalloc(), "libc.so.6");
    dlclose(plugin);
}

#endif

} // namespace
