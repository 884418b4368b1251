// The user interface as a recorded tree: what scripts make can be asked about, changed and deleted.
#include "interfaceAccess.h"
#include "interfaceKinds.h"
#include "sceneCommands.h"

#include <algorithm>

namespace tvxhost::mel {

namespace {

InterfaceElement& elementOf(const CommandContext& context, const ParsedCommand& call, const ElementKind& kind)
{
    if (call.names().empty())
        context.fail(std::string(kind.name) + ": which one is meant?");
    InterfaceElement& element = elementNamed(context, call.names().front());
    if (!isAbout(kind, element))
        context.fail("Object '" + call.names().front() + "' is no " + kind.name + ".");
    return element;
}

// Questions

/// One question that elements of any kind answer.
struct Question
{
    const char* shortName;
    const char* longName;
    const char* help;
    Value (*answer)(const InterfaceElement& element);
};

Value childNames(const InterfaceElement& element)
{
    Value::Strings names;
    for (const auto& child : element.children())
        names.push_back(child->name);
    return Value(std::move(names));
}

Value childrenOf(const InterfaceElement& element, Family family)
{
    Value::Strings names;
    for (const auto& child : element.children())
        if (kindOf(*child).family == family)
            names.push_back(child->name);
    return Value(std::move(names));
}

Value childCount(const InterfaceElement& element)
{
    return Value(static_cast<int>(element.children().size()));
}

constexpr Question kQuestions[] = {
    {"ia", "itemArray", "the names of its items", childNames},
    {"ni", "numberOfItems", "how many items there are", childCount},
    {"ca", "childArray", "the names of what is in it", childNames},
    {"nch", "numberOfChildren", "how many there are", childCount},
    {"ma", "menuArray", "the names of its menus",
     [](const InterfaceElement& element) { return childrenOf(element, Family::menu); }},
    {"nm", "numberOfMenus", "how many menus there are",
     [](const InterfaceElement& element) {
         return Value(static_cast<int>(childrenOf(element, Family::menu).size()));
     }},
    {"fpn", "fullPathName", "its name with all that it is in",
     [](const InterfaceElement& element) { return Value(element.path()); }},
    {"io", "isObscured", "whether it cannot be seen",
     [](const InterfaceElement& element) {
         const InterfaceElement* window = &element;
         while (window->parent())
             window = window->parent();
         return Value(!window->isShown);
     }},
};

/// What only windows answer and change: whether they are shown.
bool isAboutShowing(const ElementKind& kind, const ParsedCommand& call)
{
    return kind.family == Family::window && call.has("visible");
}

Value query(const CommandContext& context, const ParsedCommand& call, const ElementKind& kind)
{
    const InterfaceElement& element = elementOf(context, call, kind);
    if (kind.part)
        if (Value value = kind.part->tell(element, call); !value.isNone())
            return value;
    if (isAboutShowing(kind, call))
        return Value(element.isShown);
    for (const ElementProperty& property : kind.properties)
        if (call.has(property.flag.longName)) {
            const auto value = element.properties.find(property.flag.longName);
            return value == element.properties.end() ? property.otherwise : value->second.detached();
        }
    for (const Question& question : kQuestions)
        if (call.has(question.longName))
            return question.answer(element);
    if (call.has("parent"))
        return Value(element.parent() ? element.parent()->path() : std::string());
    context.fail(std::string(kind.name) + ": nothing was asked");
}

// Changes

Value keptValue(const std::vector<Value>& arguments)
{
    if (arguments.size() == 1)
        return arguments.front();
    Value::Integers integers;
    Value::Numbers numbers;
    for (const Value& argument : arguments) {
        integers.push_back(argument.toInteger());
        numbers.push_back(argument.toNumber());
    }
    return arguments.front().type() == Type::integer ? Value(std::move(integers)) : Value(std::move(numbers));
}

void change(const CommandContext& context, InterfaceElement& element, const ParsedCommand& call,
            const ElementKind& kind)
{
    for (const ElementProperty& property : kind.properties)
        for (const FlagUse* use : call.uses(property.flag.longName)) {
            const bool isPerColumn = (property.flag.modes & kMultiUse) != 0 && use->arguments.size() > 1;
            const std::string key =
                property.flag.longName + (isPerColumn ? " " + use->arguments.front().toString() : "");
            element.properties[key] = isPerColumn ? use->arguments.back() : keptValue(use->arguments);
        }
    if (isAboutShowing(kind, call))
        element.isShown = call.boolean("visible");
    if (kind.part)
        kind.part->change(context, element, call);
}

// Making

InterfaceElement* parentFor(const CommandContext& context, const ParsedCommand& call, const ElementKind& kind)
{
    if (kind.family == Family::window)
        return nullptr;
    if (call.has("parent"))
        return &elementNamed(context, call.string("parent"));
    InterfaceTree& tree = treeOf(context);
    const bool isItem = kind.family == Family::menuItem;
    InterfaceElement* parent = isItem ? tree.currentMenu() : tree.currentParent();
    if (!parent)
        context.fail(std::string("There is no ") + (isItem ? "menu" : "window") + " to put a " + kind.name +
                     " into");
    return parent;
}

/// A radio button belongs to the group that was made last.
void joinCollection(InterfaceTree& tree, const InterfaceElement& element)
{
    InterfaceElement* collection = tree.currentCollection();
    if (!collection || element.kind.find("adioButton") == std::string::npos)
        return;
    Value& items = collection->properties["items"];
    if (items.isNone())
        items = Value(Value::Strings());
    items.strings().push_back(element.name);
}

/// New elements become what the next ones are put into: windows and layouts for controls, menus for items.
void becomeCurrent(InterfaceTree& tree, InterfaceElement& element)
{
    if (holdsItems(element))
        tree.setCurrentMenu(&element);
    else if (holdsControls(element))
        tree.setCurrentParent(&element);
    else if (kindOf(element).family == Family::collection)
        tree.setCurrentCollection(&element);
}

Value create(const CommandContext& context, const ParsedCommand& call, const ElementKind& kind)
{
    if (kind.isGeneral)
        context.fail("'" + std::string(kind.name) + "' makes nothing; it edits and tells what is there");
    InterfaceTree& tree = treeOf(context);
    InterfaceElement* parent = parentFor(context, call, kind);
    const std::string name = call.names().empty() ? std::string() : call.names().front();
    InterfaceElement* element = tree.add(kind.name, name, parent);
    if (!element)
        context.fail(std::string(kind.name) + ": Object's name '" + name + "' is not unique.");
    change(context, *element, call, kind);
    becomeCurrent(tree, *element);
    joinCollection(tree, *element);
    return Value(element->path());
}

Value exists(const CommandContext& context, const ParsedCommand& call, const ElementKind& kind)
{
    const InterfaceElement* element =
        call.names().empty() ? nullptr : treeOf(context).find(call.names().front());
    return Value(element && isAbout(kind, *element));
}

Value run(const CommandContext& context, const ParsedCommand& call, const ElementKind& kind)
{
    if (call.has("exists"))
        return exists(context, call, kind);
    refuseInBatch(context);
    if (call.queries())
        return query(context, call, kind);
    if (!call.edits())
        return create(context, call, kind);
    InterfaceElement& element = elementOf(context, call, kind);
    if (call.has("deleteAllItems"))
        treeOf(context).removeChildren(element);
    change(context, element, call, kind);
    return Value(element.path());
}

bool hasFlag(const std::vector<FlagSpec>& flags, const std::string& longName)
{
    return std::any_of(flags.begin(), flags.end(),
                       [&](const FlagSpec& flag) { return flag.longName == longName; });
}

CommandSpec elementCommand(const ElementKind& kind)
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags;
    if (kind.part)
        flags = kind.part->flags;
    for (const ElementProperty& property : kind.properties)
        flags.push_back(property.flag);
    if (kind.family == Family::window)
        flags.push_back(valueFlag("vis", "visible", A::boolean, "is shown", kAllModes));
    flags.push_back(switchFlag("ex", "exists", "whether there is one of that name", kCreateQuery));
    flags.push_back(valueFlag("p", "parent", A::string, "what it is put into", kCreateQuery));
    for (const Question& question : kQuestions)
        // A list counts its lines as its items.
        if (!hasFlag(flags, question.longName))
            flags.push_back(switchFlag(question.shortName, question.longName, question.help, kQuery));
    flags.push_back(switchFlag("dai", "deleteAllItems", "removes all its items", kEdit));
    return makeCommand(
        kind.name, kind.summary, std::move(flags), {A::string, 0, 1},
        [&kind](CommandContext& context, const ParsedCommand& call) { return run(context, call, kind); },
        kAllModes);
}

} // namespace

void registerInterfaceCommands(CommandTable& table)
{
    for (const ElementKind& kind : elementKinds())
        table.add({elementCommand(kind)});
}

} // namespace tvxhost::mel
