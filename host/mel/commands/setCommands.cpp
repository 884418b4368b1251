// sets: groups of objects.
#include "commandSupport.h"
#include "sceneCommands.h"
#include "setMembers.h"

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
    return Value(Value::Strings(memberNames(set)));
}

bool contains(Node& set, const SelectionItem& wanted)
{
    for (const SelectionItem& member : setMembers(set))
        if (member == wanted)
            return true;
    return false;
}

/// -add, -forceElement, -remove, -clear, -isMember: the flag's value is the set, the rest are members.
Value change(CommandContext& context, const ParsedCommand& call, const std::string& flag)
{
    Node& set = setNamed(context, call.string(flag));
    if (flag == "clear") {
        for (const SelectionItem& member : setMembers(set))
            require(context, removeSetMember(set, member));
        return {};
    }
    bool areMembers = true;
    for (const SelectionItem& item : itemsOrSelection(context, call.names())) {
        if (flag == "isMember")
            areMembers = areMembers && contains(set, item);
        else
            require(context, flag == "remove" ? removeSetMember(set, item) : addSetMember(set, item));
    }
    return flag == "isMember" ? Value(areMembers) : Value(sceneOf(context).shortestName(set));
}

Value sets(CommandContext& context, const ParsedCommand& call)
{
    if (call.queries())
        return query(context, call);
    for (const char* flag : {"addElement", "include", "forceElement", "remove", "clear", "isMember"})
        if (call.has(flag))
            return change(context, call, flag);
    engine::Scene& scene = sceneOf(context);
    const std::string type = call.has("renderable") ? "shadingEngine" : "objectSet";
    Node& set = *valueOf(context, scene.createNode(type, call.string("name", "set1")));
    if (!call.has("empty"))
        for (const SelectionItem& item : itemsOrSelection(context, call.names()))
            require(context, addSetMember(set, item));
    return Value(scene.shortestName(set));
}

} // namespace

void registerSetCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({makeCommand(
        "sets", "Makes sets and changes their members",
        {valueFlag("n", "name", A::string, "the new set's name"),
         switchFlag("em", "empty", "the new set has no members"),
         switchFlag("r", "renderable", "makes a shading group"),
         valueFlag("nss", "noSurfaceShader", A::boolean, "a shading group without a shader"),
         valueFlag("add", "addElement", A::name, "adds the objects to this set", kCreateEdit),
         valueFlag("in", "include", A::name, "adds the objects to this set", kCreateEdit),
         valueFlag("fe", "forceElement", A::name, "adds the objects to this set", kCreateEdit),
         valueFlag("rm", "remove", A::name, "takes the objects out of this set", kCreateEdit),
         valueFlag("cl", "clear", A::name, "empties this set", kCreateEdit),
         valueFlag("im", "isMember", A::name, "whether the objects are all in this set", kCreateEdit),
         switchFlag("s", "size", "how many members there are", kQuery)},
        names(), sets, kAllModes)});
}

} // namespace tvxhost::mel
