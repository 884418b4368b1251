// MFnSet: sets of objects.
#include <maya/MDagPath.h>
#include <maya/MFnSet.h>
#include <maya/MObjectArray.h>
#include <maya/MPlug.h>
#include <maya/MSelectionList.h>

#include "engine/setMembers.h"
#include "support/functionSet.h"
#include "support/notImplemented.h"

#include <algorithm>
#include <vector>

/// What Maya's own set command is made from; there is none behind this host's sets.
class Tstring
{
};

using namespace tvxhost;
using api::failure;
using api::give;
using api::StatusText;
using engine::Node;
using engine::SelectionItem;

namespace {

using Members = std::vector<SelectionItem>;

Node* setOf(const MObject& object)
{
    Node* node = api::nodeOf(object);
    return node && engine::isSet(*node) ? node : nullptr;
}

bool contains(const Members& members, const SelectionItem& wanted)
{
    return std::find(members.begin(), members.end(), wanted) != members.end();
}

/// Members of sets among the members instead of these sets; a set that holds itself is met once.
void flattenInto(Node& set, std::vector<Node*>& met, Members& flat)
{
    if (std::find(met.begin(), met.end(), &set) != met.end())
        return;
    met.push_back(&set);
    for (const SelectionItem& member : engine::setMembers(set))
        if (engine::isSet(*member.node))
            flattenInto(*member.node, met, flat);
        else if (!contains(flat, member))
            flat.push_back(member);
}

void give(const Members& members, MSelectionList& result)
{
    engine::SelectionList list;
    for (const SelectionItem& member : members)
        list.add(member);
    tvxAccess::selection(result) = list;
}

/// The sets that are meant: the attached one and others; empty, and why, when one is none.
std::vector<Node*> setsOf(const MFnBase& set, const MObjectArray& others, MStatus& status)
{
    std::vector<Node*> sets = {api::nodeOf(set)};
    if (!sets.front()) {
        status = api::notAttached();
        return {};
    }
    for (unsigned int i = 0; i < others.length(); ++i)
        sets.push_back(setOf(others[i]));
    if (std::find(sets.begin(), sets.end(), nullptr) == sets.end())
        return sets;
    status = failure(StatusText::objectIsIncompatible);
    return {};
}

MObjectArray arrayOf(const MObject& object)
{
    MObjectArray array;
    array.append(object);
    return array;
}

MStatus unite(const MFnBase& set, const MObjectArray& others, MSelectionList& result)
{
    MStatus status;
    Members all;
    for (Node* one : setsOf(set, others, status))
        for (const SelectionItem& member : engine::setMembers(*one))
            if (!contains(all, member))
                all.push_back(member);
    if (status)
        give(all, result);
    return status;
}

MStatus intersect(const MFnBase& set, const MObjectArray& others, MSelectionList& result)
{
    MStatus status;
    const std::vector<Node*> sets = setsOf(set, others, status);
    if (!status)
        return status;
    Members common = engine::setMembers(*sets.front());
    for (std::size_t i = 1; i < sets.size(); ++i) {
        const Members members = engine::setMembers(*sets[i]);
        common.erase(std::remove_if(common.begin(), common.end(),
                                    [&](const SelectionItem& member) { return !contains(members, member); }),
                     common.end());
    }
    give(common, result);
    return status;
}

/// A member that may be, or why there is none.
struct Found
{
    MStatus status;
    SelectionItem item;
};

/// The member that an object stands for: a DAG node by its first path.
Found itemOf(const MObject& object)
{
    Found found;
    Node* node = api::nodeOf(object);
    if (!node)
        found.status = failure(object.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
    found.item.node = node;
    if (engine::DagNode* dag = node ? node->asDag() : nullptr)
        found.item.path = engine::DagPath::firstTo(*dag);
    return found;
}

Found itemOf(const MDagPath& path, const MObject& component, const char* name)
{
    if (!component.isNull())
        return {api::notImplemented(name), {}};
    const engine::DagPath* own = tvxAccess::dagPath(path);
    if (!own || !own->isValid())
        return {failure(MS::kInvalidParameter, StatusText::objectDoesNotExist), {}};
    Found found;
    found.item.node = own->node();
    found.item.path = *own;
    return found;
}

using MemberChange = engine::Outcome (*)(Node&, const SelectionItem&);

MStatus change(const MFnBase& set, const Found& found, MemberChange by)
{
    Node* node = api::nodeOf(set);
    if (!node)
        return api::notAttached();
    return found.status ? api::toStatus(by(*node, found.item)) : found.status;
}

MStatus changeAll(const MFnBase& set, const MSelectionList& list, const char* name, MemberChange by)
{
    for (const SelectionItem& item : tvxAccess::selection(list).items()) {
        const bool isWhole = item.plug.isNull() && item.components.empty();
        const MStatus changed = change(set, {isWhole ? MStatus() : api::notImplemented(name), item}, by);
        if (!changed)
            return changed;
    }
    return api::nodeOf(set) ? MStatus() : api::notAttached();
}

bool isMemberOf(const MFnBase& set, const Found& found, MStatus* returnStatus)
{
    Node* node = api::nodeOf(set);
    if (!api::requireAttached(node, returnStatus))
        return false;
    give(returnStatus, found.status);
    return found.status && contains(engine::setMembers(*node), found.item);
}

/// In the order of the enumerators behind kNone.
constexpr const char* kRestrictions[] = {"verticesOnlySet", "edgesOnlySet", "facetsOnlySet",
                                         "editPointsOnlySet", "renderableOnlySet"};

engine::Outcome fill(Node& set, const MSelectionList& members, MFnSet::Restriction restriction, bool isLayer)
{
    for (const SelectionItem& item : tvxAccess::selection(members).items())
        if (engine::Outcome added = engine::addSetMember(set, item); !added)
            return added;
    if (restriction != MFnSet::kNone)
        if (engine::Outcome written = engine::writeNumber(
                set.findPlug(kRestrictions[restriction - MFnSet::kVerticesOnly]).value, 1);
            !written)
            return written;
    return isLayer ? engine::writeNumber(set.findPlug("isLayer").value, 1) : engine::Outcome();
}

MObject make(MFnSet& set, const MSelectionList& members, MFnSet::Restriction restriction, bool isLayer,
             MStatus* returnStatus)
{
    TVX_API_CALL_OR("MFnSet::create", returnStatus, MObject());
    if (restriction < MFnSet::kNone || restriction > MFnSet::kRenderableOnly) {
        give(returnStatus, failure(MS::kInvalidParameter, StatusText::unexpectedFailure));
        return MObject();
    }
    engine::Scene& scene = engine::Scene::current();
    const auto made = scene.createNode("objectSet", "set1");
    engine::Outcome outcome = made ? fill(*made.value, members, restriction, isLayer) : made.outcome;
    give(returnStatus, api::toStatus(outcome));
    if (made && !outcome)
        static_cast<void>(scene.deleteNode(*made.value));
    if (!outcome)
        return MObject();
    const MObject handle = tvxAccess::handle(made.value);
    static_cast<void>(api::attachTo(set, handle));
    return handle;
}

} // namespace

TVX_FUNCTION_SET(MFnSet, MFn::kSet)

MObject MFnSet::create(const MSelectionList& members, Restriction restriction, MStatus* ReturnStatus)
{
    return make(*this, members, restriction, false, ReturnStatus);
}

MObject MFnSet::create(const MSelectionList& members, Restriction restriction, bool isLayer,
                       MStatus* ReturnStatus)
{
    return make(*this, members, restriction, isLayer, ReturnStatus);
}

MStatus MFnSet::getUnion(const MObject& withSet, MSelectionList& result)
{
    TVX_API_CALL("MFnSet::getUnion");
    return unite(*this, arrayOf(withSet), result);
}

MStatus MFnSet::getUnion(const MObjectArray& setList, MSelectionList& result)
{
    TVX_API_CALL("MFnSet::getUnion");
    return unite(*this, setList, result);
}

MStatus MFnSet::getIntersection(const MObject& withSet, MSelectionList& result)
{
    TVX_API_CALL("MFnSet::getIntersection");
    return intersect(*this, arrayOf(withSet), result);
}

MStatus MFnSet::getIntersection(const MObjectArray& setList, MSelectionList& result)
{
    TVX_API_CALL("MFnSet::getIntersection");
    return intersect(*this, setList, result);
}

MStatus MFnSet::clear()
{
    TVX_API_CALL("MFnSet::clear");
    Node* node = api::nodeOf(*this);
    if (!node)
        return api::notAttached();
    for (const SelectionItem& member : engine::setMembers(*node))
        if (const engine::Outcome removed = engine::removeSetMember(*node, member); !removed)
            return api::toStatus(removed);
    return MS::kSuccess;
}

MStatus MFnSet::getMembers(MSelectionList& members, bool flatten) const
{
    TVX_API_CALL("MFnSet::getMembers");
    Node* node = api::nodeOf(*this);
    if (!node)
        return api::notAttached();
    Members found;
    std::vector<Node*> met;
    if (flatten)
        flattenInto(*node, met, found);
    else
        found = engine::setMembers(*node);
    give(found, members);
    return MS::kSuccess;
}

MStatus MFnSet::addMember(const MObject& obj)
{
    TVX_API_CALL("MFnSet::addMember");
    return change(*this, itemOf(obj), engine::addSetMember);
}

MStatus MFnSet::addMember(const MDagPath& obj, const MObject& component)
{
    TVX_API_CALL("MFnSet::addMember");
    return change(*this, itemOf(obj, component, "MFnSet::addMember"), engine::addSetMember);
}

MStatus MFnSet::addMember(const MPlug&)
{
    TVX_API_CALL("MFnSet::addMember");
    return api::notImplemented("MFnSet::addMember");
}

MStatus MFnSet::addMembers(const MSelectionList& list)
{
    TVX_API_CALL("MFnSet::addMembers");
    return changeAll(*this, list, "MFnSet::addMembers", engine::addSetMember);
}

MStatus MFnSet::removeMember(const MObject& obj)
{
    TVX_API_CALL("MFnSet::removeMember");
    return change(*this, itemOf(obj), engine::removeSetMember);
}

MStatus MFnSet::removeMember(const MDagPath& obj, const MObject& component)
{
    TVX_API_CALL("MFnSet::removeMember");
    return change(*this, itemOf(obj, component, "MFnSet::removeMember"), engine::removeSetMember);
}

MStatus MFnSet::removeMember(const MPlug&)
{
    TVX_API_CALL("MFnSet::removeMember");
    return api::notImplemented("MFnSet::removeMember");
}

MStatus MFnSet::removeMembers(const MSelectionList& list)
{
    TVX_API_CALL("MFnSet::removeMembers");
    return changeAll(*this, list, "MFnSet::removeMembers", engine::removeSetMember);
}

bool MFnSet::isMember(const MObject& object, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnSet::isMember", ReturnStatus, false);
    return isMemberOf(*this, itemOf(object), ReturnStatus);
}

bool MFnSet::isMember(const MDagPath& object, const MObject& component, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnSet::isMember", ReturnStatus, false);
    return isMemberOf(*this, itemOf(object, component, "MFnSet::isMember"), ReturnStatus);
}

bool MFnSet::isMember(const MPlug&, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnSet::isMember", ReturnStatus, false);
    api::notImplemented("MFnSet::isMember", ReturnStatus);
    return false;
}

bool MFnSet::intersectsWith(const MObject& otherSet, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnSet::intersectsWith", ReturnStatus, false);
    MSelectionList common;
    give(ReturnStatus, intersect(*this, arrayOf(otherSet), common));
    return !common.isEmpty();
}

bool MFnSet::hasRestrictions(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnSet::hasRestrictions", ReturnStatus, false);
    return restriction(ReturnStatus) != kNone;
}

MFnSet::Restriction MFnSet::restriction(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnSet::restriction", ReturnStatus, kNone);
    Node* node = api::nodeOf(*this);
    if (!api::requireAttached(node, ReturnStatus))
        return kNone;
    int found = kVerticesOnly;
    for (const char* name : kRestrictions) {
        if (engine::readNumber(node->findPlug(name).value).value.asWhole() != 0)
            return static_cast<Restriction>(found);
        ++found;
    }
    return kNone;
}

MString MFnSet::annotation(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnSet::annotation", ReturnStatus, MString());
    Node* node = api::nodeOf(*this);
    if (!api::requireAttached(node, ReturnStatus))
        return MString();
    return tvxAccess::string(engine::readString(node->findPlug("annotation").value).value);
}

MStatus MFnSet::setAnnotation(const MString& annotation)
{
    TVX_API_CALL("MFnSet::setAnnotation");
    Node* node = api::nodeOf(*this);
    if (!node)
        return api::notAttached();
    return api::toStatus(
        engine::writeString(node->findPlug("annotation").value, tvxAccess::text(annotation)));
}

Tstring MFnSet::setCommandString()
{
    static_cast<void>(api::notImplemented("MFnSet::setCommandString"));
    return {};
}

TsetCmd* MFnSet::setCommand()
{
    static_cast<void>(api::notImplemented("MFnSet::setCommand"));
    return nullptr;
}
