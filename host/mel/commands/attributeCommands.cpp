// Commands about attributes themselves: addAttr, deleteAttr, attributeQuery, listAttr, aliasAttr.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "scene/attributeDeclaration.h"
#include "scene/attributeTypes.h"
#include "scene/uiUnits.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::Attribute;
using engine::Node;
using engine::SelectionItem;

namespace {

// addAttr, deleteAttr

/// `addAttr -q`: what a declaration says.
Value queryDeclaration(CommandContext& context, const ParsedCommand& call)
{
    const SelectionItem item = itemNamed(context, call.names().at(0));
    if (call.has("exists"))
        return Value(!item.plug.isNull());
    if (item.plug.isNull())
        context.fail("No attribute was specified");
    const Attribute& attribute = *item.plug.attribute();
    const double factor = scene::internalPerUi(attribute, sceneOf(context).units());
    if (call.has("defaultValue"))
        return Value(attribute.defaultNumber / factor);
    for (const auto& [flag, limit] :
         {std::pair("minValue", attribute.minimum), std::pair("maxValue", attribute.maximum),
          std::pair("softMinValue", attribute.softMinimum), std::pair("softMaxValue", attribute.softMaximum)})
        if (call.has(flag))
            return limit ? Value(*limit / factor) : Value(0.0);
    if (call.has("longName"))
        return Value(attribute.longName);
    if (call.has("shortName"))
        return Value(attribute.shortName);
    if (call.has("niceName"))
        return Value(attribute.niceName);
    if (call.has("attributeType"))
        return Value(scene::attributeTypeName(attribute));
    if (call.has("keyable"))
        return Value(attribute.flags.keyable);
    if (call.has("enumName"))
        return Value(scene::fieldsText(attribute.fields));
    return {};
}

Value editDeclarations(CommandContext& context, const ParsedCommand& call)
{
    for (const SelectionItem& item : itemsOrSelection(context, call.names())) {
        if (item.plug.isNull())
            context.fail("addAttr: No attribute was specified");
        const engine::Outcome edited =
            scene::editDeclaration(call, sceneOf(context).units(), *item.plug.attribute());
        if (!edited)
            context.fail("addAttr: " + edited.text);
    }
    return {};
}

Value addAttr(CommandContext& context, const ParsedCommand& call)
{
    if (call.queries())
        return queryDeclaration(context, call);
    if (call.edits())
        return editDeclarations(context, call);
    SceneSession& session = sessionOf(context);
    std::vector<std::string> names = call.names();
    const std::vector<SelectionItem> items = itemsOrSelection(context, names);
    if (items.empty())
        context.fail("addAttr: no node was named and nothing is selected");
    for (const SelectionItem& item : items) {
        // Each node gets an attribute of its own.
        const scene::AttributeDeclaration declaration =
            valueOf(context, scene::declarationFrom(call, session.scene().units()));
        const engine::Outcome added = session.compounds.declare(*item.node, declaration);
        if (!added)
            context.fail("addAttr: " + added.text);
    }
    return {};
}

FlagSpec& flagNamed(CommandSpec& spec, const std::string& longName)
{
    return *std::find_if(spec.flags.begin(), spec.flags.end(),
                         [&](const FlagSpec& flag) { return flag.longName == longName; });
}

CommandSpec addAttrCommand()
{
    CommandSpec spec = scene::addAttrSpec();
    for (FlagSpec& flag : spec.flags)
        flag.modes |= kQuery;
    for (const char* name :
         {"enumName", "defaultValue", "minValue", "maxValue", "softMinValue", "softMaxValue", "niceName"})
        flagNamed(spec, name).modes |= kEdit;
    spec.queryable = true;
    spec.editable = true;
    spec.handler = ParsedHandler(addAttr);
    return spec;
}

void deleteAttribute(CommandContext& context, Node& node, Attribute& attribute)
{
    const engine::Outcome removed =
        attribute.flags.dynamic && !attribute.parent
            ? node.removeDynamicAttribute(attribute)
            : engine::Outcome(
                  engine::Reason::readOnly,
                  attribute.parent
                      ? "'" + attribute.longName + "' is part of '" + attribute.parent->longName + "'"
                      : "Static attributes cannot be deleted: " + node.name() + "." + attribute.longName);
    if (!removed)
        context.fail("deleteAttr: " + removed.text);
}

Value deleteAttr(CommandContext& context, const ParsedCommand& call)
{
    const std::string attribute = call.string("attribute");
    for (const SelectionItem& item : itemsOrSelection(context, call.names())) {
        if (attribute.empty() && item.plug.isNull())
            context.fail("deleteAttr: no attribute was specified");
        Attribute* found = attribute.empty() ? item.plug.attribute() : item.node->findAttribute(attribute);
        if (!found)
            context.fail("No object matches name: " + item.name() + "." + attribute);
        deleteAttribute(context, *item.node, *found);
    }
    return {};
}

// attributeQuery

Value::Strings childNames(const Attribute& attribute)
{
    Value::Strings children;
    for (const auto& child : attribute.children)
        children.push_back(child->longName);
    return children;
}

Value defaults(CommandContext& context, Attribute& attribute)
{
    Value::Numbers numbers;
    for (const Attribute* leaf : scene::numberLeaves(attribute))
        numbers.push_back(leaf->defaultNumber / scene::internalPerUi(*leaf, sceneOf(context).units()));
    return Value(std::move(numbers));
}

Value range(CommandContext& context, const Attribute& attribute, const std::optional<double>& first,
            const std::optional<double>& second)
{
    const double factor = scene::internalPerUi(attribute, sceneOf(context).units());
    Value::Numbers numbers;
    for (const std::optional<double>& limit : {first, second})
        if (limit)
            numbers.push_back(*limit / factor);
    return Value(std::move(numbers));
}

struct AttributeQuestion
{
    const char* shortName;
    const char* longName;
    const char* help;
    Value (*answer)(CommandContext&, Attribute&);
};

template <bool engine::AttributeFlags::*kMember>
Value flagAnswer(CommandContext&, Attribute& attribute)
{
    return Value(attribute.flags.*kMember);
}

template <std::optional<double> Attribute::*kMember>
Value existsAnswer(CommandContext&, Attribute& attribute)
{
    return Value((attribute.*kMember).has_value());
}

template <std::optional<double> Attribute::*kMember>
Value limitAnswer(CommandContext& context, Attribute& attribute)
{
    return range(context, attribute, attribute.*kMember, std::nullopt);
}

const AttributeQuestion kQuestions[] = {
    {"at", "attributeType", "its type",
     [](CommandContext&, Attribute& attribute) {
         const std::string type = scene::attributeTypeName(attribute);
         return Value(type.empty() ? "typed" : type);
     }},
    {"ln", "longName", "its long name",
     [](CommandContext&, Attribute& attribute) { return Value(attribute.longName); }},
    {"sn", "shortName", "its short name",
     [](CommandContext&, Attribute& attribute) { return Value(attribute.shortName); }},
    {"nn", "niceName", "its name in editors",
     [](CommandContext&, Attribute& attribute) {
         return Value(attribute.niceName.empty() ? attribute.longName : attribute.niceName);
     }},
    {"ld", "listDefault", "its default values", defaults},
    {"min", "minimum", "its hard minimum", limitAnswer<&Attribute::minimum>},
    {"max", "maximum", "its hard maximum", limitAnswer<&Attribute::maximum>},
    {"r", "range", "its hard limits",
     [](CommandContext& context, Attribute& attribute) {
         return range(context, attribute, attribute.minimum, attribute.maximum);
     }},
    {"smn", "softMin", "its soft minimum", limitAnswer<&Attribute::softMinimum>},
    {"smx", "softMax", "its soft maximum", limitAnswer<&Attribute::softMaximum>},
    {"s", "softRange", "its soft limits",
     [](CommandContext& context, Attribute& attribute) {
         return range(context, attribute, attribute.softMinimum, attribute.softMaximum);
     }},
    {"mne", "minExists", "whether it has a hard minimum", existsAnswer<&Attribute::minimum>},
    {"mxe", "maxExists", "whether it has a hard maximum", existsAnswer<&Attribute::maximum>},
    {"sme", "softMinExists", "whether it has a soft minimum", existsAnswer<&Attribute::softMinimum>},
    {"sxe", "softMaxExists", "whether it has a soft maximum", existsAnswer<&Attribute::softMaximum>},
    {"k", "keyable", "whether it can have keys", flagAnswer<&engine::AttributeFlags::keyable>},
    {"h", "hidden", "whether editors hide it", flagAnswer<&engine::AttributeFlags::hidden>},
    {"ch", "channelBox", "whether the channel box shows it", flagAnswer<&engine::AttributeFlags::channelBox>},
    {"rd", "readable", "whether it can be a source", flagAnswer<&engine::AttributeFlags::readable>},
    {"w", "writable", "whether it can be a destination", flagAnswer<&engine::AttributeFlags::writable>},
    {"st", "storable", "whether files hold it", flagAnswer<&engine::AttributeFlags::storable>},
    {"c", "connectable", "whether it takes connections", flagAnswer<&engine::AttributeFlags::connectable>},
    {"uac", "usedAsColor", "whether it is a colour", flagAnswer<&engine::AttributeFlags::usedAsColor>},
    {"uaf", "usedAsFilename", "whether it names a file", flagAnswer<&engine::AttributeFlags::usedAsFilename>},
    {"m", "multi", "whether it is an array", flagAnswer<&engine::AttributeFlags::array>},
    {"im", "indexMatters", "whether its elements' indices matter",
     flagAnswer<&engine::AttributeFlags::indexMatters>},
    {"i", "internal", "whether the node keeps the value", flagAnswer<&engine::AttributeFlags::internal>},
    {"lc", "listChildren", "the names of its children",
     [](CommandContext&, Attribute& attribute) { return Value(childNames(attribute)); }},
    {"nc", "numberOfChildren", "how many children it has",
     [](CommandContext&, Attribute& attribute) {
         return Value(static_cast<int>(attribute.children.size()));
     }},
    {"lp", "listParent", "the compound above it",
     [](CommandContext&, Attribute& attribute) {
         return attribute.parent ? Value(Value::Strings{attribute.parent->longName})
                                 : Value(Value::Strings());
     }},
    {"le", "listEnum", "the fields of an enum",
     [](CommandContext&, Attribute& attribute) {
         return Value(Value::Strings{scene::fieldsText(attribute.fields)});
     }},
    {"ct", "categories", "the words to find it by",
     [](CommandContext&, Attribute& attribute) { return Value(Value::Strings(attribute.categories)); }},
};

Attribute* attributeOf(CommandContext& context, const ParsedCommand& call)
{
    const std::string name = call.names().front();
    if (call.has("node"))
        return nodeNamed(context, call.string("node")).findAttribute(name);
    engine::NodeType* type = sceneOf(context).types().find(call.string("type"));
    if (!type)
        context.fail(call.has("type") ? "Unknown object type: " + call.string("type")
                                      : "attributeQuery needs -node or -type");
    return type->find(name);
}

Value attributeQuery(CommandContext& context, const ParsedCommand& call)
{
    Attribute* attribute = attributeOf(context, call);
    if (call.has("exists"))
        return Value(attribute != nullptr);
    if (!attribute)
        context.fail("No object matches name: " + call.string("node") + "." + call.names().front());
    for (const AttributeQuestion& question : kQuestions)
        if (call.has(question.longName))
            return question.answer(context, *attribute);
    context.fail("attributeQuery: nothing was asked");
}

CommandSpec attributeQueryCommand()
{
    std::vector<FlagSpec> flags = {
        valueFlag("n", "node", ArgumentType::name, "the node"),
        valueFlag("typ", "type", ArgumentType::string, "the type of node"),
        switchFlag("ex", "exists", "whether there is such an attribute"),
    };
    for (const AttributeQuestion& question : kQuestions)
        flags.push_back(switchFlag(question.shortName, question.longName, question.help));
    return makeCommand("attributeQuery", "Tells how an attribute was declared", std::move(flags), names(1, 1),
                       attributeQuery);
}

// listAttr, aliasAttr

bool isListed(const engine::Plug& plug, const ParsedCommand& call)
{
    const Attribute& attribute = *plug.attribute();
    const engine::PlugState state = engine::stateOf(plug);
    const std::pair<const char*, bool> rules[] = {
        {"keyable", state.keyable.value_or(attribute.flags.keyable)},
        {"channelBox", state.channelBox.value_or(attribute.flags.channelBox)},
        {"locked", engine::isLocked(plug)},
        {"unlocked", !engine::isLocked(plug)},
        {"userDefined", attribute.topLevel()->flags.dynamic},
        {"multi", attribute.isArray()},
        {"readable", attribute.flags.readable},
        {"write", attribute.flags.writable},
        {"connectable", attribute.flags.connectable},
        {"visible", !attribute.flags.hidden},
        {"usedAsFilename", attribute.flags.usedAsFilename},
    };
    return std::all_of(std::begin(rules), std::end(rules),
                       [&](const auto& rule) { return !call.has(rule.first) || rule.second; });
}

void addNames(const engine::Plug& plug, const ParsedCommand& call, Value::Strings& list)
{
    const Attribute& attribute = *plug.attribute();
    if (isListed(plug, call))
        list.push_back(call.has("shortNames") ? attribute.shortName : attribute.longName);
    for (const auto& child : attribute.children)
        addNames(engine::Plug(*plug.node(), *child), call, list);
}

Value listAttr(CommandContext& context, const ParsedCommand& call)
{
    Value::Strings list;
    for (const SelectionItem& item : itemsOrSelection(context, call.names()))
        for (Attribute* attribute : item.node->attributes())
            if (item.plug.isNull() || item.plug.attribute() == attribute)
                addNames(engine::Plug(*item.node, *attribute), call, list);
    return Value(std::move(list));
}

Value aliasAttr(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<std::string> names = call.names();
    if (call.queries()) {
        const SelectionItem item = itemNamed(context, names.at(0));
        if (!item.plug.isNull())
            return Value(item.node->aliasOf(item.plug));
        Value::Strings list;
        for (const auto& [alias, path] : item.node->aliases())
            list.insert(list.end(), {alias, path});
        return Value(std::move(list));
    }
    if (call.has("remove")) {
        for (const std::string& name : names) {
            const engine::Plug plug = plugNamed(context, name);
            require(context, plug.node()->setAlias(plug, {}));
        }
        return {};
    }
    for (std::size_t i = 0; i + 1 < names.size(); i += 2) {
        const engine::Plug plug = plugNamed(context, names[i + 1]);
        require(context, plug.node()->setAlias(plug, names[i]));
    }
    return {};
}

} // namespace

void registerAttributeCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        addAttrCommand(),
        makeCommand("deleteAttr", "Deletes attributes that were added to nodes",
                    {valueFlag("at", "attribute", A::string, "the attribute's name")}, names(), deleteAttr),
        attributeQueryCommand(),
        makeCommand("listAttr", "Lists the attributes of nodes",
                    {switchFlag("k", "keyable", "those that can have keys"),
                     switchFlag("cb", "channelBox", "those that the channel box shows"),
                     switchFlag("l", "locked", "locked ones"),
                     switchFlag("u", "unlocked", "those that are not locked"),
                     switchFlag("ud", "userDefined", "those that were added"),
                     switchFlag("m", "multi", "arrays"),
                     switchFlag("r", "readable", "those that can be sources"),
                     switchFlag("w", "write", "those that can be destinations"),
                     switchFlag("c", "connectable", "those that take connections"),
                     switchFlag("v", "visible", "those that are not hidden"),
                     switchFlag("uf", "usedAsFilename", "those that name files"),
                     switchFlag("sn", "shortNames", "short names")},
                    names(), listAttr),
        makeCommand("aliasAttr", "Gives attributes further names",
                    {switchFlag("rm", "remove", "takes the alias away")}, names(), aliasAttr, kAllModes),
    });
}

} // namespace tvxhost::mel
