// ls: the objects of the scene.
#include "commandSupport.h"
#include "memberLists.h"
#include "sceneCommands.h"

#include "engine/deletion.h"
#include "engine/glob.h"
#include "engine/typeName.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::DagNode;
using engine::Node;
using engine::SelectionItem;

namespace {

/// A flag that stands for a type of node. Objects of any of the types that a call names are listed.
struct TypeFlag
{
    const char* shortName;
    const char* longName;
    const char* help;
    const char* type;
    const char* classification; ///< what a type's classification begins with instead; null: only the type
};

constexpr TypeFlag kTypeFlags[] = {
    {"s", "shapes", "shapes", "shape", nullptr},
    {"tr", "transforms", "transforms", "transform", nullptr},
    {"ca", "cameras", "cameras", "camera", nullptr},
    {"lt", "lights", "lights", "light", nullptr},
    {"mat", "materials", "materials", "lambert", "shader/"},
    {"tex", "textures", "textures", "texture2d", "texture/"},
    {"g", "geometry", "geometry", "geometryShape", nullptr},
    {"set", "sets", "sets", "objectSet", nullptr},
    {"pr", "partitions", "partitions", "partition", nullptr},
    {"con", "containers", "containers", "container", nullptr},
    {"rf", "references", "references", "reference", nullptr},
    {"rg", "renderGlobals", "settings of rendering", "renderGlobals", nullptr},
    {"rs", "renderSetups", "the same", "renderGlobals", nullptr},
    {"rq", "renderQualities", "qualities of rendering", "renderQuality", nullptr},
    {"rr", "renderResolutions", "resolutions", "resolution", nullptr},
};

/// A flag that lists only some objects.
struct StateFlag
{
    const char* shortName;
    const char* longName;
    const char* help;
    bool (*holds)(const SelectionItem& item);
};

bool isTopTransform(const SelectionItem& item)
{
    const DagNode* dag = item.node->asDag();
    return dag && !dag->parents().empty() && dag->parents().front()->isWorld();
}

bool isIntermediate(const SelectionItem& item)
{
    DagNode* dag = item.node->asDag();
    return dag && dag->isIntermediate();
}

constexpr StateFlag kStateFlags[] = {
    {"tm", "templated", "templated objects",
     [](const SelectionItem& item) { return item.isDag() && item.path.isTemplated(); }},
    {"ut", "untemplated", "objects that are not templated",
     [](const SelectionItem& item) { return item.isDag() && !item.path.isTemplated(); }},
    {"v", "visible", "visible objects",
     [](const SelectionItem& item) { return item.isDag() && item.path.isVisible(); }},
    {"iv", "invisible", "hidden objects",
     [](const SelectionItem& item) { return item.isDag() && !item.path.isVisible(); }},
    {"dag", "dagObjects", "DAG nodes, and what is below the named ones",
     [](const SelectionItem& item) { return item.node->asDag() != nullptr; }},
    {"dep", "dependencyNodes", "nodes of any kind", [](const SelectionItem&) { return true; }},
    {"lf", "leaf", "DAG nodes with nothing below them",
     [](const SelectionItem& item) { return item.node->asDag() && item.node->asDag()->children().empty(); }},
    {"as", "assemblies", "top-level transforms", isTopTransform},
    {"ln", "lockedNodes", "locked nodes", [](const SelectionItem& item) { return item.node->isLockedNode; }},
    {"dn", "defaultNodes", "the nodes of every scene",
     [](const SelectionItem& item) { return item.node->isDefaultNode; }},
    {"ud", "undeletable", "nodes that cannot be deleted",
     [](const SelectionItem& item) { return engine::isUndeletable(*item.node) || item.node->isLockedNode; }},
    {"rn", "referencedNodes", "nodes of referenced files",
     [](const SelectionItem& item) { return item.node->isReferenced; }},
    {"ro", "readOnly", "nodes that cannot be changed freely",
     [](const SelectionItem& item) { return item.node->isReferenced || item.node->isLockedNode; }},
    {"io", "intermediateObjects", "intermediate objects", isIntermediate},
    {"ni", "noIntermediate", "no intermediate objects",
     [](const SelectionItem& item) { return !isIntermediate(item); }},
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

/// What matches a name in a namespace or in any of those within it; the root is empty.
void addFromNamespaces(engine::Scene& scene, const std::string& space, const std::string& pattern,
                       std::vector<SelectionItem>& items)
{
    const engine::Glob glob(pattern);
    for (Node* node : scene.nodesIn(space)) {
        const std::string& name = node->name();
        if (glob.matches(std::string_view(name).substr(name.rfind(':') + 1)))
            items.push_back(itemsOfNode(*node, false).front());
    }
}

/// The node of a unique identifier; false when the text is none, or no node has it.
bool addByUuid(engine::Scene& scene, const std::string& text, std::vector<SelectionItem>& items)
{
    constexpr std::size_t kLength = 36;
    if (text.size() != kLength || std::count(text.begin(), text.end(), '-') != 4)
        return false;
    const auto found = std::find_if(scene.nodes().begin(), scene.nodes().end(),
                                    [&](const Node* node) { return node->uuid() == text; });
    if (found == scene.nodes().end())
        return false;
    items.push_back(itemsOfNode(**found, false).front());
    return true;
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
        const std::size_t deep = name.find("::");
        if (deep != std::string::npos) {
            addFromNamespaces(scene, name.substr(0, deep), name.substr(deep + 2), items);
        } else if (call.boolean("recursive") && name.find(':') == std::string::npos) {
            addFromNamespaces(scene, "", name, items);
        } else if (addByUuid(scene, name, items)) {
            continue;
        } else if (hasWildcard(name)) {
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
    const std::string& own = typeNameOf(node);
    const auto isAnyOf = [&](const char* flag, const auto& matches) {
        const auto uses = call.uses(flag);
        return std::any_of(uses.begin(), uses.end(),
                           [&](const FlagUse* use) { return matches(use->arguments.front().toString()); });
    };
    const auto derives = [&](const std::string& type) { return own == type || node.type().isA(type); };
    const auto equals = [&](const std::string& type) { return own == type; };
    if (isAnyOf("excludeType", derives))
        return false;
    return (!call.has("type") && !call.has("exactType")) || isAnyOf("type", derives) ||
           isAnyOf("exactType", equals);
}

bool isOfTypeFlags(const Node& node, const ParsedCommand& call)
{
    bool isAsked = false;
    for (const TypeFlag& row : kTypeFlags) {
        if (!call.has(row.longName))
            continue;
        isAsked = true;
        if (node.type().isA(row.type) ||
            (row.classification && node.type().classification.rfind(row.classification, 0) == 0))
            return true;
    }
    return !isAsked;
}

bool isListed(const SelectionItem& item, const ParsedCommand& call)
{
    return std::all_of(std::begin(kStateFlags), std::end(kStateFlags),
                       [&](const StateFlag& row) { return !call.has(row.longName) || row.holds(item); }) &&
           isOfTypeFlags(*item.node, call) && isOfTypes(*item.node, call);
}

std::string withShortAttributes(const engine::Plug& plug, bool isLong)
{
    engine::PlugNameStyle style;
    style.longNames = false;
    style.longNodePath = isLong;
    return plug.name(style);
}

std::vector<std::string> namesOf(const CommandContext& context, SelectionItem item, const ParsedCommand& call)
{
    if (call.has("uuid"))
        return {item.node->uuid()};
    if (call.has("objectsOnly")) {
        item.plug = {};
        item.components.clear();
    }
    const bool isLong = call.has("long") || call.has("absoluteName");
    std::vector<std::string> names;
    for (const SelectionItem& one : call.has("flatten") ? flattened(context, {item}) : Members{item})
        names.push_back(one.name(isLong));
    if (call.has("shortNames") && !item.plug.isNull())
        names = {withShortAttributes(item.plug, isLong)};
    // Of a path each part is absolute already.
    if (call.has("absoluteName"))
        for (std::string& name : names)
            name.insert(0, name.front() == '|' ? "" : ":");
    return names;
}

std::string namespaceOf(const Node& node, bool isAbsolute)
{
    const std::size_t colon = node.name().rfind(':');
    if (colon == std::string::npos)
        return ":";
    return (isAbsolute ? ":" : "") + node.name().substr(0, colon);
}

Value typeNames(engine::Scene& scene)
{
    Value::Strings list;
    for (const engine::NodeType* type : scene.types().all())
        if (!type->isAbstract)
            list.push_back(type->name);
    return Value(std::move(list));
}

Value ls(CommandContext& context, const ParsedCommand& call)
{
    if (call.has("nodeTypes"))
        return typeNames(sceneOf(context));
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
        for (std::string& name : namesOf(context, item, call)) {
            list.push_back(std::move(name));
            if (call.has("showType"))
                list.push_back(typeNameOf(*item.node));
            if (call.has("showNamespace"))
                list.push_back(namespaceOf(*item.node, call.has("absoluteName")));
        }
    }
    keepEnd(list, call);
    return Value(std::move(list));
}

} // namespace

void registerListCommands(CommandTable& table)
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = {
        switchFlag("sl", "selection", "those that are selected"),
        switchFlag("os", "orderedSelection", "the same in the order of selection"),
        switchFlag("hl", "hilite", "those that are hilited for components"),
        switchFlag("l", "long", "full paths"),
        switchFlag("sn", "shortNames", "attributes by their short names"),
        switchFlag("an", "absoluteName", "names with all namespaces, from the root on"),
        valueFlag("r", "recursive", A::boolean, "names are looked for in all namespaces"),
        valueFlag("typ", "type", A::string, "of this type or one derived from it", kCreate | kMultiUse),
        valueFlag("et", "exactType", A::string, "of exactly this type", kCreate | kMultiUse),
        valueFlag("ext", "excludeType", A::string, "none of this type or one derived from it",
                  kCreate | kMultiUse),
        switchFlag("ap", "allPaths", "every path of instanced objects"),
        switchFlag("fl", "flatten", "each component by itself"),
        switchFlag("o", "objectsOnly", "objects instead of their components and attributes"),
        valueFlag("hd", "head", A::integer, "the first ones only"),
        valueFlag("tl", "tail", A::integer, "the last ones only"),
        switchFlag("uid", "uuid", "unique identifiers instead of names"),
        switchFlag("st", "showType", "each name followed by its type"),
        switchFlag("sns", "showNamespace", "each name followed by its namespace"),
        switchFlag("nt", "nodeTypes", "all types of node instead of nodes"),
        refusedFlag("ct", "containerType", "nothing knows the types of containers here"),
        refusedFlag("gh", "ghost", "the host draws no ghosts"),
        refusedFlag("lv", "live", "there are no live objects"),
        refusedFlag("mod", "modified", "the host does not keep what a file held"),
        refusedFlag("pn", "persistentNodes", "the host does not tell which nodes survive a new scene"),
        refusedFlag("pl", "planes", "there are no sketch planes"),
        refusedFlag("psh", "preSelectHilite", "there is no mouse"),
    };
    for (const TypeFlag& row : kTypeFlags)
        flags.push_back(switchFlag(row.shortName, row.longName, row.help));
    for (const StateFlag& row : kStateFlags)
        flags.push_back(switchFlag(row.shortName, row.longName, row.help));
    table.add({makeCommand("ls", "Lists objects", std::move(flags), names(), ls)});
}

} // namespace tvxhost::mel
