// Object groups: see objectGroups.h.
#include "objectGroups.h"

#include "computeSupport.h"
#include "data.h"
#include "scene.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

// The children of a group, in the order of its attributes.
constexpr std::size_t kList = 0;
constexpr std::size_t kId = 1;
constexpr std::size_t kColor = 2;

Plug groupArray(const DagPath& path, const char* instances)
{
    const auto plug = path.node()->findPlug(instances);
    return plug ? plug.value.element(path.instanceNumber()).child(0) : Plug();
}

Plug groupArray(const DagPath& path)
{
    return groupArray(path, "instObjGroups");
}

bool isElementOf(const Plug& plug, std::string_view array)
{
    return plug.isElement() && plug.attribute()->longName == array;
}

/// Through which attribute the geometry of a shape comes.
struct InputRow
{
    const char* type;
    const char* attribute;
};

constexpr InputRow kInputs[] = {{"mesh", "inMesh"}, {"nurbsCurve", "create"}};

/// The plug that history feeds; a null plug for a shape without history.
Plug fedInput(DagNode& shape)
{
    for (const InputRow& row : kInputs)
        if (shape.type().isA(row.type))
            if (const Plug input = plugOf(shape, row.attribute); !sourceOf(input).isNull())
                return input;
    return {};
}

/// The groupId node of a group; null when it has none.
Node* idOf(const Plug& group)
{
    const Plug source = sourceOf(group.child(kId));
    return source.isNull() ? nullptr : source.node();
}

/// The node in history that says which components have a group's identity; null when there is none.
Node* partsOf(const Plug& group)
{
    Node* id = idOf(group);
    const Plug number = id ? plugOf(*id, "groupId") : Plug();
    if (number.isNull())
        return nullptr;
    for (const Plug& user : destinationsOf(number))
        if (user.node()->type().isA("groupParts"))
            return user.node();
    return nullptr;
}

/// Where the components of a group are written.
Plug listOf(const Plug& group)
{
    Node* parts = partsOf(group);
    return parts ? plugOf(*parts, "inputComponents") : group.child(kList);
}

std::vector<std::string> textsIn(const Plug& list)
{
    const Ref<Data> data = readData(list).value;
    std::vector<std::string> texts;
    if (data && data->type() == DataType::componentList)
        for (const Text& text : static_cast<const ComponentListData&>(*data).values)
            texts.push_back(text.str());
    return texts;
}

Components componentsIn(DagNode& shape, const Plug& list)
{
    Components all;
    for (const std::string& text : textsIn(list)) {
        const std::optional<Components> some = parseComponents(shape, text);
        if (some && (all.kind().empty() || all.kind() == some->kind()))
            all = all.kind().empty() ? *some : all.joined(*some);
    }
    return all;
}

Outcome writeComponents(const Plug& list, const Components& components)
{
    ComponentListData data;
    for (const std::string& text : components.texts())
        data.values.emplace_back(text);
    return writeData(list, data);
}

/// The first failure of several steps, or success.
template <class... Steps>
Outcome inTurn(const Steps&... steps)
{
    Outcome outcome;
    ((outcome = steps(), static_cast<bool>(outcome)) && ...);
    return outcome;
}

/// A node that nobody needs to see.
Expected<Node*> makeHelper(Scene& scene, const char* type)
{
    Expected<Node*> made = scene.createNode(type);
    if (made)
        if (Outcome written = writeNumber(plugOf(*made.value, "isHistoricallyInteresting"), 0); !written)
            return written;
    return made;
}

/// Gives a group an identity that the set knows, and makes it a member.
Expected<Node*> joinSet(Node& set, const Plug& group)
{
    Scene& scene = set.scene();
    Expected<Node*> id = makeHelper(scene, "groupId");
    if (!id)
        return id;
    const Outcome joined =
        inTurn([&] { return scene.connect(plugOf(*id.value, "groupId"), group.child(kId)); },
               [&] { return scene.connect(group, scene.nextAvailable(plugOf(set, "dagSetMembers"))); },
               [&] {
                   return scene.connect(plugOf(*id.value, "message"),
                                        scene.nextAvailable(plugOf(set, "groupNodes")));
               });
    return joined ? id : Expected<Node*>(joined);
}

