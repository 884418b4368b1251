// References; see references.h.
#include "references.h"

#include "flagScanner.h"
#include "lightLinks.h"
#include "lineBreaker.h"
#include "referenceEdits.h"
#include "referenceEvents.h"
#include "referenceFiles.h"
#include "referenceNames.h"
#include "sceneReader.h"
#include "sceneText.h"

#include "engine/data.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace tvxhost::scene {

using engine::DagNode;
using engine::Node;
using engine::Outcome;
using engine::Plug;
using engine::Reason;
using engine::Reference;
using engine::Scene;

namespace fs = std::filesystem;

namespace {

/// "$HOME/a" and "${HOME}/a" with the variables' values; a variable that is not set stays.
std::string withVariables(const std::string& path)
{
    std::string result;
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (path[i] != '$') {
            result += path[i];
            continue;
        }
        const bool hasBraces = path.compare(i + 1, 1, "{") == 0;
        const std::size_t begin = i + (hasBraces ? 2 : 1);
        const std::size_t end = std::min(path.find_first_of(hasBraces ? "}" : "/", begin), path.size());
        const char* value = std::getenv(path.substr(begin, end - begin).c_str());
        const std::size_t next = std::min(end + (hasBraces ? 1 : 0), path.size());
        result += value ? value : path.substr(i, next - i);
        i = next - 1;
    }
    return result;
}

/// Where a reference's file is: as it is named, beside the scene that names it, in the project; what follows
/// two slashes counts from the project. Empty when there is none.
fs::path findFile(const std::string& name, const fs::path& from, const ReadOptions& options)
{
    const fs::path path = withVariables(name);
    std::vector<fs::path> candidates = {path.is_absolute() ? path : from.parent_path() / path};
    const std::size_t project = path.string().find("//");
    const std::string inProject =
        project != std::string::npos ? path.string().substr(project + 2) : path.relative_path().string();
    for (const fs::path& folder : options.projectFolders)
        candidates.push_back(folder / inProject);
    std::error_code ignored;
    for (const fs::path& candidate : candidates)
        if (fs::is_regular_file(candidate, ignored))
            return fs::absolute(candidate).lexically_normal();
    return {};
}

bool refersToItself(Reference& reference)
{
    std::error_code ignored;
    for (const Reference* above = reference.parent; above; above = above->parent)
        if (above->path == reference.path)
            return true;
    return fs::equivalent(reference.path, topReference(reference).from, ignored);
}

/// While it lives, names belong to the namespace of a reference.
class InNamespace
{
public:
    InNamespace(Scene& scene, const std::string& space) : m_scene(scene), m_before(scene.currentNamespace())
    {
        if (!scene.hasNamespace(":" + space))
            (void)scene.addNamespace(":" + space);
        (void)scene.setCurrentNamespace(":" + space);
    }
    ~InNamespace() { (void)m_scene.setCurrentNamespace(m_before); }
    InNamespace(const InNamespace&) = delete;
    InNamespace& operator=(const InNamespace&) = delete;

private:
    Scene& m_scene;
    std::string m_before;
};

std::string join(const std::string& space, const std::string& name)
{
    return space.empty() || name.empty() ? space + name : space + ":" + name;
}

/// Where the nodes are while they are read: a prefix becomes one only when all have their names.
std::string readingNamespace(const Reference& reference)
{
    return reference.hasPrefix && !reference.space.empty()
               ? join(reference.parent ? namespaceOf(*reference.parent) : "", reference.space + "_reading")
               : namespaceOf(reference);
}

void givePrefix(Scene& scene, const Reference& reference)
{
    if (!reference.hasPrefix || reference.space.empty())
        return;
    const std::string before = readingNamespace(reference) + ":";
    const std::string above = reference.parent ? namespaceOf(*reference.parent) : "";
    for (const engine::Ref<Node>& node : reference.nodes)
        if (node->name().compare(0, before.size(), before) == 0)
            (void)scene.rename(*node,
                               ":" + join(above, reference.space + "_" + node->name().substr(before.size())));
}

std::vector<engine::Ref<Node>> nodesSince(Scene& scene, std::uint64_t serial)
{
    std::vector<engine::Ref<Node>> nodes;
    for (auto node = scene.nodes().rbegin(); node != scene.nodes().rend() && (*node)->serial() > serial;
         ++node)
        if (!(*node)->isReferenced && !(*node)->isDefaultNode)
            nodes.emplace_back(*node);
    std::reverse(nodes.begin(), nodes.end());
    return nodes;
}

