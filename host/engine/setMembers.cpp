// Members of sets; see setMembers.h.
#include "setMembers.h"

#include "objectGroups.h"
#include "observers.h"

#include <algorithm>
#include <optional>

namespace tvxhost::engine {

namespace {

SelectionItem memberOf(const Plug& source)
{
    SelectionItem item;
    item.node = source.node();
    DagNode* dag = item.node->asDag();
    if (!dag)
        return item;
    const std::vector<DagPath> paths = DagPath::allTo(*dag);
    const auto instance = static_cast<std::size_t>(std::max(0, source.indices()[0]));
    item.path = instance < paths.size() && source.indexCount() > 0 ? paths[instance] : paths.front();
    return item;
}

/// What a source of a set's element stands for: a whole object, the components of a group, or nothing yet.
void addMembersOf(const Plug& source, Members& members)
{
    if (isFutureGroup(source))
        return;
    SelectionItem item = memberOf(source);
    if (!isObjectGroup(source)) {
        members.push_back(item);
        return;
    }
    const Components components = groupComponents(source);
    // What the shape cannot tell the numbers of is named as it was written.
    for (std::string& text : components.empty() ? groupTexts(source) : components.texts()) {
        item.components = std::move(text);
        members.push_back(item);
    }
}

/// Whole DAG members come by their instance's element of instObjGroups, others by their message.
Plug memberSource(const SelectionItem& member)
{
    const char* name = member.isDag() ? "instObjGroups" : "message";
    const auto plug = member.node->findPlug(name);
    if (!plug)
        return {};
    return member.isDag() ? plug.value.element(member.path.instanceNumber()) : plug.value;
}

Plug memberArray(Node& set, const SelectionItem& member)
{
    const auto plug = set.findPlug(member.isDag() ? "dagSetMembers" : "dnSetMembers");
    return plug ? plug.value : Plug();
}

/// The element of the set that a source feeds; null when none does.
Plug elementFedBy(const Plug& source, const Plug& array)
{
    for (const Plug& destination : destinationsOf(source))
        if (destination.isAtOrBelow(array))
            return destination;
    return {};
}

/// The element that has a whole object.
Plug wholeElement(Node& set, const SelectionItem& member)
{
    const Plug source = memberSource(member);
    const Plug array = memberArray(set, member);
    return source.isNull() || array.isNull() ? Plug() : elementFedBy(source, array);
}

Outcome notAMember(Node& set, const SelectionItem& member)
{
    return {Reason::notFound, "'" + member.name() + "' is not a member of '" + set.name() + "'"};
}

/// The components that an item names, those that there are; empty when there are none.
Components componentsOf(const SelectionItem& item)
{
    DagNode& shape = *item.path.node();
    const std::optional<Components> named = parseComponents(shape, item.components);
    return named ? named->common(allComponents(shape, named->kind())) : Components();
}

Outcome addWhole(Node& set, const SelectionItem& member)
{
    const Plug source = memberSource(member);
    const Plug array = memberArray(set, member);
    if (source.isNull() || array.isNull())
        return {Reason::wrongKind, "'" + member.name() + "' cannot be a member of '" + set.name() + "'"};
    if (member.isDag())
        if (Outcome dissolved = dissolveGroups(set, member.path); !dissolved)
            return dissolved;
    Scene& scene = set.scene();
    return scene.connect(source, scene.nextAvailable(array));
}

Outcome addComponents(Node& set, const SelectionItem& member)
{
    const Components components = componentsOf(member);
    if (components.empty())
        return {Reason::wrongKind, "No object matches name: " + member.name()};
    return addToGroups(set, member.path, components);
}

Outcome removeWhole(Node& set, const SelectionItem& member)
{
    if (const Plug element = wholeElement(set, member); !element.isNull())
        return set.scene().disconnect(sourceOf(element), element);
    if (!member.isDag() || groupsIn(set, member.path).empty())
        return notAMember(set, member);
    return dissolveGroups(set, member.path);
}

Outcome removeComponents(Node& set, const SelectionItem& member)
{
    const Components leaving = componentsOf(member);
    if (const Plug element = wholeElement(set, member); !element.isNull() && !leaving.empty()) {
        if (Outcome cut = set.scene().disconnect(sourceOf(element), element); !cut)
            return cut;
        const Components all = allComponents(*member.path.node(), leaving.kind());
        if (Outcome split = addToGroups(set, member.path, all); !split)
            return split;
    }
    if (membershipOf(set, member) == Membership::none)
        return notAMember(set, member);
    return removeFromGroups(set, member.path, leaving);
}

/// Tells that a set was modified, when it was.
Outcome told(Node& set, Outcome modified)
{
    if (modified)
        set.scene().observers().tell({Happening::setModified, &set});
    return modified;
}

} // namespace

bool isSet(const Node& node)
{
    return node.type().isA("objectSet");
}

Members setMembers(Node& set)
{
    Members members;
    for (const char* name : {"dagSetMembers", "dnSetMembers"}) {
        const auto array = set.findPlug(name);
        if (!array)
            continue;
        for (const int index : existingElements(array.value))
            if (const Plug source = sourceOf(array.value.element(index)); !source.isNull())
                addMembersOf(source, members);
    }
    return members;
}

Membership membershipOf(Node& set, const SelectionItem& item)
{
    if (!wholeElement(set, item).isNull())
        return Membership::wholly;
    const std::vector<Plug> groups = item.isDag() ? groupsIn(set, item.path) : std::vector<Plug>();
    if (item.components.empty())
        return groups.empty() ? Membership::none : Membership::partly;
    const Components asked = componentsOf(item);
    Components left = asked;
    for (const Plug& group : groups)
        left = left.without(groupComponents(group));
    if (left.count() == asked.count())
        return Membership::none;
    return left.empty() ? Membership::wholly : Membership::partly;
}

Outcome addSetMember(Node& set, const SelectionItem& member)
{
    if (membershipOf(set, member) == Membership::wholly)
        return {};
    return told(set, member.components.empty() ? addWhole(set, member) : addComponents(set, member));
}

Outcome removeSetMember(Node& set, const SelectionItem& member)
{
    return told(set, member.components.empty() ? removeWhole(set, member) : removeComponents(set, member));
}

} // namespace tvxhost::engine
