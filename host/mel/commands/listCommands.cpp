// ls: the objects of the scene.
#include "commandSupport.h"
#include "sceneCommands.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::DagNode;
using engine::Node;
using engine::SelectionItem;

namespace {

/// Flags that stand for a type.
struct TypeFlag
{
    const char* flag;
    const char* type;
};

constexpr TypeFlag kTypeFlags[] = {
    {"transforms", "transform"},   {"shapes", "shape"},       {"cameras", "camera"},
    {"lights", "light"},           {"sets", "objectSet"},     {"materials", "lambert"},
    {"geometry", "geometryShape"}, {"textures", "texture2d"},
};

std::vector<SelectionItem> itemsOfNode(Node& node, bool allPaths)
{
    SelectionItem item;
    item.node = &node;
    DagNode* dag = node.asDag();
    if (!dag)
        return {item};
    std::vector<SelectionItem> items;
    for (engine::DagPath& path : engine::DagPath::allTo(*dag)) {
        item.path = std::move(path);
        items.push_back(item);
        if (!allPaths)
            break;
    }
    return items;
}

std::vector<SelectionItem> everything(engine::Scene& scene, bool allPaths)
{
    std::vector<SelectionItem> items;
    for (Node* node : scene.nodes()) {
        if (node == &scene.world())
            continue;
        const std::vector<SelectionItem> paths = itemsOfNode(*node, allPaths);
        items.insert(items.end(), paths.begin(), paths.end());
    }
    return items;
}

void addWithBelow(const SelectionItem& item, std::vector<SelectionItem>& items)
{
    items.push_back(item);
    if (!item.isDag())
        return;
    for (DagNode* child : item.path.node()->children()) {
        SelectionItem below;
        below.node = child;
        below.path = item.path;
        if (below.path.push(*child))
            addWithBelow(below, items);
    }
}

std::vector<SelectionItem> candidates(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    if (call.has("selection") || call.has("orderedSelection"))
        return scene.selection().items();
    if (call.has("hilite"))
        return scene.hilite().items();
    const std::vector<std::string> names = call.names();
    if (names.empty())
        return everything(scene, call.has("allPaths"));
    std::vector<SelectionItem> items;
    for (const std::string& name : names) {
        if (hasWildcard(name)) {
            const std::vector<SelectionItem> found = scene.findItems(name);
            items.insert(items.end(), found.begin(), found.end());
        } else if (const auto found = scene.findItem(name)) {
            const bool isNode = found.value.plug.isNull() && found.value.components.empty();
            if (call.has("allPaths") && isNode && name.find('|') == std::string::npos) {
                const std::vector<SelectionItem> paths = itemsOfNode(*found.value.node, true);
                items.insert(items.end(), paths.begin(), paths.end());
            } else {
                items.push_back(found.value);
            }
        } else if (found.outcome.reason == engine::Reason::ambiguous) {
            // A name that several objects have lists them all.
            const std::vector<SelectionItem> all = scene.findItems("*" + name);
            std::copy_if(all.begin(), all.end(), std::back_inserter(items), [&](const SelectionItem& item) {
                return item.plug.isNull() && item.node->name() == name;
            });
        }
    }
    return items;
}

bool isOfTypes(const Node& node, const ParsedCommand& call)
{
    const auto uses = call.uses("type");
    const auto exact = call.uses("exactType");
    if (uses.empty() && exact.empty())
        return true;
    const auto names = [](const FlagUse* use) { return use->arguments.front().toString(); };
    const std::string& own = node.unknownType.empty() ? node.type().name : node.unknownType;
    return std::any_of(
               uses.begin(), uses.end(),
               [&](const FlagUse* use) { return own == names(use) || node.type().isA(names(use)); }) ||
           std::any_of(exact.begin(), exact.end(), [&](const FlagUse* use) { return own == names(use); });
}

/// Whether a path is templated, visible, invisible when the call asks for such ones.
bool isShownAsAsked(const SelectionItem& item, const ParsedCommand& call)
{
    const auto isRefused = [&](const char* flag, bool (*is)(const engine::DagPath&)) {
        return call.has(flag) && !(item.isDag() && is(item.path));
    };
    return !isRefused("templated", [](const engine::DagPath& path) { return path.isTemplated(); }) &&
           !isRefused("visible", [](const engine::DagPath& path) { return path.isVisible(); }) &&
           !isRefused("invisible", [](const engine::DagPath& path) { return !path.isVisible(); });
}

bool isListed(const SelectionItem& item, const ParsedCommand& call)
{
    Node& node = *item.node;
    DagNode* dag = node.asDag();
    if (call.has("dagObjects") && !dag)
        return false;
    bool asked = false;
    bool matches = false;
    for (const TypeFlag& row : kTypeFlags) {
        if (!call.has(row.flag))
            continue;
        asked = true;
        matches |= node.type().isA(row.type);
    }
    if (asked && !matches)
        return false;
    if (call.has("lockedNodes") && !node.isLockedNode)
        return false;
    if (call.has("defaultNodes") && !node.isDefaultNode)
        return false;
    if (call.has("assemblies") && !(dag && !dag->parents().empty() && dag->parents().front()->isWorld()))
        return false;
    if (call.has("noIntermediate") && dag && dag->isIntermediate())
        return false;
    if (!isShownAsAsked(item, call))
        return false;
    return isOfTypes(node, call);
}

/// "vtx[0:2]" as one item per component.
std::vector<std::string> flattened(const SelectionItem& item, bool fullPath)
{
    const std::string name = item.name(fullPath);
    const std::size_t colon = item.components.find(':');
    const std::size_t open = item.components.find('[');
    if (colon == std::string::npos || open == std::string::npos ||
        item.components.find('[', open + 1) != std::string::npos)
        return {name};
    const int first = std::atoi(item.components.c_str() + open + 1);
    const int last = std::atoi(item.components.c_str() + colon + 1);
    const std::string stem = name.substr(0, name.rfind('[') + 1);
    std::vector<std::string> names;
    for (int i = first; i <= last; ++i)
        names.push_back(stem + std::to_string(i) + "]");
    return names;
}

std::vector<std::string> namesOf(const SelectionItem& item, const ParsedCommand& call)
{
    if (call.has("uuid"))
        return {item.node->uuid()};
    if (call.has("flatten"))
        return flattened(item, call.has("long"));
    return {item.name(call.has("long"))};
}

void keepEnd(Value::Strings& list, const ParsedCommand& call)
{
    const auto keep = [&](const char* flag) {
        return std::min(list.size(), static_cast<std::size_t>(std::max(0, call.integer(flag))));
    };
    if (call.has("head"))
        list.resize(keep("head"));
    if (call.has("tail"))
        list.erase(list.begin(), list.end() - static_cast<std::ptrdiff_t>(keep("tail")));
}

Value ls(CommandContext& context, const ParsedCommand& call)
{
    std::vector<SelectionItem> items = candidates(context, call);
    if (call.has("dagObjects") && !(call.names().empty() && !call.has("selection"))) {
        std::vector<SelectionItem> deep;
        for (const SelectionItem& item : items)
            addWithBelow(item, deep);
        items = std::move(deep);
    }
    Value::Strings list;
    for (const SelectionItem& item : items) {
        if (!isListed(item, call))
            continue;
        for (std::string& name : namesOf(item, call)) {
            list.push_back(std::move(name));
            if (call.has("showType"))
                list.push_back(item.node->type().name);
        }
    }
    keepEnd(list, call);
    return Value(std::move(list));
}

} // namespace

void registerListCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({makeCommand(
        "ls", "Lists objects",
        {switchFlag("sl", "selection", "those that are selected"),
         switchFlag("os", "orderedSelection", "the same in the order of selection"),
         switchFlag("hl", "hilite", "those that are hilited for components"),
         switchFlag("tm", "templated", "templated objects"),
         switchFlag("v", "visible", "visible objects"),
         switchFlag("iv", "invisible", "hidden objects"),
         switchFlag("l", "long", "full paths"),
         valueFlag("typ", "type", A::string, "of this type or one derived from it", kCreate | kMultiUse),
         valueFlag("et", "exactType", A::string, "of exactly this type", kCreate | kMultiUse),
         switchFlag("dag", "dagObjects", "DAG nodes, and what is below the named ones"),
         switchFlag("s", "shapes", "shapes"),
         switchFlag("tr", "transforms", "transforms"),
         switchFlag("ca", "cameras", "cameras"),
         switchFlag("lt", "lights", "lights"),
         switchFlag("mat", "materials", "materials"),
         switchFlag("tex", "textures", "textures"),
         switchFlag("g", "geometry", "geometry"),
         switchFlag("set", "sets", "sets"),
         switchFlag("as", "assemblies", "top-level transforms"),
         switchFlag("dn", "defaultNodes", "the nodes of every scene"),
         switchFlag("ap", "allPaths", "every path of instanced objects"),
         switchFlag("fl", "flatten", "each component by itself"),
         valueFlag("hd", "head", A::integer, "the first ones only"),
         valueFlag("tl", "tail", A::integer, "the last ones only"),
         switchFlag("ln", "lockedNodes", "locked nodes"),
         switchFlag("uid", "uuid", "unique identifiers instead of names"),
         switchFlag("st", "showType", "each name followed by its type"),
         switchFlag("ni", "noIntermediate", "no intermediate objects")},
        names(), ls)});
}

} // namespace tvxhost::mel
