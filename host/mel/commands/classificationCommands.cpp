// getClassification, listNodeTypes: what node types are for.
#include "commandSupport.h"
#include "sceneCommands.h"

#include <algorithm>
#include <string_view>

namespace tvxhost::mel {

namespace {

/// The single classifications of "shader/surface:swatch/mySwatch".
std::vector<std::string_view> componentsOf(std::string_view classification)
{
    std::vector<std::string_view> components;
    for (std::size_t begin = 0; begin < classification.size();) {
        const std::size_t end = std::min(classification.find(':', begin), classification.size());
        if (end > begin)
            components.push_back(classification.substr(begin, end - begin));
        begin = end + 1;
    }
    return components;
}

/// "shader/surface" is below "shader", and below itself.
bool isBelow(std::string_view component, std::string_view wanted)
{
    return component.substr(0, wanted.size()) == wanted &&
           (component.size() == wanted.size() || component[wanted.size()] == '/');
}

/// Components that name a service (who draws the swatch or the node) and not a category.
bool namesService(std::string_view component)
{
    return isBelow(component, "swatch") || isBelow(component, "drawdb");
}

/// Every wanted component has one below it, and every category of the type is wanted.
bool satisfies(std::string_view classification, std::string_view wanted)
{
    const std::vector<std::string_view> own = componentsOf(classification);
    const std::vector<std::string_view> asked = componentsOf(wanted);
    const auto isMet = [&](std::string_view component) {
        return std::any_of(own.begin(), own.end(),
                           [&](std::string_view mine) { return isBelow(mine, component); });
    };
    const auto isAsked = [&](std::string_view mine) {
        return namesService(mine) || std::any_of(asked.begin(), asked.end(), [&](std::string_view component) {
                   return isBelow(mine, component);
               });
    };
    return !asked.empty() && std::all_of(asked.begin(), asked.end(), isMet) &&
           std::all_of(own.begin(), own.end(), isAsked);
}

Value getClassification(CommandContext& context, const ParsedCommand& call)
{
    const std::string name = call.names().front();
    const engine::NodeType* type = sceneOf(context).types().find(name);
    if (!type)
        context.fail("Unknown object type: " + name);
    if (call.has("satisfies"))
        return Value(satisfies(type->classification, call.string("satisfies")));
    return Value(type->classification.empty() ? Value::Strings() : Value::Strings{type->classification});
}

Value listNodeTypes(CommandContext& context, const ParsedCommand& call)
{
    const std::string wanted = call.names().front();
    Value::Strings list;
    for (const engine::NodeType* type : sceneOf(context).types().all())
        if (satisfies(type->classification, wanted) &&
            !(call.has("exclude") && satisfies(type->classification, call.string("exclude"))))
            list.push_back(type->name);
    std::sort(list.begin(), list.end());
    return Value(std::move(list));
}

} // namespace

void registerClassificationCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand("getClassification", "Tells what a node type is for",
                    {valueFlag("sat", "satisfies", A::string, "whether it is of this classification")},
                    names(1, 1), getClassification),
        makeCommand("listNodeTypes", "Lists the node types of a classification",
                    {valueFlag("ex", "exclude", A::string, "but not those of this one")}, names(1, 1),
                    listNodeTypes),
    });
}

} // namespace tvxhost::mel
