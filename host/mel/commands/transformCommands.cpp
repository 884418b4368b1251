// move, rotate, scale.
#include "pointComponents.h"
#include "sceneCommands.h"
#include "transformParts.h"

#include <Imath/ImathBox.h>

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <optional>

namespace tvxhost::mel {

using api::Parents;
using api::Transformation;
using engine::DagPath;

namespace {

constexpr std::array<const char*, 3> kAxes = {"X", "Y", "Z"};
constexpr std::array<const char*, 7> kAxisFlags = {"X", "Y", "Z", "XY", "XZ", "YZ", "XYZ"};

/// The numbers of a call and which axes they are for: all three, or those of -moveX and alike.
struct Amounts
{
    MVector value;
    std::array<bool, 3> isGiven{};
    std::vector<std::string> objects; ///< what is named behind the numbers

    /// The given numbers, and those of another vector for the other axes.
    MVector over(const MVector& other) const
    {
        MVector result = other;
        for (unsigned axis = 0; axis < 3; ++axis)
            if (isGiven[axis])
                result[axis] = value[axis];
        return result;
    }
};

/// Which axes the flags of a call name; none of them: all.
std::array<bool, 3> axesOf(const CommandContext& context, const ParsedCommand& call)
{
    std::array<bool, 3> isGiven{};
    bool isAny = false;
    for (const char* axes : kAxisFlags) {
        if (!call.has(context.command() + axes))
            continue;
        isAny = true;
        for (std::size_t axis = 0; axis < 3; ++axis)
            isGiven[axis] = isGiven[axis] || std::string(axes).find(kAxes[axis]) != std::string::npos;
    }
    return isAny ? isGiven : std::array<bool, 3>{true, true, true};
}

Amounts amountsOf(const CommandContext& context, const ParsedCommand& call, ArgumentType type)
{
    Amounts amounts;
    amounts.isGiven = axesOf(context, call);
    std::size_t next = 0;
    for (unsigned axis = 0; axis < 3; ++axis) {
        if (!amounts.isGiven[axis])
            continue;
        const Value number = next < call.positional.size() ? call.positional[next++] : Value();
        if (number.isNone() || (number.type() == Type::string && !leadingNumber(number.string()).found))
            context.fail("'" + context.command() + "' needs a number for each axis");
        amounts.value[axis] = internalNumber(context, number, type);
    }
    for (; next < call.positional.size(); ++next)
        amounts.objects.push_back(call.positional[next].toString());
    return amounts;
}

MVector rowOf(const MMatrix& matrix, unsigned row)
{
    return MVector(matrix.matrix[row]);
}

// What goes with an object, or stays

/// The places of what is below an object in the world, which -preserveChildPosition keeps.
class ChildPlaces
{
public:
    explicit ChildPlaces(const DagPath& path) : m_path(path)
    {
        for (engine::DagNode* child : path.node()->children()) {
            DagPath below = path;
            if (child->isTransform() && below.push(*child))
                m_places.emplace_back(child, below.inclusiveMatrix());
        }
    }

