// MPxNode: base class of a plug-in's nodes.
#include <maya/MPlugArray.h>
#include <maya/MPxNode.h>

#include "support/builtInAttributes.h"
#include "support/handles.h"
#include "support/notImplemented.h"
#include "support/plugCall.h"
#include "support/pxBehaviour.h"
#include "support/registeringType.h"

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::NodeType;

MObject MPxNode::message;
MObject MPxNode::isHistoricallyInteresting;
MObject MPxNode::caching;
MObject MPxNode::state;
MObject MPxNode::frozen;

namespace {

const BuiltInAttributes builtIn("node",
                                {
                                    {&MPxNode::message, "message"},
                                    {&MPxNode::isHistoricallyInteresting, "isHistoricallyInteresting"},
                                    {&MPxNode::caching, "caching"},
                                    {&MPxNode::state, "nodeState"},
                                    {&MPxNode::frozen, "frozen"},
                                });

/// What a member answers that leaves the matter to the host.
MStatus noOpinion()
{
    return MStatus(MS::kUnknownParameter);
}

} // namespace

MPxNode::MPxNode() : node(nullptr), reserved(nullptr) {}

MPxNode::~MPxNode() = default;

const char* MPxNode::className()
{
    return "MPxNode";
}

// Declaring a type

MStatus MPxNode::addAttribute(const MObject& attr)
{
    TVX_API_CALL("MPxNode::addAttribute");
    NodeType* type = RegisteringType::current();
    Attribute* attribute = attributeOf(attr);
    if (!attribute)
        return failure(attr.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
    if (!type || attribute->owner || attribute->parent)
        return failure(StatusText::unexpectedFailure);
    return plugStatus(type->addAttribute(attribute));
}

MStatus MPxNode::attributeAffects(const MObject& whenChanges, const MObject& isAffected)
{
    TVX_API_CALL("MPxNode::attributeAffects");
    NodeType* type = RegisteringType::current();
    const Attribute* input = attributeOf(whenChanges);
    const Attribute* output = attributeOf(isAffected);
    if (!input || !output)
        return failure(whenChanges.isNull() || isAffected.isNull() ? StatusText::nullArgument
                                                                   : StatusText::objectIsIncompatible);
    if (!type)
        return failure(StatusText::unexpectedFailure);
    return plugStatus(type->addAffects(*input, *output));
}

MStatus MPxNode::inheritAttributesFrom(const MString&)
{
    return notImplemented("MPxNode::inheritAttributesFrom");
}

// The node

MTypeId MPxNode::typeId() const
{
    return node ? MTypeId(node->type().id) : MTypeId();
}

MString MPxNode::typeName() const
{
    return node ? tvxAccess::string(node->type().name) : MString();
}

MString MPxNode::name() const
{
    return node ? tvxAccess::string(node->name()) : MString();
}

MObject MPxNode::thisMObject() const
{
    return tvxAccess::handle(node);
}

MPxNode::Type MPxNode::type() const
{
    return kDependNode;
}

MDataBlock MPxNode::forceCache(MDGContext& ctx)
{
    if (tvxAccess::context(ctx))
        notImplemented("MPxNode::forceCache at another time");
    static DataBlock none;
    return tvxAccess::dataBlock(reserved ? static_cast<PxBehaviour*>(reserved)->block() : none);
}

MStatus MPxNode::setDoNotWrite(bool flag)
{
    TVX_API_CALL("MPxNode::setDoNotWrite");
    if (!node)
        return failure(StatusText::objectDoesNotExist);
    node->doNotWrite = flag;
    return MS::kSuccess;
}

bool MPxNode::doNotWrite(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPxNode::doNotWrite", ReturnStatus, false);
    give(ReturnStatus, node ? MStatus() : failure(StatusText::objectDoesNotExist));
    return node && node->doNotWrite;
}

// Only one thread ever computes.
void MPxNode::setMPSafe(bool) {}

// Nodes stay when their connections go.

MStatus MPxNode::setExistWithoutInConnections(bool flag)
{
    TVX_API_CALL("MPxNode::setExistWithoutInConnections");
    return flag ? MStatus() : notImplemented("MPxNode::setExistWithoutInConnections(false)");
}

bool MPxNode::existWithoutInConnections(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPxNode::existWithoutInConnections", ReturnStatus, false);
    giveSuccess(ReturnStatus);
    return true;
}

MStatus MPxNode::setExistWithoutOutConnections(bool flag)
{
    TVX_API_CALL("MPxNode::setExistWithoutOutConnections");
    return flag ? MStatus() : notImplemented("MPxNode::setExistWithoutOutConnections(false)");
}

bool MPxNode::existWithoutOutConnections(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPxNode::existWithoutOutConnections", ReturnStatus, false);
    giveSuccess(ReturnStatus);
    return true;
}

// What a node type that does not override it answers

void MPxNode::postConstructor() {}

MStatus MPxNode::compute(const MPlug&, MDataBlock&)
{
    return noOpinion();
}

bool MPxNode::getInternalValueInContext(const MPlug& plug, MDataHandle& dataHandle, MDGContext&)
{
    return getInternalValue(plug, dataHandle);
}

bool MPxNode::setInternalValueInContext(const MPlug& plug, const MDataHandle& dataHandle, MDGContext&)
{
    return setInternalValue(plug, dataHandle);
}

bool MPxNode::getInternalValue(const MPlug&, MDataHandle&)
{
    return false;
}

bool MPxNode::setInternalValue(const MPlug&, const MDataHandle&)
{
    return false;
}

int MPxNode::internalArrayCount(const MPlug&, const MDGContext&) const
{
    return -1;
}

void MPxNode::copyInternalData(MPxNode*) {}

MStatus MPxNode::legalConnection(const MPlug&, const MPlug&, bool, bool&) const
{
    return noOpinion();
}

MStatus MPxNode::legalDisconnection(const MPlug&, const MPlug&, bool, bool&) const
{
    return noOpinion();
}

MStatus MPxNode::setDependentsDirty(const MPlug&, MPlugArray&)
{
    return MS::kSuccess;
}

MStatus MPxNode::preEvaluation(const MDGContext&, const MEvaluationNode&)
{
    return MS::kSuccess;
}

MStatus MPxNode::postEvaluation(const MDGContext&, const MEvaluationNode&, PostEvaluationType)
{
    return MS::kSuccess;
}

MPxNode::SchedulingType MPxNode::schedulingType() const
{
    return kDefaultScheduling;
}

MStatus MPxNode::connectionMade(const MPlug&, const MPlug&, bool)
{
    return noOpinion();
}

MStatus MPxNode::connectionBroken(const MPlug&, const MPlug&, bool)
{
    return noOpinion();
}

bool MPxNode::isPassiveOutput(const MPlug&) const
{
    return false;
}

MStatus MPxNode::shouldSave(const MPlug&, bool&)
{
    return noOpinion();
}

MPlug MPxNode::passThroughToOne(const MPlug&) const
{
    return MPlug();
}

bool MPxNode::passThroughToMany(const MPlug&, MPlugArray&) const
{
    return false;
}

bool MPxNode::isAbstractClass() const
{
    return false;
}

MStringArray MPxNode::getFilesToArchive(bool, bool, bool) const
{
    return MStringArray();
}

void MPxNode::getExternalContent(MExternalContentInfoTable&) const {}

void MPxNode::setExternalContent(const MExternalContentLocationTable&) {}