void readReferenced(Scene& scene, Reference& reference, const std::string& text, const ReadOptions& options,
                    ReferenceStates& states, SceneSummary& summary)
{
    const engine::Units units = scene.units();
    const std::uint64_t last = scene.nodes().back()->serial();
    {
        const InNamespace inside(scene, readingNamespace(reference));
        SceneReader reader(scene, options, reference.path, &reference, &states);
        reader.read(text);
        summary.errors += reader.summary().errors;
        summary.warnings += reader.summary().warnings;
    }
    scene.units() = units;
    reference.nodes = nodesSince(scene, last);
    givePrefix(scene, reference);
    for (const engine::Ref<Node>& node : reference.nodes)
        node->isReferenced = true;
    reference.isLoaded = true;
}

std::string flagText(const char* flag, const std::string& value)
{
    return std::string("-") + flag + " " + mel::quoted(value);
}

/// The scene's own nodes below those of the reference stay, below a transform that stands for their parents.
void giveFosterParent(Scene& scene, const Reference& reference, const ReferenceText& text)
{
    if (text.fosterChildren.empty())
        return;
    const auto before = scene.findNode("|" + fosterName(reference));
    const auto foster = before ? before : scene.createNode("fosterParent", ":" + fosterName(reference));
    for (const auto& fostered : text.fosterChildren)
        (void)scene.reparent(*fostered.first, fostered.first->parents().front(), foster.value->asDag());
}

Outcome belongsToAnother(const Reference& reference)
{
    return {Reason::readOnly, "The reference '" + reference.nodeName + "' belongs to the reference '" +
                                  reference.parent->nodeName + "': only that one can be changed"};
}

int depthOf(const Reference& reference)
{
    int depth = 1;
    for (const Reference* above = reference.parent; above; above = above->parent)
        ++depth;
    return depth;
}

std::string statementOf(const Reference& reference, bool isTable)
{
    std::string text = "file";
    LineBreaker line(text);
    line.word(isTable ? "-rdi " + std::to_string(depthOf(reference)) : "-r");
    line.word(flagText(reference.hasPrefix ? "rpr" : "ns", reference.space.empty() ? ":" : reference.space));
    if (!isTable || !reference.isLoaded)
        line.word("-dr 1");
    if (!reference.nodeName.empty())
        line.word(flagText("rfn", reference.nodeName));
    if (!reference.words.empty())
        line.word(reference.words);
    line.word(mel::quoted(reference.file));
    return text + ";\n";
}

} // namespace

ReferenceStatement parseReference(const mel::ArgumentList& arguments)
{
    ReferenceStatement statement;
    Reference& reference = statement.reference;
    for (FlagScanner flags(arguments); flags.next();) {
        if (flags.is("r", "reference")) {
            statement.isReference = true;
        } else if (flags.is("rdi", "referenceDepthInfo")) {
            statement.depth = std::atoi(std::string(flags.text()).c_str());
        } else if (flags.is("ns", "namespace") || flags.is("rpr", "renamingPrefix")) {
            reference.hasPrefix = flags.is("rpr", "renamingPrefix");
            reference.space = flags.text();
        } else if (flags.is("dr", "deferReference")) {
            reference.isDeferred = flags.truth();
        } else if (flags.is("rfn", "referenceNode")) {
            reference.nodeName = flags.text();
        } else if (flags.isPositional()) {
            reference.file = flags.text();
        } else {
            const std::string flag = sourceText(flags.argument());
            reference.words +=
                (reference.words.empty() ? "" : " ") + flag + " " + mel::quoted(std::string(flags.text()));
        }
    }
    if (reference.space == ":")
        reference.space.clear();
    return statement;
}

std::string namespaceOf(const Reference& reference)
{
    const std::string above = reference.parent ? namespaceOf(*reference.parent) : "";
    return reference.hasPrefix ? above : join(above, reference.space);
}

ReferenceDepth depthBelow(ReferenceDepth depth)
{
    return depth == ReferenceDepth::topOnly ? ReferenceDepth::none : depth;
}

void loadReference(Scene& scene, Reference& reference, const ReadOptions& options, ReferenceStates& states,
                   SceneSummary& summary)
{
    const engine::ScriptPlace place{reference.from, reference.line};
    const auto warn = [&](const std::string& text) {
        ++summary.warnings;
        scene.scriptEditor().warning(text, place);
    };
    const fs::path path = findFile(reference.file, reference.from, options);
    if (path.empty()) {
        warn("Reference file not found: \"" + reference.file + "\"");
        return;
    }
    reference.path = path.string();
    if (refersToItself(reference)) {
        warn("Reference not read: \"" + reference.file + "\" refers to itself");
        return;
    }
    const auto text = readFile(path);
    const SceneTextError broken =
        text ? checkSceneText(text.value, path.string()) : SceneTextError{text.outcome, 0};
    if (!broken.outcome) {
        ++summary.errors;
        scene.scriptEditor().error(broken.outcome.text, {path.string(), broken.line});
        return;
    }
    if (!mayDo(scene, engine::Happening::referenceLoadChecked, reference)) {
        warn("Reference not read: \"" + reference.file + "\": cancelled by user supplied callback");
        return;
    }
    tellOfReference(scene, engine::Happening::referenceLoadBegun, reference);
    noteFiles(scene, keptEdits(scene, reference).value_or(EditList()), states);
    readReferenced(scene, reference, text.value, options, states, summary);
    if (!reference.parent)
        takeBaseline(scene, reference);
    applyEdits(scene, reference);
    tellOfReference(scene, engine::Happening::referenceLoadDone, reference);
}

