// xform: the parts of a transform, one by one or as a whole.
#include "pointComponents.h"
#include "sceneCommands.h"
#include "transformParts.h"

#include "api/support/matrix4.h"
#include "engine/boundingBox.h"

#include <Imath/ImathBoxAlgo.h>

#include <array>

namespace tvxhost::mel {

using api::Parents;
using api::Transformation;
using engine::DagPath;

namespace {

/// How a call of xform looks at a transform.
struct View
{
    MSpace::Space space = MSpace::kTransform;
    bool isRelative = false;
    bool addsAngles = false; ///< -euler: relative rotations add to the angles
    bool keepsPlace = true;  ///< -preserve: what does not move the object itself leaves it in place

    bool isWorld() const { return space == MSpace::kWorld; }
};

MMatrix worldOf(const Transformation& parts, const Parents& parents)
{
    return parts.matrix() * parents.matrix;
}

MVector anglesOf(const MQuaternion& rotation, MEulerRotation::RotationOrder order)
{
    MEulerRotation angles(MVector(), order);
    angles = rotation;
    return angles.asVector();
}

/// One part of a transform as xform reads and writes it.
struct XformRow
{
    const char* shortName;
    const char* longName;
    ArgumentType type;
    const char* help;
    MVector (*read)(const Transformation& parts, const Parents& parents, const View& view);
    void (*write)(Transformation& parts, const Parents& parents, const View& view, const MVector& value);
};

template <MVector Transformation::*part>
MVector readPart(const Transformation& parts, const Parents&, const View&)
{
    return parts.*part;
}

template <MVector Transformation::*part>
void writePart(Transformation& parts, const Parents&, const View& view, const MVector& value)
{
    parts.*part = view.isRelative ? parts.*part + value : value;
}

MVector readTranslation(const Transformation& parts, const Parents& parents, const View& view)
{
    return view.isWorld() ? api::translationIn(parts, parents) : parts.translation;
}

void writeTranslation(Transformation& parts, const Parents& parents, const View& view, const MVector& value)
{
    if (!view.isWorld()) {
        writePart<&Transformation::translation>(parts, parents, view, value);
        return;
    }
    const MVector from = api::translationIn(parts, parents);
    api::shift(parts, parents, from, view.isRelative ? from + value : value);
}

MVector readRotation(const Transformation& parts, const Parents& parents, const View& view)
{
    return view.isWorld() ? anglesOf(api::rotationIn(parts, parents, view.space), parts.rotation.order)
                          : parts.rotation.asVector();
}

void writeRotation(Transformation& parts, const Parents& parents, const View& view, const MVector& value)
{
    const MEulerRotation angles(value, parts.rotation.order);
    if (view.isRelative && view.addsAngles)
        parts.rotation = parts.rotation.asVector() + value;
    else if (view.isRelative)
        api::turn(parts, parents, view.space, angles.asQuaternion());
    else if (view.isWorld())
        api::setRotationIn(parts, parents, view.space, angles.asQuaternion());
    else
        parts.rotation = angles;
}

void writeScale(Transformation& parts, const Parents&, const View& view, const MVector& value)
{
    for (unsigned axis = 0; axis < 3; ++axis)
        parts.scale[axis] = view.isRelative ? parts.scale[axis] * value[axis] : value[axis];
}

template <MVector Transformation::*pivot>
MVector readPivot(const Transformation& parts, const Parents& parents, const View& view)
{
    return view.isWorld() ? MVector(MPoint(parts.*pivot) * worldOf(parts, parents)) : parts.*pivot;
}

MVector pivotFrom(const Transformation& parts, const Parents& parents, const View& view,
                  const MVector& before, const MVector& value)
{
    const MMatrix toOwn = worldOf(parts, parents).inverse();
    if (view.isRelative)
        return before + (view.isWorld() ? value * toOwn : value);
    return view.isWorld() ? MVector(MPoint(value) * toOwn) : value;
}

void writeRotatePivot(Transformation& parts, const Parents& parents, const View& view, const MVector& value)
{
    parts.setRotatePivot(pivotFrom(parts, parents, view, parts.rotatePivot, value), view.keepsPlace);
}

void writeScalePivot(Transformation& parts, const Parents& parents, const View& view, const MVector& value)
{
    parts.setScalePivot(pivotFrom(parts, parents, view, parts.scalePivot, value), view.keepsPlace);
}

MVector readAxis(const Transformation& parts, const Parents&, const View&)
{
    return parts.orientation.asEulerRotation().asVector();
}

void writeAxis(Transformation& parts, const Parents&, const View& view, const MVector& value)
{
    const MQuaternion before = parts.orientation;
    const MQuaternion given = MEulerRotation(value).asQuaternion();
    parts.orientation = view.isRelative ? given * before : given;
    if (view.keepsPlace)
        parts.rotation = parts.orientation.inverse() * before * parts.rotation.asQuaternion();
}

using A = ArgumentType;
using T = Transformation;

/// In the order in which they are applied.
const XformRow kXform[] = {
    {"ra", "rotateAxis", A::angle, "the turn of the rotation's axes", readAxis, writeAxis},
    {"s", "scale", A::number, "the scale", readPart<&T::scale>, writeScale},
    {"sh", "shear", A::number, "the shear", readPart<&T::shear>, writePart<&T::shear>},
    {"ro", "rotation", A::angle, "the rotation", readRotation, writeRotation},
    {"rt", "rotateTranslation", A::linear, "what makes up for a moved rotate pivot",
     readPart<&T::rotatePivotTranslation>, writePart<&T::rotatePivotTranslation>},
    {"st", "scaleTranslation", A::linear, "what makes up for a moved scale pivot",
     readPart<&T::scalePivotTranslation>, writePart<&T::scalePivotTranslation>},
    {"t", "translation", A::linear, "the translation", readTranslation, writeTranslation},
    {"sp", "scalePivot", A::linear, "the point that scale grows from", readPivot<&T::scalePivot>,
     writeScalePivot},
    {"rp", "rotatePivot", A::linear, "the point that rotation turns about", readPivot<&T::rotatePivot>,
     writeRotatePivot},
};

constexpr std::array<const char*, 6> kOrders = {"xyz", "yzx", "zxy", "xzy", "yxz", "zyx"};

View viewOf(const ParsedCommand& call)
{
    View view;
    view.space = call.has("worldSpace") ? MSpace::kWorld : MSpace::kTransform;
    view.isRelative = call.has("relative");
    view.addsAngles = call.has("euler");
    view.keepsPlace = call.boolean("preserve", true);
    return view;
}

void append(Value::Numbers& numbers, const MVector& vector, double unit)
{
    for (const double component : {vector.x, vector.y, vector.z})
        numbers.push_back(component / unit);
}

Value numbersOf(const CommandContext& context, const Imath::Box3d& box)
{
    const double unit = unitOf(context, A::linear);
    Value::Numbers numbers;
    append(numbers, MVector(box.min.x, box.min.y, box.min.z), unit);
    append(numbers, MVector(box.max.x, box.max.y, box.max.z), unit);
    return Value(std::move(numbers));
}

Value queryXform(const CommandContext& context, const ParsedCommand& call, const DagPath& path)
{
    const View view = viewOf(call);
    const Transformation parts = partsOf(context, path);
    const Parents parents = api::parentsOf(path);
    if (call.has("boundingBox") || call.has("boundingBoxInvisible"))
        return numbersOf(context, boxOf(path, view.isWorld()));
    if (call.has("matrix")) {
        const MMatrix matrix = view.isWorld() ? worldOf(parts, parents) : parts.matrix();
        return Value(Value::Numbers(&matrix.matrix[0][0], &matrix.matrix[0][0] + 16));
    }
    if (call.has("rotateOrder"))
        return Value(kOrders[static_cast<std::size_t>(parts.rotation.order)]);
    Value::Numbers numbers;
    if (call.has("pivots")) {
        const double unit = unitOf(context, A::linear);
        append(numbers, readPivot<&T::rotatePivot>(parts, parents, view), unit);
        append(numbers, readPivot<&T::scalePivot>(parts, parents, view), unit);
        return Value(std::move(numbers));
    }
    for (const XformRow& row : kXform) {
        if (!call.has(row.longName))
            continue;
        append(numbers, row.read(parts, parents, view), unitOf(context, row.type));
        return Value(std::move(numbers));
    }
    context.fail("xform: nothing was asked");
}

MVector vectorOf(const CommandContext& context, const FlagUse& use, ArgumentType type)
{
    MVector vector;
    for (unsigned axis = 0; axis < 3; ++axis)
        vector[axis] = internalNumber(context, use.arguments[axis], type);
    return vector;
}

void setMatrix(const FlagUse& use, Transformation& parts, const Parents& parents, const View& view)
{
    MMatrix matrix;
    for (std::size_t i = 0; i < 16; ++i)
        matrix.matrix[i / 4][i % 4] = use.arguments[i].toNumber();
    takeMatrix(parts, view.isWorld() ? matrix * parents.matrix.inverse() : matrix);
}

void setOrder(const CommandContext& context, const std::string& name, Transformation& parts, const View& view)
{
    for (std::size_t i = 0; i < kOrders.size(); ++i) {
        if (name != kOrders[i])
            continue;
        const auto order = static_cast<MEulerRotation::RotationOrder>(i);
        if (view.keepsPlace)
            parts.rotation.reorderIt(order);
        parts.rotation.order = order;
        return;
    }
    context.fail("xform: \"" + name + "\" is no rotation order");
}

void setPivots(Transformation& parts, const Parents& parents, const View& view, const MVector& value)
{
    writeRotatePivot(parts, parents, view, value);
    writeScalePivot(parts, parents, view, value);
}

void centerPivots(Transformation& parts, const Parents& parents, const DagPath& path)
{
    View own;
    const engine::Vec3d center = boxOf(path, false).center();
    const MPoint point = MPoint(center.x, center.y, center.z) * parts.matrix().inverse();
    setPivots(parts, parents, own, MVector(point));
}

/// No pivots any more, and the object where it was.
void zeroPivots(Transformation& parts)
{
    const MMatrix before = parts.matrix();
    for (MVector T::*part :
         {&T::rotatePivot, &T::rotatePivotTranslation, &T::scalePivot, &T::scalePivotTranslation})
        parts.*part = MVector();
    parts.translation = MVector(before.matrix[3]);
}

void setXform(const CommandContext& context, const ParsedCommand& call, const DagPath& path)
{
    const View view = viewOf(call);
    changeParts(context, path, [&](Transformation& parts, const Parents& parents) {
        if (const FlagUse* use = call.use("rotateOrder"))
            setOrder(context, use->arguments.front().toString(), parts, view);
        if (const FlagUse* use = call.use("matrix"))
            setMatrix(*use, parts, parents, view);
        for (const XformRow& row : kXform)
            if (const FlagUse* use = call.use(row.longName))
                row.write(parts, parents, view, vectorOf(context, *use, row.type));
        if (const FlagUse* use = call.use("pivots"))
            setPivots(parts, parents, view, vectorOf(context, *use, A::linear));
        if (call.has("centerPivots"))
            centerPivots(parts, parents, path);
        if (call.has("zeroTransformPivots"))
            zeroPivots(parts);
    });
}

// Components have places, and a box around them.

/// The box or the places of points, one after the other.
Value queryPoints(const CommandContext& context, const ParsedCommand& call,
                  const std::vector<engine::SelectionItem>& items)
{
    const bool isBox = call.has("boundingBox") || call.has("boundingBoxInvisible");
    if (!isBox && !call.has("translation"))
        context.fail("xform: components have a translation and a bounding box only");
    Imath::Box3d box;
    Value::Numbers numbers;
    for (const engine::SelectionItem& item : items) {
        const engine::Matrix toSpace =
            viewOf(call).isWorld() ? item.path.inclusiveMatrix() : engine::Matrix();
        for (const auto& [number, place] : pointsOf(context, item)) {
            const engine::Vec3d point = place * toSpace;
            box.extendBy(point);
            append(numbers, MVector(point.x, point.y, point.z), unitOf(context, A::linear));
        }
    }
    return isBox ? numbersOf(context, box) : Value(std::move(numbers));
}

void setPoints(const CommandContext& context, const ParsedCommand& call, const engine::SelectionItem& item)
{
    const FlagUse* use = call.use("translation");
    if (!use)
        context.fail("xform: of components only the translation can be set");
    const View view = viewOf(call);
    const MVector value = vectorOf(context, *use, A::linear);
    const engine::Vec3d given(value.x, value.y, value.z);
    changePoints(context, item, view.isWorld(),
                 [&](const engine::Vec3d& point) { return view.isRelative ? point + given : given; });
}

Value xform(CommandContext& context, const ParsedCommand& call)
{
    std::vector<engine::SelectionItem> items = itemsOrSelection(context, call.names());
    const std::vector<engine::SelectionItem> components = takeComponents(items);
    if (call.queries() && !components.empty())
        return queryPoints(context, call, components);
    for (const engine::SelectionItem& item : components)
        setPoints(context, call, item);
    if (!components.empty() && items.empty())
        return {};
    const std::vector<DagPath> paths = transformsOf(context, items);
    if (call.queries())
        return queryXform(context, call, paths.front());
    for (const DagPath& path : paths)
        setXform(context, call, path);
    return {};
}

CommandSpec xformCommand()
{
    constexpr unsigned kSetQuery = kCreateQuery;
    std::vector<FlagSpec> flags = {
        switchFlag("r", "relative", "adds to what is there", kSetQuery),
        switchFlag("a", "absolute", "replaces what is there (the default)", kSetQuery),
        switchFlag("ws", "worldSpace", "in the world", kSetQuery),
        switchFlag("os", "objectSpace", "as the attributes have it (the default)", kSetQuery),
        valueFlag("p", "preserve", A::boolean, "new pivots, axes and orders leave the object in place (on)"),
        {"roo", "rotateOrder", {A::string}, kSetQuery, "the order of rotation: xyz yzx zxy xzy yxz zyx"},
        {"m", "matrix", std::vector<A>(16, A::number), kSetQuery, "the whole matrix, row by row"},
        switchFlag("bb", "boundingBox", "least x y z, greatest x y z", kQuery),
        {"piv", "pivots", {A::linear, A::linear, A::linear}, kSetQuery, "both pivots: rotate, scale"},
        switchFlag("cp", "centerPivots", "puts both pivots into the middle of the box"),
        switchFlag("ztp", "zeroTransformPivots", "takes both pivots to the origin"),
        switchFlag("eu", "euler", "with -relative: adds to the angles"),
        refusedFlag("wd", "worldSpaceDistance", "use move"),
        switchFlag("bbi", "boundingBoxInvisible", "the same; what is hidden is in the box always", kQuery),
        refusedFlag("cpc", "centerPivotsOnComponents", "components have no box here"),
    };
    const std::vector<FlagSpec> refused = componentFlags();
    flags.insert(flags.end(), refused.begin(), refused.end());
    for (const XformRow& row : kXform)
        flags.push_back({row.shortName, row.longName, {row.type, row.type, row.type}, kSetQuery, row.help});
    return makeCommand("xform", "Sets or tells the parts of a transform", std::move(flags), names(), xform,
                       kQuery);
}

} // namespace

void registerXformCommands(CommandTable& table)
{
    table.add({xformCommand()});
}

} // namespace tvxhost::mel
