// The utility class: an accessor, the border walk, the meshes below a path, and costs that do not grow with
// the scene.
#include "rows.h"

#include "api/support/access.h"
#include "core/utils/tvxMayaUtils.h"
#include "engine/geometry/meshBuilder.h"
#include "engine/mesh.h"
#include "engine/scene.h"
#include "tests/core/utils/MeshPathRule.h"

#include <maya/MDGModifier.h>
#include <maya/MItMeshEdge.h>
#include <maya/MPlug.h>
#include <maya/MTypeId.h>

#include <benchmark/benchmark.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace tvxbench {
namespace {

namespace engine = tvxhost::engine;

using tarvox::crowd::MayaUtils;
using Outline = std::vector<tarvox::core::Vector2<float>>;

/// A scene of a row, which is the current one while it is used.
class BenchScene
{
public:
    engine::Node& make(const std::string& type, const std::string& name, engine::Node* parent = nullptr)
    {
        const auto made = m_scene.createNode(type, name, parent ? parent->asDag() : nullptr);
        if (!made)
            throw std::runtime_error("a scene of the utilities' rows: " + made.outcome.text);
        return *made.value;
    }
    void require(const engine::Outcome& outcome)
    {
        if (!outcome)
            throw std::runtime_error("a scene of the utilities' rows: " + outcome.text);
    }
    engine::Scene& use()
    {
        engine::Scene::makeCurrent(&m_scene);
        return m_scene;
    }
    MDagPath path(const std::string& name) { return tvxAccess::dagPath(m_scene.findItem(name).value.path); }
    MObject object(const std::string& name) { return tvxAccess::handle(m_scene.findNode(name).value); }

private:
    engine::Scene m_scene;
};

/// The scene that a function fills, made when it is first asked for; lives as long as the process.
template <void (*fill)(BenchScene&)>
BenchScene& sceneOf()
{
    static BenchScene* const scene = [] {
        auto made = std::make_unique<BenchScene>();
        made->use();
        fill(*made);
        return made.release();
    }();
    scene->use();
    return *scene;
}

constexpr int kManyTimes = 64; // so that the loop's own cost does not stand in for what is measured

void fillOneTransform(BenchScene& scene)
{
    scene.make("transform", "one");
}

void accessor(benchmark::State& state)
{
    const MObject node = sceneOf<fillOneTransform>().object("one");
    const MObject attribute = MFnDependencyNode(node, nullptr).attribute("translateX");
    for (auto _ : state)
        for (int i = 0; i < kManyTimes; ++i)
            benchmark::DoNotOptimize(MayaUtils::getDoubleAttribute(node, attribute, false));
}

void barePlug(benchmark::State& state)
{
    const MObject node = sceneOf<fillOneTransform>().object("one");
    const MObject attribute = MFnDependencyNode(node, nullptr).attribute("translateX");
    for (auto _ : state)
        for (int i = 0; i < kManyTimes; ++i)
            benchmark::DoNotOptimize(MPlug(node, attribute).asDouble());
}

constexpr int kBorderEdges = 1'000'000;

/// One polygon, each of whose edges is on the border.
void fillPolygon(BenchScene& scene)
{
    std::vector<engine::Vec3f> points;
    std::vector<int> vertices;
    for (int i = 0; i < kBorderEdges; ++i) {
        points.push_back({static_cast<float>(i % 4096), 0, static_cast<float>(i / 4096)});
        vertices.push_back(i);
    }
    auto built = engine::buildMesh(std::move(points), {kBorderEdges}, vertices, false);
    if (!built)
        throw std::runtime_error("the border's polygon: " + built.outcome.text);
    engine::storeMesh(*scene.make("mesh", "polygonShape", &scene.make("transform", "polygon")).asDag(),
                      built.value);
}

void borderWalk(benchmark::State& state)
{
    const MDagPath mesh = sceneOf<fillPolygon>().path("polygonShape");
    for (auto _ : state) {
        Outline outline;
        MayaUtils::getMeshBoundary(mesh, outline);
        if (outline.size() != kBorderEdges)
            state.SkipWithError("the walk did not go around");
    }
}

/// The calls and appends that a walk around this polygon needs, by one who knows the way.
void borderCalls(benchmark::State& state)
{
    const MDagPath mesh = sceneOf<fillPolygon>().path("polygonShape");
    for (auto _ : state) {
        Outline outline;
        MItMeshEdge edge(mesh);
        MIntArray connected;
        for (int i = 0; i < kBorderEdges; ++i) {
            const MPoint point = edge.point(0, MSpace::kTransform);
            outline.push_back({static_cast<float>(-point.x), static_cast<float>(point.z)});
            benchmark::DoNotOptimize(edge.index());
            edge.getConnectedEdges(connected);
            int previous = 0;
            edge.setIndex(kBorderEdges - 1 - i, previous);
            benchmark::DoNotOptimize(edge.onBoundary());
        }
        benchmark::DoNotOptimize(outline.data());
    }
}

template <int count>
void fillWide(BenchScene& scene)
{
    engine::Node& group = scene.make("transform", "group");
    for (int i = 0; i < count; ++i) {
        const std::string name = "m" + std::to_string(i);
        scene.make("mesh", name + "Shape", &scene.make("transform", name, &group));
    }
}

void fillChain(BenchScene& scene)
{
    engine::Node* above = &scene.make("transform", "group");
    for (int i = 0; i < 100; ++i)
        above = &scene.make("transform", "level" + std::to_string(i), above);
    scene.make("mesh", "endShape", above);
}

void fillInstances(BenchScene& scene)
{
    engine::Node& group = scene.make("transform", "group");
    engine::Node& first = scene.make("transform", "t0", &group);
    engine::Node& shared = scene.make("transform", "shared", &first);
    scene.make("mesh", "mShape", &scene.make("transform", "m", &shared));
    for (int i = 1; i < 1000; ++i) {
        engine::Node& another = scene.make("transform", "t" + std::to_string(i), &group);
        scene.require(scene.use().addParent(*shared.asDag(), *another.asDag()));
    }
}

/// Gathers the meshes below the group again and again; to forget them is not measured.
template <void (*fill)(BenchScene&), void (*collect)(const MDagPath&, std::list<MDagPath>&)>
void meshPathsBy(benchmark::State& state)
{
    const MDagPath group = sceneOf<fill>().path("group");
    for (auto _ : state) {
        std::list<MDagPath> meshes;
        collect(group, meshes);
        benchmark::DoNotOptimize(meshes.size());
        state.PauseTiming();
        meshes.clear();
        state.ResumeTiming();
    }
}

template <void (*fill)(BenchScene&)>
void meshPaths(benchmark::State& state)
{
    meshPathsBy<fill, MayaUtils::collectMeshPaths>(state);
}

template <void (*fill)(BenchScene&)>
void meshPathsByTheRule(benchmark::State& state)
{
    meshPathsBy<fill, tarvox::crowd::test::collectLiterally>(state);
}

// One large scene, and as many small ones as together hold as much: what differs is the size of a scene, and
// not how much of it is in the processor's caches.
constexpr int kSmall = 1000;
constexpr int kLarge = 1'000'000;
constexpr int kSmallScenes = kLarge / kSmall;

using Scenes = std::vector<std::unique_ptr<BenchScene>>;

/// So many scenes that a function fills, made when they are first asked for; they live as long as the
/// process.
template <void (*fill)(BenchScene&), int count>
Scenes& scenesOf()
{
    static Scenes* const scenes = [] {
        auto made = std::make_unique<Scenes>();
        for (int i = 0; i < count; ++i) {
            made->push_back(std::make_unique<BenchScene>());
            made->back()->use();
            fill(*made->back());
        }
        return made.release();
    }();
    return *scenes;
}

/// Times `run` on every scene, with what `prepare` made of it.
template <void (*fill)(BenchScene&), int count, class Prepare, class Run>
void onScenes(benchmark::State& state, Prepare prepare, Run run)
{
    Scenes& scenes = scenesOf<fill, count>();
    std::vector<decltype(prepare(*scenes.front()))> inputs;
    for (const auto& scene : scenes) {
        scene->use();
        inputs.push_back(prepare(*scene));
    }
    for (auto _ : state)
        for (std::size_t i = 0; i < scenes.size(); ++i) {
            scenes[i]->use();
            run(inputs[i]);
        }
}

template <int nodes, int scenes>
void meshPathsOf(benchmark::State& state)
{
    std::list<MDagPath> meshes;
    onScenes<fillWide<nodes>, scenes>(
        state, [](BenchScene& scene) { return scene.path("group"); },
        [&](const MDagPath& group) {
            meshes.clear();
            MayaUtils::collectMeshPaths(group, meshes);
        });
}

template <int nodes, int scenes>
void nodesByType(benchmark::State& state)
{
    onScenes<fillWide<nodes>, scenes>(
        state, [](BenchScene& scene) { return MFnDependencyNode(scene.object("m0"), nullptr).typeId(); },
        [](const MTypeId& type) {
            std::vector<MObject> found;
            MayaUtils::findNodesByTypeId(found, type, MFn::kTransform);
            benchmark::DoNotOptimize(found.data());
        });
}

template <int nodes, int scenes>
void freeIndex(benchmark::State& state)
{
    onScenes<fillWide<nodes>, scenes>(
        state, [](BenchScene& scene) { return scene.object("m0"); },
        [](const MObject& node) {
            const MFnDependencyNode function(node, nullptr);
            benchmark::DoNotOptimize(MayaUtils::findFreeIndex(
                MObject::kNullObj, function.attribute("rotateOrder"), function.typeId()));
        });
}

/// Two arrays, each element of the one connected to that of the other.
template <int count>
void fillConnected(BenchScene& scene)
{
    scene.make("plusMinusAverage", "first");
    scene.make("plusMinusAverage", "second");
    engine::Scene& current = scene.use();
    const auto from = current.findPlug("first.input1D");
    const auto to = current.findPlug("second.input1D");
    for (int i = 0; i < count; ++i)
        scene.require(current.connect(from.value.element(i), to.value.element(i)));
}

template <int connections, int scenes>
void disconnectAll(benchmark::State& state)
{
    onScenes<fillConnected<connections>, scenes>(
        state, [](BenchScene& scene) { return scene.object("second"); },
        [&](const MObject& node) {
            MDGModifier modifier;
            if (!MayaUtils::disconnectAllConnections(node, modifier))
                state.SkipWithError("a connection could not be queued");
        });
}

using Collector = void (*)(const MObject&, const MObject&, std::vector<MObject>&, MStatus*);

template <int connections, int scenes>
void collectBy(benchmark::State& state, const char* array, Collector collector)
{
    onScenes<fillConnected<connections>, scenes>(
        state, [&](BenchScene& scene) { return scene.object(array); },
        [&](const MObject& node) {
            std::vector<MObject> found;
            collector(node, MFnDependencyNode(node, nullptr).attribute("input1D"), found, nullptr);
            benchmark::DoNotOptimize(found.data());
        });
}

template <int connections, int scenes>
void collectSources(benchmark::State& state)
{
    collectBy<connections, scenes>(state, "second", &MayaUtils::collectConnectedSources);
}

template <int connections, int scenes>
void collectDestinations(benchmark::State& state)
{
    collectBy<connections, scenes>(state, "first", &MayaUtils::collectConnectedDestinations);
}

using Benchmark = void (*)(benchmark::State&);

/// A row and its two benchmarks, NAME and NAME_peer. What takes long anyway is run once in each round.
Row row(const std::string& name, const std::string& what, const std::string& beside, double target,
        Benchmark subject, Benchmark peer, bool once)
{
    const Row made{what, beside, name, name + "_peer", target};
    for (const auto& [side, function] : {std::pair(made.subject, subject), std::pair(made.peer, peer)}) {
        auto* registered = benchmark::RegisterBenchmark(side.c_str(), function);
        if (once)
            registered->Iterations(1);
        else
            registered->MinTime(0.05);
    }
    return made;
}

} // namespace

