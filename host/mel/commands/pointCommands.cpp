// pointPosition, exactWorldBoundingBox: where points and objects are.
#include "pointComponents.h"
#include "sceneCommands.h"

#include "engine/boundingBox.h"

#include <Imath/ImathBox.h>
#include <Imath/ImathBoxAlgo.h>

namespace tvxhost::mel {

using engine::SelectionItem;
using engine::Vec3d;

namespace {

Value numbersOf(const CommandContext& context, std::initializer_list<Vec3d> points)
{
    const double unit = toInternal(context, Value(1.0), ArgumentType::linear);
    Value::Numbers numbers;
    for (const Vec3d& point : points)
        numbers.insert(numbers.end(), {point.x / unit, point.y / unit, point.z / unit});
    return Value(std::move(numbers));
}

Vec3d vectorOf(const CommandContext& context, const engine::Plug& plug)
{
    const std::vector<double> numbers = valueOf(context, engine::readNumbers(plug));
    return {numbers[0], numbers[1], numbers[2]};
}

/// An attribute that is a point, and from which space: its node's own.
struct PointAttribute
{
    const char* type;
    const char* attribute;
};

constexpr PointAttribute kPointAttributes[] = {
    {"locator", "localPosition"},
    {"transform", "rotatePivot"},
    {"transform", "scalePivot"},
};

/// A locator without an attribute stands for its point.
Vec3d pointAttribute(const CommandContext& context, const SelectionItem& item)
{
    engine::DagNode* dag = item.node->asDag();
    engine::DagNode* shape = dag && item.plug.isNull() ? item.path.shapeBelow() : nullptr;
    engine::Node& node = shape ? *shape : *item.node;
    for (const PointAttribute& row : kPointAttributes) {
        const auto plug = node.findPlug(row.attribute);
        const bool isMeant =
            item.plug.isNull() ? node.type().isA("locator") : plug && item.plug == plug.value;
        if (plug && node.type().isA(row.type) && isMeant)
            return vectorOf(context, plug.value);
    }
    context.fail("pointPosition: '" + item.name() + "' is no point");
}

Value pointPosition(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<SelectionItem> items = itemsOrSelection(context, call.names());
    if (items.size() != 1)
        context.fail("pointPosition needs one point");
    const SelectionItem& item = items.front();
    const Vec3d point =
        item.components.empty() ? pointAttribute(context, item) : pointsOf(context, item).front().second;
    const bool isLocal = call.has("local") && !call.has("world");
    return numbersOf(context, {isLocal || !item.isDag() ? point : point * item.path.inclusiveMatrix()});
}

/// The box of an object or of components in the world, without what is hidden when that is asked for.
Imath::Box3d worldBoxOf(const CommandContext& context, const SelectionItem& item, bool ignoresInvisible)
{
    Imath::Box3d box;
    if (!item.isDag() || (ignoresInvisible && !item.path.isVisible()))
        return box;
    if (!item.components.empty()) {
        for (const auto& [number, point] : pointsOf(context, item))
            box.extendBy(point * item.path.inclusiveMatrix());
        return box;
    }
    if (item.path.node()->isShape() || !ignoresInvisible) {
        box = engine::boundingBoxOf(*item.path.node());
        return box.isEmpty() ? box : Imath::transform(box, item.path.exclusiveMatrix());
    }
    for (engine::DagNode* child : item.path.node()->children()) {
        SelectionItem below;
        below.node = child;
        below.path = item.path;
        if (!child->isIntermediate() && below.path.push(*child))
            box.extendBy(worldBoxOf(context, below, ignoresInvisible));
    }
    return box;
}

Value exactWorldBoundingBox(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<SelectionItem> items = itemsOrSelection(context, call.names());
    if (items.empty())
        context.fail("Nothing is selected for exactWorldBoundingBox.");
    Imath::Box3d box;
    for (const SelectionItem& item : items)
        box.extendBy(worldBoxOf(context, item, call.boolean("ignoreInvisible")));
    if (box.isEmpty())
        box = Imath::Box3d(Vec3d(0.0));
    return numbersOf(context, {box.min, box.max});
}

} // namespace

void registerPointCommands(CommandTable& table)
{
    table.add({
        makeCommand("pointPosition", "Tells where a vertex, a control point, a locator or a pivot is",
                    {switchFlag("l", "local", "in the space of its object"),
                     switchFlag("w", "world", "in the world (the default)")},
                    names(), pointPosition),
        makeCommand("exactWorldBoundingBox", "Tells the box around objects in the world",
                    {valueFlag("ii", "ignoreInvisible", ArgumentType::boolean, "without what is hidden"),
                     valueFlag("ce", "calculateExactly", ArgumentType::boolean, "exactly (always so)")},
                    names(), exactWorldBoundingBox),
    });
}

} // namespace tvxhost::mel
