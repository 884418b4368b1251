// move, rotate, scale, xform.
#include "commandSupport.h"
#include "sceneCommands.h"
#include "transformValues.h"

#include <Imath/ImathMatrixAlgo.h>

#include <array>

namespace tvxhost::mel {

using engine::DagNode;
using engine::DagPath;
using engine::Matrix;
using engine::Plug;
using engine::SelectionItem;
using engine::Vec3d;

namespace {

constexpr std::array<const char*, 3> kAxes = {"X", "Y", "Z"};

/// What one of the three commands works on.
struct Channel
{
    const char* attribute;
    ArgumentType type; ///< of its numbers
};

constexpr Channel kMove = {"translate", ArgumentType::linear};
constexpr Channel kRotate = {"rotate", ArgumentType::angle};
constexpr Channel kScale = {"scale", ArgumentType::number};

std::vector<double> numbersOf(const CommandContext& context, DagNode& node, const char* attribute)
{
    return valueOf(context, engine::readNumbers(valueOf(context, node.findPlug(attribute))));
}

void setNumbers(const CommandContext& context, DagNode& node, const char* attribute,
                const std::vector<double>& numbers)
{
    require(context, engine::writeNumbers(valueOf(context, node.findPlug(attribute)), numbers));
}

double internal(const CommandContext& context, const Value& value, ArgumentType type)
{
    return type == ArgumentType::number ? value.toNumber() : toInternal(context, value, type);
}

/// The numbers of a call and which axes they are for: all three, or those of -moveX and alike.
struct Amounts
{
    std::array<double, 3> value{};
    std::array<bool, 3> isGiven{};
    std::vector<std::string> objects; ///< what is named behind the numbers
};

Amounts amountsOf(const CommandContext& context, const ParsedCommand& call, const Channel& channel,
                  const std::string& flagStem)
{
    Amounts amounts;
    std::size_t next = 0;
    bool anyAxis = false;
    for (const char* axis : kAxes)
        anyAxis |= call.has(flagStem + axis) || call.has(flagStem + std::string(axis) + "Y") ||
                   call.has(flagStem + "YZ");
    const auto takes = [&](std::size_t axis) {
        if (!anyAxis)
            return true;
        const std::string name = kAxes[axis];
        for (const char* pair : {"XY", "XZ", "YZ"})
            if (call.has(flagStem + pair) && std::string(pair).find(name) != std::string::npos)
                return true;
        return call.has(flagStem + name);
    };
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (!takes(axis))
            continue;
        const Value number = next < call.positional.size() ? call.positional[next++] : Value();
        if (number.isNone() || (number.type() == Type::string && !leadingNumber(number.string()).found))
            context.fail("'" + context.command() + "' needs a number for each axis");
        amounts.value[axis] = internal(context, number, channel.type);
        amounts.isGiven[axis] = true;
    }
    for (; next < call.positional.size(); ++next)
        amounts.objects.push_back(call.positional[next].toString());
    return amounts;
}

/// The transforms of the named objects or the selection; a shape stands for its transform.
std::vector<DagPath> transformsOf(const CommandContext& context, const std::vector<std::string>& names)
{
    std::vector<DagPath> paths;
    for (const SelectionItem& item : itemsOrSelection(context, names)) {
        DagPath path = item.path;
        while (path.isValid() && path.length() > 0 && !path.node()->isTransform())
            if (!path.pop())
                break;
        if (path.isValid() && path.length() > 0)
            paths.push_back(path);
    }
    if (paths.empty())
        context.fail("Nothing is selected to " + context.command() + ".");
    return paths;
}

/// Where the point that rotation turns about stands in the world.
Vec3d worldPivot(const CommandContext& context, const DagPath& path)
{
    const std::vector<double> pivot = numbersOf(context, *path.node(), "rotatePivot");
    Vec3d world;
    path.inclusiveMatrix().multVecMatrix(Vec3d(pivot[0], pivot[1], pivot[2]), world);
    return world;
}

void shiftInWorld(const CommandContext& context, const DagPath& path, const Vec3d& by)
{
    Vec3d local;
    path.exclusiveMatrix().inverse().multDirMatrix(by, local);
    std::vector<double> translation = numbersOf(context, *path.node(), "translate");
    for (int axis = 0; axis < 3; ++axis)
        translation[static_cast<std::size_t>(axis)] += local[axis];
    setNumbers(context, *path.node(), "translate", translation);
}

void moveInWorld(const CommandContext& context, const DagPath& path, const Amounts& amounts, bool isRelative)
{
    const Vec3d now = worldPivot(context, path);
    Vec3d by(0);
    for (std::size_t axis = 0; axis < 3; ++axis)
        if (amounts.isGiven[axis])
            by[static_cast<int>(axis)] =
                amounts.value[axis] - (isRelative ? 0.0 : now[static_cast<int>(axis)]);
    shiftInWorld(context, path, by);
}

/// Along the object's own axes, as it is turned now.
void moveInObject(const CommandContext& context, const DagPath& path, const Amounts& amounts)
{
    Vec3d by;
    Matrix local = path.node()->localMatrix();
    Imath::removeScalingAndShear(local, false);
    local.multDirMatrix(Vec3d(amounts.value[0], amounts.value[1], amounts.value[2]), by);
    std::vector<double> translation = numbersOf(context, *path.node(), "translate");
    for (int axis = 0; axis < 3; ++axis)
        translation[static_cast<std::size_t>(axis)] += by[axis];
    setNumbers(context, *path.node(), "translate", translation);
}

void changeNumbers(const CommandContext& context, const DagPath& path, const Channel& channel,
                   const Amounts& amounts, bool isRelative)
{
    std::vector<double> numbers = numbersOf(context, *path.node(), channel.attribute);
    const bool multiplies = channel.type == ArgumentType::number;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (!amounts.isGiven[axis])
            continue;
        if (!isRelative)
            numbers[axis] = amounts.value[axis];
        else if (multiplies)
            numbers[axis] *= amounts.value[axis];
        else
            numbers[axis] += amounts.value[axis];
    }
    setNumbers(context, *path.node(), channel.attribute, numbers);
}