Outcome unloadReference(Scene& scene, Reference& reference)
{
    if (!reference.isLoaded)
        return {Reason::failed, "The reference '" + reference.nodeName + "' is not loaded"};
    if (reference.parent)
        return belongsToAnother(reference);
    tellOfReference(scene, engine::Happening::referenceUnloadBegun, reference);
    const ReferenceText text = textOf(scene, reference);
    std::vector<Node*> nodes = allNodes(scene, reference);
    giveFosterParent(scene, reference, text);
    const std::vector<Plug> links = lightLinkElementsOf(nodes);
    for (Node* node : nodes)
        node->isReferenced = node->isLockedNode = false;
    for (Node* node : nodes)
        if (node->isAlive())
            (void)scene.deleteNode(*node);
    for (const Plug& link : links)
        (void)engine::removeElement(link.array(), link.logicalIndex());
    const auto isBelow = [&](const std::unique_ptr<Reference>& other) {
        return other.get() != &reference && &topReference(*other) == &reference;
    };
    scene.references.erase(std::remove_if(scene.references.begin(), scene.references.end(), isBelow),
                           scene.references.end());
    reference.nodes.clear();
    reference.setByEdits.clear();
    reference.otherEdits.clear();
    reference.baseline = {};
    reference.isLoaded = false;
    giveEditsBack(scene, reference, text);
    tellOfReference(scene, engine::Happening::referenceUnloadDone, reference);
    return {};
}

void dropReference(Scene& scene, const Reference& reference)
{
    if (const auto node = scene.findNode(":" + reference.nodeName)) {
        node.value->isLockedNode = false;
        (void)scene.deleteNode(*node.value);
    }
    const auto isIt = [&](const std::unique_ptr<Reference>& other) { return other.get() == &reference; };
    scene.references.erase(std::remove_if(scene.references.begin(), scene.references.end(), isIt),
                           scene.references.end());
}

Outcome removeReference(Scene& scene, Reference& reference)
{
    if (reference.parent)
        return belongsToAnother(reference);
    tellOfReference(scene, engine::Happening::referenceRemovalBegun, reference);
    if (reference.isLoaded)
        if (Outcome unloaded = unloadReference(scene, reference); !unloaded)
            return unloaded;
    engine::Event gone = referenceEvent(scene, engine::Happening::referenceRemovalDone, reference);
    gone.node = nullptr;
    dropReference(scene, reference);
    scene.isModified = true;
    scene.observers().tell(gone);
    return {};
}

Reference* findReference(Scene& scene, const std::string& name)
{
    const std::string bare = name.substr(!name.empty() && name[0] == ':' ? 1 : 0);
    for (const auto& reference : scene.references)
        if (reference->nodeName == bare || reference->file == name ||
            (!name.empty() && reference->path == name))
            return reference.get();
    const auto node = scene.findNode(name);
    return node ? referenceOf(scene, *node.value) : nullptr;
}

Reference* referenceOf(Scene& scene, const Node& node)
{
    for (const auto& reference : scene.references)
        for (const engine::Ref<Node>& own : reference->nodes)
            if (own.get() == &node)
                return reference.get();
    return nullptr;
}

Reference& topReference(Reference& reference)
{
    Reference* top = &reference;
    while (top->parent)
        top = top->parent;
    return *top;
}

std::vector<Node*> allNodes(Scene& scene, const Reference& reference)
{
    std::vector<Node*> nodes;
    for (const auto& other : scene.references)
        for (const Reference* above = other.get(); above; above = above->parent)
            if (above == &reference) {
                for (const engine::Ref<Node>& node : other->nodes)
                    if (node->isAlive())
                        nodes.push_back(node.get());
                break;
            }
    std::sort(nodes.begin(), nodes.end(),
              [](const Node* a, const Node* b) { return a->serial() < b->serial(); });
    return nodes;
}

std::string referenceStatements(const Scene& scene)
{
    std::string table;
    std::string statements;
    for (const auto& reference : scene.references) {
        table += statementOf(*reference, true);
        if (!reference->parent)
            statements += statementOf(*reference, false);
    }
    return table + statements;
}

} // namespace tvxhost::scene
