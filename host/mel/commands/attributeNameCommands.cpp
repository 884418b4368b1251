// Names of attributes: listAttr, attributeName, aliasAttr, renameAttr.
#include "attributeNames.h"
#include "sceneCommands.h"

#include "engine/glob.h"
#include "engine/renameAttribute.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace tvxhost::mel {

using engine::Attribute;
using engine::Plug;
using engine::SelectionItem;

namespace {

// listAttr

bool isSettable(const Plug& plug)
{
    return plug.attribute()->flags.writable && !engine::isLocked(plug) && !engine::isFedAnywhere(plug);
}

bool holdsData(const Plug& plug)
{
    return plug.attribute()->kind != engine::AttributeKind::message && engine::hasOwnValue(plug);
}

bool isNumber(const Attribute& attribute)
{
    return attribute.number != engine::NumberKind::none && attribute.children.empty();
}

/// A flag that lists only some attributes.
struct ListRule
{
    const char* shortName;
    const char* longName;
    const char* help;
    bool (*holds)(const Plug& plug);
};

template <bool engine::AttributeFlags::*kMember>
bool hasFlag(const Plug& plug)
{
    return plug.attribute()->flags.*kMember;
}

using Flags = engine::AttributeFlags;

constexpr ListRule kRules[] = {
    {"k", "keyable", "those that can have keys",
     [](const Plug& plug) {
         return engine::stateOf(plug).keyable.value_or(plug.attribute()->flags.keyable);
     }},
    {"cb", "channelBox", "those that the channel box shows",
     [](const Plug& plug) {
         return engine::stateOf(plug).channelBox.value_or(plug.attribute()->flags.channelBox);
     }},
    {"ca", "caching", "those whose value is cached",
     [](const Plug& plug) { return engine::stateOf(plug).caching.value_or(plug.attribute()->flags.cached); }},
    {"l", "locked", "locked ones", engine::isLocked},
    {"u", "unlocked", "those that are not locked", [](const Plug& plug) { return !engine::isLocked(plug); }},
    {"ud", "userDefined", "those that were added",
     [](const Plug& plug) { return plug.attribute()->topLevel()->flags.dynamic; }},
    {"fp", "fromPlugin", "those of a plug-in's type",
     [](const Plug& plug) {
         const engine::NodeType* owner = plug.attribute()->topLevel()->owner;
         return owner && !owner->plugin.empty();
     }},
    {"a", "array", "arrays", hasFlag<&Flags::array>},
    {"r", "read", "those that can be sources", hasFlag<&Flags::readable>},
    {"w", "write", "those that can be destinations", hasFlag<&Flags::writable>},
    {"ro", "readOnly", "those that can be sources and not destinations",
     [](const Plug& plug) { return plug.attribute()->flags.readable && !plug.attribute()->flags.writable; }},
    {"o", "output", "those that are computed",
     [](const Plug& plug) { return plug.node()->isOutput(*plug.attribute()); }},
    {"se", "settable", "those that can be set now", isSettable},
    {"iu", "inUse", "those that files hold: set or connected",
     [](const Plug& plug) { return engine::hasOwnValue(plug) || engine::isConnected(plug); }},
    {"hd", "hasData", "those that hold a value", holdsData},
    {"hnd", "hasNullData", "those that hold none", [](const Plug& plug) { return !holdsData(plug); }},
    {"c", "connectable", "those that take connections", hasFlag<&Flags::connectable>},
    {"v", "visible", "those that are not hidden",
     [](const Plug& plug) { return !plug.attribute()->flags.hidden; }},
    {"s", "scalar", "single numbers",
     [](const Plug& plug) { return isNumber(*plug.attribute()) && !plug.attribute()->isArray(); }},
    {"sa", "scalarAndArray", "numbers, also in arrays",
     [](const Plug& plug) { return isNumber(*plug.attribute()); }},
    {"lf", "leaf", "those without children",
     [](const Plug& plug) { return plug.attribute()->children.empty(); }},
    {"uf", "usedAsFilename", "those that name files", hasFlag<&Flags::usedAsFilename>},
};

bool hasCategory(const Attribute& attribute, const ParsedCommand& call)
{
    const auto uses = call.uses("category");
    return uses.empty() || std::any_of(uses.begin(), uses.end(), [&](const FlagUse* use) {
               const std::string wanted = use->arguments.front().toString();
               const auto& own = attribute.categories;
               return std::find(own.begin(), own.end(), wanted) != own.end();
           });
}

bool hasName(const std::string& name, const ParsedCommand& call)
{
    const auto uses = call.uses("string");
    return uses.empty() || std::any_of(uses.begin(), uses.end(), [&](const FlagUse* use) {
               return engine::Glob(use->arguments.front().toString()).matches(name);
           });
}

/// The name by which the node finds it: with what is above it where that is an array.
std::string listedName(const Plug& plug, const ParsedCommand& call)
{
    engine::PlugNameStyle style;
    style.withNode = false;
    style.longNames = !call.has("shortNames");
    style.fullPath = false;
    for (const Attribute* above = plug.attribute()->parent; above; above = above->parent)
        style.fullPath = style.fullPath || above->isArray();
    std::string name = plug.name(style);
    // No element of such an array is meant.
    constexpr std::string_view kNoElement = "[-1]";
    for (std::size_t at = name.find(kNoElement); at != std::string::npos; at = name.find(kNoElement))
        name.erase(at, kNoElement.size());
    return name;
}

void addNames(const Plug& plug, const ParsedCommand& call, Value::Strings& list)
{
    const bool isListed = std::all_of(std::begin(kRules), std::end(kRules), [&](const ListRule& rule) {
        return !call.has(rule.longName) || rule.holds(plug);
    });
    const std::string name = listedName(plug, call);
    if (isListed && hasCategory(*plug.attribute(), call) && hasName(name, call))
        list.push_back(name);
    if (call.has("multi") && plug.isArray()) {
        for (const int index : engine::existingElements(plug))
            addNames(plug.element(index), call, list);
        return;
    }
    for (const auto& child : plug.attribute()->children)
        addNames(plug.isArray() ? Plug(*plug.node(), *child) : plug.child(*child), call, list);
}

Value listAttr(CommandContext& context, const ParsedCommand& call)
{
    Value::Strings list;
    for (const SelectionItem& item : itemsOrSelection(context, call.names())) {
        if (!item.plug.isNull()) {
            addNames(item.plug, call, list);
            continue;
        }
        for (Attribute* attribute : item.node->attributes())
            addNames(Plug(*item.node, *attribute), call, list);
    }
    return Value(std::move(list));
}

CommandSpec listAttrCommand()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags;
    for (const ListRule& rule : kRules)
        flags.push_back(switchFlag(rule.shortName, rule.longName, rule.help));
    const std::vector<FlagSpec> others = {
        switchFlag("m", "multi", "the elements of arrays that there are"),
        switchFlag("sn", "shortNames", "short names"),
        valueFlag("ct", "category", A::string, "those of this category", kCreate | kMultiUse),
        valueFlag("st", "string", A::string, "those whose name matches a pattern", kCreate | kMultiUse),
        refusedFlag("cfo", "changedSinceFileOpen", "the host does not keep what a file held"),
        refusedFlag("ex", "extension", "there are no extension attributes"),
        refusedFlag("ra", "ramp", "ramps are arrays like others"),
    };
    flags.insert(flags.end(), others.begin(), others.end());
    return makeCommand("listAttr", "Lists the attributes of nodes", std::move(flags), names(), listAttr);
}

