// Lists, option menus and groups of radio buttons of the user interface; see interfaceParts.h.
#include "interfaceParts.h"

#include <algorithm>

namespace tvxhost::mel {

namespace {

using A = ArgumentType;

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

// Radio buttons

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

} // namespace tvxhost::mel
