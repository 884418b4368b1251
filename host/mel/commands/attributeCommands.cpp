// Commands that make and delete attributes: addAttr, deleteAttr.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "scene/attributeDeclaration.h"
#include "scene/attributeTypes.h"
#include "scene/uiUnits.h"

#include <algorithm>
#include <optional>

namespace tvxhost::mel {

using engine::Attribute;
using engine::Node;
using engine::SelectionItem;

namespace {

/// One question of `addAttr -q`.
struct DeclarationQuestion
{
    const char* flag;
    Value (*answer)(const Attribute& attribute, double perUi);
};

template <bool engine::AttributeFlags::*kMember>
Value flagAnswer(const Attribute& attribute, double)
{
    return Value(attribute.flags.*kMember);
}

template <std::optional<double> Attribute::*kMember>
Value limitAnswer(const Attribute& attribute, double perUi)
{
    return Value((attribute.*kMember).value_or(0.0) / perUi);
}

template <std::optional<double> Attribute::*kMember>
Value hasAnswer(const Attribute& attribute, double)
{
    return Value((attribute.*kMember).has_value());
}

using Flags = engine::AttributeFlags;

constexpr DeclarationQuestion kQuestions[] = {
    {"defaultValue",
     [](const Attribute& attribute, double perUi) { return Value(attribute.defaultNumber / perUi); }},
    {"minValue", limitAnswer<&Attribute::minimum>},
    {"maxValue", limitAnswer<&Attribute::maximum>},
    {"softMinValue", limitAnswer<&Attribute::softMinimum>},
    {"softMaxValue", limitAnswer<&Attribute::softMaximum>},
    {"hasMinValue", hasAnswer<&Attribute::minimum>},
    {"hasMaxValue", hasAnswer<&Attribute::maximum>},
    {"hasSoftMinValue", hasAnswer<&Attribute::softMinimum>},
    {"hasSoftMaxValue", hasAnswer<&Attribute::softMaximum>},
    {"longName", [](const Attribute& attribute, double) { return Value(attribute.longName); }},
    {"shortName", [](const Attribute& attribute, double) { return Value(attribute.shortName); }},
    {"niceName", [](const Attribute& attribute, double) { return Value(attribute.niceName); }},
    {"attributeType",
     [](const Attribute& attribute, double) { return Value(scene::attributeTypeName(attribute)); }},
    {"dataType",
     [](const Attribute& attribute, double) {
         return attribute.kind == engine::AttributeKind::typed ? Value(Value::Strings{attribute.typeName()})
                                                               : Value(Value::Strings());
     }},
    {"enumName",
     [](const Attribute& attribute, double) { return Value(scene::fieldsText(attribute.fields)); }},
    {"parent", [](const Attribute& attribute,
                  double) { return Value(attribute.parent ? attribute.parent->longName : std::string()); }},
    {"numberOfChildren",
     [](const Attribute& attribute, double) { return Value(static_cast<int>(attribute.children.size())); }},
    {"category",
     [](const Attribute& attribute, double) { return Value(Value::Strings(attribute.categories)); }},
    {"disconnectBehaviour",
     [](const Attribute& attribute, double) { return Value(attribute.disconnectBehaviour); }},
    {"multi", flagAnswer<&Flags::array>},
    {"indexMatters", flagAnswer<&Flags::indexMatters>},
    {"keyable", flagAnswer<&Flags::keyable>},
    {"hidden", flagAnswer<&Flags::hidden>},
    {"readable", flagAnswer<&Flags::readable>},
    {"writable", flagAnswer<&Flags::writable>},
    {"storable", flagAnswer<&Flags::storable>},
    {"cachedInternally", flagAnswer<&Flags::cached>},
    {"internalSet", flagAnswer<&Flags::internal>},
    {"usedAsColor", flagAnswer<&Flags::usedAsColor>},
    {"usedAsFilename", flagAnswer<&Flags::usedAsFilename>},
};

/// `addAttr -q`: what a declaration says.
Value queryDeclaration(CommandContext& context, const ParsedCommand& call)
{
    if (call.positional.empty())
        context.fail("addAttr: which attribute is asked for?");
    const SelectionItem item = itemNamed(context, call.names().front());
    if (call.has("exists"))
        return Value(!item.plug.isNull());
    if (item.plug.isNull())
        context.fail("No attribute was specified");
    const Attribute& attribute = *item.plug.attribute();
    const double perUi = scene::internalPerUi(attribute, sceneOf(context).units());
    for (const DeclarationQuestion& question : kQuestions)
        if (call.has(question.flag))
            return question.answer(attribute, perUi);
    context.fail("addAttr: nothing was asked");
}

Value editDeclarations(CommandContext& context, const ParsedCommand& call)
{
    for (const SelectionItem& item : itemsOrSelection(context, call.names())) {
        if (item.plug.isNull())
            context.fail("addAttr: No attribute was specified");
        item.node->keepDeclaration(*item.plug.attribute());
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
    const std::vector<FlagSpec> questions = {
        switchFlag("hnv", "hasMinValue", "whether it has a hard minimum", kQuery),
        switchFlag("hxv", "hasMaxValue", "whether it has a hard maximum", kQuery),
        switchFlag("hsn", "hasSoftMinValue", "whether it has a soft minimum", kQuery),
        switchFlag("hsx", "hasSoftMaxValue", "whether it has a soft maximum", kQuery),
    };
    spec.flags.insert(spec.flags.end(), questions.begin(), questions.end());
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

Value addedNames(const std::vector<SelectionItem>& items)
{
    Value::Strings list;
    for (const SelectionItem& item : items)
        for (const auto& attribute : item.node->dynamicAttributes())
            list.push_back(attribute->longName);
    return Value(std::move(list));
}

Value deleteAttr(CommandContext& context, const ParsedCommand& call)
{
    std::vector<std::string> names = call.names();
    if (call.has("name"))
        names.push_back(call.string("name"));
    const std::vector<SelectionItem> items = itemsOrSelection(context, names);
    if (call.queries())
        return addedNames(items);
    const std::string attribute = call.string("attribute");
    for (const SelectionItem& item : items) {
        if (attribute.empty() && item.plug.isNull())
            context.fail("deleteAttr: no attribute was specified");
        Attribute* found = attribute.empty() ? item.plug.attribute() : item.node->findAttribute(attribute);
        if (!found)
            context.fail("No object matches name: " + item.name() + "." + attribute);
        deleteAttribute(context, *item.node, *found);
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
                    {valueFlag("at", "attribute", A::string, "the attribute's name"),
                     valueFlag("n", "name", A::name, "the node")},
                    names(), deleteAttr, kQuery),
    });
}

} // namespace tvxhost::mel
