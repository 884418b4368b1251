// What an object of the engine is in terms of MFn::Type.
#pragma once

#include "engine/object.h"

#include <maya/MFn.h>
#include <maya/MTypes.h>

namespace tvxhost::engine {
class NodeType;
}

namespace tvxhost::api {

/// The most particular type of an object, as MObject::apiType gives it; kInvalid for null.
FND_EXPORT MFn::Type apiTypeOf(const engine::Object* object);
/// The type that nodes of a node type have.
FND_EXPORT MFn::Type apiTypeOf(const engine::NodeType& type);

/// Whether the function set of a type can be attached to an object: its own type and all its bases. False for
/// null.
FND_EXPORT bool hasFn(const engine::Object* object, MFn::Type type);
/// The same for nodes of a node type.
FND_EXPORT bool hasFn(const engine::NodeType& nodeType, MFn::Type type);
/// The same for any object of a type (for nodes: by the node types that are known now).
FND_EXPORT bool typeHasFn(MFn::Type objectType, MFn::Type type);

} // namespace tvxhost::api
