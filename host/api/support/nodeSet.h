// What the function sets of nodes share: queries of the node that a set is attached to.
#pragma once

#include "functionSet.h"

#include "engine/scene.h"

namespace tvxhost::api {

/// Asks the attached node; false and a failure when there is none. `name` is the API function's.
template <class Query>
bool askNode(const MFnBase& set, const char* name, MStatus* returnStatus, Query query)
{
    TVX_API_CALL_OR(name, returnStatus, false);
    const engine::Node* node = nodeOf(set);
    return requireAttached(node, returnStatus) && query(*node);
}

/// The type of an id or a name; null when there is none.
engine::NodeType* typeOf(const MTypeId& id);
engine::NodeType* typeOf(const MString& name);

/// Makes a node of a type, which is null when there is none of the name or id that was asked for. For a shape
/// without a parent the result is the transform that is made above it.
engine::Expected<engine::Node*> createNode(engine::NodeType* type, const std::string& name,
                                           engine::DagNode* parent);

} // namespace tvxhost::api
