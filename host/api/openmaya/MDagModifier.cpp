// MDagModifier: changes of the hierarchy that can be taken back.
#include <maya/MDagModifier.h>
#include <maya/MString.h>
#include <maya/MTypeId.h>

#include "support/handles.h"
#include "support/modifierOperations.h"

using namespace tvxhost::api;
using tvxhost::engine::DagNode;
using tvxhost::engine::NodeType;
using tvxhost::engine::Ref;
using tvxhost::engine::Scene;

namespace {

MObject create(Modifier& modifier, NodeType* type, const MObject& parent, MStatus* returnStatus)
{
    TVX_API_CALL_OR("MDagModifier::createNode", returnStatus, MObject());
    DagNode* above = dagNodeOf(parent);
    if (type && type->isDag && (above || parent.isNull()))
        return queueNewNode(modifier, *type, above, returnStatus);
    give(returnStatus, failure(type ? StatusText::objectIsIncompatible : StatusText::itemNotFound));
    return MObject();
}

} // namespace

MDagModifier::MDagModifier() = default;

MDagModifier::MDagModifier(void* data) : MDGModifier(data) {}

MDagModifier::MDagModifier(const MDagModifier& other) = default;

MDagModifier& MDagModifier::operator=(const MDagModifier& rhs) = default;

MDagModifier::~MDagModifier() = default;

const char* MDagModifier::className()
{
    return "MDagModifier";
}

MObject MDagModifier::createNode(const MTypeId& typeId, const MObject& parent, MStatus* ReturnStatus)
{
    return create(tvxAccess::modifier(*this), typeOf(typeId), parent, ReturnStatus);
}

MObject MDagModifier::createNode(const MString& type, const MObject& parent, MStatus* ReturnStatus)
{
    return create(tvxAccess::modifier(*this), typeOf(type), parent, ReturnStatus);
}

MStatus MDagModifier::reparentNode(const MObject& node, const MObject& newParent)
{
    TVX_API_CALL("MDagModifier::reparentNode");
    DagNode* moved = dagNodeOf(node);
    if (!moved || moved->isWorld())
        return failure(node.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
    DagNode* target = dagNodeOf(newParent);
    if (!target && !newParent.isNull())
        return failure(StatusText::objectIsIncompatible);
    const Ref<DagNode> child(moved);
    const Ref<DagNode> to(target);
    const Ref<DagNode> from(moved->parents().front());
    tvxAccess::modifier(*this).queue([=] {
        if (!child->isAlive())
            return failure(StatusText::objectDoesNotExist);
        return toStatus(Scene::current().reparent(*child, from.get(), to.get()));
    });
    return MS::kSuccess;
}
