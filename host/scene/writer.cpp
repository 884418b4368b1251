// Writing Maya ASCII scenes; see writer.h.
#include "writer.h"

#include "beginsWith.h"
#include "connectionEnd.h"
#include "lightLinks.h"
#include "lineBreaker.h"
#include "nodeWriter.h"
#include "references.h"

#include "engine/atomicFile.h"
#include "engine/pluginData.h"
#include "mel/arguments.h"

#include <algorithm>
#include <cstdlib>
#include <unordered_map>
#include <unordered_set>

#include <sys/utsname.h>

namespace tvxhost::scene {

using engine::DagNode;
using engine::Node;
using engine::Plug;
using engine::Scene;

namespace {

constexpr const char* kVersion = "2016";

/// Default nodes in the order in which files name them; some are named even when nothing of them is saved.
struct DefaultRow
{
    const char* name;
    bool isAlwaysNamed;
};

constexpr DefaultRow kDefaults[] = {
    {"time1", true},
    {"hardwareRenderingGlobals", true},
    {"renderPartition", true},
    {"renderGlobalsList1", true},
    {"defaultShaderList1", true},
    {"postProcessList1", true},
    {"defaultRenderUtilityList1", false},
    {"defaultRenderingList1", true},
    {"lightList1", false},
    {"defaultTextureList1", false},
    {"initialShadingGroup", true},
    {"initialParticleSE", true},
    {"defaultRenderGlobals", false},
    {"defaultResolution", true},
    {"defaultLightSet", false},
    {"hardwareRenderGlobals", true},
};

std::string dateText(const WriteOptions& options)
{
    const char* epoch = std::getenv("SOURCE_DATE_EPOCH");
    const bool isFixed = !options.clock && epoch && *epoch;
    const std::time_t now = options.clock ? options.clock()
                            : isFixed     ? std::atoll(epoch)
                                          : std::time(nullptr);
    std::tm parts = {};
    if (isFixed)
        gmtime_r(&now, &parts);
    else
        localtime_r(&now, &parts);
    char text[64];
    std::strftime(text, sizeof text, "%a, %b %d, %Y %I:%M:%S %p", &parts);
    return text;
}

/// The requirement of a plug-in among others; made when there is none.
Scene::Requirement& requirementOf(std::vector<Scene::Requirement>& all, const std::string& plugin)
{
    const auto found = std::find_if(all.begin(), all.end(), [&](const Scene::Requirement& candidate) {
        return candidate.plugin == plugin;
    });
    if (found != all.end())
        return *found;
    Scene::Requirement& added = all.emplace_back();
    added.plugin = plugin;
    return added;
}

void addOnce(std::vector<std::string>& names, const std::string& name)
{
    if (std::find(names.begin(), names.end(), name) == names.end())
        names.push_back(name);
}

std::string systemText()
{
    utsname system = {};
    if (uname(&system) != 0)
        return "Linux";
    return std::string(system.sysname) + " " + system.release + " " + system.version + " " + system.machine;
}

/// The name of a file in a comment, which ends with its line.
std::string onOneLine(std::string name)
{
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return name;
}

/// Writes one file from the top to the end.
class SceneWriter
{
public:
    SceneWriter(Scene& scene, const std::string& fileName, const WriteOptions& options)
        : m_scene(scene), m_options(options), m_fileName(onOneLine(fileName)), m_nodes(scene, m_out)
    {
    }

    std::string write();

private:
    void writeHeader();
    void writeRequirement(const Scene::Requirement& requirement);
    void writeFileInfo();
    void collectReferences();
    void collectNodes();
    void writeFosterParent(const Node& child);
    void writePlaceholder(const ReferenceText::Placeholder& placeholder);
    void collectDag(DagNode& node);
    void writeInstances();
    void writeDefaults();
    void writeConnections(const std::vector<Node*>& nodes);
    void writeConnection(const Plug& source, const Plug& destination);
    void writeConnectAttr(const std::string& source, const std::string& destination,
                          const std::vector<std::string>& flags);
    template <class Belongs>
    void writeKept(const Belongs& belongs);
    std::vector<Scene::Requirement> requirements() const;

