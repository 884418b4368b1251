// The edits of references; see referenceEditCommands.h.
#include "referenceEditCommands.h"

#include "commandSupport.h"
#include "referenceCommands.h"

#include "scene/referenceEditList.h"
#include "scene/referenceNames.h"
#include "scene/references.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tvxhost::mel {

using engine::Reference;
using scene::EditFilter;
using scene::ListedEdit;
using scene::OwnedEdit;

namespace {

constexpr std::array<std::string_view, 8> kEditCommands = {
    "addAttr", "connectAttr", "deleteAttr", "disconnectAttr", "parent", "setAttr", "lock", "unlock"};

/// What edits call the thing that a name means. Nodes of references that are not loaded are not there: their
/// names are taken as they are, provided that there are edits of them.
std::string targetNamed(CommandContext& context, const std::string& name)
{
    engine::Scene& scene = sceneOf(context);
    if (const Reference* reference = findReference(context, name))
        return reference->nodeName;
    if (name.find('.') != std::string::npos) {
        if (const auto plug = scene.findPlug(name))
            return scene::editName(plug.value);
    } else if (const auto node = scene.findNode(name)) {
        if (!node.value->isReferenced)
            context.fail("'" + name + "' is not a reference file, reference node, or referenced node.");
        return scene::editName(*node.value);
    }
    EditFilter filter;
    filter.target = name;
    const std::vector<ListedEdit> all = scene::listEdits(scene);
    const bool isKnown = std::any_of(
        all.begin(), all.end(), [&](const ListedEdit& each) { return scene::isMeant(scene, filter, each); });
    if (!isKnown)
        context.fail("'" + name + "' is not a reference file, reference node, or referenced node.");
    return name;
}

/// Which edits a call is about. `successful`: whether those that succeeded are meant when it does not say.
EditFilter filterOf(CommandContext& context, const ParsedCommand& call, bool successful)
{
    EditFilter filter;
    filter.command = editCommandOf(context, call);
    filter.successful = call.has("successfulEdits") ? call.boolean("successfulEdits") : successful;
    filter.failed = call.has("failedEdits") ? call.boolean("failedEdits") : !successful;
    if (call.has("onReferenceNode"))
        filter.referenceNode = referenceNamed(context, call.string("onReferenceNode")).nodeName;
    return filter;
}

std::vector<FlagSpec> filterFlags()
{
    using A = ArgumentType;
    return {editCommandFlag(),
            valueFlag("fld", "failedEdits", A::boolean, "whether edits that failed are meant"),
            valueFlag("scs", "successfulEdits", A::boolean, "whether edits that succeeded are meant"),
            valueFlag("orn", "onReferenceNode", A::string, "the reference node that keeps the edits")};
}

// referenceQuery

/// A name as -showNamespace and -showDagPath want it.
std::string shown(const std::string& name, bool withNamespace, bool withPath)
{
    const std::size_t dot = std::min(name.find('.'), name.size());
    std::string node = name.substr(0, dot);
    if (!withPath)
        node.erase(0, node.rfind('|') + 1);
    if (!withNamespace) {
        for (std::size_t colon = node.find(':'); colon != std::string::npos; colon = node.find(':')) {
            const std::size_t bar = node.rfind('|', colon);
            const std::size_t begin = bar == std::string::npos ? 0 : bar + 1;
            node.erase(begin, colon + 1 - begin);
        }
    }
    return node + name.substr(dot);
}

/// The names of what an edit changes: nodes, attributes, or plugs when both are asked for.
void addNames(Value::Strings& names, const OwnedEdit& edit, bool nodes, bool attributes)
{
    for (const std::string& target : scene::targetsOf(edit)) {
        const std::size_t dot = target.find('.');
        if (nodes && attributes)
            names.push_back(target);
        else if (nodes)
            names.push_back(target.substr(0, dot));
        else if (dot != std::string::npos)
            names.push_back(target.substr(dot + 1));
    }
}

// referenceEdit

/// Does something with the edits of each target that are not applied.
void forTargets(CommandContext& context, const ParsedCommand& call, const scene::EditChange& change)
{
    EditFilter filter = filterOf(context, call, false);
    std::vector<std::string> targets;
    for (const std::string& name : call.names())
        targets.push_back(targetNamed(context, name));
    for (std::string& target : targets) {
        filter.target = std::move(target);
        (void)scene::changeEdits(sceneOf(context), filter, change);
    }
}

void applyFailed(CommandContext& context, const ParsedCommand& call)
{
    for (const std::string& name : call.names()) {
        Reference& reference = scene::topReference(referenceNamed(context, name));
        if (!reference.isLoaded)
            context.fail("The reference '" + reference.nodeName + "' is not loaded: load it first");
        scene::applyFailedEdits(sceneOf(context), reference);
    }
}

Value referenceEdit(CommandContext& context, const ParsedCommand& call)
{
    const bool changesTarget = call.has("changeEditTarget");
    if (!changesTarget && !call.has("removeEdits") && !call.has("applyFailedEdits"))
        context.fail("referenceEdit: nothing was asked for");
    engine::Journal& journal = sceneOf(context).journal();
    const engine::Journal::Into nothing(journal, nullptr);
    if (changesTarget) {
        const std::vector<Value>& names = call.use("changeEditTarget")->arguments;
        const std::string before = names[0].toString();
        const std::string after = names[1].toString();
        forTargets(context, call, [&](OwnedEdit& edit) {
            scene::changeTarget(edit, before, after);
            return true;
        });
    }
    if (call.has("removeEdits"))
        forTargets(context, call, [](OwnedEdit&) { return false; });
    if (call.has("applyFailedEdits"))
        applyFailed(context, call);
    journal.flush();
    return {};
}

} // namespace

