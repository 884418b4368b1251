// particle and nParticle: particle objects from points, and the values of single particles.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "engine/particle.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace tvxhost::mel {

using engine::DagNode;
using engine::Plug;
using engine::Vec3d;

namespace {

using A = ArgumentType;

// making them

Vec3d pointOf(const CommandContext& context, const FlagUse& use)
{
    return {toInternal(context, use.arguments[0], A::linear),
            toInternal(context, use.arguments[1], A::linear),
            toInternal(context, use.arguments[2], A::linear)};
}

/// The argument of the i-th use of a flag, of the last one where there are fewer.
double numberOfUse(const CommandContext& context, const ParsedCommand& call, const char* flag, std::size_t i,
                   ArgumentType type, double otherwise)
{
    const auto uses = call.uses(flag);
    if (uses.empty())
        return otherwise;
    const Value& value = uses[std::min(i, uses.size() - 1)]->arguments.front();
    return type == A::linear ? toInternal(context, value, type) : value.toNumber();
}

/// A grid between two corners, the first axis quickest.
void addGrid(std::vector<Vec3d>& points, const Vec3d& from, const Vec3d& to, double spacing)
{
    Imath::V3i counts;
    for (int axis = 0; axis < 3; ++axis)
        counts[axis] = static_cast<int>(std::floor(std::fabs(to[axis] - from[axis]) / spacing + 1e-9)) + 1;
    for (int z = 0; z < counts.z; ++z)
        for (int y = 0; y < counts.y; ++y)
            for (int x = 0; x < counts.x; ++x)
                points.push_back(from + Vec3d(x, y, z) * spacing *
                                            Vec3d(std::copysign(1.0, to.x - from.x),
                                                  std::copysign(1.0, to.y - from.y),
                                                  std::copysign(1.0, to.z - from.z)));
}

/// A few around a point, anywhere in a ball. The same numbers in each run.
void addJitter(std::vector<Vec3d>& points, const Vec3d& base, double radius, int count, std::mt19937& random)
{
    std::uniform_real_distribution<double> side(-1.0, 1.0);
    for (int i = 0; i < count;) {
        const Vec3d offset(side(random), side(random), side(random));
        if (offset.length2() > 1.0)
            continue;
        points.push_back(base + offset * radius);
        ++i;
    }
}

std::vector<Vec3d> pointsOf(const CommandContext& context, const ParsedCommand& call)
{
    std::vector<Vec3d> points;
    for (const FlagUse* use : call.uses("position"))
        points.push_back(pointOf(context, *use));
    const auto lower = call.uses("lowerLeft");
    const auto upper = call.uses("upperRight");
    if (lower.size() != upper.size())
        context.fail(context.command() + ": each lower left corner needs an upper right one");
    for (std::size_t i = 0; i < lower.size(); ++i) {
        const double spacing = numberOfUse(context, call, "gridSpacing", i, A::linear, 1.0);
        if (!(spacing > 0.0))
            context.fail(context.command() + ": the spacing of a grid must be greater than 0");
        addGrid(points, pointOf(context, *lower[i]), pointOf(context, *upper[i]), spacing);
    }
    std::mt19937 random;
    const auto bases = call.uses("jitterBasePoint");
    for (std::size_t i = 0; i < bases.size(); ++i)
        addJitter(points, pointOf(context, *bases[i]),
                  numberOfUse(context, call, "jitterRadius", i, A::linear, 0.0),
                  static_cast<int>(numberOfUse(context, call, "numJitters", i, A::number, 1.0)), random);
    return points;
}

void setNumber(const CommandContext& context, DagNode& shape, const char* attribute, double value)
{
    require(context, engine::writeNumber(valueOf(context, shape.findPlug(attribute)), engine::Number(value)));
}

void setWhole(const CommandContext& context, const ParsedCommand& call, DagNode& shape)
{
    if (call.has("conserve"))
        setNumber(context, shape, "conserve", call.number("conserve"));
    if (call.has("inherit"))
        setNumber(context, shape, "inheritFactor", call.number("inherit"));
}

Value create(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<Vec3d> points = pointsOf(context, call);
    engine::Scene& scene = sceneOf(context);
    const std::string& type = context.command();
    const std::string name = call.string("name", scene.uniqueName(type + "1"));
    engine::Node& above = *valueOf(context, scene.createNode("transform", name));
    const std::string stem = above.name().substr(0, above.name().find_last_not_of("0123456789") + 1);
    const std::string shapeName = stem + "Shape" + above.name().substr(stem.size());
    engine::Node& made =
        *valueOf(context, scene.createNode(type, call.string("shapeName", shapeName), above.asDag()));
    DagNode& shape = *made.asDag();
    require(context, scene.connect(valueOf(context, scene.findPlug(":time1.outTime")),
                                   valueOf(context, shape.findPlug("currentTime"))));
    require(context, engine::emitParticles(shape, points));
    require(context, engine::saveInitialState(shape));
    setWhole(context, call, shape);
    engine::SelectionList list;
    list.add(itemNamed(context, scene.shortestName(above)));
    scene.setSelection(std::move(list));
    return Value(Value::Strings{scene.shortestName(above), scene.shortestName(shape)});
}

// asking about them and changing them

/// The particle shape of a name, or below the transform of that name; of what is selected without one.
DagNode& shapeOf(CommandContext& context, const ParsedCommand& call)
{
    for (const engine::SelectionItem& item : itemsOrSelection(context, call.names())) {
        DagNode* node = item.node->asDag();
        if (node && node->isTransform())
            node = item.path.shapeBelow();
        if (node && node->type().isA("particle"))
            return *node;
    }
    context.fail(call.positional.empty() ? "No particle object is selected."
                                         : "'" + call.names().front() + "' is not a particle object.");
}

std::vector<double> idsOf(DagNode& shape)
{
    const auto data = engine::readData(Plug(shape, *shape.findAttribute("particleId")));
    const auto* ids = dynamic_cast<const engine::DoubleArrayData*>(data.value.get());
    return ids ? ids->values : std::vector<double>();
}

/// The place in the arrays that -order or -particleId means.
std::size_t indexOf(CommandContext& context, const ParsedCommand& call, DagNode& shape)
{
    const std::size_t count = engine::particleCount(shape);
    if (call.has("particleId")) {
        const std::vector<double> ids = idsOf(shape);
        const int id = call.integer("particleId");
        const auto found = std::find(ids.begin(), ids.end(), static_cast<double>(id));
        if (found == ids.end())
            context.fail("'" + shape.name() + "' has no particle with the id " + std::to_string(id) + ".");
        return static_cast<std::size_t>(found - ids.begin());
    }
    const int order = call.integer("order");
    if (order < 0 || static_cast<std::size_t>(order) >= count)
        context.fail("'" + shape.name() + "' has no particle number " + std::to_string(order) + ".");
    return static_cast<std::size_t>(order);
}

Plug attributePlug(CommandContext& context, const ParsedCommand& call, DagNode& shape)
{
    const std::string name = call.string("attribute");
    engine::Attribute* attribute = shape.findAttribute(name);
    if (!attribute || !engine::isPerParticle(shape, *attribute))
        context.fail("'" + shape.name() + "' has no per particle attribute '" + name + "'.");
    return Plug(shape, *attribute);
}

template <class ArrayData>
std::vector<typename decltype(ArrayData::values)::value_type> elementsOf(const Plug& plug)
{
    const auto data = engine::readData(plug);
    const auto* array = dynamic_cast<const ArrayData*>(data.value.get());
    return array ? array->values : decltype(ArrayData::values)();
}

Value queryValue(CommandContext& context, const ParsedCommand& call, DagNode& shape)
{
    const Plug plug = attributePlug(context, call, shape);
    const std::size_t index = indexOf(context, call, shape);
    if (plug.attribute()->dataType == engine::DataType::vectorArray) {
        const auto vectors = elementsOf<engine::VectorArrayData>(plug);
        const Vec3d vector = index < vectors.size() ? vectors[index] : Vec3d(0);
        return Value(Value::Numbers{vector.x, vector.y, vector.z});
    }
    const auto numbers = elementsOf<engine::DoubleArrayData>(plug);
    return Value(Value::Numbers{index < numbers.size() ? numbers[index] : 0.0});
}

Value::Strings stateNames(const DagNode& shape, engine::DataType type)
{
    Value::Strings list;
    for (const engine::Attribute* state : engine::particleState(shape))
        if (state->dataType == type)
            list.push_back(state->longName);
    return list;
}

Value::Strings dynamicNames(const DagNode& shape)
{
    Value::Strings list;
    for (const auto& attribute : shape.dynamicAttributes())
        list.push_back(attribute->longName);
    return list;
}

Value query(CommandContext& context, const ParsedCommand& call)
{
    DagNode& shape = shapeOf(context, call);
    if (call.has("count"))
        return Value(static_cast<int>(engine::particleCount(shape)));
    if (call.has("perParticleDouble"))
        return Value(stateNames(shape, engine::DataType::doubleArray));
    if (call.has("perParticleVector"))
        return Value(stateNames(shape, engine::DataType::vectorArray));
    if (call.has("dynamicAttrList"))
        return Value(dynamicNames(shape));
    if (call.has("attribute"))
        return queryValue(context, call, shape);
    if (call.has("conserve"))
        return Value(
            valueOf(context, engine::readNumber(valueOf(context, shape.findPlug("conserve")))).asReal());
    context.fail(context.command() + ": nothing was asked");
}

template <class ArrayData, class Element>
void setElement(CommandContext& context, const Plug& plug, std::size_t index, const Element& value)
{
    auto elements = elementsOf<ArrayData>(plug);
    if (elements.size() <= index)
        elements.resize(index + 1);
    elements[index] = value;
    require(context, engine::writeData(plug, ArrayData(std::move(elements))));
}

Value edit(CommandContext& context, const ParsedCommand& call)
{
    DagNode& shape = shapeOf(context, call);
    setWhole(context, call, shape);
    if (!call.has("attribute"))
        return {};
    const Plug plug = attributePlug(context, call, shape);
    const std::size_t index = indexOf(context, call, shape);
    const bool isVector = plug.attribute()->dataType == engine::DataType::vectorArray;
    const FlagUse* use = call.use(isVector ? "vectorValue" : "floatValue");
    if (!use)
        context.fail(std::string(context.command()) + ": '" + plug.attribute()->longName + "' takes a " +
                     (isVector ? "-vectorValue" : "-floatValue"));
    if (isVector)
        setElement<engine::VectorArrayData>(
            context, plug, index,
            Vec3d(use->arguments[0].toNumber(), use->arguments[1].toNumber(), use->arguments[2].toNumber()));
    else
        setElement<engine::DoubleArrayData>(context, plug, index, use->arguments.front().toNumber());
    return {};
}

Value particle(CommandContext& context, const ParsedCommand& call)
{
    if (call.queries())
        return query(context, call);
    return call.edits() ? edit(context, call) : create(context, call);
}

CommandSpec particleCommand(const char* name, const char* summary)
{
    const std::vector<A> place(3, A::linear);
    const std::vector<A> vector(3, A::number);
    return makeCommand(
        name, summary,
        {
            {"p", "position", place, kCreate | kMultiUse, "where a particle is"},
            {"ll", "lowerLeft", place, kCreate | kMultiUse, "a corner of a grid of particles"},
            {"ur", "upperRight", place, kCreate | kMultiUse, "the other corner"},
            {"grs", "gridSpacing", {A::linear}, kCreate | kMultiUse, "between the particles of a grid"},
            {"jbp", "jitterBasePoint", place, kCreate | kMultiUse, "around which particles are strewn"},
            {"jr", "jitterRadius", {A::linear}, kCreate | kMultiUse, "how far"},
            {"nj", "numJitters", {A::integer}, kCreate | kMultiUse, "how many"},
            valueFlag("n", "name", A::string, "the name of the transform", kCreate),
            valueFlag("sn", "shapeName", A::string, "the name of the shape", kCreate),
            valueFlag("c", "conserve", A::number, "how much of their momentum they keep", kAllModes),
            valueFlag("i", "inherit", A::number, "how much of an emitter's speed they get", kCreateEdit),
            switchFlag("ct", "count", "how many there are", kQuery),
            switchFlag("dal", "dynamicAttrList", "the attributes that were added", kQuery),
            switchFlag("ppd", "perParticleDouble", "the names of the numbers of each particle", kQuery),
            switchFlag("ppv", "perParticleVector", "the names of the vectors of each particle", kQuery),
            valueFlag("at", "attribute", A::string, "a per particle attribute",
                      kEdit | kQuery | kQueryWithArguments),
            valueFlag("or", "order", A::integer, "which particle, by its place",
                      kEdit | kQuery | kQueryWithArguments),
            valueFlag("id", "particleId", A::integer, "which particle, by its id",
                      kEdit | kQuery | kQueryWithArguments),
            valueFlag("fv", "floatValue", A::number, "its new number", kEdit),
            {"vv", "vectorValue", vector, kEdit, "its new vector"},
        },
        names(), particle, kAllModes);
}

} // namespace

void registerParticleCommands(CommandTable& table)
{
    table.add({
        particleCommand("particle", "Makes particle objects, tells and changes their particles"),
        particleCommand("nParticle", "The same with nParticles"),
    });
}

} // namespace tvxhost::mel