/// Has history mark components: a groupParts node right before the shape.
Outcome markInHistory(const Plug& input, Node& id, const Components& components)
{
    Scene& scene = id.scene();
    const Expected<Node*> parts = makeHelper(scene, "groupParts");
    if (!parts)
        return parts.outcome;
    const Plug source = sourceOf(input);
    const auto at = [&](const char* attribute) { return plugOf(*parts.value, attribute); };
    return inTurn([&] { return writeComponents(at("inputComponents"), components); },
                  [&] { return scene.connect(plugOf(id, "groupId"), at("groupId")); },
                  [&] { return scene.disconnect(source, input); },
                  [&] { return scene.connect(source, at("inputGeometry")); },
                  [&] { return scene.connect(at("outputGeometry"), input); });
}

/// Leads the geometry around a node of history, and deletes it.
Outcome takeFromHistory(Node& parts)
{
    Scene& scene = parts.scene();
    const Plug source = sourceOf(plugOf(parts, "inputGeometry"));
    for (const Plug& user : destinationsOf(plugOf(parts, "outputGeometry"))) {
        if (Outcome cut = scene.disconnect(plugOf(parts, "outputGeometry"), user); !cut)
            return cut;
        if (source.isNull())
            continue;
        if (Outcome led = scene.connect(source, user); !led)
            return led;
    }
    return scene.deleteNode(parts);
}

/// Undoes what joinSet did.
Outcome leaveSet(const Plug& group)
{
    Scene& scene = group.node()->scene();
    for (const Plug& member : destinationsOf(group))
        if (Outcome cut = scene.disconnect(group, member); !cut)
            return cut;
    Node* id = idOf(group);
    if (!id)
        return {};
    const Plug number = plugOf(*id, "groupId");
    if (Outcome cut = scene.disconnect(number, group.child(kId)); !cut)
        return cut;
    // What deformers still ask for stays.
    return destinationsOf(number).empty() ? scene.deleteNode(*id) : Outcome();
}

Plug newElement(const Plug& array)
{
    const std::vector<int> existing = existingElements(array);
    return array.element(existing.empty() ? 0 : existing.back() + 1);
}

bool isShadingGroup(const Node& set)
{
    return set.type().isA("shadingEngine");
}

/// Faces that history is yet to make are shaded by the group that shades whatever nobody said otherwise of.
Outcome keepFutureGroup(Node& set, const DagPath& path)
{
    const Plug array = groupArray(path, "compInstObjGroups");
    const auto shading = set.scene().findNode(":initialShadingGroup");
    if (!isShadingGroup(set) || array.isNull() || !shading || !existingElements(array).empty())
        return {};
    return joinSet(*shading.value, array.element(0)).outcome;
}

Outcome dropFutureGroup(const DagPath& path)
{
    const Plug array = groupArray(path, "compInstObjGroups");
    if (array.isNull())
        return {};
    for (const int i : existingElements(array)) {
        const Outcome dropped =
            inTurn([&] { return leaveSet(array.element(i)); }, [&] { return removeElement(array, i); });
        if (!dropped)
            return dropped;
    }
    return {};
}

/// Whether a shading group has some components of a path's end.
bool isShadedInParts(const DagPath& path)
{
    const auto isShading = [](const Plug& group) {
        const std::vector<Plug> members = destinationsOf(group);
        return std::any_of(members.begin(), members.end(),
                           [](const Plug& member) { return isShadingGroup(*member.node()); });
    };
    const Plug array = groupArray(path);
    const std::vector<int> groups = existingElements(array);
    return std::any_of(groups.begin(), groups.end(), [&](int i) { return isShading(array.element(i)); });
}

Outcome dissolve(const DagPath& path, const Plug& group)
{
    const Plug color = sourceOf(group.child(kColor));
    Node* parts = partsOf(group);
    return inTurn(
        [&] { return parts ? takeFromHistory(*parts) : Outcome(); },
        [&] {
            return color.isNull() ? Outcome() : group.node()->scene().disconnect(color, group.child(kColor));
        },
        [&] { return leaveSet(group); }, [&] { return removeElement(group.array(), group.logicalIndex()); },
        [&] { return isShadedInParts(path) ? Outcome() : dropFutureGroup(path); });
}

