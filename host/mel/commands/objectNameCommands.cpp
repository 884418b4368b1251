// Procedures that Maya has as scripts: how objects are called, and which is above which.
#include "commandSupport.h"
#include "language.h"
#include "sceneCommands.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::DagNode;

namespace {

using Arguments = std::vector<Value>;

/// The nodes above an object, the nearest first, without the world.
std::vector<DagNode*> above(const CommandContext& context, const std::string& name)
{
    std::vector<DagNode*> nodes;
    const auto item = sceneOf(context).findItem(name);
    const DagNode* node = item ? item.value.node->asDag() : nullptr;
    while (node && !node->parents().empty() && !node->parents().front()->isWorld()) {
        nodes.push_back(node->parents().front());
        node = nodes.back();
    }
    return nodes;
}

Value nameOrNothing(const CommandContext& context, const DagNode* node)
{
    return node ? sceneOf(context).shortestName(*node) : std::string();
}

Value firstParentOf(CommandContext& context, Arguments& arguments)
{
    const std::vector<DagNode*> nodes = above(context, arguments[0].string());
    return nameOrNothing(context, nodes.empty() ? nullptr : nodes.front());
}

Value rootOf(CommandContext& context, Arguments& arguments)
{
    const std::vector<DagNode*> nodes = above(context, arguments[0].string());
    return nameOrNothing(context, nodes.empty() ? nullptr : nodes.back());
}

Value isParentOf(CommandContext& context, Arguments& arguments)
{
    const auto parent = sceneOf(context).findItem(arguments[0].string());
    const std::vector<DagNode*> nodes = above(context, arguments[1].string());
    return parent && std::find(nodes.begin(), nodes.end(), parent.value.node->asDag()) != nodes.end();
}

Value isSameObject(CommandContext& context, Arguments& arguments)
{
    const auto one = sceneOf(context).findItem(arguments[0].string());
    const auto other = sceneOf(context).findItem(arguments[1].string());
    return one && other && one.value == other.value;
}

Value longNameOf(CommandContext& context, Arguments& arguments)
{
    const auto item = sceneOf(context).findItem(arguments[0].string());
    return item ? item.value.name(true) : std::string();
}

Value shortNameOf(CommandContext& context, Arguments& arguments)
{
    const auto item = sceneOf(context).findItem(arguments[0].string());
    return item ? item.value.name() : std::string();
}

Value attributeExists(CommandContext& context, Arguments& arguments)
{
    const auto item = sceneOf(context).findItem(arguments[1].string());
    return item && static_cast<bool>(item.value.node->findPlug(arguments[0].string()));
}

} // namespace

void registerObjectNameCommands(CommandTable& table)
{
    table.add({
        function("firstParentOf", "The object above one; \"\" when there is none", {kString}, firstParentOf),
        function("rootOf", "The top object above one; \"\" when there is none", {kString}, rootOf),
        function("isParentOf", "Whether an object is above another", {kString, kString}, isParentOf),
        function("isSameObject", "Whether two names mean one object", {kString, kString}, isSameObject),
        function("longNameOf", "The full path of an object; \"\" when it is missing or ambiguous", {kString},
                 longNameOf),
        function("shortNameOf", "The shortest name of an object; \"\" when it is missing or ambiguous",
                 {kString}, shortNameOf),
        function("attributeExists", "Whether an attribute is on a node", {kString, kString}, attributeExists),
    });
}

} // namespace tvxhost::mel