    Scene& m_scene;
    const WriteOptions& m_options;
    std::string m_fileName;
    std::string m_out;
    NodeWriter m_nodes;
    std::vector<Node*> m_dagNodes; ///< depth first
    std::vector<Node*> m_dependNodes;
    std::unordered_map<std::string, std::string> m_sourceNames; ///< placeholders that stand for sources
    std::unordered_map<const Node*, std::vector<ReferenceText::Placeholder>>
        m_placeholders;                              ///< by reference node
    std::unordered_set<std::string> m_fosterParents; ///< that have been written
    std::vector<Node*> m_defaultNodes;               ///< in the order of their `select` lines
};

/// Whether a node is written with `createNode`.
bool isCreated(const Node& node)
{
    return !node.isDefaultNode && !node.doNotWrite && !node.isReferenced;
}

std::string SceneWriter::write()
{
    collectReferences();
    collectNodes();
    writeHeader();
    for (Node* node : m_dagNodes) {
        writeFosterParent(*node);
        m_nodes.writeNode(*node);
    }
    writeInstances();
    for (Node* node : m_dependNodes)
        m_nodes.writeNode(*node);
    writeDefaults();
    writeConnections(m_dagNodes);
    for (Node* node : m_dependNodes)
        m_out += lightLinkStatements(*node);
    writeKept([](const std::string& text) { return beginsWith(text, "relationship"); });
    writeConnections(m_dependNodes);
    writeConnections(m_defaultNodes);
    writeKept([](const std::string& text) {
        return !beginsWith(text, "relationship") && !beginsWith(text, "select") && !beginsWith(text, "file ");
    });
    m_out += "// End of " + m_fileName + "\n";
    return std::move(m_out);
}

void SceneWriter::writeHeader()
{
    m_out += "//Maya ASCII " + std::string(kVersion) + " scene\n";
    m_out += "//Name: " + m_fileName + "\n";
    m_out += "//Last modified: " + dateText(m_options) + "\n";
    m_out += "//Codeset: UTF-8\n";
    m_out += referenceStatements(m_scene);
    writeKept([](const std::string& text) { return beginsWith(text, "file "); });
    m_out += "requires maya \"" + std::string(kVersion) + "\";\n";
    for (const Scene::Requirement& requirement : requirements())
        writeRequirement(requirement);
    const engine::Units& units = m_scene.units();
    m_out += "currentUnit -l " + engine::nameOf(units.linear, true) + " -a " +
             engine::nameOf(units.angle, true) + " -t " + engine::timeUnitName(units.time) + ";\n";
    writeFileInfo();
}

void SceneWriter::writeRequirement(const Scene::Requirement& requirement)
{
    std::string text = "requires";
    LineBreaker line(text);
    if (!requirement.words.empty())
        line.word(requirement.words);
    for (const std::string& type : requirement.nodeTypes)
        line.word("-nodeType " + mel::quoted(type));
    for (const std::string& type : requirement.dataTypes)
        line.word("-dataType " + mel::quoted(type));
    line.word(mel::quoted(requirement.plugin) + " " + mel::quoted(requirement.version));
    m_out += text + ";\n";
}

/// What the file that was read required, and the plug-ins whose nodes are in the scene now. Node types are
/// brought up to date for plug-ins that are loaded; of the others nobody knows better than their file.
std::vector<Scene::Requirement> SceneWriter::requirements() const
{
    std::vector<Scene::Requirement> all = m_scene.requirements;
    for (engine::NodeType* type : m_scene.types().all())
        if (!type->plugin.empty() && type->liveNodes > 0)
            addOnce(requirementOf(all, type->plugin).nodeTypes, type->name);
    for (const Node* node : m_scene.nodes())
        if (!node->unknownPlugin.empty())
            addOnce(requirementOf(all, node->unknownPlugin).nodeTypes, node->unknownType);
    for (const auto& type : m_scene.dataTypes().all())
        if (engine::hasDataInUse(*type, m_scene.types()))
            addOnce(requirementOf(all, type->plugin).dataTypes, type->name);
    for (Scene::Requirement& requirement : all)
        if (m_options.pluginVersion)
            if (std::string version = m_options.pluginVersion(requirement.plugin); !version.empty())
                requirement.version = std::move(version);
    return all;
}

void SceneWriter::writeFileInfo()
{
    const std::vector<std::pair<std::string, std::string>> own = {
        {"application", "maya"}, {"product", "Maya " + std::string(kVersion)},
        {"version", kVersion},   {"cutIdentifier", "201610262200-1005964"},
        {"osv", systemText()},
    };
    const auto write = [&](const auto& entry) {
        m_out += "fileInfo " + mel::quoted(entry.first) + " " + mel::quoted(entry.second) + ";\n";
    };
    std::for_each(own.begin(), own.end(), write);
    for (const auto& entry : m_scene.fileInfo)
        if (std::none_of(own.begin(), own.end(),
                         [&](const auto& known) { return known.first == entry.first; }))
            write(entry);
}

void SceneWriter::collectReferences()
{
    for (const auto& reference : m_scene.references) {
        const auto node = m_scene.findNode(":" + reference->nodeName);
        if (!reference->isLoaded || reference->parent || reference->keepsEdits || !node)
            continue;
        ReferenceText text = textOf(m_scene, *reference);
        for (const auto& [child, parent] : text.fosterChildren)
            m_nodes.parentNames[child] = parent;
        for (const ReferenceText::Placeholder& placeholder : text.connections) {
            if (placeholder.destinationName.empty())
                m_sourceNames[connectionName(placeholder.destination, false)] = placeholder.sourceName;
            else
                m_placeholders[node.value].push_back(placeholder);
        }
        m_nodes.references[node.value] = std::move(text);
    }
}

/// What holds the scene's own nodes while those of the reference that they are below are not there.
void SceneWriter::writeFosterParent(const Node& child)
{
    const auto parent = m_nodes.parentNames.find(&child);
    if (parent != m_nodes.parentNames.end() && m_fosterParents.insert(parent->second).second)
        m_out += "createNode fosterParent -n " + mel::quoted(parent->second) + ";\n";
}

void SceneWriter::collectNodes()
{
    for (DagNode* top : m_scene.world().children())
        collectDag(*top);
    for (Node* node : m_scene.nodes()) {
        if (isCreated(*node) && !node->asDag())
            m_dependNodes.push_back(node);
    }
    for (const DefaultRow& row : kDefaults) {
        const auto node = m_scene.findNode(std::string(":") + row.name);
        if (node && node.value->isDefaultNode)
            m_defaultNodes.push_back(node.value);
    }
    const std::unordered_set<Node*> listed(m_defaultNodes.begin(), m_defaultNodes.end());
    for (Node* node : m_scene.nodes())
        if (node->isDefaultNode && !node->doNotWrite && listed.count(node) == 0)
            m_defaultNodes.push_back(node);
}

/// Parents before children; an instanced node stands below its first parent. An own stack, since DAGs may be
/// deep.
void SceneWriter::collectDag(DagNode& top)
{
    std::vector<DagNode*> waiting = {&top};
    while (!waiting.empty()) {
        DagNode* node = waiting.back();
        waiting.pop_back();
        // Below the nodes of a reference may be some of the scene's own.
        if (!isCreated(*node) && !node->isReferenced)
            continue;
        if (!node->isReferenced)
            m_dagNodes.push_back(node);
        const auto& children = node->children();
        for (auto child = children.rbegin(); child != children.rend(); ++child)
            if ((*child)->parents().front() == node)
                waiting.push_back(*child);
    }
}

void SceneWriter::writeInstances()
{
    for (Node* node : m_dagNodes) {
        DagNode& dag = *node->asDag();
        for (std::size_t i = 1; i < dag.parents().size(); ++i) {
            if (dag.parents()[i]->isWorld())
                continue;
            m_out += "parent -s -nc -r -add " + mel::quoted(engine::DagPath::firstTo(dag).fullName()) + " " +
                     mel::quoted(fileName(*dag.parents()[i])) + " ;\n";
        }
    }
}

bool isAlwaysNamed(const Node& node)
{
    return std::any_of(std::begin(kDefaults), std::end(kDefaults),
                       [&](const DefaultRow& row) { return row.isAlwaysNamed && node.name() == row.name; });
}

/// Whether something of the scene's own is connected to a default node.
bool isUsed(Node& node)
{
    for (const Plug& plug : engine::connectedPlugs(node))
        if (const Plug source = engine::sourceOf(plug); !source.isNull() && isCreated(*source.node()))
            return true;
    return false;
}

void SceneWriter::writeDefaults()
{
    for (Node* node : m_defaultNodes) {
        const std::size_t before = m_out.size();
        m_out += "select -ne :" + node->name() + ";\n";
        if (!m_nodes.writeLines(*node) && !isAlwaysNamed(*node) && !isUsed(*node))
            m_out.resize(before);
    }
    writeKept([](const std::string& text) { return beginsWith(text, "select"); });
}

void SceneWriter::writeConnections(const std::vector<Node*>& nodes)
{
    for (Node* node : nodes)
        for (const Plug& plug : engine::connectedPlugs(*node))
            if (const Plug source = engine::sourceOf(plug); !source.isNull() && !lightLinkAt(plug).isWhole())
                writeConnection(source, plug);
    for (Node* node : nodes)
        if (const auto own = m_placeholders.find(node); own != m_placeholders.end())
            for (const ReferenceText::Placeholder& placeholder : own->second)
                writePlaceholder(placeholder);
}

/// A connection to a node of a reference, as far as this file knows it.
void SceneWriter::writePlaceholder(const ReferenceText::Placeholder& placeholder)
{
    const std::string source =
        placeholder.sourceName.empty() ? connectionName(placeholder.source, false) : placeholder.sourceName;
    writeConnectAttr(source, placeholder.destinationName, {});
}

void SceneWriter::writeConnection(const Plug& source, const Plug& destination)
{
    const Node& from = *source.node();
    const Node& to = *destination.node();
    // What connects two default nodes is there in every new scene.
    if ((from.isDefaultNode && to.isDefaultNode) || from.doNotWrite || to.doNotWrite)
        return;
    std::string sourceName = connectionName(source, false);
    if (from.isReferenced) {
        // What the reference's own file connects to the nodes of every scene, it will connect again.
        const auto name = m_sourceNames.find(connectionName(destination, false));
        if (name == m_sourceNames.end())
            return;
        sourceName = name->second;
    }
    const bool isNext = destination.isElement() && !destination.attribute()->flags.indexMatters;
    std::vector<std::string> flags;
    if (engine::stateOf(destination).locked)
        flags.emplace_back("-l on");
    if (isNext)
        flags.emplace_back("-na");
    writeConnectAttr(sourceName, connectionName(destination, isNext), flags);
}

void SceneWriter::writeConnectAttr(const std::string& source, const std::string& destination,
                                   const std::vector<std::string>& flags)
{
    std::string text = "connectAttr";
    LineBreaker line(text);
    line.word(mel::quoted(source));
    line.word(mel::quoted(destination));
    for (const std::string& flag : flags)
        line.word(flag);
    line.end();
    m_out += text + '\n';
}

template <class Belongs>
void SceneWriter::writeKept(const Belongs& belongs)
{
    for (const std::string& text : m_scene.keptConnections)
        if (belongs(text))
            m_out += text + "\n";
}

} // namespace

std::string sceneText(Scene& scene, const std::string& fileName, const WriteOptions& options)
{
    return SceneWriter(scene, fileName, options).write();
}

engine::Outcome saveScene(Scene& scene, const std::filesystem::path& file, const WriteOptions& options)
{
    const std::string text = sceneText(scene, file.filename().string(), options);
    const engine::Outcome written = engine::writeFileAtomically(file, text);
    if (written) {
        scene.fileName = std::filesystem::absolute(file).string();
        scene.isModified = false;
    }
    return written;
}

} // namespace tvxhost::scene
