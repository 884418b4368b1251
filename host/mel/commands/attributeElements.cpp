// What a name means to getAttr and setAttr; see attributeElements.h.
#include "attributeElements.h"

#include "listLimit.h"
#include "pointComponents.h"

#include "engine/components.h"
#include "engine/geometry/curveNode.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace tvxhost::mel {

using engine::Components;
using engine::Plug;
using engine::SelectionItem;

namespace {

/// Through which attribute the points of a shape are moved.
struct PointRow
{
    std::string_view word; ///< as names have it
    const char* kind;      ///< of components
    const char* shape;
    const char* attribute;
};

constexpr PointRow kPointRows[] = {
    {"vtx", "vtx", "mesh", "pnts"},
    {"pt", "vtx", "mesh", "pnts"},
    {"cv", "cv", "nurbsCurve", "controlPoints"},
};

Value placesOf(const CommandContext& context, const NamedPlaces& places)
{
    const double unit = toInternal(context, Value(1.0), ArgumentType::linear);
    Value::Numbers numbers;
    for (const auto& [number, point] : pointsOf(context, places.points))
        for (unsigned axis = places.axis.value_or(0); axis < places.axis.value_or(2) + 1; ++axis)
            numbers.push_back(point[static_cast<int>(axis)] / unit);
    return Value(std::move(numbers));
}

std::vector<Plug> elementsIn(const Plug& array, const Components& numbers)
{
    std::vector<Plug> elements;
    for (const Components::Run& run : numbers.runs())
        for (long long i = run.first; i <= run.last; ++i)
            elements.push_back(array.element(static_cast<int>(i)));
    return elements;
}

AskedPlugs componentsAsked(const CommandContext& context, const SelectionItem& item)
{
    engine::DagNode& shape = *item.path.node();
    const std::size_t open = item.components.find('[');
    for (const PointRow& row : kPointRows) {
        if (open == std::string::npos || item.components.substr(0, open) != row.word ||
            !shape.type().isA(row.shape))
            continue;
        const auto numbers = engine::parseComponents(shape, row.kind + item.components.substr(open));
        if (!numbers)
            break;
        requireListable(context, numbers->count(), item.name());
        const Plug array = valueOf(context, shape.findPlug(row.attribute));
        AskedPlugs what{array, true, elementsIn(array, *numbers), {}};
        if (shape.type().isA("nurbsCurve") && !engine::hasCurveHistory(shape))
            what.points = placesOf(context, {item, std::nullopt});
        return what;
    }
    context.fail("No object matches name: " + item.name());
}

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

/// The run of elements that a name with a colon between brackets means; none for any other name. A transform
/// stands for its shape.
std::optional<scene::PlugTarget> rangeNamed(const CommandContext& context, const std::string& name)
{
    const std::size_t dot = name.find('.');
    const std::size_t bracket = name.rfind('[');
    if (dot == std::string::npos || bracket == std::string::npos || bracket < dot ||
        name.find(':', bracket) == std::string::npos)
        return std::nullopt;
    const auto item = sceneOf(context).findItem(name.substr(0, name.find_first_of(".[", dot + 1)));
    if (!item || item.value.plug.isNull())
        return std::nullopt;
    return valueOf(context, scene::findTarget(*item.value.plug.node(), name.substr(dot + 1)));
}

/// Points of a shape that are named as components, and what follows behind the bracket.
struct NamedPoints
{
    const PointRow& row;
    SelectionItem item;
    Components numbers;
    std::string tail; ///< without the dot
};

/// None for a name that means something else, and for points that there are not.
std::optional<NamedPoints> pointsNamed(const CommandContext& context, const std::string& name)
{
    const std::size_t dot = name.find('.');
    const std::size_t open = name.find('[', std::min(dot, name.size()));
    const std::size_t close = name.find(']', std::min(open, name.size()));
    if (close == std::string::npos)
        return std::nullopt;
    const std::string word = name.substr(dot + 1, open - dot - 1);
    for (const PointRow& row : kPointRows) {
        const auto item = row.word == word ? sceneOf(context).findItem(name.substr(0, close + 1))
                                           : engine::Reason::notFound;
        if (!item || item.value.components.empty() || !item.value.path.node()->type().isA(row.shape))
            continue;
        engine::DagNode& shape = *item.value.path.node();
        const auto named = engine::parseComponents(shape, row.kind + name.substr(open, close + 1 - open));
        const Components numbers =
            named ? named->common(engine::allComponents(shape, row.kind)) : Components();
        if (!numbers.empty())
            return NamedPoints{row, item.value, numbers, name.substr(std::min(close + 2, name.size()))};
    }
    return std::nullopt;
}

} // namespace

std::vector<scene::PlugTarget> elementsNamed(const CommandContext& context, const std::string& name)
{
    if (const auto range = rangeNamed(context, name))
        return {*range};
    const auto points = pointsNamed(context, name);
    if (!points)
        return {};
    const Plug array = valueOf(context, points->item.path.node()->findPlug(points->row.attribute));
    std::vector<scene::PlugTarget> targets;
    for (const Components::Run& run : points->numbers.runs())
        targets.push_back({array, true, run.first, run.last, points->tail});
    return targets;
}

std::optional<NamedPlaces> placesNamed(const CommandContext& context, const std::string& name)
{
    const auto points = pointsNamed(context, name);
    if (!points || points->row.kind != std::string_view("cv") ||
        engine::hasCurveHistory(*points->item.path.node()))
        return std::nullopt;
    if (points->tail.empty())
        return NamedPlaces{points->item, std::nullopt};
    const auto& axes = points->item.path.node()->findAttribute(points->row.attribute)->children;
    for (unsigned axis = 0; axis < axes.size(); ++axis)
        if (axes[axis]->longName == points->tail || axes[axis]->shortName == points->tail)
            return NamedPlaces{points->item, axis};
    context.fail("No object matches name: " + name);
}

namespace {

/// One part of each of some points: "a.vtx[0:3].pntx".
AskedPlugs partsAsked(const CommandContext& context, const std::string& name, const NamedPoints& points)
{
    requireListable(context, points.numbers.count(), name);
    AskedPlugs what{valueOf(context, points.item.path.node()->findPlug(points.row.attribute)), true, {}, {}};
    if (const auto places = placesNamed(context, name)) {
        what.points = placesOf(context, *places);
        return what;
    }
    for (const scene::PlugTarget& target : elementsNamed(context, name))
        for (std::size_t i = 0; i < target.count(); ++i)
            what.elements.push_back(valueOf(context, target.nth(i)));
    return what;
}

} // namespace

AskedPlugs plugsAsked(const CommandContext& context, const std::string& name)
{
    if (const auto points = pointsNamed(context, name); points && !points->tail.empty())
        return partsAsked(context, name, *points);
    if (const auto range = rangeNamed(context, name)) {
        requireListable(context, range->count(), name);
        AskedPlugs what{range->plug, true, {}, {}};
        for (std::size_t i = 0; i < range->count(); ++i)
            what.elements.push_back(valueOf(context, range->nth(i)));
        return what;
    }
    constexpr std::string_view kAll = "[*]";
    if (endsWith(name, kAll))
        if (const auto array = sceneOf(context).findPlug(name.substr(0, name.size() - kAll.size())))
            return {array.value, false, {}, {}};
    const SelectionItem item = itemNamed(context, name);
    if (!item.components.empty())
        return componentsAsked(context, item);
    if (item.plug.isNull())
        context.fail("No object matches name: " + name);
    return {item.plug, false, {}, {}};
}

} // namespace tvxhost::mel
