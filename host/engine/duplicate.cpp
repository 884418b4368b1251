// Duplicates of nodes: see duplicate.h.
#include "duplicate.h"

#include "cell.h"
#include "mesh.h"
#include "objectGroups.h"
#include "scene.h"
#include "setMembers.h"
#include "values.h"

namespace tvxhost::engine {

namespace {

/// Gives the copy of a plug, and all below it, data of its own and the states of the original.
void finishCopy(const Plug& source, const Plug& plug)
{
    setState(plug, stateOf(source));
    if (plug.isArray()) {
        for (const int index : existingElements(plug))
            finishCopy(source.element(index), plug.element(index));
        return;
    }
    for (std::size_t i = 0; i < plug.childCount(); ++i)
        finishCopy(source.child(i), plug.child(i));
    const bool holdsData = !plug.isCompound() && plug.attribute()->kind != AttributeKind::message &&
                           !plug.node()->cells().valueOf(plug).isDefault();
    if (const Ref<Data> data = holdsData ? storedData(plug) : Ref<Data>())
        keepData(plug, data->clone());
}

void copyAttributes(Node& from, Node& to)
{
    for (Attribute* attribute : from.attributes()) {
        const Attribute* twin = to.findAttribute(attribute->longName);
        const bool isKept = attribute->flags.storable && attribute->flags.writable;
        // Without a cell it has its default and no state.
        if (!twin || !isKept || attribute->longName == "instObjGroups" || !from.cells().find(*attribute))
            continue;
        const Plug source(from, *attribute);
        const Plug copy(to, const_cast<Attribute&>(*twin));
        static_cast<void>(evaluate(source));
        copyValue(source, copy);
        finishCopy(source, copy);
        spreadDirty(copy);
    }
}

bool isForDeformer(Node& set)
{
    const Expected<Plug> users = set.findPlug("usedBy");
    return users && isFedAnywhere(users.value);
}

/// Puts the components of a copy into the sets that have those of the original; not where they are deformed.
Outcome joinSetsInParts(const Plug& group, DagNode& copy)
{
    for (const Plug& member : destinationsOf(group)) {
        Node& set = *member.node();
        if (!isSet(set) || isForDeformer(set))
            continue;
        if (Outcome joined = addToGroups(set, DagPath::firstTo(copy), groupComponents(group)); !joined)
            return joined;
    }
    return {};
}

Outcome joinSets(DagNode& original, DagNode& copy)
{
    const Expected<Plug> from = original.findPlug("instObjGroups[0]");
    const Expected<Plug> to = copy.findPlug("instObjGroups[0]");
    if (!from || !to)
        return {};
    for (const Plug& member : destinationsOf(from.value)) {
        if (!member.isElement() || !isSet(*member.node()))
            continue;
        Scene& scene = copy.scene();
        if (Outcome joined = scene.connect(to.value, scene.nextAvailable(member.array())); !joined)
            return joined;
    }
    const Plug groups = from.value.child(0);
    for (const int i : existingElements(groups))
        if (Outcome joined = joinSetsInParts(groups.element(i), copy); !joined)
            return joined;
    return {};
}

/// A new node with the attributes and values of another one.
Expected<Node*> copyOne(Node& original, DagNode* above, const std::string& name,
                        const DuplicateOptions& options)
{
    const Expected<Node*> made = original.scene().createNode(original.type(), name, above);
    if (!made)
        return made;
    for (const Ref<Attribute>& attribute : original.dynamicAttributes())
        if (Outcome added = made.value->addDynamicAttribute(copyOf(*attribute)); !added)
            return added;
    copyAttributes(original, *made.value);
    if (options.onCopy)
        options.onCopy(original, *made.value);
    return made;
}

Expected<DagNode*> copyNode(DagNode& original, DagNode& parent, const std::string& name,
                            const DuplicateOptions& options)
{
    const Expected<Node*> made = copyOne(original, parent.isWorld() ? nullptr : &parent, name, options);
    if (!made)
        return made.outcome;
    DagNode& copy = *made.value->asDag();
    copyHeldMesh(original, copy);
    if (Outcome joined = joinSets(original, copy); !joined)
        return joined;
    return &copy;
}

Outcome copyBelow(DagNode& original, DagNode& copy, const DuplicateOptions& options, bool isRoot)
{
    for (DagNode* child : Node::Links(original.children())) {
        if (child->isIntermediate())
            continue;
        if (child->isShape() && options.sharesLeaves) {
            if (Outcome shared = original.scene().addParent(*child, copy); !shared)
                return shared;
            continue;
        }
        // The shapes of the copy itself are named anew, what stands deeper keeps its name.
        const bool isNamedAnew = isRoot && child->isShape();
        const auto made = copyNode(
            *child, copy, isNamedAnew ? original.scene().uniqueName(child->name()) : child->name(), options);
        if (!made)
            return made.outcome;
        if (Outcome below = copyBelow(*child, *made.value, options, false); !below)
            return below;
    }
    return {};
}

} // namespace

Ref<Attribute> copyOf(const Attribute& attribute)
{
    Ref<Attribute> copy(new Attribute(attribute.kind, attribute.longName, attribute.shortName));
    copy->otherShortName = attribute.otherShortName;
    copy->niceName = attribute.niceName;
    copy->categories = attribute.categories;
    copy->flags = attribute.flags;
    copy->number = attribute.number;
    copy->unit = attribute.unit;
    copy->dataType = attribute.dataType;
    copy->pluginDataType = attribute.pluginDataType;
    copy->singleMatrix = attribute.singleMatrix;
    copy->acceptedData = attribute.acceptedData;
    copy->acceptedPluginData = attribute.acceptedPluginData;
    copy->fields = attribute.fields;
    copy->defaultNumber = attribute.defaultNumber;
    copy->defaultData = attribute.defaultData;
    copy->minimum = attribute.minimum;
    copy->maximum = attribute.maximum;
    copy->softMinimum = attribute.softMinimum;
    copy->softMaximum = attribute.softMaximum;
    copy->disconnectBehaviour = attribute.disconnectBehaviour;
    for (const Ref<Attribute>& child : attribute.children)
        copy->addChild(copyOf(*child));
    return copy;
}

Expected<DagNode*> duplicate(DagNode& original, DagNode& parent, const DuplicateOptions& options)
{
    if (original.isWorld())
        return {Reason::wrongKind, "the world cannot be duplicated"};
    const std::string name =
        options.name.empty() ? original.scene().uniqueName(original.name()) : options.name;
    const auto copy = copyNode(original, parent, name, options);
    if (!copy || options.onlyParent)
        return copy;
    const Outcome below = copyBelow(original, *copy.value, options, true);
    return below ? copy : Expected<DagNode*>(below);
}

Expected<Node*> duplicateNode(Node& original, const DuplicateOptions& options)
{
    if (original.asDag())
        return {Reason::wrongKind, "'" + original.name() + "' is a DAG node"};
    const std::string name =
        options.name.empty() ? original.scene().uniqueName(original.name()) : options.name;
    return copyOne(original, nullptr, name, options);
}

} // namespace tvxhost::engine
