// The shader switch's compute, beside the copying of three floats that it is for.
#include "rows.h"

#include "api/plugins/pluginLoader.h"
#include "engine/scene.h"
#include "scratch.h"

#include <maya/MDataBlock.h>
#include <maya/MDataHandle.h>
#include <maya/MFloatVector.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MPlug.h>
#include <maya/MPxNode.h>

#include <benchmark/benchmark.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace tvxbench {
namespace {

/// A scene with one switch in it.
class SwitchScene
{
public:
    SwitchScene() : m_loader(m_scene)
    {
        tvxhost::engine::Scene::makeCurrent(&m_scene);
        tvxhost::api::PluginLoader::makeCurrent(&m_loader);
        // A copy: the plug-in's own library stays out of the process, for those who measure its loading.
        const std::string copy = scratchFile("tvxCrowdRender.so");
        std::filesystem::copy_file(BENCH_PLUGIN, copy);
        if (!m_loader.load(copy).outcome)
            throw std::runtime_error("the switch's row cannot load the plug-in");
        const MObject made = m_node.create("CrowdSwitchShaderVRay");
        if (made.isNull())
            throw std::runtime_error("the switch's row cannot create the switch");
    }

    MPxNode& code() const { return *m_node.userNode(); }
    MDataBlock block() const { return code()._forceCache(); }
    MPlug plug(const char* name) const { return m_node.findPlug(name, true); }

    static const SwitchScene& only()
    {
        // Lives as long as the process: what the plug-in leaves behind is not measured.
        static const SwitchScene* const scene = new SwitchScene;
        return *scene;
    }

private:
    tvxhost::engine::Scene m_scene;
    tvxhost::api::PluginLoader m_loader;
    MFnDependencyNode m_node;
};

void computeSwitch(benchmark::State& state)
{
    const SwitchScene& scene = SwitchScene::only();
    MPxNode& code = scene.code();
    MDataBlock block = scene.block();
    const MPlug output = scene.plug("output");
    for (auto _ : state)
        benchmark::DoNotOptimize(code.compute(output, block));
}

void copyByHand(benchmark::State& state)
{
    const SwitchScene& scene = SwitchScene::only();
    MDataBlock block = scene.block();
    const MObject output = scene.plug("output").attribute();
    const MObject shader = scene.plug("shader0").attribute();
    for (auto _ : state) {
        MDataHandle outputHandle = block.outputValue(output);
        MDataHandle shaderHandle = block.inputValue(shader);
        MFloatVector& result = outputHandle.asFloatVector();
        const MFloatVector& color = shaderHandle.asFloatVector();
        result.x = color.x;
        result.y = color.y;
        result.z = color.z;
        outputHandle.setClean();
        benchmark::ClobberMemory();
    }
}

} // namespace

std::vector<Row> switchRows()
{
    benchmark::RegisterBenchmark("switch_compute", computeSwitch)->MinTime(0.05);
    benchmark::RegisterBenchmark("handles_copy", copyByHand)->MinTime(0.05);
    return {{"the shader switch's compute", "three floats copied through the handles by hand",
             "switch_compute", "handles_copy", 1.05}};
}

} // namespace tvxbench
