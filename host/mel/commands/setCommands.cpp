// sets: groups of objects.
#include "attributeFlags.h"
#include "sceneCommands.h"
#include "setEntry.h"
#include "setMembers.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::DagNode;
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

Value::Strings namesOf(const Members& members)
{
    Value::Strings names;
    for (const SelectionItem& member : members)
        names.push_back(member.name());
    return names;
}

/// The members of a set, without intermediate objects when -noIntermediate says so.
Members membersOf(const ParsedCommand& call, Node& set)
{
    Members members = setMembers(set);
    const auto isIntermediate = [](const SelectionItem& item) {
        DagNode* dag = item.node->asDag();
        return dag && dag->isIntermediate();
    };
    if (call.has("noIntermediate"))
        members.erase(std::remove_if(members.begin(), members.end(), isIntermediate), members.end());
    return members;
}

/// The objects of members, each once.
Members nodesOf(Members members)
{
    for (SelectionItem& member : members)
        member.components.clear();
    return merged(members);
}

/// Attributes of sets that are made, told and changed by their flags.
const AttributeFlags& kAttributes()
{
    static const AttributeFlags flags = {
        {"t", "text", ArgumentType::string, "annotation", "a note with the set"},
        {"co", "color", ArgumentType::integer, "memberWireframeColor",
         "the colour of its members, 0 to 7 of the user's; -1: none"},
    };
    return flags;
}

Value query(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<std::string> names = call.names();
    if (names.size() != 1)
        context.fail("'sets' in query mode needs one set");
    Node& set = setNamed(context, names.front());
    if (call.has("size"))
        return Value(static_cast<int>(countFlattened(membersOf(call, set))));
    if (call.has("renderable"))
        return Value(set.type().isA("shadingEngine"));
    for (const ComponentSet& row : kComponentSets)
        if (call.has(row.longName))
            return Value(isMadeFor(context, set, row));
    if (const auto asked = queriedAttribute(context, call, kAttributes(), set))
        return *asked;
    const Members members = membersOf(call, set);
    return Value(namesOf(call.has("nodesOnly") ? nodesOf(members) : merged(members)));
}

/// The objects as members of a set.
Members meant(Node& set, const Members& items)
{
    Members all;
    for (const SelectionItem& item : items)
        for (const SelectionItem& member : membersMeant(set, item))
            all.push_back(member);
    return all;
}

Value areMembers(const CommandContext&, const ParsedCommand&, Node& set, const Members& items)
{
    const Members wanted = meant(set, items);
    return Value(std::all_of(wanted.begin(), wanted.end(), [&](const SelectionItem& item) {
        return membershipOf(set, item) == Membership::wholly;
    }));
}

Value isAnyMember(const CommandContext&, const ParsedCommand&, Node& set, const Members& items)
{
    const Members wanted = meant(set, items);
    return Value(std::any_of(wanted.begin(), wanted.end(), [&](const SelectionItem& item) {
        return membershipOf(set, item) != Membership::none;
    }));
}

/// A flag whose value is the set; what is named beside it are objects.
struct SetChange
{
    const char* shortName;
    const char* longName;
    const char* help;
    Value (*apply)(const CommandContext& context, const ParsedCommand& call, Node& set, const Members& items);
};

template <Entry kEntry>
Value addMembers(const CommandContext& context, const ParsedCommand& call, Node& set, const Members& items)
{
    const bool isSilent = kEntry == Entry::lenient && call.has("noWarnings");
    for (const SelectionItem& item : items)
        enter(context, set, item, isSilent ? Entry::silent : kEntry);
    return Value(sceneOf(context).shortestName(set));
}

Value removeMembers(const CommandContext& context, const ParsedCommand&, Node& set, const Members& items)
{
    // What is named twice leaves once.
    for (const SelectionItem& item : merged(meant(set, items)))
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
    {"am", "anyMember", "whether one of the objects, or some component of it, is in this set", isAnyMember},
};

// Operations on sets

/// Sets stand for their members, other objects for themselves.
Members membersOf(const ParsedCommand& call, const SelectionItem& item)
{
    return item.node->type().isA("objectSet") ? membersOf(call, *item.node) : Members{item};
}

