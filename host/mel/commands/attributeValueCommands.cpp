// setAttr and getAttr.
#include "attributeElements.h"
#include "commandSupport.h"
#include "pointComponents.h"
#include "sceneCommands.h"

#include "engine/animCurve.h"
#include "engine/data.h"
#include "engine/mesh.h"
#include "scene/setAttr.h"
#include "scene/uiUnits.h"

#include <maya/MString.h>

#include <numeric>
#include <optional>

namespace tvxhost::mel {

using engine::Attribute;
using engine::AttributeKind;
using engine::Data;
using engine::DataType;
using engine::Expected;
using engine::NumberKind;
using engine::Plug;

namespace {

// setAttr

/// The places of control points as they are given, in the space of their curve.
void setPlaces(const CommandContext& context, const scene::SetAttrRequest& request, const NamedPlaces& places)
{
    const std::string name(request.plug);
    std::vector<double> numbers;
    for (const Argument* value = request.values; value != request.end; ++value)
        numbers.push_back(toInternal(context, value->asValue(), ArgumentType::linear));
    const std::size_t perPoint = places.axis ? 1 : 3;
    const std::size_t needed = pointsOf(context, places.points).size() * perPoint;
    if (request.changesState() || numbers.size() != needed)
        context.fail("setAttr: '" + name + "' takes " + std::to_string(needed) + " numbers and nothing else");
    auto next = numbers.begin();
    changePoints(context, places.points, false, [&](engine::Vec3d point) {
        for (unsigned axis = places.axis.value_or(0); axis < places.axis.value_or(2) + 1; ++axis)
            point[static_cast<int>(axis)] = *next++;
        return point;
    });
}

std::vector<scene::PlugTarget> plugsToSet(const CommandContext& context, const std::string& name)
{
    engine::Scene& scene = sceneOf(context);
    std::vector<scene::PlugTarget> targets;
    if (!name.empty() && name.front() == '.') {
        for (const engine::SelectionItem& item : scene.selection().items())
            targets.push_back(valueOf(context, scene::findTarget(*item.node, name.substr(1))));
        if (targets.empty())
            context.fail("Nothing is selected for setAttr " + name);
        return targets;
    }
    // By the item, so that a transform answers for its shape.
    const auto item = scene.findItem(name);
    if (item && !item.value.plug.isNull())
        return {{item.value.plug, false, 0, 0, {}}};
    targets = elementsNamed(context, name);
    if (targets.empty() && hasWildcard(name))
        for (const engine::SelectionItem& each : itemsOf(context, name))
            if (!each.plug.isNull())
                targets.push_back({each.plug, false, 0, 0, {}});
    if (targets.empty()) {
        require(context, item.outcome);
        context.fail("No object matches name: " + name);
    }
    return targets;
}

Value setAttr(CommandContext& context, const ArgumentList& arguments)
{
    engine::Scene& scene = sceneOf(context);
    const scene::SetAttrRequest request = valueOf(context, scene::parseSetAttr(arguments));
    const std::string name(request.plug);
    if (const auto places = placesNamed(context, name)) {
        setPlaces(context, request, *places);
        return {};
    }
    for (const scene::PlugTarget& target : plugsToSet(context, name)) {
        const engine::Outcome set =
            scene::applySetAttr(target, request, {scene.units(), engine::Limits::refuse});
        if (!set)
            context.fail("setAttr: " + set.text);
    }
    return {};
}

CommandSpec setAttrSpec()
{
    using A = ArgumentType;
    CommandSpec spec;
    spec.name = "setAttr";
    spec.summary = "Sets the value or the state of an attribute";
    spec.flags = {
        valueFlag("typ", "type", A::string, "the type of a value that is no plain number"),
        valueFlag("k", "keyable", A::boolean, "whether it can have keys"),
        valueFlag("l", "lock", A::boolean, "whether it is protected"),
        valueFlag("cb", "channelBox", A::boolean, "whether the channel box shows it"),
        valueFlag("ca", "caching", A::boolean, "whether its value is cached"),
        valueFlag("s", "size", A::integer, "how many elements there will be"),
        valueFlag("ch", "capacityHint", A::integer, "how many values there will be"),
        switchFlag("c", "clamp", "holds the value to the limits"),
        switchFlag("av", "alteredValue", "only the value was changed"),
    };
    spec.positional = {A::any, 1, PositionalRule::kAny};
    spec.handler = RawHandler(setAttr);
    return spec;
}

// getAttr

bool isWhole(NumberKind kind)
{
    return kind != NumberKind::single && kind != NumberKind::real;
}

Value numberValue(CommandContext& context, const Plug& plug)
{
    const engine::Number number = valueOf(context, engine::readNumber(plug));
    const Attribute& attribute = *plug.attribute();
    if (isWhole(attribute.number))
        return Value(static_cast<int>(number.asWhole()));
    return Value(number.asReal() / scene::internalPerUi(attribute, sceneOf(context).units()));
}

Value numbersValue(CommandContext& context, const Plug& plug, const std::vector<Attribute*>& leaves)
{
    std::vector<double> numbers = valueOf(context, engine::readNumbers(plug));
    const engine::Units& units = sceneOf(context).units();
    bool areWhole = true;
    for (std::size_t i = 0; i < numbers.size() && i < leaves.size(); ++i) {
        numbers[i] /= scene::internalPerUi(*leaves[i], units);
        areWhole = areWhole && isWhole(leaves[i]->number);
    }
    if (areWhole)
        return Value(Value::Integers(numbers.begin(), numbers.end()));
    return Value(std::move(numbers));
}

template <class ArrayType>
Value::Strings texts(const Data& data)
{
    Value::Strings list;
    for (const engine::Text& text : static_cast<const ArrayType&>(data).values)
        list.push_back(text.str());
    return list;
}

template <class ArrayType>
Value::Numbers numbers(const Data& data)
{
    const auto& values = static_cast<const ArrayType&>(data).values;
    return Value::Numbers(values.begin(), values.end());
}

Value matrixValue(const engine::Matrix& matrix)
{
    return Value(Value::Numbers(matrix.getValue(), matrix.getValue() + 16));
}

Value pointsValue(const Data& data)
{
    Value::Numbers list;
    for (const engine::Vec4d& point : static_cast<const engine::PointArrayData&>(data).values)
        list.insert(list.end(), {point.x, point.y, point.z, point.w});
    return Value(std::move(list));
}

Value dataValue(const Data& data)
{
    switch (data.type()) {
    case DataType::string:
        return Value(static_cast<const engine::StringData&>(data).value.str());
    case DataType::matrix:
        return matrixValue(static_cast<const engine::MatrixData&>(data).value);
    case DataType::stringArray:
        return Value(texts<engine::StringArrayData>(data));
    case DataType::componentList:
        return Value(texts<engine::ComponentListData>(data));
    case DataType::intArray: {
        const auto& values = static_cast<const engine::IntArrayData&>(data).values;
        return Value(Value::Integers(values.begin(), values.end()));
    }
    case DataType::floatArray:
        return Value(numbers<engine::FloatArrayData>(data));
    case DataType::doubleArray:
        return Value(numbers<engine::DoubleArrayData>(data));
    case DataType::vectorArray: {
        const auto& values = static_cast<const engine::VectorArrayData&>(data).values;
        return Value(Value::Vectors(values.begin(), values.end()));
    }
    case DataType::pointArray:
        return pointsValue(data);
    default:
        return {};
    }
}

Value valueOfPlug(CommandContext& context, const Plug& plug);

/// The elements of an array that have a value: those that exist, and of what is told of each instance all.
std::vector<Plug> elementsOf(const Plug& array)
{
    std::vector<Plug> elements;
    engine::DagNode* dag = array.node()->asDag();
    if (dag && array.attribute()->flags.worldSpace) {
        const int instances = static_cast<int>(engine::DagPath::countTo(*dag));
        for (int i = 0; i < instances; ++i)
            elements.push_back(array.element(i));
        return elements;
    }
    for (const int i : engine::existingElements(array))
        elements.push_back(array.element(i));
    return elements;
}

template <class List>
void append(List& list, const List& more)
{
    list.insert(list.end(), more.begin(), more.end());
}

/// The values of several plugs of one attribute one after the other, as an array of texts or of numbers.
Value valuesOf(CommandContext& context, const std::vector<Plug>& plugs)
{
    Value::Strings texts;
    Value::Numbers numbers;
    bool areWhole = true;
    for (const Plug& plug : plugs) {
        const Value value = valueOfPlug(context, plug);
        switch (value.type()) {
        case Type::integer:
            numbers.push_back(value.integer());
            continue;
        case Type::integerArray:
            append(numbers, Value::Numbers(value.integers().begin(), value.integers().end()));
            continue;
        case Type::number:
            numbers.push_back(value.number());
            break;
        case Type::numberArray:
            append(numbers, value.numbers());
            break;
        case Type::string:
            texts.push_back(value.string());
            break;
        case Type::stringArray:
            append(texts, value.strings());
            break;
        case Type::none:
            continue;
        default:
            context.fail("getAttr: The values of '" + plug.name() + "' cannot be told together.");
        }
        areWhole = false;
    }
    if (!texts.empty())
        return Value(std::move(texts));
    return areWhole && !numbers.empty() ? Value(Value::Integers(numbers.begin(), numbers.end()))
                                        : Value(std::move(numbers));
}

Value valueOfPlug(CommandContext& context, const Plug& plug)
{
    Attribute& attribute = *plug.attribute();
    const bool isElementOrPlain = !plug.isArray();
    if (isElementOrPlain) {
        const std::vector<Attribute*> leaves = scene::numberLeaves(attribute);
        if (leaves.size() == 1 && attribute.children.empty())
            return numberValue(context, plug);
        if (!leaves.empty())
            return numbersValue(context, plug, leaves);
    }
    if (attribute.kind == AttributeKind::message)
        context.fail("getAttr: Message attributes have no data values.");
    if (plug.isArray())
        return valuesOf(context, elementsOf(plug));
    if (attribute.isCompound())
        context.fail("getAttr: The attribute '" + plug.name() +
                     "' has no single value; ask for one of its parts.");
    const auto data = engine::readData(plug);
    if (!data && data.outcome.reason == engine::Reason::noData)
        return {};
    require(context, data.outcome);
    return data.value ? dataValue(*data.value) : Value();
}

Value stateValue(const Plug& plug, const ParsedCommand& call)
{
    const engine::PlugState state = engine::stateOf(plug);
    const engine::AttributeFlags& own = plug.attribute()->flags;
    if (call.has("lock"))
        return Value(engine::isLocked(plug));
    if (call.has("keyable"))
        return Value(state.keyable.value_or(own.keyable));
    if (call.has("channelBox"))
        return Value(state.channelBox.value_or(own.channelBox));
    if (call.has("caching"))
        return Value(state.caching.value_or(own.cached));
    if (call.has("settable"))
        return Value(own.writable && !engine::isLocked(plug) &&
                     (!engine::isFedAnywhere(plug) || engine::curveFeeding(plug)));
    if (call.has("size"))
        return Value(plug.isArray() ? static_cast<int>(engine::existingElements(plug).size()) : 1);
    if (call.has("multiIndices"))
        return Value(Value::Integers(engine::existingElements(plug)));
    if (call.has("type"))
        return Value(plug.attribute()->typeName());
    return {};
}

/// Reads at another time and comes back.
class AtTime
{
public:
    AtTime(engine::Scene& scene, double seconds)
        : m_scene(scene), m_notEdited(scene.journal(), nullptr), m_before(scene.time())
    {
        scene.setTime(seconds);
    }
    ~AtTime() { m_scene.setTime(m_before); }
    AtTime(const AtTime&) = delete;
    AtTime& operator=(const AtTime&) = delete;

private:
    engine::Scene& m_scene;
    engine::Journal::Into m_notEdited;
    double m_before;
};

/// Has the geometry that a mesh holds as a whole in its attributes, where a plug is one of these.
class GeometryInAttributes
{
public:
    explicit GeometryInAttributes(const Plug& plug)
        : m_scene(plug.node()->scene()), m_wasModified(m_scene.isModified)
    {
        engine::Node& node = *plug.node();
        const Attribute* top = plug.attribute();
        while (top->parent)
            top = top->parent;
        if (!node.type().isA("mesh") || !isGeometry(top->longName))
            return;
        const engine::Journal::Into step(m_scene.journal(), &m_step);
        engine::settleMesh(*node.asDag());
    }
    ~GeometryInAttributes()
    {
        const engine::Journal::Into nothing(m_scene.journal(), nullptr);
        m_step.undo();
        m_scene.isModified = m_wasModified;
    }
    GeometryInAttributes(const GeometryInAttributes&) = delete;
    GeometryInAttributes& operator=(const GeometryInAttributes&) = delete;

private:
    static bool isGeometry(const std::string& attribute)
    {
        return attribute == "vrts" || attribute == "edge" || attribute == "face";
    }

