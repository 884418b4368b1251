// MFnDagNode: nodes in the DAG, their parents, children and paths. How they are shown is in
// MFnDagNodeDisplay.cpp.
#include <maya/MBoundingBox.h>
#include <maya/MDagPath.h>
#include <maya/MDagPathArray.h>
#include <maya/MFnDagNode.h>
#include <maya/MMatrix.h>
#include <maya/MObjectArray.h>
#include <maya/MPoint.h>
#include <maya/MStringArray.h>
#include <maya/MTypeId.h>

#include "support/dagSet.h"
#include "support/matrix4.h"
#include "support/nodeSet.h"
#include "support/notImplemented.h"
#include "support/plugCall.h"
#include "support/pxBehaviour.h"

#include "engine/duplicate.h"
#include "engine/instancing.h"

#include <algorithm>

using namespace tvxhost::api;
using tvxhost::engine::DagNode;
using tvxhost::engine::DagPath;
using tvxhost::engine::NodeType;
using tvxhost::engine::Plug;
using tvxhost::engine::Scene;

namespace {

void forgetPathOf(MFnDagNode& set)
{
    if (tvxAccess::dagPath(tvxAccess::pathOf(set)))
        tvxAccess::pathOf(set) = MDagPath();
}

} // namespace

namespace tvxhost::api {

MStatus attachTo(MFnDagNode& set, const MObject& object)
{
    forgetPathOf(set);
    return attachTo(static_cast<MFnBase&>(set), object);
}

MStatus attachTo(MFnDagNode& set, const MDagPath& path)
{
    forgetPathOf(set);
    const engine::DagPath* target = tvxAccess::dagPath(path);
    if (!target || !target->isValid()) {
        tvxAccess::attach(set, nullptr);
        return failure(MS::kInvalidParameter, StatusText::objectDoesNotExist);
    }
    engine::DagPath found = *target;
    MStatus status = attachTo(static_cast<MFnBase&>(set), tvxAccess::handle(found.node()));
    engine::DagNode* shape = status ? nullptr : found.shapeBelow();
    if (shape && found.push(*shape))
        status = attachTo(static_cast<MFnBase&>(set), tvxAccess::handle(shape));
    if (status)
        tvxAccess::pathOf(set) = tvxAccess::dagPath(found);
    return status;
}

const engine::DagPath* ownPathOf(const MFnDagNode& set)
{
    const engine::DagPath* path = tvxAccess::dagPath(tvxAccess::pathOf(set));
    return path && path->isValid() ? path : nullptr;
}

engine::DagPath pathOf(const MFnDagNode& set, engine::DagNode& node)
{
    const engine::DagPath* own = ownPathOf(set);
    return own ? *own : engine::DagPath::firstTo(node);
}

} // namespace tvxhost::api

namespace {

MObject create(MFnDagNode& set, NodeType* type, const std::string& name, const MObject& parent,
               MStatus* returnStatus)
{
    TVX_API_CALL_OR("MFnDagNode::create", returnStatus, MObject());
    DagNode* above = dagNodeOf(parent);
    if (!type || !type->isDag || (!above && !parent.isNull())) {
        give(returnStatus,
             failure(type && type->isDag ? StatusText::objectIsIncompatible : StatusText::itemNotFound));
        return MObject();
    }
    const auto made = createNode(type, name, above);
    give(returnStatus, toStatus(made.outcome));
    if (!made)
        return MObject();
    forgetPathOf(set);
    tvxAccess::attach(set, made.value);
    return tvxAccess::handle(made.value);
}

template <class Query>
bool ask(const MFnDagNode& set, const char* name, MStatus* returnStatus, Query query)
{
    TVX_API_CALL_OR(name, returnStatus, false);
    DagNode* node = dagNodeOf(set);
    return requireAttached(node, returnStatus) && query(*node);
}

/// The same about another node, which must be in the DAG.
template <class Query>
bool askAbout(const MFnDagNode& set, const char* name, const MObject& other, MStatus* returnStatus,
              Query query)
{
    TVX_API_CALL_OR(name, returnStatus, false);
    const DagNode* node = dagNodeOf(set);
    if (!requireAttached(node, returnStatus))
        return false;
    const DagNode* otherNode = dagNodeOf(other);
    if (!otherNode)
        give(returnStatus,
             failure(other.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible));
    return otherNode && query(*node, *otherNode);
}

bool isDirectlyBelow(const DagNode& node, const DagNode& parent)
{
    const auto& parents = node.parents();
    return std::find(parents.begin(), parents.end(), &parent) != parents.end();
}

bool isBelow(const DagNode& node, const DagNode& ancestor)
{
    return std::any_of(node.parents().begin(), node.parents().end(), [&](const DagNode* parent) {
        return parent == &ancestor || isBelow(*parent, ancestor);
    });
}

/// A parent or child; null: there is none of that index.
MObject neighbour(const DagNode* node, MStatus* returnStatus)
{
    give(returnStatus, node ? MStatus() : failure(StatusText::noElementAtIndex));
    return tvxAccess::handle(node);
}

MString pathName(const MFnDagNode& set, const char* name, std::string (DagPath::*spell)() const,
                 MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, MString());
    DagNode* node = dagNodeOf(set);
    return requireAttached(node, returnStatus) ? tvxAccess::string((pathOf(set, *node).*spell)()) : MString();
}

