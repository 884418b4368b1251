// What the scene commands share; see commandSupport.h.
#include "commandSupport.h"

#include "language.h"

#include <algorithm>
#include <cctype>

namespace tvxhost::mel {

using engine::Outcome;
using engine::Reason;
using engine::SelectionItem;

CommandSpec makeCommand(std::string name, std::string summary, std::vector<FlagSpec> flags,
                        PositionalRule positional, ParsedHandler handler, unsigned modes)
{
    CommandSpec spec =
        command(std::move(name), std::move(summary), std::move(flags), positional, std::move(handler));
    spec.queryable = (modes & kQuery) != 0;
    spec.editable = (modes & kEdit) != 0;
    return spec;
}

FlagSpec switchFlag(std::string shortName, std::string longName, std::string help, unsigned modes)
{
    return {std::move(shortName), std::move(longName), {}, modes, std::move(help)};
}

FlagSpec valueFlag(std::string shortName, std::string longName, ArgumentType type, std::string help,
                   unsigned modes)
{
    return {std::move(shortName), std::move(longName), {type}, modes, std::move(help)};
}

FlagSpec refusedFlag(std::string shortName, std::string longName, std::string why)
{
    return {std::move(shortName), std::move(longName), {}, kAllModes | kRefused, std::move(why)};
}

PositionalRule names(std::size_t least, std::size_t most)
{
    return {ArgumentType::name, least, most};
}

PositionalRule noArguments()
{
    return {};
}

SceneSession& sessionOf(const CommandContext& context)
{
    return context.session<SceneSession>();
}

engine::Scene& sceneOf(const CommandContext& context)
{
    return sessionOf(context).scene();
}

void require(const CommandContext& context, const Outcome& outcome)
{
    if (!outcome)
        context.fail(outcome.text.empty() ? "'" + context.command() + "' failed" : outcome.text);
}

engine::Node& nodeNamed(const CommandContext& context, const std::string& name)
{
    return *valueOf(context, sceneOf(context).findNode(name));
}

engine::DagNode& dagNodeNamed(const CommandContext& context, const std::string& name)
{
    engine::DagNode* dag = nodeNamed(context, name).asDag();
    if (!dag)
        context.fail("'" + name + "' is not a DAG node");
    return *dag;
}

SelectionItem itemNamed(const CommandContext& context, const std::string& name)
{
    return valueOf(context, sceneOf(context).findItem(name));
}

engine::Plug plugNamed(const CommandContext& context, const std::string& name)
{
    return valueOf(context, sceneOf(context).findPlug(name));
}

bool hasWildcard(const std::string& name)
{
    return name.find_first_of("*?") != std::string::npos;
}

std::vector<SelectionItem> itemsOf(const CommandContext& context, const std::string& pattern)
{
    if (!hasWildcard(pattern))
        return {itemNamed(context, pattern)};
    std::vector<SelectionItem> items = sceneOf(context).findItems(pattern);
    if (items.empty())
        context.fail("No object matches name: " + pattern);
    return items;
}

std::vector<SelectionItem> itemsOrSelection(const CommandContext& context,
                                            const std::vector<std::string>& names)
{
    if (names.empty())
        return sceneOf(context).selection().items();
    std::vector<SelectionItem> all;
    for (const std::string& name : names) {
        const std::vector<SelectionItem> items = itemsOf(context, name);
        all.insert(all.end(), items.begin(), items.end());
    }
    return all;
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

std::string shapeNameFor(const std::string& transform)
{
    std::size_t digits = transform.size();
    while (digits > 0 && std::isdigit(static_cast<unsigned char>(transform[digits - 1])))
        --digits;
    return transform.substr(0, digits) + "Shape" + transform.substr(digits);
}

void selectOnly(engine::Scene& scene, engine::Node& node)
{
    engine::SelectionList list;
    if (const auto item = scene.findItem(scene.shortestName(node)))
        list.add(item.value);
    scene.setSelection(std::move(list));
}

namespace {

/// Internal units of one of the unit that is named; empty for a name that is none.
std::optional<double> factorOfUnit(const std::string& unit, ArgumentType type)
{
    if (type == ArgumentType::linear) {
        if (const auto found = engine::linearUnitNamed(unit))
            return engine::centimetresPer(*found);
    } else if (type == ArgumentType::angle) {
        if (const auto found = engine::angularUnitNamed(unit))
            return engine::radiansPer(*found);
    } else if (const auto found = engine::timeUnitNamed(unit)) {
        return engine::secondsPer(*found);
    }
    return std::nullopt;
}

double currentFactor(const engine::Units& units, ArgumentType type)
{
    if (type == ArgumentType::linear)
        return engine::centimetresPer(units.linear);
    return type == ArgumentType::angle ? engine::radiansPer(units.angle) : engine::secondsPer(units.time);
}

} // namespace

double toInternal(const CommandContext& context, const Value& value, ArgumentType type)
{
    const engine::Units& units = sceneOf(context).units();
    if (value.type() != Type::string)
        return value.toNumber() * currentFactor(units, type);
    const std::string& text = value.string();
    std::size_t unitBegin = text.size();
    while (unitBegin > 0 && std::isalpha(static_cast<unsigned char>(text[unitBegin - 1])))
        --unitBegin;
    if (unitBegin == text.size())
        return value.toNumber() * currentFactor(units, type);
    // "10f" is ten frames of the current unit of time.
    const std::string unit = text.substr(unitBegin);
    const bool isFrames = type == ArgumentType::time && unit == "f";
    const std::optional<double> factor = isFrames ? currentFactor(units, type) : factorOfUnit(unit, type);
    if (!factor)
        context.fail("Invalid unit '" + unit + "'");
    return value.toNumber() * *factor;
}

} // namespace tvxhost::mel
