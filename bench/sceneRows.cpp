// Scene files: a scene of 100,000 nodes is opened, evaluated and saved; beside what anybody pays who reads
// the bytes and tells the words apart, and beside scenes of a tenth of its size.
#include "rows.h"

#include "scratch.h"

#include "engine/scene.h"
#include "scene/reader.h"
#include "scene/sceneText.h"
#include "scene/writer.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tvxbench {
namespace {

namespace engine = tvxhost::engine;
namespace scene = tvxhost::scene;

constexpr int kNodes = 100'000;
constexpr int kTenth = kNodes / 10;
constexpr int kNodesPerGroup = 50;

/// Groups of transforms, some of which are driven by another through a node that scales its value; in the
/// lines that Maya writes.
std::string sceneOf(int nodes)
{
    std::string text = "//Maya ASCII 2016 scene\nrequires maya \"2016\";\n"
                       "currentUnit -l centimeter -a degree -t film;\n";
    std::string connections;
    std::string group;
    char uuid[40];
    for (int i = 0; i < nodes; ++i) {
        const std::string number = std::to_string(i);
        std::snprintf(uuid, sizeof uuid, "%08X-0000-4000-8000-%012X", static_cast<unsigned>(i),
                      static_cast<unsigned>(i));
        const bool isDriver = i % 4 == 3;
        const bool isGroup = i % kNodesPerGroup == 0;
        if (isGroup)
            group = "node" + number;
        text += std::string("createNode ") + (isDriver ? "unitConversion" : "transform") + " -n \"node" +
                number + "\"";
        text += isGroup || isDriver ? std::string() : " -p \"" + group + "\"";
        text += std::string(";\n\trename -uid \"") + uuid + "\";\n";
        if (isDriver) {
            text += "\tsetAttr \".cf\" 0.5;\n";
            connections += "connectAttr \"node" + std::to_string(i - 2) + ".tx\" \"node" + number + ".i\";\n";
            connections += "connectAttr \"node" + number + ".o\" \"node" + std::to_string(i - 1) + ".ty\";\n";
            continue;
        }
        text += "\tsetAttr -k off \".v\";\n\tsetAttr \".t\" -type \"double3\" " + number +
                ".125 2.0625000000000004 -3 ;\n\tsetAttr \".r\" -type \"double3\" 0 45.000000000000007 0 ;\n";
    }
    return text + connections + "// End of scene.ma\n";
}

/// A file of that scene, written when it is first asked for.
template <int kCount>
const std::string& fileOf()
{
    static const std::string file = [] {
        std::string path = scratchFile("scene" + std::to_string(kCount) + ".ma");
        std::ofstream(path) << sceneOf(kCount);
        return path;
    }();
    return file;
}

/// Scenes of that file, so many that all sizes together take as much memory.
template <int kCount>
const std::vector<std::unique_ptr<engine::Scene>>& openedScenes()
{
    static const auto* const opened = [] {
        auto* const all = new std::vector<std::unique_ptr<engine::Scene>>;
        for (int i = 0; i < kNodes / kCount; ++i) {
            all->push_back(std::make_unique<engine::Scene>());
            if (!scene::openScene(*all->back(), fileOf<kCount>()).isClean())
                throw std::runtime_error("a scene of the rows of scene files cannot be read");
        }
        return all;
    }();
    return *opened;
}

template <int kCount, int kTimes>
void open(benchmark::State& state)
{
    engine::Scene opened;
    for (auto _ : state)
        for (int i = 0; i < kTimes; ++i)
            if (!scene::openScene(opened, fileOf<kCount>()).isClean())
                state.SkipWithError("the scene cannot be read");
}

/// The bytes of the same file, split at blanks and line ends.
void splitIntoWords(benchmark::State& state)
{
    for (auto _ : state) {
        const auto text = scene::readFile(fileOf<kNodes>());
        const std::string_view all = text.value;
        std::size_t words = 0;
        for (std::size_t begin = all.find_first_not_of(" \t\n"); begin != std::string_view::npos; ++words)
            begin = all.find_first_not_of(" \t\n", all.find_first_of(" \t\n", begin));
        benchmark::DoNotOptimize(words);
    }
}

template <int kCount>
void save(benchmark::State& state)
{
    for (auto _ : state)
        for (const auto& opened : openedScenes<kCount>())
            benchmark::DoNotOptimize(scene::sceneText(*opened, "scene.ma"));
}

/// Every driven value, each time with another value to be driven by.
template <int kCount>
void evaluate(benchmark::State& state)
{
    double value = 0.0;
    for (auto _ : state) {
        value += 1.0;
        for (const auto& opened : openedScenes<kCount>())
            for (int driver = 3; driver < kCount; driver += 4) {
                (void)engine::writeNumber(opened->findPlug("node" + std::to_string(driver - 2) + ".tx").value,
                                          value);
                benchmark::DoNotOptimize(
                    engine::readNumber(opened->findPlug("node" + std::to_string(driver - 1) + ".ty").value));
            }
    }
}

void add(const char* name, void (*function)(benchmark::State&))
{
    benchmark::RegisterBenchmark(name, function)->MinTime(0.05)->UseRealTime();
}

} // namespace

std::vector<Row> sceneRows()
{
    add("scene_open", open<kNodes, 1>);
    add("scene_words", splitIntoWords);
    add("scene_open_tenths", open<kTenth, 10>);
    add("scene_save", save<kNodes>);
    add("scene_save_tenths", save<kTenth>);
    add("scene_evaluate", evaluate<kNodes>);
    add("scene_evaluate_tenths", evaluate<kTenth>);
    // 20 MB a second beside the 300 MB or so a second that splitting takes.
    return {
        {"opening a scene of 100,000 nodes", "reading its bytes and splitting them into words", "scene_open",
         "scene_words", 15.0},
        {"opening a scene of 100,000 nodes", "ten times one of 10,000", "scene_open", "scene_open_tenths",
         1.5},
        {"saving a scene of 100,000 nodes", "ten scenes of 10,000", "scene_save", "scene_save_tenths", 1.5},
        {"evaluating a scene of 100,000 nodes", "ten scenes of 10,000", "scene_evaluate",
         "scene_evaluate_tenths", 1.5}};
}

} // namespace tvxbench
