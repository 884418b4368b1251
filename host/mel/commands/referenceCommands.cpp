// References: the part of `file` that makes, loads and removes them, and referenceQuery.
#include "referenceCommands.h"

#include "commandSupport.h"
#include "referenceEditCommands.h"
#include "sceneCommands.h"

#include "engine/fileTests.h"
#include "scene/referenceEditList.h"
#include "scene/referenceEvents.h"
#include "scene/referenceFiles.h"
#include "scene/referenceNames.h"
#include "scene/references.h"

#include <algorithm>
#include <filesystem>

namespace tvxhost::mel {

namespace fs = std::filesystem;

using engine::Reference;
using scene::ReferenceDepth;

namespace {

/// The file as it is shown: where it is, with a number when it is not the first of its file.
std::string shownPath(const engine::Scene& scene, const Reference& reference)
{
    const std::string path = reference.path.empty() ? reference.file : reference.path;
    int number = 0;
    for (const auto& other : scene.references) {
        if (other.get() == &reference)
            break;
        number += other->file == reference.file ? 1 : 0;
    }
    return number == 0 ? path : path + "{" + std::to_string(number) + "}";
}

/// The reference that a call means: by `-referenceNode` or the file that is named.
Reference& referenceOf(CommandContext& context, const ParsedCommand& call)
{
    if (call.has("referenceNode"))
        return referenceNamed(context, call.string("referenceNode"));
    if (call.positional.empty())
        context.fail("No reference was named");
    return referenceNamed(context, call.names().front());
}

/// For steps by which nodes of files go for good: what was edited before cannot be taken back behind them,
/// not even when a step fails or the next one does.
void requireForGood(CommandContext& context, const engine::Outcome& outcome)
{
    sceneOf(context).journal().flush();
    require(context, outcome);
}

void load(CommandContext& context, Reference& reference, ReferenceDepth depth)
{
    if (reference.parent) {
        requireForGood(context,
                       sessionOf(context).setNestedLoaded(context.interpreter(), reference, true, depth));
        return;
    }
    if (reference.isLoaded)
        requireForGood(context, scene::unloadReference(sceneOf(context), reference));
    sessionOf(context).loadReference(context.interpreter(), reference, depth);
}

/// A name with the characters that names may have; `others` are legal as well.
std::string legalName(std::string name, std::string_view others = {})
{
    for (char& c : name)
        if (!std::isalnum(static_cast<unsigned char>(c)) && others.find(c) == std::string_view::npos)
            c = '_';
    return name;
}

Value addReference(CommandContext& context, const ParsedCommand& call)
{
    SceneSession& session = sessionOf(context);
    engine::Scene& scene = session.scene();
    if (call.positional.empty())
        context.fail("file -reference needs the name of a file");
    const fs::path file = session.workspace.resolved(call.names().front());
    if (!engine::isFile(file))
        context.fail("File not found: \"" + file.string() + "\"");

    auto reference = std::make_unique<Reference>();
    const std::string stem = legalName(file.stem().string());
    reference->hasPrefix = call.has("renamingPrefix");
    reference->space =
        legalName(call.string(reference->hasPrefix ? "renamingPrefix" : "namespace", stem), "_:");
    const std::string wish = reference->space == ":" ? std::string() : reference->space;
    reference->space = wish;
    for (int i = 1; !reference->hasPrefix && !wish.empty() && scene.hasNamespace(":" + reference->space); ++i)
        reference->space = wish + std::to_string(i);
    reference->file = file.string();
    reference->from = scene.fileName;
    reference->words = "-typ \"mayaAscii\"";
    const ReferenceDepth depth = referenceDepthOf(context, call);
    reference->isDeferred =
        (call.has("deferReference") && call.boolean("deferReference")) || depth == ReferenceDepth::none;

    if (!scene::mayDo(scene, engine::Happening::referenceChecked, *reference))
        context.fail("File operation cancelled by user supplied callback.");
    scene::tellOfReference(scene, engine::Happening::referenceBegun, *reference);

    const std::string nodeName = (reference->space.empty() ? stem : reference->space) + "RN";
    engine::Node& node = *valueOf(context, scene.createNode("reference", ":" + nodeName));
    reference->nodeName = node.name();
    require(context, scene::nameFile(scene, *reference, reference->file));
    node.isLockedNode = true;
    scene.references.push_back(std::move(reference));
    Reference& added = *scene.references.back();
    if (!added.isDeferred)
        sessionOf(context).loadReference(context.interpreter(), added, depth);
    if (!added.isDeferred && !added.isLoaded) {
        scene::dropReference(scene, added);
        context.fail("The file \"" + file.string() + "\" could not be referenced");
    }
    scene.isModified = true;
    scene::tellOfReference(scene, engine::Happening::referenceDone, added);
    return Value(shownPath(scene, added));
}

void requireFile(CommandContext& context, const fs::path& file)
{
    if (!engine::isFile(file))
        context.fail("File not found: \"" + file.string() + "\"");
}

/// Names another file and loads it; nothing has changed when there is none of that name.
void replaceFile(CommandContext& context, Reference& reference, const fs::path& file, ReferenceDepth depth)
{
    requireFile(context, file);
    const bool isLoaded = depth != ReferenceDepth::none;
    sceneOf(context).isModified = true;
    if (reference.parent) {
        requireForGood(context, sessionOf(context).replaceNested(context.interpreter(), reference,
                                                                 file.string(), isLoaded, depth));
        return;
    }
    if (reference.isLoaded)
        requireForGood(context, scene::unloadReference(sceneOf(context), reference));
    require(context, scene::nameFile(sceneOf(context), reference, file.string()));
    if (isLoaded)
        load(context, reference, depth);
}

template <class Change>
Value change(CommandContext& context, Reference& reference, const Change& apply)
{
    const std::string path = shownPath(sceneOf(context), reference);
    apply(reference);
    return Value(path);
}

Value loadOne(CommandContext& context, const ParsedCommand& call)
{
    Reference& reference = referenceNamed(context, call.string("loadReference"));
    const std::string node = reference.nodeName;
    const ReferenceDepth depth = referenceDepthOf(context, call);
    const Workspace& workspace = sessionOf(context).workspace;
    if (!call.positional.empty())
        replaceFile(context, reference, workspace.resolved(call.names().front()), depth);
    else if (depth == ReferenceDepth::none)
        requireFile(context, workspace.resolved(reference.path.empty() ? reference.file : reference.path));
    else
        load(context, reference, depth);
    // Where the file is may show only now, and references in others are other objects afterwards.
    const Reference& loaded = referenceNamed(context, node);
    if (!loaded.isLoaded && depth != ReferenceDepth::none)
        context.fail("The reference '" + node + "' could not be loaded");
    return Value(shownPath(sceneOf(context), loaded));
}

Value unloadOne(CommandContext& context, const ParsedCommand& call)
{
    return change(
        context, referenceNamed(context, call.string("unloadReference")), [&](Reference& reference) {
            requireForGood(context, reference.parent && reference.isLoaded
                                        ? sessionOf(context).setNestedLoaded(context.interpreter(), reference,
                                                                             false, ReferenceDepth::asSaved)
                                        : scene::unloadReference(sceneOf(context), reference));
        });
}

Value importOne(CommandContext& context, const ParsedCommand& call)
{
    return change(context, referenceOf(context, call), [&](Reference& reference) {
        requireForGood(context, sessionOf(context).importReference(context.interpreter(), reference));
    });
}

/// Removes the edits of a reference that is not loaded.
Value cleanOne(CommandContext& context, const ParsedCommand& call)
{
    return change(context, referenceNamed(context, call.string("cleanReference")), [&](Reference& reference) {
        if (reference.isLoaded)
            context.fail("The reference '" + reference.nodeName + "' is loaded: unload it first");
        scene::EditFilter filter;
        filter.referenceNode = reference.nodeName;
        filter.command = editCommandOf(context, call);
        (void)scene::changeEdits(sceneOf(context), filter, [](scene::OwnedEdit&) { return false; });
    });
}

Value removeOne(CommandContext& context, const ParsedCommand& call)
{
    return change(context, referenceOf(context, call), [&](Reference& reference) {
        requireForGood(context, scene::removeReference(sceneOf(context), reference));
    });
}

using Action = Value (*)(CommandContext&, const ParsedCommand&);
constexpr std::pair<const char*, Action> kActions[] = {
    {"reference", addReference},    {"loadReference", loadOne},     {"unloadReference", unloadOne},
    {"removeReference", removeOne}, {"importReference", importOne}, {"cleanReference", cleanOne},
};

// referenceQuery

Value::Strings nodeNames(CommandContext& context, const Reference& reference, bool wholePaths)
{
    engine::Scene& scene = sceneOf(context);
    Value::Strings names;
    for (engine::Node* node : scene::allNodes(scene, reference))
        names.push_back(wholePaths ? scene::editName(*node) : scene.shortestName(*node));
    return names;
}

Value::Strings childNodes(const engine::Scene& scene, const Reference& reference)
{
    Value::Strings names;
    for (const auto& other : scene.references)
        if (other->parent == &reference)
            names.push_back(other->nodeName);
    return names;
}

Value referenceQuery(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const std::string name = call.names().front();
    if (call.has("isNodeReferenced")) {
        const auto node = scene.findNode(name);
        return Value(node && node.value->isReferenced);
    }
    if (asksForEdits(call))
        return queryEdits(context, call);
    Reference* reference = &referenceNamed(context, name);
    if (call.has("parent")) {
        if (!reference->parent)
            return Value("");
        reference = reference->parent;
    }
    if (call.has("topReference"))
        reference = &scene::topReference(*reference);
    if (call.has("isLoaded"))
        return Value(reference->isLoaded);
    if (call.has("nodes"))
        return Value(nodeNames(context, *reference, call.has("dagPath")));
    if (call.has("child"))
        return Value(childNodes(scene, *reference));
    if (call.has("referenceNode"))
        return Value(reference->nodeName);
    if (call.has("namespace"))
        return Value(":" + scene::namespaceOf(*reference));
    if (call.has("filename")) {
        const std::string path = call.has("unresolvedName") ? reference->file : shownPath(scene, *reference);
        return Value(call.has("shortName") ? fs::path(path).filename().string() : path);
    }
    context.fail("referenceQuery: nothing was asked");
}

CommandSpec referenceQueryCommand()
{
    std::vector<FlagSpec> flags = {
        switchFlag("f", "filename", "its file"),
        switchFlag("un", "unresolvedName", "the file as the scene names it"),
        switchFlag("shn", "shortName", "the file without its folder"),
        switchFlag("rfn", "referenceNode", "its reference node"),
        switchFlag("ns", "namespace", "the namespace of its nodes"),
        switchFlag("n", "nodes", "its nodes, those of references in it included"),
        switchFlag("il", "isLoaded", "whether it is loaded"),
        switchFlag("inr", "isNodeReferenced", "whether a node belongs to a reference"),
        switchFlag("p", "parent", "asks about the reference that has this one in it"),
        switchFlag("tr", "topReference", "asks about the scene's own reference it belongs to"),
        switchFlag("dp", "dagPath", "tells whole paths of nodes"),
        switchFlag("ch", "child", "the reference nodes of the references in it")};
    const std::vector<FlagSpec> ofEdits = editQueryFlags();
    flags.insert(flags.end(), ofEdits.begin(), ofEdits.end());
    return makeCommand("referenceQuery", "Tells about a reference: by its node, its file or a node of it",
                       std::move(flags), names(1, 1), referenceQuery);
}

} // namespace

Reference* findReference(CommandContext& context, const std::string& name)
{
    engine::Scene& scene = sceneOf(context);
    const std::string file = sessionOf(context).workspace.resolved(name).string();
    const std::string bare = name.substr(!name.empty() && name[0] == ':' ? 1 : 0);
    for (const auto& reference : scene.references)
        if (shownPath(scene, *reference) == name || reference->nodeName == bare)
            return reference.get();
    for (const auto& reference : scene.references)
        for (const std::string& path : {reference->file, reference->path})
            if (!path.empty() && (path == name || path == file))
                return reference.get();
    return nullptr;
}

Reference& referenceNamed(CommandContext& context, const std::string& name)
{
    if (Reference* found = findReference(context, name))
        return *found;
    if (Reference* found = scene::findReference(sceneOf(context), name))
        return *found;
    context.fail("'" + name + "' is not a reference file, reference node, or referenced node.");
}

ReferenceDepth referenceDepthOf(CommandContext& context, const ParsedCommand& call)
{
    if (!call.has("loadReferenceDepth"))
        return ReferenceDepth::asSaved;
    constexpr std::pair<const char*, ReferenceDepth> kDepths[] = {
        {"all", ReferenceDepth::all}, {"none", ReferenceDepth::none}, {"topOnly", ReferenceDepth::topOnly}};
    const std::string name = call.string("loadReferenceDepth");
    for (const auto& [word, depth] : kDepths)
        if (name == word)
            return depth;
    if (name == "asPrefs" && call.has("loadReference"))
        return ReferenceDepth::asSaved;
    context.fail("Invalid value '" + name + "' of -loadReferenceDepth: all, none or topOnly");
}

std::vector<FlagSpec> referenceFlags()
{
    using A = ArgumentType;
    return {
        switchFlag("r", "reference", "references a file; the files that are referenced", kCreateQuery),
        valueFlag("ns", "namespace", A::string, "of the nodes of a referenced file", kCreateQuery),
        valueFlag("rpr", "renamingPrefix", A::string, "in front of the names of a referenced file's nodes"),
        valueFlag("dr", "deferReference", A::boolean, "does not load it", kCreateQuery),
        valueFlag("lrd", "loadReferenceDepth", A::string,
                  "which references are loaded: all, none, topOnly or, with -loadReference, asPrefs"),
        valueFlag("rfn", "referenceNode", A::string, "the node of a reference", kCreateQuery),
        switchFlag("rr", "removeReference", "removes a reference"),
        valueFlag("lr", "loadReference", A::string, "loads the reference of a reference node"),
        valueFlag("ur", "unloadReference", A::string, "unloads the reference of a reference node"),
        switchFlag("ir", "importReference", "makes the nodes of a reference the scene's own"),
        valueFlag("cr", "cleanReference", A::string, "removes the edits of a reference that is not loaded"),
        editCommandFlag()};
}

bool isAboutReferences(const ParsedCommand& call)
{
    return std::any_of(std::begin(kActions), std::end(kActions),
                       [&](const auto& action) { return call.has(action.first); });
}

Value changeReferences(CommandContext& context, const ParsedCommand& call)
{
    const auto* action = std::find_if(std::begin(kActions), std::end(kActions),
                                      [&](const auto& candidate) { return call.has(candidate.first); });
    // None of it can be taken back, see requireForGood().
    engine::Journal& journal = sceneOf(context).journal();
    const engine::Journal::Into nothing(journal, nullptr);
    Value result = action->second(context, call);
    journal.flush();
    return result;
}

Value queryReferences(CommandContext& context, const ParsedCommand& call)
{
    const engine::Scene& scene = sceneOf(context);
    if (!call.positional.empty()) {
        const Reference& reference = referenceNamed(context, call.names().front());
        if (call.has("referenceNode"))
            return Value(reference.nodeName);
        if (call.has("deferReference"))
            return Value(!reference.isLoaded);
        if (call.has("namespace"))
            return Value(scene::namespaceOf(reference));
    }
    Value::Strings files;
    for (const auto& reference : scene.references) {
        const bool isAsked = call.positional.empty()
                                 ? !reference->parent
                                 : reference->parent == &referenceNamed(context, call.names().front());
        if (isAsked)
            files.push_back(shownPath(scene, *reference));
    }
    return Value(std::move(files));
}

void registerReferenceCommands(CommandTable& table)
{
    table.add({referenceQueryCommand(), referenceEditCommand()});
}

} // namespace tvxhost::mel
