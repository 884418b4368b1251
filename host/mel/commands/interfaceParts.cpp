// Forms, tabs and progress bars of the user interface; see interfaceParts.h.
#include "interfaceParts.h"

#include <algorithm>
#include <array>

namespace tvxhost::mel {

namespace {

using A = ArgumentType;

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

// Progress

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

const ElementPart& progressPart()
{
    static const ElementPart part = {
        {valueFlag("s", "step", A::integer, "goes on by so much", kEdit)}, changeProgress, tellNothing};
    return part;
}

} // namespace tvxhost::mel
