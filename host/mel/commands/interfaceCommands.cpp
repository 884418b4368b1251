// The user interface as a recorded tree: what scripts make can be asked about, changed and deleted.
#include "commandSupport.h"
#include "sceneCommands.h"

#include <algorithm>

namespace tvxhost::mel {

namespace {

/// Where new elements of a kind go.
enum class Place
{
    top,   ///< nowhere: a window of its own
    menu,  ///< into the current menu
    layout ///< into the current layout or window
};

/// One command that makes elements: its own flags are properties that can be set, changed and asked for.
struct ElementKind
{
    const char* name;
    const char* summary;
    Place place;
    std::vector<FlagSpec> properties;
};

FlagSpec property(const char* shortName, const char* longName, ArgumentType type, const char* help)
{
    return valueFlag(shortName, longName, type, help, kAllModes);
}

FlagSpec sizes(const char* shortName, const char* longName, const char* help)
{
    return {shortName, longName, {ArgumentType::integer, ArgumentType::integer}, kAllModes, help};
}

const std::vector<ElementKind>& elementKinds()
{
    using A = ArgumentType;
    static const std::vector<ElementKind> kinds = {
        {"window",
         "A window",
         Place::top,
         {property("t", "title", A::string, "its title"),
          property("in", "iconName", A::string, "its icon's text"),
          property("s", "sizeable", A::boolean, "whether it can be resized"),
          property("mb", "menuBar", A::boolean, "whether it has a menu bar"),
          property("ret", "retain", A::boolean, "whether it outlives its closing"),
          property("rtf", "resizeToFitChildren", A::boolean, "whether it follows its content"),
          property("w", "width", A::integer, "in pixels"), property("h", "height", A::integer, "in pixels"),
          sizes("wh", "widthHeight", "in pixels"), sizes("tlc", "topLeftCorner", "in pixels")}},
        {"menu",
         "A menu of a window",
         Place::layout,
         {property("l", "label", A::string, "its text"),
          property("to", "tearOff", A::boolean, "can be torn off"),
          property("en", "enable", A::boolean, "can be used"),
          property("vis", "visible", A::boolean, "is shown"),
          property("hm", "helpMenu", A::boolean, "stands at the right"),
          property("aob", "allowOptionBoxes", A::boolean, "items may have option boxes"),
          property("pmc", "postMenuCommand", A::script, "runs before it opens")}},
        {"menuItem",
         "An item of a menu",
         Place::menu,
         {property("l", "label", A::string, "its text"),
          property("c", "command", A::script, "runs when it is chosen"),
          property("ann", "annotation", A::string, "its explanation"),
          property("d", "divider", A::boolean, "a line between items"),
          property("sm", "subMenu", A::boolean, "a menu in the menu"),
          property("ob", "optionBox", A::boolean, "the option box of the item before"),
          property("cb", "checkBox", A::boolean, "on or off"),
          property("en", "enable", A::boolean, "can be chosen"),
          property("i", "image", A::string, "its picture"),
          property("to", "tearOff", A::boolean, "can be torn off"),
          property("rb", "radioButton", A::boolean, "one of a group"),
          property("bld", "boldFont", A::boolean, "in bold")}},
        {"columnLayout",
         "Controls one below the other",
         Place::layout,
         {property("adj", "adjustableColumn", A::boolean, "as wide as the window"),
          property("rs", "rowSpacing", A::integer, "pixels between rows"),
          property("w", "width", A::integer, "in pixels")}},
        {"rowLayout",
         "Controls side by side",
         Place::layout,
         {property("nc", "numberOfColumns", A::integer, "how many"),
          property("w", "width", A::integer, "in pixels")}},
        {"frameLayout",
         "Controls in a frame",
         Place::layout,
         {property("l", "label", A::string, "its text"),
          property("cll", "collapsable", A::boolean, "can be closed"),
          property("cl", "collapse", A::boolean, "is closed")}},
        {"formLayout",
         "Controls at free places",
         Place::layout,
         {property("nd", "numberOfDivisions", A::integer, "of its grid")}},
        {"button",
         "A button",
         Place::layout,
         {property("l", "label", A::string, "its text"),
          property("c", "command", A::script, "runs when it is pressed"),
          property("ann", "annotation", A::string, "its explanation"),
          property("en", "enable", A::boolean, "can be pressed"),
          property("w", "width", A::integer, "in pixels")}},
        {"text",
         "A line of text",
         Place::layout,
         {property("l", "label", A::string, "the text"),
          property("al", "align", A::string, "left, center or right")}},
        {"checkBox",
         "A box to tick",
         Place::layout,
         {property("l", "label", A::string, "its text"),
          property("v", "value", A::boolean, "whether it is ticked"),
          property("cc", "changeCommand", A::script, "runs when it changes")}},
        {"textField",
         "A field for text",
         Place::layout,
         {property("tx", "text", A::string, "the text"),
          property("ed", "editable", A::boolean, "can be changed"),
          property("cc", "changeCommand", A::script, "runs when it changes")}},
    };
    return kinds;
}

InterfaceTree& treeOf(CommandContext& context)
{
    return sessionOf(context).interface();
}

void refuseInBatch(const CommandContext& context)
{
    if (sceneOf(context).isBatch())
        context.fail("'" + context.command() +
                     "' is not available in batch mode: there is no user interface");
}

InterfaceElement& elementNamed(CommandContext& context, const std::string& name)
{
    InterfaceElement* element = treeOf(context).find(name);
    if (!element)
        context.fail("Object '" + name + "' not found.");
    return *element;
}

Value childNames(const InterfaceElement& element)
{
    Value::Strings names;
    for (const auto& child : element.children())
        names.push_back(child->name);
    return Value(std::move(names));
}

Value neutralOf(const FlagSpec& flag)
{
    if (flag.arguments.size() > 1)
        return Value(Value::Integers(flag.arguments.size()));
    const ArgumentType type = flag.arguments.front();
    return type == ArgumentType::boolean || type == ArgumentType::integer ? Value(0) : Value("");
}

Value query(CommandContext& context, const ParsedCommand& call, const ElementKind& kind)
{
    if (call.names().empty())
        context.fail(std::string(kind.name) + ": which one is asked about?");
    const InterfaceElement& element = elementNamed(context, call.names().front());
    if (call.has("itemArray") || call.has("childArray"))
        return childNames(element);
    if (call.has("numberOfItems"))
        return Value(static_cast<int>(element.children().size()));
    if (call.has("parent"))
        return Value(element.parent() ? element.parent()->path() : std::string());
    for (const FlagSpec& flag : kind.properties) {
        if (!call.has(flag.longName))
            continue;
        const auto value = element.properties.find(flag.longName);
        return value == element.properties.end() ? neutralOf(flag) : value->second;
    }
    return {};
}

void setProperties(InterfaceElement& element, const ParsedCommand& call, const ElementKind& kind)
{
    for (const FlagSpec& flag : kind.properties) {
        const FlagUse* use = call.use(flag.longName);
        if (!use)
            continue;
        if (use->arguments.size() == 1) {
            element.properties[flag.longName] = use->arguments.front();
            continue;
        }
        Value::Integers numbers;
        for (const Value& argument : use->arguments)
            numbers.push_back(argument.toInteger());
        element.properties[flag.longName] = Value(std::move(numbers));
    }
}

InterfaceElement* parentFor(CommandContext& context, const ParsedCommand& call, const ElementKind& kind)
{
    if (kind.place == Place::top)
        return nullptr;
    if (call.has("parent"))
        return &elementNamed(context, call.string("parent"));
    InterfaceTree& tree = treeOf(context);
    InterfaceElement* parent = kind.place == Place::menu ? tree.currentMenu() : tree.currentParent();
    if (!parent)
        context.fail(std::string("There is no ") + (kind.place == Place::menu ? "menu" : "window") +
                     " to put a " + kind.name + " into");
    return parent;
}

/// New elements become what the next ones are put into: windows and layouts for controls, menus for items.
void becomeCurrent(InterfaceTree& tree, InterfaceElement& element, const ParsedCommand& call)
{
    const bool isSubMenu = element.kind == "menuItem" && call.boolean("subMenu");
    if (element.kind == "menu" || isSubMenu)
        tree.setCurrentMenu(&element);
    else if (element.kind == "window" || element.kind.find("Layout") != std::string::npos)
        tree.setCurrentParent(&element);
}

Value create(CommandContext& context, const ParsedCommand& call, const ElementKind& kind)
{
    InterfaceTree& tree = treeOf(context);
    InterfaceElement* parent = parentFor(context, call, kind);
    const std::string name = call.names().empty() ? std::string() : call.names().front();
    InterfaceElement* element = tree.add(kind.name, name, parent);
    if (!element)
        context.fail(std::string(kind.name) + ": Object's name '" + name + "' is not unique.");
    setProperties(*element, call, kind);
    becomeCurrent(tree, *element, call);
    return Value(element->path());
}

Value run(CommandContext& context, const ParsedCommand& call, const ElementKind& kind)
{
    if (call.has("exists"))
        return Value(!call.names().empty() && treeOf(context).find(call.names().front()) != nullptr);
    refuseInBatch(context);
    if (call.queries())
        return query(context, call, kind);
    if (!call.edits())
        return create(context, call, kind);
    InterfaceElement& element =
        elementNamed(context, call.names().empty() ? std::string() : call.names().front());
    if (call.has("deleteAllItems"))
        treeOf(context).removeChildren(element);
    setProperties(element, call, kind);
    return Value(element.path());
}

CommandSpec elementCommand(const ElementKind& kind)
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = kind.properties;
    flags.push_back(switchFlag("ex", "exists", "whether there is one of that name", kCreateQuery));
    flags.push_back(valueFlag("p", "parent", A::string, "what it is put into", kCreateQuery));
    flags.push_back(switchFlag("ia", "itemArray", "the names of its items", kQuery));
    flags.push_back(switchFlag("ni", "numberOfItems", "how many there are", kQuery));
    flags.push_back(switchFlag("ca", "childArray", "the names of what is in it", kQuery));
    flags.push_back(switchFlag("dai", "deleteAllItems", "removes all its items", kEdit));
    return makeCommand(
        kind.name, kind.summary, std::move(flags), {A::string, 0, 1},
        [&kind](CommandContext& context, const ParsedCommand& call) { return run(context, call, kind); },
        kAllModes);
}

// setParent, showWindow, deleteUI

Value setParent(CommandContext& context, const ParsedCommand& call)
{
    refuseInBatch(context);
    InterfaceTree& tree = treeOf(context);
    const bool isMenu = call.has("menu");
    InterfaceElement* current = isMenu ? tree.currentMenu() : tree.currentParent();
    if (call.queries())
        return Value(current ? current->path() : std::string());
    const std::string to = call.names().empty() ? std::string() : call.names().front();
    if (call.has("upLevel") || to == "..") {
        current = current ? current->parent() : nullptr;
    } else if (call.has("topLevel")) {
        while (current && current->parent())
            current = current->parent();
    } else if (!to.empty()) {
        current = &elementNamed(context, to);
    }
    if (isMenu)
        tree.setCurrentMenu(current);
    else
        tree.setCurrentParent(current);
    return Value(current ? current->path() : std::string());
}

Value showWindow(CommandContext& context, const ParsedCommand& call)
{
    refuseInBatch(context);
    InterfaceElement* window =
        call.names().empty() ? treeOf(context).currentParent() : &elementNamed(context, call.names().front());
    while (window && window->parent())
        window = window->parent();
    if (!window)
        context.fail("showWindow: there is no window");
    window->isShown = true;
    return {};
}

Value deleteUI(CommandContext& context, const ParsedCommand& call)
{
    refuseInBatch(context);
    for (const std::string& name : call.names())
        if (!treeOf(context).remove(elementNamed(context, name)))
            context.fail("deleteUI: the main window cannot be deleted");
    return {};
}

} // namespace

void registerInterfaceCommands(CommandTable& table)
{
    using A = ArgumentType;
    for (const ElementKind& kind : elementKinds())
        table.add(elementCommand(kind));
    table.add({
        makeCommand("setParent", "Chooses what new controls or menu items are put into",
                    {switchFlag("m", "menu", "for menu items", kAllModes),
                     switchFlag("top", "topLevel", "the window", kAllModes),
                     switchFlag("u", "upLevel", "one level up", kAllModes)},
                    {A::string, 0, 1}, setParent, kAllModes),
        makeCommand("showWindow", "Shows a window", {}, {A::string, 0, 1}, showWindow),
        makeCommand("deleteUI", "Deletes windows, menus, items, layouts and controls",
                    {switchFlag("wnd", "window", "a window"), switchFlag("m", "menu", "a menu"),
                     switchFlag("mi", "menuItem", "a menu item"), switchFlag("lay", "layout", "a layout"),
                     switchFlag("ctl", "control", "a control")},
                    {A::string, 1, PositionalRule::kAny}, deleteUI),
    });
}

} // namespace tvxhost::mel
