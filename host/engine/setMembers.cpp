// Members of sets; see setMembers.h.
#include "setMembers.h"

#include "observers.h"

#include <algorithm>

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

/// DAG members come by their instance's object group, others by their message.
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

std::vector<SelectionItem> setMembers(Node& set)
{
    std::vector<SelectionItem> members;
    for (const char* name : {"dagSetMembers", "dnSetMembers"}) {
        const auto array = set.findPlug(name);
        if (!array)
            continue;
        for (const int index : existingElements(array.value))
            if (const Plug source = sourceOf(array.value.element(index)); !source.isNull())
                members.push_back(memberOf(source));
    }
    return members;
}

Outcome addSetMember(Node& set, const SelectionItem& member)
{
    const Plug source = memberSource(member);
    const Plug array = memberArray(set, member);
    if (source.isNull() || array.isNull())
        return {Reason::wrongKind, "'" + member.name() + "' cannot be a member of '" + set.name() + "'"};
    if (!elementFedBy(source, array).isNull())
        return {};
    Scene& scene = set.scene();
    return told(set, scene.connect(source, scene.nextAvailable(array)));
}

Outcome removeSetMember(Node& set, const SelectionItem& member)
{
    const Plug source = memberSource(member);
    const Plug array = memberArray(set, member);
    const Plug element = source.isNull() || array.isNull() ? Plug() : elementFedBy(source, array);
    if (element.isNull())
        return {Reason::notFound, "'" + member.name() + "' is not a member of '" + set.name() + "'"};
    return told(set, set.scene().disconnect(source, element));
}

} // namespace tvxhost::engine
