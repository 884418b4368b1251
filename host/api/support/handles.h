// What a handle or a function set stands for, by kind. Null when it is of another kind or nothing.
#pragma once

#include "access.h"
#include "engine/attribute.h"
#include "engine/data.h"
#include "engine/node.h"

namespace tvxhost::api {

/// A node, living or deleted.
inline engine::Node* anyNodeOf(engine::Object* object)
{
    return object && object->objectClass() == engine::ObjectClass::node ? static_cast<engine::Node*>(object)
                                                                        : nullptr;
}

/// A living node.
inline engine::Node* nodeOf(engine::Object* object)
{
    engine::Node* node = anyNodeOf(object);
    return node && node->isAlive() ? node : nullptr;
}

/// A living DAG node.
inline engine::DagNode* dagNodeOf(engine::Object* object)
{
    engine::Node* node = nodeOf(object);
    return node ? node->asDag() : nullptr;
}

inline engine::Attribute* attributeOf(engine::Object* object)
{
    return object && object->objectClass() == engine::ObjectClass::attribute
               ? static_cast<engine::Attribute*>(object)
               : nullptr;
}

inline engine::Data* dataOf(engine::Object* object)
{
    return object && object->objectClass() == engine::ObjectClass::data ? static_cast<engine::Data*>(object)
                                                                        : nullptr;
}

inline engine::Node* nodeOf(const MObject& handle)
{
    return nodeOf(tvxAccess::object(handle));
}
inline engine::DagNode* dagNodeOf(const MObject& handle)
{
    return dagNodeOf(tvxAccess::object(handle));
}
inline engine::Attribute* attributeOf(const MObject& handle)
{
    return attributeOf(tvxAccess::object(handle));
}
inline engine::Data* dataOf(const MObject& handle)
{
    return dataOf(tvxAccess::object(handle));
}

inline engine::Node* nodeOf(const MFnBase& set)
{
    return nodeOf(tvxAccess::attached(set));
}
inline engine::DagNode* dagNodeOf(const MFnBase& set)
{
    return dagNodeOf(tvxAccess::attached(set));
}
inline engine::Attribute* attributeOf(const MFnBase& set)
{
    return attributeOf(tvxAccess::attached(set));
}
inline engine::Data* dataOf(const MFnBase& set)
{
    return dataOf(tvxAccess::attached(set));
}

} // namespace tvxhost::api
