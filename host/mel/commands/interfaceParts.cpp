// Items, choices and attachments of the user interface's elements; see interfaceParts.h.
#include "interfaceParts.h"

#include <algorithm>
#include <array>

namespace tvxhost::mel {

namespace {

using A = ArgumentType;

[[noreturn]] void failFor(const CommandContext& context, const std::string& message)
{
    context.fail(context.command() + ": " + message);
}

// Lists

Value::Strings stringsOf(const InterfaceElement& element, const char* property)
{
    const auto found = element.properties.find(property);
    return found == element.properties.end() ? Value::Strings() : found->second.detached().strings();
}

constexpr const char* kItems = "items";
constexpr const char* kSelected = "selectItem";

std::size_t placeOf(const CommandContext& context, const Value::Strings& items, const std::string& item)
{
    const auto found = std::find(items.begin(), items.end(), item);
    if (found == items.end())
        failFor(context, "there is no item '" + item + "'");
    return static_cast<std::size_t>(found - items.begin());
}

/// Places of items are counted from 1.
std::size_t placeAt(const CommandContext& context, const Value::Strings& items, int number)
{
    if (number < 1 || static_cast<std::size_t>(number) > items.size())
        failFor(context, "there is no item number " + std::to_string(number));
    return static_cast<std::size_t>(number - 1);
}

void changeItems(const CommandContext& context, const ParsedCommand& call, Value::Strings& items)
{
    if (call.has("removeAll"))
        items.clear();
    for (const FlagUse* use : call.uses("removeItem"))
        items.erase(items.begin() +
                    static_cast<std::ptrdiff_t>(placeOf(context, items, use->arguments.front().toString())));
    for (const FlagUse* use : call.uses("removeIndexedItem"))
        items.erase(items.begin() +
                    static_cast<std::ptrdiff_t>(placeAt(context, items, use->arguments.front().toInteger())));
    for (const FlagUse* use : call.uses("append"))
        items.push_back(use->arguments.front().toString());
    for (const FlagUse* use : call.uses("appendPosition")) {
        const int number = use->arguments[0].toInteger();
        // Past the end, and 0, mean the end.
        const bool isInside = number >= 1 && static_cast<std::size_t>(number) <= items.size();
        items.insert(isInside ? items.begin() + (number - 1) : items.end(), use->arguments[1].toString());
    }
}

void changeList(const CommandContext& context, InterfaceElement& element, const ParsedCommand& call)
{
    Value::Strings items = stringsOf(element, kItems);
    Value::Strings selected = stringsOf(element, kSelected);
    changeItems(context, call, items);
    if (call.has("deselectAll"))
        selected.clear();
    for (const FlagUse* use : call.uses("selectItem"))
        selected.push_back(items[placeOf(context, items, use->arguments.front().toString())]);
    for (const FlagUse* use : call.uses("selectIndexedItem"))
        selected.push_back(items[placeAt(context, items, use->arguments.front().toInteger())]);
    const auto isGone = [&](const std::string& item) {
        return std::find(items.begin(), items.end(), item) == items.end();
    };
    selected.erase(std::remove_if(selected.begin(), selected.end(), isGone), selected.end());
    // One line at a time, unless more are allowed.
    const auto several = element.properties.find("allowMultiSelection");
    if (selected.size() > 1 && (several == element.properties.end() || !several->second.toBoolean()))
        selected = {selected.back()};
    element.properties[kItems] = Value(std::move(items));
    element.properties[kSelected] = Value(std::move(selected));
}

Value tellList(const InterfaceElement& element, const ParsedCommand& call)
{
    const Value::Strings items = stringsOf(element, kItems);
    const Value::Strings selected = stringsOf(element, kSelected);
    if (call.has("allItems"))
        return Value(items);
    if (call.has("numberOfItems"))
        return Value(static_cast<int>(items.size()));
    if (call.has("numberOfSelectedItems"))
        return Value(static_cast<int>(selected.size()));
    if (call.has("selectItem"))
        return Value(selected);
    if (!call.has("selectIndexedItem"))
        return {};
    Value::Integers places;
    for (std::size_t i = 0; i < items.size(); ++i)
        if (std::find(selected.begin(), selected.end(), items[i]) != selected.end())
            places.push_back(static_cast<int>(i) + 1);
    return Value(std::move(places));
}

// Option menus

std::string labelOf(const InterfaceElement& item)
{
    const auto label = item.properties.find("label");
    return label == item.properties.end() ? item.name : label->second.toString();
}

/// The number of the item that is chosen, counted from 1; the first until another is; 0 when there is none.
int chosenItem(const InterfaceElement& element)
{
    const auto chosen = element.properties.find("select");
    return element.children().empty()           ? 0
           : chosen == element.properties.end() ? 1
                                                : chosen->second.toInteger();
}

void changeChoice(const CommandContext& context, InterfaceElement& element, const ParsedCommand& call)
{
    Value::Strings labels;
    for (const auto& item : element.children())
        labels.push_back(labelOf(*item));
    if (call.has("select"))
        element.properties["select"] = static_cast<int>(placeAt(context, labels, call.integer("select"))) + 1;
    if (call.has("value"))
        element.properties["select"] = static_cast<int>(placeOf(context, labels, call.string("value"))) + 1;
}

Value tellChoice(const InterfaceElement& element, const ParsedCommand& call)
{
    const int chosen = chosenItem(element);
    if (call.has("select"))
        return Value(chosen);
    if (call.has("value"))
        return Value(chosen == 0 ? std::string()
                                 : labelOf(*element.children()[static_cast<std::size_t>(chosen - 1)]));
    if (!call.has("itemListShort") && !call.has("itemListLong"))
        return {};
    Value::Strings list;
    for (const auto& item : element.children())
        list.push_back(call.has("itemListLong") ? item->path() : item->name);
    return Value(std::move(list));
}

// Forms

/// One way of hanging an edge of a child.
struct AttachmentRow
{
    const char* shortName;
    const char* longName;
    std::vector<A> arguments; ///< the child and its edge come first
    const char* help;
};

const std::vector<AttachmentRow>& attachmentRows()
{
    static const std::vector<AttachmentRow> rows = {
        {"af", "attachForm", {A::string, A::string, A::integer}, "a child's edge to the form, and pixels"},
        {"aof",
         "attachOppositeForm",
         {A::string, A::string, A::integer},
         "a child's edge to the form's other side, and pixels"},
        {"ac",
         "attachControl",
         {A::string, A::string, A::integer, A::string},
         "a child's edge to another child, and pixels"},
        {"aoc",
         "attachOppositeControl",
         {A::string, A::string, A::integer, A::string},
         "a child's edge to the same edge of another child, and pixels"},
        {"ap",
         "attachPosition",
         {A::string, A::string, A::integer, A::integer},
         "a child's edge to a place of the form's grid, and pixels"},
        {"an", "attachNone", {A::string, A::string}, "a child's edge hangs on nothing"},
    };
    return rows;
}

constexpr std::array<const char*, 4> kEdges = {"top", "left", "bottom", "right"};

const InterfaceElement& childOf(const CommandContext& context, const InterfaceElement& element,
                                const std::string& name)
{
    for (const auto& child : element.children())
        if (child->name == name || child->path() == name)
            return *child;
    failFor(context, "'" + name + "' is not in '" + element.name + "'");
}

void attach(const CommandContext& context, InterfaceElement& element, const AttachmentRow& row,
            const std::vector<Value>& arguments)
{
    InterfaceAttachment attachment;
    attachment.flag = row.longName;
    attachment.child = childOf(context, element, arguments[0].toString()).name;
    attachment.edge = arguments[1].toString();
    if (std::find(kEdges.begin(), kEdges.end(), attachment.edge) == kEdges.end())
        failFor(context, "'" + attachment.edge + "' is no edge: top, left, bottom or right");
    if (row.arguments.size() > 2)
        attachment.offset = arguments[2].toInteger();
    if (row.arguments.size() > 3 && row.arguments[3] == A::string)
        attachment.other = childOf(context, element, arguments[3].toString()).name;
    else if (row.arguments.size() > 3)
        attachment.position = arguments[3].toInteger();
    auto& all = element.attachments;
    const auto isSameEdge = [&](const InterfaceAttachment& known) {
        return known.child == attachment.child && known.edge == attachment.edge;
    };
    all.erase(std::remove_if(all.begin(), all.end(), isSameEdge), all.end());
    if (attachment.flag != "attachNone")
        all.push_back(std::move(attachment));
}

void changeForm(const CommandContext& context, InterfaceElement& element, const ParsedCommand& call)
{
    for (const FlagUse& use : call.flags)
        for (const AttachmentRow& row : attachmentRows())
            if (use.flag->longName == row.longName)
                attach(context, element, row, use.arguments);
}

Value tellNothing(const InterfaceElement&, const ParsedCommand&)
{
    return {};
}

// Tabs

void changeTabs(const CommandContext& context, InterfaceElement& element, const ParsedCommand& call)
{
    for (const FlagUse* use : call.uses("tabLabel")) {
        const InterfaceElement& child = childOf(context, element, use->arguments[0].toString());
        element.properties["tabLabel " + child.name] = use->arguments[1];
    }
    if (call.has("selectTab"))
        element.properties["selectTab"] = Value(childOf(context, element, call.string("selectTab")).name);
    if (call.has("selectTabIndex")) {
        const int number = call.integer("selectTabIndex");
        if (number < 1 || static_cast<std::size_t>(number) > element.children().size())
            failFor(context, "there is no tab number " + std::to_string(number));
        element.properties["selectTab"] =
            Value(element.children()[static_cast<std::size_t>(number - 1)]->name);
    }
}

/// The place of the tab in front, counted from 0; the first until another is chosen.
std::size_t frontTab(const InterfaceElement& element)
{
    const auto chosen = element.properties.find("selectTab");
    const auto& tabs = element.children();
    for (std::size_t i = 0; i < tabs.size() && chosen != element.properties.end(); ++i)
        if (tabs[i]->name == chosen->second.toString())
            return i;
    return 0;
}

Value tellTabs(const InterfaceElement& element, const ParsedCommand& call)
{
    const auto& tabs = element.children();
    if (call.has("selectTabIndex"))
        return Value(tabs.empty() ? 0 : static_cast<int>(frontTab(element)) + 1);
    if (call.has("selectTab"))
        return Value(tabs.empty() ? std::string() : tabs[frontTab(element)]->name);
    if (!call.has("tabLabel"))
        return {};
    Value::Strings labels;
    for (const auto& tab : tabs) {
        const auto label = element.properties.find("tabLabel " + tab->name);
        labels.push_back(label == element.properties.end() ? tab->name : label->second.toString());
    }
    return Value(std::move(labels));
}

// Radio buttons and progress

void changeCollection(const CommandContext&, InterfaceElement& element, const ParsedCommand& call)
{
    if (call.has("select"))
        element.properties["select"] = Value(call.string("select"));
}

Value tellCollection(const InterfaceElement& element, const ParsedCommand& call)
{
    const auto chosen = element.properties.find("select");
    if (call.has("select"))
        return chosen == element.properties.end() ? Value("NONE") : chosen->second;
    if (call.has("collectionItemArray"))
        return Value(stringsOf(element, kItems));
    if (call.has("numberOfCollectionItems"))
        return Value(static_cast<int>(stringsOf(element, kItems).size()));
    return {};
}

int numberOf(const InterfaceElement& element, const char* property, int otherwise)
{
    const auto found = element.properties.find(property);
    return found == element.properties.end() ? otherwise : found->second.toInteger();
}

void changeProgress(const CommandContext&, InterfaceElement& element, const ParsedCommand& call)
{
    if (!call.has("step"))
        return;
    const int most = numberOf(element, "maxValue", 100);
    element.properties["progress"] =
        std::min(most, numberOf(element, "progress", 0) + call.integer("step", 1));
}

} // namespace

const ElementPart& listPart()
{
    constexpr unsigned kMany = kCreateEdit | kMultiUse;
    static const ElementPart part = {
        {valueFlag("a", "append", A::string, "adds a line", kMany),
         {"ap",
          "appendPosition",
          {A::integer, A::string},
          kMany,
          "adds a line at a place, from 1; 0: the end"},
         valueFlag("ri", "removeItem", A::string, "takes a line away", kEdit | kMultiUse),
         valueFlag("rii", "removeIndexedItem", A::integer, "takes the line at a place away",
                   kEdit | kMultiUse),
         switchFlag("ra", "removeAll", "takes all lines away", kEdit),
         valueFlag("si", "selectItem", A::string, "the lines that are selected", kMany | kQuery),
         valueFlag("sii", "selectIndexedItem", A::integer, "the places of the lines that are selected",
                   kMany | kQuery),
         switchFlag("da", "deselectAll", "no line is selected", kEdit),
         switchFlag("ai", "allItems", "all lines", kQuery),
         switchFlag("ni", "numberOfItems", "how many lines there are", kQuery),
         switchFlag("nsi", "numberOfSelectedItems", "how many are selected", kQuery)},
        changeList,
        tellList};
    return part;
}

const ElementPart& choicePart()
{
    static const ElementPart part = {
        {valueFlag("v", "value", A::string, "the label of the item that is chosen", kAllModes),
         valueFlag("sl", "select", A::integer, "its place, from 1", kAllModes),
         switchFlag("ils", "itemListShort", "the names of the items", kQuery),
         switchFlag("ill", "itemListLong", "the paths of the items", kQuery)},
        changeChoice,
        tellChoice};
    return part;
}

const ElementPart& formPart()
{
    static const ElementPart part = [] {
        ElementPart made = {{}, changeForm, tellNothing};
        for (const AttachmentRow& row : attachmentRows())
            made.flags.push_back(
                {row.shortName, row.longName, row.arguments, kCreateEdit | kMultiUse, row.help});
        return made;
    }();
    return part;
}

const ElementPart& tabPart()
{
    static const ElementPart part = {
        {{"tl", "tabLabel", {A::string, A::string}, kAllModes | kMultiUse, "a child and the text of its tab"},
         valueFlag("st", "selectTab", A::string, "the child in front", kAllModes),
         valueFlag("sti", "selectTabIndex", A::integer, "its place, from 1", kAllModes)},
        changeTabs,
        tellTabs};
    return part;
}

const ElementPart& collectionPart()
{
    static const ElementPart part = {
        {valueFlag("sl", "select", A::string, "the button that is on", kAllModes),
         switchFlag("cia", "collectionItemArray", "its buttons", kQuery),
         switchFlag("nci", "numberOfCollectionItems", "how many buttons it has", kQuery)},
        changeCollection,
        tellCollection};
    return part;
}

const ElementPart& progressPart()
{
    static const ElementPart part = {
        {valueFlag("s", "step", A::integer, "goes on by so much", kEdit)}, changeProgress, tellNothing};
    return part;
}

} // namespace tvxhost::mel
