// attributeQuery: how attributes were declared.
#include "attributeNames.h"
#include "sceneCommands.h"

#include "scene/attributeDeclaration.h"
#include "scene/attributeTypes.h"
#include "scene/uiUnits.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::Attribute;

namespace {

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

template <std::optional<double> Attribute::*... kMembers>
Value existsAnswer(CommandContext&, Attribute& attribute)
{
    return Value(((attribute.*kMembers).has_value() && ...));
}

template <engine::AttributeKind kKind>
Value kindAnswer(CommandContext&, Attribute& attribute)
{
    return Value(attribute.kind == kKind);
}

/// The other attributes of its compound, or of the top level.
Value siblingNames(CommandContext&, Attribute& attribute)
{
    Value::Strings siblings;
    const auto add = [&](const engine::Ref<Attribute>& other) {
        if (other != &attribute)
            siblings.push_back(other->longName);
    };
    if (attribute.parent)
        std::for_each(attribute.parent->children.begin(), attribute.parent->children.end(), add);
    else if (attribute.owner)
        std::for_each(attribute.owner->attributes().begin(), attribute.owner->attributes().end(), add);
    return Value(std::move(siblings));
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
     [](CommandContext&, Attribute& attribute) { return Value(niceNameOf(attribute)); }},
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
    {"re", "rangeExists", "whether it has both hard limits",
     existsAnswer<&Attribute::minimum, &Attribute::maximum>},
    {"se", "softRangeExists", "whether it has both soft limits",
     existsAnswer<&Attribute::softMinimum, &Attribute::softMaximum>},
    {"e", "enum", "whether it is an enum", kindAnswer<engine::AttributeKind::enumeration>},
    {"msg", "message", "whether it is a message", kindAnswer<engine::AttributeKind::message>},
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
    {"ci", "cachedInternally", "whether its value is cached", flagAnswer<&engine::AttributeFlags::cached>},
    {"umb", "usesMultiBuilder", "whether an array is built by its node",
     flagAnswer<&engine::AttributeFlags::arrayBuilder>},
    {"ws", "worldspace", "whether its value depends on the place in the world",
     flagAnswer<&engine::AttributeFlags::worldSpace>},
    {"aws", "affectsWorldspace", "whether it affects values in the world",
     flagAnswer<&engine::AttributeFlags::affectsWorldSpace>},
    {"aa", "affectsAppearance", "whether it affects what is drawn",
     flagAnswer<&engine::AttributeFlags::affectsAppearance>},
    {"rs", "renderSource", "whether it renders other nodes",
     flagAnswer<&engine::AttributeFlags::renderSource>},
    {"lc", "listChildren", "the names of its children",
     [](CommandContext&, Attribute& attribute) { return Value(childNames(attribute)); }},
    {"ls", "listSiblings", "the names of the attributes beside it", siblingNames},
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
    flags.push_back(refusedFlag("ig", "internalGet", "the host does not tell getting from setting"));
    flags.push_back(refusedFlag("is", "internalSet", "the host does not tell getting from setting"));
    flags.push_back(refusedFlag("idt", "indeterminant", "the host evaluates nothing twice"));
    return makeCommand("attributeQuery", "Tells how an attribute was declared", std::move(flags), names(1, 1),
                       attributeQuery);
}

} // namespace

void registerAttributeQueryCommands(CommandTable& table)
{
    table.add({attributeQueryCommand()});
}

} // namespace tvxhost::mel