FlagSpec editCommandFlag()
{
    return valueFlag("ec", "editCommand", ArgumentType::string,
                     "edits of one kind only: addAttr, connectAttr, deleteAttr, disconnectAttr, parent, "
                     "setAttr, lock or unlock");
}

std::string editCommandOf(CommandContext& context, const ParsedCommand& call)
{
    if (!call.has("editCommand"))
        return {};
    const std::string command = call.string("editCommand");
    if (std::find(kEditCommands.begin(), kEditCommands.end(), command) == kEditCommands.end())
        context.fail("There are no reference edits of the kind '" + command + "'");
    return command;
}

std::vector<FlagSpec> editQueryFlags()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = {
        switchFlag("es", "editStrings", "the edits of its nodes, as statements"),
        switchFlag("en", "editNodes", "the nodes that edits are about"),
        switchFlag("ea", "editAttrs", "the attributes that edits are about; with -editNodes the plugs"),
        switchFlag("le", "liveEdits", "as they are now; they always are"),
        valueFlag("sns", "showNamespace", A::boolean, "tells names of edits with their namespace"),
        valueFlag("sdp", "showDagPath", A::boolean, "tells names of edits with their path")};
    const std::vector<FlagSpec> filters = filterFlags();
    flags.insert(flags.end(), filters.begin(), filters.end());
    return flags;
}

bool asksForEdits(const ParsedCommand& call)
{
    return call.has("editStrings") || call.has("editNodes") || call.has("editAttrs");
}

Value queryEdits(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    EditFilter filter = filterOf(context, call, true);
    const std::string name = call.names().front();
    filter.target = targetNamed(context, name);
    if (call.has("topReference"))
        filter.referenceNode = scene::topReference(referenceNamed(context, name)).nodeName;
    const bool withNamespace = !call.has("showNamespace") || call.boolean("showNamespace");
    const bool withPath = !call.has("showDagPath") || call.boolean("showDagPath");
    Value::Strings told;
    for (ListedEdit& each : scene::listEdits(scene)) {
        if (!scene::isMeant(scene, filter, each))
            continue;
        scene::renameIn(each.edit,
                        [&](const std::string& word) { return shown(word, withNamespace, withPath); });
        if (call.has("editStrings"))
            told.push_back(scene::melOf(each.edit));
        else
            addNames(told, each.edit, call.has("editNodes"), call.has("editAttrs"));
    }
    return Value(std::move(told));
}

CommandSpec referenceEditCommand()
{
    using A = ArgumentType;
    FlagSpec changeTarget = valueFlag("cet", "changeEditTarget", A::string,
                                      "what edits change, and what they are to change from now on");
    changeTarget.arguments.push_back(A::string);
    std::vector<FlagSpec> flags = {
        switchFlag("r", "removeEdits", "removes edits that are not applied"), std::move(changeTarget),
        switchFlag("afe", "applyFailedEdits", "tries the edits of a loaded reference again that failed")};
    const std::vector<FlagSpec> filters = filterFlags();
    flags.insert(flags.end(), filters.begin(), filters.end());
    return makeCommand("referenceEdit",
                       "Removes and changes edits of references: by reference nodes, files, nodes or plugs",
                       std::move(flags), names(1), referenceEdit);
}

} // namespace tvxhost::mel