/// The world, as the root of whatever the set is attached to.
MObject root(const MFnDagNode& set, const char* name, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, MObject());
    const DagNode* node = dagNodeOf(set);
    return requireAttached(node, returnStatus) ? tvxAccess::handle(&node->scene().world()) : MObject();
}

MStatus takeAway(DagNode& parent, DagNode& child)
{
    Scene& scene = parent.scene();
    return toStatus(child.parents().size() > 1 ? scene.removeParent(child, parent)
                                               : scene.reparent(child, &parent, nullptr));
}

/// A corner of the node's bounding box.
MPoint corner(DagNode& node, const char* attribute)
{
    const auto plug = node.findPlug(attribute);
    const auto numbers =
        plug ? tvxhost::engine::readNumbers(plug.value) : tvxhost::engine::Expected<std::vector<double>>();
    return numbers.value.size() == 3 ? MPoint(numbers.value[0], numbers.value[1], numbers.value[2])
                                     : MPoint();
}

/// Takes a node away from all other parents.
tvxhost::engine::Outcome moveBelow(DagNode& child, DagNode& parent)
{
    Scene& scene = parent.scene();
    if (child.parents().empty())
        return scene.addParent(child, parent);
    while (child.parents().size() > 1)
        if (auto removed = scene.removeParent(child, *child.parents().back()); !removed)
            return removed;
    return scene.reparent(child, child.parents().front(), &parent);
}

} // namespace

MFnDagNode::MFnDagNode() : reservedWords() {}

MFnDagNode::MFnDagNode(MObject& object, MStatus* ret) : reservedWords()
{
    TVX_CONSTRUCT_ON(MFnDagNode, object, ret);
}

MFnDagNode::MFnDagNode(const MObject& object, MStatus* ret) : reservedWords()
{
    TVX_CONSTRUCT_ON(MFnDagNode, object, ret);
}

MFnDagNode::MFnDagNode(const MDagPath& object, MStatus* ret) : reservedWords()
{
    TVX_CONSTRUCT_ON(MFnDagNode, object, ret);
}

TVX_FUNCTION_SET_IDENTITY(MFnDagNode, MFn::kDagNode)

MStatus MFnDagNode::setObject(const MDagPath& object)
{
    TVX_API_CALL("MFnDagNode::setObject");
    return attachTo(*this, object);
}

MStatus MFnDagNode::setObject(MObject& object)
{
    TVX_API_CALL("MFnDagNode::setObject");
    return attachTo(*this, object);
}

MStatus MFnDagNode::setObject(const MObject& object)
{
    TVX_API_CALL("MFnDagNode::setObject");
    return attachTo(*this, object);
}

MObject MFnDagNode::create(const MTypeId& typeId, MObject& parent, MStatus* ReturnStatus)
{
    return ::create(*this, typeOf(typeId), {}, parent, ReturnStatus);
}

MObject MFnDagNode::create(const MTypeId& typeId, const MString& name, MObject& parent, MStatus* ReturnStatus)
{
    return ::create(*this, typeOf(typeId), tvxAccess::text(name), parent, ReturnStatus);
}

MObject MFnDagNode::create(const MString& type, MObject& parent, MStatus* ReturnStatus)
{
    return ::create(*this, typeOf(type), {}, parent, ReturnStatus);
}

MObject MFnDagNode::create(const MString& type, const MString& name, MObject& parent, MStatus* ReturnStatus)
{
    return ::create(*this, typeOf(type), tvxAccess::text(name), parent, ReturnStatus);
}

// Parents and children

unsigned int MFnDagNode::parentCount(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDagNode::parentCount", ReturnStatus, 0);
    const DagNode* node = dagNodeOf(*this);
    return requireAttached(node, ReturnStatus) ? static_cast<unsigned int>(node->parents().size()) : 0;
}

