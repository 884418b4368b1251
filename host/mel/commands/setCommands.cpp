// sets: groups of objects.
#include "attributeFlags.h"
#include "sceneCommands.h"
#include "setMembers.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::Node;
using engine::SelectionItem;

namespace {

Node& setNamed(const CommandContext& context, const std::string& name)
{
    Node& set = nodeNamed(context, name);
    if (!set.type().isA("objectSet"))
        context.fail("'" + name + "' is not a set");
    return set;
}

std::vector<std::string> memberNames(Node& set)
{
    std::vector<std::string> names;
    for (const SelectionItem& member : setMembers(set))
        names.push_back(member.name());
    return names;
}

Value query(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<std::string> names = call.names();
    if (names.size() != 1)
        context.fail("'sets' in query mode needs one set");
    Node& set = setNamed(context, names.front());
    if (call.has("size"))
        return Value(static_cast<int>(setMembers(set).size()));
    if (call.has("renderable"))
        return Value(set.type().isA("shadingEngine"));
    if (call.has("text"))
        return Value(valueOf(context, readString(plugOf(context, set, "annotation"))));
    return Value(Value::Strings(memberNames(set)));
}

using Members = std::vector<SelectionItem>;

bool isAmong(const Members& members, const SelectionItem& wanted)
{
    return std::find(members.begin(), members.end(), wanted) != members.end();
}

/// The sets of the partitions that a set is in, without itself: a member of one is in no other of them.
std::vector<Node*> rivalsOf(Node& set)
{
    std::vector<Node*> rivals;
    const auto own = set.findPlug("partition");
    if (!own)
        return rivals;
    for (const engine::Plug& place : engine::destinationsOf(own.value)) {
        const engine::Plug array = place.isElement() ? place.array() : place;
        for (const int index : engine::existingElements(array)) {
            const engine::Plug source = engine::sourceOf(array.element(index));
            if (!source.isNull() && source.node() != &set)
                rivals.push_back(source.node());
        }
    }
    return rivals;
}

/// How new members are put into a set that shares a partition with others.
enum class Entry
{
    plain,   ///< an error for what is in another of them
    lenient, ///< such objects are left out, with a warning
    forced   ///< they leave the other set
};

void enter(const CommandContext& context, Node& set, const SelectionItem& item, Entry entry)
{
    for (Node* rival : rivalsOf(set)) {
        if (!isAmong(setMembers(*rival), item))
            continue;
        if (entry == Entry::forced) {
            require(context, removeSetMember(*rival, item));
            continue;
        }
        const std::string message = "'" + item.name() + "' is in '" + rival->name() + "' and cannot be in '" +
                                    set.name() + "' of the same partition";
        if (entry == Entry::plain)
            context.fail(message);
        context.warn(message);
        return;
    }
    require(context, addSetMember(set, item));
}

Value areMembers(const CommandContext&, Node& set, const Members& items)
{
    const Members members = setMembers(set);
    return Value(std::all_of(items.begin(), items.end(),
                             [&](const SelectionItem& item) { return isAmong(members, item); }));
}

/// A flag whose value is the set; what is named beside it are objects.
struct SetChange
{
    const char* shortName;
    const char* longName;
    const char* help;
    Value (*apply)(const CommandContext& context, Node& set, const Members& items);
};

template <Entry kEntry>
Value addMembers(const CommandContext& context, Node& set, const Members& items)
{
    for (const SelectionItem& item : items)
        enter(context, set, item, kEntry);
    return Value(sceneOf(context).shortestName(set));
}

Value removeMembers(const CommandContext& context, Node& set, const Members& items)
{
    for (const SelectionItem& item : items)
        require(context, removeSetMember(set, item));
    return Value(sceneOf(context).shortestName(set));
}

constexpr SetChange kChanges[] = {
    {"add", "addElement", "adds the objects to this set", addMembers<Entry::plain>},
    {"in", "include", "adds the objects to this set that can be in it", addMembers<Entry::lenient>},
    {"fe", "forceElement",
     "adds the objects to this set and takes them out of those they cannot be in as well",
     addMembers<Entry::forced>},
    {"rm", "remove", "takes the objects out of this set", removeMembers},
    {"im", "isMember", "whether the objects are all in this set", areMembers},
};

// Operations on sets

/// Sets stand for their members, other objects for themselves.
Members membersOf(const SelectionItem& item)
{
    return item.node->type().isA("objectSet") ? setMembers(*item.node) : Members{item};
}

/// A flag that names one set, which is joined with those that the call names.
struct SetOperation
{
    const char* shortName;
    const char* longName;
    const char* help;
    /// Whether a member of the first is in the result, from whether it is in one, and in all, of the others.
    bool (*keeps)(bool isInOne, bool isInAll);
    bool takesOthers; ///< members of the others are in the result too
};

constexpr SetOperation kOperations[] = {
    {"un", "union", "the members of this set and of the others", [](bool, bool) { return true; }, true},
    {"int", "intersection", "the members of this set that are in all others",
     [](bool, bool isInAll) { return isInAll; }, false},
    {"sub", "subtract", "the members of this set that are in no other",
     [](bool isInOne, bool) { return !isInOne; }, false},
};

Value operate(const CommandContext& context, const ParsedCommand& call, const SetOperation& operation)
{
    std::vector<Members> others;
    for (const SelectionItem& item : itemsOrSelection(context, call.names()))
        others.push_back(membersOf(item));
    Members result;
    for (const SelectionItem& member : setMembers(setNamed(context, call.string(operation.longName)))) {
        const auto has = [&](const Members& other) { return isAmong(other, member); };
        if (operation.keeps(std::any_of(others.begin(), others.end(), has),
                            std::all_of(others.begin(), others.end(), has)))
            result.push_back(member);
    }
    for (const Members& other : others)
        for (const SelectionItem& member : other)
            if (operation.takesOthers && !isAmong(result, member))
                result.push_back(member);
    Value::Strings names;
    for (const SelectionItem& member : result)
        names.push_back(member.name());
    return Value(std::move(names));
}

Value isIntersecting(const CommandContext& context, const ParsedCommand& call)
{
    const Members members = setMembers(setNamed(context, call.string("isIntersecting")));
    for (const SelectionItem& item : itemsOrSelection(context, call.names()))
        for (const SelectionItem& member : membersOf(item))
            if (isAmong(members, member))
                return Value(1);
    return Value(0);
}

// Making

Node& create(const CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const char* type = call.has("renderable") ? "shadingEngine" : "objectSet";
    Node& set = *valueOf(context, scene.createNode(type, call.string("name", "set1")));
    if (call.has("renderable"))
        require(context, scene.connect(plugOf(context, set, "partition"),
                                       scene.nextAvailable(plugNamed(context, ":renderPartition.sets"))));
    if (call.has("text"))
        require(context, writeString(plugOf(context, set, "annotation"), call.string("text")));
    if (call.has("copy"))
        for (const SelectionItem& member : setMembers(setNamed(context, call.string("copy"))))
            require(context, addSetMember(set, member));
    else if (!call.has("empty"))
        for (const SelectionItem& item : itemsOrSelection(context, call.names()))
            enter(context, set, item, Entry::forced);
    return set;
}

Value sets(CommandContext& context, const ParsedCommand& call)
{
    if (call.queries())
        return query(context, call);
    if (call.has("clear")) {
        Node& set = setNamed(context, call.string("clear"));
        return removeMembers(context, set, setMembers(set));
    }
    if (call.has("isIntersecting"))
        return isIntersecting(context, call);
    for (const SetChange& change : kChanges)
        if (call.has(change.longName))
            return change.apply(context, setNamed(context, call.string(change.longName)),
                                itemsOrSelection(context, call.names()));
    for (const SetOperation& operation : kOperations)
        if (call.has(operation.longName))
            return operate(context, call, operation);
    return Value(sceneOf(context).shortestName(create(context, call)));
}

} // namespace

