// Loading the plug-in's library into a process that has what Maya has loaded long before: Qt, GL, the Maya
// libraries.
#include "rows.h"

#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include <stdexcept>

namespace tvxbench {
namespace {

void loadOnce(const char* path)
{
    void* library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (!library)
        throw std::runtime_error(std::string("cannot load ") + dlerror());
    dlclose(library);
}

void load(benchmark::State& state, const char* path)
{
    for (auto _ : state)
        loadOnce(path);
}

void bringIn(const char* library)
{
    if (!dlopen(library, RTLD_NOW | RTLD_GLOBAL))
        throw std::runtime_error(std::string("the loading row needs ") + library + ": " + dlerror());
}

} // namespace

std::vector<Row> loadRows()
{
    for (const char* library : {"libQt5Widgets.so.5", "libGL.so.1", "libEGL.so.1"})
        bringIn(library);
    benchmark::RegisterBenchmark("load_plugin", load, BENCH_PLUGIN)->MinTime(0.05)->UseRealTime();
    benchmark::RegisterBenchmark("load_empty", load, BENCH_EMPTY_LIBRARY)->MinTime(0.05)->UseRealTime();
    return {{"loading the plug-in, Qt and GL there", "an empty library of its size and needs", "load_plugin",
             "load_empty", 2.0}};
}

} // namespace tvxbench