MObject MFnDagNode::parent(unsigned int i, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDagNode::parent", ReturnStatus, MObject());
    const DagNode* node = dagNodeOf(*this);
    if (!requireAttached(node, ReturnStatus))
        return MObject();
    return neighbour(i < node->parents().size() ? node->parents()[i] : nullptr, ReturnStatus);
}

unsigned int MFnDagNode::childCount(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDagNode::childCount", ReturnStatus, 0);
    const DagNode* node = dagNodeOf(*this);
    return requireAttached(node, ReturnStatus) ? static_cast<unsigned int>(node->children().size()) : 0;
}

MObject MFnDagNode::child(unsigned int i, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDagNode::child", ReturnStatus, MObject());
    const DagNode* node = dagNodeOf(*this);
    if (!requireAttached(node, ReturnStatus))
        return MObject();
    return neighbour(i < node->children().size() ? node->childAt(i) : nullptr, ReturnStatus);
}

// Children stand in the order of parenting: one cannot be put before others.
MStatus MFnDagNode::addChild(MObject& child, unsigned int index, bool keepExistingParents)
{
    TVX_API_CALL("MFnDagNode::addChild");
    DagNode* node = dagNodeOf(*this);
    if (!node)
        return notAttached();
    DagNode* added = dagNodeOf(child);
    if (!added)
        return failure(child.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
    const tvxhost::engine::Outcome below =
        keepExistingParents ? node->scene().addParent(*added, *node) : moveBelow(*added, *node);
    if (!below || index == kNextPos)
        return toStatus(below);
    return toStatus(node->scene().reorder(*added, *node, index));
}

MStatus MFnDagNode::removeChild(MObject& child)
{
    TVX_API_CALL("MFnDagNode::removeChild");
    DagNode* node = dagNodeOf(*this);
    if (!node)
        return notAttached();
    DagNode* removed = dagNodeOf(child);
    if (!removed || !isDirectlyBelow(*removed, *node))
        return failure(child.isNull() ? StatusText::nullArgument : StatusText::itemNotFound);
    return takeAway(*node, *removed);
}

MStatus MFnDagNode::removeChildAt(unsigned int index)
{
    TVX_API_CALL("MFnDagNode::removeChildAt");
    DagNode* node = dagNodeOf(*this);
    if (!node)
        return notAttached();
    return index < node->children().size() ? takeAway(*node, *node->children()[index])
                                           : failure(StatusText::noElementAtIndex);
}

bool MFnDagNode::hasParent(const MObject& node, MStatus* ReturnStatus) const
{
    return askAbout(*this, "MFnDagNode::hasParent", node, ReturnStatus, isDirectlyBelow);
}

bool MFnDagNode::hasChild(const MObject& node, MStatus* ReturnStatus) const
{
    return askAbout(*this, "MFnDagNode::hasChild", node, ReturnStatus,
                    [](const DagNode& self, const DagNode& other) { return isDirectlyBelow(other, self); });
}

bool MFnDagNode::isChildOf(const MObject& node, MStatus* ReturnStatus) const
{
    return askAbout(*this, "MFnDagNode::isChildOf", node, ReturnStatus, isBelow);
}

bool MFnDagNode::isParentOf(const MObject& node, MStatus* ReturnStatus) const
{
    return askAbout(*this, "MFnDagNode::isParentOf", node, ReturnStatus,
                    [](const DagNode& self, const DagNode& other) { return isBelow(other, self); });
}

MObject MFnDagNode::dagRoot(MStatus* ReturnStatus)
{
    return root(*this, "MFnDagNode::dagRoot", ReturnStatus);
}

MObject MFnDagNode::model(MStatus* ReturnStatus) const
{
    return root(*this, "MFnDagNode::model", ReturnStatus);
}

bool MFnDagNode::inModel(MStatus* ReturnStatus) const
{
    return ask(*this, "MFnDagNode::inModel", ReturnStatus,
               [](const DagNode& node) { return isBelow(node, node.scene().world()); });
}

// There is one world only, and nothing below a shape.
bool MFnDagNode::inUnderWorld(MStatus* ReturnStatus) const
{
    return ask(*this, "MFnDagNode::inUnderWorld", ReturnStatus, [](const DagNode&) { return false; });
}

// Instances

bool MFnDagNode::isInstanceable(MStatus* ReturnStatus) const
{
    return ask(*this, "MFnDagNode::isInstanceable", ReturnStatus,
               [](const DagNode& node) { return !node.isWorld(); });
}

MStatus MFnDagNode::setInstanceable(const bool)
{
    return notImplemented("MFnDagNode::setInstanceable");
}

bool MFnDagNode::isInstanced(bool indirect, MStatus* ReturnStatus) const
{
    return ask(*this, "MFnDagNode::isInstanced", ReturnStatus, [&](const DagNode& node) {
        return indirect ? tvxhost::engine::hasSeveralPaths(node) : node.parents().size() > 1;
    });
}

bool MFnDagNode::isInstancedAttribute(const MObject& attr, MStatus* ReturnStatus) const
{
    return ask(*this, "MFnDagNode::isInstancedAttribute", ReturnStatus, [&](const DagNode& node) {
        const auto* attribute = attributeOf(attr);
        return attribute && node.hasAttribute(*attribute) && attribute->topLevel()->flags.worldSpace &&
               attribute->topLevel()->isArray();
    });
}

unsigned int MFnDagNode::instanceCount(bool total, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDagNode::instanceCount", ReturnStatus, 0);
    const DagNode* node = dagNodeOf(*this);
    if (!requireAttached(node, ReturnStatus))
        return 0;
    return static_cast<unsigned int>(total ? DagPath::countTo(*node) : node->parents().size());
}

MObject MFnDagNode::duplicate(bool instance, bool instanceLeaf, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDagNode::duplicate", ReturnStatus, MObject());
    DagNode* node = dagNodeOf(*this);
    if (!requireAttached(node, ReturnStatus))
        return MObject();
    if (instance) {
        notImplemented("MFnDagNode::duplicate as an instance", ReturnStatus);
        return MObject();
    }
    tvxhost::engine::DuplicateOptions options;
    options.sharesLeaves = instanceLeaf;
    options.onCopy = copyInternalData;
    DagPath above = pathOf(*this, *node);
    if (!above.pop()) {
        give(ReturnStatus, failure(StatusText::objectIsIncompatible));
        return MObject();
    }
    const auto copy = tvxhost::engine::duplicate(*node, *above.node(), options);
    give(ReturnStatus, toStatus(copy.outcome));
    return copy ? tvxAccess::handle(copy.value) : MObject();
}

// Paths

MStatus MFnDagNode::getPath(MDagPath& result) const
{
    TVX_API_CALL("MFnDagNode::getPath");
    DagNode* node = dagNodeOf(*this);
    if (!node)
        return notAttached();
    tvxAccess::setDagPath(result, pathOf(*this, *node));
    return MS::kSuccess;
}

MStatus MFnDagNode::getAllPaths(MDagPathArray& paths) const
{
    TVX_API_CALL("MFnDagNode::getAllPaths");
    DagNode* node = dagNodeOf(*this);
    if (!node)
        return notAttached();
    paths.clear();
    for (const DagPath& each : DagPath::allTo(*node))
        tvxAccess::elements(paths).push_back(tvxAccess::dagPath(each));
    return MS::kSuccess;
}

MDagPath MFnDagNode::dagPath(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDagNode::dagPath", ReturnStatus, MDagPath());
    if (!requireAttached(dagNodeOf(*this), ReturnStatus))
        return MDagPath();
    const DagPath* own = ownPathOf(*this);
    if (!own)
        give(ReturnStatus, failure(StatusText::unexpectedFailure));
    return own ? tvxAccess::dagPath(*own) : MDagPath();
}

MString MFnDagNode::fullPathName(MStatus* ReturnStatus) const
{
    return pathName(*this, "MFnDagNode::fullPathName", &DagPath::fullName, ReturnStatus);
}

MString MFnDagNode::partialPathName(MStatus* ReturnStatus) const
{
    return pathName(*this, "MFnDagNode::partialPathName", &DagPath::partialName, ReturnStatus);
}

// Space

MMatrix MFnDagNode::transformationMatrix(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDagNode::transformationMatrix", ReturnStatus, MMatrix());
    DagNode* node = dagNodeOf(*this);
    return requireAttached(node, ReturnStatus) ? fromImath<MMatrix>(node->localMatrix()) : MMatrix();
}

MBoundingBox MFnDagNode::boundingBox(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDagNode::boundingBox", ReturnStatus, MBoundingBox());
    DagNode* node = dagNodeOf(*this);
    if (!requireAttached(node, ReturnStatus))
        return MBoundingBox();
    return MBoundingBox(corner(*node, "boundingBoxMin"), corner(*node, "boundingBoxMax"));
}

// Sets

MStatus MFnDagNode::getConnectedSetsAndMembers(unsigned int, MObjectArray&, MObjectArray&, bool) const
{
    return notImplemented("MFnDagNode::getConnectedSetsAndMembers");
}

MStatus MFnDagNode::objectGroupComponent(unsigned int, MStringArray&)
{
    return notImplemented("MFnDagNode::objectGroupComponent");
}