Outcome makeGroup(Node& set, const DagPath& path, const Components& components)
{
    Scene& scene = set.scene();
    const Plug group = newElement(groupArray(path));
    const Expected<Node*> id = joinSet(set, group);
    if (!id)
        return id.outcome;
    const Plug input = fedInput(*path.node());
    return inTurn([&] { return scene.connect(plugOf(set, "memberWireframeColor"), group.child(kColor)); },
                  [&] {
                      return input.isNull() ? writeComponents(group.child(kList), components)
                                            : markInHistory(input, *id.value, components);
                  },
                  [&] { return input.isNull() ? Outcome() : keepFutureGroup(set, path); });
}

Outcome shrink(const DagPath& path, const Plug& group, const Components& leaving)
{
    const Components before = groupComponents(group);
    const Components left = before.without(leaving);
    if (left.empty())
        return dissolve(path, group);
    Node* parts = partsOf(group);
    if (parts) {
        const Plug removed = plugOf(*parts, "inputRemoveComponent");
        const Components gone = before.common(leaving).joined(componentsIn(*path.node(), removed));
        if (Outcome written = writeComponents(removed, gone); !written)
            return written;
    }
    return writeComponents(listOf(group), left);
}

} // namespace

bool isObjectGroup(const Plug& plug)
{
    return isElementOf(plug, "objectGroups");
}

bool isFutureGroup(const Plug& plug)
{
    return isElementOf(plug, "compObjectGroups");
}

std::vector<std::string> groupTexts(const Plug& group)
{
    return textsIn(listOf(group));
}

Components groupComponents(const Plug& group)
{
    DagNode* shape = group.node()->asDag();
    return shape ? componentsIn(*shape, listOf(group)) : Components();
}

std::vector<Plug> groupsIn(Node& set, const DagPath& path)
{
    std::vector<Plug> found;
    const Plug array = groupArray(path);
    if (array.isNull())
        return found;
    for (const int i : existingElements(array)) {
        const Plug group = array.element(i);
        const std::vector<Plug> members = destinationsOf(group);
        if (std::any_of(members.begin(), members.end(),
                        [&](const Plug& member) { return member.node() == &set; }))
            found.push_back(group);
    }
    return found;
}

Outcome addToGroups(Node& set, const DagPath& path, const Components& components)
{
    Components added = components;
    const std::vector<Plug> groups = groupsIn(set, path);
    for (const Plug& group : groups)
        added = added.without(groupComponents(group));
    if (added.empty())
        return {};
    // In history each step says what it adds; what a group keeps itself grows.
    for (const Plug& group : groups)
        if (const Components before = groupComponents(group);
            before.kind() == added.kind() && !partsOf(group))
            return writeComponents(listOf(group), before.joined(added));
    return makeGroup(set, path, added);
}

Outcome removeFromGroups(Node& set, const DagPath& path, const Components& components)
{
    for (const Plug& group : groupsIn(set, path))
        if (!groupComponents(group).common(components).empty())
            if (Outcome shrunk = shrink(path, group, components); !shrunk)
                return shrunk;
    return {};
}

Outcome dissolveGroups(Node& set, const DagPath& path)
{
    for (const Plug& group : groupsIn(set, path))
        if (Outcome dissolved = dissolve(path, group); !dissolved)
            return dissolved;
    return {};
}

Outcome settleGroups(DagNode& shape)
{
    for (const DagPath& path : DagPath::allTo(shape)) {
        const Plug array = groupArray(path);
        if (array.isNull())
            return {};
        for (const int i : existingElements(array)) {
            const Plug group = array.element(i);
            if (!partsOf(group))
                continue;
            if (Outcome kept = writeComponents(group.child(kList), groupComponents(group)); !kept)
                return kept;
        }
        if (Outcome dropped = dropFutureGroup(path); !dropped)
            return dropped;
    }
    return {};
}

} // namespace tvxhost::engine
