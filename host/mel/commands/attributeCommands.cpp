// Commands that make and delete attributes: addAttr, deleteAttr.
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

} // namespace

void registerAttributeCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        addAttrCommand(),
        makeCommand("deleteAttr", "Deletes attributes that were added to nodes",
                    {valueFlag("at", "attribute", A::string, "the attribute's name")}, names(), deleteAttr),
    });
}

} // namespace tvxhost::mel
