// SceneSummary as text and JSON; see sceneSummary.h.
#include "sceneSummary.h"

#include <nlohmann/json.hpp>

#include <sys/resource.h>

namespace tvxhost::scene {

namespace {

constexpr std::size_t kMegabyte = 1000 * 1000;

using Counts = std::map<std::string, std::size_t>;

void addLine(std::string& text, const std::string& label, const std::string& value)
{
    text += label + ": " + value + "\n";
}

void addCounts(std::string& text, const std::string& label, const Counts& counts)
{
    std::size_t total = 0;
    for (const auto& [name, count] : counts)
        total += count;
    addLine(text, label, std::to_string(total));
    for (const auto& [name, count] : counts)
        addLine(text, "  " + name, std::to_string(count));
}

void addMeshes(std::string& text, const std::vector<MeshSummary>& meshes)
{
    addLine(text, "meshes", std::to_string(meshes.size()));
    for (const MeshSummary& mesh : meshes)
        addLine(text, "  " + mesh.name,
                std::to_string(mesh.vertices) + " vertices, " + std::to_string(mesh.edges) + " edges, " +
                    std::to_string(mesh.faces) + " faces, " + std::to_string(mesh.borderEdges) +
                    " border edges");
}

nlohmann::ordered_json meshesOf(const std::vector<MeshSummary>& meshes)
{
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const MeshSummary& mesh : meshes)
        list.push_back({{"name", mesh.name},
                        {"vertices", mesh.vertices},
                        {"edges", mesh.edges},
                        {"faces", mesh.faces},
                        {"borderEdges", mesh.borderEdges}});
    return list;
}

} // namespace

std::size_t peakMemory()
{
    rusage usage = {};
    constexpr std::size_t kKilobyte = 1024;
    return getrusage(RUSAGE_SELF, &usage) == 0 ? static_cast<std::size_t>(usage.ru_maxrss) * kKilobyte : 0;
}

std::string toText(const SceneSummary& summary)
{
    std::string text;
    addLine(text, "file", summary.file);
    addLine(text, "version", summary.version);
    addCounts(text, "statements", summary.commands);
    addCounts(text, "nodes", summary.nodes);
    addCounts(text, "unknown nodes", summary.unknownNodes);
    addMeshes(text, summary.meshes);
    std::string plugins;
    for (const std::string& plugin : summary.plugins)
        plugins += (plugins.empty() ? "" : " ") + plugin;
    addLine(text, "plug-ins", plugins);
    addLine(text, "connections", std::to_string(summary.connections));
    addLine(text, "kept statements", std::to_string(summary.keptStatements));
    if (summary.peakMemory > 0)
        addLine(text, "peak memory", std::to_string(summary.peakMemory / kMegabyte) + " MB");
    addLine(text, "warnings", std::to_string(summary.warnings));
    addLine(text, "errors", std::to_string(summary.errors));
    return text;
}

std::string toJson(const SceneSummary& summary)
{
    nlohmann::ordered_json json;
    json["file"] = summary.file;
    json["version"] = summary.version;
    json["statements"] = summary.statements;
    json["commands"] = summary.commands;
    json["nodes"] = summary.nodes;
    json["unknownNodes"] = summary.unknownNodes;
    json["meshes"] = meshesOf(summary.meshes);
    json["plugins"] = summary.plugins;
    json["connections"] = summary.connections;
    json["keptStatements"] = summary.keptStatements;
    if (summary.peakMemory > 0)
        json["peakMemory"] = summary.peakMemory;
    json["warnings"] = summary.warnings;
    json["errors"] = summary.errors;
    return json.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

} // namespace tvxhost::scene
