// move, rotate, scale.
#include "pointComponents.h"
#include "sceneCommands.h"
#include "transformParts.h"

#include "engine/turns.h"

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
using engine::SelectionItem;
using engine::Vec3d;

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
                const SelectionItem& item)
{
    const bool isInWorld = !call.has("objectSpace") && !call.has("localSpace");
    changePoints(context, item, isInWorld, [&](const Vec3d& point) {
        const MVector from(point.x, point.y, point.z);
        const MVector to = call.has("relative") ? from + amounts.value : amounts.over(from);
        return Vec3d(to.x, to.y, to.z);
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

const PivotRow* pivotNamed(const SelectionItem& item)
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
                std::vector<SelectionItem>& items)
{
    const auto objectsEnd = std::stable_partition(
        items.begin(), items.end(), [](const SelectionItem& item) { return !pivotNamed(item); });
    const bool isAny = objectsEnd != items.end();
    for (auto item = objectsEnd; item != items.end(); ++item)
        movePivot(context, call, amounts, item->path, *pivotNamed(*item));
    items.erase(objectsEnd, items.end());
    return isAny;
}

Value move(CommandContext& context, const ParsedCommand& call)
{
    const Amounts amounts = amountsOf(context, call, ArgumentType::linear);
    std::vector<SelectionItem> items = itemsOrSelection(context, amounts.objects);
    const std::vector<SelectionItem> components = takeComponents(items);
    for (const SelectionItem& item : pointsOnce(context, components))
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
    const Vec3d center = box.center();
    return MVector(center.x, center.y, center.z);
}

MVector vectorOf(const CommandContext& context, const FlagUse& use, ArgumentType type)
{
    MVector vector;
    for (unsigned axis = 0; axis < 3; ++axis)
        vector[axis] = toInternal(context, use.arguments[axis], type);
    return vector;
}

/// The point in the world that stays where it is, if the call names one.
std::optional<MVector> fixedPoint(const CommandContext& context, const ParsedCommand& call,
                                  const std::vector<DagPath>& paths, const DagPath& path)
{
    if (call.has("objectCenterPivot"))
        return centerOf({path});
    if (call.has("centerPivot"))
        return centerOf(paths);
    if (const FlagUse* pivot = call.use("pivot"))
        return vectorOf(context, *pivot, ArgumentType::linear);
    return std::nullopt;
}

/// Has the parts of each object changed in such a way that the fixed point, if there is one, stays.
void changeAboutPivot(const CommandContext& context, const ParsedCommand& call,
                      const std::vector<DagPath>& paths, const PartsChange& change)
{
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

/// How points are turned or scaled, and the pivot of their object that stays where it is otherwise.
struct PointTurn
{
    engine::Matrix matrix; ///< about the origin
    MVector Transformation::*pivot;
};

Vec3d centerOf(const CommandContext& context, const std::vector<SelectionItem>& items)
{
    Imath::Box3d box;
    for (const SelectionItem& item : items)
        for (const auto& [number, place] : pointsOf(context, item))
            box.extendBy(place * item.path.inclusiveMatrix());
    return box.center();
}

Vec3d pivotOf(const CommandContext& context, DagPath path, MVector Transformation::*pivot)
{
    require(context, path.pop());
    const MVector own = partsOf(context, path).*pivot;
    return Vec3d(own.x, own.y, own.z) * path.inclusiveMatrix();
}

/// The point in the world that stays where it is when some points of an object are turned.
Vec3d fixedPoint(const CommandContext& context, const ParsedCommand& call,
                 const std::vector<SelectionItem>& items, const SelectionItem& item, const PointTurn& turn)
{
    if (call.has("objectCenterPivot"))
        return centerOf(context, {item});
    if (call.has("centerPivot"))
        return centerOf(context, items);
    if (const FlagUse* pivot = call.use("pivot")) {
        const MVector point = vectorOf(context, *pivot, ArgumentType::linear);
        return {point.x, point.y, point.z};
    }
    return pivotOf(context, item.path, turn.pivot);
}

/// Along the axes of the world, or of their shape; points have no angle and no size that could be replaced.
void turnPoints(const CommandContext& context, const ParsedCommand& call,
                const std::vector<SelectionItem>& components, const PointTurn& turn)
{
    const bool isInWorld = !call.has("objectSpace") && !call.has("localSpace");
    const std::vector<SelectionItem> items = pointsOnce(context, components);
    std::vector<Vec3d> fixed;
    for (const SelectionItem& item : items)
        fixed.push_back(fixedPoint(context, call, items, item, turn));
    for (std::size_t i = 0; i < items.size(); ++i) {
        const engine::Matrix toWorld = items[i].path.inclusiveMatrix();
        const Vec3d center = isInWorld ? fixed[i] : fixed[i] * toWorld.inverse();
        changePoints(context, items[i], isInWorld,
                     [&](const Vec3d& point) { return (point - center) * turn.matrix + center; });
    }
}

/// What rotate and scale do with the objects and the components that they are given.
Value turnAll(const CommandContext& context, const ParsedCommand& call, const Amounts& amounts,
              const PointTurn& turn, const PartsChange& change)
{
    std::vector<SelectionItem> items = itemsOrSelection(context, amounts.objects);
    const std::vector<SelectionItem> components = takeComponents(items);
    turnPoints(context, call, components, turn);
    if (components.empty() || !items.empty())
        changeAboutPivot(context, call, transformsOf(context, items), change);
    return {};
}

engine::Matrix turned(const MVector& angles)
{
    return engine::turnOf(Vec3d(angles.x, angles.y, angles.z), 0).toMatrix44();
}

engine::Matrix scaled(const MVector& factors)
{
    return engine::Matrix().setScale(Vec3d(factors.x, factors.y, factors.z));
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
    const PointTurn turn{turned(amounts.over(MVector())), &Transformation::rotatePivot};
    return turnAll(context, call, amounts, turn, [&](Transformation& parts, const Parents& parents) {
        const auto order = call.has("forceOrderXYZ") ? MEulerRotation::kXYZ : parts.rotation.order;
        if (!call.has("relative"))
            rotateTo(amounts, space, order, parts, parents);
        else if (call.has("euler"))
            parts.rotation = parts.rotation.asVector() + amounts.value;
        else
            api::turn(parts, parents, space, MEulerRotation(amounts.value, order).asQuaternion());
    });
}

Value scale(CommandContext& context, const ParsedCommand& call)
{
    const Amounts amounts = amountsOf(context, call, ArgumentType::number);
    const MVector factors = amounts.over(MVector(1.0, 1.0, 1.0));
    const PointTurn turn{scaled(factors), &Transformation::scalePivot};
    return turnAll(context, call, amounts, turn, [&](Transformation& parts, const Parents&) {
        if (call.has("relative"))
            for (unsigned axis = 0; axis < 3; ++axis)
                parts.scale[axis] *= factors[axis];
        else
            parts.scale = amounts.over(parts.scale);
    });
}

/// Components only, along axes in the world that are turned first.
Value scaleComponents(CommandContext& context, const ParsedCommand& call)
{
    const Amounts amounts = amountsOf(context, call, ArgumentType::number);
    std::vector<SelectionItem> items = itemsOrSelection(context, amounts.objects);
    const std::vector<SelectionItem> components = takeComponents(items);
    if (components.empty() || !items.empty())
        context.fail("scaleComponents scales components only");
    const FlagUse* rotation = call.use("rotation");
    const engine::Matrix axes =
        turned(rotation ? vectorOf(context, *rotation, ArgumentType::angle) : MVector());
    const FlagUse* pivot = call.use("pivot");
    const MVector given = pivot ? vectorOf(context, *pivot, ArgumentType::linear) : MVector();
    const Vec3d fixed(given.x, given.y, given.z);
    const engine::Matrix matrix = axes.transposed() * scaled(amounts.value) * axes;
    for (const SelectionItem& item : pointsOnce(context, components))
        changePoints(context, item, true,
                     [&](const Vec3d& point) { return (point - fixed) * matrix + fixed; });
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
    constexpr const char* kNoConstraint = "there is nothing that points would slide along";
    const std::vector<FlagSpec> refused = {
        refusedFlag("pgp", "preserveGeometryPosition", "points go along with their object"),
        refusedFlag("smn", "symNegative", kNoSymmetry),
        refusedFlag("cs", "componentSpace", "components have no axes of their own here"),
        refusedFlag("xc", "xformConstraint", kNoConstraint),
        refusedFlag("xn", "constrainAlongNormal", kNoConstraint),
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
    using A = ArgumentType;
    table.add({
        channelCommand("move", "Moves objects and components",
                       {switchFlag("wd", "worldSpaceDistance", "distances are those of the world"),
                        switchFlag("rpr", "rotatePivotRelative", "the rotate pivot comes to the place"),
                        switchFlag("spr", "scalePivotRelative", "the scale pivot comes to the place")},
                       move),
        channelCommand("rotate", "Turns objects and components",
                       withPivotFlags({switchFlag("eu", "euler", "with -relative: adds to the angles"),
                                       switchFlag("fo", "forceOrderXYZ", "the angles are in the order xyz")}),
                       rotate),
        channelCommand("scale", "Scales objects and components",
                       withPivotFlags({refusedFlag("dso", "distanceOnly", "objects are scaled themselves")}),
                       scale),
        makeCommand(
            "scaleComponents", "Scales points of shapes along turned axes",
            {{"p", "pivot", {A::linear, A::linear, A::linear}, kCreate, "the point that stays where it is"},
             {"ro", "rotation", {A::angle, A::angle, A::angle}, kCreate, "how the axes are turned"}},
            {A::any, 3, PositionalRule::kAny}, scaleComponents),
    });
}

} // namespace tvxhost::mel