// attributeName

Value attributeName(CommandContext& context, const ParsedCommand& call)
{
    const Plug plug = plugNamed(context, call.names().front());
    engine::PlugNameStyle style;
    style.withNode = false;
    style.longNames = !call.has("short");
    if (!call.has("long") && !call.has("short"))
        return Value(niceNameOf(*plug.attribute()));
    if (call.boolean("leaf", true))
        return Value(style.longNames ? plug.attribute()->longName : plug.attribute()->shortName);
    style.fullPath = true;
    return Value(plug.name(style));
}

// aliasAttr

Value listAliases(const SelectionItem& item)
{
    if (!item.plug.isNull())
        return Value(item.node->aliasOf(item.plug));
    Value::Strings list;
    for (const auto& [alias, path] : item.node->aliases())
        list.insert(list.end(), {alias, path});
    return Value(std::move(list));
}

Value aliasAttr(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<std::string> names = call.names();
    if (call.queries() && names.empty())
        context.fail("aliasAttr: whose aliases are asked for?");
    if (call.queries())
        return listAliases(itemNamed(context, names.front()));
    if (call.has("remove")) {
        for (const std::string& name : names) {
            const Plug plug = plugNamed(context, name);
            require(context, plug.node()->setAlias(plug, {}));
        }
        return {};
    }
    for (std::size_t i = 0; i + 1 < names.size(); i += 2) {
        const Plug plug = plugNamed(context, names[i + 1]);
        require(context, plug.node()->setAlias(plug, names[i]));
    }
    return {};
}

// renameAttr

/// The name by which the call found the attribute is the one that it changes.
Value renameAttr(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<std::string> names = call.names();
    const Plug plug = plugNamed(context, names[0]);
    Attribute& attribute = *plug.attribute();
    const std::string used = names[0].substr(names[0].rfind('.') + 1);
    const bool isShort = used == attribute.shortName && used != attribute.longName;
    const engine::Outcome renamed =
        engine::renameAttribute(*plug.node(), attribute, names[1],
                                isShort ? engine::AttributeName::shortName : engine::AttributeName::longName);
    if (!renamed)
        context.fail("renameAttr: " + renamed.text);
    return Value(names[1]);
}

} // namespace

std::string niceNameOf(const Attribute& attribute)
{
    if (!attribute.niceName.empty())
        return attribute.niceName;
    std::string words;
    for (const char letter : attribute.longName) {
        const auto code = static_cast<unsigned char>(letter);
        const bool follows = !words.empty() && words.back() != ' ';
        const bool followsSmall = follows && !std::isupper(static_cast<unsigned char>(words.back()));
        if (letter == '_' || (std::isupper(code) && followsSmall))
            words += ' ';
        if (letter != '_')
            words += static_cast<char>(words.empty() || words.back() == ' ' ? std::toupper(code) : code);
    }
    return words;
}

void registerAttributeNameCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        listAttrCommand(),
        makeCommand("attributeName", "Tells the name of an attribute, the nice one unless asked otherwise",
                    {switchFlag("l", "long", "the long name"), switchFlag("s", "short", "the short name"),
                     switchFlag("n", "nice", "the name in editors (the default)"),
                     valueFlag("lf", "leaf", A::boolean,
                               "without what is above it in compounds and arrays (on by default)")},
                    names(1, 1), attributeName),
        makeCommand("aliasAttr", "Gives attributes further names",
                    {switchFlag("rm", "remove", "takes the alias away")}, names(), aliasAttr, kAllModes),
        makeCommand("renameAttr", "Gives an attribute that was added to a node another name", {}, names(2, 2),
                    renameAttr),
    });
}

} // namespace tvxhost::mel