Value move(CommandContext& context, const ParsedCommand& call)
{
    const Amounts amounts = amountsOf(context, call, kMove, "move");
    const bool isRelative = call.has("relative");
    for (const DagPath& path : transformsOf(context, amounts.objects)) {
        if (call.has("localSpace"))
            changeNumbers(context, path, kMove, amounts, isRelative);
        else if (call.has("objectSpace") && isRelative)
            moveInObject(context, path, amounts);
        else if (call.has("objectSpace"))
            changeNumbers(context, path, kMove, amounts, false);
        else
            moveInWorld(context, path, amounts, isRelative);
    }
    return {};
}

Value rotate(CommandContext& context, const ParsedCommand& call)
{
    const Amounts amounts = amountsOf(context, call, kRotate, "rotate");
    for (const DagPath& path : transformsOf(context, amounts.objects))
        changeNumbers(context, path, kRotate, amounts, call.has("relative"));
    return {};
}

Value scale(CommandContext& context, const ParsedCommand& call)
{
    const Amounts amounts = amountsOf(context, call, kScale, "scale");
    for (const DagPath& path : transformsOf(context, amounts.objects))
        changeNumbers(context, path, kScale, amounts, call.has("relative"));
    return {};
}

// ---- xform

struct XformRow
{
    const char* shortName;
    const char* longName;
    const char* attribute;
    ArgumentType type;
    const char* help;
};

constexpr XformRow kXform[] = {
    {"t", "translation", "translate", ArgumentType::linear, "the translation"},
    {"ro", "rotation", "rotate", ArgumentType::angle, "the rotation"},
    {"s", "scale", "scale", ArgumentType::number, "the scale"},
    {"sh", "shear", "shear", ArgumentType::number, "the shear"},
    {"rp", "rotatePivot", "rotatePivot", ArgumentType::linear, "the point that rotation turns about"},
    {"sp", "scalePivot", "scalePivot", ArgumentType::linear, "the point that scale grows from"},
    {"ra", "rotateAxis", "rotateAxis", ArgumentType::angle, "the turn of the rotation's axes"},
};

double uiFactor(const CommandContext& context, ArgumentType type)
{
    return type == ArgumentType::number ? 1.0 : toInternal(context, Value(1.0), type);
}

Value::Numbers matrixNumbers(const Matrix& matrix)
{
    return {matrix.getValue(), matrix.getValue() + 16};
}

