// polyListComponentConversion, filterExpand: components of another kind, and those of some kinds.
#include "commandSupport.h"
#include "memberLists.h"
#include "meshConversion.h"
#include "sceneCommands.h"

#include <algorithm>
#include <iterator>

namespace tvxhost::mel {

using engine::Components;
using engine::DagNode;
using engine::SelectionItem;

namespace {

// polyListComponentConversion

/// A kind of component, with the flags that convert from and to it.
struct KindFlags
{
    const char* kind;
    const char* shortFrom;
    const char* longFrom;
    const char* shortTo;
    const char* longTo;
    const char* what;
};

constexpr KindFlags kKinds[] = {
    {"vtx", "fv", "fromVertex", "tv", "toVertex", "vertices"},
    {"e", "fe", "fromEdge", "te", "toEdge", "edges"},
    {"f", "ff", "fromFace", "tf", "toFace", "faces"},
};

bool hasAny(const ParsedCommand& call, const char* KindFlags::*flag)
{
    return std::any_of(std::begin(kKinds), std::end(kKinds),
                       [&](const KindFlags& row) { return call.has(row.*flag); });
}

Related relatedOf(const ParsedCommand& call)
{
    return call.has("internal") ? Related::internal : call.has("border") ? Related::border : Related::all;
}

/// Makes an item that of its mesh, with all of its components.
/// @return false when it has none
bool enterMesh(SelectionItem& item)
{
    if (!item.isDag() || !item.plug.isNull())
        return false;
    if (!item.path.node()->isShape()) {
        DagNode* shape = item.path.shapeBelow();
        if (!shape || !item.path.push(*shape))
            return false;
        item.node = shape;
    }
    return engine::meshOf(*item.path.node()) != nullptr;
}

void addItems(SelectionItem item, const Components& components, Members& result)
{
    for (std::string& text : components.texts()) {
        item.components = std::move(text);
        result.push_back(item);
    }
}

/// What some components of a mesh become, kind by kind; the object itself when no kind is asked for.
void addConverted(const ParsedCommand& call, const SelectionItem& item, const Components& from,
                  Members& result)
{
    DagNode& shape = *item.path.node();
    const Components existing = from.common(engine::allComponents(shape, from.kind()));
    for (const KindFlags& row : kKinds)
        if (call.has(row.longTo))
            addItems(item, converted(*engine::meshOf(shape), existing, row.kind, relatedOf(call)), result);
    if (!hasAny(call, &KindFlags::longTo)) {
        SelectionItem object = item;
        object.components.clear();
        result.push_back(object);
    }
}

/// A mesh as a whole stands for its faces, and for what no face has.
void addWhole(const ParsedCommand& call, const SelectionItem& item, Members& result)
{
    if (hasAny(call, &KindFlags::longFrom))
        return;
    DagNode& shape = *item.path.node();
    addConverted(call, item, engine::allComponents(shape, "f"), result);
    if (!call.has("border"))
        for (const KindFlags& row : kKinds)
            if (call.has(row.longTo))
                addItems(item, engine::allComponents(shape, row.kind), result);
}

bool convertsFrom(const ParsedCommand& call, const std::string& kind)
{
    return !hasAny(call, &KindFlags::longFrom) ||
           std::any_of(std::begin(kKinds), std::end(kKinds),
                       [&](const KindFlags& row) { return row.kind == kind && call.has(row.longFrom); });
}

Value::Strings namesOf(const Members& members, bool isFull = false)
{
    Value::Strings names;
    for (const SelectionItem& member : members)
        names.push_back(member.name(isFull));
    return names;
}

Value polyListComponentConversion(CommandContext& context, const ParsedCommand& call)
{
    Members parts;
    Members result;
    for (SelectionItem item : itemsOrSelection(context, call.names())) {
        if (!enterMesh(item))
            continue;
        if (item.components.empty())
            addWhole(call, item, result);
        else
            parts.push_back(item);
    }
    for (const auto& [item, numbers] : componentsByObject(parts))
        if (convertsFrom(call, numbers.kind()))
            addConverted(call, item, numbers, result);
    return Value(namesOf(merged(result)));
}

CommandSpec conversionCommand()
{
    std::vector<FlagSpec> flags;
    for (const KindFlags& row : kKinds) {
        flags.push_back(switchFlag(row.shortFrom, row.longFrom, std::string("converts ") + row.what));
        flags.push_back(switchFlag(row.shortTo, row.longTo, std::string("into ") + row.what));
    }
    constexpr const char* kNoTexture = "there are no texture coordinates to select here";
    constexpr const char* kNoCorners = "there are no corners of faces to select here";
    const std::vector<FlagSpec> others = {
        switchFlag("in", "internal", "only what is wholly among the given components"),
        switchFlag("bo", "border", "only what is at the border of the given components"),
        refusedFlag("fuv", "fromUV", kNoTexture),
        refusedFlag("tuv", "toUV", kNoTexture),
        refusedFlag("fvf", "fromVertexFace", kNoCorners),
        refusedFlag("tvf", "toVertexFace", kNoCorners),
        refusedFlag("vfa", "vertexFaceAllEdges", kNoCorners),
    };
    flags.insert(flags.end(), others.begin(), others.end());
    return makeCommand("polyListComponentConversion", "Tells what components of meshes are in other kinds",
                       std::move(flags), names(), polyListComponentConversion);
}

// filterExpand

/// What a number of a selection mask lets through: components of a kind, or objects of a type.
struct MaskRow
{
    int number;
    const char* kind;
    const char* type;
};

constexpr MaskRow kMasks[] = {
    {9, "", "nurbsCurve"}, {10, "", "nurbsSurface"}, {12, "", "mesh"},
    {22, "", "locator"},   {28, "cv", "nurbsCurve"}, {30, "ep", "nurbsCurve"},
    {31, "vtx", "mesh"},   {32, "e", "mesh"},        {34, "f", "mesh"},
};

/// An object is of the type of its shape.
bool passes(const SelectionItem& item, const MaskRow& row)
{
    if (!item.isDag() || !item.plug.isNull())
        return false;
    DagNode* node = item.path.node();
    DagNode* shape = node->isShape() ? node : item.path.shapeBelow();
    return shape && shape->type().isA(row.type) &&
           item.components.substr(0, item.components.find('[')) == row.kind;
}

std::vector<const MaskRow*> masksOf(const CommandContext& context, const ParsedCommand& call)
{
    std::vector<const MaskRow*> masks;
    for (const FlagUse* use : call.uses("selectionMask")) {
        const int number = use->arguments.front().toInteger();
        const auto* row = std::find_if(std::begin(kMasks), std::end(kMasks),
                                       [number](const MaskRow& each) { return each.number == number; });
        if (row == std::end(kMasks))
            context.fail("filterExpand: nothing here is of the selection mask " + std::to_string(number));
        masks.push_back(row);
    }
    if (masks.empty())
        context.fail("filterExpand: which -selectionMask?");
    return masks;
}

Value filterExpand(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<const MaskRow*> masks = masksOf(context, call);
    Members passing;
    for (const SelectionItem& item : itemsOrSelection(context, call.names()))
        if (std::any_of(masks.begin(), masks.end(), [&](const MaskRow* row) { return passes(item, *row); }))
            passing.push_back(item);
    if (call.boolean("expand", true))
        passing = flattened(context, passing);
    return Value(namesOf(passing, call.boolean("fullPath")));
}

CommandSpec filterCommand()
{
    using A = ArgumentType;
    return makeCommand(
        "filterExpand", "Lists those of the objects and components that are of some kinds, one by one",
        {valueFlag("sm", "selectionMask", A::integer,
                   "9 curves, 10 surfaces, 12 meshes, 22 locators, 28 control points, 30 edit points, "
                   "31 vertices, 32 edges, 34 faces",
                   kCreate | kMultiUse),
         valueFlag("ex", "expand", A::boolean, "each component by itself (the default)"),
         valueFlag("fp", "fullPath", A::boolean, "full paths")},
        names(), filterExpand);
}

} // namespace

void registerComponentCommands(CommandTable& table)
{
    table.add({conversionCommand(), filterCommand()});
}

} // namespace tvxhost::mel