    void restore(const CommandContext& context) const
    {
        const engine::Matrix back = m_path.inclusiveMatrix().inverse();
        for (const auto& [child, place] : m_places)
            require(context, setLocalMatrix(*child, place * back));
    }

private:
    DagPath m_path;
    std::vector<std::pair<engine::DagNode*, engine::Matrix>> m_places;
};

using PathChange = std::function<void(const DagPath& path)>;

/// Changes each of the objects; what is below stays in its place when that is asked for.
void changeEach(const CommandContext& context, const ParsedCommand& call, const std::vector<DagPath>& paths,
                const PathChange& change)
{
    for (const DagPath& path : paths) {
        if (!call.boolean("preserveChildPosition")) {
            change(path);
            continue;
        }
        const ChildPlaces places(path);
        change(path);
        places.restore(context);
    }
}

// move

/// The point that an absolute move puts in its place, in the world.
MVector movedPoint(const ParsedCommand& call, const Transformation& parts, const Parents& parents)
{
    const MMatrix toWorld = parts.matrix() * parents.matrix;
    if (call.has("rotatePivotRelative"))
        return MVector(MPoint(parts.rotatePivot) * toWorld);
    if (call.has("scalePivotRelative"))
        return MVector(MPoint(parts.scalePivot) * toWorld);
    return api::translationIn(parts, parents);
}

void moveInWorld(const ParsedCommand& call, const Amounts& amounts, Transformation& parts,
                 const Parents& parents)
{
    const MVector from = movedPoint(call, parts, parents);
    const MVector to = call.has("relative") ? from + amounts.value : amounts.over(from);
    api::shift(parts, parents, from, to);
}

/// Along the rows of a matrix. With -worldSpaceDistance these only say where to: `toWorld` then leads from
/// their space to the world, where the distances are measured.
MVector alongAxes(const ParsedCommand& call, const MVector& by, const MMatrix& axes, const MMatrix& toWorld)
{
    MVector sum;
    for (unsigned axis = 0; axis < 3; ++axis) {
        MVector direction = rowOf(axes, axis);
        const double length = (direction * toWorld).length();
        if (call.has("worldSpaceDistance") && length > 0.0)
            direction /= length;
        sum += direction * by[axis];
    }
    return sum;
}

void moveObjects(const CommandContext& context, const ParsedCommand& call, const Amounts& amounts,
                 const std::vector<DagPath>& paths)
{
    changeEach(context, call, paths, [&](const DagPath& path) {
        changeParts(context, path, [&](Transformation& parts, const Parents& parents) {
            const bool isInObject = call.has("objectSpace");
            if (!isInObject && !call.has("localSpace"))
                moveInWorld(call, amounts, parts, parents);
            else if (!call.has("relative"))
                parts.translation = amounts.over(parts.translation);
            else
                parts.translation +=
                    alongAxes(call, amounts.value, isInObject ? parts.matrix() : MMatrix(), parents.matrix);
        });
    });
}

/// Each point by itself, in the world or in the space of its shape.
void movePoints(const CommandContext& context, const ParsedCommand& call, const Amounts& amounts,
                const engine::SelectionItem& item)
{
    const bool isInWorld = !call.has("objectSpace") && !call.has("localSpace");
    changePoints(context, item, isInWorld, [&](const engine::Vec3d& point) {
        const MVector from(point.x, point.y, point.z);
        const MVector to = call.has("relative") ? from + amounts.value : amounts.over(from);
        return engine::Vec3d(to.x, to.y, to.z);
    });
}

/// A pivot that is named by its attribute.
struct PivotRow
{
    const char* attribute;
    MVector Transformation::*pivot;
    void (Transformation::*set)(const MVector& pivot, bool balance);
};

constexpr PivotRow kPivots[] = {
    {"rotatePivot", &Transformation::rotatePivot, &Transformation::setRotatePivot},
    {"scalePivot", &Transformation::scalePivot, &Transformation::setScalePivot},
};

const PivotRow* pivotNamed(const engine::SelectionItem& item)
{
    if (item.plug.isNull() || !item.isDag() || !item.path.node()->isTransform())
        return nullptr;
    const auto* row = std::find_if(std::begin(kPivots), std::end(kPivots), [&](const PivotRow& each) {
        return item.plug.attribute()->longName == each.attribute;
    });
    return row == std::end(kPivots) ? nullptr : row;
}

/// The object stays where it is.
void movePivot(const CommandContext& context, const ParsedCommand& call, const Amounts& amounts,
               const DagPath& path, const PivotRow& row)
{
    changeParts(context, path, [&](Transformation& parts, const Parents& parents) {
        const bool isInWorld = !call.has("objectSpace") && !call.has("localSpace");
        const MMatrix space = isInWorld ? parts.matrix() * parents.matrix : MMatrix();
        const MVector from(MPoint(parts.*row.pivot) * space);
        const MVector to = call.has("relative") ? from + amounts.value : amounts.over(from);
        (parts.*row.set)(MVector(MPoint(to) * space.inverse()), true);
    });
}

/// Moves the pivots among the items, and takes them out.
/// @return whether there were any
bool movePivots(const CommandContext& context, const ParsedCommand& call, const Amounts& amounts,
                std::vector<engine::SelectionItem>& items)
{
    const auto objectsEnd = std::stable_partition(
        items.begin(), items.end(), [](const engine::SelectionItem& item) { return !pivotNamed(item); });
    const bool isAny = objectsEnd != items.end();
    for (auto item = objectsEnd; item != items.end(); ++item)
        movePivot(context, call, amounts, item->path, *pivotNamed(*item));
    items.erase(objectsEnd, items.end());
    return isAny;
}

Value move(CommandContext& context, const ParsedCommand& call)
{
    const Amounts amounts = amountsOf(context, call, ArgumentType::linear);
    std::vector<engine::SelectionItem> items = itemsOrSelection(context, amounts.objects);
    const std::vector<engine::SelectionItem> components = takeComponents(items);
    for (const engine::SelectionItem& item : components)
        movePoints(context, call, amounts, item);
    const bool hasMoved = movePivots(context, call, amounts, items) || !components.empty();
    if (!hasMoved || !items.empty())
        moveObjects(context, call, amounts, transformsOf(context, items));
    return {};
}

// rotate, scale

MVector centerOf(const std::vector<DagPath>& paths)
{
    Imath::Box3d box;
    for (const DagPath& path : paths)
        box.extendBy(boxOf(path, true));
    const engine::Vec3d center = box.center();
    return MVector(center.x, center.y, center.z);
}

/// The point in the world that stays where it is, if the call names one.
std::optional<MVector> fixedPoint(const CommandContext& context, const ParsedCommand& call,
                                  const std::vector<DagPath>& paths, const DagPath& path)
{
    if (call.has("objectCenterPivot"))
        return centerOf({path});
    if (call.has("centerPivot"))
        return centerOf(paths);
    const FlagUse* pivot = call.use("pivot");
    if (!pivot)
        return std::nullopt;
    MVector point;
    for (unsigned axis = 0; axis < 3; ++axis)
        point[axis] = toInternal(context, pivot->arguments[axis], ArgumentType::linear);
    return point;
}

/// Has the parts of each object changed in such a way that the fixed point, if there is one, stays.
void changeAboutPivot(const CommandContext& context, const ParsedCommand& call, const Amounts& amounts,
                      const PartsChange& change)
{
    const std::vector<DagPath> paths = transformsOf(context, amounts.objects);
    std::vector<std::optional<MVector>> points;
    for (const DagPath& path : paths)
        points.push_back(fixedPoint(context, call, paths, path));
    auto point = points.begin();
    changeEach(context, call, paths, [&](const DagPath& path) {
        const std::optional<MVector> fixed = *point++;
        if (!fixed)
            return changeParts(context, path, change);
        changeParts(context, path, [&](Transformation& parts, const Parents& parents) {
            const MPoint own = MPoint(*fixed) * (parts.matrix() * parents.matrix).inverse();
            change(parts, parents);
            api::shift(parts, parents, MVector(own * (parts.matrix() * parents.matrix)), *fixed);
        });
    });
}

void rotateTo(const Amounts& amounts, MSpace::Space space, MEulerRotation::RotationOrder order,
              Transformation& parts, const Parents& parents)
{
    const bool isOwn = space != MSpace::kWorld || (parents.rotation == MQuaternion::identity &&
                                                   parts.orientation == MQuaternion::identity);
    if (isOwn && order == parts.rotation.order) {
        parts.rotation = amounts.over(parts.rotation.asVector());
        return;
    }
    MEulerRotation seen(MVector(), order);
    seen = api::rotationIn(parts, parents, space);
    seen = amounts.over(seen.asVector());
    api::setRotationIn(parts, parents, space, seen.asQuaternion());
}

Value rotate(CommandContext& context, const ParsedCommand& call)
{
    const Amounts amounts = amountsOf(context, call, ArgumentType::angle);
    const MSpace::Space space = call.has("objectSpace") ? MSpace::kObject : MSpace::kWorld;
    changeAboutPivot(context, call, amounts, [&](Transformation& parts, const Parents& parents) {
        const auto order = call.has("forceOrderXYZ") ? MEulerRotation::kXYZ : parts.rotation.order;
        if (!call.has("relative"))
            rotateTo(amounts, space, order, parts, parents);
        else if (call.has("euler"))
            parts.rotation = parts.rotation.asVector() + amounts.value;
        else
            api::turn(parts, parents, space, MEulerRotation(amounts.value, order).asQuaternion());
    });
    return {};
}

Value scale(CommandContext& context, const ParsedCommand& call)
{
    const Amounts amounts = amountsOf(context, call, ArgumentType::number);
    changeAboutPivot(context, call, amounts, [&](Transformation& parts, const Parents&) {
        const MVector factors = amounts.over(MVector(1.0, 1.0, 1.0));
        if (call.has("relative"))
            for (unsigned axis = 0; axis < 3; ++axis)
                parts.scale[axis] *= factors[axis];
        else
            parts.scale = amounts.over(parts.scale);
    });
    return {};
}

/// The flags of the three commands: spaces, one per choice of axes, and those of its own.
CommandSpec channelCommand(const char* name, const char* summary, std::vector<FlagSpec> flags,
                           ParsedHandler handler)
{
    const std::vector<FlagSpec> shared = {
        switchFlag("r", "relative", "adds to what is there"),
        switchFlag("a", "absolute", "replaces what is there (the default)"),
        switchFlag("ws", "worldSpace", "along the world's axes (the default)"),
        switchFlag("ls", "localSpace", "along the axes of what is above"),
        switchFlag("os", "objectSpace", "along the object's own axes"),
    };
    flags.insert(flags.begin(), shared.begin(), shared.end());
    for (const char* axes : kAxisFlags) {
        std::string shortName = axes;
        for (char& letter : shortName)
            letter = static_cast<char>(letter - 'A' + 'a');
        flags.push_back(
            switchFlag(shortName, std::string(name) + axes, std::string("along ") + axes + " only"));
    }
    flags.push_back(valueFlag("pcp", "preserveChildPosition", ArgumentType::boolean,
                              "what is below stays where it is in the world"));
    const std::vector<FlagSpec> refused = {
        refusedFlag("pgp", "preserveGeometryPosition", kNoComponents),
        refusedFlag("smn", "symNegative", kNoComponents),
        refusedFlag("cs", "componentSpace", kNoComponents),
        refusedFlag("xc", "xformConstraint", kNoComponents),
        refusedFlag("xn", "constrainAlongNormal", kNoComponents),
        refusedFlag("oj", "orientJoint", "joints are transforms like others"),
        refusedFlag("oa", "orientAxes", "say which space"),
    };
    flags.insert(flags.end(), refused.begin(), refused.end());
    const std::vector<FlagSpec> ofComponents = componentFlags();
    flags.insert(flags.end(), ofComponents.begin(), ofComponents.end());
    return makeCommand(name, summary, std::move(flags), {ArgumentType::any, 1, PositionalRule::kAny},
                       std::move(handler));
}

/// The flags of a command that turns or scales about a point: its own, and those that name the point.
std::vector<FlagSpec> withPivotFlags(std::vector<FlagSpec> flags)
{
    using A = ArgumentType;
    flags.push_back(
        {"p", "pivot", {A::linear, A::linear, A::linear}, kCreate, "a point that stays where it is"});
    flags.push_back(switchFlag("cp", "centerPivot", "the center of all objects stays where it is"));
    flags.push_back(switchFlag("ocp", "objectCenterPivot", "the center of each object stays where it is"));
    return flags;
}

} // namespace

void registerTransformCommands(CommandTable& table)
{
    table.add({
        channelCommand("move", "Moves objects",
                       {switchFlag("wd", "worldSpaceDistance", "distances are those of the world"),
                        switchFlag("rpr", "rotatePivotRelative", "the rotate pivot comes to the place"),
                        switchFlag("spr", "scalePivotRelative", "the scale pivot comes to the place")},
                       move),
        channelCommand("rotate", "Turns objects",
                       withPivotFlags({switchFlag("eu", "euler", "with -relative: adds to the angles"),
                                       switchFlag("fo", "forceOrderXYZ", "the angles are in the order xyz")}),
                       rotate),
        channelCommand("scale", "Scales objects",
                       withPivotFlags({refusedFlag("dso", "distanceOnly", "objects are scaled themselves")}),
                       scale),
    });
}

} // namespace tvxhost::mel
