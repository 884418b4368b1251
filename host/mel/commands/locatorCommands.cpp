// spaceLocator: points to hold on to.
#include "attributeFlags.h"
#include "sceneCommands.h"

namespace tvxhost::mel {

using engine::Node;

namespace {

const AttributeFlags& positionFlags()
{
    static const AttributeFlags flags = {
        {"p", "position", ArgumentType::linear, "localPosition", "where it is seen", 3}};
    return flags;
}

Node& locatorOf(const CommandContext& context, const engine::SelectionItem& item)
{
    Node* shape = nodeOfType(item, "locator");
    if (!shape)
        context.fail("'" + item.name() + "' is not a locator");
    return *shape;
}

Value create(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    Node& transform = *valueOf(context, scene.createNode("transform", call.string("name", "locator1")));
    const std::string shapeName = shapeNameFor(transform.name());
    Node& shape = *valueOf(context, scene.createNode("locator", shapeName, transform.asDag()));
    setAttributes(context, call, positionFlags(), shape);
    selectOnly(scene, transform);
    return Value(Value::Strings{scene.shortestName(transform)});
}

Value spaceLocator(CommandContext& context, const ParsedCommand& call)
{
    if (!call.queries() && !call.edits())
        return create(context, call);
    Node& shape = locatorOf(context, onlyItem(context, call));
    if (call.edits()) {
        setAttributes(context, call, positionFlags(), shape);
        return {};
    }
    if (const std::optional<Value> value = queriedAttribute(context, call, positionFlags(), shape))
        return *value;
    context.fail("spaceLocator: nothing was asked");
}

} // namespace

void registerLocatorCommands(CommandTable& table)
{
    std::vector<FlagSpec> flags = specsOf(positionFlags());
    flags.push_back(valueFlag("n", "name", ArgumentType::string, "the transform's name"));
    flags.push_back(
        switchFlag("a", "absolute", "the position is one of the world (the default)", kCreateEdit));
    flags.push_back(
        switchFlag("r", "relative", "the position is one of the locator's own space", kCreateEdit));
    table.add({makeCommand("spaceLocator", "Makes a locator", std::move(flags), names(0, 1), spaceLocator,
                           kAllModes)});
}

} // namespace tvxhost::mel