std::vector<Row> utilsRows()
{
    const std::string rule = "the rule as written";
    const std::string small = "a thousand scenes of a thousand";
    return {
        row("accessor", "an accessor without a look-up (64 of them)", "the bare plug", 1.05, accessor,
            barePlug, false),
        row("border_walk", "border walk, a million edges", "its calls and appends alone", 1.7, borderWalk,
            borderCalls, true),
        row("mesh_paths_wide", "mesh paths, 100,000 children in one group", rule, 0.30,
            meshPaths<fillWide<100'000>>, meshPathsByTheRule<fillWide<100'000>>, true),
        row("mesh_paths_chain", "mesh paths, a chain of 100", rule, 0.03, meshPaths<fillChain>,
            meshPathsByTheRule<fillChain>, false),
        row("mesh_paths_shared", "mesh paths, one shape under 1,000 transforms", rule, 0.006,
            meshPaths<fillInstances>, meshPathsByTheRule<fillInstances>, true),
        row("mesh_paths_large", "mesh paths, a million", small, 1.6, meshPathsOf<kLarge, 1>,
            meshPathsOf<kSmall, kSmallScenes>, true),
        row("nodes_by_type", "nodes by type, a million", small, 1.6, nodesByType<kLarge, 1>,
            nodesByType<kSmall, kSmallScenes>, true),
        row("free_index", "free index, a million nodes", small, 1.6, freeIndex<kLarge, 1>,
            freeIndex<kSmall, kSmallScenes>, true),
        row("disconnecting", "disconnecting, a million connections", small, 1.6, disconnectAll<kLarge, 1>,
            disconnectAll<kSmall, kSmallScenes>, true),
        row("sources", "connected sources of a million elements", small, 1.6, collectSources<kLarge, 1>,
            collectSources<kSmall, kSmallScenes>, true),
        row("destinations", "connected destinations of a million elements", small, 1.6,
            collectDestinations<kLarge, 1>, collectDestinations<kSmall, kSmallScenes>, true),
    };
}

} // namespace tvxbench
