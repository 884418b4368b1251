// toggle, inheritTransform: states of objects that are on or off.
#include "commandSupport.h"
#include "sceneCommands.h"
#include "transformParts.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::DagNode;
using engine::Plug;
using engine::SelectionItem;

namespace {

// toggle

/// A state and the attribute, of an object or of its shape, that holds it.
struct ToggleRow
{
    const char* shortName;
    const char* longName;
    const char* attribute;
    const char* help;
};

constexpr ToggleRow kToggles[] = {
    {"bn", "boundary", "displayBorders", "borders of meshes"},
    {"cv", "controlVertex", "dispCV", "control points of curves"},
    {"ep", "editPoint", "dispEP", "edit points of curves"},
    {"g", "geometry", "dispGeometry", "curves themselves"},
    {"hl", "hull", "dispHull", "hulls of curves"},
    {"la", "localAxis", "displayLocalAxis", "axes of transforms"},
    {"nr", "normal", "displayNormal", "normals of meshes"},
    {"rp", "rotatePivot", "displayRotatePivot", "pivots of rotations"},
    {"sp", "scalePivot", "displayScalePivot", "pivots of scales"},
    {"sh", "selectHandle", "displayHandle", "handles of transforms"},
    {"te", "template", "template", "objects that are templates"},
    {"uv", "uvCoords", "displayUVs", "texture coordinates of meshes"},
    {"vt", "vertex", "displayVertices", "vertices of meshes"},
};

/// The attribute of an object or of the shape below it; a null plug when neither has it.
Plug stateOf(const SelectionItem& item, const ToggleRow& row)
{
    for (DagNode* node : {item.path.node(), item.path.shapeBelow()})
        if (engine::Attribute* found = node ? node->findAttribute(row.attribute) : nullptr)
            return {*node, *found};
    return {};
}

bool isOn(const CommandContext& context, const Plug& plug)
{
    return valueOf(context, engine::readNumber(plug)).asReal() != 0.0;
}

void set(const CommandContext& context, const Plug& plug, bool on)
{
    require(context, engine::writeNumber(plug, engine::Number(on)));
}

void addAbove(engine::DagPath path, std::vector<SelectionItem>& items)
{
    while (path.length() > 1 && path.pop()) {
        SelectionItem item;
        item.node = path.node();
        item.path = path;
        items.push_back(item);
    }
}

void addBelow(const SelectionItem& item, std::vector<SelectionItem>& items)
{
    for (DagNode* child : item.path.node()->children()) {
        SelectionItem below;
        below.node = child;
        below.path = item.path;
        if (child->isShape() || !below.path.push(*child))
            continue;
        items.push_back(below);
        addBelow(below, items);
    }
}

/// The objects that a call is about.
std::vector<SelectionItem> objectsOf(const CommandContext& context, const ParsedCommand& call)
{
    std::vector<SelectionItem> objects;
    for (const SelectionItem& item : itemsOrSelection(context, call.names())) {
        if (!item.isDag())
            continue;
        objects.push_back(item);
        if (call.has("above"))
            addAbove(item.path, objects);
        if (call.has("below"))
            addBelow(item, objects);
    }
    if (objects.empty())
        context.fail("Nothing is selected for " + context.command() + ".");
    return objects;
}

Value queryToggle(const CommandContext& context, const ParsedCommand& call)
{
    const SelectionItem object = objectsOf(context, call).front();
    for (const ToggleRow& row : kToggles)
        if (call.has(row.longName)) {
            const Plug plug = stateOf(object, row);
            return Value(!plug.isNull() && isOn(context, plug));
        }
    context.fail("toggle: nothing was asked");
}

Value toggle(CommandContext& context, const ParsedCommand& call)
{
    if (call.queries())
        return queryToggle(context, call);
    for (const SelectionItem& object : objectsOf(context, call))
        for (const ToggleRow& row : kToggles)
            if (const Plug plug = call.has(row.longName) ? stateOf(object, row) : Plug(); !plug.isNull())
                set(context, plug, call.boolean("state", !isOn(context, plug)));
    return {};
}

CommandSpec toggleCommand()
{
    std::vector<FlagSpec> flags;
    for (const ToggleRow& row : kToggles)
        flags.push_back(switchFlag(row.shortName, row.longName, row.help, kCreateQuery));
    constexpr const char* kNoSuchThing = "the host draws no such thing";
    constexpr const char* kNoDefaults = "new objects are made as their types say";
    constexpr const char* kNoNormals = "set the attribute normalType";
    const std::vector<FlagSpec> others = {
        valueFlag("st", "state", ArgumentType::boolean, "sets it so instead of changing it"),
        switchFlag("a", "above", "of all objects above these too"),
        switchFlag("b", "below", "of all objects below these too"),
        refusedFlag("box", "boundingBox", "set the attributes of the drawing override"),
        refusedFlag("dnw", "doNotWrite", "it is no attribute"),
        refusedFlag("et", "extent", kNoSuchThing),
        refusedFlag("f", "facet", kNoNormals),
        refusedFlag("gl", "global", kNoDefaults),
        refusedFlag("hpn", "highPrecisionNurbs", kNoSuchThing),
        refusedFlag("lp", "latticePoint", kNoSuchThing),
        refusedFlag("ls", "latticeShape", kNoSuchThing),
        refusedFlag("nc", "newCurve", kNoDefaults),
        refusedFlag("np", "newPolymesh", kNoDefaults),
        refusedFlag("ns", "newSurface", kNoDefaults),
        refusedFlag("o", "origin", kNoSuchThing),
        refusedFlag("pt", "point", kNoNormals),
        refusedFlag("pd", "pointDisplay", kNoSuchThing),
        refusedFlag("pf", "pointFacet", kNoNormals),
        refusedFlag("sf", "surfaceFace", kNoSuchThing),
    };
    flags.insert(flags.end(), others.begin(), others.end());
    return makeCommand("toggle", "Shows parts of objects or no longer shows them", std::move(flags), names(),
                       toggle, kQuery);
}

// inheritTransform

Plug inheritance(const CommandContext& context, const engine::DagPath& path)
{
    return valueOf(context, path.node()->findPlug("inheritsTransform"));
}

void setInheritance(const CommandContext& context, const ParsedCommand& call, const engine::DagPath& path)
{
    const Plug plug = inheritance(context, path);
    const bool on = call.has("on") || (!call.has("off") && !isOn(context, plug));
    const engine::Matrix place = path.inclusiveMatrix();
    set(context, plug, on);
    if (call.has("preserve"))
        require(context, setLocalMatrix(*path.node(), on ? place * path.exclusiveMatrix().inverse() : place));
}

Value inheritTransform(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<engine::DagPath> paths = transformsOf(context, call.names());
    if (call.queries())
        return Value(isOn(context, inheritance(context, paths.front())));
    for (const engine::DagPath& path : paths)
        setInheritance(context, call, path);
    return {};
}

CommandSpec inheritTransformCommand()
{
    return makeCommand("inheritTransform", "Has objects follow what is above them or not",
                       {switchFlag("tgl", "toggle", "the other way than now (the default)"),
                        switchFlag("on", "on", "they follow"), switchFlag("off", "off", "they do not follow"),
                        switchFlag("p", "preserve", "they stay where they are in the world")},
                       names(), inheritTransform, kQuery);
}

} // namespace

void registerToggleCommands(CommandTable& table)
{
    table.add({toggleCommand(), inheritTransformCommand()});
}

} // namespace tvxhost::mel