/// The members of each set or object that a call names, or that is selected.
std::vector<Members> othersOf(const CommandContext& context, const ParsedCommand& call)
{
    std::vector<Members> others;
    for (const SelectionItem& item : itemsOrSelection(context, call.names()))
        others.push_back(membersOf(call, item));
    return others;
}

void append(const Members& more, Members& members)
{
    members.insert(members.end(), more.begin(), more.end());
}

/// A flag that names one set, which is joined with those that the call names.
struct SetOperation
{
    const char* shortName;
    const char* longName;
    const char* help;
    /// Brings the members of another set into the result so far.
    void (*with)(Members& result, const Members& other);
};

constexpr SetOperation kOperations[] = {
    {"un", "union", "the members of this set and of the others",
     [](Members& result, const Members& other) { append(without(other, result), result); }},
    {"int", "intersection", "the members of this set that are in all others",
     [](Members& result, const Members& other) { result = common(result, other); }},
    {"sub", "subtract", "the members of this set that are in no other",
     [](Members& result, const Members& other) { result = without(result, other); }},
};

Value operate(const CommandContext& context, const ParsedCommand& call, const SetOperation& operation)
{
    const std::vector<Members> others = othersOf(context, call);
    Members result = membersOf(call, setNamed(context, call.string(operation.longName)));
    for (const Members& other : others)
        operation.with(result, other);
    return Value(namesOf(merged(result)));
}

Value isIntersecting(const CommandContext& context, const ParsedCommand& call)
{
    const Members members = membersOf(call, setNamed(context, call.string("isIntersecting")));
    const std::vector<Members> others = othersOf(context, call);
    return Value(std::any_of(others.begin(), others.end(),
                             [&](const Members& other) { return !common(other, members).empty(); }));
}

/// What a set holds with the members of the sets in it instead of these.
void addFlattened(Node& set, std::vector<const Node*>& seen, Members& members)
{
    if (std::find(seen.begin(), seen.end(), &set) != seen.end())
        return;
    seen.push_back(&set);
    for (const SelectionItem& member : setMembers(set))
        if (member.node->type().isA("objectSet"))
            addFlattened(*member.node, seen, members);
        else
            members.push_back(member);
}

Value flatten(const CommandContext& context, Node& set)
{
    std::vector<const Node*> seen;
    Members flat;
    addFlattened(set, seen, flat);
    for (const SelectionItem& member : setMembers(set))
        if (member.node->type().isA("objectSet"))
            require(context, removeSetMember(set, member));
    for (const SelectionItem& member : flat)
        require(context, addSetMember(set, member));
    return Value(sceneOf(context).shortestName(set));
}

// Making

void turnOn(const CommandContext& context, Node& set, const char* attribute)
{
    require(context, engine::writeNumber(plugOf(context, set, attribute), engine::Number(true)));
}

/// A shading group is in the partition of all, and has the default shader unless it is to have none.
void makeRenderable(const CommandContext& context, const ParsedCommand& call, Node& group)
{
    engine::Scene& scene = sceneOf(context);
    turnOn(context, group, "renderableOnlySet");
    require(context, scene.connect(plugOf(context, group, "partition"),
                                   scene.nextAvailable(plugNamed(context, ":renderPartition.sets"))));
    if (!call.boolean("noSurfaceShader"))
        require(context, scene.connect(plugNamed(context, ":lambert1.outColor"),
                                       plugOf(context, group, "surfaceShader")));
}

/// What the new set is to hold.
Members newMembers(const CommandContext& context, const ParsedCommand& call)
{
    if (call.has("copy"))
        return setMembers(setNamed(context, call.string("copy")));
    return call.has("empty") ? Members() : itemsOrSelection(context, call.names());
}

