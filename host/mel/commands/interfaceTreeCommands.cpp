// setParent, showWindow, deleteUI, lsUI: the recorded user interface as a whole.
#include "interfaceAccess.h"
#include "interfaceKinds.h"
#include "sceneCommands.h"

#include <algorithm>

namespace tvxhost::mel {

InterfaceTree& treeOf(const CommandContext& context)
{
    return sessionOf(context).interface();
}

void refuseInBatch(const CommandContext& context)
{
    if (sceneOf(context).isBatch())
        context.fail("'" + context.command() +
                     "' is not available in batch mode: there is no user interface");
}

InterfaceElement& elementNamed(const CommandContext& context, const std::string& name)
{
    InterfaceElement* element = treeOf(context).find(name);
    if (!element)
        context.fail("Object '" + name + "' not found.");
    return *element;
}

namespace {

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

/// A flag that says of which family the elements are.
struct FamilyFlag
{
    const char* shortName;
    const char* longName;
    const char* help;
    Family family;
};

constexpr FamilyFlag kDeleted[] = {
    {"wnd", "window", "a window", Family::window},
    {"m", "menu", "a menu", Family::menu},
    {"mi", "menuItem", "a menu item", Family::menuItem},
    {"lay", "layout", "a layout", Family::layout},
    {"ctl", "control", "a control", Family::control},
    {"rbc", "radioCollection", "a group of radio buttons", Family::collection},
};

Value deleteUI(CommandContext& context, const ParsedCommand& call)
{
    refuseInBatch(context);
    for (const std::string& name : call.names()) {
        InterfaceElement& element = elementNamed(context, name);
        const Family family = kindOf(element).family;
        for (const FamilyFlag& row : kDeleted)
            // A layout is a control as well, and a sub-menu is a menu.
            if (call.has(row.longName) && family != row.family &&
                !(row.family == Family::control && family == Family::layout) &&
                !(row.family == Family::menu && holdsItems(element)))
                context.fail("Object '" + name + "' is not " + row.help + ".");
        if (!treeOf(context).remove(element))
            context.fail("deleteUI: the main window cannot be deleted");
    }
    return {};
}

// lsUI

constexpr FamilyFlag kListed[] = {
    {"wnd", "windows", "windows", Family::window},
    {"m", "menus", "menus", Family::menu},
    {"mi", "menuItems", "menu items", Family::menuItem},
    {"cl", "controlLayouts", "layouts", Family::layout},
    {"ctl", "controls", "controls", Family::control},
    {"rc", "radioCollections", "groups of radio buttons", Family::collection},
};

bool isListed(const InterfaceElement& element, const ParsedCommand& call)
{
    const auto types = call.uses("type");
    if (std::any_of(types.begin(), types.end(),
                    [&](const FlagUse* use) { return use->arguments.front().toString() == element.kind; }))
        return true;
    const Family family = kindOf(element).family;
    return std::any_of(std::begin(kListed), std::end(kListed),
                       [&](const FamilyFlag& row) { return row.family == family && call.has(row.longName); });
}

void list(const std::vector<std::unique_ptr<InterfaceElement>>& elements, const ParsedCommand& call,
          Value::Strings& names)
{
    for (const auto& element : elements) {
        if (isListed(*element, call))
            names.push_back(call.has("long") ? element->path() : element->name);
        list(element->children(), call, names);
    }
}

Value lsUI(CommandContext& context, const ParsedCommand& call)
{
    refuseInBatch(context);
    if (call.flags.empty())
        context.fail("lsUI: which kinds of elements?");
    Value::Strings names;
    list(treeOf(context).windows(), call, names);
    if (call.has("numWidgets"))
        return Value(static_cast<int>(names.size()));
    keepEnd(names, call);
    return Value(std::move(names));
}

template <std::size_t kSize>
std::vector<FlagSpec> familyFlags(const FamilyFlag (&rows)[kSize])
{
    std::vector<FlagSpec> flags;
    for (const FamilyFlag& row : rows)
        flags.push_back(switchFlag(row.shortName, row.longName, row.help));
    return flags;
}

CommandSpec lsUICommand()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = familyFlags(kListed);
    const std::vector<FlagSpec> others = {
        valueFlag("typ", "type", A::string, "those that this command makes", kCreate | kMultiUse),
        switchFlag("l", "long", "names with all that they are in"),
        switchFlag("nw", "numWidgets", "only how many"),
        valueFlag("hd", "head", A::integer, "the first ones only"),
        valueFlag("tl", "tail", A::integer, "the last ones only"),
        refusedFlag("p", "panels", "there are no panels"),
        refusedFlag("ed", "editors", "there are no editors"),
        refusedFlag("ctx", "contexts", "there are no tools"),
        refusedFlag("dw", "dumpWidgets", "there are no widgets behind the elements"),
    };
    flags.insert(flags.end(), others.begin(), others.end());
    return makeCommand("lsUI", "Lists the elements of the user interface", std::move(flags), noArguments(),
                       lsUI);
}

} // namespace

void registerInterfaceTreeCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand("setParent", "Chooses what new controls or menu items are put into",
                    {switchFlag("m", "menu", "for menu items", kAllModes),
                     switchFlag("top", "topLevel", "the window", kAllModes),
                     switchFlag("u", "upLevel", "one level up", kAllModes)},
                    {A::string, 0, 1}, setParent, kAllModes),
        makeCommand("showWindow", "Shows a window", {}, {A::string, 0, 1}, showWindow),
        makeCommand("deleteUI", "Deletes windows, menus, items, layouts and controls", familyFlags(kDeleted),
                    {A::string, 1, PositionalRule::kAny}, deleteUI),
        lsUICommand(),
    });
}

} // namespace tvxhost::mel
