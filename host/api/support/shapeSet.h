// What the function sets of lights and cameras share: attaching, and making such shapes.
#pragma once

#include "apiCall.h"
#include "dagSet.h"
#include "nodeSet.h"

#include "engine/scene.h"

#include <maya/MDagPath.h>

namespace tvxhost::api {

/// Makes a shape of a type below a parent (null: below a new transform, the result) and attaches the set to
/// it. With `wantTransform` a transform is made below the parent, and is the result.
inline MObject makeShape(MFnDagNode& set, const char* function, const char* type, const MObject& parent,
                         bool wantTransform, MStatus* returnStatus)
{
    TVX_API_CALL_OR(function, returnStatus, MObject());
    engine::Scene& scene = engine::Scene::current();
    engine::DagNode* above = dagNodeOf(parent);
    if (!parent.isNull() && (!above || !above->isTransform())) {
        give(returnStatus, failure(StatusText::objectIsIncompatible));
        return MObject();
    }
    engine::Node* result = nullptr;
    if (wantTransform && above) {
        const auto transform = scene.createNode("transform", std::string(type) + "1", above);
        if (!transform) {
            give(returnStatus, toStatus(transform.outcome));
            return MObject();
        }
        above = transform.value->asDag();
        result = above;
    }
    const auto shape = scene.createNode(type, {}, above);
    give(returnStatus, toStatus(shape.outcome));
    if (!shape)
        return MObject();
    if (!above)
        result = shape.value->asDag()->parents().front();
    static_cast<void>(attachTo(set, tvxAccess::handle(shape.value)));
    return tvxAccess::handle(result ? result : shape.value);
}

} // namespace tvxhost::api

/// Identity and constructors of a function set of shapes.
#define TVX_SHAPE_SET(Class, kType)                                                                          \
    TVX_FUNCTION_SET(Class, kType)                                                                           \
    Class::Class() {}                                                                                        \
    Class::Class(const MDagPath& object, MStatus* ret)                                                       \
    {                                                                                                        \
        TVX_CONSTRUCT_ON(Class, object, ret);                                                                \
    }

/// The three forms of create.
#define TVX_LIGHT_CREATION(Class, type)                                                                      \
    MObject Class::create(bool, MStatus* ReturnStatus)                                                       \
    {                                                                                                        \
        return ::tvxhost::api::makeShape(*this, #Class "::create", type, MObject(), false, ReturnStatus);    \
    }                                                                                                        \
    MObject Class::create(const MObject& parent, bool, bool wantTransform, MStatus* ReturnStatus)            \
    {                                                                                                        \
        return ::tvxhost::api::makeShape(*this, #Class "::create", type, parent, wantTransform,              \
                                         ReturnStatus);                                                      \
    }                                                                                                        \
    MObject Class::create(const MObject& parent, bool, MStatus* ReturnStatus)                                \
    {                                                                                                        \
        return ::tvxhost::api::makeShape(*this, #Class "::create", type, parent, false, ReturnStatus);       \
    }