Node& create(const CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const bool isRenderable = call.boolean("renderable");
    const Members members = newMembers(context, call);
    Node& set = *valueOf(
        context, scene.createNode(isRenderable ? "shadingEngine" : "objectSet", call.string("name", "set1")));
    if (isRenderable)
        makeRenderable(context, call, set);
    for (const ComponentSet& row : kComponentSets)
        if (call.boolean(row.longName))
            turnOn(context, set, row.attribute);
    setAttributes(context, call, kAttributes(), set);
    for (const SelectionItem& item : members)
        enter(context, set, item, Entry::forced);
    return set;
}

Value split(const CommandContext& context, const ParsedCommand& call)
{
    Node& from = setNamed(context, call.string("split"));
    const Members items = itemsOrSelection(context, call.names());
    removeMembers(context, call, from, items);
    return Value(sceneOf(context).shortestName(create(context, call)));
}

Value edit(const CommandContext& context, const ParsedCommand& call)
{
    const std::vector<std::string> names = call.names();
    if (names.size() != 1)
        context.fail("'sets' needs one set to edit");
    Node& set = setNamed(context, names.front());
    setAttributes(context, call, kAttributes(), set);
    return Value(sceneOf(context).shortestName(set));
}

Value sets(CommandContext& context, const ParsedCommand& call)
{
    if (call.queries())
        return query(context, call);
    if (call.has("clear")) {
        Node& set = setNamed(context, call.string("clear"));
        for (const SelectionItem& member : setMembers(set))
            require(context, removeSetMember(set, member));
        return Value(sceneOf(context).shortestName(set));
    }
    if (call.has("flatten"))
        return flatten(context, setNamed(context, call.string("flatten")));
    if (call.has("split"))
        return split(context, call);
    if (call.has("isIntersecting"))
        return isIntersecting(context, call);
    for (const SetChange& change : kChanges)
        if (call.has(change.longName))
            return change.apply(context, call, setNamed(context, call.string(change.longName)),
                                itemsOrSelection(context, call.names()));
    for (const SetOperation& operation : kOperations)
        if (call.has(operation.longName))
            return operate(context, call, operation);
    if (call.edits())
        return edit(context, call);
    return Value(sceneOf(context).shortestName(create(context, call)));
}

} // namespace

void registerSetCommands(CommandTable& table)
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = {
        valueFlag("n", "name", A::string, "the new set's name"),
        switchFlag("em", "empty", "the new set has no members"),
        valueFlag("cp", "copy", A::name, "the new set has the members of this one"),
        valueFlag("r", "renderable", A::boolean, "makes a shading group", kCreateQuery),
        valueFlag("nss", "noSurfaceShader", A::boolean, "a shading group without a shader"),
        valueFlag("cl", "clear", A::name, "empties this set", kCreateEdit),
        valueFlag("fl", "flatten", A::name, "puts the members of sets in place of those in this one",
                  kCreateEdit),
        valueFlag("sp", "split", A::name, "moves the objects from this set to a new one"),
        valueFlag("ii", "isIntersecting", A::name, "whether this set shares a member with the others"),
        switchFlag("s", "size", "how many members there are", kQuery),
        switchFlag("no", "nodesOnly", "objects, not their components", kQuery),
        switchFlag("ni", "noIntermediate", "leaves intermediate objects out", kCreateQuery),
        switchFlag("nw", "noWarnings", "does not say what -include leaves out", kCreateEdit),
        refusedFlag("l", "layer", "obsolete"),
        refusedFlag("af", "afterFilters", "there are no deformers"),
    };
    for (const ComponentSet& row : kComponentSets)
        flags.push_back(valueFlag(row.shortName, row.longName, A::boolean,
                                  std::string("a set that holds only ") + row.what, kCreateQuery));
    for (const FlagSpec& flag : specsOf(kAttributes()))
        flags.push_back(flag);
    for (const SetChange& change : kChanges)
        flags.push_back(valueFlag(change.shortName, change.longName, A::name, change.help, kCreateEdit));
    for (const SetOperation& operation : kOperations)
        flags.push_back(valueFlag(operation.shortName, operation.longName, A::name, operation.help));
    table.add({makeCommand("sets", "Makes sets and changes their members", std::move(flags), names(), sets,
                           kAllModes)});
}

} // namespace tvxhost::mel
