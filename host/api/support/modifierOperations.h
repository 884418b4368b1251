// Operations that MDGModifier and MDagModifier share.
#pragma once

#include "modifier.h"
#include "nodeSet.h"

#include <maya/MObject.h>

namespace tvxhost::api {

/// Makes a node and queues its making: the node exists from now on, undoIt takes it away, and doIt after that
/// brings it back.
MObject queueNewNode(Modifier& modifier, engine::NodeType& type, engine::DagNode* parent,
                     MStatus* returnStatus);

/// The same for a type outside the DAG; null and types in the DAG are refused.
inline MObject queueNewNode(Modifier& modifier, engine::NodeType* type, MStatus* returnStatus)
{
    if (type && !type->isDag)
        return queueNewNode(modifier, *type, nullptr, returnStatus);
    give(returnStatus, failure(type ? StatusText::objectIsIncompatible : StatusText::itemNotFound));
    return MObject();
}

} // namespace tvxhost::api