Value queryXform(CommandContext& context, const ParsedCommand& call, const DagPath& path)
{
    DagNode& node = *path.node();
    const bool inWorld = call.has("worldSpace");
    if (call.has("matrix"))
        return Value(matrixNumbers(inWorld ? path.inclusiveMatrix() : node.localMatrix()));
    if (call.has("pivots"))
        return Value(numbersOf(context, node, "rotatePivot"));
    for (const XformRow& row : kXform) {
        if (!call.has(row.longName))
            continue;
        std::vector<double> numbers = numbersOf(context, node, row.attribute);
        if (inWorld && row.type == ArgumentType::linear) {
            const Vec3d world = worldPivot(context, path);
            numbers = {world.x, world.y, world.z};
            if (std::string(row.longName) == "translation") {
                // Where the pivot would stand had it stayed at the origin.
                const Vec3d origin = path.inclusiveMatrix().translation();
                numbers = {origin.x, origin.y, origin.z};
            }
        }
        for (double& number : numbers)
            number /= uiFactor(context, row.type);
        return Value(std::move(numbers));
    }
    context.fail("xform: nothing was asked");
}

void setXform(CommandContext& context, const ParsedCommand& call, const DagPath& path)
{
    if (const FlagUse* use = call.use("matrix")) {
        Matrix matrix;
        for (std::size_t i = 0; i < 16; ++i)
            matrix.getValue()[i] = use->arguments[i].toNumber();
        if (call.has("worldSpace"))
            matrix *= path.exclusiveMatrix().inverse();
        require(context, setLocalMatrix(*path.node(), matrix));
    }
    for (const XformRow& row : kXform) {
        const FlagUse* use = call.use(row.longName);
        if (!use)
            continue;
        Amounts amounts;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            amounts.value[axis] = internal(context, use->arguments[axis], row.type);
            amounts.isGiven[axis] = true;
        }
        const bool isTranslation = std::string(row.longName) == "translation";
        if (isTranslation && call.has("worldSpace")) {
            const Vec3d now = path.inclusiveMatrix().translation();
            Vec3d to(amounts.value[0], amounts.value[1], amounts.value[2]);
            shiftInWorld(context, path, call.has("relative") ? to : to - now);
        } else {
            changeNumbers(context, path, {row.attribute, row.type}, amounts, call.has("relative"));
        }
    }
}

Value xform(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<DagPath> paths = transformsOf(context, call.names());
    if (call.queries())
        return queryXform(context, call, paths.front());
    for (const DagPath& path : paths)
        setXform(context, call, path);
    return {};
}

CommandSpec xformCommand()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = {
        switchFlag("r", "relative", "adds to what is there", kAllModes),
        switchFlag("a", "absolute", "replaces what is there (the default)", kAllModes),
        switchFlag("ws", "worldSpace", "in the world", kAllModes),
        switchFlag("os", "objectSpace", "in the object's own space (the default)", kAllModes),
        {"m", "matrix", std::vector<A>(16, A::number), kAllModes, "the whole matrix, row by row"},
        switchFlag("piv", "pivots", "the pivot", kQuery),
    };
    for (const XformRow& row : kXform)
        flags.push_back({row.shortName, row.longName, {row.type, row.type, row.type}, kAllModes, row.help});
    return makeCommand("xform", "Sets or tells the parts of a transform", std::move(flags), names(), xform,
                       kAllModes);
}

/// The flags of the three commands: spaces, and one per axis or pair of axes.
CommandSpec channelCommand(const char* name, const char* summary, ParsedHandler handler)
{
    std::vector<FlagSpec> flags = {
        switchFlag("r", "relative", "adds to what is there"),
        switchFlag("a", "absolute", "replaces what is there (the default)"),
        switchFlag("ws", "worldSpace", "along the world's axes (the default)"),
        switchFlag("ls", "localSpace", "along the axes of what is above"),
        switchFlag("os", "objectSpace", "along the object's own axes"),
        switchFlag("wd", "worldSpaceDistance", "distances are those of the world"),
    };
    for (const char* axes : {"X", "Y", "Z", "XY", "XZ", "YZ"}) {
        std::string shortName = axes;
        for (char& letter : shortName)
            letter = static_cast<char>(letter - 'A' + 'a');
        flags.push_back(
            switchFlag(shortName, std::string(name) + axes, std::string("along ") + axes + " only"));
    }
    return makeCommand(name, summary, std::move(flags), {ArgumentType::any, 1, PositionalRule::kAny},
                       std::move(handler));
}

} // namespace

void registerTransformCommands(CommandTable& table)
{
    table.add({
        channelCommand("move", "Moves objects", move),
        channelCommand("rotate", "Turns objects", rotate),
        channelCommand("scale", "Scales objects", scale),
        xformCommand(),
    });
}

} // namespace tvxhost::mel