void registerSetCommands(CommandTable& table)
{
    using A = ArgumentType;
    const char* const onlyWhole = "sets hold whole objects here";
    std::vector<FlagSpec> flags = {
        valueFlag("n", "name", A::string, "the new set's name"),
        switchFlag("em", "empty", "the new set has no members"),
        valueFlag("cp", "copy", A::name, "the new set has the members of this one"),
        valueFlag("t", "text", A::string, "a note with the set", kCreateQuery),
        switchFlag("r", "renderable", "makes a shading group", kCreateQuery),
        valueFlag("nss", "noSurfaceShader", A::boolean, "a shading group without a shader"),
        valueFlag("cl", "clear", A::name, "empties this set", kCreateEdit),
        valueFlag("ii", "isIntersecting", A::name, "whether this set shares a member with the others"),
        switchFlag("s", "size", "how many members there are", kQuery),
        switchFlag("no", "nodesOnly", "objects, not their components (always so)", kQuery),
        refusedFlag("eg", "edges", onlyWhole),
        refusedFlag("ep", "editPoints", onlyWhole),
        refusedFlag("fc", "facets", onlyWhole),
        refusedFlag("v", "vertices", onlyWhole),
        refusedFlag("co", "color", "set the attribute memberWireframeColor"),
        refusedFlag("l", "layer", "obsolete"),
        refusedFlag("af", "afterFilters", "there are no deformers"),
        refusedFlag("sp", "split", "there are no deformers"),
        refusedFlag("fl", "flatten", "name the members of the sets instead"),
        refusedFlag("nw", "noWarnings", "warnings say what was left out"),
    };
    for (const SetChange& change : kChanges)
        flags.push_back(valueFlag(change.shortName, change.longName, A::name, change.help, kCreateEdit));
    for (const SetOperation& operation : kOperations)
        flags.push_back(valueFlag(operation.shortName, operation.longName, A::name, operation.help));
    table.add({makeCommand("sets", "Makes sets and changes their members", std::move(flags), names(), sets,
                           kAllModes)});
}

} // namespace tvxhost::mel