    engine::Scene& m_scene;
    bool m_wasModified;
    engine::Step m_step;
};

Value getAttr(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const AskedPlugs what = plugsAsked(context, call.names().front());
    const GeometryInAttributes geometry(what.plug);
    if (const Value state = stateValue(what.plug, call); !state.isNone())
        return state;
    if (call.has("asString") && what.plug.attribute()->kind == AttributeKind::enumeration) {
        const auto number = static_cast<short>(valueOf(context, engine::readNumber(what.plug)).asWhole());
        return Value(what.plug.attribute()->fieldName(number).value_or(""));
    }
    std::optional<AtTime> at;
    if (const FlagUse* time = call.use("time"))
        at.emplace(scene, toInternal(context, time->arguments.front(), ArgumentType::time));
    const Value value = !what.points.isNone() ? what.points
                        : what.isRange        ? valuesOf(context, what.elements)
                                              : valueOfPlug(context, what.plug);
    if (call.has("expandEnvironmentVariables") && value.type() == Type::string)
        return Value(MString(value.string().c_str()).expandEnvironmentVariablesAndTilde().asChar());
    return value;
}

} // namespace

void registerAttributeValueCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        setAttrSpec(),
        makeCommand("getAttr", "Gives the value or the state of an attribute",
                    {switchFlag("as", "asString", "the field's name of an enum"),
                     switchFlag("typ", "type", "the type of the attribute"),
                     switchFlag("l", "lock", "whether it is locked"),
                     switchFlag("k", "keyable", "whether it can have keys"),
                     switchFlag("cb", "channelBox", "whether the channel box shows it"),
                     switchFlag("ca", "caching", "whether its value is cached"),
                     switchFlag("se", "settable", "whether it can be set now"),
                     switchFlag("s", "size", "how many elements an array has"),
                     switchFlag("mi", "multiIndices", "the indices of an array's elements"),
                     switchFlag("sl", "silent", "no message when there is no value"),
                     switchFlag("x", "expandEnvironmentVariables", "variables and ~ of a text replaced"),
                     valueFlag("t", "time", A::time, "at this time")},
                    names(1, 1), getAttr),
    });
}

} // namespace tvxhost::mel
